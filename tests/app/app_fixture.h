// A data folder of the tests' own: a small lexicon compiled by the program's compiler, so that
// the window's tests don't depend on the shipped dictionaries.
#pragma once

#include <filesystem>
#include <string>

#include "app/fixture_lexicon.h"
#include "dictionary_tools/lexicon_compiler.h"
#include "support/temp_folder.h"

namespace vorlexa::test {

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
