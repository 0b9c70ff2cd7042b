#include "artnet/udpdatagramsocket.h"

#include <QVariant>

#ifdef Q_OS_WIN
#include <winsock2.h>
#include <mstcpip.h>
#ifndef SIO_UDP_CONNRESET
// Older MinGW headers lack it; the value is fixed by Windows Sockets.
#define SIO_UDP_CONNRESET _WSAIOW(IOC_VENDOR, 12)
#endif
#endif

UdpDatagramSocket::UdpDatagramSocket()
{
    QObject::connect(&m_socket, &QUdpSocket::readyRead, &m_socket, [this] {
        if (m_readyRead)
            m_readyRead();
    });
}

UdpDatagramSocket::~UdpDatagramSocket() = default;

bool UdpDatagramSocket::bind(const QHostAddress &address, quint16 port, int receiveBufferBytes)
{
    if (!m_socket.bind(address, port, QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint))
        return false;
    // QUdpSocket has no socket before bind, so the buffer is sized right after.
    m_socket.setSocketOption(QAbstractSocket::ReceiveBufferSizeSocketOption, QVariant(receiveBufferBytes));
    m_receiveBufferBytes = m_socket.socketOption(QAbstractSocket::ReceiveBufferSizeSocketOption).toInt();
#ifdef Q_OS_WIN
    // Windows reports an ICMP port-unreachable (a controller that polled us and
    // closed its socket) as an error on our next receive; that would stall the
    // receive loop for nothing.
    BOOL reportConnReset = FALSE;
    DWORD returned = 0;
    WSAIoctl(SOCKET(m_socket.socketDescriptor()), SIO_UDP_CONNRESET, &reportConnReset, sizeof reportConnReset,
             nullptr, 0, &returned, nullptr, nullptr);
#endif
    return true;
}

QString UdpDatagramSocket::errorString() const
{
    return m_socket.errorString();
}

void UdpDatagramSocket::setReadyReadHandler(std::function<void()> handler)
{
    m_readyRead = std::move(handler);
}

bool UdpDatagramSocket::hasPendingDatagrams() const
{
    return m_socket.hasPendingDatagrams();
}

qint64 UdpDatagramSocket::readDatagram(char *buffer, qint64 maxSize, QHostAddress *sender, quint16 *senderPort)
{
    return m_socket.readDatagram(buffer, maxSize, sender, senderPort);
}

qint64 UdpDatagramSocket::writeDatagram(QByteArrayView bytes, const QHostAddress &host, quint16 port)
{
    return m_socket.writeDatagram(bytes.data(), bytes.size(), host, port);
}
