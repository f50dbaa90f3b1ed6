#pragma once

// What the tests of the details, related-document and copy-move dialogs share: a small
// register with files, and the keys and clicks a user gives a dialog.

#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/TestRegister.h"
#include "platform/OfficeSuite.h"
#include "support/SelectionState.h"

#include <QApplication>
#include <QDate>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace kartella::test {

// An office suite that writes a small file of its own at the target.
class WritingSuite final : public OfficeSuite
{
public:
    WritingSuite() { OfficeSuite::setInstance(this); }
    ~WritingSuite() override { OfficeSuite::setInstance(nullptr); }
    void create(Kind, const QString& templatePath, const QString& target) override
    {
        templates << templatePath;
        QFile file(target);
        if (file.open(QIODevice::WriteOnly))
            file.write("made");
    }
    void show(const QString&) override { }
    QStringList templates;
};

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeFile(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

// A register with a category (mnemonic, folder), a contact, two documents and a related
// document of the first; a file for each.
struct Fixture
{
    TestRegister reg;
    ScriptedPrompter prompter;
    ScriptedShell shell;
    WritingSuite suite;
    QTemporaryDir files;
    qint32 contracts = 0;
    qint32 letters = 0;
    qint32 contact = 0;
    qint32 lease = 0;
    qint32 other = 0;
    qint32 annex = 0;
    QString leaseFile = files.filePath("lease.doc");
    QString annexFile = files.filePath("annex.doc");

    Fixture()
    {
        contracts = reg.insert("tbl_Document_Categories",
            {{"DokKategorija", "Contracts"}, {"Mnemonic", "AGR"}, {"DokKategDaug", files.path()}});
        letters = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Letters"}});
        contact = reg.insert("tbl_Contacts", {{"FullName", "Ona Petraitiene"}});
        lease = reg.insert("tbl_Documents",
            {{"DokAntraste", "Sutartis"}, {"KategID", contracts}, {"RastoKel", leaseFile},
                {"DokRegistracIndeksas", "AGR-1"}, {"DokGavSiuntData", QDate(2024, 1, 31)},
                {"DokRegistracData", QDate(2024, 2, 1)}, {"KryptisID", QVariant()}});
        other = reg.insert("tbl_Documents",
            {{"DokAntraste", "Other"}, {"KategID", letters}, {"RastoKel", files.filePath("other.doc")},
                {"KryptisID", 2}});
        annex = reg.insert("tbl_Sub_Documents",
            {{"RastasID", lease}, {"SubDocDescript", "Annex"}, {"SubRastoKelias", annexFile}});
        reg.insert("tbl_Tickler", {{"RastasID", lease}, {"TicklerText", "Call back"}});
        reg.insert("tbl_Tickler", {{"RastasID", other}, {"TicklerText", "Other's"}});
        writeFile(leaseFile, "lease");
        writeFile(annexFile, "annex");
        selection() = SelectionState();
        selection().currentCategoryId = contracts;
        selection().activeListName = "ListDokSarasas";
        selection().selectedDocumentId = lease;
        selection().selectedItemText = "Sutartis";
        selection().selectedFilePath = leaseFile;
    }
    ~Fixture() { selection() = SelectionState(); }

    QVariant document(const QString& field, qint32 id) const
    {
        return reg.scalar("SELECT " + field + " FROM tbl_Documents WHERE RastasID=" + QString::number(id));
    }
    QVariant related(const QString& field, qint32 id) const
    {
        return reg.scalar(
            "SELECT " + field + " FROM tbl_Sub_Documents WHERE SubRastasID=" + QString::number(id));
    }
    QString reminders() const
    {
        return reg
            .scalar("SELECT group_concat(RastasID || ':' || TicklerText, ',') FROM "
                    "(SELECT * FROM tbl_Tickler ORDER BY TicklerID)")
            .toString();
    }
    // Every related document, one line a row in key order.
    QString relatedRows() const
    {
        return reg
            .scalar("SELECT group_concat(RastasID || ':' || COALESCE(SubDocDescript, ''), ',') FROM "
                    "(SELECT * FROM tbl_Sub_Documents ORDER BY SubRastasID)")
            .toString();
    }
    void selectRelated()
    {
        selection().activeListName = "ListSusieti";
        selection().selectedSubDocumentId = annex;
        selection().selectedItemText = "Annex";
        selection().selectedFilePath = annexFile;
    }
};

template<typename D>
void showActive(D& dialog)
{
    dialog.show();
    dialog.activateWindow();
    if (!QTest::qWaitForWindowActive(&dialog))
        qWarning("The dialog didn't become active");
}

inline QLineEdit* box(QWidget& dialog, int index)
{
    return dialog.findChild<QLineEdit*>("txtFields_" + QString::number(index));
}

inline void retype(QLineEdit* box, const QString& text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
}

inline void click(QWidget& dialog, const char* button)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(button), Qt::LeftButton);
}

inline const QString ApplyQuestion
    = "You have details changes that have not applied.\n\nDo you want to apply these now?";

// While it lives, closes every modal dialog that opens and keeps its object name: a command
// that must open none shows here whether it did.
struct OpenedDialogs
{
    QStringList names;
    QTimer watcher;

    OpenedDialogs()
    {
        QObject::connect(&watcher, &QTimer::timeout, [this] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                names << dialog->objectName();
                dialog->reject();
            }
        });
        watcher.start(10);
    }
};

} // namespace kartella::test
