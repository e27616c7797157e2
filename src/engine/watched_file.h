// A file held open so that a change to it is told by one fstat, with no walk of its path: a run
// per line asks after its pair list at every run, and the walk of a long path cost more than the
// rest of a short line's repair.
#pragma once

#include <filesystem>
#include <optional>

#include "engine/dictionary_store.h"

namespace vorlexa {

class WatchedFile {
public:
    WatchedFile() = default;
    explicit WatchedFile(const std::filesystem::path& path);

    // The stamp of the file held; none when no file is held or its last name was removed (the
    // file was deleted, or another took its name), so that the name is read again.
    std::optional<FileStamp> stamp() const;

private:
    OwnedFd file_;
};

}  // namespace vorlexa
