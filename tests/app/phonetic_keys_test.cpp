#include "app/phonetic_keys.h"

#include <gtest/gtest.h>

#include <map>

using namespace vorlexa::app;

namespace {

// The main table by font code, as the key table lists it.
const std::map<char, int> kMain = {
    {'!', 190}, {'#', 246}, {'$', 210}, {'%', 230}, {'(', 226}, {')', 214}, {'*', 240}, {'+', 196},
    {'0', 215}, {'1', 191}, {'2', 195}, {'3', 247}, {'4', 211}, {'5', 231}, {'7', 168}, {'8', 241},
    {'9', 227}, {'=', 197}, {'?', 177}, {'@', 194}, {'A', 178}, {'B', 180}, {'C', 242}, {'D', 184},
    {'E', 186}, {'F', 252}, {'G', 182}, {'H', 208}, {'I', 198}, {'J', 218}, {'K', 206}, {'L', 200},
    {'M', 216}, {'N', 220}, {'O', 250}, {'P', 228}, {'Q', 248}, {'R', 232}, {'S', 234}, {'T', 238},
    {'U', 244}, {'V', 236}, {'W', 224}, {'X', 212}, {'Y', 192}, {'Z', 188}, {'[', 203}, {'\\', 223},
    {']', 205}, {'a', 179}, {'b', 181}, {'c', 243}, {'d', 185}, {'e', 187}, {'f', 253}, {'g', 183},
    {'h', 209}, {'i', 199}, {'j', 219}, {'k', 207}, {'l', 201}, {'m', 217}, {'n', 221}, {'o', 251},
    {'p', 229}, {'q', 249}, {'r', 233}, {'s', 235}, {'t', 239}, {'u', 245}, {'v', 237}, {'w', 225},
    {'x', 213}, {'y', 193}, {'z', 189}, {'{', 202}, {'|', 222}, {'}', 204},
};

}  // namespace

TEST(PhoneticKeys, MainWindowMapsEveryKeyOfTheTableAndNothingElse) {
    ASSERT_EQ(kMain.size(), 78u);
    for (int key = 0; key < 256; ++key) {
        const auto it = kMain.find(static_cast<char>(key));
        const int expected = it == kMain.end() ? key : it->second;
        EXPECT_EQ(kanci(static_cast<unsigned char>(key)), expected) << "key " << key;
    }
}

TEST(PhoneticKeys, EdgeCases) {
    EXPECT_EQ(kanci('0'), 215);  // ճ
    EXPECT_EQ(kanci(')'), 214);  // Ճ
    EXPECT_EQ(kanci('7'), 168);  // և
    EXPECT_EQ(kanci('&'), '&');
    EXPECT_EQ(kanci('6'), '6');
    EXPECT_EQ(kanci(' '), ' ');
    EXPECT_EQ(kanci('.'), '.');
    EXPECT_EQ(kanci('?'), 177);
    EXPECT_EQ(kanci('?', KeyTable::Expressions), '?');
    EXPECT_EQ(kanci('?', KeyTable::Dictionary), '?');
}

TEST(PhoneticKeys, ExpressionEditorSharesTheTableButTheQuestionSign) {
    for (const auto& [key, code] : kMain) {
        if (key == '?') continue;
        EXPECT_EQ(kanci(static_cast<unsigned char>(key), KeyTable::Expressions), code) << key;
    }
}

TEST(PhoneticKeys, DictionaryBoxTakesTheSmallLetterForEveryKey) {
    EXPECT_EQ(kanci('A', KeyTable::Dictionary), 179);  // ա
    EXPECT_EQ(kanci('!', KeyTable::Dictionary), 191);  // է
    EXPECT_EQ(kanci('@', KeyTable::Dictionary), 195);  // թ
    EXPECT_EQ(kanci('{', KeyTable::Dictionary), 203);  // խ
    EXPECT_EQ(kanci('|', KeyTable::Dictionary), 223);  // շ
    EXPECT_EQ(kanci('7', KeyTable::Dictionary), 168);  // և has no capital
    for (const auto& [key, code] : kMain) {
        if (key == '?') continue;
        const int small = (code >= 178 && code <= 252 && code % 2 == 0) ? code + 1 : code;
        EXPECT_EQ(kanci(static_cast<unsigned char>(key), KeyTable::Dictionary), small) << key;
    }
}
