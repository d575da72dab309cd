// SPDX-License-Identifier: MIT
#include "platform/settings_text.h"

#include "platform/settings_value.h"

#include <algorithm>

namespace quillon {

namespace {

constexpr QByteArrayView kGeneral("general");
constexpr QByteArrayView kByteOrderMark("\xEF\xBB\xBF");

bool isKeyCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '.' || character == '_' ||
           character == '-';
}

// One line of the text, together with the group that it stands in.
struct Line {
    QByteArrayView whole;   // with its end
    QByteArrayView content; // without, and without white space around it
    bool isGeneral = false;

    [[nodiscard]] bool isHeader() const { return content.startsWith('['); }
    // The key of a value of the General group, else nothing.
    [[nodiscard]] QByteArrayView key() const
    {
        const qsizetype equals = content.indexOf('=');
        if (!isGeneral || isHeader() || equals <= 0) {
            return QByteArrayView();
        }
        const QByteArrayView key = content.first(equals).trimmed();
        return std::all_of(key.begin(), key.end(), isKeyCharacter) ? key : QByteArrayView();
    }
    [[nodiscard]] QByteArrayView value() const
    {
        return content.sliced(content.indexOf('=') + 1).trimmed();
    }
};

// The lines of a text in order. What comes before the first header belongs to the General group.
class LineReader {
public:
    explicit LineReader(QByteArrayView text) : m_rest(text) {}

    std::optional<Line> next()
    {
        if (m_rest.isEmpty()) {
            return std::nullopt;
        }
        const auto* const end = std::find_if(m_rest.begin(), m_rest.end(), isLineEnd);
        Line line;
        line.whole = m_rest.first(std::min<qsizetype>(end - m_rest.begin() + 1, m_rest.size()));
        m_rest = m_rest.sliced(line.whole.size());
        line.content = line.whole.startsWith(kByteOrderMark) ? line.whole.sliced(3) : line.whole;
        line.content = line.content.trimmed();
        if (line.isHeader()) {
            m_isGeneral = nameOf(line.content).compare(kGeneral, Qt::CaseInsensitive) == 0;
        }
        line.isGeneral = m_isGeneral;
        return line;
    }

private:
    static bool isLineEnd(char character) { return character == '\n' || character == '\r'; }
    static QByteArrayView nameOf(QByteArrayView header)
    {
        const qsizetype end = header.indexOf(']');
        return header.first(end < 0 ? header.size() : end).sliced(1).trimmed();
    }

    QByteArrayView m_rest;
    bool m_isGeneral = true;
};

void endLine(QByteArray& text)
{
    if (!text.isEmpty() && !text.endsWith('\n') && !text.endsWith('\r')) {
        text.append('\n');
    }
}

} // namespace

QHash<QString, QString> SettingsText::values() const
{
    QHash<QString, QString> values;
    LineReader lines(m_bytes);
    while (const auto line = lines.next()) {
        const QByteArrayView key = line->key();
        if (key.isEmpty()) {
            continue;
        }
        if (const auto value = settingsValue(line->value())) {
            values.insert(QString::fromLatin1(key), *value);
        } else {
            values.remove(QString::fromLatin1(key));
        }
    }
    return values;
}

void SettingsText::set(const QString& key, const std::optional<QString>& value)
{
    const QByteArray name = key.toLatin1();
    Q_ASSERT(!name.isEmpty() && std::all_of(name.begin(), name.end(), isKeyCharacter));
    // The key's lines are left out; the new one takes the place of the first, else it follows the
    // General group's last line that says something.
    QByteArray rest;
    qsizetype place = -1;
    qsizetype generalEnd = -1;
    LineReader lines(m_bytes);
    while (const auto line = lines.next()) {
        if (line->key() == QByteArrayView(name)) {
            place = place < 0 ? rest.size() : place;
            continue;
        }
        rest.append(line->whole);
        if (line->isGeneral && !line->content.isEmpty()) {
            generalEnd = rest.size();
        }
    }
    if (value) {
        if (place < 0 && generalEnd < 0) {
            endLine(rest);
            rest.append("[General]\n");
        }
        if (place < 0) {
            place = generalEnd < 0 ? rest.size() : generalEnd;
        }
        QByteArray before = rest.first(place);
        endLine(before);
        rest = before + name + '=' + settingsNotation(*value) + '\n' + rest.sliced(place);
    }
    m_bytes = rest;
}

} // namespace quillon
