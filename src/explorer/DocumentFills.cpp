#include "explorer/DocumentFills.h"

#include "explorer/DocumentPages.h"
#include "store/Store.h"
#include "support/SelectionState.h"

namespace kartella {

const QString DocumentFills::EmptyKey = QStringLiteral("Empty");
const QString DocumentFills::EmptyText = QStringLiteral("There aren't any data to display!");
const QString DocumentFills::PassageCaption = QStringLiteral("Found in the file");

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

void DocumentFills::setDocumentColumns(bool withPassages)
{
    QList<ListColumn> columns {{QStringLiteral("Doc. description"), 2000},
        {QStringLiteral("Reg.index"), 1300}, {QStringLiteral("Sender/Receiver"), 1800},
        {QStringLiteral("Date"), 1500, true}, {QStringLiteral("Notes"), 2000}};
    if (withPassages)
        columns.append({PassageCaption, 5000});
    m_model.setColumns(columns);
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

void DocumentFills::fillSearchList(
    const QString& sql, const SearchRanking& ranking, const QList<SearchTerm>& terms)
{
    fill(sql, Mode::Category, 0, ranking, terms);
}

void DocumentFills::fillLetterList(const QString& sql, qint16 letterCode)
{
    fill(sql, Mode::Letter, letterCode);
}

void DocumentFills::fillContactDocumentList(const QString& sql)
{
    fill(sql, Mode::Contact, 0);
}

void DocumentFills::fill(const QString& sql, Mode mode, qint16 letterCode, const SearchRanking& ranking,
    const QList<SearchTerm>& terms)
{
    const DocumentPaging::Mode paging = mode == Mode::Category
        ? DocumentPaging::Mode::Category
        : (mode == Mode::Letter ? DocumentPaging::Mode::Letter : DocumentPaging::Mode::Contact);
    // Counting first: a query that fails leaves the list as it was.
    auto pages = std::make_unique<DocumentPages>(
        sql, paging, m_selection.currentContactId, QChar(char16_t(letterCode)));
    pages->setSearch(ranking, terms);
    if (!pages->queryHasRows()) {
        showEmptyList();
        return;
    }
    if (mode == Mode::Contact)
        setContactColumns();
    else
        setDocumentColumns(pages->hasPassages());
    const int count = pages->count();
    m_model.setSource(std::move(pages));
    if (setCount)
        setCount(QString::number(count) + QStringLiteral(" object(s)"));
    m_selection.documentListFilled = true;
}

} // namespace kartella
