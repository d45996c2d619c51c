#include "reportcommand.h"

#include "arguments.h"
#include "hallfile.h"
#include "hallrecord.h"
#include "inputfile.h"
#include "outputfile.h"
#include "recordfonts.h"
#include "recordhtml.h"
#include "recordpdf.h"
#include "terminal.h"

#include <QFileInfo>

namespace {

QString output()
{
    return QStringLiteral("o");
}

QString paper()
{
    return QStringLiteral("paper");
}

QString found()
{
    return QStringLiteral("found");
}

QString walk()
{
    return QStringLiteral("walk");
}

QString date()
{
    return QStringLiteral("date");
}

bool isPdf(const QString& path)
{
    return path.endsWith(u".pdf", Qt::CaseInsensitive);
}

bool isHtml(const QString& path)
{
    return path.endsWith(u".html", Qt::CaseInsensitive) ||
           path.endsWith(u".htm", Qt::CaseInsensitive);
}

/// The paper that is asked for; nothing when there is no such one.
std::optional<QPageSize::PageSizeId> paperOf(const Arguments& arguments)
{
    const QString name = arguments.value(paper()).toLower();
    if (name.isEmpty() || name == u"a4") {
        return QPageSize::A4;
    }
    return name == u"letter" ? std::optional(QPageSize::Letter) : std::nullopt;
}

QDate givenDate(const Arguments& arguments)
{
    return QDate::fromString(arguments.value(date()), QStringLiteral("yyyy-MM-dd"));
}

/// What is wrong with the arguments, before anything is read; empty when nothing is.
QString faultOf(const Arguments& arguments)
{
    const QString path = arguments.value(output());
    if (!isPdf(path) && !isHtml(path)) {
        return path + QStringLiteral(": its name ends neither in .html nor in .pdf");
    }
    if (!paperOf(arguments)) {
        return QStringLiteral("report: --paper is neither a4 nor letter: ") +
               arguments.value(paper());
    }
    if (arguments.has(date()) && !givenDate(arguments).isValid()) {
        return QStringLiteral("report: --date is no day such as 2026-11-22: ") +
               arguments.value(date());
    }
    return outputFault(path,
                       {arguments.operand(0), arguments.value(found()), arguments.value(walk())});
}

/// Reads the file that an option names, if it is given, by `read`; a fault with the file's name.
template <typename Reading>
std::optional<Reading> readOption(const QString& path, Reading (*read)(const QByteArray&),
                                  QString& fault)
{
    if (path.isEmpty() || !fault.isEmpty()) {
        return std::nullopt;
    }
    QByteArray text;
    QString reason = readInputFile(path, text);
    Reading reading = reason.isEmpty() ? read(text) : Reading();
    reason += reading.fault;
    if (!reason.isEmpty()) {
        fault = path + QStringLiteral(": ") + reason;
    }
    return reading;
}

void setDate(HallRecord& record, QDate day, const char* words)
{
    if (!record.date.isValid() && day.isValid()) {
        record.date = day;
        record.dateWords = QString::fromLatin1(words);
    }
}

/// Fills the record with what the arguments name; one line of a fault, or nothing.
QString gather(HallRecord& record, const Arguments& arguments)
{
    QString fault;
    const auto search = readOption(arguments.value(found()), readFoundJson, fault);
    const auto walked = readOption(arguments.value(walk()), readWalkJson, fault);
    const QFileInfo file(arguments.operand(0));
    record.fileName = file.fileName();
    record.paper = paperOf(arguments).value_or(QPageSize::A4);
    setDate(record, givenDate(arguments), "the day that was given");
    if (walked) {
        record.walk.emplace(record.hall->data(), *walked);
        setDate(record, walked->begun.date(), "the day of the walk");
    }
    if (search) {
        record.found.emplace(record.hall->data(), search->devices);
        setDate(record, search->date, "the day of the search");
    }
    setDate(record, file.lastModified().date(), "the day on which the configuration was stored");
    return fault;
}

QByteArray bytesOf(const HallRecord& record, bool isWantedAsPdf)
{
    const QString html = recordHtml(record);
    return isWantedAsPdf ? recordPdf(html, {QStringLiteral("Hall record: ") + record.fileName,
                                            record.fileName, record.date, record.paper})
                         : html.toUtf8();
}

ExitCode writeRecord(const HallRecord& record, const QString& path, Terminal& terminal)
{
    const QString unwritten = writeWholeFile(path, bytesOf(record, isPdf(path)));
    if (!unwritten.isEmpty()) {
        terminal.say(unwritten);
        return ExitCode::CouldNotBeTried;
    }
    const QStringList faults = recordFaults(record);
    terminal.say(leftOut(record) + faults + walkFailures(record));
    return faults.isEmpty() ? ExitCode::AllIsWell : ExitCode::SomethingIsNot;
}

} // namespace

QString ReportCommand::name() const
{
    return QStringLiteral("report");
}

QString ReportCommand::summary() const
{
    return QStringLiteral("Writes the record of a hall to hand over");
}

QString ReportCommand::details() const
{
    return QStringLiteral(
        "The record shows the hall as the wizard draws it, the devices of each room, every layout "
        "with what each combined room has, and the names of the presets: as one HTML file that "
        "needs no other, or as a PDF, by the ending of the output's name.\n"
        "Firmware and serial numbers come from a search (find --json), the proof that layouts "
        "recall from a walk (walk -o); what neither tells is \"not recorded\".\n"
        "The same input gives the same bytes. The day that the record tells of is the one given, "
        "else that of the walk, of the search, or of the file.");
}

CommandSyntax ReportCommand::syntax() const
{
    return {{{QStringLiteral("FILE"), QStringLiteral("the configuration file")}},
            {{{output()},
              QStringLiteral("the record to write, an .html or a .pdf"),
              QStringLiteral("RECORD"),
              false,
              true},
             {{paper()}, QStringLiteral("a4 (as usual) or letter"), QStringLiteral("SIZE")},
             {{found()}, QStringLiteral("what \"find --json\" wrote"), QStringLiteral("FIND.json")},
             {{walk()}, QStringLiteral("what \"walk -o\" wrote"), QStringLiteral("RESULT.json")},
             {{date()}, QStringLiteral("the day that it tells of"), QStringLiteral("YYYY-MM-DD")}}};
}

ExitCode ReportCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const QString misled = faultOf(arguments);
    if (!misled.isEmpty()) {
        terminal.say(misled);
        return ExitCode::WrongUsage;
    }
    const HallReading reading = readHallFile(arguments.operand(0));
    HallRecord record;
    record.hall = reading.hall.get();
    QString fault = reading.hall == nullptr ? reading.fault : gather(record, arguments);
    if (fault.isEmpty() && !hasFonts()) {
        fault = QStringLiteral("this system has no fonts to write the record with; install some, "
                               "such as DejaVu");
    }
    if (!fault.isEmpty()) {
        terminal.say(fault);
        return ExitCode::CouldNotBeTried;
    }
    return writeRecord(record, arguments.value(output()), terminal);
}
