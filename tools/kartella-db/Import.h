#pragma once

#include <QString>
#include <QTextStream>

namespace kartella::tool {

// Copies the contacts of a contact file (vCard or Outlook CSV export) into the register
// at registerPath, as the program's import does but without questions: a failed step is
// printed to err and passed over. Prints "N contacts added, M skipped, F failed" to out
// (failed: contacts not stored, or stored without all their rows, because a step failed).
// codePage names the code page of text that is not UTF-8; empty guesses it. Gives the exit
// status: 0 when nothing failed, 1 when an error was printed. Throws kartella::Error when
// the register or the file cannot be read.
int importCommand(const QString& registerPath, const QString& file, const QString& codePage, QTextStream& out,
    QTextStream& err);

} // namespace kartella::tool
