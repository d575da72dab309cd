// SPDX-License-Identifier: MIT
#include "tests/window/accessibility.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace quillon {

namespace {

AccessibleNode nodeFrom(const QJsonObject& object)
{
    AccessibleNode node;
    node.role = object.value(QStringLiteral("role")).toString();
    node.name = object.value(QStringLiteral("name")).toString();
    node.description = object.value(QStringLiteral("description")).toString();
    node.states = object.value(QStringLiteral("states")).toVariant().toStringList();
    const QJsonArray box = object.value(QStringLiteral("box")).toArray();
    node.box = QRect(box.at(0).toInt(), box.at(1).toInt(), box.at(2).toInt(), box.at(3).toInt());
    if (const QJsonValue text = object.value(QStringLiteral("text")); text.isString()) {
        node.text = text.toString();
    }
    if (const QJsonValue value = object.value(QStringLiteral("value")); value.isDouble()) {
        node.value = value.toDouble();
    }
    const QJsonArray children = object.value(QStringLiteral("children")).toArray();
    for (const QJsonValue& child : children) {
        node.children.append(nodeFrom(child.toObject()));
    }
    return node;
}

} // namespace

bool AccessibleNode::is(const char* state) const
{
    return states.contains(QLatin1StringView(state));
}

QList<AccessibleNode> elementsOf(const AccessibleNode& node)
{
    QList<AccessibleNode> elements{node};
    for (const AccessibleNode& child : node.children) {
        elements.append(elementsOf(child));
    }
    return elements;
}

AccessibleNode element(const AccessibleNode& root, const QString& role, const QString& name)
{
    for (const AccessibleNode& candidate : elementsOf(root)) {
        if (candidate.role == role && candidate.name == name) {
            return candidate;
        }
    }
    return AccessibleNode();
}

AccessibleNode elementOfRole(const AccessibleNode& root, const QString& role)
{
    for (const AccessibleNode& candidate : elementsOf(root)) {
        if (candidate.role == role) {
            return candidate;
        }
    }
    return AccessibleNode();
}

ScreenReader::ScreenReader(const QProcessEnvironment& environment)
    // Debian's own interpreter: the bindings belong to it, whichever comes first on the path.
    : m_probe(QStringLiteral("/usr/bin/python3"), {QStringLiteral(QUILLON_ACCESSIBILITY_PROBE)},
              environment)
{
}

std::optional<AccessibleNode> ScreenReader::window(qint64 processId, const QString& title)
{
    const QJsonValue tree = ask({{QStringLiteral("request"), QStringLiteral("tree")},
                                 {QStringLiteral("pid"), processId},
                                 {QStringLiteral("window"), title}});
    return tree.isObject() ? std::optional(nodeFrom(tree.toObject())) : std::nullopt;
}

bool ScreenReader::act(qint64 processId, const QString& role, const QString& name)
{
    return ask({{QStringLiteral("request"), QStringLiteral("act")},
                {QStringLiteral("pid"), processId},
                {QStringLiteral("role"), role},
                {QStringLiteral("name"), name}})
        .toBool();
}

bool ScreenReader::enter(qint64 processId, const QString& role, const QString& name,
                         const QString& text)
{
    return ask({{QStringLiteral("request"), QStringLiteral("enter")},
                {QStringLiteral("pid"), processId},
                {QStringLiteral("role"), role},
                {QStringLiteral("name"), name},
                {QStringLiteral("text"), text}})
        .toBool();
}

void ScreenReader::listen()
{
    ask({{QStringLiteral("request"), QStringLiteral("listen")}});
}

QList<AccessibleEvent> ScreenReader::heard(qint64 processId)
{
    const QJsonArray events = ask({{QStringLiteral("request"), QStringLiteral("events")},
                                   {QStringLiteral("pid"), processId}})
                                  .toArray();
    QList<AccessibleEvent> heard;
    for (const QJsonValue& event : events) {
        heard.append(
            {event[QStringLiteral("type")].toString(), event[QStringLiteral("detail")].toInt(),
             event[QStringLiteral("name")].toString(), event[QStringLiteral("text")].toString(),
             event[QStringLiteral("role")].toString()});
    }
    return heard;
}

QJsonValue ScreenReader::ask(const QJsonObject& request)
{
    m_probe.writeLine(QJsonDocument(request).toJson(QJsonDocument::Compact));
    const QByteArray line = m_probe.readLine();
    // A document cannot be a bare value, which an answer may be.
    const QJsonDocument answer = QJsonDocument::fromJson('[' + line + ']');
    return answer.array().at(0);
}

} // namespace quillon
