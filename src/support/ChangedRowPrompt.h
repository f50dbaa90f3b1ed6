#pragma once

#include "store/engine/Constants.h"

#include <QList>
#include <QPair>
#include <QString>
#include <QVariant>

#include <functional>

namespace kartella {

class Error;
class Recordset;

// What a save does after it met a row that another user changed since it was read.
enum class ChangedRowChoice {
    // The row shows what is stored now; what was typed is dropped (it was shown).
    Reload,
    // What was typed is stored over it: save again.
    KeepMine,
    // Nothing is stored; the dialog keeps what was typed, and a later save stores it over
    // the values that were shown.
    Cancel,
};

// The name a dialog shows for a field's value, where the row holds a key (a contact's name
// for its ContactID); empty text where the value is shown as it is.
using ShownNames = std::function<QString(const QString& field, const QVariant& value)>;

// Whether a refused write says that another user changed the row since it was read.
bool rowWasChanged(const Error& error);

// Tells the user "This <what> was changed by another user since you opened it.", with each
// field of the current row typed here that the register now holds otherwise: its caption
// (captions pairs field names with the captions the dialog shows; a field without one goes
// by its name), the stored value and the one typed, each by the name shownNames gives it. The rows of
// recordset that affect names (an AffectEnum) are read again first, so that whatever the user chooses, the
// next write finds them as they are now and keeps what the other user stored in the fields not typed here.
// Asked through the Prompter: Reload, Keep Mine, Cancel.
ChangedRowChoice resolveChangedRow(Recordset& recordset, const QString& what,
    const QList<QPair<QString, QString>>& captions, const QString& title, int affect = AffectEnum::Current,
    const ShownNames& shownNames = {});

// Writes recordset's changes (updateBatch of affect); rows another user changed meanwhile
// are resolved as resolveChangedRow does, and written again while the user keeps theirs.
// True when written; false when the user reloaded or went back to what was typed. Other
// errors travel to the caller.
bool storeResolvingChanges(Recordset& recordset, int affect, const QString& what,
    const QList<QPair<QString, QString>>& captions, const QString& title, const ShownNames& shownNames = {});

} // namespace kartella
