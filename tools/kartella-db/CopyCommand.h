#pragma once

#include <QString>
#include <QTextStream>

namespace kartella::tool {

// Copies the register at `from` into a new register at `to` (each a file path or a server
// location), prints one line per table with its row count and whether it arrived, then
// where the copy is. A copy that takes a while tells its progress on err. Gives the exit
// status: 0 when every count matches, 1 when one differs (nothing is then kept at `to`).
// Throws kartella::Error when the copy can't be made or fails, with nothing kept at `to`.
int copyCommand(const QString& from, const QString& to, QTextStream& out, QTextStream& err);

} // namespace kartella::tool
