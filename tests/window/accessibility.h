// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/helper_process.h"

#include <QJsonValue>
#include <QList>
#include <QProcessEnvironment>
#include <QRect>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillon {

// What a screen reader learns of one element of a window.
struct AccessibleNode {
    QString role;
    QString name;
    QString description;
    QStringList states; // "checked", "enabled", "focused", …
    QRect box;          // on the screen
    std::optional<QString> text;
    std::optional<double> value;
    QList<AccessibleNode> children;

    [[nodiscard]] bool is(const char* state) const;
};

// What a program announced: a change of state, or one of a text, its selection or its caret.
struct AccessibleEvent {
    QString type;
    int detail = 0; // 1 for a state that began, 0 for one that ended; the place in a text
    QString name;   // of the element
    QString text;   // that has come or gone
    QString role;   // of the element
};

// The element itself and all below it, in the order of the tree.
QList<AccessibleNode> elementsOf(const AccessibleNode& node);
// The first element of that role and name; an empty one when there is none.
AccessibleNode element(const AccessibleNode& root, const QString& role, const QString& name);
// The first element of that role, whatever its name.
AccessibleNode elementOfRole(const AccessibleNode& root, const QString& role);

// A stand-in for a screen reader on a desktop's accessibility bus.
class ScreenReader {
public:
    explicit ScreenReader(const QProcessEnvironment& environment);

    // The window of that title of the process, as it is now; nothing while there is none.
    [[nodiscard]] std::optional<AccessibleNode> window(qint64 processId, const QString& title);

    // Does what the first element of that role and name is there for, wherever it is in the
    // program. Whether there is one, and the program answered at once.
    bool act(qint64 processId, const QString& role, const QString& name);

    // Gives the first element of that role and name another text, as dictation does. Whether there
    // is one that takes it.
    bool enter(qint64 processId, const QString& role, const QString& name, const QString& text);

    // Collects the changes of state that programs announce from here on.
    void listen();
    [[nodiscard]] QList<AccessibleEvent> heard(qint64 processId);

private:
    QJsonValue ask(const QJsonObject& request);

    HelperProcess m_probe;
};

} // namespace quillon
