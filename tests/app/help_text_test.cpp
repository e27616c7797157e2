#include "app/help_text.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

using namespace vorlexa;
using namespace vorlexa::app;
using vorlexa::test::TempFolder;

TEST(FontNote, FontNoteIsTheSectionAfterTheSecondMarkLessItsOwnMark) {
    const std::string text = "Armenian help\r\nmore null\r\nEnglish help\r\nnull0\r\nFont note\r\nline two\r\nnull\r\n";
    EXPECT_EQ(fontNoteFromHelpText(text), "\r\nFont note\r\nline two\r\n");
}

TEST(FontNote, LinesMayEndInLineFeedsAlone) {
    EXPECT_EQ(fontNoteFromHelpText("a\nnull\nb\n\nnull0\nnote\nnull\n"), "\r\nnote\r\n");
}

TEST(FontNote, WithoutAThirdMarkTheLastFourCharactersGoAnyway) {
    EXPECT_EQ(fontNoteFromHelpText("a null\nb null0\nthe note"), "\r\nthe ");
}

TEST(FontNote, FewerMarksLeaveWhatFollowsTheLastOne) {
    EXPECT_EQ(fontNoteFromHelpText("only one section null\nrest of it\n"), "\r\nrest o");
    EXPECT_EQ(fontNoteFromHelpText(""), "");
}

TEST(FontNote, MissingFileGivesNothing) {
    TempFolder dir;
    EXPECT_FALSE(fontNoteFromHelp(dir / "read.txt"));
    dir.write("read.txt", "x\nnull\ny\nnull0\nnote\nnull");
    EXPECT_EQ(fontNoteFromHelp(dir / "read.txt"), "\r\nnote\r\n");
}
