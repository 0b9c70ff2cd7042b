// Captures made into recordings: what is whole converts, damage and foreign
// packets are said and left out, and the result is a recording like any other.
#include "artnet/artnetpacket.h"
#include "capturebuilder.h"
#include "live/captureconversion.h"
#include "recording/recording.h"
#include "testfiles.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace TestCapture;

class TestCaptureConversion : public QObject
{
    Q_OBJECT
private slots:
    void hostileCaptures_data()
    {
        QTest::addColumn<QByteArray>("capture");
        QTest::addColumn<int>("dmxPackets");
        QTest::addColumn<QString>("warning");
        const auto dmx = [](quint16 universe) {
            return ethernet(ipUdp(ArtNet::buildDmx(universe, 1, QByteArray(32, char(universe))), 17, 0, 6454));
        };
        const QByteArray whole = pcap(1, {dmx(0), dmx(1), dmx(2)});
        QTest::newRow("whole") << whole << 3 << QString();
        QTest::newRow("truncated") << whole.left(whole.size() - 10) << 2
                                   << QStringLiteral("The capture is cut short in packet 3");
        QByteArray huge = whole;
        huge.replace(24 + 16 + dmx(0).size() + 8, 4, le32(0x7FFFFFFF)); // the second packet's captured length
        QTest::newRow("huge length") << huge << 1 << QStringLiteral("The capture is damaged at packet 2");
        QByteArray ipv6 = dmx(3);
        ipv6.replace(12, 2, "\x86\xDD");
        const QByteArray foreign = ethernet(ipUdp("not Art-Net", 17, 0, 6454));
        const QByteArray fragment = ethernet(ipUdp(ArtNet::buildDmx(4, 1, QByteArray(8, 'x')), 17, 0x0010, 6454));
        const QByteArray otherPort = ethernet(ipUdp(ArtNet::buildDmx(5, 1, QByteArray(8, 'x')), 17, 0, 6455));
        QTest::newRow("foreign, IPv6, fragment, other port")
            << pcap(1, {foreign, ipv6, fragment, otherPort, dmx(6)}) << 1
            << QStringLiteral("2 packets were not UDP over IPv4 and were left out.");
        QTest::newRow("not a capture") << QByteArray("Art-Net\0 but no capture", 24) << -1
                                       << QStringLiteral("This is neither a pcapng nor a pcap capture.");
    }
    void hostileCaptures()
    {
        QFETCH(QByteArray, capture);
        QFETCH(int, dmxPackets);
        QFETCH(QString, warning);
        QTemporaryDir dir;
        const QString in = dir.filePath(QStringLiteral("site.pcap"));
        const QString out = dir.filePath(QStringLiteral("site.tpx"));
        TestFiles::write(in, capture);
        const CaptureConversion c = convertCapture(in, out, 40, 0);
        if (dmxPackets < 0) {
            QVERIFY(!c.ok);
            QCOMPARE(c.error, warning);
            QVERIFY(!QFile::exists(out)); // nothing half-written
            return;
        }
        QVERIFY2(c.ok, qPrintable(c.error));
        QCOMPARE(c.dmxPackets, qint64(dmxPackets));
        QCOMPARE(c.warnings.join(QLatin1Char('|')).startsWith(warning), true);
        QCOMPARE(c.warnings.isEmpty(), warning.isEmpty());
        Recording recording;
        QVERIFY(recording.load(out).ok);
        QCOMPARE(qint64(recording.records().size()), qint64(dmxPackets));
    }
};

QTEST_GUILESS_MAIN(TestCaptureConversion)
#include "tst_captureconversion.moc"
