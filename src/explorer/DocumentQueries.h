#pragma once

#include <QDate>
#include <QString>

namespace kartella {

// The texts of the document list queries. Every list of documents comes from one base
// SELECT with clauses appended; a category, subcategory or direction of 0 adds no clause.
// The builders keep nothing: the caller passes the option Filter and the two dates as
// they stand at the moment of the call.

// A date as Jet reads it between "#" marks: month/day/year, no leading zeros, whatever
// the locale ("3/5/2024" for 5 March 2024).
QString jetDate(const QDate& date);

// The base text; it ends in a blank.
QString documentSql();
// The base text followed by the date range clause (both ends included).
QString datedDocumentSql(const QDate& start, const QDate& end);

// By category; the date range applies when filterOn is true.
QString categoryListSql(qint32 category, int direction, bool filterOn, const QDate& start, const QDate& end);
// By category, always within the date range.
QString categoryDatedListSql(qint32 category, int direction, const QDate& start, const QDate& end);
// By subcategory; the date range applies when filterOn is true. Without a category the
// subcategory is ignored.
QString subCategoryListSql(
    qint32 category, qint32 subCategory, int direction, bool filterOn, const QDate& start, const QDate& end);
// By subcategory, always within the date range.
QString subCategoryDatedListSql(
    qint32 category, qint32 subCategory, int direction, const QDate& start, const QDate& end);

// The contact and letter modes: rows by date and direction only; the list keeps the
// wanted contact's rows itself.
QString contactDocumentSql(int direction, bool filterOn, const QDate& start, const QDate& end);
QString contactDatedDocumentSql(int direction, const QDate& start, const QDate& end);

// Option Filter as a truth value: any number but 0 is true; 0, "Not Found", empty or
// other text is false.
bool filterOptionOn();

} // namespace kartella
