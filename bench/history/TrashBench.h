#pragma once

#include <QTextStream>

namespace kartella::bench {

// Deletes a document with 20 related documents and their files into the trash of a new
// register file in folder, then restores it; prints delete_ms and restore_ms (each the
// median of a few rounds).
void measureTrash(const QString& folder, QTextStream& out);

} // namespace kartella::bench
