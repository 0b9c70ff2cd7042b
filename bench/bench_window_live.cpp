// The real main window in Live broadcast with recording on, under an ArtDmx
// flood: a 2,048-universe patch of about 350,000 pixels, the node on talu0,
// the flood from this process's second thread to it. For each rate: packets
// sent, received by the node, records in the file (zero loss is all three
// equal), the monitor's repaints per second and the longest stall of the
// event loop (the largest gap between ticks of a 5 ms timer). Floor: 100,000
// packets/s without loss with at least 25 repaints a second; goal 180,000.
//
// Inside the private namespace only (the node broadcasts):
//   QT_QPA_PLATFORM=offscreen scripts/netns build/bench/bench/bench_window_live [seconds] [rate,rate,...] [--log] [--health]
// With --log the Network Log window is open and follows the stream; with
// --health the health overlay paints the monitor and the Universe Health
// window follows the node.
#include "app/mainwindow.h"
#include "artdmxflood.h"
#include "artnet/widgets/broadcastpanel.h"
#include "largepatch.h"
#include "live/livepipeline.h"
#include "patch/tpatchwriter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QRadioButton>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <thread>

namespace {

const QHostAddress kNode(QStringLiteral("192.0.2.1"));
constexpr quint16 kPort = 6454;
constexpr int kUniverses = 2048;

QAbstractButton *button(QWidget *root, const char *text)
{
    for (QAbstractButton *b : root->findChildren<QAbstractButton *>()) {
        if (b->text() == QLatin1String(text))
            return b;
    }
    return nullptr;
}

// Runs the event loop for ms milliseconds.
void spin(int ms)
{
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < ms)
        QApplication::processEvents(QEventLoop::AllEvents, 5);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QStandardPaths::setTestModeEnabled(true); // never the user's settings
    QStringList args = QCoreApplication::arguments();
    const bool withLog = args.removeAll(QStringLiteral("--log")) > 0;
    const bool withHealth = args.removeAll(QStringLiteral("--health")) > 0;
    const double seconds = args.value(1, QStringLiteral("5")).toDouble();
    QList<double> rates;
    for (const QString &r : args.value(2, QStringLiteral("100000,150000,180000")).split(QLatin1Char(',')))
        rates << r.toDouble();
    QString why;
    if (!floodTargetIsSafe(kNode, &why)) {
        std::fprintf(stderr, "bench_window_live: %s\n", qPrintable(why));
        return 2;
    }

    QTemporaryDir dir;
    const QString patchPath = dir.filePath(QStringLiteral("bowl.tpatch"));
    {
        QFile file(patchPath);
        if (!file.open(QIODevice::WriteOnly))
            return 2;
        file.write(TPatch::writeTPatch(makeLargePatch(64, kUniverses, kUniverses * 170)));
    }
    MainWindow w;
    w.resize(1420, 880);
    w.show();
    w.openFiles(patchPath, QString());
    std::printf("patch: %d universes, %lld drawable pixels\n", kUniverses,
                static_cast<long long>(w.pixelLayout().drawablePixelCount()));
    button(&w, "Live broadcast")->click();
    auto *panel = w.findChild<BroadcastPanel *>();
    panel->setAddress(kNode.toString());
    panel->findChild<QSpinBox *>(QStringLiteral("listenPort"))->setValue(kPort);
    button(panel, "Start listening")->click();
    if (!w.livePipeline() || !w.livePipeline()->node().isRunning()) {
        std::fprintf(stderr, "bench_window_live: the node did not start\n");
        return 2;
    }
    button(panel, "Record incoming stream")->click();
    panel->setRecordFolder(dir.path());
    if (withLog) {
        w.menuAction("Network Log...")->trigger();
        std::printf("with the Network Log window open\n");
    }
    if (withHealth) {
        button(&w, "Health")->click();
        w.menuAction("Universe Health...")->trigger();
        std::printf("with the health overlay and the Universe Health window (the monitor follows the health\n"
                    "figures, twice a second: repaints/s does not apply)\n");
    }

    // The longest gap between ticks of a 5 ms timer: how long the loop was away.
    QElapsedTimer loopClock;
    qint64 lastTick = -1, longestStallMs = 0;
    QTimer stallProbe;
    stallProbe.setTimerType(Qt::PreciseTimer);
    QObject::connect(&stallProbe, &QTimer::timeout, [&] {
        const qint64 now = loopClock.elapsed();
        if (lastTick >= 0)
            longestStallMs = std::max(longestStallMs, now - lastTick);
        lastTick = now;
    });

    std::printf("%10s %10s %10s %10s %8s %12s %12s\n", "rate", "sent", "received", "records", "lost", "repaints/s",
                "stall ms");
    double bestZeroLoss = 0;
    int run = 0;
    for (const double rate : rates) {
        panel->setRecordName(QStringLiteral("run%1").arg(++run));
        button(panel, "Record")->click();
        const quint64 receivedBefore = w.livePipeline()->node().stats().dmxPackets;
        const int repaintsBefore = w.liveRepaintCount();
        FloodOptions options;
        options.target = kNode;
        options.port = kPort;
        options.packetsPerSecond = rate;
        options.seconds = seconds;
        options.universes = kUniverses;
        FloodResult flood;
        std::thread sender([&] { flood = floodArtDmx(options); });
        loopClock.start();
        lastTick = -1;
        longestStallMs = 0;
        stallProbe.start(5);
        QElapsedTimer ran;
        ran.start();
        while (ran.elapsed() < qint64(seconds * 1000))
            QApplication::processEvents(QEventLoop::AllEvents, 5);
        sender.join();
        spin(300); // what is still in the socket buffer
        stallProbe.stop();
        const double ranSeconds = double(ran.elapsed()) / 1000.0;
        const quint64 received = w.livePipeline()->node().stats().dmxPackets - receivedBefore;
        const qint64 records = w.livePipeline()->writer()->recordsWritten();
        button(panel, "Stop recording")->click();
        const double repaints = (w.liveRepaintCount() - repaintsBefore) / ranSeconds;
        const qint64 lost = qint64(flood.sent) - qint64(received);
        std::printf("%10.0f %10llu %10llu %10lld %8lld %12.1f %12lld\n", rate,
                    static_cast<unsigned long long>(flood.sent), static_cast<unsigned long long>(received),
                    static_cast<long long>(records), static_cast<long long>(lost), repaints,
                    static_cast<long long>(longestStallMs));
        if (flood.ok && lost == 0 && records == qint64(received) && repaints >= 25)
            bestZeroLoss = std::max(bestZeroLoss, rate);
    }
    std::printf("highest rate without loss, recording on, >= 25 repaints/s: %.0f packets/s   floor 100000   goal 180000\n",
                bestZeroLoss);
    button(panel, "Stop listening")->click();
    return bestZeroLoss >= 100000 ? 0 : 1;
}
