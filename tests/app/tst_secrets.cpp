// Passwords stay in the dialogs, and what is made of them stays in two requests. A copy of this
// program ("--run") does an installation; then all that it printed and left is searched.
#include "secretrun.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

namespace {

constexpr int longestRunMs = 120'000;
const char* const runArgument = "--run";

/// The text in an encoding of two bytes per unit.
QByteArray wide(const QString& text, bool bigEndian)
{
    QByteArray bytes;
    for (const QChar unit : text) {
        const char high = char(unit.unicode() >> 8U);
        const char low = char(unit.unicode() & 0xffU);
        bytes.append(bigEndian ? high : low).append(bigEndian ? low : high);
    }
    return bytes;
}

/// The ways in which a text could stand in a file.
QByteArrayList spellings(const QByteArray& text)
{
    const QString characters = QString::fromLatin1(text);
    return {text,         text.toUpper(), wide(characters, true), wide(characters, false),
            text.toHex(), text.toBase64()};
}

QByteArrayList secretsOf(const char* password)
{
    const QByteArray digest = QCryptographicHash::hash(password, QCryptographicHash::Md5);
    return spellings(password) + spellings(digest.toHex()) +
           QByteArrayList{digest, digest.toBase64()};
}

/// All secrets, each with a name that may be printed.
QList<std::pair<QString, QByteArray>> allSecrets()
{
    QList<std::pair<QString, QByteArray>> secrets;
    for (const char* password : {wrongPassword, rightPassword, firstPassword}) {
        int spelling = 0;
        for (const QByteArray& secret : secretsOf(password)) {
            const QString name = QStringLiteral("%1... in spelling %2")
                                     .arg(QString::fromLatin1(password, 2))
                                     .arg(spelling++);
            secrets.append({name, secret});
        }
    }
    return secrets;
}

QStringList secretsIn(const QByteArray& bytes)
{
    QStringList found;
    for (const auto& [name, secret] : allSecrets()) {
        if (bytes.contains(secret)) {
            found.append(name);
        }
    }
    return found;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The paths of all files below a folder.
QStringList filesBelow(const QString& folder)
{
    QStringList paths;
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        paths.append(files.next());
    }
    return paths;
}

} // namespace

class TestSecrets : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theSearchFindsEverySpelling();
    void nothingPrintedTellsAPassword();
    void noFileLeftTellsAPassword();

private:
    QTemporaryDir m_home;
    QByteArray m_printed;
};

void TestSecrets::initTestCase()
{
    TestCase::initTestCase();
    QProcess run;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME",
                             "XDG_RUNTIME_DIR"}) {
        environment.insert(QString::fromLatin1(name), m_home.path());
    }
    run.setProcessEnvironment(environment);
    run.setProcessChannelMode(QProcess::MergedChannels);
    run.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(runArgument)});
    QVERIFY(run.waitForFinished(longestRunMs));
    m_printed = run.readAll();
    QVERIFY2(run.exitStatus() == QProcess::NormalExit && run.exitCode() == 0,
             m_printed.constData());
}

void TestSecrets::theSearchFindsEverySpelling()
{
    for (const auto& [name, secret] : allSecrets()) {
        QVERIFY2(secretsIn("before " + secret + " behind").contains(name), qPrintable(name));
    }
    QCOMPARE(secretsIn("nothing of the kind"), QStringList());
}

void TestSecrets::nothingPrintedTellsAPassword()
{
    // It did print what a run prints, and the hall what it was asked.
    for (const char* text : {"127.83.1.1 Reply Step:3", "127.83.1.2 Reply Step:2",
                             "PresetName:", "Error!", "/api/v0/auth/authenticate"}) {
        QVERIFY2(m_printed.contains(text), text);
    }
    QCOMPARE(secretsIn(m_printed), QStringList());
}

void TestSecrets::noFileLeftTellsAPassword()
{
#ifdef Q_OS_WIN
    QSKIP("no variable makes another home folder here, and the own one is the person's");
#endif
    const QStringList paths = filesBelow(m_home.path());
    for (const char* end :
         {"/resume-copy.dat", "/requests.jsonl", "/127.83.2.1/state.json", "/entry.json", ".xml"}) {
        const auto isThere = [end](const QString& path) {
            return path.endsWith(QLatin1String(end));
        };
        QVERIFY2(std::any_of(paths.begin(), paths.end(), isThere), end);
    }
    for (const QString& path : paths) {
        QVERIFY2(secretsIn(contentOf(path)).isEmpty(), qPrintable(path));
    }
}

int main(int argc, char** argv)
{
    if (argc != 2 || qstrcmp(argv[1], runArgument) != 0) {
        TestSecrets test;
        return runTestCase(test, argc, argv);
    }
    const QApplication application(argc, argv);
    SecretRun run;
    return QTest::qExec(&run, QStringList{QCoreApplication::applicationName()});
}

#include "tst_secrets.moc"
