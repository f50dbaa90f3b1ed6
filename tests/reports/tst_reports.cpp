#include "ReportFixture.h"
#include "harness/Lithuanian.h"
#include "base/Error.h"
#include "explorer/MainWindow.h"
#include "harness/ScriptedPrompter.h"
#include "reports/ReportCommands.h"
#include "reports/ReportPreview.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPrinter>
#include <QPushButton>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
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

ReportMenuEntry entryNamed(const QString& dialog)
{
    for (const ReportMenuEntry& entry : reportMenuEntries()) {
        if (entry.dialog == dialog)
            return entry;
    }
    return ReportMenuEntry {};
}

bool anyPreviewShown()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<ReportPreview*>(widget) && widget->isVisible())
            return true;
    }
    return false;
}

// Whether the pages of a PDF file are wider than high.
bool landscapePdf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QString content = QString::fromLatin1(file.readAll());
    const QRegularExpressionMatch box
        = QRegularExpression("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]").match(content);
    return box.hasMatch() && box.captured(1).toDouble() > box.captured(2).toDouble();
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
                                            "Doc. Description Reg. Date Reg. Index Category",
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
                                            "Laiškai", "Laiškas be adresato LAI-2 {this}",
                                            "Senas laiškas LAI-3 {prev} Jonas Jonaitis", "Sutartys",
                                            "Sutartis dėl nuomos SUT-1 {this} Ona Petraitienė"}
                                     << QStringList {};
        QTest::newRow("reminder") << "reminder"
                                  << QStringList {"Reminder", "SUT-1 Sutartis dėl nuomos",
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
                                    << QStringList {"List Of documents By Categories",
                                           "Reg. Date Reg. Index Doc. Description Sender/Receiver Category",
                                           "Laiškai", "{this} LAI-2 Laiškas be adresato Laiškai", "Sutartys",
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

    void theReminderReportListsWhatIsStillToDo_data()
    {
        QTest::addColumn<bool>("olderRegister");
        QTest::newRow("register that keeps reminders done") << false;
        QTest::newRow("register of an older version") << true;
    }

    // Two documents of one description told apart by their index; a reminder marked done,
    // and a document whose only reminder is done.
    void theReminderReportListsWhatIsStillToDo()
    {
        QFETCH(bool, olderRegister);
        ReportFixture fx;
        const qint32 lease = fx.reg
                                 .scalar("SELECT RastasID FROM tbl_Documents WHERE DokRegistracIndeksas = "
                                         "'SUT-1'")
                                 .toInt();
        const qint32 twin = fx.reg.insert("tbl_Documents",
            {{"KategID", 2}, {"DokRegistracData", fx.thisMonth}, {"DokRegistracIndeksas", "SUT-9"},
                {"DokAntraste", "Sutartis dėl nuomos"}});
        const qint32 old
            = fx.reg.scalar("SELECT RastasID FROM tbl_Documents WHERE DokRegistracIndeksas = 'LAI-3'")
                  .toInt();
        fx.reg.insert("tbl_Tickler",
            {{"RastasID", lease}, {"TicklerDate", QDate(2029, 12, 1)}, {"TicklerText", "Pasirašyta"},
                {"TicklerDone", 1}});
        fx.reg.insert("tbl_Tickler",
            {{"RastasID", twin}, {"TicklerDate", QDate(2030, 2, 1)}, {"TicklerText", "Apmokėti"}});
        fx.reg.insert("tbl_Tickler",
            {{"RastasID", old}, {"TicklerDate", QDate(2029, 1, 1)}, {"TicklerText", "Atsakyta"},
                {"TicklerDone", 1}});
        if (olderRegister) {
            // The history's triggers, which came later, name the column.
            for (const char* change : {"Insert", "Update", "Delete"})
                fx.reg.exec(
                    QStringLiteral("DROP TRIGGER IF EXISTS trg_History_Tickler_") + QLatin1String(change));
            fx.reg.exec("ALTER TABLE tbl_Tickler DROP COLUMN TicklerDone");
        }
        ReportCommands commands;
        commands.setConnectionString(fx.reg.connectionString());
        const QStringList lines = run(commands, "reminder");

        QStringList expected {"Reminder"};
        if (olderRegister)
            expected << "LAI-3 Senas laiškas" << reportText(QDate(2029, 1, 1)) + " Atsakyta"
                     << "SUT-1 Sutartis dėl nuomos" << reportText(QDate(2029, 12, 1)) + " Pasirašyta";
        else
            expected << "SUT-1 Sutartis dėl nuomos";
        expected << reportText(fx.reminderDate) + " Pratęsti sutartį"
                 << "SUT-9 Sutartis dėl nuomos" << reportText(QDate(2030, 2, 1)) + " Apmokėti";
        QCOMPARE(lines, expected);
    }

    void previousMonthStaysForTheRestOfTheRun()
    {
        ReportFixture fx;
        ReportCommands commands;
        commands.setConnectionString(fx.reg.connectionString());
        QVERIFY(
            commands.commandText("This_Month_Grouping").startsWith("SHAPE {SELECT * FROM `qry_This_Month` "));
        const QString old = "Senas laiškas";
        QVERIFY(!run(commands, "this-month").join('\n').contains(old));

        commands.usePreviousMonth();
        QVERIFY(commands.commandText("This_Month_Grouping")
                    .startsWith("SHAPE {SELECT * FROM `qry_Previous_Month` "));
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

    void menuEntriesOpenTheirReport()
    {
        ReportFixture fx;
        ReportCommands::instance().setConnectionString(fx.reg.connectionString());
        QStringList seen;
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

    void eachEntrySetsItsOrientationAlsoWithoutAPrinterQueue()
    {
        ReportFixture fx;
        ReportCommands::instance().setConnectionString(fx.reg.connectionString());
        // Previous Month has no orientation step of its own: it keeps what the report before
        // it left.
        const QList<std::pair<QString, QPageLayout::Orientation>> entries {
            {"DataReport3", QPageLayout::Portrait}, {"rptThisMonth", QPageLayout::Landscape},
            {"rptPreviousMonth", QPageLayout::Landscape}, {"AddressBooks", QPageLayout::Portrait},
            {"rptPreviousMonth", QPageLayout::Portrait}, {"DataReport1", QPageLayout::Landscape},
            {"PhoneList", QPageLayout::Portrait}, {"DataReport4", QPageLayout::Landscape},
            {"DataReport2", QPageLayout::Landscape}};
        for (const auto& [dialog, orientation] : entries) {
            QPageLayout::Orientation shown
                = orientation == QPageLayout::Portrait ? QPageLayout::Landscape : QPageLayout::Portrait;
            int pages = 0;
            QTimer::singleShot(0, [&] {
                if (auto* preview = qobject_cast<ReportPreview*>(QApplication::activeModalWidget())) {
                    shown = preview->printer()->pageLayout().orientation();
                    pages = preview->pageCount();
                    preview->reject();
                }
            });
            entryNamed(dialog).open(nullptr);
            QVERIFY2(shown == orientation, qPrintable(dialog));
            QVERIFY2(pages >= 1, qPrintable(dialog));
        }
    }

    void whichEntriesLetTheirErrorsThrough_data()
    {
        QTest::addColumn<QString>("dialog");
        QTest::addColumn<bool>("raises");
        QTest::newRow("categories") << "DataReport1" << false;
        QTest::newRow("this month") << "rptThisMonth" << true;
        QTest::newRow("previous month") << "rptPreviousMonth" << true;
        QTest::newRow("all") << "DataReport4" << false;
        QTest::newRow("by contacts") << "DataReport2" << true;
        QTest::newRow("phones") << "DataReport3" << true;
        QTest::newRow("contacts") << "AddressBooks" << true;
        QTest::newRow("reminder") << "DataReport5" << true;
        QTest::newRow("telephone list") << "PhoneList" << false;
    }

    void whichEntriesLetTheirErrorsThrough()
    {
        QFETCH(QString, dialog);
        QFETCH(bool, raises);
        QTemporaryDir dir;
        ReportCommands::instance().setConnectionString(
            "Provider=Microsoft.Jet.OLEDB.4.0;Data Source= " + dir.filePath("missing/Kartella.mdb"));
        bool raised = false;
        try {
            entryNamed(dialog).open(nullptr);
        } catch (const Error& error) {
            raised = true;
            QVERIFY(!error.description().isEmpty());
        }
        QCOMPARE(raised, raises);
        QVERIFY(!anyPreviewShown());
    }

    void thePreviewSavesAPdf()
    {
        ReportFixture fx;
        ReportCommands commands;
        commands.setConnectionString(fx.reg.connectionString());
        ScriptedPrompter prompter;
        const ReportLayout& layout = *findReportLayout("this-month");
        setPrinterOrientation(ReportOrientation::Landscape);
        ReportPreview preview(layout, commands.run(layout));
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        auto* save = preview.findChild<QToolButton*>("savePdfButton");
        QVERIFY(save && save->isVisible());
        QCOMPARE(save->text(), QString("Save as PDF..."));
        QCOMPARE(save->accessibleName(), QString("Save as PDF"));

        const QString path = fx.reg.dir() + "/month.pdf";
        bool stayedOpen = false;
        // Types name into the file dialog and presses Enter, and Yes when the dialog asks
        // whether to replace a file; no name presses Esc.
        const auto answer = [&](const QString& typed) {
            QTimer::singleShot(0, [&, typed] {
                auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                QVERIFY(chooser);
                QCOMPARE(chooser->acceptMode(), QFileDialog::AcceptSave);
                if (typed.isEmpty()) {
                    QTest::keyClick(chooser, Qt::Key_Escape);
                    return;
                }
                chooser->setDirectory(fx.reg.dir());
                auto* name = chooser->findChild<QLineEdit*>("fileNameEdit");
                QVERIFY(name);
                name->selectAll();
                QTest::keyClicks(name, typed);
                QTimer::singleShot(0, [] {
                    if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                        question->button(QMessageBox::Yes)->click();
                });
                QTest::keyClick(name, Qt::Key_Return);
                stayedOpen = chooser->isVisible();
                if (stayedOpen)
                    chooser->reject();
            });
        };
        answer({});
        QTest::mouseClick(save, Qt::LeftButton);
        QVERIFY(!QFile::exists(path));

        answer("month");
        QTest::mouseClick(save, Qt::LeftButton);
        QVERIFY(!stayedOpen);
        QTRY_VERIFY(QFile::exists(path));
        QFile pdf(path);
        QVERIFY(pdf.open(QIODevice::ReadOnly));
        QVERIFY(pdf.read(5) == "%PDF-");
        QVERIFY(landscapePdf(path));
        QVERIFY(prompter.prompts().isEmpty());
        QCOMPARE(QDir(fx.reg.dir()).entryList({"month.pdf*"}, QDir::Files), QStringList {"month.pdf"});

        // The register the report reads, even when the user agrees to replace it, stays.
        ReportCommands::instance().setConnectionString(fx.reg.connectionString());
        QFile registerFile(fx.reg.path());
        QVERIFY(registerFile.open(QIODevice::ReadOnly));
        const QByteArray before = registerFile.readAll();
        registerFile.close();
        prompter.answer(MsgBoxResult::Ok);
        answer("Kartella.mdb");
        QTest::mouseClick(save, Qt::LeftButton);
        QCOMPARE(prompter.texts(),
            QStringList {'"' + fx.reg.path()
                + "\" is the register the report reads; choose another file for "
                  "the report."});
        QVERIFY(registerFile.open(QIODevice::ReadOnly));
        QCOMPARE(registerFile.readAll(), before);
    }

    // A Lithuanian desktop: the preview's caption and button, the report's headings and
    // page footer are Lithuanian, its dates are as Lithuanian writes them, and a refused
    // file is told in Lithuanian.
    void aReportInLithuanian()
    {
        ReportFixture fx;
        ReportCommands::instance().setConnectionString(fx.reg.connectionString());
        ScriptedPrompter prompter;
        const QLocale systemLocale;
        QLocale::setDefault(QLocale(QLocale::Lithuanian, QLocale::Lithuania));
        const auto restoreLocale = qScopeGuard([&] { QLocale::setDefault(systemLocale); });
        Lithuanian language;
        QVERIFY(language.installed());

        ReportCommands commands;
        commands.setConnectionString(fx.reg.connectionString());
        const ReportLayout& layout = *findReportLayout("this-month");
        const ReportData data = commands.run(layout);
        const QString day = fx.thisMonth.toString("yyyy-MM-dd");
        const QStringList expected {"Dokumentų sąrašas pagal kategorijas",
            "Reg. data Reg. indeksas Dok. aprašymas Siuntėjas / gavėjas Kategorija", "Laiškai",
            day + " LAI-2 Laiškas be adresato Laiškai",
            "Spausdinta: " + reportToday().toString("yyyy-MM-dd") + " puslapis 1 iš 1"};
        const QStringList lines = allLines(layOut(layout, data));
        QString missing;
        QVERIFY2(inOrder(lines, expected, missing),
            qPrintable(missing + " not in order in:\n" + lines.join('\n')));
        // The layout keeps the program's own texts, which the code looks up.
        QCOMPARE(layout.caption, "This Month");

        setPrinterOrientation(ReportOrientation::Landscape);
        ReportPreview preview(layout, data);
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        QCOMPARE(preview.windowTitle(), "Šis mėnuo");
        auto* save = preview.findChild<QToolButton*>("savePdfButton");
        QVERIFY(save);
        QCOMPARE(save->text(), "Įrašyti kaip PDF...");

        // The register chosen as the report's file.
        QString chooserTitle;
        QString offeredName;
        QTimer::singleShot(0, [&] {
            auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(chooser);
            chooserTitle = chooser->windowTitle();
            auto* name = chooser->findChild<QLineEdit*>("fileNameEdit");
            QVERIFY(name);
            offeredName = name->text();
            chooser->setDirectory(fx.reg.dir());
            name->selectAll();
            QTest::keyClicks(name, QFileInfo(fx.reg.path()).fileName());
            QTimer::singleShot(0, [] {
                if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
                    question->button(QMessageBox::Yes)->click();
            });
            QTest::keyClick(name, Qt::Key_Return);
            if (chooser->isVisible())
                chooser->reject();
        });
        prompter.answer(MsgBoxResult::Ok);
        QTest::mouseClick(save, Qt::LeftButton);
        QCOMPARE(chooserTitle, "Įrašyti kaip PDF");
        QCOMPARE(offeredName, "Šis mėnuo.pdf");
        QCOMPARE(prompter.texts(),
            QStringList {"„" + fx.reg.path()
                + "“ yra registras, iš kurio skaitoma ataskaita; ataskaitai pasirinkite kitą failą."});
        QCOMPARE(prompter.prompts().first().title, "Šis mėnuo");
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

int runReportsTest(int argc, char** argv)
{
    ReportsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_reports.moc"
