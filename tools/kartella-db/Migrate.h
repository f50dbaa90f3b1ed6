#pragma once

#include <QString>
#include <QTextStream>

namespace kartella::tool {

// Reads the Jet register at oldPath and writes every row of its register tables into a
// new register at newPath, keys kept; prints each table with the rows read and written
// and names what the old file lacks. Gives 0 when everything arrived, 1 otherwise.
// Throws kartella::Error when the old file can't be read or the new one written; the new
// register is then removed again.
int migrateCommand(const QString& oldPath, const QString& newPath, const QString& codePage, QTextStream& out);

} // namespace kartella::tool
