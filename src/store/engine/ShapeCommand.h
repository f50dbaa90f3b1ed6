#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace kartella::engine {

// A data shaping command, as the program writes them:
//   SHAPE {parent select} [AS name] APPEND ({child select} [AS name] RELATE a TO b[, c TO d])
//       [AS chapter][, ({...} RELATE ...) AS chapter2 ...]
//   SHAPE {select} [AS name] COMPUTE name[, COUNT(name.'field') AS alias ...] BY 'f1', 'f2', ...
// Field names may stand bare or in quotes.
struct ShapeCommand
{
    struct Relation
    {
        QString parentField;
        QString childField;
    };
    struct Append
    {
        QString sql;
        QString alias;
        std::vector<Relation> relations;
        QString chapter;
    };
    struct Aggregate
    {
        QString function; // COUNT, SUM, MIN, MAX or AVG, in capitals
        QString field; // empty for COUNT(name)
        QString alias;
    };

    QString sql;
    QString alias;
    std::vector<Append> appends;
    bool compute = false;
    QString computeChapter;
    std::vector<Aggregate> aggregates;
    QStringList by;
};

bool isShapeCommand(const QString& text);
// Throws kartella::Error (ErrorNumber::CommandFailed) naming what it couldn't read.
ShapeCommand parseShape(const QString& text);

// The SELECT for a recordset source: the source itself, or SELECT * FROM it when it is
// just a table or view name.
QString selectText(const QString& source);
// The select of source (as selectText) narrowed to the rows meeting condition, a WHERE
// condition in Jet's dialect; source as it is for an empty condition.
QString restrictedSelect(const QString& source, const QString& condition);
// The condition that a filter of the form "field=number" puts into a select; empty for any
// other filter.
QString keyRestriction(const QString& filter);

} // namespace kartella::engine
