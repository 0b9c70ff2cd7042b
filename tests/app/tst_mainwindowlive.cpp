// The live workflow on real sockets, only inside the private network namespace (label "network"):
// the window's node listens on talu0, a test controller sends from talu1.
#include "artnet/artnetpacket.h"
#include "artnet/widgets/broadcastpanel.h"
#include "artnet/widgets/nodediscoverywindow.h"
#include "live/livepipeline.h"
#include "live/widgets/universehealthwindow.h"
#include "monitor/widgets/ledcanvasitem.h"
#include "monitor/widgets/ledmonitorview.h"
#include "netnsguard.h"
#include "packetlog/widgets/packetlistmodel.h"
#include "packetlog/widgets/packetlogwindow.h"
#include "panels/statuslabel.h"
#include "recording/recording.h"
#include "style/moxstyle.h"
#include "testfiles.h"
#include "windowdriver.h"

#include <QComboBox>
#include <QSpinBox>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTreeView>
#include <QTreeWidget>
#include <QUdpSocket>

using namespace WindowDriver;

namespace {

const QHostAddress kNodeAddress(QStringLiteral("192.0.2.1"));
const QHostAddress kControllerAddress(QStringLiteral("192.0.2.2"));
constexpr quint16 kPort = 26454;

// The window in Live broadcast, listening on address (talu0's by default) at port.
void startListening(MainWindow &w, const QString &address = kNodeAddress.toString(), quint16 port = kPort)
{
    click(&w, QStringLiteral("Live broadcast"));
    auto *panel = w.findChild<BroadcastPanel *>();
    panel->setAddress(address);
    panel->findChild<QSpinBox *>(QStringLiteral("listenPort"))->setValue(port);
    click(panel, QStringLiteral("Start listening"));
}

} // namespace

class TestMainWindowLive : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase()
    {
        TALU_REQUIRE_PRIVATE_NAMESPACE();
        QStandardPaths::setTestModeEnabled(true);
    }
    void init() { clearSettings(); }
    void liveDmxLightsTheMonitorAndIsRecorded();
    void portInUseIsReported();
    void recordingRefusals();
    void nodeDiscoveryFindsTheWindowsOwnNode();
    void healthOverlayAndTableFollowTheNode();
};

void TestMainWindowLive::liveDmxLightsTheMonitorAndIsRecorded()
{
    QTemporaryDir dir;
    MainWindow w;
    w.show();
    uploadPatch(w);
    startListening(w);
    auto *panel = w.findChild<BroadcastPanel *>();
    // (A second line warns when the system caps the receive queue, as it does without root.)
    QCOMPARE(panel->listenMessageLabel()->text().section(QLatin1Char('\n'), 0, 0),
             QStringLiteral("Listening on 192.0.2.1:%1, advertising 15 universe(s).").arg(kPort));
    QCOMPARE(status(w), QStringLiteral("Art-Net node active on 192.0.2.1."));
    QVERIFY(button(panel, QStringLiteral("Stop listening")));
    w.menuAction("Network Log...")->trigger();
    auto *log = w.findChild<PacketLogWindow *>();
    QVERIFY(log && log->isVisible());
    QUdpSocket controller;
    QVERIFY(controller.bind(kControllerAddress, 0));
    // A poll to the subnet broadcast is answered: the node hears its segment.
    controller.writeDatagram(ArtNet::buildPoll(), QHostAddress(QStringLiteral("192.0.2.255")), kPort);
    QTRY_COMPARE(w.livePipeline()->node().stats().artPolls, quint64(1));

    // Record, then send universe 0 full on: the monitor lights and the file holds the bytes.
    click(panel, QStringLiteral("Record incoming stream"));
    panel->setRecordFolder(dir.path());
    panel->setRecordName(QStringLiteral("take1"));
    click(panel, QStringLiteral("Record"));
    const QString path = dir.filePath(QStringLiteral("take1.tpx"));
    QCOMPARE(panel->recordMessageLabel()->text(), QStringLiteral("Recording to %1").arg(path));
    QByteArray data(512, '\0');
    for (int i = 0; i < 512; ++i)
        data[i] = char(i * 7);
    constexpr int kPackets = 30;
    for (quint8 seq = 1; seq <= kPackets; ++seq)
        controller.writeDatagram(ArtNet::buildDmx(0x0000, seq, data), kNodeAddress, kPort);
    QTRY_COMPARE(w.livePipeline()->packetsApplied(), qint64(kPackets));
    QTRY_VERIFY(w.liveRepaintCount() > 0);
    QVERIFY(w.liveRepaintCount() <= kPackets); // painted on the timer, not per packet
    QCOMPARE(w.colourBuffer().universeData(0x0000), data);
    const QVector<int> &lit = w.pixelLayout().pixelsForPortAddress(0x0000);
    QVERIFY(!lit.isEmpty());
    QVERIFY(w.colourBuffer().colours().at(lit.at(1)) != PixelColourBuffer::kDark);
    click(panel, QStringLiteral("Stop recording"));
    QCOMPARE(panel->recordMessageLabel()->text().left(6), QStringLiteral("Saved "));
    Recording recorded;
    QVERIFY(recorded.load(path).ok);
    QCOMPARE(recorded.universes(), QVector<quint16>{0x0000});
    qint64 records = 0;
    for (qint64 f = 0; f < recorded.frameCount(); ++f)
        for (int slot = 0; slot < recorded.recordsPerFrame(); ++slot) {
            QCOMPARE(recorded.dataOf(recorded.recordAt(f, slot)).toByteArray(), data);
            ++records;
        }
    QCOMPARE(records, qint64(kPackets));

    // The network log saw the poll, our replies and every ArtDmx, with their addresses.
    log->poll();
    QStringList seen;
    for (int row = 0; row < log->model()->rowCount(); ++row) {
        const QModelIndex i = log->model()->index(row, PacketListModel::OpCodeColumn);
        seen << log->model()->data(i.siblingAtColumn(PacketListModel::DirectionColumn)).toString() + " "
                    + log->model()->data(i).toString();
    }
    QCOMPARE(seen.count(QStringLiteral("in ArtPoll")), 1);
    QVERIFY(seen.count(QStringLiteral("out ArtPollReply")) >= 1);
    QVERIFY(seen.count(QStringLiteral("in ArtDmx")) >= 1); // repeated frames are collapsed
    const int dmxRow = int(seen.indexOf(QStringLiteral("in ArtDmx")));
    QCOMPARE(log->model()->recordAt(dmxRow).srcIp, kControllerAddress.toIPv4Address());
    click(panel, QStringLiteral("Stop listening"));
    QCOMPARE(panel->listenMessageLabel()->text(), QStringLiteral("Not listening."));
    QVERIFY(!w.livePipeline()->node().isRunning());
}

void TestMainWindowLive::portInUseIsReported()
{
    QUdpSocket squatter;
    QVERIFY(squatter.bind(kNodeAddress, kPort)); // no address sharing: the port is taken
    MainWindow w;
    startListening(w);
    auto *panel = w.findChild<BroadcastPanel *>();
    QVERIFY2(panel->listenMessageLabel()->text().startsWith(QStringLiteral("Could not listen on 192.0.2.1:%1 - ")
                                                                .arg(kPort)),
             qPrintable(panel->listenMessageLabel()->text()));
    QCOMPARE(panel->listenMessageLabel()->messageLevel(), 2);
    QVERIFY(button(panel, QStringLiteral("Start listening")));
}

void TestMainWindowLive::recordingRefusals()
{
    MainWindow w;
    auto *panel = w.findChild<BroadcastPanel *>();
    click(&w, QStringLiteral("Live broadcast"));
    click(panel, QStringLiteral("Record incoming stream"));
    click(panel, QStringLiteral("Record"));
    QCOMPARE(panel->recordMessageLabel()->text(),
             QStringLiteral("Start listening first - there is nothing to record yet."));
    QVERIFY(button(panel, QStringLiteral("Record")));
    startListening(w);
    panel->setRecordFolder(QString());
    click(panel, QStringLiteral("Record"));
    QCOMPARE(panel->recordMessageLabel()->text(), QStringLiteral("Pick a folder and a file name first."));

    // An existing file of 2 KB is appended to, and said so; 500 bytes is just "Recording to".
    QTemporaryDir dir;
    for (const auto &[size, message] : {std::pair{2048, "Appending to %1 (2 KB already in the file)."},
                                        std::pair{500, "Recording to %1"}}) {
        const QString path = dir.filePath(QStringLiteral("old%1.tpx").arg(size));
        TestFiles::write(path, QByteArray(size, '\0'));
        panel->setRecordFolder(dir.path());
        panel->setRecordName(QStringLiteral("old%1").arg(size));
        click(panel, QStringLiteral("Record"));
        QCOMPARE(panel->recordMessageLabel()->text(), QString::fromLatin1(message).arg(path));
        click(panel, QStringLiteral("Stop recording"));
    }
}

// Node discovery from the Broadcast menu: a scan of talu0's subnet finds the
// window's own node (listening on the Art-Net port, as polls expect) and marks it.
void TestMainWindowLive::nodeDiscoveryFindsTheWindowsOwnNode()
{
    MainWindow w;
    startListening(w, QString(), 6454); // any address: a second socket on 6454 would take its unicast
    QVERIFY(button(w.findChild<BroadcastPanel *>(), QStringLiteral("Stop listening")));
    w.menuAction("Node Discovery (ArtPoll Scan)...")->trigger();
    auto *discovery = w.findChild<NodeDiscoveryWindow *>();
    QVERIFY(discovery && discovery->isVisible());
    auto *target = discovery->findChild<QComboBox *>(QStringLiteral("discoveryTarget"));
    QCOMPARE(target->itemText(target->count() - 1), QStringLiteral("255.255.255.255 (limited broadcast)"));
    target->setCurrentIndex(target->findData(QStringLiteral("192.0.2.255")));
    auto *scan = discovery->findChild<QPushButton *>(QStringLiteral("scanButton"));
    QTest::mouseClick(scan, Qt::LeftButton);
    QCOMPARE(labelText(discovery, "discoveryState"), QStringLiteral("Polling 192.0.2.255 every 2.5 s..."));
    QCOMPARE(scan->text(), QStringLiteral("Stop"));
    QTreeWidget *table = discovery->table();
    QTRY_COMPARE(table->topLevelItemCount(), 1);
    const QTreeWidgetItem *ours = table->topLevelItem(0);
    QCOMPARE(ours->text(NodeDiscoveryWindow::AddressColumn), QStringLiteral("192.0.2.1"));
    QCOMPARE(ours->text(NodeDiscoveryWindow::ShortNameColumn), QStringLiteral("TorvaneTester"));
    // Bound to any address, the node's replies carry IP 0.0.0.0, and the scan says so.
    QCOMPARE(ours->text(NodeDiscoveryWindow::StateColumn), QStringLiteral("this program · 1 finding(s)"));
    QCOMPARE(ours->child(1)->text(0),
             QStringLiteral("Finding: Its IP field says 0.0.0.0, but the replies come from 192.0.2.1."));
    QCOMPARE(labelText(discovery, "universesWithoutNode"),
             QStringLiteral("Load a patch to see which of its universes no device outputs."));
    // The scan opened no second socket on the node's port: unicast DMX still reaches the node.
    QUdpSocket console;
    QVERIFY(console.bind(kControllerAddress, 0));
    console.writeDatagram(ArtNet::buildDmx(0, 1, QByteArray(8, 'x')), kNodeAddress, 6454);
    QTRY_COMPARE(w.livePipeline()->node().stats().dmxPackets, quint64(1));
    QTest::mouseClick(scan, Qt::LeftButton);
    QCOMPARE(scan->text(), QStringLiteral("Scan"));
    QCOMPARE(labelText(discovery, "discoveryState"), QStringLiteral("Stopped."));
}

void TestMainWindowLive::healthOverlayAndTableFollowTheNode()
{
    MainWindow w;
    w.show();
    uploadPatch(w);
    startListening(w);
    // The node counts from when the overlay is turned on.
    click(&w, QStringLiteral("Health"));
    QVERIFY(w.livePipeline()->healthEnabled());
    // Universe 0 loses one packet of six; universe 1 comes from two senders.
    QUdpSocket controller, second;
    QVERIFY(controller.bind(kControllerAddress, 0) && second.bind(kControllerAddress, 0));
    const QByteArray data(512, '\x40');
    for (const quint8 seq : {1, 2, 4, 5, 6})
        controller.writeDatagram(ArtNet::buildDmx(0x0000, seq, data), kNodeAddress, kPort);
    controller.writeDatagram(ArtNet::buildDmx(0x0001, 1, data), kNodeAddress, kPort);
    second.writeDatagram(ArtNet::buildDmx(0x0001, 1, data), kNodeAddress, kPort);
    QTRY_COMPARE(w.livePipeline()->packetsApplied(), qint64(7));
    auto *view = w.findChild<LedMonitorView *>();
    const auto shownColourOf = [&](quint16 universe) {
        return view->canvas()->colours().at(w.pixelLayout().pixelsForPortAddress(universe).at(0));
    };
    const MoxStyle theme; // the window's own default theme
    QTRY_COMPARE(shownColourOf(0), theme.colour(QStringLiteral("healthUnstable")).rgba()); // the next refresh
    QCOMPARE(shownColourOf(1), theme.colour(QStringLiteral("healthConflict")).rgba());
    QCOMPARE(shownColourOf(2), theme.colour(QStringLiteral("healthNever")).rgba());
    // Hovering a fixture adds its universe's figures to the hint line.
    emit view->cellHovered(w.pixelLayout().pixelsForPortAddress(0).at(0));
    const QString figures = labelText(&w, "monitorHint").section(QStringLiteral("  |  "), 1);
    QVERIFY2(figures.startsWith(QStringLiteral("unstable · 1 sender(s) · ")) &&
                 figures.contains(QStringLiteral(" fps · lost 1 · out of order 0 · duplicates 0 · last ")),
             qPrintable(figures));
    w.menuAction("Universe Health...")->trigger();
    auto *health = w.findChild<UniverseHealthWindow *>();
    QVERIFY(health && health->isVisible());
    const auto label = [health](const char *name) { return labelText(health, name); };
    QCOMPARE(label("healthSource"), QStringLiteral("Live: the node on 192.0.2.1:%1, fps over the last second.").arg(kPort));
    QCOMPARE(label("healthSummary"), QStringLiteral("15 universe(s): 13 never received · 1 conflict · 1 unstable"));
    QCOMPARE(label("healthSync"), QStringLiteral("No ArtSync seen."));
    const QAbstractItemModel *table = health->table()->model();
    QCOMPARE(table->index(1, UniverseHealthModel::StateColumn).data().toString(), QStringLiteral("conflict"));
    QCOMPARE(table->rowCount(table->index(1, 0)), 2);
    click(health, QStringLiteral("Reset"));
    QCOMPARE(label("healthSummary"), QStringLiteral("15 universe(s): 15 never received"));

    // Off again, the monitor shows the DMX colours; closed, the table no longer keeps the node counting.
    click(&w, QStringLiteral("Health"));
    QCOMPARE(&view->canvas()->colours(), &w.colourBuffer().colours());
    health->close();
    QTRY_VERIFY(!w.livePipeline()->healthEnabled());
}

QTEST_MAIN(TestMainWindowLive)
#include "tst_mainwindowlive.moc"
