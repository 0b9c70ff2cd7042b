// talu-capture: the only part of Torvane TALU that may capture from a network
// adapter. It is kept small and free of Qt so that it alone can be given the
// capture capability (as packet analysers give it to their dumpcap), never the
// program with its windows, files and scripts.
//
//   talu-capture --list
//       one line per adapter: name TAB description TAB IPv4 addresses (comma separated)
//   talu-capture --interface NAME [--port N] [--count N]
//       writes a pcap stream (nanosecond timestamps) of the UDP packets to or
//       from port N (6454) to standard output until SIGTERM/SIGINT, until
//       --count packets were written, or until standard output closes.
//
// Exit codes: 0 stopped as asked, 1 capture failed, 2 usage, 3 not permitted,
// 4 no such adapter. Errors and the closing statistics go to standard error
// as "talu-capture: ..." lines; the statistics line reads
// "talu-capture: stats received=N dropped=N".

#include <pcap/pcap.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <arpa/inet.h>
#endif
#ifdef __linux__
#include <sys/prctl.h>
#endif

namespace {

enum Exit { ExitOk = 0, ExitFailed = 1, ExitUsage = 2, ExitNotPermitted = 3, ExitNoDevice = 4 };

pcap_t *g_handle = nullptr;

void stop(int)
{
    if (g_handle)
        pcap_breakloop(g_handle);
}

int usage()
{
    std::fputs("Usage: talu-capture --list\n"
               "       talu-capture --interface NAME [--port N] [--count N]\n",
               stderr);
    return ExitUsage;
}

int listAdapters()
{
    char error[PCAP_ERRBUF_SIZE] = {};
    pcap_if_t *all = nullptr;
    if (pcap_findalldevs(&all, error) != 0) {
        std::fprintf(stderr, "talu-capture: %s\n", error);
        return ExitFailed;
    }
    for (pcap_if_t *d = all; d; d = d->next) {
        std::string addresses;
        for (pcap_addr_t *a = d->addresses; a; a = a->next) {
            if (!a->addr || a->addr->sa_family != AF_INET)
                continue;
            char text[INET_ADDRSTRLEN] = {};
            inet_ntop(AF_INET, &reinterpret_cast<const sockaddr_in *>(a->addr)->sin_addr, text, sizeof text);
            if (!addresses.empty())
                addresses += ',';
            addresses += text;
        }
        std::printf("%s\t%s\t%s\n", d->name, d->description ? d->description : "", addresses.c_str());
    }
    pcap_freealldevs(all);
    return ExitOk;
}

bool parseNumber(const char *text, long max, long *value)
{
    char *end = nullptr;
    const long v = std::strtol(text, &end, 10);
    if (!*text || *end || v < 0 || v > max)
        return false;
    *value = v;
    return true;
}

int failed(pcap_t *handle, int status, const char *what)
{
    std::fprintf(stderr, "talu-capture: %s: %s\n", what, pcap_geterr(handle));
    pcap_close(handle);
    if (status == PCAP_ERROR_PERM_DENIED || status == PCAP_ERROR_PROMISC_PERM_DENIED)
        return ExitNotPermitted;
    if (status == PCAP_ERROR_NO_SUCH_DEVICE)
        return ExitNoDevice;
    return ExitFailed;
}

struct Sink
{
    pcap_dumper_t *dumper;
    long remaining; // 0: no limit
    long written;
};

void writePacket(u_char *user, const pcap_pkthdr *header, const u_char *bytes)
{
    auto *sink = reinterpret_cast<Sink *>(user);
    pcap_dump(reinterpret_cast<u_char *>(sink->dumper), header, bytes);
    ++sink->written;
    if (sink->remaining > 0 && sink->written >= sink->remaining)
        pcap_breakloop(g_handle);
}

int capture(const char *name, long port, long count)
{
    char error[PCAP_ERRBUF_SIZE] = {};
    pcap_t *handle = pcap_create(name, error);
    if (!handle) {
        std::fprintf(stderr, "talu-capture: %s\n", error);
        return ExitNoDevice;
    }
    // Whole Art-Net packets (ArtDmx is at most 530 bytes of payload) with room to spare.
    pcap_set_snaplen(handle, 2048);
    pcap_set_promisc(handle, 1);
    pcap_set_timeout(handle, 50);
    pcap_set_buffer_size(handle, 32 * 1024 * 1024);
    pcap_set_tstamp_precision(handle, PCAP_TSTAMP_PRECISION_NANO);
    int status = pcap_activate(handle);
    if (status < 0)
        return failed(handle, status, "cannot capture");
    const std::string expression = "udp port " + std::to_string(port);
    bpf_program program{};
    if (pcap_compile(handle, &program, expression.c_str(), 1, PCAP_NETMASK_UNKNOWN) != 0
        || pcap_setfilter(handle, &program) != 0)
        return failed(handle, PCAP_ERROR, "cannot set the capture filter");
    pcap_freecode(&program);

    pcap_dumper_t *dumper = pcap_dump_fopen(handle, stdout);
    if (!dumper)
        return failed(handle, PCAP_ERROR, "cannot write the capture");
    // The stream's header at once: the reader knows from it that capturing has begun.
    pcap_dump_flush(dumper);
    g_handle = handle;
    std::signal(SIGTERM, stop);
    std::signal(SIGINT, stop);
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);
#endif

    Sink sink{dumper, count, 0};
    int result = ExitOk;
    for (;;) {
        const int n = pcap_dispatch(handle, -1, writePacket, reinterpret_cast<u_char *>(&sink));
        // Every batch reaches the reader at once; a closed pipe ends the capture.
        if (pcap_dump_flush(dumper) != 0 || std::ferror(stdout))
            break;
        if (n == PCAP_ERROR_BREAK)
            break;
        if (n == PCAP_ERROR) {
            std::fprintf(stderr, "talu-capture: capture stopped: %s\n", pcap_geterr(handle));
            result = ExitFailed;
            break;
        }
        if (count > 0 && sink.written >= count)
            break;
    }
    pcap_stat stats{};
    if (pcap_stats(handle, &stats) == 0)
        std::fprintf(stderr, "talu-capture: stats received=%u dropped=%u\n", stats.ps_recv,
                     stats.ps_drop + stats.ps_ifdrop);
    pcap_dump_close(dumper); // closes stdout
    g_handle = nullptr;
    pcap_close(handle);
    return result;
}

} // namespace

int main(int argc, char **argv)
{
#ifdef __linux__
    // A capture outliving the program that started it would run unseen.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
#endif
#ifdef _WIN32
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    if (argc == 2 && std::strcmp(argv[1], "--list") == 0)
        return listAdapters();
    const char *name = nullptr;
    long port = 6454;
    long count = 0;
    for (int i = 1; i < argc; ++i) {
        const bool hasValue = i + 1 < argc;
        if (std::strcmp(argv[i], "--interface") == 0 && hasValue)
            name = argv[++i];
        else if (std::strcmp(argv[i], "--port") == 0 && hasValue) {
            if (!parseNumber(argv[++i], 65535, &port) || port == 0)
                return usage();
        } else if (std::strcmp(argv[i], "--count") == 0 && hasValue) {
            if (!parseNumber(argv[++i], 2000000000L, &count))
                return usage();
        } else
            return usage();
    }
    if (!name)
        return usage();
    return capture(name, port, count);
}
