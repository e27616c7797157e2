// A data folder of the tests' own: a small lexicon compiled by the program's compiler, so that
// the window's tests don't depend on the shipped dictionaries.
#pragma once

#include <filesystem>
#include <string>

#include "dictionary_tools/lexicon_compiler.h"
#include "support/temp_folder.h"

namespace vorlexa::test {

inline const char* const kFixtureEnglish =
    "house\tտուն\tn\n"
    "big\tմեծ\ta\n"
    "is\tէ\to\n"
    "book\tգիրք\tn\n"
    "red\tկարմիր\ta\n";

inline const char* const kFixtureArmenian =
    "տուն\thouse\tn\n"
    "մեծ\tbig\ta\n"
    "գիրք\tbook\tn\n";

// Three sections, each closed by its mark: the Armenian help, the English help, the font note.
inline const char* const kFixtureHelp =
    "Օգնություն\nnull\n"
    "Help text\nnull0\n"
    "Install a font with Armenian letters.\nnull\n";

// Compiles the fixture into folder/data and returns that path.
inline std::filesystem::path buildFixtureData(const TempFolder& folder) {
    folder.write("src/lexicon/en-hy.tsv", kFixtureEnglish);
    folder.write("src/lexicon/hy-en.tsv", kFixtureArmenian);
    folder.write("src/help/read.txt", kFixtureHelp);
    const std::filesystem::path data = folder / "data";
    const CompileReport report = buildDataFolder(folder / "src", data);
    EXPECT_TRUE(report.ok());
    return data;
}

}  // namespace vorlexa::test
