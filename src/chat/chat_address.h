// Addresses of the chat: dotted IPv4 text, the choice of this machine's own address from the
// platform's table of interfaces, and the /24 network an announcement goes round.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vorlexa::chat {

// One row of the platform's table of interface addresses (IPv4 only).
struct InterfaceAddress {
    std::string address;  // dotted
    bool up = false;
    bool loopback = false;
};

// The number of a dotted IPv4 address: four decimal parts of 0 to 255, nothing else around them.
std::optional<std::uint32_t> parseDotted(std::string_view text);
std::string formatDotted(std::uint32_t address);
bool isDottedAddress(std::string_view text);

// The ranges set aside for private networks, as first address and prefix length.
struct AddressRange {
    std::uint32_t first;
    int prefixLength;
};
const std::vector<AddressRange>& privateRanges();
bool isPrivateAddress(std::uint32_t address);

// The own address: the first row that is up, not loopback, and in a private range; empty when
// there is none.
std::string chooseOwnAddress(const std::vector<InterfaceAddress>& table);

// The text of an address up to and including its last ".", by which the sweep numbers the
// /24 network; nullopt for anything that is not a dotted address, so that nothing is swept.
std::optional<std::string> sweepPrefix(std::string_view localAddress);

}  // namespace vorlexa::chat
