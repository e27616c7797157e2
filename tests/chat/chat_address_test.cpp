#include "chat/chat_address.h"

#include <gtest/gtest.h>

using namespace vorlexa::chat;

namespace {

// An address inside a private range, made from the range itself so that the test names none.
std::string privateAddress(std::size_t range, std::uint32_t host) {
    return formatDotted(privateRanges().at(range).first + host);
}

}  // namespace

TEST(ChatAddress, DottedAddressesParseAndFormatBack) {
    EXPECT_EQ(parseDotted("127.0.0.1"), 0x7F000001u);
    EXPECT_EQ(parseDotted("0.0.0.0"), 0u);
    EXPECT_EQ(parseDotted("255.255.255.255"), 0xFFFFFFFFu);
    EXPECT_EQ(formatDotted(0x7F000002u), "127.0.0.2");
}

TEST(ChatAddress, AnythingButFourDecimalPartsIsNoAddress) {
    for (const char* bad : {"", "127.0.0", "127.0.0.1.5", "256.0.0.1", "127.0.0.", ".127.0.0.1",
                            "a.b.c.d", " 127.0.0.1", "127.0.0.1 ", "1277.0.0.1", "127..0.1",
                            "127.0.0.-1", "All Local IPs-Below:"})
        EXPECT_FALSE(isDottedAddress(bad)) << bad;
}

TEST(ChatAddress, SweepPrefixIsTheAddressUpToItsLastDot) {
    EXPECT_EQ(sweepPrefix("127.0.0.1"), "127.0.0.");
    EXPECT_EQ(sweepPrefix("127.1.22.254"), "127.1.22.");
}

TEST(ChatAddress, NoPrefixAndSoNoSweepWithoutAnAddress) {
    EXPECT_EQ(sweepPrefix(""), std::nullopt);
    EXPECT_EQ(sweepPrefix("no address"), std::nullopt);
    EXPECT_EQ(sweepPrefix("127.0.0"), std::nullopt);
}

TEST(ChatAddress, OwnAddressIsTheFirstPrivateAddressThatIsUpAndNotLoopback) {
    const std::string first = privateAddress(2, 5);
    const std::string second = privateAddress(0, 7);
    const std::vector<InterfaceAddress> table{
        {"127.0.0.1", true, true},
        {"203.0.113.9", true, false},          // a public address: not the local network
        {privateAddress(1, 3), false, false},  // down
        {first, true, false},
        {second, true, false},
    };
    EXPECT_EQ(chooseOwnAddress(table), first);
}

TEST(ChatAddress, NoOwnAddressOnAMachineWithLoopbackAndPublicAddressesOnly) {
    EXPECT_EQ(chooseOwnAddress({{"127.0.0.1", true, true}, {"198.51.100.4", true, false}}), "");
    EXPECT_EQ(chooseOwnAddress({}), "");
}

TEST(ChatAddress, PrivateRangesEndWhereTheirPrefixSays) {
    const AddressRange& middle = privateRanges().at(1);  // a /12
    EXPECT_TRUE(isPrivateAddress(middle.first + (1u << 20) - 1));
    EXPECT_FALSE(isPrivateAddress(middle.first + (1u << 20)));
    EXPECT_FALSE(isPrivateAddress(middle.first - 1));
    EXPECT_FALSE(isPrivateAddress(0x7F000001u));
}
