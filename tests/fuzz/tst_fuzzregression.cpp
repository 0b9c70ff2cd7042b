#include "fuzzentries.h"

#include <QDir>
#include <QDirIterator>
#include <QtTest>

// Replays, under the sanitizers of the test build, every input that ever
// crashed or hung a parser (tests/fuzz/regressions/<target>/) and the seed
// corpora (tests/fuzz/corpus/<target>/) through the same entries the fuzzers use.
class TestFuzzRegression : public QObject
{
    Q_OBJECT
private slots:
    void everyTargetHasSeedsAndDictionary();
    void replay_data();
    void replay();
};

void TestFuzzRegression::everyTargetHasSeedsAndDictionary()
{
    std::size_t count = 0;
    const FuzzTarget *targets = fuzzTargets(&count);
    QVERIFY(count > 0);
    const QString root = QStringLiteral(TALU_SOURCE_DIR "/tests/fuzz");
    for (std::size_t i = 0; i < count; ++i) {
        const QString name = QString::fromLatin1(targets[i].name);
        QVERIFY2(!QDir(root + QStringLiteral("/corpus/") + name).isEmpty(QDir::Files), qPrintable(name));
        QVERIFY2(QFileInfo::exists(root + QStringLiteral("/dict/") + name + QStringLiteral(".dict")), qPrintable(name));
        QCOMPARE(findFuzzTarget(targets[i].name), &targets[i]);
    }
}

void TestFuzzRegression::replay_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("path");
    std::size_t count = 0;
    const FuzzTarget *targets = fuzzTargets(&count);
    const QString root = QStringLiteral(TALU_SOURCE_DIR "/tests/fuzz");
    for (std::size_t i = 0; i < count; ++i) {
        const QString name = QString::fromLatin1(targets[i].name);
        for (const char *kind : {"regressions", "corpus"}) {
            QDirIterator it(root + QLatin1Char('/') + QLatin1StringView(kind) + QLatin1Char('/') + name, QDir::Files);
            while (it.hasNext()) {
                const QString path = it.next();
                QTest::newRow(qPrintable(QStringLiteral("%1/%2/%3").arg(QLatin1StringView(kind), name, it.fileName())))
                    << name << path;
            }
        }
    }
}

void TestFuzzRegression::replay()
{
    QFETCH(QString, target);
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    const FuzzTarget *t = findFuzzTarget(target.toLatin1().constData());
    QVERIFY(t);
    QCOMPARE(t->run(reinterpret_cast<const std::uint8_t *>(bytes.constData()), std::size_t(bytes.size())), 0);
}

QTEST_GUILESS_MAIN(TestFuzzRegression)
#include "tst_fuzzregression.moc"
