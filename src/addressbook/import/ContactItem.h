#pragma once

#include <QList>
#include <QMap>
#include <QString>

namespace kartella {

// One contact read from a contact file, as Outlook's contact item properties: name to
// text. A property the file does not give is absent, which reads as empty.
using ContactItem = QMap<QString, QString>;

// The properties the import reads, by their Outlook names.
namespace ContactProperty {
inline const QString FullName = QStringLiteral("FullName");
inline const QString CompanyName = QStringLiteral("CompanyName");
inline const QString Title = QStringLiteral("Title");
inline const QString Street = QStringLiteral("BusinessAddressStreet");
inline const QString City = QStringLiteral("BusinessAddressCity");
inline const QString State = QStringLiteral("BusinessAddressState");
inline const QString PostalCode = QStringLiteral("BusinessAddressPostalCode");
inline const QString Country = QStringLiteral("BusinessAddressCountry");
inline const QString Email = QStringLiteral("Email1Address");
inline const QString HomePage = QStringLiteral("BusinessHomePage");
inline const QString BusinessPhone = QStringLiteral("BusinessTelephoneNumber");
inline const QString HomePhone = QStringLiteral("HomeTelephoneNumber");
inline const QString MobilePhone = QStringLiteral("MobileTelephoneNumber");
inline const QString Fax = QStringLiteral("BusinessFaxNumber");
inline const QString Pager = QStringLiteral("PagerNumber");
inline const QString Notes = QStringLiteral("Body"); // free text, line breaks kept
} // namespace ContactProperty

} // namespace kartella
