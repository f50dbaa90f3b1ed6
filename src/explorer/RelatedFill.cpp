#include "explorer/RelatedFill.h"

#include "explorer/DocumentFills.h"
#include "explorer/IconCache.h"
#include "store/Lookups.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "support/SelectionState.h"

namespace kartella {

QString relatedDocumentsSql(qint32 documentId)
{
    return QStringLiteral("SELECT tbl_Sub_Documents.SubRastasID, tbl_Sub_Documents.RastasID, "
                          "tbl_Sub_Documents.SubDocDescript, ")
        + QStringLiteral("tbl_Sub_Documents.ContactID, tbl_Sub_Documents.SubRastoKelias, "
                         "tbl_Sub_Documents.SubRastGavimoData ")
        + QStringLiteral("FROM tbl_Sub_Documents ") + QStringLiteral("WHERE tbl_Sub_Documents.RastasID=")
        + QString::number(documentId);
}

bool fillRelatedRows(ListModel& model, const SelectionState& selection)
{
    const QString sql = relatedDocumentsSql(selection.selectedDocumentId);
    Connection connection;
    connection.setConnectionString(plainConnectionString());
    connection.open();
    Recordset rs;
    rs.open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    if (rs.recordCount() == 0 || !selection.documentListFilled) {
        model.clear();
        return false;
    }
    rs.moveLast();
    rs.moveFirst();
    std::vector<ListItem> rows;
    rows.reserve(size_t(rs.recordCount()));
    while (!rs.eof()) {
        const QVariant path = rs.collect(QStringLiteral("SubRastoKelias"));
        ListItem item;
        item.iconKey = getIconKey(nullToDefault(path, NoFilePath).toString());
        item.text = displayText(rs.collect(QStringLiteral("SubDocDescript")));
        item.subItems[0] = getContactName(rs.collect(QStringLiteral("ContactID")));
        const QVariant date = rs.collect(QStringLiteral("SubRastGavimoData"));
        item.subItems[1] = displayText(date);
        if (date.typeId() == QMetaType::QDate || date.typeId() == QMetaType::QDateTime)
            item.date = date.toDate();
        item.key = DocumentFills::itemKey(rs.collect(QStringLiteral("SubRastasID")).toInt());
        item.tagIsNull = isNull(path);
        item.tag = item.tagIsNull ? QString() : path.toString();
        rows.push_back(std::move(item));
        rs.moveNext();
    }
    rs.close();
    model.setColumns({{QStringLiteral("Doc. Description"), 3000}, {QStringLiteral("Sender/Receiver"), 2000},
        {QStringLiteral("Date"), 1500, true}});
    model.setItems(std::move(rows));
    return true;
}

} // namespace kartella
