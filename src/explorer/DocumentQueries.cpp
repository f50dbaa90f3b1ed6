#include "explorer/DocumentQueries.h"

#include "options/OptionStore.h"

namespace kartella {

namespace {

const QString DateRangeOpening = QStringLiteral("WHERE tbl_Documents.DokRegistracData between #");
const QString DateRangeMiddle = QStringLiteral("# and #");
const QString DateRangeClose = QStringLiteral("#");
const QString CategoryFirst = QStringLiteral("WHERE tbl_Documents.KategID=");
const QString CategoryLater = QStringLiteral("AND tbl_Documents.KategID=");
const QString SubCategoryLater = QStringLiteral("AND tbl_Documents.SubKategID=");
const QString DirectionFirst = QStringLiteral("WHERE tbl_Documents.KryptisID=");
const QString DirectionLater = QStringLiteral("AND tbl_Documents.KryptisID=");
const QString ContactDirectionLater = QStringLiteral(" AND tbl_Documents.KryptisID=");
const QString Ordering = QStringLiteral(" ORDER BY tbl_Documents.DokRegistracData");

// S, a blank, the clause and its number.
void add(QString& sql, const QString& clause, qint64 number)
{
    sql += QLatin1Char(' ') % clause % QString::number(number);
}

// The date range form: each filter that is set narrows it further.
QString datedWithFilters(
    qint32 category, qint32 subCategory, int direction, const QDate& start, const QDate& end)
{
    QString sql = datedDocumentSql(start, end);
    if (category != 0)
        add(sql, CategoryLater, category);
    if (subCategory != 0)
        add(sql, SubCategoryLater, subCategory);
    if (direction != 0)
        add(sql, DirectionLater, direction);
    return sql;
}

// The form without dates: the first clause opens with WHERE.
QString undatedWithFilters(qint32 category, qint32 subCategory, int direction)
{
    QString sql = documentSql();
    if (category != 0) {
        add(sql, CategoryFirst, category);
        if (subCategory != 0)
            add(sql, SubCategoryLater, subCategory);
        if (direction != 0)
            add(sql, DirectionLater, direction);
    } else if (direction != 0) {
        add(sql, DirectionFirst, direction);
    }
    return sql;
}

} // namespace

QString jetDate(const QDate& date)
{
    return QString::number(date.month()) % QLatin1Char('/') % QString::number(date.day()) % QLatin1Char('/')
        % QString::number(date.year());
}

QString documentSql()
{
    return QStringLiteral(
        "SELECT tbl_Documents.RastasID, tbl_Documents.DokGavSiuntData, tbl_Documents.DokRegistracData, "
        "tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokAntraste, tbl_Documents.DokVykdytojas, "
        "tbl_Documents.DokIvykdymoZyma, tbl_Documents.RastoKel, tbl_Documents.ContactID, "
        "tbl_Contacts.FullName, "
        "tbl_Documents.KategID, tbl_Documents.DokPastaba FROM tbl_Contacts RIGHT JOIN tbl_Documents ON "
        "tbl_Contacts.ContactID = tbl_Documents.ContactID ");
}

QString datedDocumentSql(const QDate& start, const QDate& end)
{
    return documentSql() % DateRangeOpening % jetDate(start) % DateRangeMiddle % jetDate(end)
        % DateRangeClose;
}

QString categoryListSql(qint32 category, int direction, bool filterOn, const QDate& start, const QDate& end)
{
    return subCategoryListSql(category, 0, direction, filterOn, start, end);
}

QString categoryDatedListSql(qint32 category, int direction, const QDate& start, const QDate& end)
{
    return subCategoryDatedListSql(category, 0, direction, start, end);
}

QString subCategoryListSql(
    qint32 category, qint32 subCategory, int direction, bool filterOn, const QDate& start, const QDate& end)
{
    const QString sql = filterOn ? datedWithFilters(category, subCategory, direction, start, end)
                                 : undatedWithFilters(category, subCategory, direction);
    return sql % Ordering;
}

QString subCategoryDatedListSql(
    qint32 category, qint32 subCategory, int direction, const QDate& start, const QDate& end)
{
    return datedWithFilters(category, subCategory, direction, start, end) % Ordering;
}

QString contactDocumentSql(int direction, bool filterOn, const QDate& start, const QDate& end)
{
    if (filterOn)
        return contactDatedDocumentSql(direction, start, end);
    return undatedWithFilters(0, 0, direction) % Ordering;
}

QString contactDatedDocumentSql(int direction, const QDate& start, const QDate& end)
{
    QString sql = datedDocumentSql(start, end);
    if (direction != 0)
        sql += ContactDirectionLater % QString::number(direction);
    return sql % Ordering;
}

bool filterOptionOn()
{
    bool isNumber = false;
    const double value = getRegValue(QStringLiteral("Filter")).trimmed().toDouble(&isNumber);
    return isNumber && value != 0.0;
}

} // namespace kartella
