#include "explorer/RelatedFill.h"

#include "explorer/DocumentFills.h"
#include "explorer/IconCache.h"
#include "explorer/SelectionState.h"
#include "store/Lookups.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

namespace kartella {

QString RelatedDocumentsSql(qint32 documentId)
{
    return QStringLiteral("SELECT tbl_Sub_Documents.SubRastasID, tbl_Sub_Documents.RastasID, "
                          "tbl_Sub_Documents.SubDocDescript, ")
        + QStringLiteral("tbl_Sub_Documents.ContactID, tbl_Sub_Documents.SubRastoKelias, "
                         "tbl_Sub_Documents.SubRastGavimoData ")
        + QStringLiteral("FROM tbl_Sub_Documents ") + QStringLiteral("WHERE tbl_Sub_Documents.RastasID=")
        + QString::number(documentId);
}

bool FillRelatedRows(ListModel& model, const SelectionState& selection)
{
    const QString sql = RelatedDocumentsSql(selection.SelectedDocumentId);
    Connection connection;
    connection.SetConnectionString(PlainConnectionString());
    connection.Open();
    Recordset rs;
    rs.Open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    if (rs.RecordCount() == 0 || !selection.DocumentListFilled) {
        model.clear();
        return false;
    }
    rs.MoveLast();
    rs.MoveFirst();
    std::vector<ListItem> rows;
    rows.reserve(size_t(rs.RecordCount()));
    while (!rs.Eof()) {
        const QVariant path = rs.Collect(QStringLiteral("SubRastoKelias"));
        ListItem item;
        item.iconKey = GetIconKey(NullToDefault(path, NoFilePath).toString());
        item.text = DisplayText(rs.Collect(QStringLiteral("SubDocDescript")));
        item.subItems[0] = GetContactName(rs.Collect(QStringLiteral("ContactID")));
        item.subItems[1] = DisplayText(rs.Collect(QStringLiteral("SubRastGavimoData")));
        item.key = DocumentFills::ItemKey(rs.Collect(QStringLiteral("SubRastasID")).toInt());
        item.tagIsNull = IsNull(path);
        item.tag = item.tagIsNull ? QString() : path.toString();
        rows.push_back(std::move(item));
        rs.MoveNext();
    }
    rs.Close();
    model.setColumns({{QStringLiteral("Doc. Description"), 3000}, {QStringLiteral("Sender/Receiver"), 2000},
        {QStringLiteral("Date"), 1500}});
    model.setItems(std::move(rows));
    return true;
}

} // namespace kartella
