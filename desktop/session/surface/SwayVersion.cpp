#include "SwayVersion.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <array>
#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

using namespace Qt::StringLiterals;

namespace brimshade::desktop::session {

namespace {

// A header of i3's protocol: the magic word, then the length and the type of what follows, in the machine's byte order.
constexpr std::array<char, 6> kMagic{'i', '3', '-', 'i', 'p', 'c'};
constexpr std::uint32_t kGetVersion = 7;
constexpr qsizetype kHeaderBytes = kMagic.size() + 2 * sizeof(std::uint32_t);
constexpr qsizetype kMostAnswerBytes = 64 << 10;

QByteArray question()
{
    const std::array<std::uint32_t, 2> lengthAndType{0, kGetVersion};
    return QByteArray(kMagic.data(), kMagic.size())
        + QByteArray(reinterpret_cast<const char *>(lengthAndType.data()), sizeof lengthAndType);
}

int connectTo(const QByteArray &path)
{
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    if (path.isEmpty() || path.size() >= qsizetype(sizeof address.sun_path))
        return -1;
    std::memcpy(address.sun_path, path.constData(), std::size_t(path.size()));
    const int socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0)
        return socket;
    close(socket);
    return -1;
}

pid_t peerOf(int socket)
{
    ucred credentials{};
    socklen_t size = sizeof credentials;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &credentials, &size) == 0 ? credentials.pid : 0;
}

} // namespace

SwayVersion::SwayVersion(const QString &socketPath, int compositor) : m_socket(connectTo(socketPath.toLocal8Bit()))
{
    const QByteArray asked = question();
    if (m_socket < 0 || peerOf(m_socket) != peerOf(compositor)
        || send(m_socket, asked.constData(), std::size_t(asked.size()), MSG_NOSIGNAL) != asked.size()) {
        end();
        return;
    }
    m_notifier = std::make_unique<QSocketNotifier>(m_socket, QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { read(); });
}

SwayVersion::~SwayVersion()
{
    end();
}

void SwayVersion::read()
{
    std::array<char, 4096> bytes;
    const ssize_t count = recv(m_socket, bytes.data(), bytes.size(), 0);
    if (count > 0)
        m_answer.append(bytes.data(), count);
    const auto version = QJsonDocument::fromJson(m_answer.mid(kHeaderBytes)).object();
    if (!version.isEmpty())
        m_stacksDownwards = std::pair(version["major"_L1].toInt(), version["minor"_L1].toInt()) < std::pair(1, 10);
    if (count <= 0 || !version.isEmpty() || m_answer.size() > kMostAnswerBytes)
        end();
}

// The notifier is deleted later, because it may be calling us right now.
void SwayVersion::end()
{
    if (m_notifier) {
        m_notifier->setEnabled(false);
        m_notifier.release()->deleteLater();
    }
    if (m_socket >= 0)
        close(std::exchange(m_socket, -1));
}

} // namespace brimshade::desktop::session
