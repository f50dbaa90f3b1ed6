#include "explorer/DocumentPaging.h"

#include "store/SearchIndex.h"

#include <QDate>
#include <QDateTime>
#include <QStringList>

namespace kartella {

namespace {

const QString Join = QStringLiteral("tbl_Contacts.ContactID = tbl_Documents.ContactID");
const QString Ordering = QStringLiteral(" ORDER BY ");
const QString Id = QStringLiteral("tbl_Documents.RastasID");
const QString RankField = QStringLiteral("search_rank");

// The list's columns in the database; the third is the category's name in contact mode.
QString columnField(int column, bool contactMode)
{
    switch (column) {
    case 0:
        return QStringLiteral("tbl_Documents.DokAntraste");
    case 1:
        return QStringLiteral("tbl_Documents.DokRegistracIndeksas");
    case 2:
        return contactMode ? QStringLiteral("tbl_Document_Categories.DokKategorija")
                           : QStringLiteral("tbl_Contacts.FullName");
    case 4:
        return QStringLiteral("tbl_Documents.DokPastaba");
    default:
        return QStringLiteral("tbl_Documents.DokRegistracData");
    }
}

} // namespace

DocumentPaging::DocumentPaging(const QString& listSql, Mode mode, qint32 contactId, QChar letter)
    : m_mode(mode)
{
    // The WHERE clause stands between the join of the base text and the ordering.
    qsizetype begin = listSql.indexOf(Join);
    begin = begin < 0 ? 0 : begin + Join.size();
    qsizetype end = listSql.lastIndexOf(Ordering, -1, Qt::CaseInsensitive);
    if (end < begin)
        end = listSql.size();
    QString condition = listSql.mid(begin, end - begin).trimmed();
    if (condition.startsWith(QStringLiteral("WHERE "), Qt::CaseInsensitive))
        condition = condition.mid(6).trimmed();
    m_condition = condition;
    if (mode == Mode::Letter) {
        // Through the contacts, so that the index of the documents' contacts serves it.
        m_modeCondition = QStringLiteral("tbl_Documents.ContactID IN (SELECT tbl_Contacts.ContactID FROM "
                                         "tbl_Contacts WHERE tbl_Contacts.FullName Like ")
            + literal(QVariant(QString(letter) + u'%')) + u')';
    } else if (mode == Mode::Contact) {
        m_modeCondition = QStringLiteral("tbl_Documents.ContactID=") + QString::number(contactId);
    }
    m_letter = letter;
}

void DocumentPaging::matchLetterOnServer()
{
    if (m_mode != Mode::Letter)
        return;
    QStringList cases;
    for (const QChar letter : {m_letter.toUpper(), m_letter.toLower()}) {
        const QString match
            = QStringLiteral("tbl_Contacts.FullName ~~ ") + literal(QVariant(QString(letter) + u'%'));
        if (!cases.contains(match))
            cases << match;
    }
    const QString contacts = QStringLiteral("SELECT tbl_Contacts.ContactID FROM tbl_Contacts WHERE ")
        + cases.join(QStringLiteral(" OR "));
    m_letterContactsSql = contacts;
    m_modeCondition = QStringLiteral("tbl_Documents.ContactID IN (") + contacts + u')';
    // A count joins the letter's contacts to every document by a hash; their ids as one
    // array let it read the index of the documents' contacts alone (35 ms, not 180, for a
    // letter of 4,500 contacts in a million documents). A page, which stops at its rows,
    // is quicker with the join.
    m_countModeCondition
        = QStringLiteral("tbl_Documents.ContactID = ANY (ARRAY(") + contacts + QStringLiteral("))");
}

void DocumentPaging::matchLetterContacts(const QList<qint32>& contactIds)
{
    QStringList ids;
    ids.reserve(contactIds.size());
    for (const qint32 id : contactIds)
        ids << QString::number(id);
    // No contact, no document: IN () is no SQL.
    m_modeCondition = ids.isEmpty() ? QStringLiteral("tbl_Documents.ContactID IS NULL AND 1 = 0")
                                    : QStringLiteral("tbl_Documents.ContactID IN (") + ids.join(u',') + u')';
    m_countModeCondition.clear();
}

void DocumentPaging::setSort(int column, bool descending)
{
    m_sortColumn = column >= 0 && column <= 4 ? column : -1;
    m_descending = descending;
}

void DocumentPaging::setRanking(const QString& join, const QString& key)
{
    m_rankedTable.clear();
    m_rankJoin = join;
    m_rankKey = key;
}

void DocumentPaging::setRankedRows(const QString& table)
{
    m_rankedTable = table;
    m_rankJoin = QStringLiteral(" JOIN temp.%1 AS ranks ON ranks.hit_id = ").arg(table) + Id;
    m_rankKey = QStringLiteral("ranks.hit_rank");
}

bool DocumentPaging::ranked() const
{
    return m_sortColumn == -1 && !m_rankKey.isEmpty();
}

QString DocumentPaging::sortColumnField() const
{
    return ranked() ? m_rankKey : columnField(m_sortColumn, m_mode == Mode::Contact);
}

bool DocumentPaging::searchesIndexes() const
{
    return m_condition.contains(QLatin1String(SearchTable))
        || m_condition.contains(QLatin1String(ContentSearchTable))
        || m_condition.contains(QStringLiteral("BodyWords"));
}

namespace {

// The query of ids q when condition is "tbl_Documents.RastasID IN (q)" alone; empty when it
// is any other. Quoted text in q may hold brackets of its own.
QString idsQueryAlone(const QString& condition)
{
    const QString opening = Id + QStringLiteral(" IN (");
    if (!condition.startsWith(opening))
        return {};
    int depth = 1;
    bool quoted = false;
    for (qsizetype i = opening.size(); i < condition.size(); ++i) {
        const QChar c = condition[i];
        if (c == u'\'')
            quoted = !quoted;
        else if (!quoted && c == u'(')
            ++depth;
        else if (!quoted && c == u')' && --depth == 0)
            return i == condition.size() - 1 ? condition.mid(opening.size(), i - opening.size()) : QString();
    }
    return {};
}

// The queries a union of queries q1 UNION q2 ... is made of, split where UNION stands outside
// brackets and quotes; the query alone when it is no union.
QStringList unionParts(const QString& query)
{
    static const QString Union = QStringLiteral(" UNION ");
    QStringList parts;
    int depth = 0;
    bool quoted = false;
    qsizetype from = 0;
    for (qsizetype i = 0; i < query.size(); ++i) {
        const QChar c = query[i];
        if (c == u'\'')
            quoted = !quoted;
        else if (!quoted && c == u'(')
            ++depth;
        else if (!quoted && c == u')')
            --depth;
        else if (!quoted && depth == 0 && c == u' '
            && QStringView(query).mid(i, Union.size()).compare(Union, Qt::CaseInsensitive) == 0) {
            parts << query.mid(from, i - from);
            from = i + Union.size();
            i = from - 1;
        }
    }
    parts << query.mid(from);
    return parts;
}

} // namespace

QString DocumentPaging::keepRowsSql(const QString& table, bool server) const
{
    // The indexes hold no document that the register doesn't: their ids need no reading of
    // the documents. On a register file each part of a union is kept by a statement of its
    // own, so that no second set of ids is built only to drop what both parts found.
    if (const QString ids = idsQueryAlone(m_condition); !ids.isEmpty()) {
        if (server)
            return QStringLiteral("INSERT INTO temp.") + table + QStringLiteral(" (RastasID) ") + ids;
        QStringList statements;
        for (const QString& part : unionParts(ids))
            statements << QStringLiteral("INSERT OR IGNORE INTO temp.") + table
                    + QStringLiteral(" (RastasID) ") + part;
        return statements.join(QStringLiteral("; "));
    }
    const bool contacts = m_condition.contains(QStringLiteral("tbl_Contacts."), Qt::CaseInsensitive);
    QString sql = QStringLiteral("INSERT INTO temp.") + table + QStringLiteral(" (RastasID) SELECT ") + Id
        + from(contacts);
    if (!m_condition.isEmpty())
        sql += QStringLiteral(" WHERE (") + m_condition + u')';
    return sql;
}

void DocumentPaging::readKeptRows(const QString& table)
{
    m_keptTable = table;
    m_condition = Id + QStringLiteral(" IN (SELECT RastasID FROM temp.") + table + u')';
}

void DocumentPaging::setKeptRowCount(int count)
{
    // Past this share of a register of a million, the first page in date order is found
    // sooner by walking the dates than by sorting the kept rows.
    constexpr int Many = 5000;
    m_keptMany = !m_keptTable.isEmpty() && count >= Many;
}

QString DocumentPaging::sortField() const
{
    if (ranked())
        return RankField;
    const QString field = columnField(m_sortColumn, m_mode == Mode::Contact);
    return field.mid(field.indexOf(u'.') + 1);
}

bool DocumentPaging::sortsByDate() const
{
    return m_sortColumn == -1 || m_sortColumn == 3;
}

QString DocumentPaging::literal(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::QDate:
        return u'#' + value.toDate().toString(Qt::ISODate) + u'#';
    case QMetaType::QDateTime:
        return u'#' + value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) + u'#';
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
    case QMetaType::Short:
        return QString::number(value.toLongLong());
    case QMetaType::Double:
        return QString::number(value.toDouble(), 'g', 17);
    default: {
        QString text = value.toString();
        text.replace(u'\'', QStringLiteral("''"));
        return u'\'' + text + u'\'';
    }
    }
}

QString DocumentPaging::select() const
{
    QString sql = QStringLiteral(
        "SELECT tbl_Documents.RastasID, tbl_Documents.DokRegistracData, tbl_Documents.DokRegistracIndeksas, "
        "tbl_Documents.DokAntraste, tbl_Documents.RastoKel, tbl_Documents.ContactID, tbl_Contacts.FullName, "
        "tbl_Documents.KategID, tbl_Documents.DokPastaba");
    if (m_mode == Mode::Contact)
        sql += QStringLiteral(", tbl_Document_Categories.DokKategorija");
    if (ranked())
        sql += QStringLiteral(", ") + m_rankKey + QStringLiteral(" AS ") + RankField;
    return sql + from(true, true);
}

QString DocumentPaging::from(bool withContacts, bool withRanks) const
{
    QString sql = QStringLiteral(" FROM tbl_Documents");
    if (withContacts)
        sql += QStringLiteral(" LEFT JOIN tbl_Contacts ON ") + Join;
    if (withContacts && m_mode == Mode::Contact)
        sql += QStringLiteral(" LEFT JOIN tbl_Document_Categories ON "
                              "tbl_Document_Categories.KategID = tbl_Documents.KategID");
    if (withRanks && ranked())
        sql += m_rankJoin;
    return sql;
}

QString DocumentPaging::where(const QStringList& more, bool counting) const
{
    QStringList terms;
    // The unary plus keeps the database from reading the kept rows by their ids first.
    if (m_keptMany && sortsByDate() && !ranked())
        terms << QStringLiteral("(+") + m_condition + u')';
    else if (!m_condition.isEmpty())
        terms << u'(' + m_condition + u')';
    if (counting && !m_countModeCondition.isEmpty())
        terms << m_countModeCondition;
    else if (!m_modeCondition.isEmpty())
        terms << m_modeCondition;
    terms << more;
    return terms.isEmpty() ? QString() : QStringLiteral(" WHERE ") + terms.join(QStringLiteral(" AND "));
}

QString DocumentPaging::sortExpression() const
{
    if (ranked())
        return m_rankKey;
    const QString field = columnField(m_sortColumn, m_mode == Mode::Contact);
    // Texts in the order of the register's names, as the tree orders them.
    return sortsByDate() ? field : field + QStringLiteral(" COLLATE NAMEFOLD");
}

QString DocumentPaging::orderBy(bool reverse) const
{
    const QString direction = m_descending != reverse ? QStringLiteral(" DESC") : QStringLiteral(" ASC");
    return Ordering + sortExpression() + direction + QStringLiteral(", ") + Id + direction;
}

QString DocumentPaging::seek(const PageKey& key, bool greater) const
{
    const QString field = sortColumnField();
    const QString id = QString::number(key.id);
    const QString comparison = greater ? QStringLiteral(" > ") : QStringLiteral(" < ");
    if (key.value.isNull() || !key.value.isValid()) {
        // Nulls come first: after a null come the other nulls of higher id and every value.
        if (greater)
            return u"((" + field + u" IS NULL AND " + Id + comparison + id + u") OR " + field
                + u" IS NOT NULL)";
        return u'(' + field + u" IS NULL AND " + Id + comparison + id + u')';
    }
    const QString rowValue = u"((" + sortExpression() + u", " + Id + u')' + comparison + u'('
        + literal(key.value) + u", " + id + u"))";
    if (greater)
        return rowValue;
    return u'(' + rowValue + u" OR " + field + u" IS NULL)";
}

QString DocumentPaging::countSql() const
{
    // Every row kept is one of the list's.
    if (!m_keptTable.isEmpty() && m_modeCondition.isEmpty())
        return QStringLiteral("SELECT COUNT(*) AS RowCount FROM temp.") + m_keptTable;
    const bool contacts = m_condition.contains(QStringLiteral("tbl_Contacts."), Qt::CaseInsensitive);
    return QStringLiteral("SELECT COUNT(*) AS RowCount") + from(contacts) + where({}, true);
}

QString DocumentPaging::anyRowSql() const
{
    const bool contacts = m_condition.contains(QStringLiteral("tbl_Contacts."), Qt::CaseInsensitive);
    QString sql = QStringLiteral("SELECT ") + Id + from(contacts);
    if (!m_condition.isEmpty())
        sql += QStringLiteral(" WHERE (") + m_condition + u')';
    return sql + QStringLiteral(" LIMIT 1");
}

QString DocumentPaging::pageSql(const PageKey* after, int limit, int offset) const
{
    QStringList more;
    if (after)
        more << seek(*after, !m_descending);
    return page(more, false, limit, offset);
}

QString DocumentPaging::reversePageSql(const PageKey* before, int limit, int offset) const
{
    QStringList more;
    if (before)
        more << seek(*before, m_descending);
    return page(more, true, limit, offset);
}

QString DocumentPaging::page(const QStringList& more, bool reverse, int limit, int offset) const
{
    QString bounds = QStringLiteral(" LIMIT ") + QString::number(limit);
    if (offset > 0)
        bounds += QStringLiteral(" OFFSET ") + QString::number(offset);
    if (ranked() && !m_rankedTable.isEmpty()) {
        // The page among the ranks alone (every one is a row of the list), then its documents.
        const QString rankId = QStringLiteral("ranks.hit_id");
        QStringList seek;
        for (const QString& term : more)
            seek << QString(term).replace(Id, rankId);
        const QString direction = m_descending != reverse ? QStringLiteral(" DESC") : QStringLiteral(" ASC");
        const QString inner
            = QStringLiteral("(SELECT hit_id, hit_rank FROM temp.%1 AS ranks%2 ORDER BY hit_rank%3, "
                             "hit_id%3%4)")
                  .arg(m_rankedTable,
                      seek.isEmpty() ? QString()
                                     : QStringLiteral(" WHERE ") + seek.join(QStringLiteral(" AND ")),
                      direction, bounds);
        return select().replace(QStringLiteral("JOIN temp.%1 AS ranks").arg(m_rankedTable),
                   QStringLiteral("JOIN ") + inner + QStringLiteral(" AS ranks"))
            + orderBy(reverse);
    }
    const bool byContacts = m_condition.contains(QStringLiteral("tbl_Contacts."), Qt::CaseInsensitive);
    const bool byDocuments = columnField(m_sortColumn, m_mode == Mode::Contact).startsWith(u"tbl_Documents.");
    if (byContacts || !byDocuments || sortsByDate())
        return select() + where(more) + orderBy(reverse) + bounds;
    // A sort by a text column reads every document of the list: the page is chosen among
    // the documents alone and joined to the names after, not every document to its contact.
    const QString inner = QStringLiteral("(SELECT tbl_Documents.* FROM tbl_Documents") + where(more)
        + orderBy(reverse) + bounds + QStringLiteral(") AS DocumentPage ");
    QString outer = select() + orderBy(reverse);
    outer.replace(QStringLiteral("tbl_Documents."), QStringLiteral("DocumentPage."));
    return outer.replace(QStringLiteral(" FROM tbl_Documents "), QStringLiteral(" FROM ") + inner);
}

QString DocumentPaging::rowsByIdsSql(const std::vector<qint32>& ids) const
{
    QStringList list;
    for (const qint32 id : ids)
        list << QString::number(id);
    return select() + where({Id + QStringLiteral(" IN (") + list.join(u',') + u')'}) + orderBy(false);
}

QString DocumentPaging::rowByIdSql(qint32 id) const
{
    return select() + where({Id + u'=' + QString::number(id)});
}

QString DocumentPaging::rowOfKeySql(const PageKey& key) const
{
    return QStringLiteral("SELECT COUNT(*) AS RowCount") + from(true, true)
        + where({seek(key, m_descending)}, true);
}

QString DocumentPaging::startingWithSql(const PageKey* after, const QString& text) const
{
    QString pattern = text;
    pattern.remove(u'%').remove(u'_');
    QStringList more {QStringLiteral("tbl_Documents.DokAntraste Like ") + literal(QVariant(pattern + u'%'))};
    if (after)
        more << seek(*after, !m_descending);
    return select() + where(more) + orderBy(false) + QStringLiteral(" LIMIT 1");
}

} // namespace kartella
