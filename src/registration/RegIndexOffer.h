#pragma once

#include <QString>

class QLineEdit;

namespace kartella {

// The index in box, which a save found taken, is refused with the next number the register
// leaves free on offer, held for this user (the register is opened with connectionString).
// True when the save may go on with that number in the box; false when the user keeps
// editing, the box focused with its text selected.
bool offerFreeRegIndex(QLineEdit* box, const QString& connectionString, const QString& title);

} // namespace kartella
