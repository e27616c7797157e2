// What the chat needs of the network: two UDP sockets that send a datagram and are bound to
// their port at the first send, and the platform's table of interface addresses. Datagrams that
// arrive are handed to ChatWindow::socket1_DataArrival and socket2_DataArrival, one at a time,
// on the interface thread. The desktop uses Qt's sockets; the tests use an in-memory network.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "chat/chat_address.h"

namespace vorlexa::chat {

inline constexpr std::uint16_t kMessagePort = 15001;   // socket1: chat messages
inline constexpr std::uint16_t kAnnouncePort = 15002;  // socket2: announcements

enum class ChatSocket { socket1, socket2 };

inline constexpr std::uint16_t portOf(ChatSocket socket) {
    return socket == ChatSocket::socket1 ? kMessagePort : kAnnouncePort;
}

enum class SendStatus {
    Sent,
    BadAddress,  // the remote host is no address: nothing goes
    PortInUse,   // the socket could not be bound: another program holds its port
    Failed,      // any other error of the network
};

class ChatTransport {
  public:
    virtual ~ChatTransport() = default;

    // Binds `socket` to `localAddress` (any address when it is empty) and its port unless it is
    // bound already, then sends `datagram` to the same port of `remoteHost`.
    virtual SendStatus send(ChatSocket socket, const std::string& localAddress,
                            const std::string& remoteHost, const std::string& datagram) = 0;

    // The IPv4 rows of the platform's table of interfaces, in the platform's order.
    virtual std::vector<InterfaceAddress> interfaceAddresses() const = 0;
};

}  // namespace vorlexa::chat
