#include "store/Lookups.h"

#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

namespace kartella {

namespace {

// Opens a connection of its own, reads `field` of the first row of sql and closes
// everything again; Null when the statement gives no row.
QVariant FirstRowValue(const QString& sql, const QString& field, int mode)
{
    Connection connection;
    connection.SetConnectionString(PlainConnectionString());
    if (mode != ConnectModeEnum::Unknown)
        connection.SetMode(mode);
    connection.Open();
    Recordset recordset;
    recordset.Open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified, -1);
    const QVariant value = recordset.Eof() ? NullValue() : recordset.Fields(field).Value();
    recordset.Close();
    connection.Close();
    return value;
}

QString IdText(const QVariant& id)
{
    return QString::number(id.toLongLong());
}

} // namespace

QVariant GetFieldValue(const QString& keyField, const QString& valueField, const QString& table, qint32 id)
{
    const QString sql = QStringLiteral("SELECT ") + keyField + u',' + valueField + QStringLiteral(" FROM ")
        + table + QStringLiteral(" WHERE ") + keyField + u'=' + QString::number(id);
    return FirstRowValue(sql, valueField, ConnectModeEnum::Unknown);
}

QString GetContactName(const QVariant& contactId)
{
    if (IsNull(contactId))
        return NullMark;
    const QString sql = QStringLiteral("SELECT tbl_Contacts.ContactID, tbl_Contacts.FullName ")
        + QStringLiteral("FROM tbl_Contacts ") + QStringLiteral("WHERE tbl_Contacts.ContactID=")
        + IdText(contactId);
    return NullToMark(FirstRowValue(sql, QStringLiteral("FullName"), ConnectModeEnum::ShareDenyNone))
        .toString();
}

QString GetCategoryName(const QVariant& categoryId)
{
    if (IsNull(categoryId))
        return NullMark;
    const QString sql
        = QStringLiteral("SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija ")
        + QStringLiteral("FROM tbl_Document_Categories ")
        + QStringLiteral("WHERE tbl_Document_Categories.KategID=") + IdText(categoryId);
    return NullToMark(FirstRowValue(sql, QStringLiteral("DokKategorija"), ConnectModeEnum::ShareDenyNone))
        .toString();
}

} // namespace kartella
