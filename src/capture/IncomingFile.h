#pragma once

#include <QString>
#include <QVariant>

namespace kartella {

// A file that comes into the register from outside: dropped on the main window (copied; the
// original stays) or taken from the inbox folder (moved out of it).
enum class Intake { Copy, Move };

// What names an incoming file's place: the new document's category, subcategory (empty:
// none), description and registration index.
struct IncomingTarget
{
    QVariant category;
    QVariant subCategory;
    QString description;
    QString regIndex;
};

// Copies or moves source to the folder of target's subcategory (else its category), under
// the name the register's naming system gives a new file, with source's extension. Returns
// the new path; empty when the naming gave none (the user was told why). Throws
// kartella::Error with a message for the user when no category is chosen, the name is taken,
// source has gone, or the copy or move fails; the files are then as they were.
QString placeIncomingFile(const QString& source, Intake intake, const IncomingTarget& target);

// Undoes placeIncomingFile after the document could not be stored: a copy is removed, a
// moved file goes back to source. True when it did.
bool takeBackIncomingFile(const QString& placed, const QString& source, Intake intake);

} // namespace kartella
