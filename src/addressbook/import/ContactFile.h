#pragma once

#include "addressbook/import/ContactItem.h"

namespace kartella {

// The contacts of a contact file: a vCard file when it starts with BEGIN:VCARD, else an
// Outlook CSV export. codePage names the code page of 8-bit text that is not UTF-8;
// empty lets the readers guess. Throws kartella::Error (ErrorNumber::PathFileAccess)
// with a reason that names the file when it cannot be read.
QList<ContactItem> readContactFile(const QString& path, const QString& codePage = {});

} // namespace kartella
