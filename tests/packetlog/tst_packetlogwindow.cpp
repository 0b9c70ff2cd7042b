// The Network Log window on a journal it follows: batches per look, drops, pause and resume, the filter bar,
// the detail pane's fields over the marked hex dump, and the rows that must stand out.
#include "artnet/artnetpacket.h"
#include "packetlog/artnetfields.h"
#include "packetlog/displayfilter.h"
#include "packetlog/packetjournal.h"
#include "packetlog/widgets/filterbar.h"
#include "packetlog/widgets/packetlistmodel.h"
#include "packetlog/widgets/packetlogwindow.h"
#include "style/moxstyle.h"
#include "logtestdata.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTextBlock>
#include <QTreeWidget>
#include <QtTest>

using namespace PacketLog;
using namespace LogTestData;

class TestPacketLogWindow : public QObject
{
    Q_OBJECT
private slots:
    void recordsArriveInBatchesAndDropsAreCounted();
    void filterBarStatesAndMessages();
    void detailPaneMarksTheSelectedField();
    void rowsThatMustStandOut();
};

void TestPacketLogWindow::recordsArriveInBatchesAndDropsAreCounted()
{
    MoxStyle style;
    PacketJournal journal(1024);
    journal.append(journalEvent(artDmx(1, 200))); // before the window looked: shown first
    PacketLogWindow window(style);
    window.setJournal(&journal);
    QSignalSpy inserted(window.model(), &QAbstractItemModel::rowsInserted);
    for (int i = 0; i < 600; ++i)
        journal.append(journalEvent(artDmx(quint16(i % 8), quint8(1 + i / 8))));
    window.show(); // a hidden window takes nothing
    window.poll();
    QCOMPARE(inserted.count(), 1); // one insert for the batch
    QCOMPARE(window.model()->rowCount(), 601);
    // More than the ring holds between two looks: the overwritten ones are dropped.
    for (int i = 0; i < 1500; ++i)
        journal.append(journalEvent(artDmx(quint16(i % 8), quint8(1 + i % 200)), -1, Direction::Out));
    window.poll();
    QCOMPARE(window.model()->rowCount(), 601 + 1024);
    QCOMPARE(window.droppedCount(), 1500 - 1024);
    QCOMPARE(window.findChild<QLabel *>(QStringLiteral("packetLogStatus"))->text(),
             QStringLiteral("1625 records · 1625 shown · 476 dropped"));
    // Paused: nothing is taken; resumed: the list catches up.
    auto *pause = window.findChild<QPushButton *>();
    QCOMPARE(pause->text(), QStringLiteral("Pause"));
    pause->click();
    journal.append(journalEvent(artDmx(1, 9)));
    window.poll();
    QCOMPARE(window.model()->rowCount(), 1625);
    QCOMPARE(pause->text(), QStringLiteral("Resume"));
    pause->click();
    QCOMPARE(window.model()->rowCount(), 1626);
}

void TestPacketLogWindow::filterBarStatesAndMessages()
{
    MoxStyle style;
    PacketJournal journal;
    PacketLogWindow window(style);
    window.setJournal(&journal);
    window.show();
    for (quint16 universe = 0; universe < 4; ++universe)
        journal.append(journalEvent(artDmx(universe, 1)));
    window.poll();
    FilterBar *bar = window.filterBar();
    auto *field = bar->findChild<QComboBox *>(); // keys go to the combo box, as they do when it has the focus
    auto *error = bar->findChild<QLabel *>(QStringLiteral("filterError"));
    QSignalSpy recent(bar, &FilterBar::recentFiltersChanged);
    // Invalid while typing: the filter's own message, and Enter changes nothing.
    const QString broken = QStringLiteral("artnet.universe ==");
    QTest::keyClicks(field, broken);
    QVERIFY(!bar->isValid());
    QVERIFY(error->isVisibleTo(&window));
    QCOMPARE(error->text(), compileFilter(broken).error.text());
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(window.model()->rowCount(), 4);
    QCOMPARE(recent.count(), 0);
    QTest::keyClicks(field, QStringLiteral(" 2"));
    QVERIFY(bar->isValid());
    QVERIFY(!error->isVisibleTo(&window));
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(window.model()->rowCount(), 1);
    QCOMPARE(window.model()->recordAt(0).portAddress, quint16(2));
    QCOMPARE(recent.count(), 1);
    QCOMPARE(recent.at(0).at(0).toStringList(), QStringList{"artnet.universe == 2"});
    QCOMPARE(window.findChild<QLabel *>(QStringLiteral("packetLogStatus"))->text(),
             QStringLiteral("4 records · 1 shown · 0 dropped"));
    // New records pass the filter as they arrive.
    journal.append(journalEvent(artDmx(2, 2)));
    journal.append(journalEvent(artDmx(3, 2)));
    window.poll();
    QCOMPARE(window.model()->rowCount(), 2);
    field->lineEdit()->clear();
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(window.model()->rowCount(), 6);
}

void TestPacketLogWindow::detailPaneMarksTheSelectedField()
{
    MoxStyle style;
    PacketJournal journal;
    PacketLogWindow window(style);
    window.setJournal(&journal);
    window.show();
    journal.append(journalEvent(artDmx(0x0123, 7)));
    window.poll();
    window.view()->setCurrentIndex(window.model()->index(0, 0));
    auto *fields = window.findChild<QTreeWidget *>(QStringLiteral("packetFields"));
    QStringList shown;
    for (int i = 0; i < fields->topLevelItemCount(); ++i)
        shown << fields->topLevelItem(i)->text(0) + " = " + fields->topLevelItem(i)->text(1);
    QCOMPARE(shown, (QStringList{"ID = Art-Net", "OpCode = 0x5000 (ArtDmx)", "ProtVer = 14", "Sequence = 7",
                                 "Physical = 0", "Port-Address = 0x0123 (Net 1, Sub-Net 2, Universe 3)",
                                 "Length = 4"}));
    auto *hex = window.findChild<QPlainTextEdit *>(QStringLiteral("packetHex"));
    QVERIFY(hex->toPlainText().startsWith(
        QStringLiteral("0000  41 72 74 2d 4e 65 74 00 00 50 00 0e 07 00 23 01 ")));
    // Port-Address: bytes 14 and 15; Length: bytes 16 and 17, on the second line.
    const auto marks = [&](int item, const char *first, const char *second, const char *line) {
        fields->setCurrentItem(fields->topLevelItem(item));
        const QList<QTextEdit::ExtraSelection> marked = hex->extraSelections();
        QCOMPARE(marked.size(), 2);
        QCOMPARE(marked.at(0).cursor.selectedText(), QString::fromLatin1(first));
        QCOMPARE(marked.at(1).cursor.selectedText(), QString::fromLatin1(second));
        QCOMPARE(marked.at(1).cursor.block().text().left(4), QString::fromLatin1(line));
    };
    marks(5, "23", "01", "0000");
    marks(6, "00", "04", "0010");
    // An ArtPollReply as the node builds it: its address, names and ports.
    ArtNet::PollReplyInput reply;
    reply.bindIPv4 = 0xC0000201;
    reply.universes = {0x0123};
    QStringList replyFields;
    for (const DecodedField &f : decodeArtNetFields(ArtNet::buildPollReply(reply, 0)))
        replyFields << f.name + " = " + f.value;
    for (const char *expected : {"OpCode = 0x2100 (ArtPollReply)", "IP address = 192.0.2.1", "Port = 6454",
                                 "NetSwitch = 1", "SubSwitch = 2", "ShortName = TorvaneTester",
                                 "LongName = Torvane Art-Net Tester", "BindIp = 192.0.2.1", "BindIndex = 1"})
        QVERIFY2(replyFields.contains(QString::fromLatin1(expected)), qPrintable(replyFields.join('\n')));
}

void TestPacketLogWindow::rowsThatMustStandOut()
{
    MoxStyle style;
    PacketJournal journal;
    PacketLogWindow window(style);
    window.setJournal(&journal);
    window.show();
    QByteArray unknown = artDmx(1, 1);
    unknown[9] = char(0x7f); // OpCode 0x7f00
    journal.append(journalEvent(artDmx(1, 5)));
    journal.append(journalEvent(artDmx(1, 3)));                                   // back: out of order
    journal.append(journalEvent(artDmx(1, 9), -1, Direction::Out, Outcome::Failed)); // a failed send
    journal.append(journalEvent(unknown));
    journal.append(journalEvent(artDmx(1, 10))); // in order
    window.poll();
    const auto colour = [&window](int row) {
        return window.model()->data(window.model()->index(row, PacketListModel::InfoColumn), Qt::ForegroundRole);
    };
    QVERIFY(!colour(0).isValid());
    QCOMPARE(colour(1).value<QBrush>().color(), style.roleColour(MoxStyle::WarningRole));
    QCOMPARE(colour(2).value<QBrush>().color(), style.roleColour(MoxStyle::ErrorRole));
    QCOMPARE(colour(3).value<QBrush>().color(), style.roleColour(MoxStyle::Accent));
    QVERIFY(!colour(4).isValid());
    QCOMPARE(window.model()->data(window.model()->index(3, PacketListModel::OpCodeColumn)).toString(),
             QStringLiteral("OpCode 0x7f00"));
    // A capture's copy of a packet the node logged is no repeat of it.
    PacketRecord copy = window.model()->recordAt(4);
    copy.source = RecordSource::Capture;
    window.model()->appendRecords({copy});
    QVERIFY(!colour(5).isValid());
}

QTEST_MAIN(TestPacketLogWindow)
#include "tst_packetlogwindow.moc"
