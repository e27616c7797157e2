// Byte strings written as numbers, for tests of encodings.
#pragma once

#include <initializer_list>
#include <string>

namespace vorlexa::test {

inline std::string bytes(std::initializer_list<int> codes) {
    std::string s;
    for (int c : codes) s += static_cast<char>(c);
    return s;
}

}  // namespace vorlexa::test
