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
    QString sql = DatedDocumentSql(start, end);
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
    QString sql = DocumentSql();
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

QString JetDate(const QDate& date)
{
    return QString::number(date.month()) % QLatin1Char('/') % QString::number(date.day()) % QLatin1Char('/')
        % QString::number(date.year());
}

QString DocumentSql()
{
    return QStringLiteral(
        "SELECT tbl_Documents.RastasID, tbl_Documents.DokGavSiuntData, tbl_Documents.DokRegistracData, "
        "tbl_Documents.DokRegistracIndeksas, tbl_Documents.DokAntraste, tbl_Documents.DokVykdytojas, "
        "tbl_Documents.DokIvykdymoZyma, tbl_Documents.RastoKel, tbl_Documents.ContactID, "
        "tbl_Contacts.FullName, "
        "tbl_Documents.KategID, tbl_Documents.DokPastaba FROM tbl_Contacts RIGHT JOIN tbl_Documents ON "
        "tbl_Contacts.ContactID = tbl_Documents.ContactID ");
}

QString DatedDocumentSql(const QDate& start, const QDate& end)
{
    return DocumentSql() % DateRangeOpening % JetDate(start) % DateRangeMiddle % JetDate(end)
        % DateRangeClose;
}

QString CategoryListSql(qint32 category, int direction, bool filterOn, const QDate& start, const QDate& end)
{
    return SubCategoryListSql(category, 0, direction, filterOn, start, end);
}

QString CategoryDatedListSql(qint32 category, int direction, const QDate& start, const QDate& end)
{
    return SubCategoryDatedListSql(category, 0, direction, start, end);
}

QString SubCategoryListSql(
    qint32 category, qint32 subCategory, int direction, bool filterOn, const QDate& start, const QDate& end)
{
    const QString sql = filterOn ? datedWithFilters(category, subCategory, direction, start, end)
                                 : undatedWithFilters(category, subCategory, direction);
    return sql % Ordering;
}

QString SubCategoryDatedListSql(
    qint32 category, qint32 subCategory, int direction, const QDate& start, const QDate& end)
{
    return datedWithFilters(category, subCategory, direction, start, end) % Ordering;
}

QString ContactDocumentSql(int direction, bool filterOn, const QDate& start, const QDate& end)
{
    if (filterOn)
        return ContactDatedDocumentSql(direction, start, end);
    return undatedWithFilters(0, 0, direction) % Ordering;
}

QString ContactDatedDocumentSql(int direction, const QDate& start, const QDate& end)
{
    QString sql = DatedDocumentSql(start, end);
    if (direction != 0)
        sql += ContactDirectionLater % QString::number(direction);
    return sql % Ordering;
}

bool FilterOptionOn()
{
    bool isNumber = false;
    const double value = GetRegValue(QStringLiteral("Filter")).trimmed().toDouble(&isNumber);
    return isNumber && value != 0.0;
}

} // namespace kartella
