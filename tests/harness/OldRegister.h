#pragma once

#include <QString>

namespace kartella::test {

// Makes at path (a new file) a register of schema version 1 as earlier programs made it:
// its name columns, their index and its views declared with the engine's collation, so
// that only Kartella could read it. It holds
// categories     1 "Zita" ZIT, 3 "Ąžuolynas" AZU, 4 "bylos"; 9 deleted
// subcategories  2 "Vidaus" of 1, 5 "Ąsočiai" of 3, 6 without title of 4
// contacts       1 "Petras" (UAB Beta), 2 "Ąžuolas", 5 "antanas", 7 "Šarūnė"; 8 deleted
// documents      1 (Mar 1 2024, contact 2, category 3), 4 (Feb 29 2024, category 1)
// one related document, reminder, phone (of 2) and web page (of 1).
// A failure fails the running test.
void makeOldRegister(const QString& path);

} // namespace kartella::test
