// A hall as JSON, as people write it.
//
// - Whatever the text, reading it ends soon, with a hall or with faults of one line each, never
//   both and never neither.
// - A hall lies within the limits of a configuration file: its file is read again as the same hall.
// - It is judged without harm, and drawn in no more than 80 columns.
// - Written as JSON and read again it is the same file, byte for byte.
#include "displaywidth.h"
#include "fuzztarget.h"
#include "guiapplication.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "halljson.h"
#include "halltext.h"
#include "resumefile.h"
#include "resumexml.h"

#include <QJsonDocument>

namespace {

// A combined room lists every device of its rooms, and there may be a hundred layouts: beyond this
// a hall is large rather than odd.
constexpr qsizetype maxDevices = 40;

void examineFaults(const QStringList& faults)
{
    for (const QString& fault : faults) {
        require(!fault.isEmpty(), "a fault says something");
    }
}

void examineFile(const QByteArray& bytes, const DocumentData& hall)
{
    const std::optional<ResumeFile> content = unpackResumeFile(bytes);
    require(content.has_value(), "the file of a hall is a file");
    require(content->scenes.size() == hall.scenes.size(), "every layout has its picture");
    const std::optional<SavedWork> work = readResumeXml(content->xml);
    require(work && !work->hasForeignElement, "the file of a hall is read");
    require(writeResumeXml(*work) == content->xml, "the file of a hall reads the same");
}

void examineText(const QString& text)
{
    for (const QString& line : text.split(u'\n')) {
        require(displayWidth(line) <= 80, "a hall fits a terminal");
    }
}

} // namespace

void examine(const QByteArray& input)
{
    provideGuiApplication();
    const HallJsonReading reading = readHallJson(input);
    require((reading.hall != nullptr) == reading.faults.isEmpty(), "there is a hall or a fault");
    examineFaults(reading.faults);
    if (reading.hall == nullptr || reading.hall->data().devices.size() > maxDevices) {
        return;
    }
    examineFaults(hallFaults(*reading.hall));
    examineText(hallText(*reading.hall));
    const QByteArray bytes = packHall(reading.hall->data());
    examineFile(bytes, reading.hall->data());
    const QByteArray written = QJsonDocument(writeHallJson(reading.hall->data())).toJson();
    const HallJsonReading again = readHallJson(written);
    require(again.hall != nullptr, "what was written is read again");
    require(packHall(again.hall->data()) == bytes, "there and back gives the same bytes");
}
