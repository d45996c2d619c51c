#include "arguments.h"
#include "commandtable.h"
#include "guide.h"
#include "installedtree.h"
#include "testcase.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>

namespace {

const QStringList programs{QStringLiteral("tessel"), QStringLiteral("tessel-hall"),
                           QStringLiteral("tesselctl")};
constexpr std::array iconSizes{16, 22, 24, 32, 48, 64, 128, 256};

QString iconOf(int size)
{
    return QStringLiteral("share/icons/hicolor/%1x%1/apps/tessel.png").arg(size);
}

QString manualOf(const QString& program)
{
    return QStringLiteral("share/man/man1/%1.1").arg(program);
}

/// The guide, with all that is there of it.
QStringList guideFiles()
{
    const QString place = QStringLiteral("share/tessel/guide/");
    QStringList files{place + QStringLiteral("guide.css")};
    const QDir pages(QStringLiteral(TESSEL_SOURCE_FOLDER "/docs/guide"));
    for (const QString& page : pages.entryList({QStringLiteral("*.html")})) {
        files.append(place + page);
    }
    for (const QString& picture :
         QDir(pages.filePath(QStringLiteral("pictures"))).entryList(QDir::Files)) {
        files.append(place + QStringLiteral("pictures/") + picture);
    }
    return files;
}

QStringList expectedFiles()
{
    QStringList files{QStringLiteral("share/applications/tessel.desktop"),
                      QStringLiteral("share/icons/hicolor/scalable/apps/tessel.svg"),
                      QStringLiteral("share/mime/packages/tessel.xml")};
    for (const QString& program : programs) {
        files.append(QStringLiteral("bin/") + program);
        files.append(manualOf(program));
        files.append(QStringLiteral("share/bash-completion/completions/") + program);
    }
    for (const char* page : {"commandline", "fieldkit", "hall", "keyboard", "reliability"}) {
        files.append(QStringLiteral("share/doc/tessel/%1.md").arg(QLatin1String(page)));
    }
    for (const int size : iconSizes) {
        files.append(iconOf(size));
    }
    files += guideFiles();
    files.sort();
    return files;
}

} // namespace

/// What `cmake --install` leaves in a folder.
class TestInstalledFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void everythingIsInstalledAndNothingElse();
    void everyProgramTellsTheProjectsVersion();
    void theProgramFindsTheGuide();
    void theGuideIsFoundAmongTheDocuments();
    void programsDoNotKnowWhereTheyWereBuilt();
    void manualPagesAreWellFormed_data();
    void manualPagesAreWellFormed();
    void manualPageTellsOfEveryCommandAndOption();
    void manualPagesTellOfEveryOptionInTheHelp_data();
    void manualPagesTellOfEveryOptionInTheHelp();
    void iconsHaveTheirSizes();
    void desktopOpensTheFilesOfTheWizard();
    void filesAreKnownByNameAndContent();

private:
    QString manualText(const QString& program) const;

    std::optional<InstalledTree> m_installation;
};

void TestInstalledFiles::initTestCase()
{
    TestCase::initTestCase();
    m_installation.emplace();
    QVERIFY2(m_installation->fault().isEmpty(), qPrintable(m_installation->fault()));
}

void TestInstalledFiles::cleanupTestCase()
{
    m_installation.reset();
}

/// The page as it is written, with its macros of options as a reader sees them.
QString TestInstalledFiles::manualText(const QString& program) const
{
    QString text = QString::fromUtf8(m_installation->contents(manualOf(program)));
    static const QRegularExpression flag(QStringLiteral("\\b(?:Fl|[,|]) (?=[\\w-])"));
    return text.replace(flag, QStringLiteral(" -")).remove(QStringLiteral("\\&"));
}

void TestInstalledFiles::everythingIsInstalledAndNothingElse()
{
    QCOMPARE(m_installation->files(), expectedFiles());
}

void TestInstalledFiles::everyProgramTellsTheProjectsVersion()
{
    for (const QString& program : programs) {
        const ProgramRun run = runProgram(m_installation->path(QStringLiteral("bin/") + program),
                                          {QStringLiteral("--version")});
        QCOMPARE(run.errors, QString());
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.output, program + QStringLiteral(" " TESSEL_PROJECT_VERSION "\n"));
    }
}

void TestInstalledFiles::theProgramFindsTheGuide()
{
    const Guide guide(m_installation->path(QStringLiteral("bin")));
    QCOMPARE(guide.folder(), m_installation->path(QStringLiteral("share/tessel/guide")));
}

void TestInstalledFiles::theGuideIsFoundAmongTheDocuments()
{
    const QFileInfo link(m_installation->path(QStringLiteral("share/doc/tessel/guide")));
    QVERIFY(link.isSymLink());
    QVERIFY(QFile::exists(link.filePath() + QStringLiteral("/index.html")));
}

void TestInstalledFiles::programsDoNotKnowWhereTheyWereBuilt()
{
#if !defined(QT_NO_DEBUG) || defined(__SANITIZE_ADDRESS__)
    QSKIP("only what is delivered hides it; this build shows developers their files");
#else
    for (const QString& program : programs) {
        const QByteArray bytes = m_installation->contents(QStringLiteral("bin/") + program);
        QVERIFY(bytes.size() > 10000);
        QVERIFY2(!bytes.contains(TESSEL_BUILD_FOLDER), qPrintable(program));
        QVERIFY2(!bytes.contains(TESSEL_SOURCE_FOLDER), qPrintable(program));
    }
#endif
}

void TestInstalledFiles::manualPagesAreWellFormed_data()
{
    QTest::addColumn<QString>("program");
    for (const QString& program : programs) {
        QTest::newRow(qPrintable(program)) << program;
    }
}

void TestInstalledFiles::manualPagesAreWellFormed()
{
    QFETCH(const QString, program);
    const QString groff = QStandardPaths::findExecutable(QStringLiteral("groff"));
    if (groff.isEmpty()) {
        QSKIP("this system cannot format manual pages");
    }
    const ProgramRun run =
        runProgram(groff, {QStringLiteral("-ww"), QStringLiteral("-mandoc"),
                           QStringLiteral("-Tutf8"), m_installation->path(manualOf(program))});
    QCOMPARE(run.errors, QString());
    QCOMPARE(run.exitCode, 0);
    // What was to be filled in has been, and nothing is lost on the way.
    QVERIFY(run.output.contains(QStringLiteral("Tessel " TESSEL_PROJECT_VERSION)));
    QVERIFY(!run.output.contains(u'@') && !run.output.contains(u'<'));
}

void TestInstalledFiles::manualPageTellsOfEveryCommandAndOption()
{
    const QString page = QString::fromUtf8(m_installation->contents(manualOf(programs.last())));
    for (const auto& command : allCommands()) {
        const qsizetype begin = page.indexOf(QStringLiteral(".Ss %1\n").arg(command->name()));
        QVERIFY2(begin >= 0, qPrintable(command->name()));
        const QString section = page.mid(begin + 1).section(QStringLiteral("\n.S"), 0, 0);
        for (const CommandOption& option : command->syntax().options) {
            for (const QString& name : option.names) {
                const QString flag = QStringLiteral("Fl ") + writtenOption(name).sliced(1);
                QVERIFY2(section.contains(QStringLiteral("\n.It ") + flag) ||
                             section.contains(QStringLiteral(" , ") + flag),
                         qPrintable(command->name() + u' ' + name));
            }
        }
    }
}

void TestInstalledFiles::manualPagesTellOfEveryOptionInTheHelp_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("tessel") << programs.at(0);
    QTest::newRow("tessel-hall") << programs.at(1);
}

void TestInstalledFiles::manualPagesTellOfEveryOptionInTheHelp()
{
    QFETCH(const QString, program);
    const ProgramRun run = runProgram(m_installation->path(QStringLiteral("bin/") + program),
                                      {QStringLiteral("--help")});
    const QString page = manualText(program);
    static const QRegularExpression option(QStringLiteral("^  +(--?[a-zA-Z][a-z-]*)"),
                                           QRegularExpression::MultilineOption);
    QRegularExpressionMatchIterator matches = option.globalMatch(run.output);
    QVERIFY(matches.hasNext());
    while (matches.hasNext()) {
        const QString name = matches.next().captured(1);
        QVERIFY2(page.contains(QStringLiteral(" -") + name.sliced(1)), qPrintable(name));
    }
}

void TestInstalledFiles::iconsHaveTheirSizes()
{
    for (const int size : iconSizes) {
        const QImage icon(m_installation->path(iconOf(size)));
        QCOMPARE(icon.size(), QSize(size, size));
        // In the middle of the drawing stands the hub.
        QCOMPARE(icon.pixelColor(size / 2, size / 2), QColor(Qt::white));
    }
}

void TestInstalledFiles::desktopOpensTheFilesOfTheWizard()
{
    const QStringList lines =
        QString::fromUtf8(
            m_installation->contents(QStringLiteral("share/applications/tessel.desktop")))
            .split(u'\n');
    for (const char* line : {"Exec=tessel %f", "Icon=tessel", "MimeType=application/x-tessel;"}) {
        QVERIFY2(lines.contains(QLatin1String(line)), line);
    }
}

void TestInstalledFiles::filesAreKnownByNameAndContent()
{
    const QString list = m_installation->path(QStringLiteral("hall.json"));
    QFile json(list);
    QVERIFY(json.open(QIODevice::WriteOnly));
    json.write("{}");
    json.close();
    const QString file = m_installation->path(QStringLiteral("hall.tessel"));
    runProgram(
        m_installation->path(QStringLiteral("bin/tesselctl")),
        {QStringLiteral("make"), QStringLiteral("--force"), list, QStringLiteral("-o"), file});
    const QByteArray bytes = m_installation->contents(QStringLiteral("hall.tessel"));
    QVERIFY(!bytes.isEmpty());

    qputenv("XDG_DATA_DIRS", m_installation->path(QStringLiteral("share")).toLocal8Bit());
    const QMimeDatabase types;
    const QString expected = QStringLiteral("application/x-tessel");
    QCOMPARE(types.mimeTypeForFile(file, QMimeDatabase::MatchExtension).name(), expected);
    QCOMPARE(types.mimeTypeForData(bytes).name(), expected);
}

TESSEL_TEST_MAIN(TestInstalledFiles)
#include "tst_installedfiles.moc"
