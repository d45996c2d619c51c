#include "cabletest.h"

#include <QFile>
#include <QTest>

void CableTest::initTestCase()
{
    TestCase::initTestCase();
    QString reason;
    if (!hasNetwork(&reason)) {
        QSKIP(qPrintable(reason));
    }
}

void CableTest::put(const char* name, const QByteArray& bytes) const
{
    QFile file(path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

NetworkRun CableTest::runTool(const QByteArray& hall, const QString& command,
                              const QString& before) const
{
    return runBesideHall(
        hall,
        QStringLiteral("cd '%1' && %2tesselctl %3 --wait 1").arg(m_folder.path(), before, command));
}
