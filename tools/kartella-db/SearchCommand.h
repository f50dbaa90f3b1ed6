#pragma once

#include <QString>
#include <QStringList>
#include <QTextStream>

namespace kartella::tool {

// Prints the documents of the register at path that hold every term (see searchTerms), one
// line each: registration index, registration date (yyyy-mm-dd) and description, and where
// the file's text holds a term the passage around the first hit with the hit in [brackets],
// separated by tabs, in the order of the window's list of results (ranked where the files'
// text matched, else by registration date). Nothing is printed when none matches. Throws
// kartella::Error.
void searchCommand(const QString& path, const QStringList& words, QTextStream& out);

} // namespace kartella::tool
