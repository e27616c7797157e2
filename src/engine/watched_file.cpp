#include "engine/watched_file.h"

#include <fcntl.h>

namespace vorlexa {

WatchedFile::WatchedFile(const std::filesystem::path& path) : file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}

std::optional<FileStamp> WatchedFile::stamp() const { return FileStamp::ofOpen(file_.get()); }

}  // namespace vorlexa
