#include "cli/dict_edit_commands.h"

#include <charconv>
#include <iostream>
#include <memory>
#include <tuple>

#include "dictionary_tools/dictionary_reports.h"
#include "dictionary_tools/expressions.h"
#include "dictionary_tools/lexicon_compiler.h"
#include "dictionary_tools/word_corrector.h"
#include "dictionary_tools/word_lookup.h"
#include "engine/dictionary_store.h"
#include "text/font_text.h"

namespace vorlexa::cli {

namespace {

struct EditArgs {
    std::string word;
    std::string which;
    std::string record;
    std::string key;
    std::string gloss;
    std::string tag;
    std::string find;
    std::string replace;
    bool all = false;
};

std::optional<Direction> whichDictionary(const std::string& which) {
    if (which == "e-a") return Direction::EnglishToArmenian;
    if (which == "a-e") return Direction::ArmenianToEnglish;
    printError("expected e-a or a-e, not \"" + which + "\"");
    return std::nullopt;
}

std::optional<std::int64_t> recordNumber(const std::string& text) {
    std::int64_t n = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), n);
    if (ec != std::errc() || end != text.data() + text.size()) {
        printError("RECORD must be a record number, not \"" + text + "\"");
        return std::nullopt;
    }
    return n;
}

std::string printable(const DictRecord& r) {
    return toUtf8(r.key()) + '\t' + toUtf8(r.gloss()) + '\t' + toUtf8(trimBlanks(r.tag()));
}

// The dictionaries of the data folder, or nothing (the reason printed).
std::unique_ptr<DictionaryStore> openStore(const GlobalOptions& options) {
    const auto folder = openDataFolder(options);
    if (!folder) return nullptr;
    auto store = std::make_unique<DictionaryStore>();
    if (!store->open(*folder)) {
        printError("cannot open the dictionaries of " + folder->string());
        return nullptr;
    }
    return store;
}

int search(const GlobalOptions& options, const EditArgs& a) {
    const auto word = argumentToFont(a.word, "WORD");
    if (!word) return kExitUsage;
    const auto store = openStore(options);
    if (!store) return kExitFailure;
    const Direction d =
        hasArmenianLetter(*word) ? Direction::ArmenianToEnglish : Direction::EnglishToArmenian;
    const ColumnMatches found = findInColumn(store->source(d), d, *word, columnOf(d, *word), a.all);
    if (found.records.empty()) {
        printError("\"" + a.word + "\" not found in the dictionaries");
        return kExitFailure;
    }
    DictRecord r;
    for (const std::int64_t rec : found.records) {
        r.raw = store->source(d).read(rec);
        std::cout << positionText({d, rec}) << '\t' << printable(r) << '\n';
    }
    return kExitOk;
}

int change(const GlobalOptions& options, const EditArgs& a, bool deleting) {
    const auto d = whichDictionary(a.which);
    const auto n = recordNumber(a.record);
    if (!d || !n) return kExitUsage;
    const auto store = openStore(options);
    if (!store) return kExitFailure;
    std::string error;
    if (deleting) {
        if (!deleteRecord(*store, *d, *n, &error)) {
            printError(error);
            return kExitFailure;
        }
        std::cout << "deleted " << positionText({*d, *n}) << '\n';
        return kExitOk;
    }
    const auto key = argumentToFont(a.key, "KEY");
    const auto gloss = argumentToFont(a.gloss, "GLOSS");
    auto tag = argumentToFont(a.tag, "TAG");
    if (!key || !gloss || !tag) return kExitUsage;
    for (char& c : *tag)
        if (c == kTagBlank) c = ' ';
    // A script gets an error where the window would cut a field at its width.
    bool fits = true;
    for (const auto& [text, width, what] :
         {std::tuple{*key, kKeyWidth, "KEY"}, std::tuple{*gloss, kGlossWidth, "GLOSS"},
          std::tuple{*tag, kTagWidth, "TAG"}}) {
        if (static_cast<int>(text.size()) <= width) continue;
        printError(std::string(what) + " has " + std::to_string(text.size()) +
                   " characters; the record holds " + std::to_string(width));
        fits = false;
    }
    if (!fits) return kExitFailure;
    const auto reasons = checkRecordFields(*d, *key, *gloss, *tag);
    if (!reasons.empty()) {
        for (const auto& reason : reasons) printError(reason);
        return kExitFailure;
    }
    if (!changeRecord(*store, *d, *n, DictRecord::make(*key, *gloss, *tag), &error)) {
        printError(error);
        return kExitFailure;
    }
    std::cout << "changed " << positionText({*d, *n}) << '\n';
    return kExitOk;
}

int report(const GlobalOptions& options, const EditArgs& a) {
    const auto word = argumentToFont(a.word.empty() ? std::string(kEveryWord) : a.word, "WORD");
    const auto tag = argumentToFont(a.tag, "TAG");
    if (!word || !tag) return kExitUsage;
    if (tag->size() > 1) {
        printError("--tag takes the first letter of a tag");
        return kExitUsage;
    }
    const auto store = openStore(options);
    if (!store) return kExitFailure;
    const bool armenian = hasArmenianLetter(*word);
    const ReportResult r = writeDictionaryReport(
        *store, store->folder(), flatRecords(store->english()), flatRecords(store->armenian()),
        armenian ? "" : *word, armenian ? *word : "", *tag);
    if (!r.error.empty()) {
        printError(r.error);
        return kExitFailure;
    }
    std::cout << r.file.string() << '\n';
    return kExitOk;
}

int synonyms(const GlobalOptions& options, const EditArgs& a) {
    const auto word = argumentToFont(a.word, "WORD");
    if (!word) return kExitUsage;
    const auto store = openStore(options);
    if (!store) return kExitFailure;
    const LookupResult r = Txt34_dblclick(*store, flatRecords(store->english()),
                                          flatRecords(store->armenian()), *word, hayqer1Strip());
    if (!r.found) {
        printError("\"" + a.word + "\": " + std::string(kNoResults));
        return kExitFailure;
    }
    std::cout << toUtf8(r.text) << '\n';
    return kExitOk;
}

int stats(const GlobalOptions& options) {
    const auto store = openStore(options);
    if (!store) return kExitFailure;
    for (const Direction d : {Direction::EnglishToArmenian, Direction::ArmenianToEnglish}) {
        const RecordFile& file = store->source(d);
        std::int64_t words = 0;
        std::int64_t freed = 0;
        std::int64_t ends = 0;
        DictRecord r;
        for (std::int64_t rec = 1; rec <= file.recordCount(); ++rec) {
            r.raw = file.read(rec);
            if (r.isFreed())
                ++freed;
            else if (r.isNull())
                ++ends;
            else if (carriesGloss(r.raw))
                ++words;
        }
        std::cout << file.path().filename().string() << ": " << words << " words, " << freed
                  << " freed slots, " << ends << " column ends, " << file.recordCount()
                  << " records, " << strideOf(d) << " columns\n";
    }
    return kExitOk;
}

int addPair(const GlobalOptions& options, const EditArgs& a) {
    const auto find = argumentToFont(a.find, "FIND");
    const auto replace = argumentToFont(a.replace, "REPLACE");
    if (!find || !replace) return kExitUsage;
    bool ok = true;
    if (find->empty()) {
        printError("FIND is empty: the pair would match nowhere");
        ok = false;
    }
    for (const auto& [text, what] : {std::pair{*find, "FIND"}, std::pair{*replace, "REPLACE"}}) {
        if (static_cast<int>(text.size()) > kExpressionTextWidth) {
            printError(std::string(what) + " is longer than " +
                       std::to_string(kExpressionTextWidth) + " characters");
            ok = false;
        }
    }
    if (!ok) return kExitFailure;
    const auto folder = openDataFolder(options);
    if (!folder) return kExitFailure;
    const ExpressionResult r = addExpression(*folder, *find, *replace);
    if (!r.error.empty()) {
        printError(r.error);
        return kExitFailure;
    }
    std::cout << "added to " << r.file.filename().string() << " at record " << r.record << '\n';
    return kExitOk;
}

}  // namespace

void addDictEditCommands(CLI::App& dict, const GlobalOptions& options, int& result) {
    auto args = std::make_shared<EditArgs>();

    CLI::App* se = dict.add_subcommand("search", "Find a word's record as the Word Corrector does");
    se->add_option("WORD", args->word, "English or Armenian word")->required();
    se->add_flag("--all", args->all, "every meaning, not only the first");
    se->callback([args, &options, &result] { result = search(options, *args); });

    CLI::App* ch =
        dict.add_subcommand("change", "Rewrite a record in place (no reverse entry is touched)");
    ch->add_option("WHICH", args->which, "e-a or a-e")->required();
    ch->add_option("RECORD", args->record, "record number, as search prints it")->required();
    ch->add_option("KEY", args->key, "the word")->required();
    ch->add_option("GLOSS", args->gloss, "its translation")->required();
    ch->add_option("TAG", args->tag, "grammar tag; '_' stands for a blank")->required();
    ch->callback([args, &options, &result] { result = change(options, *args, false); });

    CLI::App* de =
        dict.add_subcommand("delete", "Free a record; its slot is reused by the next word added");
    de->add_option("WHICH", args->which, "e-a or a-e")->required();
    de->add_option("RECORD", args->record, "record number, as search prints it")->required();
    de->callback([args, &options, &result] { result = change(options, *args, true); });

    CLI::App* re = dict.add_subcommand(
        "report", "Write the sorted word list of a beginning or a part of speech");
    re->add_option("WORD", args->word,
                   "two letters or more: the words of its column that begin so; one letter or '*': "
                   "every word so beginning (default '*')");
    re->add_option("--tag", args->tag, "only words whose tag begins with this letter");
    re->callback([args, &options, &result] { result = report(options, *args); });

    CLI::App* sy = dict.add_subcommand(
        "synonyms", "Print a word's translations and the words sharing its gloss");
    sy->add_option("WORD", args->word, "English or Armenian word")->required();
    sy->callback([args, &options, &result] { result = synonyms(options, *args); });

    CLI::App* st =
        dict.add_subcommand("stats", "Count the words, freed slots and records of each dictionary");
    st->callback([&options, &result] { result = stats(options); });
}

void addExpressionCommands(CLI::App& app, const GlobalOptions& options, int& result) {
    auto args = std::make_shared<EditArgs>();
    CLI::App* ex = app.add_subcommand("expressions",
                                      "Work on the expression lists applied at the end of a run");
    ex->require_subcommand(1);
    CLI::App* ad =
        ex->add_subcommand("add", "Add a pair: FIND becomes REPLACE in every later translation");
    ad->add_option("FIND", args->find, "the text to find")->required();
    ad->add_option("REPLACE", args->replace, "what it becomes")->required();
    ad->callback([args, &options, &result] { result = addPair(options, *args); });
}

}  // namespace vorlexa::cli
