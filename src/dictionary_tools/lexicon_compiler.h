// Compiles the reviewable text of data/ into the record files the engine reads, and checks a
// compiled data folder. Every problem names its file and line (or record).
#pragma once

#include <filesystem>
#include <string>
#include <set>
#include <string_view>
#include <vector>

#include "engine/dictionary_store.h"

namespace vorlexa {

inline constexpr int kPairRecordLength = 100;       // uxxuma, uxxume: two halves of 50
inline constexpr int kDialectRecordLength = 40;     // uxxumy: two halves of 20
inline constexpr char kTagBlank = '_';              // stands for a blank inside a tag in the text

struct Diagnostic {
    std::string file;
    int line = 0;  // line of a text file, or record number of a compiled file
    std::string message;
    bool warning = false;

    std::string str() const;
};

struct CompileReport {
    std::vector<Diagnostic> diagnostics;
    int englishRecords = 0;
    int armenianRecords = 0;

    bool ok() const;
};

// One parsed line of a lexicon file, in font text.
struct LexiconEntry {
    int line = 0;
    std::string key;
    std::string gloss;
    std::string tag;  // blanks for the "_" of the text, at most five characters
};

// Checks the fields of one record: widths, tag letters and positions, lower-case keys, only
// letters and the allowed signs on each side. Returns the reasons (empty when the record is good).
// keySpelledByRule: the key is written as a rule looks it up, so its letters are not checked.
std::vector<std::string> checkRecordFields(Direction direction, std::string_view key,
                                           std::string_view gloss, std::string_view tag,
                                           bool keySpelledByRule = false);

// Reads a lexicon file (key TAB gloss TAB tag); bad lines are reported and left out. Keys in
// ruleSpelledKeys are taken as the rules spell them, capitals and signs included.
std::vector<LexiconEntry> readLexicon(const std::filesystem::path& file, Direction direction,
                                      std::vector<Diagnostic>& diagnostics,
                                      const std::set<std::string>& ruleSpelledKeys = {});

// Compiles SOURCE (laid out as data/) into the data folder TARGET.
CompileReport buildDataFolder(const std::filesystem::path& source, const std::filesystem::path& target);

// Validates the compiled files of a data folder.
CompileReport checkDataFolder(const std::filesystem::path& folder);

}  // namespace vorlexa
