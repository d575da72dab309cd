// SPDX-License-Identifier: MIT
// Any bytes as a settings file, in which a value is then set and removed again. What was set must
// read back, and nothing else may change.
#include "fuzz/require.h"
#include "platform/settings_text.h"
#include "platform/settings_value.h"

namespace {

using namespace quillon;

const QString kKey = QStringLiteral("prefs.default.folder");

QHash<QString, QString> withoutKey(QHash<QString, QString> values)
{
    values.remove(kKey);
    return values;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const QByteArrayView piece = takePiece(bytes);
    // Any units, halves of pairs included.
    const QString value(reinterpret_cast<const QChar*>(piece.toByteArray().constData()),
                        piece.size() / 2);
    require(settingsValue(settingsNotation(value)) == value);

    const SettingsText before(bytes.toByteArray());
    const QHash<QString, QString> values = before.values();
    SettingsText text = before;
    text.set(kKey, value);
    require(text.values().value(kKey) == value);
    require(withoutKey(text.values()) == withoutKey(values));
    const QByteArray once = text.bytes();
    text.set(kKey, value);
    require(text.bytes() == once);
    text.set(kKey, std::nullopt);
    require(text.values() == withoutKey(values));
    return 0;
}
