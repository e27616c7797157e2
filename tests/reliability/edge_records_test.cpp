#include <gtest/gtest.h>

#include <string>

#include "support/temp_folder.h"
#include "text/converters.h"

using namespace vorlexa;

// The enc file may be edited between its writing and its reading: a bad line reads as 0.
TEST(EncFile, ALineThatIsNoNumberReadsAsZeroInsteadOfEndingTheProgram) {
    test::TempFolder dir;
    dir.write("enc", "255\r\n254\r\nabc\r\n99999999999999999999\r\n 65\r\n+66 left\r\n-1\r\n");
    std::string body;
    ASSERT_TRUE(decd_Click(dir / "enc", body));
    EXPECT_EQ(body, std::string("\xFF\xFE\0\0\x41\x42\xFF", 7));
}
