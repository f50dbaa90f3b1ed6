// The statements that read a document list a page at a time, run on a register whose rows
// tie on every sort column, lack values and hold quotes and brackets: walked a few rows at a
// time from either end, each list gives its rows in the order its sort puts them, with no row
// lost or read twice, and the count, the row of a key, the rows of ids and the type-ahead agree.
#include "explorer/DocumentPaging.h"
#include "explorer/DocumentQueries.h"
#include "explorer/DocumentSearch.h"
#include "harness/TestRegister.h"
#include "store/engine/Backend.h"
#include "store/engine/Connection.h"
#include "store/engine/JetDialect.h"
#include "store/engine/Recordset.h"
#include "store/engine/TextFold.h"

#include <QRegularExpression>
#include <QTest>

#include <algorithm>
#include <optional>

using namespace kartella;
using namespace kartella::test;

namespace {

using Ids = QList<qint32>;
using Mode = DocumentPaging::Mode;

const QDate rangeStart(2024, 3, 1);
const QDate rangeEnd(2024, 3, 31);

struct Document
{
    qint32 id = 0;
    QVariant date;
    QString index;
    QString text;
    QVariant contact;
    QVariant category;
    QVariant notes;
    qint32 contactId = 0;
    int direction = 0;
    int rank = 0;
};

struct Row
{
    qint32 id = 0;
    PageKey key;
};

// Nulls first, dates by date, numbers by value, names as the register orders them.
int compareValues(const QVariant& a, const QVariant& b)
{
    if (a.isNull() || b.isNull())
        return int(!a.isNull()) - int(!b.isNull());
    if (a.typeId() == QMetaType::QDate)
        return a.toDate() < b.toDate() ? -1 : int(a.toDate() > b.toDate());
    if (a.typeId() == QMetaType::Int)
        return a.toInt() < b.toInt() ? -1 : int(a.toInt() > b.toInt());
    const QByteArray left = a.toString().toUtf8();
    const QByteArray right = b.toString().toUtf8();
    return engine::compareNames(
        left.constData(), size_t(left.size()), right.constData(), size_t(right.size()));
}

QVariant sortValue(const Document& d, int column, Mode mode, bool ranked)
{
    switch (column) {
    case 0:
        return d.text;
    case 1:
        return d.index;
    case 2:
        return mode == Mode::Contact ? d.category : d.contact;
    case 4:
        return d.notes;
    default:
        return ranked ? QVariant(d.rank) : d.date;
    }
}

QList<Row> rowsOf(Connection& connection, const QString& sql, const QString& sortField)
{
    Recordset rs;
    rs.open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    QList<Row> rows;
    while (!rs.eof()) {
        const qint32 id = rs.fields(QStringLiteral("RastasID")).value().toInt();
        rows.append({id, {rs.fields(sortField).value(), id}});
        rs.moveNext();
    }
    return rows;
}

Ids idsOf(const QList<Row>& rows)
{
    Ids ids;
    for (const Row& row : rows)
        ids << row.id;
    return ids;
}

// The number a count gives, in its field `name` (the first field when empty).
int number(Connection& connection, const QString& sql, const QString& name = {})
{
    Recordset rs;
    rs.open(sql, connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    if (rs.eof())
        return -1;
    return (name.isEmpty() ? rs.fields(0) : rs.fields(name)).value().toInt();
}

} // namespace

class DocumentPagingTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestRegister> m_reg;
    std::unique_ptr<Connection> m_connection;
    std::vector<Document> m_documents;
    qint32 m_laiskai = 0;
    qint32 m_agne = 0;

    const Document& document(qint32 id) const
    {
        return *std::find_if(
            m_documents.cbegin(), m_documents.cend(), [id](const Document& d) { return d.id == id; });
    }

    // The rows of a list in its sort, worked out here.
    Ids expected(const Ids& rows, int column, bool descending, Mode mode, bool ranked) const
    {
        std::vector<qint32> ids(rows.cbegin(), rows.cend());
        std::sort(ids.begin(), ids.end(), [&](qint32 a, qint32 b) {
            const int order = compareValues(
                sortValue(document(a), column, mode, ranked), sortValue(document(b), column, mode, ranked));
            return order != 0 ? order < 0 : a < b;
        });
        if (descending)
            std::reverse(ids.begin(), ids.end());
        return Ids(ids.cbegin(), ids.cend());
    }

    // Every way the list reads its rows gives `order`.
    void checkPaging(const DocumentPaging& paging, const Ids& order)
    {
        Connection& c = *m_connection;
        const QString field = paging.sortField();
        const QString rowCount = QStringLiteral("RowCount");
        QCOMPARE(number(c, paging.countSql(), rowCount), order.size());

        QList<Row> forward;
        for (std::optional<PageKey> key; forward.size() <= order.size();) {
            const QList<Row> page = rowsOf(c, paging.pageSql(key ? &*key : nullptr, 3), field);
            if (page.isEmpty())
                break;
            forward << page;
            key = page.last().key;
        }
        QCOMPARE(idsOf(forward), order);

        Ids backward;
        for (std::optional<PageKey> key; backward.size() <= order.size();) {
            const QList<Row> page = rowsOf(c, paging.reversePageSql(key ? &*key : nullptr, 4), field);
            if (page.isEmpty())
                break;
            for (const Row& row : page)
                backward.prepend(row.id);
            key = page.last().key;
        }
        QCOMPARE(backward, order);

        QCOMPARE(idsOf(rowsOf(c, paging.pageSql(nullptr, 4, 2), field)), order.mid(2, 4));
        Ids lastButOne = idsOf(rowsOf(c, paging.reversePageSql(nullptr, 2, 1), field));
        std::reverse(lastButOne.begin(), lastButOne.end());
        QCOMPARE(lastButOne, order.mid(order.size() - 3, 2));
        if (order.size() > 3) {
            const PageKey second = forward[1].key;
            QCOMPARE(idsOf(rowsOf(c, paging.pageSql(&second, 2, 1), field)), order.mid(3, 2));
            const PageKey fourth = forward[3].key;
            const Ids firstTwo {order[1], order[0]};
            QCOMPARE(idsOf(rowsOf(c, paging.reversePageSql(&fourth, 5, 1), field)), firstTwo);
        }

        for (int row = 0; row < forward.size(); ++row)
            QCOMPARE(number(c, paging.rowOfKeySql(forward[row].key), rowCount), row);
        // A Null may come typed: it is a Null all the same.
        for (int row = 0; row < forward.size(); ++row) {
            if (!forward[row].key.value.isNull())
                continue;
            const PageKey typed {QVariant(QMetaType::fromType<QString>()), forward[row].id};
            QVERIFY(typed.value.isValid() && typed.value.isNull());
            QCOMPARE(idsOf(rowsOf(c, paging.pageSql(&typed, 2), field)), order.mid(row + 1, 2));
            break;
        }

        for (const Document& d : m_documents) {
            const Ids found = idsOf(rowsOf(c, paging.rowByIdSql(d.id), field));
            QCOMPARE(found, order.contains(d.id) ? Ids {d.id} : Ids());
        }
        std::vector<qint32> asked;
        for (const Document& d : m_documents) {
            if (d.id % 2 == 1)
                asked.insert(asked.begin(), d.id);
        }
        Ids askedInOrder;
        for (const qint32 id : order) {
            if (id % 2 == 1)
                askedInOrder << id;
        }
        QCOMPARE(idsOf(rowsOf(c, paging.rowsByIdsSql(asked), field)), askedInOrder);
    }

    qint32 addContact(const QString& name)
    {
        return m_reg->insert(QStringLiteral("tbl_Contacts"), {{"FullName", name}});
    }

private Q_SLOTS:
    void initTestCase()
    {
        m_reg = std::make_unique<TestRegister>();
        m_laiskai = m_reg->insert(QStringLiteral("tbl_Document_Categories"), {{"DokKategorija", "Laiškai"}});
        const qint32 sutartys
            = m_reg->insert(QStringLiteral("tbl_Document_Categories"), {{"DokKategorija", "sutartys"}});
        const qint32 antanas = addContact(QStringLiteral("Antanas"));
        m_agne = addContact(QStringLiteral("agnė"));
        const qint32 azuolas = addContact(QStringLiteral("Ąžuolas"));
        const qint32 obrien = addContact(QStringLiteral("O'Brien"));
        const qint32 sarunas = addContact(QStringLiteral("Šarūnas"));
        const QHash<qint32, QString> contacts {{antanas, "Antanas"}, {m_agne, "agnė"}, {azuolas, "Ąžuolas"},
            {obrien, "O'Brien"}, {sarunas, "Šarūnas"}};
        const QHash<qint32, QString> categories {{m_laiskai, "Laiškai"}, {sutartys, "sutartys"}};
        const QDate day(2024, 3, 5);
        struct Values
        {
            const char* text;
            QDate date;
            const char* index;
            qint32 contact;
            qint32 category;
            const char* notes;
            int direction;
        };
        const Values values[] = {
            {"Sutartis dėl nuomos", day, "R-10", antanas, m_laiskai, "b", 1},
            {"sutartis", day, "R-2", m_agne, sutartys, nullptr, 2},
            {"Ąžuolų sodinimas", day.addDays(-1), "r-3", azuolas, m_laiskai, "a", 1},
            {"O'Brien laiškas", {}, "R-1", obrien, 0, "c", 2},
            {"Alpha", day.addDays(1), "R-10", 0, sutartys, "b", 1},
            {"alpha", day.addDays(1), "R-10", sarunas, m_laiskai, nullptr, 1},
            {"Beta (1) union sutartis", {}, "R-4", antanas, sutartys, "a", 2},
            {"Žuvis", QDate(2024, 2, 29), "R-5", m_agne, 0, "Ž", 1},
            {"zuikis", QDate(2024, 4, 1), "R-6", sarunas, sutartys, "z", 2},
            {"100% sutartis", day, "R-7", antanas, m_laiskai, nullptr, 1},
            {"a_b", QDate(2024, 3, 31), "R-8", 0, m_laiskai, "b", 2},
            {"Ėglė", QDate(2024, 3, 1), "R-9", azuolas, sutartys, "c", 1},
            {"ąžuolas", day, "R-11", m_agne, m_laiskai, "a", 2},
            {"Priedas (1) Union sutartis", day.addDays(2), "R-12", antanas, sutartys, "Z", 1},
        };
        for (const Values& v : values) {
            Document d;
            d.text = QString::fromUtf8(v.text);
            d.date = v.date.isValid() ? QVariant(v.date) : QVariant();
            d.index = QString::fromUtf8(v.index);
            d.contact = v.contact ? QVariant(contacts.value(v.contact)) : QVariant();
            d.category = v.category ? QVariant(categories.value(v.category)) : QVariant();
            d.notes = v.notes ? QVariant(QString::fromUtf8(v.notes)) : QVariant();
            d.contactId = v.contact;
            d.direction = v.direction;
            QVariantMap row {{"DokAntraste", d.text}, {"DokRegistracIndeksas", d.index},
                {"DokPastaba", d.notes}, {"KryptisID", v.direction}};
            if (v.date.isValid())
                row.insert(QStringLiteral("DokRegistracData"), v.date);
            if (v.contact)
                row.insert(QStringLiteral("ContactID"), v.contact);
            if (v.category)
                row.insert(QStringLiteral("KategID"), v.category);
            d.id = m_reg->insert(QStringLiteral("tbl_Documents"), row);
            d.rank = (d.id * 7) % 4;
            m_documents.push_back(d);
        }
        m_connection = std::make_unique<Connection>();
        m_connection->open(m_reg->connectionString());
        m_connection->execute(
            QStringLiteral("CREATE TEMP TABLE test_ranks (hit_id INTEGER PRIMARY KEY, hit_rank INTEGER)"));
        for (const Document& d : m_documents)
            m_connection->execute(
                QStringLiteral("INSERT INTO temp.test_ranks (hit_id, hit_rank) VALUES (%1, %2)")
                    .arg(d.id)
                    .arg(d.rank));
    }

    void cleanupTestCase()
    {
        m_connection.reset();
        m_reg.reset();
    }

    // How the list's rows are kept: read through the list query, its ids kept in a table of
    // the connection (as a search's are, a few or many of them), or ranked by a key.
    void everyListInItsSortOrder_data()
    {
        QTest::addColumn<QString>("listSql");
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("ways");

        const QList<SearchTerm> contract = searchTerms(QStringLiteral("sutartis"));
        const SearchIndexes fields {SearchIndexKind::FullText, ContentIndexKind::FullText};
        const SearchIndexes scan {SearchIndexKind::None, ContentIndexKind::None};
        const QString plain = QStringLiteral("read");
        const QString all = QStringLiteral("read,kept,many,ranked,rankedRows");
        const struct
        {
            const char* name;
            QString sql;
            Mode mode;
            QString ways;
        } lists[] = {
            {"whole register", categoryListSql(0, 0, false, {}, {}), Mode::Category, all},
            {"category", categoryListSql(m_laiskai, 0, false, {}, {}), Mode::Category, all},
            {"direction within dates", categoryDatedListSql(0, 2, rangeStart, rangeEnd), Mode::Category, all},
            {"letter", contactDocumentSql(0, false, {}, {}), Mode::Letter, all},
            {"letter within dates", contactDatedDocumentSql(1, rangeStart, rangeEnd), Mode::Letter, plain},
            {"contact", contactDocumentSql(0, false, {}, {}), Mode::Contact, all},
            {"search", searchListSql(contract, fields, 0, false, {}, {}), Mode::Category, all},
            {"search of two words",
                searchListSql(searchTerms(QStringLiteral("sutartis union")), fields, 0, false, {}, {}),
                Mode::Category, QStringLiteral("kept")},
            {"search of a phrase with brackets",
                searchListSql(
                    searchTerms(QStringLiteral("\"(1) union sutartis\"")), fields, 0, false, {}, {}),
                Mode::Category, QStringLiteral("kept")},
            {"search within dates", searchListSql(contract, fields, 1, true, rangeStart, rangeEnd),
                Mode::Category, QStringLiteral("kept")},
            {"search without an index", searchListSql(contract, scan, 0, false, {}, {}), Mode::Category, all},
        };
        for (const auto& list : lists) {
            for (int column : {-1, 0, 1, 2, 3, 4}) {
                for (bool descending : {false, true}) {
                    QTest::addRow("%s, column %d%s", list.name, column, descending ? " down" : "")
                        << list.sql << int(list.mode) << list.ways;
                }
            }
        }
    }

    void everyListInItsSortOrder()
    {
        QFETCH(QString, listSql);
        QFETCH(int, mode);
        QFETCH(QString, ways);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        const int column = name.section(QStringLiteral("column "), 1).section(u' ', 0, 0).toInt();
        const bool descending = name.endsWith(QStringLiteral(" down"));
        const Mode listMode = Mode(mode);

        // The list query's own rows, narrowed to the letter's or the contact's.
        Ids rows;
        for (const Row& row : rowsOf(*m_connection, listSql, QStringLiteral("RastasID"))) {
            const Document& d = document(row.id);
            const QString contact = d.contact.toString();
            if ((listMode == Mode::Letter && !contact.startsWith(u'a', Qt::CaseInsensitive))
                || (listMode == Mode::Contact && d.contactId != m_agne))
                continue;
            rows << row.id;
        }
        QVERIFY(rows.size() >= 2);

        for (const QString& way : ways.split(u',')) {
            DocumentPaging paging(listSql, listMode, m_agne, u'a');
            paging.setSort(column, descending);
            const bool ranked = way.startsWith(QStringLiteral("ranked")) && column == -1;
            if (way == QStringLiteral("kept") || way == QStringLiteral("many")) {
                m_connection->execute(QStringLiteral("DROP TABLE IF EXISTS temp.test_kept"));
                m_connection->execute(
                    QStringLiteral("CREATE TEMP TABLE test_kept (RastasID INTEGER PRIMARY KEY)"));
                m_connection->execute(paging.keepRowsSql(QStringLiteral("test_kept")));
                paging.readKeptRows(QStringLiteral("test_kept"));
                QVERIFY(paging.hasKeptRows());
                paging.setKeptRowCount(way == QStringLiteral("many") ? 5000 : int(rows.size()));
            } else if (way == QStringLiteral("ranked")) {
                // A ranking by a key takes the place of ranks kept before.
                paging.setRankedRows(QStringLiteral("test_ranks"));
                paging.setRanking(
                    QStringLiteral(" JOIN temp.test_ranks AS r ON r.hit_id = tbl_Documents.RastasID"),
                    QStringLiteral("r.hit_rank"));
            } else if (way == QStringLiteral("rankedRows")) {
                // Ranks of the list's rows alone, as a search keeps them.
                m_connection->execute(QStringLiteral("DROP TABLE IF EXISTS temp.test_list_ranks"));
                m_connection->execute(QStringLiteral(
                    "CREATE TEMP TABLE test_list_ranks (hit_id INTEGER PRIMARY KEY, hit_rank INTEGER)"));
                for (const qint32 id : rows)
                    m_connection->execute(
                        QStringLiteral("INSERT INTO temp.test_list_ranks (hit_id, hit_rank) VALUES (%1, %2)")
                            .arg(id)
                            .arg(document(id).rank));
                paging.setRanking(QStringLiteral("unused"), QStringLiteral("unused"));
                paging.setRankedRows(QStringLiteral("test_list_ranks"));
            }
            checkPaging(paging, expected(rows, column, descending, listMode, ranked));
            if (QTest::currentTestFailed()) {
                qWarning("%s", qPrintable(way));
                return;
            }
        }
    }

    // A search's ids come from its indexes alone, a statement for each index: the documents
    // are not read, and no union is built only to drop what both indexes found. Brackets,
    // quotes and the word "union" in the searched text change none of it.
    void keptRowsOfASearchAreReadFromItsIndexes_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<int>("found");

        QTest::newRow("word") << "sutartis" << 5;
        QTest::newRow("phrase with brackets and union") << "\"(1) union sutartis\"" << 2;
        QTest::newRow("closing bracket") << "(1)" << 2;
        QTest::newRow("quote") << "o'brien" << 1;
        QTest::newRow("quote and bracket") << "\"o'brien laiškas\"" << 1;
    }

    void keptRowsOfASearchAreReadFromItsIndexes()
    {
        QFETCH(QString, search);
        QFETCH(int, found);
        const SearchIndexes indexes {SearchIndexKind::FullText, ContentIndexKind::FullText};
        DocumentPaging paging(searchListSql(searchTerms(search), indexes, 0, false, {}, {}), Mode::Category);
        const QStringList statements
            = paging.keepRowsSql(QStringLiteral("test_kept")).split(QStringLiteral("; "));
        QCOMPARE(statements.size(), 2);
        static const QRegularExpression documents(QStringLiteral("\\btbl_Documents\\b(?!_)"));
        for (const QString& statement : statements) {
            QStringList steps;
            const engine::QueryResult result = m_connection->backend().query(
                QStringLiteral("EXPLAIN QUERY PLAN ") + engine::translateJetToSqlite(statement));
            for (int row = 0; row < result.rows.rowCount(); ++row)
                steps << result.rows.value(row, 3).toString();
            const QString plan = steps.join(QStringLiteral(" | "));
            QVERIFY2(!plan.contains(documents) && !plan.contains(QStringLiteral("COMPOUND")),
                qPrintable(statement + QStringLiteral("\n") + plan));
        }
        m_connection->execute(QStringLiteral("DROP TABLE IF EXISTS temp.test_kept"));
        m_connection->execute(QStringLiteral("CREATE TEMP TABLE test_kept (RastasID INTEGER PRIMARY KEY)"));
        m_connection->execute(statements.join(QStringLiteral("; ")));
        QCOMPARE(number(*m_connection, QStringLiteral("SELECT COUNT(*) FROM temp.test_kept")), found);
    }

    // Whether the list shows its columns: a row of its query, the letter's condition aside.
    void anyRowOfTheQueryBeforeItsLetter()
    {
        const QString rastasId = QStringLiteral("RastasID");
        DocumentPaging letter(contactDocumentSql(2, false, {}, {}), Mode::Letter, 0, u'x');
        QCOMPARE(number(*m_connection, letter.countSql(), QStringLiteral("RowCount")), 0);
        const Ids any = idsOf(rowsOf(*m_connection, letter.anyRowSql(), rastasId));
        QCOMPARE(any.size(), 1);
        QCOMPARE(document(any[0]).direction, 2);
        const DocumentPaging scan(searchListSql(searchTerms(QStringLiteral("agnė")),
                                      {SearchIndexKind::None, ContentIndexKind::None}, 2, false, {}, {}),
            Mode::Category);
        const Ids ofAgne = idsOf(rowsOf(*m_connection, scan.anyRowSql(), rastasId));
        QCOMPARE(ofAgne.size(), 1);
        QCOMPARE(document(ofAgne[0]).contactId, m_agne);
        QCOMPARE(document(ofAgne[0]).direction, 2);
        const DocumentPaging none(
            categoryListSql(m_laiskai, 1, true, QDate(2030, 1, 1), QDate(2030, 12, 31)), Mode::Category);
        QCOMPARE(idsOf(rowsOf(*m_connection, none.anyRowSql(), rastasId)), Ids());
    }

    // A sort column past the list's columns is the query's own order, by date.
    void columnsPastTheListsSortByDate()
    {
        const QString sql = categoryListSql(0, 0, false, {}, {});
        Ids all;
        for (const Document& d : m_documents)
            all << d.id;
        for (int column : {-2, 5}) {
            DocumentPaging paging(sql, Mode::Category);
            paging.setSort(column, true);
            QCOMPARE(paging.sortColumn(), -1);
            QVERIFY(paging.sortsByDate());
            QCOMPARE(paging.sortField(), QStringLiteral("DokRegistracData"));
            checkPaging(paging, expected(all, -1, true, Mode::Category, false));
        }
        DocumentPaging paging(sql, Mode::Category);
        paging.setSort(4, false);
        QCOMPARE(paging.sortColumn(), 4);
        QVERIFY(!paging.sortsByDate());
        paging.setSort(3, false);
        QVERIFY(paging.sortsByDate());
    }

    // The first description after a row that starts with the typed text, in any case; the
    // typed text is plain characters, a quote and the wildcards included.
    void typeAheadFindsTheNextDescription()
    {
        DocumentPaging paging(categoryListSql(0, 0, false, {}, {}), Mode::Category);
        paging.setSort(0, false);
        Ids all;
        for (const Document& d : m_documents)
            all << d.id;
        const Ids order = expected(all, 0, false, Mode::Category, false);
        const auto next = [&](const std::optional<PageKey>& after, const QString& text) {
            return idsOf(rowsOf(*m_connection, paging.startingWithSql(after ? &*after : nullptr, text),
                QStringLiteral("DokAntraste")));
        };
        const auto keyOf = [&](qint32 id) { return PageKey {document(id).text, id}; };
        const auto idOf = [&](const QString& text) {
            return std::find_if(m_documents.cbegin(), m_documents.cend(), [&](const Document& d) {
                return d.text == text;
            })->id;
        };

        QStringList sutartis;
        for (const qint32 id : order) {
            if (document(id).text.startsWith(QStringLiteral("sutartis"), Qt::CaseInsensitive))
                sutartis << document(id).text;
        }
        QCOMPARE(sutartis.size(), 2);
        const Ids first = next(std::nullopt, QStringLiteral("SUTARTIS"));
        QCOMPARE(first, Ids {idOf(sutartis[0])});
        QCOMPARE(next(keyOf(first[0]), QStringLiteral("sutartis")), Ids {idOf(sutartis[1])});
        QCOMPARE(next(keyOf(idOf(sutartis[1])), QStringLiteral("sutartis")), Ids());
        QCOMPARE(next(std::nullopt, QStringLiteral("o'b")), Ids {idOf(QStringLiteral("O'Brien laiškas"))});
        QCOMPARE(next(std::nullopt, QStringLiteral("100%")), Ids {idOf(QStringLiteral("100% sutartis"))});
        // "a_" is "a": the first description that starts with an a.
        QCOMPARE(next(std::nullopt, QStringLiteral("a_")), Ids {order[1]});
        QCOMPARE(document(order[1]).text.left(1).toLower(), QStringLiteral("a"));
        QCOMPARE(next(std::nullopt, QStringLiteral("%uikis")), Ids());
        QCOMPARE(next(std::nullopt, QStringLiteral("_u")), Ids());
    }

    // The list query's condition stands between the join of the base text and the ordering.
    void conditionBetweenTheJoinAndTheOrdering_data()
    {
        QTest::addColumn<QString>("listSql");
        QTest::addColumn<QString>("condition");

        QTest::newRow("category") << categoryListSql(7, 3, false, {}, {})
                                  << "tbl_Documents.KategID=7 AND tbl_Documents.KryptisID=3";
        QTest::newRow("none") << categoryListSql(0, 0, false, {}, {}) << "";
        QTest::newRow("ordering at once")
            << documentSql() + QStringLiteral("ORDER BY tbl_Documents.DokAntraste") << "";
        QTest::newRow("no ordering") << documentSql() + QStringLiteral("where tbl_Documents.KategID=7")
                                     << "tbl_Documents.KategID=7";
        QTest::newRow("ordering in lower case") << documentSql()
                + QStringLiteral("WHERE tbl_Documents.KategID=7 order by tbl_Documents.DokAntraste")
                                                << "tbl_Documents.KategID=7";
    }

    void conditionBetweenTheJoinAndTheOrdering()
    {
        QFETCH(QString, listSql);
        QFETCH(QString, condition);
        QCOMPARE(DocumentPaging(listSql, Mode::Category).condition(), condition);
    }

    // A search through the fields' or the files' index keeps its rows; a scan does not.
    void searchesThroughIndexes_data()
    {
        QTest::addColumn<int>("fields");
        QTest::addColumn<int>("content");
        QTest::addColumn<bool>("indexes");

        QTest::newRow("fields") << int(SearchIndexKind::FullText) << int(ContentIndexKind::None) << true;
        QTest::newRow("files") << int(SearchIndexKind::None) << int(ContentIndexKind::FullText) << true;
        QTest::newRow("server's files")
            << int(SearchIndexKind::None) << int(ContentIndexKind::TextVector) << true;
        QTest::newRow("server's fields")
            << int(SearchIndexKind::Table) << int(ContentIndexKind::None) << true;
        QTest::newRow("scan") << int(SearchIndexKind::None) << int(ContentIndexKind::None) << false;
    }

    void searchesThroughIndexes()
    {
        QFETCH(int, fields);
        QFETCH(int, content);
        QFETCH(bool, indexes);
        const SearchIndexes kinds {SearchIndexKind(fields), ContentIndexKind(content)};
        const DocumentPaging paging(
            searchListSql(searchTerms(QStringLiteral("sutartis")), kinds, 0, false, {}, {}), Mode::Category);
        QCOMPARE(paging.searchesIndexes(), indexes);
        QVERIFY(!DocumentPaging(categoryListSql(7, 0, false, {}, {}), Mode::Category).searchesIndexes());
    }

    // Values as the engine's SQL reads them.
    void literals_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("literal");

        QTest::newRow("date") << QVariant(QDate(2024, 3, 5)) << "#2024-03-05#";
        QTest::newRow("date and time")
            << QVariant(QDateTime(QDate(2024, 12, 31), QTime(23, 59, 5))) << "#2024-12-31 23:59:05#";
        QTest::newRow("int") << QVariant(-12) << "-12";
        QTest::newRow("long") << QVariant(qint64(1) << 40) << "1099511627776";
        QTest::newRow("double") << QVariant(0.1) << "0.10000000000000001";
        QTest::newRow("text") << QVariant(QStringLiteral("O'Brien's")) << "'O''Brien''s'";
    }

    void literals()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, literal);
        QCOMPARE(DocumentPaging::literal(value), literal);
    }
};

QTEST_GUILESS_MAIN(DocumentPagingTest)
#include "tst_document_paging.moc"
