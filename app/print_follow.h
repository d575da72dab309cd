// SPDX-License-Identifier: MIT
#pragma once

namespace quillon {

class LogViewModel;
class PrintOutput;
class RowPrinter;

// Prints the rows of the model's open log and then, as the event loop runs, those appended to it,
// until SIGINT or SIGTERM
// (the result is 128 and the signal's number, as shells have it), or until the output cannot be
// written or its reader has gone (0; the output's state tells). A look at the file that fails is
// told on standard error once, however often it fails in the same way.
int followPrinting(LogViewModel& model, RowPrinter& printer, PrintOutput& output);

} // namespace quillon
