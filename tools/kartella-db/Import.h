#pragma once

#include <QString>
#include <QTextStream>

namespace kartella::tool {

// Copies the contacts of a contact file (vCard or Outlook CSV export) into the register
// at registerPath, as the program's import does but without questions: a failed step is
// printed to err and passed over. Prints "N contacts added, M skipped" to out. codePage
// names the code page of text that is not UTF-8; empty guesses it. Throws
// kartella::Error when the register or the file cannot be read.
void importCommand(const QString& registerPath, const QString& file, const QString& codePage,
    QTextStream& out, QTextStream& err);

} // namespace kartella::tool
