#include "shellword.h"
#include "testcase.h"

#include <QTest>

#ifdef Q_OS_WIN
#include <windows.h>
// Needs what is declared above.
#include <shellapi.h>
#else
#include <QProcess>
#endif

namespace {

#ifdef Q_OS_WIN

/// What a program gets that is started with this behind its name.
QString handedOver(const QString& word)
{
    const std::wstring line = (QStringLiteral("tesselctl ") + word).toStdWString();
    int count = 0;
    wchar_t** const texts = ::CommandLineToArgvW(line.c_str(), &count);
    const QString text = count == 2 ? QString::fromWCharArray(texts[1]) : QString();
    ::LocalFree(texts);
    return text;
}

#else

/// What a program gets that a shell starts with this behind its name.
QString handedOver(const QString& word)
{
    QProcess shell;
    shell.start(QStringLiteral("sh"),
                {QStringLiteral("-c"), QStringLiteral("printf '<%s>' ") + word});
    shell.waitForFinished();
    const QString text = QString::fromLocal8Bit(shell.readAll());
    return text.startsWith(u'<') && text.endsWith(u'>') ? text.mid(1, text.size() - 2) : QString();
}

#endif

} // namespace

class TestShellWord : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aShellHandsAFilesNameOverAsItIs_data();
    void aShellHandsAFilesNameOverAsItIs();
    void anOrdinaryNameStandsWithoutMarks();
};

void TestShellWord::aShellHandsAFilesNameOverAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("ordinary") << QStringLiteral("halls/hall-1.tessel");
    QTest::newRow("blank") << QStringLiteral("my hall.tessel");
    QTest::newRow("two blanks") << QStringLiteral("my  hall.tessel");
    QTest::newRow("apostrophe") << QStringLiteral("Anna's hall.tessel");
    QTest::newRow("what joins commands") << QStringLiteral("a & b;c.tessel");
    QTest::newRow("what stands for other names") << QStringLiteral("hall[1](2).tessel");
    QTest::newRow("letters beyond the first 128") << QString::fromUtf8("Größe Łódź.tessel");
    QTest::newRow("backslash in it") << QStringLiteral("a\\b c.tessel");
    QTest::newRow("backslash at its end") << QStringLiteral("my halls\\");
#ifndef Q_OS_WIN
    QTest::newRow("variable") << QStringLiteral("$HOME.tessel");
    QTest::newRow("quotation mark") << QStringLiteral("hall \"1\".tessel");
#endif
}

void TestShellWord::aShellHandsAFilesNameOverAsItIs()
{
    QFETCH(const QString, name);
    QCOMPARE(handedOver(shellWord(name)), name);
}

void TestShellWord::anOrdinaryNameStandsWithoutMarks()
{
    const QString name = QStringLiteral("halls/hall-1.tessel");
    QCOMPARE(shellWord(name), name);
#ifdef Q_OS_WIN
    const QString path = QStringLiteral("C:\\halls\\hall-1.tessel");
    QCOMPARE(shellWord(path), path);
#endif
}

TESSEL_TEST_MAIN(TestShellWord)
#include "tst_shellword.moc"
