// SPDX-License-Identifier: MIT
#include "app/print/color_choice.h"

#include <QtGlobal>

namespace quillon {

namespace {

bool isColored(ColorWhen when, bool isTerminal, const ColorEnvironment& environment)
{
    if (when != ColorWhen::Auto) {
        return when == ColorWhen::Always;
    }
    // https://no-color.org, https://bixense.com/clicolors
    if (!environment.noColor.isEmpty()) {
        return false;
    }
    if (!environment.clicolorForce.isEmpty() && environment.clicolorForce != "0") {
        return true;
    }
    return isTerminal && !environment.term.isEmpty() && environment.term != "dumb";
}

} // namespace

ColorEnvironment ColorEnvironment::ofThisProcess()
{
    return ColorEnvironment{
        .noColor = qgetenv("NO_COLOR"),
        .clicolorForce = qgetenv("CLICOLOR_FORCE"),
        .colorTerm = qgetenv("COLORTERM"),
        .term = qgetenv("TERM"),
    };
}

std::optional<ColorDepth> chooseColors(ColorWhen when, bool isTerminal,
                                       const ColorEnvironment& environment)
{
    if (!isColored(when, isTerminal, environment)) {
        return std::nullopt;
    }
    return colorDepthOf(environment.colorTerm, environment.term);
}

} // namespace quillon
