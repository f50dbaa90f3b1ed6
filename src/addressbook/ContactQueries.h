#pragma once

#include <QString>
#include <QVariant>

namespace kartella {

// The commands of the address book and the contact editor.
namespace ContactQueries {

// The index of the filter button that shows every contact; 0 to 25 are the letters A to Z.
constexpr int AllContacts = 26;

// Every contact with its twelve fields, by full name.
QString allContacts();
// The contacts of filter button index: those whose full name starts with the letter of
// code 65 + index, or every contact for AllContacts (and any index out of range).
QString filter(int index);
// The letter of filter button index ("A" to "Z"); empty for AllContacts.
QString filterLetter(int index);
// The shaped commands of one contact's phones and web pages (child command "ChildCMD"). An
// empty id selects no contact.
QString phonesOf(const QString& contactId);
QString homePagesOf(const QString& contactId);

// The contact editor's row source: every contact with its phones as the chapter "ChildCMD".
QString contactsWithPhones();
// The web pages of one contact, as the contact editor shows them.
QString homePagesFor(const QVariant& contactId);

// The text of a contact's line in the list: its full name, else its company name, else the
// null mark.
QString lineText(const QVariant& fullName, const QVariant& companyName);

} // namespace ContactQueries

} // namespace kartella
