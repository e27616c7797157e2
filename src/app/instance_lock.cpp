#include "app/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace vorlexa::app {

InstanceLock::~InstanceLock() { release(); }

bool InstanceLock::acquire(const std::filesystem::path& folder) {
    release();
    heldElsewhere_ = false;
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    const std::filesystem::path path = folder / kLockFileName;
    const int fd = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (fd < 0) return true;
    // flock belongs to the open file description: a second open, even in this process, is
    // refused while the first is held.
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        heldElsewhere_ = errno == EWOULDBLOCK;
        ::close(fd);
        return !heldElsewhere_;
    }
    fd_ = fd;
    return true;
}

void InstanceLock::release() {
    if (fd_ < 0) return;
    ::flock(fd_, LOCK_UN);
    ::close(fd_);
    fd_ = -1;
}

}  // namespace vorlexa::app
