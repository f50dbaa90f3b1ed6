#pragma once

#include <QPair>
#include <QString>
#include <QTextStream>

namespace kartella::tool {

// Each throws kartella::Error on failure.

// A new, empty register at path.
void createCommand(const QString& path);
// A new register at path, filled with `documents` sample documents; a register left
// half made by a failure is removed again.
void sampleCommand(const QString& path, int documents, quint32 seed, QTextStream& out);
// "tbl_Documents: 123", one line per table.
void infoCommand(const QString& path, QTextStream& out);

} // namespace kartella::tool
