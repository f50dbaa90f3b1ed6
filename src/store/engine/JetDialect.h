#pragma once

#include <QString>

namespace kartella::engine {

// Turns a statement in Jet's dialect into one that SQLite runs with the same meaning:
//  - #m/d/yyyy# date literals (also with a time, or in ISO form) become ISO text literals,
//    month first whatever the locale;
//  - DELETE t.*[, t.f ...] FROM t ... becomes DELETE FROM t ...;
//  - UPDATE t SET t.f = ... loses the table name in front of each assigned field;
//  - `name` becomes "name";
//  - a trailing ; goes;
//  - SELECT <named columns> FROM A RIGHT JOIN B ON ... becomes ... FROM B LEFT JOIN A ON ...,
//    which SQLite runs much faster (it can follow an index of B for ORDER BY and WHERE).
// Is Null and Like are SQLite's own (Like with the engine's function), and so are other
// forms of RIGHT JOIN. Text inside string literals is never changed.
QString translateJetToSqlite(const QString& sql);

} // namespace kartella::engine
