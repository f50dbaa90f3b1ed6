#include "explorer/RelatedPages.h"

#include "base/Error.h"
#include "explorer/DocumentFills.h"
#include "explorer/IconCache.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlText.h"

#include <algorithm>

namespace kartella {

namespace {

int g_pageSize = 100;
// Pages kept at most; the others are read again when the list comes back to them.
constexpr std::size_t KeptPages = 8;

const QString From = QStringLiteral(" FROM tbl_Sub_Documents LEFT JOIN tbl_Contacts ON "
                                    "tbl_Contacts.ContactID = tbl_Sub_Documents.ContactID");

} // namespace

RelatedPages::RelatedPages(qint32 documentId)
    : m_documentId(documentId)
    , m_connection(std::make_unique<Connection>())
{
    m_connection->setMode(ConnectModeEnum::ShareDenyNone);
    m_connection->open(plainConnectionString());
    Recordset rs;
    rs.open(QStringLiteral("SELECT COUNT(*) AS N FROM tbl_Sub_Documents WHERE tbl_Sub_Documents.RastasID=")
            + QString::number(documentId),
        *m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    m_count = rs.eof() ? 0 : rs.fields(0).value().toInt();
}

RelatedPages::~RelatedPages() = default;

void RelatedPages::setPageSize(int rows)
{
    g_pageSize = std::max(1, rows);
}

QString RelatedPages::orderBy() const
{
    const QString direction = m_descending ? QStringLiteral(" DESC") : QStringLiteral(" ASC");
    const QString ties = QStringLiteral("tbl_Sub_Documents.SubRastasID");
    const QString nullMark = sqlString(NullMark);
    switch (m_sortColumn) {
    case 0:
        return QStringLiteral(" ORDER BY coalesce(tbl_Sub_Documents.SubDocDescript, ") + nullMark
            + QStringLiteral(") COLLATE NAMEFOLD") + direction + QStringLiteral(", ") + ties;
    case 1:
        return QStringLiteral(" ORDER BY coalesce(tbl_Contacts.FullName, ") + nullMark
            + QStringLiteral(") COLLATE NAMEFOLD") + direction + QStringLiteral(", ") + ties;
    case 2:
        return QStringLiteral(" ORDER BY tbl_Sub_Documents.SubRastGavimoData") + direction
            + QStringLiteral(", ") + ties;
    default:
        return QStringLiteral(" ORDER BY ") + ties;
    }
}

std::vector<ListItem>& RelatedPages::page(int number)
{
    if (const auto found = m_pages.find(number); found != m_pages.end())
        return found->second;
    if (m_pages.size() >= KeptPages) {
        // The page farthest from this one goes.
        const auto farthest
            = std::max_element(m_pages.begin(), m_pages.end(), [number](const auto& a, const auto& b) {
                  return std::abs(a.first - number) < std::abs(b.first - number);
              });
        m_pages.erase(farthest);
    }
    std::vector<ListItem> rows;
    try {
        Recordset rs;
        rs.open(QStringLiteral("SELECT tbl_Sub_Documents.SubRastasID, tbl_Sub_Documents.SubDocDescript, "
                               "tbl_Sub_Documents.ContactID, tbl_Contacts.FullName, "
                               "tbl_Sub_Documents.SubRastoKelias, tbl_Sub_Documents.SubRastGavimoData")
                + From + QStringLiteral(" WHERE tbl_Sub_Documents.RastasID=") + QString::number(m_documentId)
                + orderBy() + QStringLiteral(" LIMIT %1 OFFSET %2").arg(g_pageSize).arg(number * g_pageSize),
            *m_connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        ++m_pagesRead;
        for (; !rs.eof(); rs.moveNext()) {
            const QVariant path = rs.collect(QStringLiteral("SubRastoKelias"));
            ListItem item;
            item.iconKey = getIconKey(nullToDefault(path, NoFilePath).toString());
            item.text = displayText(rs.collect(QStringLiteral("SubDocDescript")));
            item.subItems[0] = nullToMark(rs.collect(QStringLiteral("FullName"))).toString();
            const QVariant date = rs.collect(QStringLiteral("SubRastGavimoData"));
            item.subItems[1] = displayText(date);
            if (date.typeId() == QMetaType::QDate || date.typeId() == QMetaType::QDateTime)
                item.date = date.toDate();
            item.key = DocumentFills::itemKey(rs.collect(QStringLiteral("SubRastasID")).toInt());
            item.tagIsNull = isNull(path);
            item.tag = item.tagIsNull ? QString() : path.toString();
            rows.push_back(std::move(item));
        }
    } catch (const Error&) {
        // The register went away under the list: empty rows rather than a failed paint.
        rows.clear();
    }
    return m_pages.emplace(number, std::move(rows)).first->second;
}

ListItem RelatedPages::item(int row)
{
    if (row < 0 || row >= m_count)
        return {};
    const std::vector<ListItem>& rows = page(row / g_pageSize);
    const std::size_t at = std::size_t(row % g_pageSize);
    return at < rows.size() ? rows[at] : ListItem {};
}

int RelatedPages::rowOfKey(const QString& key)
{
    for (int row = 0; row < m_count; ++row) {
        if (item(row).key == key)
            return row;
    }
    return -1;
}

void RelatedPages::setItemTag(int row, const QString& tag)
{
    if (row < 0 || row >= m_count)
        return;
    std::vector<ListItem>& rows = page(row / g_pageSize);
    const std::size_t at = std::size_t(row % g_pageSize);
    if (at < rows.size()) {
        rows[at].tag = tag;
        rows[at].tagIsNull = false;
    }
}

void RelatedPages::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column >= 0 && column <= 2 ? column : -1;
    m_descending = order == Qt::DescendingOrder;
    m_pages.clear();
}

int RelatedPages::rowStartingWith(int from, const QString& text)
{
    if (m_count == 0 || text.isEmpty())
        return -1;
    from = std::clamp(from, 0, m_count - 1);
    for (int step = 0; step < m_count; ++step) {
        const int row = (from + step) % m_count;
        if (item(row).text.startsWith(text, Qt::CaseInsensitive))
            return row;
    }
    return -1;
}

} // namespace kartella
