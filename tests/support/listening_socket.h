// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/temporary_folder.h"

#include <QByteArray>

namespace quillon {

// A local socket that takes connections and says nothing but what a test has it say.
class ListeningSocket {
public:
    ListeningSocket();
    ListeningSocket(const ListeningSocket&) = delete;
    ListeningSocket& operator=(const ListeningSocket&) = delete;
    ~ListeningSocket();

    // Its path, as the system takes it.
    [[nodiscard]] QByteArray name() const;
    // Says something to whoever connected first, who must have done so.
    void sendToFirst(const QByteArray& bytes) const;

private:
    TemporaryFolder m_folder;
    int m_descriptor = -1;
    mutable int m_first = -1;
};

} // namespace quillon
