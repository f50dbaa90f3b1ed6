#include "explorer/DocumentFills.h"

#include "explorer/IconCache.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "support/SelectionState.h"

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
    rs.open(QStringLiteral("SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija "
                           "FROM tbl_Document_Categories"),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    while (!rs.eof()) {
        names.insert(rs.collect(QStringLiteral("KategID")).toLongLong(),
            nullToMark(rs.collect(QStringLiteral("DokKategorija"))).toString());
        rs.moveNext();
    }
    return names;
}

} // namespace

DocumentFills::DocumentFills(ListModel& model, SelectionState& selection)
    : m_model(model)
    , m_selection(selection)
{ }

QString DocumentFills::itemKey(qint32 id)
{
    return QStringLiteral("a ") + QString::number(id);
}

qint32 DocumentFills::idOfKey(const QString& key)
{
    return key.mid(1).trimmed().toInt();
}

void DocumentFills::setDocumentColumns()
{
    m_model.setColumns({{QStringLiteral("Doc. description"), 2000}, {QStringLiteral("Reg.index"), 1300},
        {QStringLiteral("Sender/Receiver"), 1800}, {QStringLiteral("Date"), 1500, true},
        {QStringLiteral("Notes"), 2000}});
}

void DocumentFills::setContactColumns()
{
    m_model.setColumns({{QStringLiteral("Doc. description"), 2000}, {QStringLiteral("Reg.index"), 1300},
        {QStringLiteral("Category"), 1800}, {QStringLiteral("Date"), 1500, true},
        {QStringLiteral("Notes"), 2000}});
}

void DocumentFills::showEmptyList()
{
    m_model.setColumns({{QStringLiteral("Documents"), 9000}});
    ListItem empty;
    empty.text = EmptyText;
    empty.key = EmptyKey;
    m_model.setItems({std::move(empty)});
    if (setCount)
        setCount(QStringLiteral("0 object(s)"));
    m_selection.selectedFilePath.clear();
    m_selection.selectedDocumentId = 0;
    if (disableDocumentCommands)
        disableDocumentCommands();
    m_selection.documentListFilled = false;
}

void DocumentFills::fillDocumentList(const QString& sql)
{
    fill(sql, Mode::Category, 0);
}

void DocumentFills::fillLetterList(const QString& sql, qint16 letterCode)
{
    fill(sql, Mode::Letter, letterCode);
}

void DocumentFills::fillContactDocumentList(const QString& sql)
{
    fill(sql, Mode::Contact, 0);
}

void DocumentFills::fill(const QString& sql, Mode mode, qint16 letterCode)
{
    Connection connection;
    connection.setConnectionString(plainConnectionString());
    if (mode != Mode::Letter)
        connection.setMode(ConnectModeEnum::ShareDenyNone);
    connection.open();
    Recordset rs;
    rs.open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    if (rs.eof()) {
        showEmptyList();
        return;
    }
    std::vector<ListItem> rows;
    if (mode == Mode::Contact) {
        setContactColumns();
        rows = documentRows(rs, mode, letterCode);
    } else {
        setDocumentColumns();
        rows = documentRows(rs, mode, letterCode);
    }
    rs.close();
    finish(std::move(rows));
}

std::vector<ListItem> DocumentFills::documentRows(Recordset& rs, Mode mode, qint16 letterCode)
{
    const int idColumn = rs.fields(QStringLiteral("RastasID")).index();
    const int pathColumn = rs.fields(QStringLiteral("RastoKel")).index();
    const int indexColumn = rs.fields(QStringLiteral("DokRegistracIndeksas")).index();
    const int nameColumn = rs.fields(QStringLiteral("FullName")).index();
    const int contactColumn = rs.fields(QStringLiteral("ContactID")).index();
    const int categoryColumn = rs.fields(QStringLiteral("KategID")).index();
    const int dateColumn = rs.fields(QStringLiteral("DokRegistracData")).index();
    const int notesColumn = rs.fields(QStringLiteral("DokPastaba")).index();
    const int titleColumn = rs.fields(QStringLiteral("DokAntraste")).index();

    QHash<qint64, QString> categories;
    if (mode == Mode::Contact) {
        Connection lookup;
        lookup.setConnectionString(plainConnectionString());
        lookup.setMode(ConnectModeEnum::ShareDenyNone);
        lookup.open();
        categories = categoryNames(lookup);
    }
    const QChar letter {char16_t(letterCode)};
    // Documents share few registration days: each day's text is made once per fill.
    QHash<qint64, QString> dayTexts;
    auto dateText = [&dayTexts](const QVariant& value) {
        if (value.typeId() != QMetaType::QDate)
            return displayText(value);
        const qint64 day = value.toDate().toJulianDay();
        auto it = dayTexts.constFind(day);
        if (it == dayTexts.constEnd())
            it = dayTexts.insert(day, displayText(value));
        return *it;
    };
    const qint32 contactId = m_selection.currentContactId;

    std::vector<ListItem> rows;
    rows.reserve(size_t(mode == Mode::Category ? rs.recordCount() : 64));
    const int count = rs.recordCount();
    for (int row = 0; row < count; ++row) {
        if (mode == Mode::Letter) {
            // Exact comparison: "Ą" belongs to no letter node but its own.
            const QString name = displayText(rs.rowValue(row, nameColumn));
            if (name.isEmpty() || name.at(0).toUpper() != letter)
                continue;
        } else if (mode == Mode::Contact) {
            const QVariant contact = rs.rowValue(row, contactColumn);
            if (isNull(contact) || contact.toLongLong() != contactId)
                continue;
        }
        const QVariant path = rs.rowValue(row, pathColumn);
        ListItem item;
        item.iconKey = getIconKey(nullToDefault(path, NoFilePath).toString());
        item.text = displayText(rs.rowValue(row, titleColumn));
        item.subItems[0] = displayText(rs.rowValue(row, indexColumn));
        if (mode == Mode::Contact) {
            const QVariant category = rs.rowValue(row, categoryColumn);
            item.subItems[1]
                = isNull(category) ? NullMark : categories.value(category.toLongLong(), NullMark);
        } else {
            item.subItems[1] = displayText(rs.rowValue(row, nameColumn));
        }
        const QVariant date = rs.rowValue(row, dateColumn);
        item.subItems[2] = dateText(date);
        if (date.typeId() == QMetaType::QDate || date.typeId() == QMetaType::QDateTime)
            item.date = date.toDate();
        item.subItems[3] = displayText(rs.rowValue(row, notesColumn));
        item.key = itemKey(rs.rowValue(row, idColumn).toInt());
        item.tagIsNull = isNull(path);
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
    m_selection.documentListFilled = true;
}

} // namespace kartella
