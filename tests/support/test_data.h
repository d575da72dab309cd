// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace quillon {

// The excerpts of genuine logs that come with the tests, by file name.
QStringList testDataNames();

QString testDataPath(const QString& name);

// The excerpt's bytes; a missing file is the test's failure.
QByteArray testData(const QString& name);

} // namespace quillon
