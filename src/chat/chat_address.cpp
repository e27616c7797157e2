#include "chat/chat_address.h"

#include <charconv>

namespace vorlexa::chat {

namespace {

constexpr int kAddressParts = 4;
constexpr int kMaxPartDigits = 3;  // "255"
constexpr unsigned kMaxPart = 255;

}  // namespace

std::optional<std::uint32_t> parseDotted(std::string_view text) {
    std::uint32_t value = 0;
    std::size_t at = 0;
    for (int part = 0; part < kAddressParts; ++part) {
        if (part > 0) {
            if (at >= text.size() || text[at] != '.') return std::nullopt;
            ++at;
        }
        const std::size_t start = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
        const std::size_t digits = at - start;
        if (digits == 0 || digits > kMaxPartDigits) return std::nullopt;
        unsigned number = 0;
        std::from_chars(text.data() + start, text.data() + at, number);
        if (number > kMaxPart) return std::nullopt;
        value = (value << 8) | number;
    }
    if (at != text.size()) return std::nullopt;
    return value;
}

std::string formatDotted(std::uint32_t address) {
    return std::to_string(address >> 24) + "." + std::to_string((address >> 16) & 0xFF) + "." +
           std::to_string((address >> 8) & 0xFF) + "." + std::to_string(address & 0xFF);
}

bool isDottedAddress(std::string_view text) {
    return parseDotted(text).has_value();
}

const std::vector<AddressRange>& privateRanges() {
    static const std::vector<AddressRange> ranges{
        {0x0A000000u, 8},   // 10/8
        {0xAC100000u, 12},  // 172.16/12
        {0xC0A80000u, 16},  // 192.168/16
    };
    return ranges;
}

bool isPrivateAddress(std::uint32_t address) {
    for (const AddressRange& range : privateRanges()) {
        const std::uint32_t mask = ~std::uint32_t{0} << (32 - range.prefixLength);
        if ((address & mask) == range.first) return true;
    }
    return false;
}

// The design finds its address by sending a probe to every 192.168.a.b and waiting for one to
// come back to itself. That sweep is not built: 65,000 probes look like a network scan to every
// administrator and find nothing on a network outside 192.168/16. The interface table names the
// same address at once.
std::string chooseOwnAddress(const std::vector<InterfaceAddress>& table) {
    for (const InterfaceAddress& row : table) {
        if (!row.up || row.loopback) continue;
        const std::optional<std::uint32_t> value = parseDotted(row.address);
        if (value && isPrivateAddress(*value)) return row.address;
    }
    return {};
}

std::optional<std::string> sweepPrefix(std::string_view localAddress) {
    if (!isDottedAddress(localAddress)) return std::nullopt;
    return std::string(localAddress.substr(0, localAddress.rfind('.') + 1));
}

}  // namespace vorlexa::chat
