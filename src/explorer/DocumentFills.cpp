#include "explorer/DocumentFills.h"

#include "explorer/DocumentPages.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "support/SelectionState.h"

namespace kartella {

namespace {

const char EmptySource[] = QT_TRANSLATE_NOOP("kartella::DocumentFills", "There aren't any data to display!");
const char PassageSource[] = QT_TRANSLATE_NOOP("kartella::DocumentFills", "Found in the file");

} // namespace

const QString DocumentFills::EmptyKey = QStringLiteral("Empty");
const QString DocumentFills::EmptyText = QString::fromUtf8(EmptySource);
const QString DocumentFills::PassageCaption = QString::fromUtf8(PassageSource);

DocumentFills::DocumentFills(ListModel& model, SelectionState& selection)
    : m_model(model)
    , m_selection(selection)
{
    QObject::connect(&m_finder, &SearchFinder::found, &m_finder,
        [this](const std::shared_ptr<FoundSearch>& search) { showFoundSearch(search); });
}

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
    // The captions are only shown: the columns are known by their place.
    QList<ListColumn> columns {{tr("Doc. description"), 2000}, {tr("Reg.index"), 1300},
        {tr("Sender/Receiver"), 1800}, {tr("Date"), 1500, true}, {tr("Notes"), 2000}};
    if (withPassages)
        columns.append({tr(PassageSource), 5000});
    m_model.setColumns(columns);
}

void DocumentFills::setContactColumns()
{
    m_model.setColumns({{tr("Doc. description"), 2000}, {tr("Reg.index"), 1300}, {tr("Category"), 1800},
        {tr("Date"), 1500, true}, {tr("Notes"), 2000}});
}

void DocumentFills::showEmptyList()
{
    m_finder.drop();
    m_model.setColumns({{tr("Documents"), 9000}});
    ListItem empty;
    empty.text = tr(EmptySource);
    empty.key = EmptyKey;
    m_model.setItems({std::move(empty)});
    if (setCount)
        setCount(tr("%1 object(s)").arg(0));
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
    m_finder.drop();
    // The first page ahead is the whole list's only in the list's own order, or by date.
    constexpr int DateColumn = 3;
    if (!m_model.isSorted()
        || (m_model.sortKey() == DateColumn && m_model.sortOrder() == Qt::AscendingOrder)) {
        QHash<QString, qint64> contentHits;
        bool whole = false;
        std::unique_ptr<Connection> spare;
        if (std::unique_ptr<DocumentPages> first
            = DocumentPages::firstPageAhead(sql, terms, !m_model.isSorted(), contentHits, whole, &spare)) {
            setDocumentColumns(first->hasPassages());
            const int count = first->count();
            m_model.setSource(std::move(first));
            m_selection.documentListFilled = true;
            if (whole) {
                if (setCount)
                    setCount(tr("%1 object(s)").arg(count));
                return;
            }
            if (setCount)
                setCount(tr("Searching…"));
            m_finder.find(sql, ranking, terms, contentHits);
            return;
        }
        // The list is read through the connection opened to look.
        fill(sql, Mode::Category, 0, ranking, terms, std::move(spare));
        return;
    }
    fill(sql, Mode::Category, 0, ranking, terms);
}

void DocumentFills::showFoundSearch(const std::shared_ptr<FoundSearch>& search)
{
    if (search->failed) {
        // The first page stays; its count is what it shows.
        if (setCount)
            setCount(tr("%1 object(s)").arg(m_model.itemCount()));
        if (reportError)
            reportError(search->errorNumber, search->errorDescription);
        return;
    }
    const auto handOver = [this, search] {
        if (!search->hasRows || !search->pages) {
            showEmptyList();
            return;
        }
        setDocumentColumns(search->pages->hasPassages());
        const int count = search->pages->count();
        m_model.setSource(std::move(search->pages));
        if (setCount)
            setCount(tr("%1 object(s)").arg(count));
    };
    if (handOverSearch)
        handOverSearch(handOver);
    else
        handOver();
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
    const QList<SearchTerm>& terms, std::unique_ptr<Connection> open)
{
    m_finder.drop();
    const DocumentPaging::Mode paging = mode == Mode::Category
        ? DocumentPaging::Mode::Category
        : (mode == Mode::Letter ? DocumentPaging::Mode::Letter : DocumentPaging::Mode::Contact);
    // Counting first: a query that fails leaves the list as it was.
    auto pages = std::make_unique<DocumentPages>(
        sql, paging, m_selection.currentContactId, QChar(char16_t(letterCode)), terms, std::move(open));
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
        setCount(tr("%1 object(s)").arg(count));
    m_selection.documentListFilled = true;
}

} // namespace kartella
