// SPDX-License-Identifier: MIT
#include "tests/support/listening_socket.h"

#include <QFile>

#include <cstring>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace quillon {

ListeningSocket::ListeningSocket() : m_descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, name().constData(), sizeof(address.sun_path) - 1);
    EXPECT_EQ(::bind(m_descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof(address)),
              0);
    EXPECT_EQ(::listen(m_descriptor, 10), 0);
}

ListeningSocket::~ListeningSocket()
{
    ::close(m_first);
    ::close(m_descriptor);
}

QByteArray ListeningSocket::name() const
{
    return QFile::encodeName(m_folder.path(QStringLiteral("socket")));
}

void ListeningSocket::sendToFirst(const QByteArray& bytes) const
{
    if (m_first < 0) {
        m_first = ::accept(m_descriptor, nullptr, nullptr);
    }
    EXPECT_EQ(::send(m_first, bytes.constData(), std::size_t(bytes.size()), MSG_NOSIGNAL),
              bytes.size());
}

} // namespace quillon
