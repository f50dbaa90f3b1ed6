#pragma once

#include <QHash>
#include <QString>

namespace kartella::engine {

// The collation of names: case and the Lithuanian letters fold onto their base letters
// (Ą→A, Č→C, Ę/Ė→E, Į→I, Š→S, Ų/Ū→U, Ž→Z). Every connection of the SQLite back end has it;
// no register names it (a register is plain SQLite for every other tool), so the
// translation below adds it where the program orders or compares names.
inline constexpr const char* NameCollation = "NAMEFOLD";

// Turns a statement in Jet's dialect into one that SQLite runs with the same meaning:
//  - #m/d/yyyy# date literals (also with a time, or in ISO form) become ISO text literals,
//    month first whatever the locale;
//  - DELETE t.*[, t.f ...] FROM t ... becomes DELETE FROM t ...;
//  - UPDATE t SET t.f = ... loses the table name in front of each assigned field;
//  - `name` becomes "name";
//  - a trailing ; goes;
//  - a name column (FullName, CompanyName, DokKategorija, DokSubKategorija, plain or
//    qualified) gets COLLATE NAMEFOLD where it is an ORDER BY term or an operand of <, >,
//    <=, >= or BETWEEN, in SELECT, UPDATE and DELETE (= and <> need none: names equal
//    under the collation are equal byte for byte);
//  - SELECT <named columns> FROM A RIGHT JOIN B ON ... becomes ... FROM B LEFT JOIN A ON ...,
//    which SQLite runs much faster (it can follow an index of B for ORDER BY and WHERE).
// Is Null and Like are SQLite's own (Like with the engine's function), and so are other
// forms of RIGHT JOIN. Text inside string literals is never changed.
QString translateJetToSqlite(const QString& sql);

// The names a PostgreSQL database knows, by their lower-case form: each as it was declared,
// for example "tbl_documents" -> "tbl_Documents".
using ServerNames = QHash<QString, QString>;

// Turns a statement in Jet's dialect into one that PostgreSQL runs with the same meaning.
// SELECT, INSERT, UPDATE, DELETE and WITH statements get what SQLite's translation does,
// and besides:
//  - a date literal becomes DATE '...' (TIMESTAMP '...' with a time);
//  - a name the database knows, bare or quoted in any case, becomes its declared name in
//    double quotes (PostgreSQL folds bare names to lower case, and the register's tables
//    are declared in mixed case); an alias after AS is quoted as written, and so is every
//    later use of it; [name] becomes "name";
//  - Like becomes ILIKE, case-insensitive as the engine's Like, with ESCAPE '' unless the
//    statement gives an escape (Jet's Like has none, PostgreSQL's is a backslash);
//  - COLLATE NAMEFOLD stays: a register on a server has a collation of that name;
//  - an ORDER BY term gets NULLS FIRST (NULLS LAST when descending), where Jet and SQLite
//    put Null, unless it says NULLS itself.
// Other statements (CREATE, ALTER, DROP, SET, ...) are the server's own and pass unchanged
// but for a trailing ;.
QString translateJetToPostgres(const QString& sql, const ServerNames& names);

} // namespace kartella::engine
