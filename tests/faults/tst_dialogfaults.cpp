// A dialog's OK while the register can't be written (its disk full, its folder turned
// read-only, another program holding the write lock): the save fails with a message, the
// dialog stays open with what was typed, and OK once the fault is gone saves.
#include "addressbook/ContactEditor.h"
#include "categories/CategoryDialog.h"
#include "categories/NewCategoryDialog.h"
#include "faults/FaultFixture.h"
#include "faults/FullDiskVfs.h"
#include "faults/TestMounts.h"
#include "registration/DocumentDetailsDialog.h"
#include "registration/NewDocumentDialog.h"
#include "registration/RegisterFixture.h"
#include "registration/RelatedDocumentDialog.h"

#include <QFileInfo>
#include <QPlainTextEdit>
#include <QTest>

#include <functional>
#include <memory>
#include <sqlite3.h>

using namespace kartella;
using namespace kartella::test;

namespace {

// Another program's connection to the register holding its write lock while it lives.
class WriteLock
{
public:
    explicit WriteLock(const QString& path)
    {
        sqlite3_open_v2(QFile::encodeName(path).constData(), &m_db, SQLITE_OPEN_READWRITE, nullptr);
        sqlite3_exec(m_db, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    }
    ~WriteLock()
    {
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        sqlite3_close_v2(m_db);
    }
    WriteLock(const WriteLock&) = delete;
    WriteLock& operator=(const WriteLock&) = delete;

private:
    sqlite3* m_db = nullptr;
};

// One fault while it lives; lift() ends it sooner.
class Fault
{
public:
    Fault(const QString& kind, const QString& registerPath, FullDiskVfs& vfs)
        : m_vfs(vfs)
    {
        if (kind == "disk full") {
            m_vfs.arm(0);
            m_armed = true;
        } else if (kind == "read-only folder") {
            m_folder = std::make_unique<ReadOnlyFolder>(QFileInfo(registerPath).absolutePath());
            if (!m_folder->isMounted())
                m_skipReason = m_folder->skipReason();
        } else if (kind == "write lock") {
            m_lock = std::make_unique<WriteLock>(registerPath);
        }
    }
    ~Fault() { lift(); }
    Fault(const Fault&) = delete;
    Fault& operator=(const Fault&) = delete;

    QString skipReason() const { return m_skipReason; }
    void lift()
    {
        if (m_armed)
            m_vfs.disarm();
        m_armed = false;
        m_folder.reset();
        m_lock.reset();
    }

private:
    FullDiskVfs& m_vfs;
    bool m_armed = false;
    std::unique_ptr<ReadOnlyFolder> m_folder;
    std::unique_ptr<WriteLock> m_lock;
    QString m_skipReason;
};

} // namespace

class DialogFaultsTest : public QObject
{
    Q_OBJECT

    FullDiskVfs m_vfs;

    // The faults, and what the message names.
    static void addFaults()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("told");
        QTest::newRow("disk full") << "disk full"
                                   << "disk that holds the register is full";
        QTest::newRow("read-only folder") << "read-only folder"
                                          << "read-only";
        QTest::newRow("write lock") << "write lock"
                                    << "in use by another program";
    }

    // OK under the fault fails with a message naming it and keeps the dialog with what was
    // typed and the register as it was; OK once the fault is gone saves and closes.
    void refusedThenSaved(Fixture& fx, QDialog& dialog, const char* ok,
        const std::function<bool()>& typedKept, const std::function<bool()>& saved)
    {
        QFETCH(QString, fault);
        QFETCH(QString, told);
        const RegisterSnapshot before = RegisterSnapshot::take(fx.reg.path(), fx.files.path());
        {
            Fault injected(fault, fx.reg.path(), m_vfs);
            if (!injected.skipReason().isEmpty())
                QSKIP(qPrintable(injected.skipReason()));
            fx.prompter.answer(MsgBoxResult::Ok);
            click(dialog, ok);
            const auto prompts = fx.prompter.take();
            QCOMPARE(prompts.size(), 1);
            QVERIFY2(
                prompts.first().text.contains(told, Qt::CaseInsensitive), qPrintable(prompts.first().text));
            // The user reads what went wrong, not the register's SQL.
            QVERIFY2(!prompts.first().text.contains("Statement:"), qPrintable(prompts.first().text));
            QVERIFY(dialog.isVisible());
            QVERIFY(typedKept());
        }
        QCOMPARE(integrityCheck(fx.reg.path()), QStringLiteral("ok"));
        const RegisterSnapshot after = RegisterSnapshot::take(fx.reg.path(), fx.files.path());
        const QStringList lost = after.lostOrChanged(before);
        QVERIFY2(lost.isEmpty(), qPrintable(lost.join('\n')));
        // Nor did a refused save leave part of a new row behind.
        for (auto table = before.tables.cbegin(); table != before.tables.cend(); ++table)
            QVERIFY2(after.rowCount(table.key()) == table->size(), qPrintable(table.key()));

        click(dialog, ok);
        QVERIFY2(fx.prompter.prompts().isEmpty(), qPrintable(fx.prompter.texts().join('\n')));
        QVERIFY(!dialog.isVisible());
        QVERIFY(saved());
    }

private Q_SLOTS:
    void detailsOk_data() { addFaults(); }
    void detailsOk()
    {
        Fixture fx;
        DocumentDetailsDialog dialog;
        showActive(dialog);
        retype(box(dialog, 7), "Sutartis po gedimo");
        refusedThenSaved(
            fx, dialog, "cmdButton_0", [&] { return box(dialog, 7)->text() == "Sutartis po gedimo"; },
            [&] { return fx.document("DokAntraste", fx.lease).toString() == "Sutartis po gedimo"; });
    }

    void relatedOk_data() { addFaults(); }
    void relatedOk()
    {
        Fixture fx;
        const QString scan = fx.files.filePath("scan.pdf");
        writeFile(scan, "scan");
        RelatedDocumentDialog dialog(RelatedDocumentDialog::Mode::Creating);
        showActive(dialog);
        auto* description = dialog.findChild<QPlainTextEdit*>("txtFields_1");
        QTest::keyClicks(description, "Kvitas");
        fx.prompter.answerFile(scan);
        click(dialog, "cmdAddExisting");
        fx.prompter.take();
        refusedThenSaved(
            fx, dialog, "cmdOK",
            [&] { return description->toPlainText() == "Kvitas" && box(dialog, 5)->text() == scan; },
            [&] { return fx.relatedRows() == QStringLiteral("%1:Annex,%1:Kvitas").arg(fx.lease); });
    }

    // A new document refused keeps its proposed index too, and the day's counter untouched.
    void newDocumentOk_data() { addFaults(); }
    void newDocumentOk()
    {
        Fixture fx;
        NewDocumentDialog dialog;
        showActive(dialog);
        const QString index = box(dialog, 3)->text();
        QVERIFY(!index.isEmpty());
        retype(box(dialog, 4), "Nauja nuomos sutartis");
        refusedThenSaved(
            fx, dialog, "cmdOK",
            [&] {
                return box(dialog, 4)->text() == "Nauja nuomos sutartis" && box(dialog, 3)->text() == index;
            },
            [&] {
                return fx.reg
                           .scalar("SELECT DokRegistracIndeksas FROM tbl_Documents WHERE DokAntraste = "
                                   "'Nauja nuomos sutartis'")
                           .toString()
                    == index;
            });
    }

    void categoryOk_data() { addFaults(); }
    void categoryOk()
    {
        Fixture fx;
        CategoryDialog dialog;
        showActive(dialog);
        retype(box(dialog, 1), "Sutartys");
        refusedThenSaved(
            fx, dialog, "cmdClose", [&] { return box(dialog, 1)->text() == "Sutartys"; },
            [&] {
                return fx.reg
                           .scalar("SELECT DokKategorija FROM tbl_Document_Categories WHERE KategID = "
                               + QString::number(fx.contracts))
                           .toString()
                    == "Sutartys";
            });
    }

    void newCategoryOk_data() { addFaults(); }
    void newCategoryOk()
    {
        Fixture fx;
        NewCategoryDialog dialog;
        showActive(dialog);
        retype(box(dialog, 1), "Ataskaitos");
        retype(box(dialog, 2), "ATS");
        refusedThenSaved(
            fx, dialog, "cmdOk", [&] { return box(dialog, 1)->text() == "Ataskaitos"; },
            [&] {
                return fx.reg
                           .scalar("SELECT COUNT(*) FROM tbl_Document_Categories WHERE DokKategorija = "
                                   "'Ataskaitos' AND Mnemonic = 'ATS'")
                           .toInt()
                    == 1;
            });
    }

    void contactOk_data() { addFaults(); }
    void contactOk()
    {
        Fixture fx;
        ContactEditor editor;
        showActive(editor);
        retype(box(editor, 4), "Ada Adomaite");
        retype(box(editor, 10), "ada@example.lt");
        refusedThenSaved(
            fx, editor, "cmdOk",
            [&] {
                return box(editor, 4)->text() == "Ada Adomaite"
                    && box(editor, 10)->text() == "ada@example.lt";
            },
            [&] {
                return fx.reg
                           .scalar("SELECT COUNT(*) FROM tbl_Contacts WHERE FullName = 'Ada Adomaite' AND "
                                   "EmailName = 'ada@example.lt'")
                           .toInt()
                    == 1;
            });
    }
};

int runDialogFaultsTest(int argc, char** argv)
{
    DialogFaultsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dialogfaults.moc"
