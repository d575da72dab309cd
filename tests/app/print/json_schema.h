// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QString>

namespace quillon {

// A JSON Schema, of which it knows the few keywords that docs/json.md uses.
class JsonSchema {
public:
    explicit JsonSchema(QJsonObject root) : m_root(std::move(root)) {}

    // The one in the JSON block that names itself a schema, of a text in Markdown.
    static JsonSchema inMarkdown(const QString& text);

    // What is wrong with the value, with where; empty where nothing is. A keyword that is not known
    // is wrong, too, lest it be passed over.
    [[nodiscard]] QString complaintAbout(const QJsonValue& value) const;

private:
    [[nodiscard]] QString check(const QJsonObject& schema, const QJsonValue& value) const;
    [[nodiscard]] QString checkKeyword(const QString& keyword, const QJsonObject& schema,
                                       const QJsonValue& value) const;
    [[nodiscard]] QString checkMembers(const QJsonObject& schema, const QJsonObject& object) const;
    [[nodiscard]] QString checkOneOf(const QJsonArray& schemas, const QJsonValue& value) const;
    [[nodiscard]] QJsonObject definition(const QString& reference) const;

    QJsonObject m_root;
};

} // namespace quillon
