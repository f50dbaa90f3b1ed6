#include "store/Lookups.h"

#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

namespace kartella {

namespace {

// Opens a connection of its own, reads `field` of the first row of sql and closes
// everything again; Null when the statement gives no row.
QVariant firstRowValue(const QString& sql, const QString& field, int mode)
{
    Connection connection;
    connection.setConnectionString(plainConnectionString());
    if (mode != ConnectModeEnum::Unknown)
        connection.setMode(mode);
    connection.open();
    Recordset recordset;
    recordset.open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified, -1);
    const QVariant value = recordset.eof() ? nullValue() : recordset.fields(field).value();
    recordset.close();
    connection.close();
    return value;
}

QString idText(const QVariant& id)
{
    return QString::number(id.toLongLong());
}

} // namespace

QVariant getFieldValue(const QString& keyField, const QString& valueField, const QString& table, qint32 id)
{
    const QString sql = QStringLiteral("SELECT ") + keyField + u',' + valueField + QStringLiteral(" FROM ")
        + table + QStringLiteral(" WHERE ") + keyField + u'=' + QString::number(id);
    return firstRowValue(sql, valueField, ConnectModeEnum::Unknown);
}

QString getContactName(const QVariant& contactId)
{
    if (isNull(contactId))
        return NullMark;
    const QString sql = QStringLiteral("SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName ")
        + QStringLiteral("FROM tbl_Contacts ") + QStringLiteral("WHERE tbl_Contacts.ContactID=")
        + idText(contactId);
    return nullToMark(firstRowValue(sql, QStringLiteral("FullName"), ConnectModeEnum::ShareDenyNone))
        .toString();
}

QString getCategoryName(const QVariant& categoryId)
{
    if (isNull(categoryId))
        return NullMark;
    const QString sql
        = QStringLiteral("SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija ")
        + QStringLiteral("FROM tbl_Document_Categories ")
        + QStringLiteral("WHERE tbl_Document_Categories.KategID=") + idText(categoryId);
    return nullToMark(firstRowValue(sql, QStringLiteral("DokKategorija"), ConnectModeEnum::ShareDenyNone))
        .toString();
}

} // namespace kartella
