// The columns of the document list: the last one reaches the list's edge, a double-click on
// an edge fits a column to its contents, and the widths a user sets come back at the next
// start, also for the search results.
#include "explorer/ExplorerFixture.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/SearchBox.h"
#include "harness/ScriptedPrompter.h"
#include "options/OptionStore.h"
#include "support/SelectionState.h"

#include <QApplication>
#include <QHeaderView>
#include <QMouseEvent>
#include <QTest>
#include <QTreeView>

using namespace kartella;
using namespace kartella::test;

namespace {

QHeaderView* header(MainWindow& window)
{
    return window.documentList()->detailsView()->header();
}

void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QCoreApplication::processEvents();
}

// Where a column's right edge is in the header, as the mouse grips it.
QPoint edgeOf(QHeaderView* header, int column)
{
    return {header->sectionViewportPosition(column) + header->sectionSize(column) - 1, header->height() / 2};
}

// Drags a column's right edge by dx pixels with the left button.
void dragEdge(QHeaderView* header, int column, int dx)
{
    QWidget* viewport = header->viewport();
    const QPoint from = edgeOf(header, column);
    const QPoint to = from + QPoint(dx, 0);
    QTest::mousePress(viewport, Qt::LeftButton, {}, from);
    for (const QPoint& at : {from + QPoint(dx / 2, 0), to}) {
        QMouseEvent move(QEvent::MouseMove, at, viewport->mapToGlobal(at), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, to);
}

bool lastColumnReachesTheEdge(QHeaderView* header)
{
    const int last = header->count() - 1;
    return header->sectionViewportPosition(last) + header->sectionSize(last) == header->viewport()->width();
}

} // namespace

class ColumnWidthsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { selection() = SelectionState(); }

    void lastColumnTakesTheRestOfTheList()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        settle();
        QCOMPARE(header(w)->count(), 5);
        QVERIFY(lastColumnReachesTheEdge(header(w)));
        w.resize(1500, 700);
        settle();
        QVERIFY(lastColumnReachesTheEdge(header(w)));
        QVERIFY(prompter.prompts().isEmpty());
    }

    void doubleClickOnAnEdgeFitsTheColumn()
    {
        ExplorerFixture fx;
        fx.reg.exec("UPDATE tbl_Documents SET DokAntraste = 'A description wider than its column' WHERE "
                    "DokAntraste = 'loose'");
        ScriptedPrompter prompter;
        MainWindow& w = fx.window();
        settle();
        QHeaderView* columns = header(w);
        QTreeView* view = w.documentList()->detailsView();
        const int fitting
            = qMax(static_cast<QAbstractItemView*>(view)->sizeHintForColumn(0), columns->sectionSizeHint(0));
        QVERIFY(columns->sectionSize(0) < fitting);
        QTest::mouseDClick(columns->viewport(), Qt::LeftButton, {}, edgeOf(columns, 0));
        QCOMPARE(columns->sectionSize(0), fitting);
        QVERIFY(lastColumnReachesTheEdge(columns));
        // The fitted width is the user's: the next start shows it.
        MainWindow again;
        again.resize(1000, 700);
        again.show();
        again.load();
        settle();
        QCOMPARE(header(again)->sectionSize(0), fitting);
        QVERIFY(prompter.prompts().isEmpty());
    }

    void widthsTheUserSetsComeBackAtTheNextStart()
    {
        ExplorerFixture fx;
        ScriptedPrompter prompter;
        QList<int> widths;
        {
            MainWindow& w = fx.window();
            settle();
            QHeaderView* columns = header(w);
            const int before = columns->sectionSize(1);
            dragEdge(columns, 1, 60);
            QCOMPARE(columns->sectionSize(1), before + 60);
            dragEdge(columns, 3, -30);
            QVERIFY(lastColumnReachesTheEdge(columns));
            for (int column = 0; column < 4; ++column)
                widths << columns->sectionSize(column);
            // Widths that follow the window are not the user's: they aren't stored.
            const QString stored = getRegValue("DocumentListColumns");
            w.resize(700, 500);
            settle();
            QCOMPARE(getRegValue("DocumentListColumns"), stored);
        }
        MainWindow again;
        again.resize(1000, 700);
        again.show();
        again.load();
        QVERIFY(QTest::qWaitForWindowExposed(&again));
        settle();
        QHeaderView* columns = header(again);
        auto shown = [columns] {
            QList<int> sizes;
            for (int column = 0; column < 4; ++column)
                sizes << columns->sectionSize(column);
            return sizes;
        };
        QCOMPARE(shown(), widths);
        QVERIFY(lastColumnReachesTheEdge(columns));

        // They stay through the empty state of one column and the search results.
        SearchBox* search = again.searchBox();
        search->setFocus();
        QTest::keyClicks(search, "nothing like it");
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(columns->count(), 1);
        QVERIFY(lastColumnReachesTheEdge(columns));
        search->clear();
        QTest::keyClicks(search, "contract");
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(again.documentModel()->itemCount(), 1);
        QCOMPARE(shown(), widths);
        // A word of a file adds the column of the passages; the others keep their widths.
        fx.reg.exec("INSERT INTO tbl_Document_Text (RastasID, State, Body) SELECT RastasID, 1, "
                    "'Nuomos sutartis pasirasyta' FROM tbl_Documents WHERE DokAntraste = 'loose'");
        search->clear();
        QTest::keyClicks(search, "sutartis");
        QTest::keyClick(search, Qt::Key_Return);
        QCOMPARE(again.documentModel()->itemCount(), 1);
        QCOMPARE(columns->count(), 6);
        QCOMPARE(shown(), widths);
        const int last = columns->count() - 1;
        QVERIFY(columns->sectionViewportPosition(last) + columns->sectionSize(last)
            >= columns->viewport()->width());
        QVERIFY(prompter.prompts().isEmpty());
    }
};

QTEST_MAIN(ColumnWidthsTest)
#include "tst_column_widths.moc"
