#include "cli/dict_commands.h"

#include <iostream>
#include <memory>

#include "cli/dict_edit_commands.h"
#include "dictionary_tools/lexicon_compiler.h"
#include "engine/data_folder.h"
#include "engine/dictionary_store.h"
#include "text/font_text.h"

namespace vorlexa::cli {

using namespace vorlexa::literals;

namespace {

struct DictArgs {
    std::string word;
    std::string key;
    std::string gloss;
    std::string tag;
    std::string which = "e-a";
    std::string source;
    bool all = false;
};

Direction directionOf(std::string_view font) {
    return hasArmenianLetter(font) ? Direction::ArmenianToEnglish : Direction::EnglishToArmenian;
}

std::string recordLine(const DictRecord& r) {
    std::string tag = r.tag();
    while (!tag.empty() && tag.back() == ' ') tag.pop_back();
    return toUtf8(r.key()) + '\t' + toUtf8(r.gloss()) + '\t' + toUtf8(tag);
}

void printDiagnostics(const CompileReport& report) {
    for (const auto& d : report.diagnostics) std::cerr << d.str() << '\n';
}

int column(const DictArgs& a) {
    const auto word = argumentToFont(a.word, "WORD");
    if (!word) return kExitFailure;
    const Direction d = directionOf(*word);
    std::cout << columnOf(d, *word) << '\n';
    return kExitOk;
}

// The key as the scanner builds it from a typed word: capitals of the source language in small
// letters, and "եւ" written as the ligature.
FontText scannerKey(std::string_view word, Direction d) {
    if (d == Direction::ArmenianToEnglish) {
        FontText key = foldArmenianCase(word);
        const std::string_view yev = "եւ"_ft;
        for (auto at = key.find(yev); at != FontText::npos; at = key.find(yev, at + 1))
            key.replace(at, yev.size(), 1, static_cast<char>(font::kLigature));
        return key;
    }
    FontText key(word);
    for (char& c : key)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + ('a' - 'A'));
    return key;
}

int lookup(const GlobalOptions& options, const DictArgs& a) {
    const auto typed = argumentToFont(a.word, "WORD");
    const auto folder = openDataFolder(options);
    if (!typed || !folder) return kExitFailure;
    DictionaryStore store;
    store.open(*folder);
    const Direction d = directionOf(*typed);
    const FontText word = scannerKey(*typed, d);
    const auto rec = d == Direction::EnglishToArmenian ? store.findEnglish(word) : store.findArmenian(word);
    if (!rec) {
        printError("\"" + a.word + "\" not found");
        return kExitFailure;
    }
    DictRecord r;
    r.raw = store.source(d).read(*rec);
    std::cout << recordLine(r) << '\t' << *rec << '\n';
    return kExitOk;
}

int add(const GlobalOptions& options, const DictArgs& a) {
    const auto key = argumentToFont(a.key, "KEY");
    const auto gloss = argumentToFont(a.gloss, "GLOSS");
    auto tag = argumentToFont(a.tag, "TAG");
    const auto folder = openDataFolder(options);
    if (!key || !gloss || !tag || !folder) return kExitFailure;
    for (char& c : *tag)
        if (c == kTagBlank) c = ' ';
    const Direction d = directionOf(*key);
    std::string shownGloss = d == Direction::EnglishToArmenian ? foldArmenianCase(*gloss) : *gloss;
    if (d == Direction::ArmenianToEnglish)
        for (char& c : shownGloss)
            if (c >= 'A' && c <= 'Z') c = static_cast<char>(c + 32);
    const auto reasons = checkRecordFields(d, *key, shownGloss.substr(0, kGlossWidth), *tag);
    if (!reasons.empty()) {
        for (const auto& r : reasons) printError(r);
        return kExitFailure;
    }
    DictionaryStore store;
    store.open(*folder);
    const InsertResult result = insertWordPair(store, d, *key, *gloss, *tag);
    if (!result.record) {
        printError(result.error);
        return kExitFailure;
    }
    std::cout << "added at record " << *result.record << '\n';
    if (result.reverseRecord)
        std::cout << "reverse entry at record " << *result.reverseRecord << '\n';
    else if (!result.error.empty())
        printError(result.error);
    return result.error.empty() ? kExitOk : kExitFailure;
}

int dump(const GlobalOptions& options, const DictArgs& a) {
    if (a.which != "e-a" && a.which != "a-e") {
        printError("dump takes e-a or a-e");
        return kExitUsage;
    }
    const auto folder = openDataFolder(options);
    if (!folder) return kExitFailure;
    DictionaryStore store;
    store.open(*folder);
    const RecordFile& file = a.which == "e-a" ? store.english() : store.armenian();
    DictRecord r;
    for (std::int64_t rec = 1; rec <= file.recordCount(); ++rec) {
        r.raw = file.read(rec);
        if (trimBlanks(r.raw).empty()) continue;
        if (!a.all && (r.isNull() || r.isFreed())) continue;
        std::cout << rec << '\t' << recordLine(r) << '\n';
    }
    return kExitOk;
}

int check(const GlobalOptions& options) {
    const auto folder = openDataFolder(options);
    if (!folder) return kExitFailure;
    const CompileReport report = checkDataFolder(*folder);
    printDiagnostics(report);
    if (!report.ok()) return kExitFailure;
    std::cout << "dictionarye-a: " << report.englishRecords << " records, dictionarya-e: "
              << report.armenianRecords << " records: ok\n";
    return kExitOk;
}

int build(const GlobalOptions& options, const DictArgs& a) {
    const auto target = resolveDataFolder(options.dataDirOption());
    const CompileReport report = buildDataFolder(a.source, target);
    printDiagnostics(report);
    if (!report.ok()) return kExitFailure;
    std::cout << "built " << target.string() << ": " << report.englishRecords
              << " English and " << report.armenianRecords << " Armenian records\n";
    return kExitOk;
}

}  // namespace

void addDictCommands(CLI::App& app, const GlobalOptions& options, int& result) {
    auto args = std::make_shared<DictArgs>();
    CLI::App* dict = app.add_subcommand("dict", "Work on the dictionaries of the data folder");
    dict->require_subcommand(1);

    CLI::App* col = dict->add_subcommand("column", "Print the column a word is stored in");
    col->add_option("WORD", args->word, "English or Armenian word")->required();
    col->callback([args, &result] { result = column(*args); });

    CLI::App* look = dict->add_subcommand("lookup", "Print the record the engine reads for a word");
    look->add_option("WORD", args->word, "English or Armenian word")->required();
    look->callback([args, &options, &result] { result = lookup(options, *args); });

    CLI::App* ad = dict->add_subcommand("add", "Add a word pair and its reverse entry");
    ad->add_option("KEY", args->key, "the word")->required();
    ad->add_option("GLOSS", args->gloss, "its translation")->required();
    ad->add_option("TAG", args->tag, "grammar tag; '_' stands for a blank")->required();
    ad->callback([args, &options, &result] { result = add(options, *args); });

    CLI::App* du = dict->add_subcommand("dump", "Print every record with its number");
    du->add_option("WHICH", args->which, "e-a (default) or a-e");
    du->add_flag("--all", args->all, "also the end records and freed slots");
    du->callback([args, &options, &result] { result = dump(options, *args); });

    CLI::App* ch = dict->add_subcommand("check", "Validate the compiled data folder");
    ch->callback([&options, &result] { result = check(options); });

    CLI::App* bu = dict->add_subcommand("build", "Compile a source folder laid out as data/ into the data folder");
    bu->add_option("SOURCE", args->source, "folder with lexicon/, pairs/, help/")->required()->check(CLI::ExistingDirectory);
    bu->callback([args, &options, &result] { result = build(options, *args); });

    addDictEditCommands(*dict, options, result);
    addExpressionCommands(app, options, result);
}

}  // namespace vorlexa::cli
