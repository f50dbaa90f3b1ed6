#pragma once

#include <QPair>
#include <QString>
#include <QTextStream>

namespace kartella::tool {

// Each throws kartella::Error on failure.

// A new, empty register at path.
void CreateCommand(const QString& path);
// A new register at path, filled with `documents` sample documents; a register left
// half made by a failure is removed again.
void SampleCommand(const QString& path, int documents, quint32 seed, QTextStream& out);
// "tbl_Documents: 123", one line per table.
void InfoCommand(const QString& path, QTextStream& out);

} // namespace kartella::tool
