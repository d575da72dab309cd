// SPDX-License-Identifier: MIT
#include "app/desktop/bus_probe.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillon {

namespace {

// A message of the bus protocol: a fixed part, the array of its header fields, padding to a
// multiple of eight bytes, and the body.
//
//   'l' or 'B' (the byte order), type, flags, version, u32 body length, u32 serial,
//   u32 length of the fields, fields …
constexpr qsizetype kFixedBytes = 16;
constexpr char kMethodCall = 1;
constexpr char kMethodReturn = 2;
constexpr char kError = 3;

// No answer to our two questions comes near this.
constexpr quint32 kMaximumLength = 65'536;
// What we ask: to be let in, and one thing more, since a bus may fall silent after that.
constexpr int kQuestions = 2;

void appendPadding(QByteArray& bytes)
{
    bytes.append((8 - bytes.size() % 8) % 8, '\0');
}

void appendNumber(QByteArray& bytes, quint32 number)
{
    const quint32 little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof(little));
}

// A header field that holds a text: an object path ('o') or a name ('s').
void appendField(QByteArray& fields, char code, char type, QByteArrayView text)
{
    appendPadding(fields);
    fields.append(code).append('\1').append(type).append('\0');
    appendNumber(fields, static_cast<quint32>(text.size()));
    fields.append(text).append('\0');
}

QByteArray callOfTheBus(quint32 serial, QByteArrayView method)
{
    QByteArray fields;
    appendField(fields, 1, 'o', "/org/freedesktop/DBus");
    appendField(fields, 2, 's', "org.freedesktop.DBus");
    appendField(fields, 3, 's', method);
    appendField(fields, 6, 's', "org.freedesktop.DBus");
    QByteArray message;
    message.append('l').append(kMethodCall).append('\0').append('\1');
    appendNumber(message, 0);
    appendNumber(message, serial);
    appendNumber(message, static_cast<quint32>(fields.size()));
    message.append(fields);
    appendPadding(message);
    return message;
}

// All that we have to say can be said at once: the bus takes it line by line, then message by
// message.
QByteArray introduction()
{
    const QByteArray user = QByteArray::number(::geteuid()).toHex();
    return QByteArray(1, '\0') + "AUTH EXTERNAL " + user + "\r\nBEGIN\r\n" +
           callOfTheBus(1, "Hello") + callOfTheBus(2, "GetId");
}

quint32 numberAt(const QByteArray& bytes, qsizetype at)
{
    const char* const data = bytes.constData() + at;
    return bytes.front() == 'l' ? qFromLittleEndian<quint32>(data) : qFromBigEndian<quint32>(data);
}

// The length of the message that the bytes begin with: 0 while it cannot be told, negative where
// they begin with none.
qsizetype messageLength(const QByteArray& bytes)
{
    if (bytes.size() < kFixedBytes) {
        return 0;
    }
    const quint32 body = numberAt(bytes, 4);
    const quint32 fields = numberAt(bytes, 12);
    if ((bytes.front() != 'l' && bytes.front() != 'B') || body > kMaximumLength ||
        fields > kMaximumLength) {
        return -1;
    }
    return kFixedBytes + qsizetype{(fields + 7) / 8} * 8 + qsizetype{body};
}

} // namespace

BusProbe::BusProbe(const QByteArray& socketName)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const bool fits = socketName.size() < qsizetype{sizeof(address.sun_path)};
    m_descriptor = fits ? ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0) : -1;
    if (m_descriptor < 0) {
        fail();
        return;
    }
    std::memcpy(address.sun_path, socketName.constData(), std::size_t(socketName.size()));
    const bool isAbstract = socketName.startsWith('\0');
    const std::size_t length =
        offsetof(sockaddr_un, sun_path) + std::size_t(socketName.size()) + (isAbstract ? 0 : 1);
    const QByteArray bytes = introduction();
    if (::connect(m_descriptor, reinterpret_cast<const sockaddr*>(&address),
                  static_cast<socklen_t>(length)) != 0 ||
        ::send(m_descriptor, bytes.constData(), std::size_t(bytes.size()), MSG_NOSIGNAL) !=
            bytes.size()) {
        fail();
    }
}

BusProbe::~BusProbe()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

void BusProbe::fail()
{
    m_state = State::Failed;
}

BusProbe::State BusProbe::proceed()
{
    std::array<char, 4096> buffer{};
    while (m_state == State::Waiting) {
        const ssize_t count = ::recv(m_descriptor, buffer.data(), buffer.size(), 0);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count < 0 && (errno == EAGAIN || errno == EWOULDBLOCK)) {
            break;
        }
        if (count <= 0) {
            fail();
            break;
        }
        m_unread.append(buffer.data(), count);
        takeUnread();
    }
    return m_state;
}

void BusProbe::takeUnread()
{
    if (!m_isIntroduced) {
        const qsizetype end = m_unread.indexOf('\n');
        if (end < 0 && m_unread.size() <= qsizetype{kMaximumLength}) {
            return;
        }
        if (!m_unread.startsWith("OK ")) {
            fail();
            return;
        }
        m_unread.remove(0, end + 1);
        m_isIntroduced = true;
    }
    qsizetype length = messageLength(m_unread);
    while (length > 0 && length <= m_unread.size()) {
        const char type = m_unread[1];
        m_answers += type == kMethodReturn || type == kError ? 1 : 0;
        m_unread.remove(0, length);
        length = messageLength(m_unread);
    }
    if (length < 0) {
        fail();
    } else if (m_answers >= kQuestions) {
        m_state = State::Answered;
    }
}

BusProbe::State BusProbe::wait(QDeadlineTimer deadline)
{
    while (proceed() == State::Waiting && !deadline.hasExpired()) {
        pollfd waited{.fd = m_descriptor, .events = POLLIN, .revents = 0};
        // One that is interrupted is simply taken up again.
        static_cast<void>(::poll(&waited, 1, static_cast<int>(deadline.remainingTime())));
    }
    return m_state;
}

} // namespace quillon
