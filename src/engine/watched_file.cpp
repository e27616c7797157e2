#include "engine/watched_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdint>
#include <utility>

namespace vorlexa {

WatchedFile::WatchedFile(const std::filesystem::path& path) : fd_(::open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}

WatchedFile::WatchedFile(WatchedFile&& other) noexcept : fd_(std::exchange(other.fd_, -1)) {}

WatchedFile& WatchedFile::operator=(WatchedFile&& other) noexcept {
    if (this != &other) {
        if (fd_ >= 0) ::close(fd_);
        fd_ = std::exchange(other.fd_, -1);
    }
    return *this;
}

WatchedFile::~WatchedFile() {
    if (fd_ >= 0) ::close(fd_);
}

std::optional<FileStamp> WatchedFile::stamp() const {
    struct stat st {};
    if (fd_ < 0 || ::fstat(fd_, &st) != 0 || st.st_nlink == 0) return std::nullopt;
    constexpr std::int64_t kNsPerSecond = 1'000'000'000;
    return FileStamp{static_cast<std::uint64_t>(st.st_size),
                     static_cast<std::int64_t>(st.st_mtim.tv_sec) * kNsPerSecond + st.st_mtim.tv_nsec};
}

}  // namespace vorlexa
