#include "shell/chat_transport_qt.h"

#include <QHostAddress>
#include <QNetworkDatagram>
#include <QNetworkInterface>

namespace vorlexa::shell {

UdpChatTransport::UdpChatTransport(QObject* parent)
    : QObject(parent), socket1_(this), socket2_(this) {
    connect(&socket1_, &QUdpSocket::readyRead, this, [this] { readAll(socket1_, onMessage); });
    connect(&socket2_, &QUdpSocket::readyRead, this, [this] { readAll(socket2_, onAnnouncement); });
}

bool UdpChatTransport::isBound(chat::ChatSocket socket) const {
    const QUdpSocket& s = socket == chat::ChatSocket::socket1 ? socket1_ : socket2_;
    return s.state() == QAbstractSocket::BoundState;
}

chat::SendStatus UdpChatTransport::send(chat::ChatSocket socket, const std::string& localAddress,
                                        const std::string& remoteHost,
                                        const std::string& datagram) {
    QUdpSocket& s = socketOf(socket);
    const quint16 port = chat::portOf(socket);
    if (s.state() != QAbstractSocket::BoundState) {
        const QHostAddress local = localAddress.empty()
                                       ? QHostAddress(QHostAddress::AnyIPv4)
                                       : QHostAddress(QString::fromStdString(localAddress));
        if (local.isNull()) return chat::SendStatus::Failed;
        // Alone on the port: a second program on it would take half of the datagrams.
        if (!s.bind(local, port, QAbstractSocket::DontShareAddress)) {
            const bool inUse = s.error() == QAbstractSocket::AddressInUseError;
            s.abort();
            return inUse ? chat::SendStatus::PortInUse : chat::SendStatus::Failed;
        }
    }
    if (!chat::isDottedAddress(remoteHost)) return chat::SendStatus::BadAddress;
    const QHostAddress remote(QString::fromStdString(remoteHost));
    const qint64 written =
        s.writeDatagram(datagram.data(), static_cast<qint64>(datagram.size()), remote, port);
    return written == static_cast<qint64>(datagram.size()) ? chat::SendStatus::Sent
                                                           : chat::SendStatus::Failed;
}

void UdpChatTransport::readAll(QUdpSocket& socket,
                               const std::function<void(const std::string&)>& deliver) {
    while (socket.hasPendingDatagrams()) {
        const QNetworkDatagram d = socket.receiveDatagram();
        if (!d.isValid()) break;
        const QByteArray data = d.data();
        if (deliver) deliver(std::string(data.constData(), static_cast<std::size_t>(data.size())));
    }
}

std::vector<chat::InterfaceAddress> UdpChatTransport::interfaceAddresses() const {
    std::vector<chat::InterfaceAddress> rows;
    for (const QNetworkInterface& face : QNetworkInterface::allInterfaces()) {
        const auto flags = face.flags();
        const bool up =
            flags.testFlag(QNetworkInterface::IsUp) && flags.testFlag(QNetworkInterface::IsRunning);
        const bool loopback = flags.testFlag(QNetworkInterface::IsLoopBack);
        for (const QNetworkAddressEntry& entry : face.addressEntries()) {
            const QHostAddress ip = entry.ip();
            if (ip.protocol() != QAbstractSocket::IPv4Protocol) continue;
            rows.push_back({ip.toString().toStdString(), up, loopback || ip.isLoopback()});
        }
    }
    return rows;
}

}  // namespace vorlexa::shell
