// SPDX-License-Identifier: MIT
#include "tests/app/print/pseudo_terminal.h"

#include <array>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <pty.h>
#include <unistd.h>

namespace quillon {

PseudoTerminal::PseudoTerminal()
{
    std::array<char, 128> name{};
    if (::openpty(&m_ours, &m_theirs, name.data(), nullptr, nullptr) != 0) {
        ADD_FAILURE() << "no pseudo-terminal";
        return;
    }
    m_name = QString::fromLocal8Bit(name.data());
    ::fcntl(m_ours, F_SETFL, O_NONBLOCK);
}

PseudoTerminal::~PseudoTerminal()
{
    ::close(m_ours);
    ::close(m_theirs);
}

QByteArray PseudoTerminal::screen()
{
    std::array<char, 4096> bytes{};
    for (ssize_t count = 0; (count = ::read(m_ours, bytes.data(), bytes.size())) > 0;) {
        m_screen.append(bytes.data(), count);
    }
    return m_screen;
}

void PseudoTerminal::type(const QByteArray& keys)
{
    EXPECT_EQ(::write(m_ours, keys.constData(), static_cast<std::size_t>(keys.size())),
              keys.size());
}

} // namespace quillon
