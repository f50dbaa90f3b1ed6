#pragma once

#include "addressbook/import/ContactItem.h"

#include <QByteArray>

namespace kartella {

// Reads the contacts of an Outlook CSV export (the English column names; comma, semicolon
// or tab separated, told from the header line; quoted fields may hold separators, quotes
// and line breaks) into Outlook contact properties:
//
//   FullName       "First Name", "Middle Name", "Last Name" joined by blanks
//   CompanyName    "Company"
//   Title          "Job Title" ("Title" is the courtesy title and is not read)
//   BusinessAddressStreet  "Business Street", then "Business Street 2" and "3" each on
//                  a line of its own when not empty
//   the rest of the address  "Business City", "Business State", "Business Postal Code",
//                  "Business Country/Region"
//   Email1Address, BusinessHomePage  "E-mail Address", "Web Page"
//   phones         "Business Phone", "Home Phone", "Mobile Phone", "Business Fax", "Pager"
//   Body           "Notes", with the line breaks it holds
//
// The text is UTF-8 when it starts with a byte order mark or is valid UTF-8, else
// codePage (or, when that is empty, the code page guessed from the file). A file whose
// first line names none of these columns holds no contacts, and recognised (when given)
// is set to false for it.
QList<ContactItem> readOutlookCsv(
    const QByteArray& file, const QString& codePage = {}, bool* recognised = nullptr);

} // namespace kartella
