// The documents of a search's tests: added with a description, a date and a file's text, and
// the ids a query or a search lists.
#pragma once

#include "explorer/DocumentSearch.h"
#include "harness/TestRegister.h"

#include <QDate>
#include <QList>
#include <QString>

namespace kartella {
class Connection;
}

namespace kartella::test {

using Ids = QList<qint32>;

// The ids of the documents a query lists, in its order.
Ids idsOf(Connection& connection, const QString& sql);

// The documents found for a text, in the order of the window's list of results: ranked once
// on the connection that reads the list, a term of `broadHits` hits or more being broad.
Ids found(const TestRegister& reg, const QString& text, qint64 broadHits = 5000);

qint32 addDocument(
    const TestRegister& reg, const QString& description, const QDate& date = QDate(2024, 3, 5));

// The text read from the document's file, as the reader stores it.
void addText(const TestRegister& reg, qint32 id, const QString& body);

} // namespace kartella::test
