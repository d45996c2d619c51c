#include "halljson.h"

#include "halljsonkeys.h"
#include "halllimits.h"
#include "hallparts.h"
#include "hallpicture.h"
#include "jsonfields.h"
#include "jsontext.h"
#include "pngstream.h"
#include "resumecells.h"
#include "roomgroup.h"
#include "roomtext.h"
#include "wizardpage.h"

#include <QImage>

#include <algorithm>
#include <limits>

namespace {

namespace Key = HallJsonKey;

constexpr int maxNumber = std::numeric_limits<int>::max();
constexpr int maxThumbnailSide = 256;

/// The file drops a layout of a longer text, and with it what was chosen for it.
void judgeLength(JsonFields& layout, const QString& text)
{
    if (text.size() > HallLimits::maxReadLayoutLength) {
        layout.fault(Key::rooms(), QStringLiteral("%1 characters; a file holds %2")
                                       .arg(text.size())
                                       .arg(HallLimits::maxReadLayoutLength));
    }
}

/// Reads the parts of a hall, each after those that it depends on.
class Reader
{
public:
    explicit Reader(const QJsonValue& root)
        : m_root(root, QString(), &m_faults)
    {
    }

    HallJsonReading read()
    {
        const int version = m_root.number(Key::version(), 1, maxNumber, hallJsonVersion);
        if (version != hallJsonVersion) {
            // Its other keys may mean something else.
            m_root.fault(Key::version(),
                         QStringLiteral("version %1 is not known here").arg(version));
            return {nullptr, m_faults, nullptr};
        }
        readWindow();
        readDevices();
        m_areRoomsSound = isSound(&Reader::readRooms);
        m_areLayoutsSound = isSound(&Reader::readLayouts);
        keepWhatIsSound();
        readSets();
        const int usual = stepNumber(m_hall->data().scenes.isEmpty() ? WizardPage::DeviceLocation
                                                                     : WizardPage::Install);
        m_hall->data().pageIndex = m_root.number(Key::step(), 1, pageCount, usual) - 1;
        m_exact.finish();
        m_root.finish();
        return m_faults.isEmpty() ? HallJsonReading{std::move(m_hall), {}, nullptr}
                                  : HallJsonReading{nullptr, m_faults, remains()};
    }

private:
    bool isSound(void (Reader::*readPart)());
    void keepWhatIsSound();
    std::unique_ptr<HallDocument> remains();
    void readWindow();
    void readDevices();
    void readRooms();
    void readExactRooms();
    void readLayouts();
    void readExactLayouts();
    QString readLayoutText(JsonFields& layout);
    void readCombined(JsonFields& layout, const QString& text);
    void readChoice(JsonFields& combined, const QList<QList<int>>& groups, QSet<int>& chosen);
    QSet<QString> addressesIn(JsonFields& combined, const QString& key, const QList<int>& rooms);
    bool areSetsExact() { return m_exact.has(Key::sets()) || m_exact.has(Key::presets()); }
    void readSets();
    void readExactSets();
    void readExactPresets();
    QPixmap readPicture(JsonFields& layout, const QString& text);

    DocumentData& hall() { return m_hall->data(); }

    QStringList m_faults;
    JsonFields m_root;
    JsonFields m_exact{m_root.has(Key::exact()) ? m_root.value(Key::exact())
                                                : QJsonValue(QJsonObject()),
                       u'.' + Key::exact(), &m_faults};
    std::unique_ptr<HallDocument> m_hall = std::make_unique<HallDocument>();
    HallChoices m_choices;
    int m_setCount = 0; ///< of the layouts read so far
    QList<DeviceData> m_soundDevices;
    QList<SceneInfo> m_soundLayouts; ///< without pictures
    bool m_areRoomsSound = false;
    bool m_areLayoutsSound = false;
};

/// Reads a part; whether it has no fault of its own.
bool Reader::isSound(void (Reader::*readPart)())
{
    const qsizetype former = m_faults.size();
    (this->*readPart)();
    return m_faults.size() == former;
}

/// Leaves out what has faults, and what would seem to have some because of them.
void Reader::keepWhatIsSound()
{
    if (m_faults.isEmpty()) {
        return;
    }
    const bool areRoomsKnown =
        m_areRoomsSound && (m_root.has(Key::rooms()) || m_exact.has(Key::rooms()));
    hall().devices = DeviceRecords();
    for (DeviceData device : std::as_const(m_soundDevices)) {
        device.roomNumber = areRoomsKnown ? device.roomNumber : 0;
        hall().devices.append(device);
    }
    hall().rooms = areRoomsKnown ? hall().rooms : QList<RoomInfo>();
    hall().scenes = areRoomsKnown ? m_soundLayouts : QList<SceneInfo>();
}

std::unique_ptr<HallDocument> Reader::remains()
{
    // Once more: unknown keys are found last.
    keepWhatIsSound();
    if (!m_areLayoutsSound || areSetsExact() || hall().scenes.isEmpty()) {
        hall().deviceSets.clear();
        hall().presets.clear();
    }
    return std::move(m_hall);
}

void Reader::readWindow()
{
    if (m_root.has(Key::window())) {
        JsonFields window(m_root.value(Key::window()), u'.' + Key::window(), &m_faults);
        hall().windowSize = {window.number(Key::width(), 0, HallLimits::maxReadWindowSide, 0),
                             window.number(Key::height(), 0, HallLimits::maxReadWindowSide, 0)};
        window.finish();
    }
}

void Reader::readDevices()
{
    const QJsonArray devices = m_root.list(Key::devices());
    for (qsizetype index = 0; index < devices.size(); ++index) {
        const qsizetype former = m_faults.size();
        JsonFields fields(devices.at(index), itemPlace(u'.' + Key::devices(), index), &m_faults);
        DeviceData device;
        device.ipAddress = fields.requiredText(Key::address());
        device.label = fields.text(Key::label(), device.ipAddress);
        device.macAddress = fields.text(Key::mac());
        device.modelName = fields.requiredText(Key::model());
        device.roomNumber = fields.number(Key::room(), 0, RoomInfo::maxRooms, 0);
        device.labelModified = fields.flag(Key::renamed());
        fields.finish();
        hall().devices.append(device);
        if (m_faults.size() == former) {
            m_soundDevices.append(device);
        }
    }
}

void Reader::readRooms()
{
    const QStringList rows = m_root.texts(Key::rooms());
    const QString fault = rows.isEmpty() ? QString() : RoomText::fault(rows);
    if (!fault.isEmpty()) {
        m_root.fault(Key::rooms(), fault);
    } else if (!rows.isEmpty()) {
        hall().rooms = RoomText::read(rows);
    }
    if (m_exact.has(Key::rooms())) {
        readExactRooms();
    }
}

void Reader::readExactRooms()
{
    hall().rooms.clear();
    const QJsonArray rooms = m_exact.list(Key::rooms());
    for (qsizetype index = 0; index < rooms.size(); ++index) {
        const QString place = itemPlace(m_exact.place() + u'.' + Key::rooms(), index);
        JsonFields fields(rooms.at(index), place, &m_faults);
        const int number = fields.number(Key::number(), 0, RoomInfo::maxRooms, 0);
        const bool isNew =
            std::none_of(hall().rooms.begin(), hall().rooms.end(),
                         [number](const RoomInfo& room) { return room.number == number; });
        if (!isNew) {
            fields.fault(Key::number(), QStringLiteral("an earlier room has this number"));
        }
        const QString text = fields.text(Key::cells());
        const QList<QPoint> cells = readCells(text);
        if (writeCells(cells) != text) {
            fields.fault(Key::cells(),
                         QStringLiteral("these are no cells such as \"{0,0}/{0,1}\""));
        }
        hall().rooms.append({number, cells});
        fields.finish();
    }
}

void Reader::readLayouts()
{
    const QJsonArray layouts = m_root.list(Key::layouts());
    if (layouts.size() > HallLimits::maxReadLayoutCount) {
        m_root.fault(Key::layouts(), QStringLiteral("too many"));
        return;
    }
    QStringList texts;
    for (qsizetype index = 0; index < layouts.size(); ++index) {
        JsonFields layout(layouts.at(index), itemPlace(u'.' + Key::layouts(), index), &m_faults);
        const qsizetype former = m_faults.size();
        const int number = int(index) + 1;
        layout.number(Key::number(), number, number, number);
        texts.append(readLayoutText(layout));
        judgeLength(layout, texts.last());
        readCombined(layout, texts.last());
        layout.finish();
        if (m_faults.size() == former) {
            m_soundLayouts.append({number, texts.last(), QPixmap()});
        }
    }
    if (m_faults.isEmpty()) {
        hall().scenes = layoutsOf(texts, hall().rooms);
    }
    if (m_exact.has(Key::layouts())) {
        readExactLayouts();
    }
}

/// The text as the wizard writes it, whatever the order in which rooms are named.
QString Reader::readLayoutText(JsonFields& layout)
{
    const QString text = layout.requiredText(Key::rooms());
    const QList<QList<int>> combined = combinedRoomsIn(text);
    const bool isNumbers = std::all_of(combined.begin(), combined.end(), [](const auto& rooms) {
        return std::all_of(rooms.begin(), rooms.end(), [](int room) { return room > 0; });
    });
    if (!text.isEmpty() && !isNumbers) {
        layout.fault(Key::rooms(),
                     QStringLiteral("\"%1\" is no layout such as \"1+2/3\"").arg(text));
    }
    return isNumbers ? layoutText(combined) : QString();
}

void Reader::readCombined(JsonFields& layout, const QString& text)
{
    const QList<QList<int>> groups = combinedRoomsIn(text);
    const QJsonArray combined = layout.list(Key::combined());
    const QString list = layout.place() + u'.' + Key::combined();
    QSet<int> chosen;
    for (qsizetype index = 0; index < combined.size(); ++index) {
        JsonFields fields(combined.at(index), itemPlace(list, index), &m_faults);
        readChoice(fields, groups, chosen);
        fields.finish();
    }
    m_setCount += int(groups.size());
}

void Reader::readChoice(JsonFields& combined, const QList<QList<int>>& groups, QSet<int>& chosen)
{
    const QString text = combined.requiredText(Key::rooms());
    const auto named = [&text](const QList<int>& rooms) {
        return layoutText({rooms}) == layoutText(combinedRoomsIn(text));
    };
    const auto group = std::find_if(groups.begin(), groups.end(), named);
    const int place = int(group - groups.begin()) + 1;
    if (group == groups.end()) {
        combined.fault(Key::rooms(), QStringLiteral("unknown combined room \"%1\"").arg(text));
    } else if (chosen.contains(place)) {
        combined.fault(Key::rooms(), QStringLiteral("\"%1\" is there already").arg(text));
    }
    chosen.insert(place);
    const QList<int> rooms = group != groups.end() ? *group : QList<int>();
    m_choices.insert(m_setCount + place, {combined.text(Key::presetName()),
                                          addressesIn(combined, Key::removed(), rooms),
                                          addressesIn(combined, Key::right(), rooms)});
}

QSet<QString> Reader::addressesIn(JsonFields& combined, const QString& key, const QList<int>& rooms)
{
    QSet<QString> addresses;
    for (const QString& address : combined.texts(key)) {
        const DeviceData* device = hall().devices.find(address);
        if (device == nullptr || !rooms.contains(device->roomNumber)) {
            const QString reason = device == nullptr ? QStringLiteral("unknown device %1")
                                                     : QStringLiteral("%1 is not in these rooms");
            combined.fault(key, reason.arg(address));
        }
        addresses.insert(address);
    }
    return addresses;
}

void Reader::readExactLayouts()
{
    hall().scenes.clear();
    m_soundLayouts.clear();
    const QJsonArray layouts = m_exact.list(Key::layouts());
    if (layouts.size() > HallLimits::maxReadLayoutCount) {
        m_exact.fault(Key::layouts(), QStringLiteral("too many"));
        return;
    }
    QSet<int> numbers;
    for (qsizetype index = 0; index < layouts.size(); ++index) {
        const QString place = itemPlace(m_exact.place() + u'.' + Key::layouts(), index);
        JsonFields fields(layouts.at(index), place, &m_faults);
        SceneInfo layout;
        layout.number = fields.number(Key::number(), -maxNumber, maxNumber, 0);
        layout.roomGroup = fields.text(Key::rooms());
        judgeLength(fields, layout.roomGroup);
        layout.thumbnail = readPicture(fields, layout.roomGroup);
        if (numbers.contains(layout.number)) {
            fields.fault(Key::number(), QStringLiteral("an earlier layout has this number"));
        }
        numbers.insert(layout.number);
        fields.finish();
        hall().scenes.append(layout);
    }
}

/// A picture that is not there is made; one that is empty stays so.
QPixmap Reader::readPicture(JsonFields& layout, const QString& text)
{
    if (!layout.has(Key::picture())) {
        return layoutPictureOf(hall().rooms, text);
    }
    const QByteArray bytes = QByteArray::fromBase64(layout.text(Key::picture()).toLatin1());
    const std::optional<PngExtent> png = measurePng(bytes);
    const QSize largest(maxThumbnailSide, maxThumbnailSide);
    const bool isThumbnail = png && png->size.boundedTo(largest) == png->size;
    const QImage image = isThumbnail ? QImage::fromData(bytes, "png") : QImage();
    if (image.isNull() && !bytes.isEmpty()) {
        layout.fault(Key::picture(), QStringLiteral("this is no small PNG picture"));
    }
    return QPixmap::fromImage(image);
}

void Reader::readSets()
{
    const QStringList notChosen = m_root.texts(Key::notChosen());
    for (const QString& what : notChosen) {
        if (what != Key::sets() && what != Key::presets()) {
            m_root.fault(Key::notChosen(),
                         QStringLiteral("\"%1\" is neither \"sets\" nor \"presets\"").arg(what));
        }
    }
    if (m_exact.has(Key::sets())) {
        readExactSets();
    } else if (!notChosen.contains(Key::sets())) {
        hall().deviceSets = deviceSetsOf(*m_hall, m_choices);
    }
    if (m_exact.has(Key::presets())) {
        readExactPresets();
    } else if (!notChosen.contains(Key::presets())) {
        hall().presets = presetsOf(*m_hall, m_choices);
    }
}

void Reader::readExactSets()
{
    const QJsonArray sets = m_exact.list(Key::sets());
    for (qsizetype index = 0; index < sets.size(); ++index) {
        const QString place = itemPlace(m_exact.place() + u'.' + Key::sets(), index);
        JsonFields fields(sets.at(index), place, &m_faults);
        const DeviceSetInfo record{fields.number(Key::set(), -maxNumber, maxNumber, 0),
                                   fields.number(Key::layout(), -maxNumber, maxNumber, 0),
                                   fields.text(Key::address()), fields.flag(Key::removed()),
                                   fields.text(Key::side(), QStringLiteral("L"))};
        fields.finish();
        if (!hall().deviceSets.append(record)) {
            fields.fault(Key::address(), QStringLiteral("this device is in this set already"));
        }
    }
}

void Reader::readExactPresets()
{
    const QJsonArray presets = m_exact.list(Key::presets());
    QSet<std::pair<int, int>> seen;
    for (qsizetype index = 0; index < presets.size(); ++index) {
        const QString place = itemPlace(m_exact.place() + u'.' + Key::presets(), index);
        JsonFields fields(presets.at(index), place, &m_faults);
        const PresetInfo preset{fields.number(Key::set(), -maxNumber, maxNumber, 0),
                                fields.number(Key::layout(), -maxNumber, maxNumber, 0),
                                fields.text(Key::name())};
        fields.finish();
        if (seen.contains({preset.deviceSetNumber, preset.sceneNumber})) {
            fields.fault(Key::set(), QStringLiteral("this set has a preset already"));
        }
        seen.insert({preset.deviceSetNumber, preset.sceneNumber});
        hall().presets.append(preset);
    }
}

} // namespace

HallJsonReading readHallJson(const QByteArray& text)
{
    QString fault;
    const QJsonObject root = readJsonText(text, fault);
    return fault.isEmpty() ? Reader(root).read() : HallJsonReading{nullptr, {fault}, nullptr};
}
