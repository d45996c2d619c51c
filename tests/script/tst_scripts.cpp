#include "scriptcopy.h"
#include "testcase.h"

#include <QRegularExpression>
#include <QTest>

namespace {

const QString bootstrap = QStringLiteral("bootstrap");

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

/// Whether a log tells of one update and one installation, which read nothing.
bool installedWithoutAQuestion(const QString& log)
{
    const QStringList calls = log.split(u'\n', Qt::SkipEmptyParts);
    return calls.size() == 2 && calls.first() == u"noninteractive|update -q|" &&
           calls.last().startsWith(u"noninteractive|install -q -y ") && calls.last().endsWith(u'|');
}

/// Leaves what tells a Qt for MinGW of this version in a folder, but for one file.
void leaveQt(const ScriptCopy& copy, const QByteArray& version,
             const QString& folder = QStringLiteral("qt"), const QString& missing = QString())
{
    const QHash<QString, QByteArray> files{
        {QStringLiteral("lib/cmake/Qt6/Qt6Config.cmake"), {}},
        {QStringLiteral("lib/cmake/Qt6/Qt6ConfigVersionImpl.cmake"),
         "set(PACKAGE_VERSION \"" + version + "\")\n"},
        {QStringLiteral("lib/libQt6Core.a"), {}},
        {QStringLiteral("bin/Qt6Core.dll"), {}}};
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (file.key() != missing) {
            copy.leave(folder + u'/' + file.key(), file.value());
        }
    }
}

/// Gives the packages that building for Windows needs, with Qt's tools of this version and place.
void giveWindowsTools(ScriptCopy& copy, const QString& version,
                      const QString& place = QStringLiteral("/own"))
{
    copy.givePackages(true);
    copy.give(QStringLiteral("x86_64-w64-mingw32-objdump"), QStringLiteral("echo pei-x86-64"));
    copy.give(QStringLiteral("qtpaths6"), QStringLiteral("case $2 in\n"
                                                         "QT_VERSION) echo %1 ;;\n"
                                                         "*) echo %2 ;;\n"
                                                         "esac")
                                              .arg(version, place));
}

/// What script/build asks of CMake in a folder that was configured as strict as `earlier` says;
/// where that is empty, in none.
QString cmakeCallsOfBuild(const QString& preset, const QString& asked, const QString& earlier)
{
    ScriptCopy copy;
    copy.givePackages(true);
    copy.give(QStringLiteral("cmake"), QStringLiteral("echo \"cmake $*\" >>\"$LOG\""));
    if (!earlier.isEmpty()) {
        copy.leave(QStringLiteral("build/%1/build.ninja").arg(preset), {});
        copy.leave(QStringLiteral("build/%1/CMakeCache.txt").arg(preset),
                   "TESSEL_WERROR:BOOL=" + earlier.toUtf8() + '\n');
    }
    QProcessEnvironment environment;
    if (!asked.isEmpty()) {
        environment.insert(QStringLiteral("TESSEL_WERROR"), asked);
    }
    const ScriptRun run = copy.run(QStringLiteral("build"), {preset}, environment);
    return run.exitCode == 0 ? copy.log() : run.errors;
}

/// A clone at version 2.0.0, in which nothing but what is committed lies.
void leaveClone(ScriptCopy& copy, const QByteArray& changes)
{
    copy.givePackages(true);
    copy.leave(QStringLiteral("CMakeLists.txt"), "project(tessel VERSION 2.0.0 LANGUAGES CXX\n");
    copy.leave(QStringLiteral("CHANGELOG.md"), changes);
}

/// Gives what a release takes, with a git that clones a project whose package holds the clone's
/// place.
void giveReleaseTools(ScriptCopy& copy)
{
    for (const char* tool : {"cp", "sha256sum", "stat", "xz"}) {
        copy.giveOwn(QString::fromLatin1(tool));
    }
    copy.give(QStringLiteral("git"), QStringLiteral(R"(
case $1 in
    archive) echo sources ;;
    clone)
        for target; do :; done
        mkdir -p "$target/script"
        printf '#!/bin/sh\nmkdir -p build/package\n' >"$target/script/package"
        echo 'echo $TESSEL_WERROR, ${PWD##*/} >build/package/tessel_2.0.0.deb' >>"$target/script/package"
        printf '#!/bin/sh\nmkdir -p build/windows; cd build/windows\n' >"$target/script/windows"
        echo 'for made in setup.exe windows.zip; do echo $2 >tessel-2.0.0-$made; done' >>"$target/script/windows"
        chmod +x "$target"/script/* ;;
esac)"));
}

} // namespace

/// The scripts, with programs that only say that they were called.
class TestScripts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyScriptSaysWhatItIsForAndStartsNothing_data();
    void everyScriptSaysWhatItIsForAndStartsNothing();
    void wrongUsageIsRefused_data();
    void wrongUsageIsRefused();
    void nothingIsInstalledWhereAllIsThere();
    void rootInstallsWithoutAQuestion();
    void sudoInstallsWithoutAQuestion();
    void checkersComeWithTheirChecks_data();
    void checkersComeWithTheirChecks();
    void whereNobodyMayInstallTheAdviceCanBePasted_data();
    void whereNobodyMayInstallTheAdviceCanBePasted();
    void whoMayOpenNoPortIsToldWhatToDo_data();
    void whoMayOpenNoPortIsToldWhatToDo();
    void demoBuildsNothingThatItCouldNotPlay();
    void demoBuildsWhatItPlays();
    void demoKeepsWhatAPersonSaved();
    void buildIsAsStrictAsItIsAskedToBe_data();
    void buildIsAsStrictAsItIsAskedToBe();
    void buildForgetsHowStrictAnEarlierOneWas();
    void buildDoesNotConfigureTwice();
    void packagesAreMadeOnDebianAlone();
    void packageIsTriedByRootAlone();
    void packageIsNotMadeForATrialThatIsRefused_data();
    void packageIsNotMadeForATrialThatIsRefused();
    void packageIsMadeOfWhatIsDelivered();
    void whatIsNotReadyIsNotReleased_data();
    void whatIsNotReadyIsNotReleased();
    void releaseIsMadeOfACleanClone_data();
    void releaseIsMadeOfACleanClone();
    void aWrongQtIsToldBeforeAnythingIsReleased();
    void windowsIsBuiltAgainstAQtForItAlone_data();
    void windowsIsBuiltAgainstAQtForItAlone();
    void windowsIsBuiltWithToolsThatAreNotOlder();
    void windowsIsConfiguredOncePerQt();
};

void TestScripts::everyScriptSaysWhatItIsForAndStartsNothing_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QString>("argument");
    for (const QString& script : ScriptCopy::names()) {
        for (const QString& argument : {QStringLiteral("--help"), QStringLiteral("-h")}) {
            QTest::newRow(qPrintable(script + u' ' + argument)) << script << argument;
        }
    }
}

void TestScripts::everyScriptSaysWhatItIsForAndStartsNothing()
{
    QFETCH(const QString, script);
    QFETCH(const QString, argument);
    const ScriptCopy copy;
    const ScriptRun run = copy.run(script, {argument});
    QCOMPARE(run.exitCode, 0);
    QVERIFY2(!run.output.isEmpty() && run.output.front().isUpper(), qPrintable(run.output));
    // Whatever it started is not there, and the shell would say so.
    QCOMPARE(run.errors, QString());
    QCOMPARE(copy.leftBehind(), QStringList());
}

void TestScripts::wrongUsageIsRefused_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("says");
    const auto row = [](const char* call, const char* says) {
        QStringList arguments = words(call);
        const QString script = arguments.takeFirst();
        QTest::newRow(call) << script << arguments << QString::fromLatin1(says);
    };
    row("bench --bogus", "--bogus: unknown");
    row("bench --instructions more", "more: unknown");
    row("bootstrap bogus", "bogus: unknown");
    row("build bogus", "bogus: unknown");
    row("build dev tessel --bogus", "--bogus: unknown here");
    row("check more", "more: unknown");
    row("demo --bogus", "--bogus: unknown");
    row("demo --interactive more", "more: unknown");
    row("fuzz --bogus", "--bogus: unknown");
    row("package --bogus", "--bogus: unknown");
    row("package --test more", "more: unknown");
    row("pictures more", "more: unknown");
    row("pictures --guide more", "more: unknown");
    row("release more", "more: unknown");
    row("release --qt", "--qt wants the folder of a Qt for MinGW");
    row("release --qt folder more", "more: unknown");
    row("valgrind --bogus", "--bogus: unknown");
    row("windows", "--qt FOLDER is missing");
    row("windows --bogus", "--bogus: unknown");
    row("windows tessel", "--qt FOLDER is missing");
    row("windows --qt folder --bogus", "--bogus: unknown here");
    row("windows --qt folder --demo more", "more: unknown");
    row("windows --qt folder tessel --demo", "--demo: unknown here");
    row("with-network", "two commands are wanted, with -- between them");
    row("with-network --ready", "--ready wants a text");
    row("with-network hall wizard", "two commands are wanted, with -- between them");
    row("with-port-80", "a command is missing");
    row("../packaging/debian/trial", "a package is missing");
    row("../packaging/debian/trial build", "build: this is no package");
}

void TestScripts::wrongUsageIsRefused()
{
    QFETCH(const QString, script);
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, says);
    const ScriptCopy copy;
    const ScriptRun run = copy.run(script, arguments);
    QCOMPARE(run.exitCode, 64);
    QCOMPARE(run.output, QString());
    const QStringList lines = run.errors.split(u'\n');
    QCOMPARE(lines.size(), 3);
    QCOMPARE(lines.first(), script.section(u'/', -1) + QStringLiteral(": ") + says);
    QVERIFY2(lines.at(1).endsWith(script + QStringLiteral(" --help says how it is called")),
             qPrintable(run.errors));
}

void TestScripts::nothingIsInstalledWhereAllIsThere()
{
    ScriptCopy copy;
    copy.givePackages(true);
    const ScriptRun run =
        copy.run(bootstrap, words("check fuzz bench display valgrind package trial "
                                  "windows windows-trial"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.output + run.errors, QString());
    QCOMPARE(copy.log(), QString());
}

void TestScripts::rootInstallsWithoutAQuestion()
{
    ScriptCopy copy;
    copy.givePackages(false);
    copy.give(QStringLiteral("id"), QStringLiteral("echo 0"));
    const ScriptRun run = copy.run(bootstrap, {});
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY2(installedWithoutAQuestion(copy.log()), qPrintable(copy.log()));
}

void TestScripts::sudoInstallsWithoutAQuestion()
{
    ScriptCopy copy;
    copy.givePackages(false);
    copy.giveUser(true);
    const ScriptRun run = copy.run(bootstrap, {});
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QVERIFY2(installedWithoutAQuestion(copy.log()), qPrintable(copy.log()));
}

void TestScripts::checkersComeWithTheirChecks_data()
{
    QTest::addColumn<QString>("purpose");
    QTest::addColumn<QStringList>("packages");
    QTest::newRow("check") << QStringLiteral("check") << words("clang-format clang-tidy-22 git");
    QTest::newRow("fuzz") << QStringLiteral("fuzz") << words("clang libclang-rt-dev");
    QTest::newRow("bench") << QStringLiteral("bench") << words("libbenchmark-dev");
    QTest::newRow("display") << QStringLiteral("display") << words("xvfb");
    QTest::newRow("valgrind") << QStringLiteral("valgrind") << words("valgrind");
    QTest::newRow("package") << QStringLiteral("package")
                             << words("git lintian desktop-file-utils");
    QTest::newRow("trial") << QStringLiteral("trial") << words("mmdebstrap xvfb");
    QTest::newRow("windows") << QStringLiteral("windows")
                             << words("g++-mingw-w64-x86-64-posix nsis");
    QTest::newRow("windows-trial") << QStringLiteral("windows-trial") << words("wine64 xvfb");
}

void TestScripts::checkersComeWithTheirChecks()
{
    QFETCH(const QString, purpose);
    QFETCH(const QStringList, packages);
    ScriptCopy copy;
    copy.givePackages(false);
    copy.give(QStringLiteral("id"), QStringLiteral("echo 0"));
    copy.run(bootstrap, {});
    static const QRegularExpression between(QStringLiteral("[\\s|]"));
    const QStringList ordinary = copy.log().split(between);
    copy.run(bootstrap, {purpose});
    const QStringList all = copy.log().split(between);
    for (const QString& package : packages) {
        QVERIFY2(!ordinary.contains(package), qPrintable(package));
        QVERIFY2(all.contains(package), qPrintable(package));
    }
    QCOMPARE(all.count(QStringLiteral("g++")), 2);
}

void TestScripts::whereNobodyMayInstallTheAdviceCanBePasted_data()
{
    QTest::addColumn<bool>("hasSudo");
    QTest::newRow("there is no sudo") << false;
    QTest::newRow("sudo wants a password and there is no terminal") << true;
}

void TestScripts::whereNobodyMayInstallTheAdviceCanBePasted()
{
    QFETCH(const bool, hasSudo);
    ScriptCopy copy;
    copy.givePackages(false);
    copy.give(QStringLiteral("id"), QStringLiteral("echo 1000"));
    if (hasSudo) {
        copy.giveUser(false);
    }
    const ScriptRun run = copy.run(bootstrap, {});
    QCOMPARE(run.exitCode, 1);
    // It was asked whether it works without a password, and not to ask for one.
    QCOMPARE(copy.log(), hasSudo ? QStringLiteral("sudo -n true\n") : QString());
    static const QRegularExpression advice(
        QStringLiteral("^  apt-get update && "
                       "apt-get install -y --no-install-recommends cmake .*util-linux$"),
        QRegularExpression::MultilineOption);
    QVERIFY2(run.errors.contains(advice), qPrintable(run.errors));
}

void TestScripts::whoMayOpenNoPortIsToldWhatToDo_data()
{
    QTest::addColumn<QString>("setting");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("advice");
    const auto row = [](const char* setting, const char* value, const char* advice) {
        QTest::newRow(setting) << QString::fromLatin1(setting) << QString::fromLatin1(value)
                               << QStringLiteral("  sudo sysctl ") + QString::fromLatin1(advice);
    };
    row("/proc/sys/user/max_user_namespaces", "0", "user.max_user_namespaces=1000");
    row("/proc/sys/kernel/unprivileged_userns_clone", "0", "kernel.unprivileged_userns_clone=1");
    row("/proc/sys/kernel/apparmor_restrict_unprivileged_userns", "1",
        "kernel.apparmor_restrict_unprivileged_userns=0");
    row("something else", "", "net.ipv4.ip_unprivileged_port_start=80");
}

void TestScripts::whoMayOpenNoPortIsToldWhatToDo()
{
    QFETCH(const QString, setting);
    QFETCH(const QString, value);
    QFETCH(const QString, advice);
    ScriptCopy copy;
    copy.giveUser(false);
    copy.give(QStringLiteral("unshare"), QStringLiteral("exit 1"));
    copy.give(QStringLiteral("cat"), QStringLiteral("case $1 in\n"
                                                    "*/ip_unprivileged_port_start) echo 1024 ;;\n"
                                                    "'%1') echo %2 ;;\n"
                                                    "esac")
                                         .arg(setting, value));
    copy.give(QStringLiteral("started"), QStringLiteral("echo started"));
    const ScriptRun run = copy.run(QStringLiteral("with-port-80"), {QStringLiteral("started")});
    QCOMPARE(run.exitCode, 77);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.split(u'\n').contains(advice), qPrintable(run.errors));
}

void TestScripts::demoBuildsNothingThatItCouldNotPlay()
{
    ScriptCopy copy;
    copy.givePackages(true);
    copy.giveUser(false);
    copy.give(QStringLiteral("unshare"), QStringLiteral("exit 1"));
    copy.give(QStringLiteral("cat"), QStringLiteral("echo 1024"));
    copy.give(QStringLiteral("cmake"), QStringLiteral("echo \"cmake $*\" >>\"$LOG\""));
    const ScriptRun run = copy.run(QStringLiteral("demo"), {});
    QCOMPARE(run.exitCode, 77);
    QVERIFY2(run.errors.contains(u"sudo sysctl "), qPrintable(run.errors));
    QCOMPARE(copy.log(), QString());
}

void TestScripts::demoBuildsWhatItPlays()
{
    ScriptCopy copy;
    copy.givePackages(true);
    copy.give(QStringLiteral("id"), QStringLiteral("echo 0"));
    copy.give(QStringLiteral("cmake"), QStringLiteral("echo \"cmake $*\" >>\"$LOG\"\n"
                                                      "[ \"$1\" != --build ]"));
    const ScriptRun run = copy.run(QStringLiteral("demo"), {});
    QVERIFY(run.output.section(u'\n', 0, 0).contains(u"minutes"));
    QCOMPARE(copy.log(), QStringLiteral("cmake --preset release -DTESSEL_WERROR=OFF\n"
                                        "cmake --build --preset release "
                                        "--target tessel tesselctl tessel-demo tessel-hall\n"));
}

void TestScripts::demoKeepsWhatAPersonSaved()
{
    ScriptCopy copy;
    copy.givePackages(true);
    copy.give(QStringLiteral("id"), QStringLiteral("echo 0"));
    // What it "builds" are a hall that opens and a wizard that finds what it saved, if it did.
    copy.give(QStringLiteral("tessel-hall"),
              QStringLiteral("trap 'exit 0' TERM; echo 'The hall is open.'\n"
                             "while :; do sleep 0.1; done"));
    // A desktop's own word on where the documents are must not reach it.
    copy.give(QStringLiteral("tessel"),
              QStringLiteral("echo \"${XDG_CONFIG_HOME-none}\" >>\"$LOG\"\n"
                             "cat \"$HOME/saved\" >>\"$LOG\"\n"
                             "echo saved >\"$HOME/saved\""));
    copy.give(QStringLiteral("cmake"), QStringLiteral("mkdir -p build\n"
                                                      "ln -sfn \"$PATH\" build/release"));
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":0"));
    environment.insert(QStringLiteral("HOME"), QStringLiteral("/nowhere"));
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), QStringLiteral("/nowhere/config"));
    for (int start = 1; start <= 2; ++start) {
        const ScriptRun run =
            copy.run(QStringLiteral("demo"), {QStringLiteral("--interactive")}, environment);
        QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    }
    QCOMPARE(copy.log(), QStringLiteral("none\nnone\nsaved\n"));
}

void TestScripts::buildIsAsStrictAsItIsAskedToBe_data()
{
    QTest::addColumn<QString>("preset");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("strict");
    QTest::newRow("release shows warnings") << "release" << QString() << "OFF";
    QTest::newRow("release on demand") << "release"
                                       << "ON"
                                       << "ON";
    QTest::newRow("dev takes them as errors") << "dev" << QString() << "ON";
    QTest::newRow("dev whatever is asked") << "dev"
                                           << "OFF"
                                           << "ON";
}

void TestScripts::buildIsAsStrictAsItIsAskedToBe()
{
    QFETCH(const QString, preset);
    QFETCH(const QString, asked);
    QFETCH(const QString, strict);
    QCOMPARE(cmakeCallsOfBuild(preset, asked, QString()),
             QStringLiteral("cmake --preset %1 -DTESSEL_WERROR=%2\n"
                            "cmake --build --preset %1\n")
                 .arg(preset, strict));
}

void TestScripts::buildForgetsHowStrictAnEarlierOneWas()
{
    QCOMPARE(cmakeCallsOfBuild(QStringLiteral("release"), {}, QStringLiteral("ON")),
             QStringLiteral("cmake --preset release -DTESSEL_WERROR=OFF\n"
                            "cmake --build --preset release\n"));
}

void TestScripts::buildDoesNotConfigureTwice()
{
    QCOMPARE(cmakeCallsOfBuild(QStringLiteral("release"), {}, QStringLiteral("OFF")),
             QStringLiteral("cmake --build --preset release\n"));
}

void TestScripts::packagesAreMadeOnDebianAlone()
{
    const ScriptCopy copy;
    const ScriptRun run = copy.run(QStringLiteral("package"), {});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.errors, QStringLiteral("package: Debian's packages are made on Debian: "
                                        "there is no apt-get\n"));
}

void TestScripts::packageIsTriedByRootAlone()
{
    ScriptCopy copy;
    copy.givePackages(true);
    copy.giveUser(true);
    copy.give(QStringLiteral("cmake"), QStringLiteral("echo \"cmake $*\" >>\"$LOG\""));
    const ScriptRun run = copy.run(QStringLiteral("package"), {QStringLiteral("--test")});
    QCOMPARE(run.exitCode, 77);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.errors, QStringLiteral("package: a system of its own takes root's rights\n"));
    QCOMPARE(copy.log(), QString());
}

void TestScripts::packageIsNotMadeForATrialThatIsRefused_data()
{
    QTest::addColumn<QString>("unshare");
    QTest::addColumn<QString>("says");
    QTest::newRow("mounts") << "exit 1"
                            << "a system of its own takes mounts and devices, which are refused "
                               "here";
    QTest::newRow("networks") << "exit 0"
                              << "without networks of its own the demo cannot be played: "
                                 "with-network: the program 'ip' is missing";
}

void TestScripts::packageIsNotMadeForATrialThatIsRefused()
{
    QFETCH(const QString, unshare);
    QFETCH(const QString, says);
    ScriptCopy copy;
    copy.givePackages(true);
    copy.give(QStringLiteral("id"), QStringLiteral("echo 0"));
    copy.give(QStringLiteral("unshare"), unshare);
    copy.give(QStringLiteral("cmake"), QStringLiteral("echo \"cmake $*\" >>\"$LOG\""));
    const ScriptRun run = copy.run(QStringLiteral("package"), {QStringLiteral("--test")});
    QCOMPARE(run.exitCode, 77);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.errors, QStringLiteral("package: %1\n").arg(says));
    QCOMPARE(copy.log(), QString());
}

void TestScripts::packageIsMadeOfWhatIsDelivered()
{
    ScriptCopy copy;
    copy.givePackages(true);
    copy.give(QStringLiteral("cmake"), QStringLiteral("echo \"cmake $*\" >>\"$LOG\"\n"
                                                      "[ \"$1\" != --build ]"));
    copy.run(QStringLiteral("package"), {});
    QCOMPARE(copy.log(), QStringLiteral("cmake --preset release -DTESSEL_WERROR=OFF\n"
                                        "cmake --build --preset release --target delivered\n"));
}

void TestScripts::whatIsNotReadyIsNotReleased_data()
{
    QTest::addColumn<QString>("git");
    QTest::addColumn<QByteArray>("changes");
    QTest::addColumn<QString>("message");
    const QByteArray told("## 2.0.0 - 2030-01-31\n");
    const QString noSection = QStringLiteral("CHANGELOG.md has no section \"## 2.0.0 - <date>\"");
    QTest::newRow("no clone") << "echo 'git: not mine' >&2; exit 128" << told
                              << "what is in a version stands in git, which reads no clone here";
    QTest::newRow("a changed file") << "[ \"$1\" != status ] || echo ' M a'" << told
                                    << "not everything is committed (git status)";
    QTest::newRow("another version's changes")
        << "true" << QByteArray("## 2.0.01 - 2030-01-31\n") << noSection;
    QTest::newRow("changes without a date") << "true" << QByteArray("## 2.0.0\n") << noSection;
}

void TestScripts::whatIsNotReadyIsNotReleased()
{
    QFETCH(const QString, git);
    QFETCH(const QByteArray, changes);
    QFETCH(const QString, message);
    ScriptCopy copy;
    leaveClone(copy, changes);
    copy.give(QStringLiteral("git"), git);
    const QStringList before = copy.leftBehind();
    const ScriptRun run = copy.run(QStringLiteral("release"), {});
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, QString());
    // What git says of it comes before.
    const QString gitsOwn = git.contains(u"exit") ? QStringLiteral("git: not mine\n") : QString();
    QCOMPARE(run.errors, gitsOwn + QStringLiteral("release: %1\n").arg(message));
    QCOMPARE(copy.leftBehind(), before);
}

void TestScripts::releaseIsMadeOfACleanClone_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("made");
    const QStringList made = words("tessel-2.0.0.tar.xz tessel_2.0.0.deb");
    QTest::newRow("for Debian") << QStringList() << made;
    QTest::newRow("for Windows too")
        << words("--qt qt") << made + words("tessel-2.0.0-setup.exe tessel-2.0.0-windows.zip");
}

void TestScripts::releaseIsMadeOfACleanClone()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QStringList, made);
    ScriptCopy copy;
    leaveClone(copy, "## 2.0.0 - 2030-01-31\n");
    leaveQt(copy, "6.4.2");
    giveWindowsTools(copy, QStringLiteral("6.4.2"));
    giveReleaseTools(copy);
    copy.leave(QStringLiteral("build/artefacts/tessel_1.0.0.deb"), "of an earlier version");
    const ScriptRun run = copy.run(QStringLiteral("release"), arguments);
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QCOMPARE(copy.read(QStringLiteral("build/artefacts/tessel_2.0.0.deb")), "ON, clean-clone\n");
    const QByteArray sums = copy.read(QStringLiteral("build/artefacts/SHA256SUMS"));
    QCOMPARE(sums.count('\n'), made.size());
    for (const QString& file : made) {
        QVERIFY2(sums.contains("  " + file.toUtf8() + '\n'), qPrintable(file));
    }
    QCOMPARE(run.output.contains(u"Nothing for Windows"), arguments.isEmpty());
}

void TestScripts::aWrongQtIsToldBeforeAnythingIsReleased()
{
    ScriptCopy copy;
    leaveClone(copy, "## 2.0.0 - 2030-01-31\n");
    leaveQt(copy, "6.10.0");
    giveWindowsTools(copy, QStringLiteral("6.4.2"));
    giveReleaseTools(copy);
    const QString earlier = QStringLiteral("build/artefacts/tessel_1.0.0.deb");
    copy.leave(earlier, "of an earlier version");
    const ScriptRun run = copy.run(QStringLiteral("release"), words("--qt qt"));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.startsWith(u"windows: this computer's own Qt is 6.4.2"),
             qPrintable(run.errors));
    QCOMPARE(copy.read(earlier), "of an earlier version");
}

void TestScripts::windowsIsBuiltAgainstAQtForItAlone_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("says");
    const auto row = [](const char* name, const char* folder, const char* missing,
                        const char* version, const char* says) {
        QTest::newRow(name) << QString::fromLatin1(folder) << QString::fromLatin1(missing)
                            << QString::fromLatin1(version) << QString::fromLatin1(says);
    };
    row("none", "", "", "6.4.2", "--qt wants the folder of a Qt for MinGW");
    row("not there", "nowhere", "", "6.4.2", "nowhere: there is no such folder");
    row("no Qt", "script", "", "6.4.2", "script: there is no Qt 6 in it");
    row("of Linux", "qt", "bin/Qt6Core.dll", "6.4.2", "qt: this is no Qt for MinGW");
    row("of another compiler", "qt", "lib/libQt6Core.a", "6.4.2", "qt: this is no Qt for MinGW");
    row("too old", "qt", "", "6.3.2", "qt: this is Qt 6.3.2, and 6.4 or later is wanted");
}

void TestScripts::windowsIsBuiltAgainstAQtForItAlone()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, missing);
    QFETCH(const QString, version);
    QFETCH(const QString, says);
    ScriptCopy copy;
    copy.givePackages(true);
    leaveQt(copy, version.toUtf8(), QStringLiteral("qt"), missing);
    const ScriptRun run = copy.run(QStringLiteral("windows"), {QStringLiteral("--qt"), folder});
    QVERIFY(run.exitCode == 64 || run.exitCode == 66);
    QCOMPARE(run.output, QString());
    QCOMPARE(run.errors, QStringLiteral("windows: %1\n").arg(says));
    QCOMPARE(copy.log(), QString());
}

void TestScripts::windowsIsBuiltWithToolsThatAreNotOlder()
{
    ScriptCopy copy;
    leaveQt(copy, "6.10.0");
    giveWindowsTools(copy, QStringLiteral("6.4.2"));
    const ScriptRun run = copy.run(QStringLiteral("windows"), words("--qt qt"));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.errors, QStringLiteral("windows: this computer's own Qt is 6.4.2, and one not "
                                        "older than 6.10.0 is wanted: name it by QT_HOST_PATH\n"));
}

void TestScripts::windowsIsConfiguredOncePerQt()
{
    ScriptCopy copy;
    leaveQt(copy, "6.4.2");
    giveWindowsTools(copy, QStringLiteral("6.4.2"));
    copy.give(QStringLiteral("cmake"), QStringLiteral("echo \"cmake $1 $2\" >>\"$LOG\"\n"
                                                      "[ \"$1\" = --build ] || {\n"
                                                      "mkdir -p build/windows\n"
                                                      "echo >build/windows/build.ninja\n"
                                                      "for each; do echo \"${each#-D}\"; done |\n"
                                                      "sed 's/=/:UNINITIALIZED=/' "
                                                      ">build/windows/CMakeCache.txt\n"
                                                      "}"));
    copy.run(QStringLiteral("windows"), words("--qt qt tessel"));
    copy.run(QStringLiteral("windows"), words("--qt qt tessel"));
    QCOMPARE(copy.log(), QStringLiteral("cmake --preset windows\n"
                                        "cmake --build --preset\n"
                                        "cmake --build --preset\n"));
    const QString anew = copy.log().section(u'\n', 0, 1) + u'\n';
    QString expected = copy.log() + anew;
    leaveQt(copy, "6.4.2", QStringLiteral("other"));
    copy.run(QStringLiteral("windows"), words("--qt other tessel"));
    QCOMPARE(copy.log(), expected);
    // The same, with tools from elsewhere.
    giveWindowsTools(copy, QStringLiteral("6.4.2"), QStringLiteral("/newer"));
    copy.run(QStringLiteral("windows"), words("--qt other tessel"));
    QCOMPARE(copy.log(), expected + anew);
}

TESSEL_TEST_MAIN(TestScripts)
#include "tst_scripts.moc"
