#pragma once

#include "artnet/datagramsocket.h"

#include <QUdpSocket>

// DatagramSocket over QUdpSocket.
class UdpDatagramSocket final : public DatagramSocket
{
public:
    UdpDatagramSocket();
    ~UdpDatagramSocket() override;

    bool bind(const QHostAddress &address, quint16 port, int receiveBufferBytes) override;
    QString errorString() const override;
    int receiveBufferBytes() const override { return m_receiveBufferBytes; }
    void setReadyReadHandler(std::function<void()> handler) override;
    bool hasPendingDatagrams() const override;
    qint64 readDatagram(char *buffer, qint64 maxSize, QHostAddress *sender, quint16 *senderPort) override;
    qint64 writeDatagram(QByteArrayView bytes, const QHostAddress &host, quint16 port) override;

private:
    QUdpSocket m_socket;
    int m_receiveBufferBytes = -1;
    std::function<void()> m_readyRead;
};
