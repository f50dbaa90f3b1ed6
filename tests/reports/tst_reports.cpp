#include "ReportFixture.h"
#include "explorer/MainWindow.h"
#include "harness/ScriptedPrompter.h"
#include "reports/ReportCommands.h"
#include "reports/ReportPreview.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

using namespace kartella;
using namespace kartella::test;

namespace {

// Whether expected stands in lines in this order, each line whole, others between them.
bool inOrder(const QStringList& lines, const QStringList& expected, QString& missing)
{
    qsizetype from = 0;
    for (const QString& line : expected) {
        const qsizetype at = lines.indexOf(line, from);
        if (at < 0) {
            missing = line;
            return false;
        }
        from = at + 1;
    }
    return true;
}

QStringList run(ReportCommands& commands, const QString& report)
{
    const ReportLayout& layout = *findReportLayout(report);
    return allLines(layOut(layout, commands.run(layout)));
}

// Many groups of one to seven documents: every way a page can end.
ReportData manyGroups(int groups)
{
    ReportData data {{"DokKategorija", "KategID"},
        {"DokRegistracData", "DokRegistracIndeksas", "DokAntraste", "FullName", "DokKategorija", "RastasID"},
        {}};
    for (int g = 0; g < groups; ++g) {
        ReportGroup group {{QStringLiteral("Category %1").arg(g), g}, {}};
        for (int d = 0; d <= (g * 5) % 7; ++d) {
            group.children << QVariantList {QDate(2026, 3, 1 + d), QStringLiteral("C%1/%2").arg(g).arg(d),
                QStringLiteral("Document %1 of %2").arg(d).arg(g), QStringLiteral("Ona"),
                QStringLiteral("Category %1").arg(g), d};
        }
        data.groups << group;
    }
    return data;
}

} // namespace

class ReportsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachReportPrintsItsGroupsAndDetails_data()
    {
        QTest::addColumn<QString>("report");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<QStringList>("absent");
        QTest::newRow("categories")
            << "categories"
            << QStringList {"CATEGORIES",
                   "Mnem Location of files WORD Template EXCEL Template POWERPOINT Template",
                   "Laiškai LAI /docs/lai /t/lai.dot", "Gauti /t/gauti.xlt", "Sutartys SUT"}
            << QStringList {};
        QTest::newRow("by-contacts") << "by-contacts"
                                     << QStringList {"List of Documents by Contacts",
                                            "Jonas Jonaitis Jonas Jonaitis",
                                            "Senas laiškas {prev} LAI-3 Laiškai",
                                            "Ona Petraitienė Ona Petraitienė",
                                            "Sutartis dėl nuomos {this} SUT-1 Sutartys"}
                                     << QStringList {"Laiškas be adresato"};
        QTest::newRow("phones") << "phones"
                                << QStringList {"Phones", "Ona Petraitienė", "Darbo +370 5 111",
                                       "Mob. +370 600 1"}
                                << QStringList {"Jonas Jonaitis"};
        QTest::newRow("by-category") << "by-category"
                                     << QStringList {"List of Documents by Category",
                                            "Doc. Description Reg. Index Reg. Date Sender/Receiver",
                                            "Sutartys", "Sutartis dėl nuomos SUT-1 {this} Ona Petraitienė",
                                            "Laiškai", "Laiškas be adresato LAI-2 {this}",
                                            "Senas laiškas LAI-3 {prev} Jonas Jonaitis"}
                                     << QStringList {};
        QTest::newRow("reminder") << "reminder"
                                  << QStringList {"Reminder", "Sutartis dėl nuomos",
                                         "{reminder} Pratęsti sutartį"}
                                  << QStringList {"Senas laiškas"};
        QTest::newRow("telephone-list")
            << "telephone-list"
            << QStringList {"Telephone List", "Jonas Jonaitis", "Ona Petraitienė UAB Ona", "Darbo +370 5 111",
                   "Mob. +370 600 1"}
            << QStringList {};
        QTest::newRow("addresses") << "addresses"
                                   << QStringList {"Address Book", "Ona Petraitienė UAB Ona",
                                          "Gedimino pr. 1 Vilnius Lithuania", "Mob. +370 600 1",
                                          "Darbo +370 5 111"}
                                   << QStringList {"Jonas Jonaitis"};
        QTest::newRow("this-month") << "this-month"
                                    << QStringList {"List Of documents By Categories", "Laiškai",
                                           "{this} LAI-2 Laiškas be adresato Laiškai", "Sutartys",
                                           "{this} SUT-1 Sutartis dėl nuomos Ona Petraitienė Sutartys",
                                           "Printed: {today} page 1 of 1"}
                                    << QStringList {"Senas laiškas"};
    }

    void eachReportPrintsItsGroupsAndDetails()
    {
        QFETCH(QString, report);
        QFETCH(QStringList, expected);
        QFETCH(QStringList, absent);
        ReportFixture fx;
        ReportCommands commands;
        commands.setConnectionString(fx.reg.connectionString());
        const QStringList lines = run(commands, report);
        for (QString& line : expected) {
            line.replace("{this}", reportText(fx.thisMonth))
                .replace("{prev}", reportText(fx.previousMonth))
                .replace("{reminder}", reportText(fx.reminderDate))
                .replace("{today}", reportText(reportToday()));
        }
        QString missing;
        QVERIFY2(inOrder(lines, expected, missing),
            qPrintable(missing + " not in order in:\n" + lines.join('\n')));
        for (const QString& text : absent)
            QVERIFY2(!lines.join('\n').contains(text), qPrintable(text));
    }

    void previousMonthStaysForTheRestOfTheRun()
    {
        ReportFixture fx;
        ReportCommands commands;
        commands.setConnectionString(fx.reg.connectionString());
        QCOMPARE(commands.commandText("This_Month_Grouping"),
            QString("SHAPE {SELECT * FROM `qry_This_Month`}  AS This_Month COMPUTE This_Month BY "
                    "'DokKategorija','KategID'"));
        const QString old = "Senas laiškas";
        QVERIFY(!run(commands, "this-month").join('\n').contains(old));

        commands.usePreviousMonth();
        QCOMPARE(commands.commandText("This_Month_Grouping"),
            QString("SHAPE {SELECT * FROM `qry_Previous_Month`}  AS This_Month COMPUTE This_Month BY "
                    "'DokKategorija','KategID'"));
        for (int time = 0; time < 2; ++time) {
            const QString text = run(commands, "this-month").join('\n');
            QVERIFY(
                text.contains(reportText(fx.previousMonth) + " LAI-3 " + old + " Jonas Jonaitis Laiškai"));
            QVERIFY(!text.contains("Sutartis dėl nuomos"));
        }
    }

    void connectionIsSetOnceFromTheOptions()
    {
        ReportFixture fx;
        ReportCommands commands;
        QCOMPARE(commands.connectionString(),
            QString("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= " + fx.reg.path()));
        ReportFixture other;
        QCOMPARE(commands.connectionString(),
            QString("Provider=Microsoft.Jet.OLEDB.4.0;Data Source= " + fx.reg.path()));
    }

    void pageNumbersOnAThreePageReport()
    {
        const ReportLayout& layout = *findReportLayout("this-month");
        ReportData data = manyGroups(1);
        QList<ReportPage> pages;
        while ((pages = layOut(layout, data)).size() < 3)
            data.groups.first().children << data.groups.first().children.first();
        QCOMPARE(pages.size(), 3);
        const QString today = reportText(reportToday());
        for (int page = 0; page < 3; ++page) {
            const QStringList lines = pages.at(page).lines();
            QCOMPARE(lines.first(), QString("List Of documents By Categories"));
            QCOMPARE(lines.last(), QString("Printed: %1 page %2 of 3").arg(today).arg(page + 1));
        }
        // A group longer than a page goes on under the repeated page header.
        QCOMPARE(pages.at(1).lines().at(1),
            QString("1 Mar 2026 C0/0 Document 0 of 0 Ona Category 0")
                .replace("1 Mar 2026", reportText(QDate(2026, 3, 1))));
    }

    void aGroupHeaderNeverEndsAPage()
    {
        const ReportLayout& layout = *findReportLayout("this-month");
        const QList<ReportPage> pages = layOut(layout, manyGroups(300));
        QVERIFY(pages.size() > 5);
        for (const ReportPage& page : pages) {
            double footerTop = 1e9;
            for (const PaintedItem& item : page.items) {
                if (item.text == "Printed:")
                    footerTop = item.rect.top();
            }
            // The lowest line above the page footer is a detail line, never a group header.
            const PaintedItem* lowest = nullptr;
            for (const PaintedItem& item : page.items) {
                if (item.kind == PaintedItem::Kind::Text && item.rect.top() < footerTop
                    && (!lowest || item.rect.top() > lowest->rect.top()))
                    lowest = &item;
            }
            QVERIFY(lowest);
            QVERIFY2(!lowest->bold, qPrintable(lowest->text));
        }
    }

    void growingBoxesWrapAndPushTheLineDown()
    {
        const ReportLayout& layout = *findReportLayout("by-category");
        const QString longTitle = QString("Labai ilgas dokumento pavadinimas ").repeated(8).trimmed();
        ReportData data {{"DokKategorija", "KategID"},
            {"DokAntraste", "DokRegistracIndeksas", "DokRegistracData", "FullName", "ContactID"},
            {{{"Raštai", 1},
                {{longTitle, "R-1", QDate(2026, 3, 2), "Ona", 1},
                    {"Trumpas", "R-2", QDate(2026, 3, 3), "Jonas", 2}}}}};
        const QList<ReportPage> pages = layOut(layout, data);
        QCOMPARE(pages.size(), 1);
        const PaintedItem* wrapped = nullptr;
        const PaintedItem* next = nullptr;
        const PaintedItem* index = nullptr;
        for (const PaintedItem& item : pages.first().items) {
            if (item.text == longTitle)
                wrapped = &item;
            if (item.text == "Trumpas")
                next = &item;
            if (item.text == "R-1")
                index = &item;
        }
        QVERIFY(wrapped && next && index);
        QVERIFY(wrapped->wraps);
        QVERIFY(wrapped->rect.height() > 2.5 * index->rect.height());
        QVERIFY(next->rect.top() >= wrapped->rect.bottom() - 0.5);
    }

    void theToolListsAndWritesReports()
    {
        ReportFixture fx;
        QProcess tool;
        tool.start(KARTELLA_DB_TOOL, {"report", "--list"});
        QVERIFY(tool.waitForFinished(60000));
        QCOMPARE(tool.exitCode(), 0);
        const QStringList listed
            = QString::fromUtf8(tool.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
        QCOMPARE(listed.size(), 8);
        QCOMPARE(listed.at(0).simplified(), QString("categories Categories"));
        QCOMPARE(listed.at(5).simplified(), QString("telephone-list Telephone List"));
        QCOMPARE(listed.at(7).simplified(), QString("this-month This Month"));

        const QString pdf = fx.reg.dir() + "/month.pdf";
        tool.start(
            KARTELLA_DB_TOOL, {"report", "this-month", pdf, "--register", fx.reg.path(), "--previous-month"});
        QVERIFY(tool.waitForFinished(60000));
        QCOMPARE(tool.exitCode(), 0);
        QCOMPARE(QString::fromUtf8(tool.readAllStandardOutput()), QString("pages: 1\n"));
        if (QStandardPaths::findExecutable("pdftotext").isEmpty())
            QSKIP("pdftotext (poppler-utils) is missing");
        QProcess text;
        text.start("pdftotext", {"-layout", pdf, "-"});
        QVERIFY(text.waitForFinished(60000));
        const QString content = QString::fromUtf8(text.readAllStandardOutput());
        QVERIFY2(content.contains("List Of documents By Categories"), qPrintable(content));
        QVERIFY(content.contains("Senas laiškas"));
        QVERIFY(content.contains("Jonas Jonaitis"));
        QVERIFY(!content.contains("Sutartis dėl nuomos"));
        QVERIFY(content.simplified().contains("page 1 of 1"));

        // Without --register the tool reads the register the options name.
        const QString phones = fx.reg.dir() + "/phones.pdf";
        tool.start(KARTELLA_DB_TOOL, {"report", "phones", phones});
        QVERIFY(tool.waitForFinished(60000));
        QCOMPARE(tool.exitCode(), 0);
        text.start("pdftotext", {phones, "-"});
        QVERIFY(text.waitForFinished(60000));
        const QString phoneText = QString::fromUtf8(text.readAllStandardOutput());
        QVERIFY2(phoneText.contains("+370 600 1"), qPrintable(phoneText));
        QVERIFY(!phoneText.contains("Jonas Jonaitis"));

        tool.start(KARTELLA_DB_TOOL, {"report", "no-such", pdf, "--register", fx.reg.path()});
        QVERIFY(tool.waitForFinished(60000));
        QCOMPARE(tool.exitCode(), 2);
        tool.start(KARTELLA_DB_TOOL, {"report", "phones", pdf, "--register", fx.reg.dir() + "/missing.db"});
        QVERIFY(tool.waitForFinished(60000));
        QCOMPARE(tool.exitCode(), 1);
    }

    void menuEntriesOpenTheirReport()
    {
        ReportFixture fx;
        ReportCommands::instance().setConnectionString(fx.reg.connectionString());
        QStringList seen;
        const auto entryNamed = [](const QString& dialog) {
            for (const ReportMenuEntry& entry : reportMenuEntries()) {
                if (entry.dialog == dialog)
                    return entry;
            }
            return ReportMenuEntry {};
        };
        for (const char* dialog : {"DataReport1", "rptPreviousMonth", "rptThisMonth"}) {
            QTimer::singleShot(0, [&] {
                auto* preview = qobject_cast<ReportPreview*>(QApplication::activeModalWidget());
                QVERIFY(preview);
                seen << preview->windowTitle() + ": " + QString::number(preview->data().childCount());
                preview->reject();
            });
            entryNamed(dialog).open(nullptr);
        }
        // Both month entries read the previous month once it was asked for.
        QCOMPARE(seen, QStringList({"Categories: 1", "This Month: 1", "This Month: 1"}));

        entryNamed("DataReport5").open(nullptr);
        auto* reminder = qobject_cast<ReportPreview*>(QApplication::topLevelWidgets().value(0));
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "DataReport5")
                reminder = qobject_cast<ReportPreview*>(widget);
        }
        QVERIFY(reminder && reminder->isVisible() && !reminder->isModal());
        QCOMPARE(reminder->windowTitle(), QString("Reminder"));
        reminder->close();
    }

    void theReportsMenuOpensEachReport()
    {
        ReportFixture fx;
        ReportCommands::instance().setConnectionString(fx.reg.connectionString());
        ScriptedPrompter prompter;
        MainWindow window;
        window.load();
        window.show();
        QApplication::setActiveWindow(&window);
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const QStringList entries {"mnuCategoriesRep", "mnuThisMonth", "mnuAll", "mnuDocByContacts",
            "mnurptPhones", "mnuContacts", "mnurptPrevMonth"};
        const QStringList captions {"Categories", "This Month", "List of Documents by Category",
            "List by Contacts", "Phones", "Addresses", "This Month"};
        for (int i = 0; i < entries.size(); ++i) {
            QAction* action = window.action(entries.at(i));
            QVERIFY2(action && action->isEnabled(), qPrintable(entries.at(i)));
            QString caption;
            QTimer::singleShot(0, [&] {
                if (auto* preview = qobject_cast<ReportPreview*>(QApplication::activeModalWidget())) {
                    caption = preview->windowTitle();
                    preview->reject();
                }
            });
            action->trigger();
            QCOMPARE(caption, captions.at(i));
        }

        // The keyboard: C in the open Reports menu.
        auto* menu = window.findChild<QMenu*>("mnuReports");
        QVERIFY(menu);
        menu->popup(window.mapToGlobal(QPoint(0, 0)));
        QTRY_VERIFY(menu->isVisible());
        QString caption;
        QTimer::singleShot(0, [&] {
            if (auto* preview = qobject_cast<ReportPreview*>(QApplication::activeModalWidget())) {
                caption = preview->windowTitle();
                preview->reject();
            }
        });
        QTest::keyClick(menu, Qt::Key_C);
        QTRY_COMPARE(caption, QString("Categories"));
        QVERIFY(prompter.prompts().isEmpty());
    }
};

QTEST_MAIN(ReportsTest)
#include "tst_reports.moc"
