#include "deviceinforeceiver.h"
#include "identifysender.h"
#include "presetcommandsenders.h"
#include "testcase.h"
#include "textpeer.h"

#include <QSignalSpy>
#include <QTest>

#include <functional>
#include <memory>

/// Every text command against every way in which a device can answer it.
class TestTextFaults : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyMisbehaviourHasItsOutcomeAndIsGoneAtTheNextTry_data();
    void everyMisbehaviourHasItsOutcomeAndIsGoneAtTheNextTry();
};

namespace {

const QString peerAddress = QStringLiteral("127.72.1.1");

/// What a device says; the last answer is the one that goes wrong.
struct Conversation
{
    const char* name = "";
    QList<QByteArray> answers = {};
    const char* reporting = nullptr; ///< the signal; null: nothing is ever reported
    std::function<std::unique_ptr<SCPCommandSender>(const QHostAddress&)> make = {};
};

const QList<Conversation>& conversations()
{
    const QByteArray id = "OK devinfo deviceid \"1\"\n";
    const QByteArray preset = "OK sscurrent_ex config 3\n";
    static const QList<Conversation> list{
        {"identity",
         {id, id, "OK devinfo devicename \"n\"\n", "OK devinfo version \"v\"\n",
          "OK devinfo serialno \"s\"\n", preset},
         SIGNAL(deviceInfoReceived()),
         [](const QHostAddress& host) {
             return std::make_unique<DeviceInfoReceiver>(host, nullptr);
         }},
        {"identify",
         {"OK identify 3 3\n"},
         nullptr,
         [](const QHostAddress& host) { return std::make_unique<IdentifySender>(host, nullptr); }},
        {"recall",
         {"NOTIFY ssrecall_ex config 3\n"},
         SIGNAL(notifyPresetRecall(int)),
         [](const QHostAddress& host) {
             return std::make_unique<PresetRecallSender>(host, 3, nullptr);
         }},
        {"current preset",
         {preset},
         SIGNAL(notifyCurrentPreset(QString, int)),
         [](const QHostAddress& host) {
             return std::make_unique<CurrentPresetSender>(host, nullptr);
         }},
    };
    return list;
}

/// A misbehaviour: what arrives instead of the right answer, one arrival each, and the reports
/// that come of it. An identity is reported whatever its last answer says, once it is there.
struct TextFault
{
    const char* name = "";
    std::function<QList<QByteArray>(const QByteArray&)> arrivals = {};
    bool hangsUp = false;
    QStringList identity = {};
    QStringList recall = {};
    QStringList currentPreset = {};
};

QList<QByteArray> singleBytes(const QByteArray& answer)
{
    QList<QByteArray> bytes;
    for (const char byte : answer) {
        bytes.append(QByteArray(1, byte));
    }
    return bytes;
}

std::function<QList<QByteArray>(const QByteArray&)> withNumber(const QByteArray& number)
{
    return [number](QByteArray answer) { return QList{answer.replace("3\n", number + '\n')}; };
}

std::function<QList<QByteArray>(const QByteArray&)> always(const QList<QByteArray>& arrivals)
{
    return [arrivals](const QByteArray&) { return arrivals; };
}

const QList<TextFault>& faults()
{
    const QString none = QStringLiteral("");
    const QString zero = QStringLiteral("0");
    const QString three = QStringLiteral("3");
    using Answer = const QByteArray&;
    static const QList<TextFault> list{
        {"silence", always({}), false, {}, {}, {}},
        {"closed before the answer", always({}), true, {}, {}, {}},
        {"closed in mid-answer",
         [](Answer answer) { return QList{answer.first(10)}; },
         true,
         {none},
         {},
         {zero}},
        {"closed behind the answer",
         [](Answer answer) { return QList{answer}; },
         true,
         {three},
         {three},
         {three}},
        {"single bytes", singleBytes, false, {none}, {}, {}},
        {"cut before the number",
         [](Answer answer) {
             return QList{answer.chopped(2), answer.last(2)};
         },
         false,
         {none},
         {zero},
         {zero}},
        {"no line end",
         [](Answer answer) { return QList{answer.chopped(1)}; },
         false,
         {three},
         {three},
         {three}},
        {"twice in one packet",
         [](Answer answer) { return QList{answer + answer}; },
         false,
         {three},
         {three},
         {three}},
        {"twice one after the other",
         [](Answer answer) {
             return QList{answer, answer};
         },
         false,
         {three},
         {three, three},
         {three, three}},
        {"another line before it",
         [](Answer answer) {
             return QList<QByteArray>{"HELLO\n", answer};
         },
         false,
         {none},
         {three},
         {three}},
        {"another line in the same packet",
         [](Answer answer) { return QList<QByteArray>{"HELLO\n" + answer}; },
         false,
         {none},
         {},
         {}},
        {"ERROR",
         [](Answer answer) { return QList<QByteArray>{"ERROR" + answer.mid(answer.indexOf(' '))}; },
         false,
         {none},
         {},
         {}},
        {"an empty line", always({"\n"}), false, {none}, {}, {}},
        {"garbage", always({QByteArray("\xff\x00\xfe\x80", 4)}), false, {none}, {}, {}},
        {"no number", withNumber(""), false, {none}, {zero}, {zero}},
        {"a word for the number",
         withNumber("four"),
         false,
         {QStringLiteral("four")},
         {zero},
         {zero}},
        {"a number beyond all bounds",
         withNumber("99999999999"),
         false,
         {QStringLiteral("99999999999")},
         {zero},
         {zero}},
        {"a non-ASCII word", withNumber("\xC3\xBC"), false, {QString(QChar(0xFC))}, {zero}, {zero}},
    };
    return list;
}

QStringList expectedReports(const QByteArray& conversation, const TextFault& fault)
{
    if (conversation == "identity") {
        return fault.identity;
    }
    if (conversation == "recall") {
        return fault.recall;
    }
    return conversation == "identify" ? QStringList() : fault.currentPreset;
}

/// A sender in conversation with a device.
struct Talk
{
    explicit Talk(const Conversation& conversation)
        : sender(conversation.make(QHostAddress(peerAddress)))
    {
        if (conversation.reporting) {
            spy = std::make_unique<QSignalSpy>(sender.get(), conversation.reporting);
        }
    }

    /// The numbers reported so far, or the presets of the identities.
    QStringList reports() const
    {
        QStringList texts;
        for (int report = 0; spy && report < spy->size(); ++report) {
            const auto* identity = qobject_cast<DeviceInfoReceiver*>(sender.get());
            texts.append(identity ? identity->currentPreset() : spy->at(report).last().toString());
        }
        return texts;
    }

    /// Lets the bytes arrive on their own.
    void receive(TextPeer& peer, const QByteArray& bytes) const
    {
        QSignalSpy arrived(socket(), SIGNAL(readyRead()));
        peer.send(bytes);
        QVERIFY(arrived.wait());
    }

    QTcpSocket* socket() const { return sender->findChild<QTcpSocket*>(); }

    std::unique_ptr<SCPCommandSender> sender;
    std::unique_ptr<QSignalSpy> spy;
};

void begin(const Talk& talk, TextPeer& peer, const Conversation& conversation)
{
    const int lines = peer.lines();
    talk.sender->start();
    for (int answer = 0; answer < conversation.answers.size() - 1; ++answer) {
        QTRY_COMPARE(peer.lines(), lines + answer + 1);
        talk.receive(peer, conversation.answers.at(answer));
    }
    QTRY_COMPARE(peer.lines(), lines + int(conversation.answers.size()));
}

} // namespace

void TestTextFaults::everyMisbehaviourHasItsOutcomeAndIsGoneAtTheNextTry_data()
{
    QTest::addColumn<int>("conversation");
    QTest::addColumn<int>("fault");
    for (int conversation = 0; conversation < conversations().size(); ++conversation) {
        for (int fault = 0; fault < faults().size(); ++fault) {
            QTest::addRow("%s, %s", conversations().at(conversation).name, faults().at(fault).name)
                << conversation << fault;
        }
    }
}

void TestTextFaults::everyMisbehaviourHasItsOutcomeAndIsGoneAtTheNextTry()
{
    QFETCH(const int, conversation);
    QFETCH(const int, fault);
    const Conversation& spoken = conversations().at(conversation);
    const TextFault& row = faults().at(fault);
    TextPeer peer(peerAddress);
    QVERIFY(peer.listen());
    const Talk talk(spoken);
    begin(talk, peer, spoken);
    for (const QByteArray& bytes : row.arrivals(spoken.answers.last())) {
        if (row.hangsUp) {
            peer.send(bytes);
        } else {
            talk.receive(peer, bytes);
        }
    }
    if (!row.hangsUp) {
        QCOMPARE(talk.reports(), expectedReports(spoken.name, row));
        QVERIFY2(peer.isOnline(), "nobody ends the connection but the device");
    }
    peer.hangUp();
    QTRY_COMPARE(talk.socket()->state(), QAbstractSocket::UnconnectedState);
    QCOMPARE(talk.reports(), expectedReports(spoken.name, row));

    begin(talk, peer, spoken);
    talk.receive(peer, spoken.answers.last());
    if (spoken.reporting) {
        QCOMPARE(talk.reports().last(), QStringLiteral("3"));
    }
}

TESSEL_TEST_MAIN(TestTextFaults)
#include "tst_textfaults.moc"
