// The process's own figures from /proc, for the memory benchmarks.
#pragma once

#include <fstream>
#include <string>

namespace vorlexa::bench {

// Kilobytes of a /proc/self/status line such as VmHWM; -1 when the line is missing.
inline long statusKb(const std::string& field) {
    std::ifstream in("/proc/self/status");
    std::string line;
    while (std::getline(in, line))
        if (line.rfind(field + ":", 0) == 0) return std::stol(line.substr(field.size() + 1));
    return -1;
}

}  // namespace vorlexa::bench
