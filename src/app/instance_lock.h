// One running copy per data folder: the first copy holds an advisory lock on a file there, and
// a second copy that can't take it is told so and ends. The lock goes with the process, so a
// copy that crashed leaves nothing behind that blocks the next start.
#pragma once

#include <filesystem>
#include <string_view>

namespace vorlexa::app {

inline constexpr std::string_view kLockFileName = "vorlexa.lock";

class InstanceLock {
public:
    InstanceLock() = default;
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    // Takes the lock of the folder. False when another copy holds it (or the file can't be
    // made, in which case the start goes on without a lock rather than refusing).
    bool acquire(const std::filesystem::path& folder);
    void release();
    bool held() const { return fd_ >= 0; }
    // True when acquire failed because another copy holds the lock.
    bool heldElsewhere() const { return heldElsewhere_; }

private:
    int fd_ = -1;
    bool heldElsewhere_ = false;
};

}  // namespace vorlexa::app
