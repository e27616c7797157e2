// A command-line test over a data folder of its own, compiled from the lexicons the test gives.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "dictionary_tools/lexicon_compiler.h"
#include "support/run_cli.h"
#include "support/temp_folder.h"

namespace vorlexa::test {

class CliDataTest : public ::testing::Test {
  protected:
    // Lexicon lines are "key<TAB>gloss<TAB>tag" in UTF-8.
    void buildData(const std::string& englishArmenian, const std::string& armenianEnglish) {
        dir.write("src/lexicon/en-hy.tsv", englishArmenian);
        dir.write("src/lexicon/hy-en.tsv", armenianEnglish);
        const auto report = buildDataFolder(dir / "src", dir / "data");
        ASSERT_TRUE(report.ok());
    }
    std::string data() const { return "--data-dir " + shellQuote((dir / "data").string()) + " "; }
    CliResult run(const std::string& args, const std::string& input = "") {
        return runCli(data() + args, input, dir.path());
    }
    TempFolder dir;
};

}  // namespace vorlexa::test
