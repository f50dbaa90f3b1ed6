#pragma once

#include <QString>
#include <QTextStream>

namespace kartella::tool {

// Brings the register at path to the newest schema, one numbered step after the other;
// writes a line per step run, or that the register is up to date. Throws kartella::Error.
void upgradeCommand(const QString& path, QTextStream& out);

} // namespace kartella::tool
