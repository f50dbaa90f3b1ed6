#pragma once

// What the tests of the New Document dialog share: a register with categories, an office
// suite that records what it makes, and the dialog shown as the user sees it.

#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "platform/LibreOfficeSuite.h"
#include "registration/NewDocumentDialog.h"
#include "support/SelectionState.h"

#include <QComboBox>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

namespace kartella::test {

using Kind = OfficeSuite::Kind;

// The office suite of the program, recording what it is asked to make and whether the busy
// pointer is up meanwhile.
class RecordingSuite final : public OfficeSuite
{
public:
    struct Call
    {
        QString templatePath;
        QString target;
        bool busy = false;
    };

    RecordingSuite() { OfficeSuite::setInstance(this); }
    ~RecordingSuite() override { OfficeSuite::setInstance(nullptr); }

    void create(Kind kind, const QString& templatePath, const QString& target) override
    {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        calls.append({templatePath, target, cursor && cursor->shape() == Qt::WaitCursor});
        m_real.create(kind, templatePath, target);
    }
    void show(const QString& path) override { m_real.show(path); }

    QList<Call> calls;

private:
    LibreOfficeSuite m_real;
};

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline QString today(const char* format)
{
    return QDate::currentDate().toString(QString::fromLatin1(format));
}

// A register with two categories (one with mnemonic, folder and templates, one bare), a
// subcategory without templates, and one contact; the tree's selection on the first category.
struct Fixture
{
    TestRegister reg;
    ScriptedPrompter prompter;
    ScriptedShell shell;
    RecordingSuite suite;
    QTemporaryDir files;
    QString leaseFolder = files.filePath("lease");
    qint32 contracts = 0;
    qint32 letters = 0;
    qint32 lease = 0;

    explicit Fixture(const QStringList& templates = {}, TestRegister::Where where = TestRegister::File)
        : reg(where)
    {
        contracts = reg.insert("tbl_Document_Categories",
            {{"DokKategorija", "Contracts"}, {"Mnemonic", "AGR"}, {"DokKategDaug", files.path()},
                {"DokTemplates", templates.value(0)}, {"DokTemplatesExel", templates.value(1)},
                {"DokTemplatesPowPoint", templates.value(2)}});
        letters = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Letters"}});
        lease = reg.insert("tbl_Sub_Categories",
            {{"KategID", contracts}, {"DokSubKategorija", "Leases"}, {"SubPathToFiles", leaseFolder}});
        reg.insert("tbl_Contacts", {{"FullName", "Ona Petraitiene"}});
        QDir().mkpath(leaseFolder);
        selection() = SelectionState();
        selection().currentCategoryId = contracts;
    }
    ~Fixture() { selection() = SelectionState(); }

    int documents() const { return reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt(); }
    // The day's counter as the register keeps it: "yyyy-MM-dd=N" for its one row, empty
    // when it has none, "rows: n" when it has more.
    QString dayCounter() const
    {
        const int rows = reg.scalar("SELECT COUNT(*) FROM tbl_Day_Counter").toInt();
        if (rows != 1)
            return rows == 0 ? QString() : QStringLiteral("rows: %1").arg(rows);
        return reg.scalar("SELECT CounterDay FROM tbl_Day_Counter").toString() + u'='
            + reg.scalar("SELECT LastNumber FROM tbl_Day_Counter").toString();
    }
    // Takes a register file back to the form before the day's counter, as an older program
    // made it: the day's numbers are counted in the options.
    void makeOlderThanDayCounter() const
    {
        reg.exec("DROP TABLE tbl_Day_Counter");
        reg.exec("PRAGMA user_version = 4");
    }
    QVariant stored(const QString& field) const
    {
        return reg.scalar("SELECT " + field + " FROM tbl_Documents ORDER BY RastasID DESC");
    }
};

// The dialog as the user sees it, shown so that focus and keys work.
struct Dialog
{
    NewDocumentDialog dialog;

    Dialog()
    {
        dialog.show();
        dialog.activateWindow();
        if (!QTest::qWaitForWindowActive(&dialog))
            qWarning("The dialog didn't become active");
    }

    QLineEdit* box(int index) { return dialog.findChild<QLineEdit*>("txtFields_" + QString::number(index)); }
    QComboBox* combo(const char* name) { return dialog.findChild<QComboBox*>(name); }
    QTableView* grid() { return dialog.findChild<QTableView*>("grdTickler"); }
    void click(const char* button)
    {
        QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
    }
    void type(int index, const QString& text)
    {
        box(index)->setFocus();
        box(index)->selectAll();
        QTest::keyClick(box(index), Qt::Key_Delete);
        QTest::keyClicks(box(index), text);
    }
    // Picks the item of a list that starts with letter, by the keyboard.
    void choose(const char* list, char letter)
    {
        combo(list)->setFocus();
        QTest::keyClick(combo(list), letter);
    }
};

} // namespace kartella::test
