// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

namespace quillon {

// A terminal that somebody would sit at; what is written to it can be read.
class PseudoTerminal {
public:
    PseudoTerminal();
    ~PseudoTerminal();
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    [[nodiscard]] const QString& name() const { return m_name; }
    // Everything written to it so far, with the line ends that a terminal makes.
    QByteArray screen();
    void type(const QByteArray& keys);

private:
    int m_ours = -1;
    int m_theirs = -1;
    QString m_name;
    QByteArray m_screen;
};

} // namespace quillon
