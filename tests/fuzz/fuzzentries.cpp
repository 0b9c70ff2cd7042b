#include "fuzzentries.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <cstring>

int fuzzTPatch(const std::uint8_t *data, std::size_t size);
int fuzzMpz(const std::uint8_t *data, std::size_t size);
int fuzzElm(const std::uint8_t *data, std::size_t size);
int fuzzArtNet(const std::uint8_t *data, std::size_t size);
int fuzzFilter(const std::uint8_t *data, std::size_t size);
int fuzzTlog(const std::uint8_t *data, std::size_t size);
int fuzzPcap(const std::uint8_t *data, std::size_t size);
int fuzzPcapng(const std::uint8_t *data, std::size_t size);
int fuzzTpx(const std::uint8_t *data, std::size_t size);
int fuzzTpxPatch(const std::uint8_t *data, std::size_t size);
int fuzzGps(const std::uint8_t *data, std::size_t size);

namespace {

const FuzzTarget kTargets[] = {
    {"tpatch", fuzzTPatch}, {"mpz", fuzzMpz},   {"elm", fuzzElm},   {"artnet", fuzzArtNet},
    {"filter", fuzzFilter}, {"tlog", fuzzTlog}, {"pcap", fuzzPcap}, {"pcapng", fuzzPcapng},
    {"tpx", fuzzTpx},       {"tpxpatch", fuzzTpxPatch}, {"gps", fuzzGps},
};

} // namespace

const FuzzTarget *fuzzTargets(std::size_t *count)
{
    *count = sizeof(kTargets) / sizeof(kTargets[0]);
    return kTargets;
}

const FuzzTarget *findFuzzTarget(const char *name)
{
    for (const FuzzTarget &t : kTargets) {
        if (std::strcmp(t.name, name) == 0)
            return &t;
    }
    return nullptr;
}

void ensureFuzzApplication()
{
    if (QCoreApplication::instance())
        return;
    static int argc = 1;
    static char name[] = "talu-fuzz";
    static char *argv[] = {name, nullptr};
    static QCoreApplication app(argc, argv);
}

void fuzzPromiseBroken(const char *target, const char *what)
{
    std::fprintf(stderr, "fuzz target %s: promise broken: %s\n", target, what);
    std::abort();
}
