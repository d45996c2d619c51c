#include "datakey.h"
#include "datakind.h"
#include "deviceidentify.h"
#include "devicequeries.h"
#include "documentfixtures.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QCryptographicHash>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

namespace {

constexpr quint16 commandPort = 49280;
constexpr quint16 webPort = 80;

/// A device's port that notes what arrives and answers the way it is told.
class Peer : public QObject
{
    Q_OBJECT

public:
    Peer(const QString& address, quint16 port)
    {
        connect(&m_server, SIGNAL(newConnection()), this, SLOT(takeConnection()));
        m_listening = m_server.listen(QHostAddress(address), port);
    }

    bool isListening() const { return m_listening; }
    const QByteArray& received() const { return m_received; }
    int connections() const { return m_connections; }
    QTcpSocket* socket() const { return m_socket; }

    /// Answers every request with this body and status 200.
    void answerAllWith(const QByteArray& body)
    {
        m_reply = "HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) +
                  "\r\n\r\n" + body;
    }

private Q_SLOTS:
    void takeConnection()
    {
        m_socket = m_server.nextPendingConnection();
        ++m_connections;
        connect(m_socket, SIGNAL(readyRead()), this, SLOT(takeBytes()));
    }

    void takeBytes()
    {
        m_received += m_socket->readAll();
        if (!m_reply.isEmpty()) {
            m_socket->write(m_reply);
        }
    }

private:
    QTcpServer m_server;
    QTcpSocket* m_socket = nullptr;
    QByteArray m_received;
    QByteArray m_reply;
    int m_connections = 0;
    bool m_listening = false;
};

FoundDevice device(const QString& address, const QString& searchType)
{
    FoundDevice found = testDevice(QStringLiteral("A"), QStringLiteral("PX-HB"), address);
    found.searchType = searchType;
    found.password = QStringLiteral("pä");
    return found;
}

} // namespace

class TestDeviceIdentify : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void otherDevicesAreAskedByTextCommand();
    void secondRequestUsesTheSameConnection();
    void hubsFoundByHttpAreAskedThroughTheirWebApi();
    void searchTypeIsComparedExactly();
    void identifyWithoutAnAddressIsRefused();
    void unknownAddressIsRefused();
    void connectionsEndWithTheDocument();
    void unreachableDeviceIsStillAsked();
};

void TestDeviceIdentify::otherDevicesAreAskedByTextCommand()
{
    const QString address = QStringLiteral("127.40.1.1");
    const Peer peer(address, commandPort);
    QVERIFY(peer.isListening());
    TesselDoc doc(nullptr);
    QVERIFY(addDevice(doc, device(address, QStringLiteral("SCP"))));
    QVERIFY(doc.doAction(DataKind::Identify, {{DataKey::deviceIPAddress(), address}}));
    QTRY_COMPARE(peer.received(), QByteArray("identify 5\n"));
}

void TestDeviceIdentify::secondRequestUsesTheSameConnection()
{
    const QString address = QStringLiteral("127.40.1.2");
    const Peer peer(address, commandPort);
    QVERIFY(peer.isListening());
    TesselDoc doc(nullptr);
    QVERIFY(addDevice(doc, device(address, QString())));
    QVERIFY(identifyDevice(doc, address));
    QTRY_COMPARE(peer.received(), QByteArray("identify 5\n"));
    QVERIFY(identifyDevice(doc, address));
    QTRY_COMPARE(peer.received(), QByteArray("identify 5\nidentify 5\n"));
    QCOMPARE(peer.connections(), 1);
}

void TestDeviceIdentify::hubsFoundByHttpAreAskedThroughTheirWebApi()
{
    const QString address = QStringLiteral("127.40.1.3");
    Peer peer(address, webPort);
    QVERIFY(peer.isListening());
    peer.answerAllWith("{\"is-initialized\": 1, \"access-token\": \"T\"}");
    TesselDoc doc(nullptr);
    QVERIFY(addDevice(doc, device(address, QStringLiteral("HTTP"))));
    QVERIFY(identifyDevice(doc, address));
    QTRY_VERIFY(peer.received().contains("/api/v0/auth/token/invalidate HTTP/1.1"));
    QVERIFY(peer.received().contains("GET http://127.40.1.3/api/v0/identification/self HTTP/1.1"));
    // It logs in with the password that was handed over for this device.
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray("pä"), QCryptographicHash::Md5).toHex();
    QVERIFY(peer.received().contains(hash));
    QVERIFY(!peer.received().contains("pä"));
}

void TestDeviceIdentify::searchTypeIsComparedExactly()
{
    const QString address = QStringLiteral("127.40.1.4");
    const Peer peer(address, commandPort);
    QVERIFY(peer.isListening());
    TesselDoc doc(nullptr);
    QVERIFY(addDevice(doc, device(address, QStringLiteral("http"))));
    QVERIFY(identifyDevice(doc, address));
    QTRY_COMPARE(peer.received(), QByteArray("identify 5\n"));
}

void TestDeviceIdentify::identifyWithoutAnAddressIsRefused()
{
    TesselDoc doc(nullptr);
    QVERIFY(addDevice(doc, device(QString(), QString())));
    QVERIFY(!doc.doAction(DataKind::Identify, {}));
}

void TestDeviceIdentify::unknownAddressIsRefused()
{
    TesselDoc doc(nullptr);
    QVERIFY(addDevice(doc, device(QStringLiteral("fe80::a"), QString())));
    QVERIFY(!identifyDevice(doc, QStringLiteral("fe80::A")));
}

void TestDeviceIdentify::connectionsEndWithTheDocument()
{
    const QString command = QStringLiteral("127.40.1.5");
    const QString web = QStringLiteral("127.40.1.6");
    const Peer commandPeer(command, commandPort);
    const Peer webPeer(web, webPort);
    QVERIFY(commandPeer.isListening() && webPeer.isListening());
    {
        QObject owner;
        auto* doc = new TesselDoc(&owner);
        QVERIFY(addDevice(*doc, device(command, QString())));
        QVERIFY(addDevice(*doc, device(web, QStringLiteral("HTTP"))));
        QVERIFY(identifyDevice(*doc, command));
        QVERIFY(identifyDevice(*doc, web));
        QCOMPARE(doc->children().size(), 2);
        QTRY_VERIFY(!commandPeer.received().isEmpty() && !webPeer.received().isEmpty());
    }
    QTRY_COMPARE(commandPeer.socket()->state(), QAbstractSocket::UnconnectedState);
    QTRY_COMPARE(webPeer.socket()->state(), QAbstractSocket::UnconnectedState);
}

void TestDeviceIdentify::unreachableDeviceIsStillAsked()
{
    TesselDoc doc(nullptr);
    const QString address = QStringLiteral("127.40.1.7");
    QVERIFY(addDevice(doc, device(address, QString())));
    QVERIFY(identifyDevice(doc, address));
    QVERIFY(identifyDevice(doc, address));
}

TESSEL_TEST_MAIN(TestDeviceIdentify)
#include "tst_deviceidentify.moc"
