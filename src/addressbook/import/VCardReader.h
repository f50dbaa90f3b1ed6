#pragma once

#include "addressbook/import/ContactItem.h"

#include <QByteArray>

namespace kartella {

// Reads the contacts of a vCard file (versions 2.1, 3.0 and 4.0, any number of cards)
// into Outlook contact properties:
//
//   FullName       FN, else the given, additional and family names of N joined by blanks
//   CompanyName    the first component of ORG
//   Title          TITLE (the job title)
//   BusinessAddress*  street, city, region, postal code and country of the ADR of type
//                  WORK, else of the first ADR
//   Email1Address  the EMAIL of type PREF, else the first
//   BusinessHomePage  the URL of type WORK, else the first
//   phones         by TEL type: WORK without FAX (else no type or only VOICE) is the
//                  business phone, HOME without FAX the home phone, CELL the mobile,
//                  FAX with WORK or no place the fax, PAGER the pager; the first TEL
//                  that fits a property wins.
//   Body           NOTE, with its line breaks; the notes of several NOTE lines one under
//                  another
//
// Values may be folded, escaped, quoted-printable (with soft line breaks) and carry a
// CHARSET; text without one is UTF-8 when it is valid UTF-8, else defaultCharset (or, when
// that is empty, the code page guessed from the file, or from the value's own bytes when the
// file itself is UTF-8). Lines that make no sense are passed
// over: the reader never fails, it gives what it could read.
QList<ContactItem> readVCards(const QByteArray& file, const QString& defaultCharset = {});

// Whether data looks like a vCard file (it starts, after blanks, with BEGIN:VCARD).
bool looksLikeVCard(const QByteArray& data);

} // namespace kartella
