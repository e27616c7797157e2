// vorlexa-cli translit, case and convert: the text tools of the window over files or standard
// input, written to standard output. They need no dictionary.
#include "cli/text_commands.h"

#include <algorithm>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <memory>

#include "text/font_text.h"
#include "text_tools/case_change.h"
#include "text_tools/transliteration.h"

namespace vorlexa::cli {

namespace {

struct TextArgs {
    std::vector<std::string> files;
    // translit
    bool armLat = false;
    bool engArm = false;
    bool latArm = false;
    // case
    bool armUpper = false;
    bool armLower = false;
    bool engUpper = false;
    bool engLower = false;
    // convert
    bool toFont = false;
    bool toUnicode = false;
};

// The bytes of one input; standard input when `file` is empty.
std::optional<std::string> readAll(const std::string& file) {
    if (file.empty()) return std::string(std::istreambuf_iterator<char>(std::cin), {});
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        printError(file + ": cannot read the file");
        return std::nullopt;
    }
    std::string bytes(std::istreambuf_iterator<char>(in), {});
    if (in.bad()) {
        printError(file + ": read error");
        return std::nullopt;
    }
    return bytes;
}

std::string nameOf(const std::string& file) {
    return file.empty() ? "standard input" : file;
}

// Runs `convert` over each input in turn and writes what it gives; stops at the first failure.
int eachInput(const std::vector<std::string>& files,
              const std::function<std::optional<std::string>(const std::string& name,
                                                             const std::string& bytes)>& convert) {
    const std::vector<std::string> inputs = files.empty() ? std::vector<std::string>{""} : files;
    for (const std::string& file : inputs) {
        const auto bytes = readAll(file);
        if (!bytes) return kExitFailure;
        const auto out = convert(nameOf(file), *bytes);
        if (!out) return kExitFailure;
        std::cout << *out;
    }
    std::cout.flush();
    if (!std::cout) {
        printError("cannot write to standard output");
        return kExitFailure;
    }
    return kExitOk;
}

// UTF-8 to font text, or a message naming the first bad byte.
std::optional<FontText> fontOfUtf8(const std::string& name, const std::string& utf8) {
    Utf8Report report;
    FontText font = fromUtf8(utf8, &report);
    if (report.invalidSequences > 0) {
        printError(name + ": not UTF-8 text (bad byte at offset " +
                   std::to_string(report.firstInvalidOffset) + ")");
        return std::nullopt;
    }
    return font;
}

// A font text rewritten by `change` and given back as UTF-8.
int rewrite(const TextArgs& args, const std::function<FontText(std::string_view)>& change) {
    return eachInput(
        args.files,
        [&](const std::string& name, const std::string& bytes) -> std::optional<std::string> {
            const auto font = fontOfUtf8(name, bytes);
            if (!font) return std::nullopt;
            return toUtf8(change(*font));
        });
}

int translit(const TextArgs& args) {
    using text_tools::Transliteration;
    const Transliteration which = args.armLat   ? Transliteration::ArmenianToLatin
                                  : args.engArm ? Transliteration::EnglishToArmenian
                                                : Transliteration::LatinArmenianToArmenian;
    return rewrite(
        args, [which](std::string_view text) { return text_tools::transliterate(text, which); });
}

int changeCase(const TextArgs& args) {
    const int mode = args.armUpper   ? text_tools::kArmenianUpper
                     : args.armLower ? text_tools::kArmenianLower
                     : args.engUpper ? text_tools::kEnglishUpper
                                     : text_tools::kEnglishLower;
    return rewrite(args,
                   [mode](std::string_view text) { return text_tools::changeCase(text, mode); });
}

// Font bytes to UTF-8. A byte that stands for no character (no letter, sign or escape of the
// font encoding) is an error, as iconv reports a byte it can't convert.
std::optional<std::string> unicodeOfFontBytes(const std::string& name, const std::string& bytes) {
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const auto c = static_cast<unsigned char>(bytes[i]);
        if (escapeAt(bytes, i)) {
            // An escape, written by "convert --to-font" for a character the font has no code for.
            i += font::kEscapeDigits;
            continue;
        }
        if (c == 0 || font::unicodeOf(c) != 0) continue;
        printError(name + ": byte " + std::to_string(c) + " at offset " + std::to_string(i) +
                   " stands for no character of the font encoding");
        return std::nullopt;
    }
    return toUtf8(bytes);
}

int convert(const TextArgs& args) {
    if (args.toUnicode) return eachInput(args.files, unicodeOfFontBytes);
    std::size_t escaped = 0;
    const int result =
        eachInput(args.files,
                  [&escaped](const std::string& name,
                             const std::string& bytes) -> std::optional<std::string> {
                      auto font = fontOfUtf8(name, bytes);
                      if (font)
                          escaped += static_cast<std::size_t>(std::count(
                              font->begin(), font->end(), static_cast<char>(font::kEscape)));
                      return font;
                  });
    // The escapes come back with --to-unicode; software that reads the font alone can't show them.
    if (result == kExitOk && escaped > 0)
        printError("note: " + std::to_string(escaped) +
                   " characters have no code in the font encoding and were written as escapes");
    return result;
}

// Exactly one of `flags` must be given.
void requireOne(CLI::App* command, const std::vector<std::pair<std::string, bool*>>& flags,
                const std::vector<std::string>& help) {
    CLI::Option_group* group =
        command->add_option_group("mode", "what the command does (one of them)");
    for (std::size_t i = 0; i < flags.size(); ++i)
        group->add_flag(flags[i].first, *flags[i].second, help[i]);
    group->require_option(1);
}

}  // namespace

void addTextCommands(CLI::App& app, int& result) {
    auto args = std::make_shared<TextArgs>();

    CLI::App* tr =
        app.add_subcommand("translit", "Write a UTF-8 text in the other script, letter by letter");
    tr->add_option("FILE", args->files, "text files (default: standard input)");
    requireOne(
        tr,
        {{"--arm-lat", &args->armLat}, {"--eng-arm", &args->engArm}, {"--lat-arm", &args->latArm}},
        {"Armenian in Latin letters", "an English text in Armenian letters, by its sound",
         "Armenian typed in Latin letters back in Armenian letters"});
    tr->callback([args, &result] { result = translit(*args); });

    CLI::App* cc = app.add_subcommand(
        "case", "Change the case of the Armenian or the Latin letters of a UTF-8 text");
    cc->add_option("FILE", args->files, "text files (default: standard input)");
    requireOne(cc,
               {{"--arm-upper", &args->armUpper},
                {"--arm-lower", &args->armLower},
                {"--eng-upper", &args->engUpper},
                {"--eng-lower", &args->engLower}},
               {"Armenian capitals (և becomes ԵՎ)", "Armenian small letters", "Latin capitals",
                "Latin small letters"});
    cc->callback([args, &result] { result = changeCase(*args); });

    CLI::App* cv = app.add_subcommand(
        "convert", "Convert between UTF-8 and the one-byte Armenian font encoding");
    cv->add_option("FILE", args->files, "files (default: standard input)");
    requireOne(cv, {{"--to-font", &args->toFont}, {"--to-unicode", &args->toUnicode}},
               {"UTF-8 in, font-encoded bytes out", "font-encoded bytes in, UTF-8 out"});
    cv->callback([args, &result] { result = convert(*args); });
}

}  // namespace vorlexa::cli
