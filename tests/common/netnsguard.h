#pragma once

#include <QNetworkInterface>
#include <QStringList>

// Tests that bind or send UDP (the node broadcasts to 255.255.255.255) run
// only inside the private network namespace of scripts/netns: loopback plus
// the veth pair talu0/talu1 and nothing else. Run directly on a machine with
// a real network, they skip instead of reaching it.
namespace TestNetns {

inline bool insidePrivateNamespace()
{
    bool sawVeth = false;
    for (const QNetworkInterface &i : QNetworkInterface::allInterfaces()) {
        const QString name = i.name();
        if (name == QLatin1StringView("talu0") || name == QLatin1StringView("talu1"))
            sawVeth = true;
        else if (name != QLatin1StringView("lo"))
            return false;
    }
    return sawVeth;
}

} // namespace TestNetns

#define TALU_REQUIRE_PRIVATE_NAMESPACE()                                                                      \
    do {                                                                                                       \
        if (!TestNetns::insidePrivateNamespace())                                                              \
            QSKIP("Sends UDP: run inside scripts/netns (scripts/test does), never on a real network.");       \
    } while (false)
