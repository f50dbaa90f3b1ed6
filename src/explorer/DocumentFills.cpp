#include "explorer/DocumentFills.h"

#include "explorer/IconCache.h"
#include "explorer/SelectionState.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QDate>
#include <QHash>

namespace kartella {

const QString DocumentFills::EmptyKey = QStringLiteral("Empty");
const QString DocumentFills::EmptyText = QStringLiteral("There aren't any data to display!");

namespace {

// The names of all categories, read once per contact-mode fill.
QHash<qint64, QString> categoryNames(Connection& connection)
{
    QHash<qint64, QString> names;
    Recordset rs;
    rs.Open(QStringLiteral("SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija "
                           "FROM tbl_Document_Categories"),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    while (!rs.Eof()) {
        names.insert(rs.Collect(QStringLiteral("KategID")).toLongLong(),
            NullToMark(rs.Collect(QStringLiteral("DokKategorija"))).toString());
        rs.MoveNext();
    }
    return names;
}

} // namespace

DocumentFills::DocumentFills(ListModel& model, SelectionState& selection)
    : m_model(model)
    , m_selection(selection)
{ }

QString DocumentFills::ItemKey(qint32 id)
{
    return QStringLiteral("a ") + QString::number(id);
}

qint32 DocumentFills::IdOfKey(const QString& key)
{
    return key.mid(1).trimmed().toInt();
}

void DocumentFills::SetDocumentColumns()
{
    m_model.setColumns({{QStringLiteral("Doc. description"), 2000}, {QStringLiteral("Reg.index"), 1300},
        {QStringLiteral("Sender/Receiver"), 1800}, {QStringLiteral("Date"), 1500},
        {QStringLiteral("Notes"), 2000}});
}

void DocumentFills::SetContactColumns()
{
    m_model.setColumns({{QStringLiteral("Doc. description"), 2000}, {QStringLiteral("Reg.index"), 1300},
        {QStringLiteral("Category"), 1800}, {QStringLiteral("Date"), 1500}, {QStringLiteral("Notes"), 2000}});
}

void DocumentFills::ShowEmptyList()
{
    m_model.setColumns({{QStringLiteral("Documents"), 9000}});
    ListItem empty;
    empty.text = EmptyText;
    empty.key = EmptyKey;
    m_model.setItems({std::move(empty)});
    if (setCount)
        setCount(QStringLiteral("0 object(s)"));
    m_selection.SelectedFilePath.clear();
    m_selection.SelectedDocumentId = 0;
    if (disableDocumentCommands)
        disableDocumentCommands();
    m_selection.DocumentListFilled = false;
}

void DocumentFills::FillDocumentList(const QString& sql)
{
    fill(sql, Mode::Category, 0);
}

void DocumentFills::FillLetterList(const QString& sql, qint16 letterCode)
{
    fill(sql, Mode::Letter, letterCode);
}

void DocumentFills::FillContactDocumentList(const QString& sql)
{
    fill(sql, Mode::Contact, 0);
}

void DocumentFills::fill(const QString& sql, Mode mode, qint16 letterCode)
{
    Connection connection;
    connection.SetConnectionString(PlainConnectionString());
    if (mode != Mode::Letter)
        connection.SetMode(ConnectModeEnum::ShareDenyNone);
    connection.Open();
    Recordset rs;
    rs.Open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    if (rs.Eof()) {
        ShowEmptyList();
        return;
    }
    std::vector<ListItem> rows;
    if (mode == Mode::Contact) {
        SetContactColumns();
        rows = documentRows(rs, mode, letterCode);
    } else {
        SetDocumentColumns();
        rows = documentRows(rs, mode, letterCode);
    }
    rs.Close();
    finish(std::move(rows));
}

std::vector<ListItem> DocumentFills::documentRows(Recordset& rs, Mode mode, qint16 letterCode)
{
    const int idColumn = rs.Fields(QStringLiteral("RastasID")).Index();
    const int pathColumn = rs.Fields(QStringLiteral("RastoKel")).Index();
    const int indexColumn = rs.Fields(QStringLiteral("DokRegistracIndeksas")).Index();
    const int nameColumn = rs.Fields(QStringLiteral("FullName")).Index();
    const int contactColumn = rs.Fields(QStringLiteral("ContactID")).Index();
    const int categoryColumn = rs.Fields(QStringLiteral("KategID")).Index();
    const int dateColumn = rs.Fields(QStringLiteral("DokRegistracData")).Index();
    const int notesColumn = rs.Fields(QStringLiteral("DokPastaba")).Index();
    const int titleColumn = rs.Fields(QStringLiteral("DokAntraste")).Index();

    QHash<qint64, QString> categories;
    if (mode == Mode::Contact) {
        Connection lookup;
        lookup.SetConnectionString(PlainConnectionString());
        lookup.SetMode(ConnectModeEnum::ShareDenyNone);
        lookup.Open();
        categories = categoryNames(lookup);
    }
    const QChar letter {char16_t(letterCode)};
    // Documents share few registration days: each day's text is made once per fill.
    QHash<qint64, QString> dayTexts;
    auto dateText = [&dayTexts](const QVariant& value) {
        if (value.typeId() != QMetaType::QDate)
            return DisplayText(value);
        const qint64 day = value.toDate().toJulianDay();
        auto it = dayTexts.constFind(day);
        if (it == dayTexts.constEnd())
            it = dayTexts.insert(day, DisplayText(value));
        return *it;
    };
    const qint32 contactId = m_selection.CurrentContactId;

    std::vector<ListItem> rows;
    rows.reserve(size_t(mode == Mode::Category ? rs.RecordCount() : 64));
    const int count = rs.RecordCount();
    for (int row = 0; row < count; ++row) {
        if (mode == Mode::Letter) {
            // Exact comparison: "Ą" belongs to no letter node but its own.
            const QString name = DisplayText(rs.RowValue(row, nameColumn));
            if (name.isEmpty() || name.at(0).toUpper() != letter)
                continue;
        } else if (mode == Mode::Contact) {
            const QVariant contact = rs.RowValue(row, contactColumn);
            if (IsNull(contact) || contact.toLongLong() != contactId)
                continue;
        }
        const QVariant path = rs.RowValue(row, pathColumn);
        ListItem item;
        item.iconKey = GetIconKey(NullToDefault(path, NoFilePath).toString());
        item.text = DisplayText(rs.RowValue(row, titleColumn));
        item.subItems[0] = DisplayText(rs.RowValue(row, indexColumn));
        if (mode == Mode::Contact) {
            const QVariant category = rs.RowValue(row, categoryColumn);
            item.subItems[1]
                = IsNull(category) ? NullMark : categories.value(category.toLongLong(), NullMark);
        } else {
            item.subItems[1] = DisplayText(rs.RowValue(row, nameColumn));
        }
        item.subItems[2] = dateText(rs.RowValue(row, dateColumn));
        item.subItems[3] = DisplayText(rs.RowValue(row, notesColumn));
        item.key = ItemKey(rs.RowValue(row, idColumn).toInt());
        item.tagIsNull = IsNull(path);
        item.tag = item.tagIsNull ? QString() : path.toString();
        rows.push_back(std::move(item));
    }
    return rows;
}

void DocumentFills::finish(std::vector<ListItem> rows)
{
    const qsizetype count = qsizetype(rows.size());
    m_model.setItems(std::move(rows));
    if (setCount)
        setCount(QString::number(count) + QStringLiteral(" object(s)"));
    m_selection.DocumentListFilled = true;
}

} // namespace kartella
