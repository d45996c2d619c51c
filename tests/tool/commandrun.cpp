#include "commandrun.h"

#include "arguments.h"
#include "displaywidth.h"
#include "terminal.h"
#include "texttable.h"

#include <QBuffer>
#include <QFile>
#include <QTest>

CommandRun runCommand(const Command& command, const QStringList& arguments)
{
    const Arguments read(command.syntax(), arguments);
    if (!read.fault().isEmpty()) {
        QTest::qFail(qPrintable(read.fault()), __FILE__, __LINE__);
        return {};
    }
    QBuffer data;
    QBuffer talk;
    data.open(QIODevice::WriteOnly);
    talk.open(QIODevice::WriteOnly);
    Terminal terminal(&data, &talk);
    const ExitCode code = command.run(read, terminal);
    return {code, QString::fromUtf8(data.data()), QString::fromUtf8(talk.data())};
}

QByteArray sampleHallText()
{
    return R"({
  "rooms": ["11112222", "11112222", "11112222", "11112222",
            "33334444", "33334444", "33334444", "........"],
  "devices": [
    {"address": "127.0.1.1", "model": "PX-HB", "mac": "02:1A:FF:00:00:01", "room": 1,
     "label": "Hub-1", "renamed": true},
    {"address": "127.0.1.2", "model": "PX-HB", "mac": "02:1A:FF:00:00:02", "room": 2},
    {"address": "127.0.1.3", "model": "PX-HB", "mac": "02:1A:FF:00:00:03", "room": 3},
    {"address": "127.0.1.4", "model": "PX-HB", "mac": "02:1A:FF:00:00:04", "room": 4},
    {"address": "127.0.1.5", "model": "PX-NDE", "mac": "02:1A:FF:00:00:05", "room": 1},
    {"address": "127.0.1.6", "model": "LQA4-08S", "mac": "02:1A:FF:00:00:06", "room": 1},
    {"address": "127.0.1.7", "model": "LQA4-08S", "mac": "02:1A:FF:00:00:07", "room": 2},
    {"address": "127.0.1.8", "model": "PNB-QE7", "mac": "02:1A:FF:00:00:08"}
  ],
  "layouts": [
    {"rooms": "1+2/3/4", "combined": [
      {"rooms": "1+2", "preset-name": "Big \"hall\"", "removed": ["127.0.1.2"], "right": ["127.0.1.7"]},
      {"rooms": "4", "preset-name": "Small"}]},
    {"rooms": "1/2/3/4"}
  ]
})";
}

void putFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray fileAt(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        QTest::qFail(qPrintable(path), __FILE__, __LINE__);
    }
    return file.readAll();
}

QByteArray changed(QByteArray text, const QByteArray& before, const QByteArray& after)
{
    if (text.count(before) != 1) {
        QTest::qFail(before.constData(), __FILE__, __LINE__);
    }
    return text.replace(before, after);
}

QString lineThatIsTooWide(const QString& text)
{
    for (const QString& line : text.split(u'\n')) {
        if (displayWidth(line) > TextTable::usualWidth) {
            return line;
        }
    }
    return {};
}

QString wordsForMissingFile()
{
#ifdef Q_OS_WIN
    return QStringLiteral("File not found");
#else
    return QStringLiteral("No such file or directory");
#endif
}
