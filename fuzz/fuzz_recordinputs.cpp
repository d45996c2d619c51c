// What a search or a walk has written, as it is handed to the record of a hall.
//
// - Whatever the text, reading it ends soon, with a value or with a fault of one line.
// - What was read is held against a hall without harm: every hub has an outcome for every layout,
//   and whoever is named as a stranger is not in the hall.
// - A walk is right only if every outcome is.
// - No name in it acts on a page.
#include "devicefindings.h"
#include "fuzztarget.h"
#include "guiapplication.h"
#include "hallhubs.h"
#include "halljson.h"
#include "recordmarkup.h"
#include "walkfindings.h"

#include <algorithm>

namespace {

const DocumentData& smallHall()
{
    static const std::unique_ptr<HallDocument> hall =
        readHallJson(R"({"rooms": ["12......", "........", "........", "........",
                                   "........", "........", "........", "........"],
            "devices": [
                {"address": "10.0.0.1", "model": "PX-HB", "mac": "02:00:00:00:00:01", "room": 1},
                {"address": "10.0.0.2", "model": "PX-HB", "mac": "02:00:00:00:00:02", "room": 2}],
            "layouts": [{"rooms": "1/2"}, {"rooms": "1+2"}]})")
            .hall;
    return hall->data();
}

void examineFault(const QString& fault)
{
    require(!fault.contains(u'\n'), "a fault is one line");
}

void examineStrangers(const QStringList& strangers)
{
    for (const QString& stranger : strangers) {
        require(smallHall().devices.find(stranger) == nullptr, "a stranger is not in the hall");
    }
}

void examineName(const QString& name)
{
    const QString shown = RecordMarkup::escaped(name);
    const bool isPlain = std::none_of(shown.begin(), shown.end(), [](QChar letter) {
        return letter == u'<' || letter == u'>' || letter == u'"' ||
               letter.category() == QChar::Other_Control;
    });
    require(isPlain, "a name acts on nothing");
}

void examineSearch(const FoundReading& reading)
{
    examineFault(reading.fault);
    const DeviceFindings findings(smallHall(), reading.devices);
    examineStrangers(findings.strangers());
    for (const QString& remark : findings.remarks()) {
        examineName(remark);
    }
    for (const DeviceData& device : smallHall().devices.all()) {
        examineName(findings.of(device).firmware);
        examineName(findings.of(device).serialNumber);
    }
}

void examineWalk(const WalkReading& reading)
{
    examineFault(reading.fault);
    const WalkFindings findings(smallHall(), reading);
    examineStrangers(findings.strangers());
    bool isOk = true;
    for (const SceneInfo& layout : smallHall().scenes) {
        for (const DeviceData& hub : placedHubs(smallHall())) {
            const QString outcome = findings.words(layout, hub);
            require(!outcome.isEmpty(), "every hub has an outcome for every layout");
            isOk = isOk && outcome == u"ok";
        }
    }
    require(isOk || !findings.isRight(), "a walk is right only if every outcome is");
    for (const QString& line : findings.contradictions() + findings.notBack()) {
        examineName(line);
    }
}

} // namespace

void examine(const QByteArray& input)
{
    provideGuiApplication();
    examineSearch(readFoundJson(input));
    examineWalk(readWalkJson(input));
}
