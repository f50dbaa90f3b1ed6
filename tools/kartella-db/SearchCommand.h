#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>

namespace kartella::tool {

// Prints the documents of the register at path that hold every word, one line each:
// registration index, registration date (yyyy-mm-dd) and description, separated by tabs,
// in order of registration date. Nothing is printed when none matches. Throws kartella::Error.
void searchCommand(const QString& path, const QStringList& words, QTextStream& out);

} // namespace kartella::tool
