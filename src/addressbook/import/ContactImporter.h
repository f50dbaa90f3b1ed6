#pragma once

#include "addressbook/import/ContactItem.h"

#include <QString>

#include <functional>

namespace kartella {

class Error;

// What a run of the importer did.
struct ContactImportCounts
{
    int added = 0; // contacts stored
    int skipped = 0; // items without a name, and names already in the register
    int alreadyThere = 0; // of skipped: names already in the register
    int failed = 0; // items of which a step failed: not stored, or stored without all of their rows
    int errors = 0; // failed steps passed over
};

// Copies contact items into tbl_Contacts, tbl_Phones and tbl_HomePages of a register,
// adding and never changing: an item without a FullName, or whose FullName is already
// there in any letter case, is skipped whole. The fields of a new contact are cut to
// their widths (CompanyName, Title, FullName, City and EmailName 50, Address 255,
// StateOrProvince and PostalCode 20, Country and Notes not cut); its web page and then its
// business, home, mobile, fax and pager numbers follow, each as a row of its own.
//
// Every step that fails (opening, the lookup, each AddNew, field and Update) is handed
// to the error handler: true goes on with the next step of the same item, false stops
// the run. Rows written before a failure stay, on every back end.
class ContactImporter
{
public:
    using ErrorHandler = std::function<bool(const Error&)>;

    ContactImporter(QString connectionString, ErrorHandler onError);

    // True when the loop went through all items, false when the handler stopped it.
    bool run(const QList<ContactItem>& items);
    const ContactImportCounts& counts() const { return m_counts; }

private:
    QString m_connectionString;
    ErrorHandler m_onError;
    ContactImportCounts m_counts;
};

// The first `width` characters of text (never half of a surrogate pair).
QString cutText(const QString& text, int width);

} // namespace kartella
