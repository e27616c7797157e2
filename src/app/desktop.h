// What the dialogs and the small commands of the File, Internet and Help menus need of the
// desktop around them: the clipboard, the colour chooser, and starting other programs, files
// and addresses. The desktop program implements it with the toolkit's services; the tests with
// a fake that records what would have been started, without starting anything.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/font_text.h"

namespace vorlexa::app {

class Desktop {
public:
    virtual ~Desktop() = default;

    // The clipboard holds font text here; the desktop converts at its edge.
    virtual FontText clipboardText() const = 0;
    virtual void setClipboardText(const FontText& text) = 0;
    virtual void clearClipboard() = 0;

    // The colour chooser, starting from a colour 0x00BBGGRR; nullopt when it is cancelled.
    virtual std::optional<std::int64_t> chooseColor(std::int64_t current) = 0;

    // An address in the desktop's browser. False when nothing could be started.
    virtual bool openUrl(const std::string& url) = 0;
    // A file in the desktop's default application for its type. False when there is none.
    virtual bool openFile(const std::filesystem::path& file) = 0;
    // A program of the search path by its command name; nullopt when there is none.
    virtual std::optional<std::filesystem::path> findProgram(std::string_view name) const = 0;
    // Starts a program without waiting for it. False when it could not be started.
    virtual bool startProgram(const std::filesystem::path& program, const std::vector<std::string>& arguments) = 0;

    // The program ends (Save As from the exit question).
    virtual void endProgram() = 0;
};

// A word processor known by its command name, with the arguments that open an empty text
// document.
struct WordProcessor {
    std::string_view command;
    std::vector<std::string> newDocument;
};

// The common word processors of a Linux desktop, in the order they are tried.
const std::vector<WordProcessor>& wordProcessors();

// Starts the desktop's word processor without waiting: on `file` when one is given (first the
// desktop's default application for its type, then the word processors by command name), or
// on an empty document. False when none could be started.
bool startWordProcessor(Desktop& desktop, const std::optional<std::filesystem::path>& file);

}  // namespace vorlexa::app
