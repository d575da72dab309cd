// SPDX-License-Identifier: MIT
#include "model/log_recompute.h"

namespace quillon {

namespace {

DisplayedLog carryOut(DisplayPass pass, qint64 lineCount)
{
    pass.goOn([] { return false; });
    return pass.result(lineCount);
}

} // namespace

DisplayedLog rebuildDisplay(const LogLines& lines, const DisplayOptions& options,
                            const UserDefaults& defaults)
{
    return carryOut(DisplayPass::rebuild(lines, options, defaults), lines.size());
}

DisplayedLog extendDisplay(const AttributedString& output, const LogLines& newLines,
                           qint64 lineCount, const DisplayOptions& options,
                           const UserDefaults& defaults)
{
    return carryOut(DisplayPass::extension(output, newLines, options, defaults), lineCount);
}

} // namespace quillon
