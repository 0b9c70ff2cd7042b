#pragma once

#include <QHostAddress>
#include <QString>

// Floods ArtDmx at a fixed rate: the load generator behind the node
// reception benchmark. Only for use inside the private network namespace.

struct FloodOptions
{
    QHostAddress target{QHostAddress::LocalHost};
    quint16 port = 6454;
    double packetsPerSecond = 100000;
    double seconds = 10;
    int universes = 2048; // Port-Addresses 0 .. universes - 1, in turn
    int dataLength = 512;
};

struct FloodResult
{
    bool ok = false;
    QString error;
    quint64 sent = 0;       // datagrams the socket accepted
    quint64 sendErrors = 0; // datagrams the socket refused
    double seconds = 0;
};

// True when the target is one of the namespace's own addresses and the
// namespace's veth interface is present: a flood never leaves the machine.
bool floodTargetIsSafe(const QHostAddress &target, QString *why);

// Blocks for the run's duration.
FloodResult floodArtDmx(const FloodOptions &options);
