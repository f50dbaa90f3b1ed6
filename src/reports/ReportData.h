#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace kartella {

// The rows of one report: a parent row for each group with the child rows of its
// chapter. Values stand in the order of the field names asked for.
struct ReportGroup
{
    QVariantList values;
    QList<QVariantList> children;
};

struct ReportData
{
    QStringList parentFields;
    QStringList childFields;
    QList<ReportGroup> groups;

    int childCount() const;
};

// The text a report prints for a value: dates in the short form of the system's
// language, a Null as nothing.
QString reportText(const QVariant& value);

} // namespace kartella
