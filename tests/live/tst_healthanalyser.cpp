// The health counters on crafted streams, each checked exactly; the table
// model and the overlay over them.
#include "live/healthanalyser.h"
#include "live/universehealthmodel.h"
#include "patch/pixellayout.h"

#include <QtTest>

namespace {

// "25 1 0 7 512" per packet: time (ms), sender (1 = 10.0.0.1), universe,
// sequence, length; "S 50" is an ArtSync at 50 ms. ";" separates events.
void feed(Health::Analyser &analyser, const QString &events)
{
    for (const QString &event : events.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList f = event.trimmed().split(QLatin1Char(' '));
        if (f.at(0) == QLatin1String("S")) {
            analyser.addSync(f.at(1).toLongLong() * 1'000'000, 0x0A000001, 6454);
            continue;
        }
        analyser.addDmx(f.at(0).toLongLong() * 1'000'000, 0x0A000000 + f.at(1).toUInt(), 6454,
                        quint16(f.at(2).toUInt()), quint8(f.at(3).toUInt()), f.at(4).toInt());
    }
}

// Packets every 25 ms from sender 1 to universe 0 with these sequence numbers.
QString numbered(const QList<int> &sequences)
{
    QStringList events;
    for (int i = 0; i < sequences.size(); ++i)
        events << QStringLiteral("%1 1 0 %2 512").arg(i * 25).arg(sequences[i]);
    return events.join(QLatin1Char(';'));
}

} // namespace

class TestHealthAnalyser : public QObject
{
    Q_OBJECT
private slots:
    void counters_data()
    {
        QTest::addColumn<QString>("events");
        QTest::addColumn<qint64>("nowMs");
        // universe 0: packets, lost, outOfOrder, duplicates, lengthChanges (first sender), syncMissed
        QTest::addColumn<QList<qint64>>("expected");
        QTest::addColumn<QString>("state");
        QTest::addColumn<int>("senders");
        const auto row = [](const char *name, const QString &events, qint64 nowMs,
                            const QList<qint64> &expected, const char *state, int senders = 1) {
            QTest::newRow(name) << events << nowMs << expected << QString::fromLatin1(state) << senders;
        };
        row("in order", numbered({1, 2, 3, 4, 5}), 100, {5, 0, 0, 0, 0, 0}, "ok");
        row("one dropped", numbered({1, 2, 4, 5}), 75, {4, 1, 0, 0, 0, 0}, "unstable");
        row("swapped pair", numbered({1, 3, 2, 4}), 75, {4, 0, 1, 0, 0, 0}, "unstable");
        row("duplicate", numbered({1, 2, 2, 3}), 75, {4, 0, 0, 1, 0, 0}, "unstable");
        row("wrap", numbered({253, 254, 255, 1, 2}), 100, {5, 0, 0, 0, 0, 0}, "ok");
        row("dropped across the wrap", numbered({254, 255, 2, 3}), 75, {4, 1, 0, 0, 0, 0}, "unstable");
        row("late after the wrap", numbered({254, 1, 255, 2}), 75, {4, 0, 1, 0, 0, 0}, "unstable");
        row("not numbered", numbered({0, 0, 0}), 50, {3, 0, 0, 0, 0, 0}, "ok");
        row("length changes", QStringLiteral("0 1 0 1 512; 25 1 0 2 512; 50 1 0 3 510; 75 1 0 4 512"), 75,
            {4, 0, 0, 0, 2, 0}, "ok");
        row("two senders", QStringLiteral("0 1 0 1 512; 5 2 0 9 512; 25 1 0 2 512; 30 2 0 10 512"), 30,
            {4, 0, 0, 0, 0, 0}, "conflict", 2);
        row("a second sender long gone", QStringLiteral("0 2 0 1 512; 5000 1 0 1 512; 5025 1 0 2 512"), 5025,
            {3, 0, 0, 0, 0, 0}, "ok", 2);
        row("stale", numbered({1, 2}), 4100, {2, 0, 0, 0, 0, 0}, "stale");
        row("a long pause", numbered({1, 2, 3, 4, 5, 6, 7, 8}) + QStringLiteral(";700 1 0 9 512"), 700,
            {9, 0, 0, 0, 0, 0}, "unstable");
        // Synced: once per period is right; twice (a torn frame) or not at all is a miss.
        row("ArtSync",
            QStringLiteral("0 1 0 1 512; S 10; 25 1 0 2 512; S 35; S 60; 70 1 0 3 512; 75 1 0 4 512; S 85; "
                           "95 1 0 5 512; S 110"),
            110, {5, 0, 0, 0, 0, 2}, "ok");
    }
    void counters()
    {
        QFETCH(QString, events);
        QFETCH(qint64, nowMs);
        QFETCH(QList<qint64>, expected);
        QFETCH(QString, state);
        QFETCH(int, senders);
        Health::Analyser analyser;
        feed(analyser, events);
        const QVector<Health::UniverseHealth> universes = analyser.universes(nowMs * 1'000'000, {0, 7});
        QCOMPARE(universes.size(), 2);
        const Health::UniverseHealth &u = universes[0];
        QCOMPARE(u.sources.size(), senders);
        const Health::SourceHealth &first = u.sources.constLast(); // sender 1 or 2: the one that sent the most
        const QList<qint64> got{u.packets, u.lost, u.outOfOrder, u.duplicates,
                                std::max(first.lengthChanges, u.sources.constFirst().lengthChanges), u.syncMissed};
        QCOMPARE(got, expected);
        QCOMPARE(u.state, state);
        QCOMPARE(universes[1].portAddress, quint16(7));
        QCOMPARE(universes[1].state, QStringLiteral("never"));
    }

    void ratesAndIntervals()
    {
        Health::Analyser file;
        feed(file, numbered({1, 2, 3, 4, 5}) + QStringLiteral(";200 1 0 6 512"));
        const Health::SourceHealth s = file.universes(200'000'000).at(0).sources.at(0);
        QCOMPARE(s.fps, 5 * 1000.0 / 200);
        QCOMPARE(s.minIntervalMs, 25.0);
        QCOMPARE(s.medianIntervalMs, 25.0);
        QCOMPARE(s.maxIntervalMs, 100.0);
        QCOMPARE(s.lastSeenMs, 0);
        // Live: the packets of the last second.
        Health::Analyser live(true);
        QStringList events;
        for (int i = 0; i < 90; ++i)
            events << QStringLiteral("%1 1 0 %2 512").arg(i * 25).arg(i % 255 + 1);
        feed(live, events.join(QLatin1Char(';')));
        QCOMPARE(live.universes(2225'000'000LL).at(0).fps, 40.0);
        QCOMPARE(live.sync().seen, false);
        QVERIFY(!Health::definition(QStringLiteral("lost")).isEmpty());
    }

    void tableAndOverlay()
    {
        // Universe 0 from one sender, 1 from two (a conflict), 3 patched and never sent.
        Health::Analyser analyser;
        feed(analyser, QStringLiteral("0 1 0 1 512; 25 1 0 2 512; 50 1 0 3 512; 0 1 1 1 512; 5 2 1 1 512"));
        const QVector<Health::UniverseHealth> universes = analyser.universes(50'000'000, {0, 1, 3});
        Health::StatePalette palette;
        palette.colours = {0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004, 0xFF000005}; // in State order
        UniverseHealthModel model;
        model.setPalette(palette);
        model.setUniverses(universes);
        const auto text = [&model](int row, int column, const QModelIndex &parent = {}) {
            return model.data(model.index(row, column, parent)).toString();
        };
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(QStringList({text(0, 0), text(0, 1), text(0, 2), text(0, 9), text(0, 10)}),
                 QStringList({"0x0000", "ok", "3", "0.0 s ago", "25.0 / 25.0 / 25.0"}));
        QCOMPARE(QStringList({text(1, 1), text(2, 0), text(2, 1), text(2, 3)}),
                 QStringList({"conflict", "0x0003", "never received", ""}));
        QCOMPARE(model.data(model.index(1, UniverseHealthModel::StateColumn), Qt::DecorationRole).value<QColor>(),
                 QColor::fromRgb(0xFF000003));
        QCOMPARE(model.headerData(UniverseHealthModel::LostColumn, Qt::Horizontal, Qt::ToolTipRole).toString(),
                 Health::definition(QStringLiteral("lost")));
        QCOMPARE(model.rowCount(model.index(1, 0)), 2);
        QCOMPARE(text(1, 0, model.index(1, 0)), QStringLiteral("10.0.0.2:6454"));

        // Sorting and refreshing keep a sender's row on its sender; only a new sender resets.
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        const QPersistentModelIndex sender(model.index(1, 0, model.index(1, 0)));
        model.sort(UniverseHealthModel::StateColumn, Qt::AscendingOrder); // never, conflict, ok
        QCOMPARE(QStringList({text(0, 0), text(1, 0), text(2, 0)}), QStringList({"0x0003", "0x0001", "0x0000"}));
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        model.setUniverses(universes, {1}); // universe 1's senders are open: their rows are signalled too
        QCOMPARE(sender.parent().row(), 1);
        QCOMPARE(sender.data().toString(), QStringLiteral("10.0.0.2:6454"));
        QCOMPARE(resets.count(), 0);
        QCOMPARE(changed.count(), 2);
        QCOMPARE(changed.at(1).at(1).toModelIndex(), model.index(1, UniverseHealthModel::ColumnCount - 1, model.index(1, 0)));
        feed(analyser, QStringLiteral("50 3 0 1 512"));
        model.setUniverses(analyser.universes(50'000'000, {0, 1, 3}));
        QCOMPARE(resets.count(), 1);

        QCOMPARE(UniverseHealthModel::csv(universes).split('\n').mid(0, 3),
                 QByteArrayList({"portAddress,state,sender,packets,fps,lost,outOfOrder,duplicates,syncMissed,"
                                 "lengthChanges,lastSeenMs,minIntervalMs,medianIntervalMs,maxIntervalMs\r",
                                 "0x0000,ok,,3,40.0,0,0,0,0,0,0,,,\r",
                                 "0x0000,,10.0.0.1:6454,3,40.0,0,0,0,,0,0,25.0,25.0,25.0\r"}));

        // Each pixel in its universe's colour; a universe nobody reported counts as never fed.
        TPatch::PixelLayout layout;
        layout.pixels.resize(3);
        layout.portAddressPixels = {{0, {0}}, {1, {1}}, {9, {2}}};
        QVector<QRgb> colours;
        Health::paintStates(layout, universes, palette, &colours);
        QCOMPARE(colours, QVector<QRgb>({0xFF000005, 0xFF000003, 0xFF000001}));
    }
};

QTEST_GUILESS_MAIN(TestHealthAnalyser)
#include "tst_healthanalyser.moc"
