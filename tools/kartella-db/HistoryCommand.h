#pragma once

#include "Arguments.h"

#include <QString>
#include <QStringList>
#include <QTextStream>

#include <optional>

namespace kartella::tool {

// history PATH [INDEX]: the register, and the registration index of one document.
std::optional<Invocation> parseHistory(const QStringList& arguments, QString& problem);

// Prints the changes of the register at path, or of the document whose registration index
// is the one word given (with its related documents and reminders), newest first, one line
// each: when (local time), who, the command, what and the change, separated by tabs. A
// register without history prints nothing. Throws kartella::Error when the index is not
// found.
void historyCommand(const QString& path, const QStringList& index, QTextStream& out);

} // namespace kartella::tool
