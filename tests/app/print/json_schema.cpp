// SPDX-License-Identifier: MIT
#include "tests/app/print/json_schema.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QStringList>

#include <cmath>

namespace quillon {

namespace {

bool hasType(const QJsonValue& value, const QString& type)
{
    if (type == QLatin1StringView("object")) {
        return value.isObject();
    }
    if (type == QLatin1StringView("array")) {
        return value.isArray();
    }
    if (type == QLatin1StringView("string")) {
        return value.isString();
    }
    return type == QLatin1StringView("integer") && value.isDouble() &&
           std::trunc(value.toDouble()) == value.toDouble();
}

QString complaintUnless(bool isRight, const QString& keyword)
{
    return isRight ? QString() : keyword;
}

} // namespace

JsonSchema JsonSchema::inMarkdown(const QString& text)
{
    static const QRegularExpression block(QStringLiteral("```json\\n(\\{\\s*\"\\$schema\".*?)```"),
                                          QRegularExpression::DotMatchesEverythingOption);
    return JsonSchema(QJsonDocument::fromJson(block.match(text).captured(1).toUtf8()).object());
}

QString JsonSchema::complaintAbout(const QJsonValue& value) const
{
    return m_root.isEmpty() ? QStringLiteral("no schema") : check(m_root, value);
}

QString JsonSchema::check(const QJsonObject& schema, const QJsonValue& value) const
{
    const QStringList keywords = schema.keys();
    for (const QString& keyword : keywords) {
        const QString complaint = checkKeyword(keyword, schema, value);
        if (!complaint.isEmpty()) {
            return complaint;
        }
    }
    return {};
}

QString JsonSchema::checkKeyword(const QString& keyword, const QJsonObject& schema,
                                 const QJsonValue& value) const
{
    static const QStringList withoutDemand{
        QStringLiteral("$schema"), QStringLiteral("$defs"), QStringLiteral("title"),
        // for checkMembers()
        QStringLiteral("required"), QStringLiteral("additionalProperties")};
    const QJsonValue demand = schema.value(keyword);
    if (withoutDemand.contains(keyword)) {
        return {};
    }
    if (keyword == QLatin1StringView("$ref")) {
        return check(definition(demand.toString()), value);
    }
    if (keyword == QLatin1StringView("oneOf")) {
        return checkOneOf(demand.toArray(), value);
    }
    if (keyword == QLatin1StringView("properties")) {
        return checkMembers(schema, value.toObject());
    }
    if (keyword == QLatin1StringView("items")) {
        for (const auto& item : value.toArray()) {
            const QString complaint = check(demand.toObject(), item);
            if (!complaint.isEmpty()) {
                return QStringLiteral("items: ") + complaint;
            }
        }
        return {};
    }
    if (keyword == QLatin1StringView("type")) {
        return complaintUnless(hasType(value, demand.toString()), keyword);
    }
    if (keyword == QLatin1StringView("enum")) {
        return complaintUnless(demand.toArray().contains(value), keyword);
    }
    if (keyword == QLatin1StringView("const")) {
        return complaintUnless(demand == value, keyword);
    }
    if (keyword == QLatin1StringView("minimum")) {
        return complaintUnless(value.toDouble() >= demand.toDouble(), keyword);
    }
    if (keyword == QLatin1StringView("minItems")) {
        return complaintUnless(value.toArray().size() >= demand.toInt(), keyword);
    }
    if (keyword == QLatin1StringView("pattern")) {
        const QRegularExpression pattern(demand.toString());
        return complaintUnless(pattern.match(value.toString()).hasMatch(), keyword);
    }
    return QStringLiteral("unknown keyword ") + keyword;
}

QString JsonSchema::checkMembers(const QJsonObject& schema, const QJsonObject& object) const
{
    for (const auto& name : schema.value(QLatin1StringView("required")).toArray()) {
        if (!object.contains(name.toString())) {
            return name.toString() + QStringLiteral(" is missing");
        }
    }
    const QJsonObject known = schema.value(QLatin1StringView("properties")).toObject();
    const bool isClosed = schema.value(QLatin1StringView("additionalProperties")) == false;
    for (auto member = object.begin(); member != object.end(); ++member) {
        if (!known.contains(member.key())) {
            if (isClosed) {
                return member.key() + QStringLiteral(" is not known");
            }
            continue;
        }
        const QString complaint = check(known.value(member.key()).toObject(), member.value());
        if (!complaint.isEmpty()) {
            return member.key() + QStringLiteral(": ") + complaint;
        }
    }
    return {};
}

QString JsonSchema::checkOneOf(const QJsonArray& schemas, const QJsonValue& value) const
{
    QStringList complaints;
    for (const auto& schema : schemas) {
        const QString complaint = check(schema.toObject(), value);
        if (!complaint.isEmpty()) {
            complaints.append(complaint);
        }
    }
    return complaints.size() == schemas.size() - 1
               ? QString()
               : QStringLiteral("not one of them: ") + complaints.join(QStringLiteral("; "));
}

QJsonObject JsonSchema::definition(const QString& reference) const
{
    const QString name = reference.sliced(reference.lastIndexOf(u'/') + 1);
    const QJsonObject definitions = m_root.value(QLatin1StringView("$defs")).toObject();
    // A definition that is not there demands something that nothing gives.
    return definitions.contains(name) ? definitions.value(name).toObject()
                                      : QJsonObject{{reference, QJsonValue()}};
}

} // namespace quillon
