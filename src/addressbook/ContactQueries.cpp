#include "addressbook/ContactQueries.h"

#include "store/Store.h"
#include "store/engine/SqlText.h"

namespace kartella::ContactQueries {

namespace {

const QString ContactSelect = QStringLiteral(
    "select ContactID,CompanyName,Title,Dear,FullName,Address,City,StateOrProvince,PostalCode,Country,"
    "EmailName,Notes from tbl_Contacts");

QString shapeOfContact(const QString& contactId, const QString& childSelect)
{
    const QString id = contactId.trimmed().isEmpty() ? QStringLiteral("0") : contactId;
    return QStringLiteral("SHAPE {select ContactID from tbl_Contacts WHERE ContactID=") + id
        + QStringLiteral("} AS ParentCMD APPEND ({") + childSelect
        + QStringLiteral(" } AS ChildCMD RELATE ContactID TO ContactID) AS ChildCMD");
}

} // namespace

QString allContacts()
{
    return ContactSelect + QStringLiteral(" ORDER BY FullName");
}

QString filterLetter(int index)
{
    if (index < 0 || index >= AllContacts)
        return {};
    return QString(QChar(65 + index));
}

QString filter(int index)
{
    const QString letter = filterLetter(index);
    if (letter.isEmpty())
        return allContacts();
    // Two blanks before WHERE.
    return ContactSelect + QStringLiteral("  WHERE FullName Like ") + sqlString(letter + u'%')
        + QStringLiteral(" ORDER BY FullName");
}

QString phonesOf(const QString& contactId)
{
    return shapeOfContact(
        contactId, QStringLiteral("select ContactID,PhoneID,PhoneName,PhoneNumber from tbl_Phones"));
}

QString homePagesOf(const QString& contactId)
{
    return shapeOfContact(
        contactId, QStringLiteral("select ContactID,HomeID,Description,HomeWWW from tbl_HomePages"));
}

QString contactsWithPhones()
{
    return QStringLiteral(
        "SHAPE {select ContactID,CompanyName,Title,Dear,FullName,Address,City,StateOrProvince,"
        "PostalCode,Country,EmailName,Notes from tbl_Contacts} AS ParentCMD APPEND ({select "
        "ContactID,PhoneID,PhoneName,PhoneNumber from tbl_Phones } AS ChildCMD RELATE ContactID "
        "TO ContactID) AS ChildCMD");
}

QString homePagesFor(const QVariant& contactId)
{
    return QStringLiteral("select HomeID,ContactID,Description,HomeWWW from tbl_HomePages WHERE ContactID=")
        + nullToDefault(contactId, 0).toString();
}

QString lineText(const QVariant& fullName, const QVariant& companyName)
{
    if (!fullName.isNull())
        return fullName.toString();
    if (!companyName.isNull())
        return companyName.toString();
    return NullMark;
}

} // namespace kartella::ContactQueries
