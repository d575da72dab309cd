// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <random>

namespace quillon {

// Random choices that are the same on every run and machine.
class RandomText {
public:
    explicit RandomText(std::uint32_t seed) : m_engine(seed) {}

    // A number from 0 up to, not including, `limit`.
    std::uint32_t below(std::uint32_t limit);

    // At most `maximumPieces` of the pieces, one after the other. An empty piece stands for an
    // arbitrary UTF-16 unit, an unpaired surrogate included.
    QString join(const QStringList& pieces, std::uint32_t maximumPieces);

private:
    std::mt19937 m_engine;
};

} // namespace quillon
