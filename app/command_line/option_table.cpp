// SPDX-License-Identifier: MIT
#include "app/command_line/option_table.h"

#include <QString>

#include <algorithm>
#include <array>
#include <vector>

namespace quillon {

namespace {

constexpr std::array kOptions{
    OptionRow{QLatin1StringView("--help"), u'h', Option::Help, OptionValue::None,
              OptionScope::Everywhere},
    OptionRow{QLatin1StringView("--version"), 0, Option::Version, OptionValue::None,
              OptionScope::Everywhere},
    OptionRow{QLatin1StringView("--print"), u'p', Option::Print, OptionValue::None,
              OptionScope::Everywhere},
    OptionRow{QLatin1StringView("--follow"), u'f', Option::Follow, OptionValue::None,
              OptionScope::Everywhere},
    OptionRow{QLatin1StringView("--only-errors"), u'e', Option::OnlyErrors, OptionValue::None,
              OptionScope::OnlyPrint},
    OptionRow{QLatin1StringView("--query"), u'q', Option::Query, OptionValue::Required,
              OptionScope::OnlyPrint},
    OptionRow{QLatin1StringView("--hide"), 0, Option::Hide, OptionValue::Required,
              OptionScope::OnlyPrint},
    OptionRow{QLatin1StringView("--lines"), u'n', Option::Lines, OptionValue::Required,
              OptionScope::OnlyPrint},
    OptionRow{QLatin1StringView("--count"), u'c', Option::Count, OptionValue::None,
              OptionScope::OnlyPrint},
    OptionRow{QLatin1StringView("--no-number"), 0, Option::NoNumber, OptionValue::None,
              OptionScope::OnlyPrint},
    // As in grep, the bare option means "auto" and never takes the next argument.
    OptionRow{QLatin1StringView("--color"), 0, Option::Color, OptionValue::Optional,
              OptionScope::OnlyPrint},
    OptionRow{QLatin1StringView("--json"), 0, Option::Json, OptionValue::None,
              OptionScope::OnlyPrint},
    OptionRow{QLatin1StringView("--no-runs"), 0, Option::NoRuns, OptionValue::None,
              OptionScope::OnlyPrint},
};

constexpr std::array kWindowingOptions{
    WindowingOption{QLatin1StringView("-platform"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-platformpluginpath"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-platformtheme"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-plugin"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-qwindowgeometry"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-qwindowicon"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-qwindowtitle"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-display"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-session"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-style"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-stylesheet"), OptionValue::Required},
    WindowingOption{QLatin1StringView("-reverse"), OptionValue::None},
};

template <typename Table, typename Matches>
auto rowWhere(const Table& table, Matches matches) -> const typename Table::value_type*
{
    const auto* const row = std::find_if(table.begin(), table.end(), matches);
    return row == table.end() ? nullptr : row;
}

QStringView withoutDashes(QStringView name)
{
    while (name.startsWith(u'-')) {
        name = name.sliced(1);
    }
    return name;
}

// How many letters must be put in, taken out, exchanged for another or swapped with their
// neighbour to make one word of the other.
qsizetype editDistance(QStringView from, QStringView to)
{
    const auto width = static_cast<std::size_t>(to.size()) + 1;
    const auto rowCount = static_cast<std::size_t>(from.size()) + 1;
    std::vector<qsizetype> distances(width * rowCount);
    const auto at = [&](qsizetype i, qsizetype j) -> qsizetype& {
        return distances[static_cast<std::size_t>(i) * width + static_cast<std::size_t>(j)];
    };
    for (qsizetype i = 0; i <= from.size(); ++i) {
        for (qsizetype j = 0; j <= to.size(); ++j) {
            if (i == 0 || j == 0) {
                at(i, j) = i + j;
                continue;
            }
            const qsizetype exchange = from[i - 1] == to[j - 1] ? 0 : 1;
            at(i, j) = std::min({at(i - 1, j) + 1, at(i, j - 1) + 1, at(i - 1, j - 1) + exchange});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1]) {
                at(i, j) = std::min(at(i, j), at(i - 2, j - 2) + 1);
            }
        }
    }
    return at(from.size(), to.size());
}

} // namespace

const OptionRow* findOption(QStringView name)
{
    return rowWhere(kOptions, [name](const OptionRow& row) { return row.name == name; });
}

const OptionRow* findOption(char16_t letter)
{
    return rowWhere(kOptions, [letter](const OptionRow& row) {
        return row.letter != 0 && row.letter == letter;
    });
}

const OptionRow* nearestOption(QStringView name)
{
    // Anybody may type anything; no name is like an option that is longer by far.
    constexpr qsizetype kLongestCompared = 40;
    constexpr qsizetype kShortestCompared = 2;
    const QStringView typed = withoutDashes(name);
    if (typed.size() < kShortestCompared || typed.size() > kLongestCompared) {
        return nullptr;
    }
    const OptionRow* nearest = nullptr;
    qsizetype allowed = (typed.size() + 2) / 3;
    for (const OptionRow& row : kOptions) {
        const QString known = QString(row.name.sliced(2));
        const qsizetype distance = known.contains(typed) ? 0 : editDistance(typed, known);
        if (distance < allowed || (distance == allowed && nearest == nullptr)) {
            nearest = &row;
            allowed = distance;
        }
    }
    return nearest;
}

const WindowingOption* findWindowingOption(QStringView name)
{
    return rowWhere(kWindowingOptions,
                    [name](const WindowingOption& option) { return option.name == name; });
}

} // namespace quillon
