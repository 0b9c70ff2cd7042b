#include <QtTest>
class T : public QObject { Q_OBJECT private slots: void x() {} };
QTEST_GUILESS_MAIN(T)
#include "tst_patchloader.moc"
