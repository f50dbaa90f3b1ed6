#pragma once

#include "store/engine/Recordset.h"

#include <QDate>
#include <QString>
#include <QStringList>

namespace kartella::test {

class TestRegister;

// A small register whose every row is known, for the statements of the program:
//
// categories   1 "Sutartys" SUT, 2 "Žemės nuoma" ZEM, 3 "Ataskaitos" (no mnemonic, no
//              folder), 4 "čekiai"; by name: 3, 4, 1, 2
// subcategories 1, 2 of category 1; 3 of category 3; 4 of category 0; 5 without a title
// contacts     1 "Petras Jonaitis", 2 "Ąžuolas Kazlauskas", 3 a company without name,
//              4 "antanas adomaitis", 5 "Šarūnė Vaitkutė" (no phones); by name: 3, 4, 2, 1, 5
// phones       1, 2 of contact 1 (Business, Mobile); 3 of 2; 4 of 3; 5 of 4
// web pages    1 of contact 1; 2 of contact 3
// documents    by registration date 4, 1, 6, 2, 3, 5 (Feb to Apr 2024), then 8 (first
//              day of the previous month) and 7 (today); 2 and 5 have no contact
//              (5 also no category); directions 1:3 2:2 3:1 4:4 5:3 6:3 7:1 8:2
// related      1, 2 of document 1 (2 without contact and file); 3 of document 3
// reminders    1 (Mar 15), 2 (Mar 1) of document 1; 3 (Feb 20) of document 4
void buildFixture(const TestRegister& reg);

QDate firstOfPreviousMonth();

// Opens source on connection; a failure fails the running test (and gives false) instead
// of ending the test program.
bool tryOpen(Recordset& recordset, const QString& source, Connection& connection);

// Field values of the current row joined by "|": Null as "-", dates as yyyy-MM-dd.
QString renderRow(Recordset& recordset, const QStringList& fields);
// All rows so rendered, from the first.
QStringList renderRows(Recordset& recordset, const QStringList& fields);

} // namespace kartella::test
