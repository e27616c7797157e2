#include "engine/watched_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cstdint>

namespace vorlexa {

WatchedFile::WatchedFile(const std::filesystem::path& path) : file_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}

std::optional<FileStamp> WatchedFile::stamp() const {
    struct stat st {};
    if (file_.get() < 0 || ::fstat(file_.get(), &st) != 0 || st.st_nlink == 0) return std::nullopt;
    constexpr std::int64_t kNsPerSecond = 1'000'000'000;
    return FileStamp{static_cast<std::uint64_t>(st.st_size),
                     static_cast<std::int64_t>(st.st_mtim.tv_sec) * kNsPerSecond + st.st_mtim.tv_nsec};
}

}  // namespace vorlexa
