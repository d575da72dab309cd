// SPDX-License-Identifier: MIT
#include "tests/support/test_data.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillon {

QStringList testDataNames()
{
    return {QStringLiteral("wordpress-excerpt.log"), QStringLiteral("php-cli-excerpt.log")};
}

QString testDataPath(const QString& name)
{
    return QStringLiteral(QUILLON_TEST_DATA "/") + name;
}

QByteArray testData(const QString& name)
{
    QFile file(testDataPath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.errorString());
    return file.readAll();
}

} // namespace quillon
