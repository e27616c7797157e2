// The words of the window tests' own data folder, shared by the core tests and the Qt tests.
#pragma once

namespace vorlexa::test {

inline const char* const kFixtureEnglish =
    "house\tտուն\tn\n"
    "big\tմեծ\ta\n"
    "is\tէ\to\n"
    "book\tգիրք\tn\n"
    "red\tկարմիր\ta\n";

inline const char* const kFixtureArmenian =
    "տուն\thouse\tn\n"
    "մեծ\tbig\ta\n"
    "գիրք\tbook\tn\n";

// Three sections, each closed by its mark: the Armenian help, the English help, the font note.
inline const char* const kFixtureHelp =
    "Օգնություն\nnull\n"
    "Help text\nnull0\n"
    "Install a font with Armenian letters.\nnull\n";

}  // namespace vorlexa::test
