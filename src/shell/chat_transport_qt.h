// The chat's two UDP sockets on Qt Network. Each socket is bound to the own address and its port
// at its first send, alone (no other program may share the port); every datagram that arrives
// is handed to the chat window on the interface thread, one at a time.
#pragma once

#include <QObject>
#include <QUdpSocket>
#include <functional>
#include <string>

#include "chat/chat_transport.h"

namespace vorlexa::shell {

class UdpChatTransport : public QObject, public chat::ChatTransport {
    Q_OBJECT

  public:
    explicit UdpChatTransport(QObject* parent = nullptr);

    // Where the datagrams that arrive go: socket1's to the first, socket2's to the second.
    std::function<void(const std::string&)> onMessage;
    std::function<void(const std::string&)> onAnnouncement;

    chat::SendStatus send(chat::ChatSocket socket, const std::string& localAddress,
                          const std::string& remoteHost, const std::string& datagram) override;
    std::vector<chat::InterfaceAddress> interfaceAddresses() const override;

    bool isBound(chat::ChatSocket socket) const;

  private:
    QUdpSocket& socketOf(chat::ChatSocket socket) {
        return socket == chat::ChatSocket::socket1 ? socket1_ : socket2_;
    }
    void readAll(QUdpSocket& socket, const std::function<void(const std::string&)>& deliver);

    QUdpSocket socket1_;
    QUdpSocket socket2_;
};

}  // namespace vorlexa::shell
