// The document list reads its rows as they come into view, a few rows to a page here: the
// rows past the first screen, the last row, keys across pages, sorts, type-ahead, a
// delete and refills all act on rows the list never read as they would on rows it had.

#include "explorer/DocumentFills.h"
#include "explorer/DocumentPages.h"
#include "explorer/DocumentQueries.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "explorer/RelatedPages.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/TextFold.h"
#include "support/SelectionState.h"

#include <QHeaderView>
#include <QLabel>
#include <QStandardPaths>
#include <QTest>
#include <QTreeView>

#include <algorithm>

using namespace kartella;
using namespace kartella::test;

namespace {

constexpr int PageRows = 10;
constexpr int Documents = 95;

struct Document
{
    qint32 id = 0;
    QString text;
    QDate date;
    QVariant notes;
};

// Names in the register's order: folded, then by their bytes.
bool nameLess(const QString& a, const QString& b)
{
    const QByteArray left = a.toUtf8();
    const QByteArray right = b.toUtf8();
    return engine::compareNames(
               left.constData(), size_t(left.size()), right.constData(), size_t(right.size()))
        < 0;
}

} // namespace

class ListPagingTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<TestRegister> m_reg;
    std::unique_ptr<MainWindow> m_window;
    std::vector<Document> m_documents;
    qint32 m_category = 0;

    // Three documents a day; every seventh without notes; two whose descriptions start
    // with a letter no other has, far past the first screen.
    void addDocuments(int from, int count)
    {
        for (int i = from; i < from + count; ++i) {
            Document d;
            d.text = QStringLiteral("Doc %1").arg(i, 3, 10, QChar(u'0'));
            if (i == 80)
                d.text = QStringLiteral("Zebra");
            else if (i == 85)
                d.text = QStringLiteral("žuvis"); // "Ž" is a letter of its own here
            else if (i == 90)
                d.text = QStringLiteral("zuikis");
            d.date = QDate(2024, 1, 1).addDays(i / 3);
            if (i % 7 != 0)
                d.notes = QStringLiteral("%1 note").arg(QChar(u'a' + (i * 11) % 26));
            QVariantMap values {{"DokAntraste", d.text}, {"DokRegistracData", d.date},
                {"DokRegistracIndeksas", QStringLiteral("R-%1").arg(i)}, {"DokPastaba", d.notes}};
            if (i % 2 == 0)
                values.insert("KategID", m_category);
            d.id = m_reg->insert("tbl_Documents", values);
            m_documents.push_back(d);
        }
    }

    ListModel& model() { return *m_window->documentModel(); }
    QTreeView* view() { return m_window->documentList()->detailsView(); }
    int pagesRead() { return static_cast<DocumentPages*>(model().source())->pagesRead(); }
    QString count() { return m_window->findChild<QLabel*>(QStringLiteral("pnCount"))->text(); }
    int selectedRow() { return m_window->documentList()->selectedRow(); }

    QStringList shownTexts()
    {
        QStringList texts;
        for (int row = 0; row < model().itemCount(); ++row)
            texts << model().item(row).text;
        return texts;
    }

    static QStringList textsOf(const std::vector<Document>& documents)
    {
        QStringList texts;
        for (const Document& d : documents)
            texts << d.text;
        return texts;
    }

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        DocumentPages::setPageSize(PageRows);
        RelatedPages::setPageSize(PageRows);
    }

    void init()
    {
        selection() = SelectionState();
        m_documents.clear();
        m_reg = std::make_unique<TestRegister>();
        m_category = m_reg->insert("tbl_Document_Categories", {{"DokKategorija", "Even"}});
        addDocuments(0, Documents);
        m_window = std::make_unique<MainWindow>();
        m_window->resize(1000, 700);
        m_window->show();
        m_window->load();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        view()->setFocus();
    }

    void cleanup()
    {
        m_window.reset();
        m_reg.reset();
    }

    void rowsAfterTheFirstScreenAndTheLastRow()
    {
        QCOMPARE(count(), QString("95 object(s)"));
        QCOMPARE(model().itemCount(), Documents);
        // The first screen only, not the register.
        const int screenRows = view()->viewport()->height() / view()->sizeHintForRow(0) + 1;
        QVERIFY2(pagesRead() <= screenRows / PageRows + 1 && pagesRead() < Documents / PageRows,
            qPrintable(QString("%1 pages for %2 rows").arg(pagesRead()).arg(screenRows)));

        // Down across a page boundary, from the last row of a page to the first of the next.
        m_window->documentList()->selectRow(PageRows - 1);
        QTest::keyClick(view(), Qt::Key_Down);
        QCOMPARE(selectedRow(), PageRows);
        QCOMPARE(model().item(PageRows).text, m_documents[PageRows].text);
        QCOMPARE(selection().selectedDocumentId, m_documents[PageRows].id);

        // Ctrl+End reads the last page from the end, not the pages between.
        const int before = pagesRead();
        QTest::keyClick(view(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(selectedRow(), Documents - 1);
        QCOMPARE(selection().selectedDocumentId, m_documents.back().id);
        QVERIFY2(pagesRead() - before <= 3, qPrintable(QString::number(pagesRead() - before)));
        QTest::keyClick(view(), Qt::Key_PageUp);
        QVERIFY(selectedRow() < Documents - 1);
        QCOMPARE(model().item(selectedRow()).text, m_documents[size_t(selectedRow())].text);
        QTest::keyClick(view(), Qt::Key_Home, Qt::ControlModifier);
        QCOMPARE(selectedRow(), 0);

        // Every row in the register's order, whichever end each page was read from.
        QCOMPARE(shownTexts(), textsOf(m_documents));
    }

    // A sort by a column reads the rows in the new order from the database, Nulls first.
    void sortsPageInTheColumnsOrder_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<int>("clicks");
        QTest::newRow("description") << 0 << 1;
        QTest::newRow("description, descending") << 0 << 2;
        QTest::newRow("date, descending") << 3 << 2;
        QTest::newRow("notes, Nulls first") << 4 << 1;
        QTest::newRow("notes, descending, Nulls last") << 4 << 2;
    }

    void sortsPageInTheColumnsOrder()
    {
        QFETCH(int, column);
        QFETCH(int, clicks);
        // A click on the date column first, so that the clicks counted start ascending.
        QHeaderView* header = view()->header();
        auto clickHeader = [&](int section) {
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                QPoint(header->sectionViewportPosition(section) + 5, header->height() / 2));
        };
        clickHeader(column == 3 ? 0 : 3);
        for (int i = 0; i < clicks; ++i)
            clickHeader(column);

        std::vector<Document> expected = m_documents;
        auto value = [column](const Document& d) { return column == 0 ? d.text : d.notes.toString(); };
        std::stable_sort(expected.begin(), expected.end(), [&](const Document& a, const Document& b) {
            if (column == 3)
                return a.date != b.date ? a.date < b.date : a.id < b.id;
            if (column == 4 && a.notes.isNull() != b.notes.isNull())
                return a.notes.isNull();
            if (value(a) != value(b))
                return nameLess(value(a), value(b));
            return a.id < b.id;
        });
        if (clicks == 2)
            std::reverse(expected.begin(), expected.end());
        QTest::keyClick(view(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(model().item(Documents - 1).text, expected.back().text);
        QCOMPARE(shownTexts(), textsOf(expected));
    }

    // The related list reads its rows as they come into view too, the last without the
    // pages between, and sorts them in the database as the list would, a Null description
    // shown and sorted as the null mark.
    void relatedRowsAsTheyComeIntoView()
    {
        const qint32 document = m_documents[1].id;
        QStringList texts;
        for (int i = 0; i < 25; ++i) {
            const QVariant text = i == 20 ? QVariant() : QVariant(QStringLiteral("Annex %1").arg(24 - i));
            m_reg->insert("tbl_Sub_Documents",
                {{"RastasID", document}, {"SubDocDescript", text},
                    {"SubRastGavimoData", QDate(2024, 2, 1).addDays(i % 4)}});
            texts << (text.isNull() ? NullMark : text.toString());
        }
        m_window->documentList()->selectRow(1);
        QTRY_VERIFY(m_window->relatedList()->isVisible());
        ListModel& related = *m_window->relatedModel();
        QCOMPARE(related.itemCount(), 25);
        const auto* pages = static_cast<RelatedPages*>(related.source());
        QVERIFY2(pages->pagesRead() < 3, qPrintable(QString::number(pages->pagesRead())));
        QTreeView* list = m_window->relatedList()->detailsView();
        list->setFocus();
        QTest::keyClick(list, Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(m_window->relatedList()->selectedRow(), 24);
        QCOMPARE(related.item(24).text, texts.back());
        QCOMPARE(related.item(24).subItems[0], NullMark);

        QHeaderView* header = list->header();
        auto clickHeader = [&](int section) {
            QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                QPoint(header->sectionViewportPosition(section) + 5, header->height() / 2));
        };
        auto shown = [&] {
            QStringList rows;
            for (int row = 0; row < related.itemCount(); ++row)
                rows << related.item(row).text;
            return rows;
        };
        clickHeader(2);
        clickHeader(0);
        std::stable_sort(texts.begin(), texts.end(), nameLess);
        QCOMPARE(shown(), texts);
        clickHeader(0);
        std::reverse(texts.begin(), texts.end());
        QCOMPARE(shown(), texts);
    }

    // A first letter jumps to the next row that starts with it, though never read.
    void typeAheadReachesRowsNeverRead()
    {
        m_window->documentList()->selectRow(0);
        QTest::keyClick(view(), Qt::Key_Z);
        QCOMPARE(selectedRow(), 80);
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        QTest::keyClick(view(), Qt::Key_Z);
        QCOMPARE(selectedRow(), 90);
        QTest::qWait(QApplication::keyboardInputInterval() + 50);
        // From the last, round to the first again.
        QTest::keyClick(view(), Qt::Key_Z);
        QCOMPARE(selectedRow(), 80);
    }

    void deleteOfARowNeverRead()
    {
        ScriptedPrompter prompter;
        const Document gone = m_documents[57];
        const int row = model().rowOfKey(DocumentFills::itemKey(gone.id));
        QCOMPARE(row, 57);
        m_window->documentList()->selectRow(row);
        QCOMPARE(selection().selectedDocumentId, gone.id);
        prompter.answer(MsgBoxResult::Yes);
        QTest::keyClick(view(), Qt::Key_Delete);
        QCOMPARE(prompter.texts().size(), 1);
        QVERIFY2(prompter.texts().first().contains(gone.text), qPrintable(prompter.texts().first()));
        QCOMPARE(
            m_reg->scalar("SELECT COUNT(*) FROM tbl_Documents WHERE RastasID=" + QString::number(gone.id))
                .toInt(),
            0);
        m_documents.erase(m_documents.begin() + 57);
        QCOMPARE(count(), QString("94 object(s)"));
        QCOMPARE(shownTexts(), textsOf(m_documents));
    }

    // A refill drops the pages read, also those read from the end, and counts again.
    void refillWhileRowsAreStillComing()
    {
        QTest::keyClick(view(), Qt::Key_End, Qt::ControlModifier);
        addDocuments(Documents, 5);
        QTest::keyClick(view(), Qt::Key_F5);
        QCOMPARE(count(), QString("100 object(s)"));
        QTest::keyClick(view(), Qt::Key_End, Qt::ControlModifier);
        QCOMPARE(model().item(selectedRow()).text, m_documents.back().text);
        QCOMPARE(shownTexts(), textsOf(m_documents));

        // Another node, while the list stood at its end: its rows from the top.
        NavigationTree* tree = m_window->tree();
        m_window->onNodeClicked(tree->nodeByKey("a" + QString::number(m_category)));
        std::vector<Document> even;
        for (size_t i = 0; i < m_documents.size(); i += 2)
            even.push_back(m_documents[i]);
        QCOMPARE(count(), QString("%1 object(s)").arg(even.size()));
        QCOMPARE(shownTexts(), textsOf(even));
    }

    // A letter's rows are those of the names that start with it, in either case; a server
    // names the letter's contacts one by one in the list's statements.
    void aLettersRowsOnEitherPlace_data()
    {
        QTest::addColumn<TestRegister::Where>("where");
        QTest::newRow("file") << TestRegister::File;
        QTest::newRow("server") << TestRegister::Server;
    }

    void aLettersRowsOnEitherPlace()
    {
        QFETCH(TestRegister::Where, where);
        if (where == TestRegister::Server && !ServerDatabase::available())
            QSKIP(qPrintable(ServerDatabase::skipReason()));
        const TestRegister reg(where);
        QHash<qint32, QString> names;
        for (const char* name : {"Antanas", "agnė", "Bronė", "Ąžuolas", "Žaneta"}) {
            const qint32 contact
                = reg.insert(QStringLiteral("tbl_Contacts"), {{"FullName", QString::fromUtf8(name)}});
            for (int day = 1; day <= 3; ++day)
                names.insert(reg.insert(QStringLiteral("tbl_Documents"),
                                 {{"DokAntraste", QString::fromUtf8(name)}, {"ContactID", contact},
                                     {"DokRegistracData", QDate(2024, 3, day)}}),
                    QString::fromUtf8(name));
        }
        const auto listed = [&](QChar letter) {
            auto connection = std::make_unique<Connection>(reg.connectionString());
            connection->open();
            DocumentPages pages(contactDocumentSql(0, false, {}, {}), DocumentPaging::Mode::Letter, 0, letter,
                {}, std::move(connection));
            QStringList rows;
            for (int row = 0; row < pages.count(); ++row)
                rows << names.value(pages.item(row).key.section(u' ', 1).toInt());
            return rows;
        };
        QCOMPARE(listed(u'a'), QStringList({"Antanas", "agnė", "Antanas", "agnė", "Antanas", "agnė"}));
        QCOMPARE(listed(u'Ž'), QStringList({"Žaneta", "Žaneta", "Žaneta"}));
        QCOMPARE(listed(u'x'), QStringList());
    }
};

QTEST_MAIN(ListPagingTest)
#include "tst_list_paging.moc"
