#include "cannedpeer.h"

#include <QHash>
#include <QHostAddress>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <netinet/in.h>
#include <sys/epoll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr quint16 textPort = 49280;
constexpr quint16 webPort = 80;
constexpr int backlog = 1024;
constexpr std::size_t readSize = 65536;

struct Listener
{
    int socket = -1;
    bool isWeb = false;
};

/// One connection and the bytes of the message that is still coming.
struct Conversation
{
    bool isWeb = false;
    QByteArray pending;
};

int listenOn(const QString& address, quint16 port)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int yes = 1;
    setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    sockaddr_in name{};
    name.sin_family = AF_INET;
    name.sin_port = htons(port);
    name.sin_addr.s_addr = htonl(QHostAddress(address).toIPv4Address());
    const bool open = bind(socket, reinterpret_cast<sockaddr*>(&name), sizeof name) == 0 &&
                      listen(socket, backlog) == 0;
    if (!open) {
        close(socket);
    }
    return open ? socket : -1;
}

/// The length of the first whole message; 0 while it is not whole.
qsizetype messageLength(const Conversation& conversation)
{
    const QByteArray& bytes = conversation.pending;
    if (!conversation.isWeb) {
        return bytes.indexOf('\n') + 1;
    }
    const qsizetype header = bytes.indexOf("\r\n\r\n") + 4;
    if (header < 4) {
        return 0;
    }
    const QByteArray name("Content-Length: ");
    const qsizetype at = bytes.first(header).indexOf(name);
    const qsizetype body = at < 0 ? 0 : std::atoi(bytes.constData() + at + name.size());
    return bytes.size() >= header + body ? header + body : 0;
}

void answerAll(int socket, Conversation& conversation)
{
    const QByteArray reply = conversation.isWeb ? CannedPeer::webReply() : CannedPeer::textReply();
    while (const qsizetype length = messageLength(conversation)) {
        conversation.pending.remove(0, length);
        if (send(socket, reply.constData(), size_t(reply.size()), MSG_NOSIGNAL) < 0) {
            return;
        }
    }
}

class Loop
{
public:
    Loop(const QList<Listener>& listeners, qint64* bytesReceived)
        : m_epoll(epoll_create1(0))
        , m_bytesReceived(bytesReceived)
    {
        for (const Listener& listener : listeners) {
            m_listeners.insert(listener.socket, listener.isWeb);
            watch(listener.socket);
        }
    }

    void turn()
    {
        epoll_event ready{};
        if (epoll_wait(m_epoll, &ready, 1, -1) != 1) {
            return;
        }
        if (m_listeners.contains(ready.data.fd)) {
            accept(ready.data.fd);
        } else {
            read(ready.data.fd);
        }
    }

private:
    void watch(int socket) const
    {
        epoll_event event{};
        event.events = EPOLLIN;
        event.data.fd = socket;
        epoll_ctl(m_epoll, EPOLL_CTL_ADD, socket, &event);
    }

    void accept(int listener)
    {
        const int socket = ::accept(listener, nullptr, nullptr);
        if (socket >= 0) {
            m_conversations.insert(socket, {m_listeners.value(listener), {}});
            watch(socket);
        }
    }

    void read(int socket)
    {
        const ssize_t count = ::read(socket, m_buffer.data(), m_buffer.size());
        if (count <= 0) {
            m_conversations.remove(socket);
            close(socket);
            return;
        }
        *m_bytesReceived += count;
        Conversation& conversation = m_conversations[socket];
        conversation.pending.append(m_buffer.data(), count);
        answerAll(socket, conversation);
    }

    int m_epoll;
    qint64* m_bytesReceived;
    QHash<int, bool> m_listeners; ///< socket to "speaks the web API"
    QHash<int, Conversation> m_conversations;
    std::array<char, readSize> m_buffer{};
};

/// A thousand devices take two sockets each, on either side.
void allowManySockets()
{
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;
    setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace

CannedPeer::CannedPeer(const QStringList& textAddresses, const QStringList& webAddresses)
    : m_bytesReceived(static_cast<qint64*>(
          mmap(nullptr, sizeof(qint64), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0)))
{
    allowManySockets();
    QList<Listener> listeners;
    for (const QString& address : textAddresses) {
        listeners.append({listenOn(address, textPort), false});
    }
    for (const QString& address : webAddresses) {
        listeners.append({listenOn(address, webPort), true});
    }
    const bool allOpen = std::all_of(listeners.cbegin(), listeners.cend(),
                                     [](const Listener& one) { return one.socket >= 0; });
    m_pid = allOpen ? fork() : -1;
    if (m_pid == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        Loop loop(listeners, m_bytesReceived);
        for (;;) {
            loop.turn();
        }
    }
    for (const Listener& listener : listeners) {
        close(listener.socket);
    }
}

CannedPeer::~CannedPeer()
{
    if (m_pid > 0) {
        kill(m_pid, SIGTERM);
        waitpid(m_pid, nullptr, 0);
    }
    munmap(m_bytesReceived, sizeof(qint64));
}

QByteArray CannedPeer::webReply()
{
    // Holds what any of the requests looks for.
    static const QByteArray body = R"({"is-initialized": 1, "access-token": ")" + token().toUtf8() +
                                   R"(", "request": "accepted", "status": "invalid"})";
    static const QByteArray reply =
        "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\n"
        "Content-Disposition: attachment; filename=\"hub.xml\"\r\nContent-Length: " +
        QByteArray::number(body.size()) + "\r\n\r\n" + body;
    return reply;
}

QByteArray CannedPeer::textReply()
{
    return "OK devinfo devicename \"Microphone-12\"\n";
}

QString CannedPeer::token()
{
    return QStringLiteral("4f1d8a60b3c2");
}
