#include "EngineFixture.h"
#include "store/engine/Recordset.h"
#include "support/Error.h"

#include <QLocale>
#include <QSignalSpy>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

const QString Contacts
    = QStringLiteral("SELECT ContactID, FullName, City FROM tbl_Contacts ORDER BY ContactID");

QString names(EngineRegister& reg)
{
    return reg
        .scalar(
            "SELECT group_concat(FullName, ',') FROM (SELECT FullName FROM tbl_Contacts ORDER BY ContactID)")
        .toString();
}

long errorOf(const std::function<void()>& action, QString* description = nullptr)
{
    try {
        action();
    } catch (const Error& error) {
        if (description)
            *description = error.description();
        return error.number();
    }
    return 0;
}

} // namespace

class EditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void batchRowsWaitForUpdateBatch()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.Open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        recordset.AddNew();
        QCOMPARE(recordset.EditMode(), int(EditModeEnum::Add));
        recordset.Fields("FullName").SetValue(QStringLiteral("Naujas"));
        recordset.Update();
        QCOMPARE(recordset.EditMode(), int(EditModeEnum::None));
        recordset.AddNew();
        recordset.Fields("FullName").SetValue(QStringLiteral("Kitas"));
        recordset.MoveFirst();
        recordset.Fields("City").SetValue(QStringLiteral("Vilnius"));
        recordset.MoveLast();
        QVERIFY(recordset.HasPendingChanges());
        QCOMPARE(recordset.RecordCount(), 7);
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius"));
        QVERIFY(IsNull(recordset.Fields("ContactID").Value()));

        // Current: only "Kitas", which gets its key back.
        recordset.UpdateBatch(AffectEnum::Current);
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius,Kitas"));
        QCOMPARE(recordset.Fields("ContactID").Value().toInt(), 6);
        QCOMPARE(recordset.Fields("FullName").UnderlyingValue().toString(), QString("Kitas"));
        QVERIFY(recordset.HasPendingChanges());
        QVERIFY(IsNull(reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=1")));

        recordset.UpdateBatch(AffectEnum::All);
        QVERIFY(!recordset.HasPendingChanges());
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius,Kitas,Naujas"));
        QCOMPARE(
            reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=1").toString(), QString("Vilnius"));
        recordset.MovePrevious();
        QCOMPARE(recordset.Collect("ContactID").toInt(), 7);
    }

    void closeAndDestroyWriteNothing()
    {
        EngineRegister reg;
        reg.fillSmall();
        {
            Recordset recordset;
            recordset.Open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
            recordset.AddNew();
            recordset.Fields("FullName").SetValue(QStringLiteral("Dingęs"));
            recordset.Update();
            recordset.MoveFirst();
            recordset.Delete();
            recordset.Close();
            QVERIFY(!recordset.IsOpen());
            recordset.Open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
            recordset.Fields("FullName").SetValue(QStringLiteral("Pakeistas"));
            recordset.MoveNext();
        }
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius"));
    }

    void immediateUpdateAndDelete()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        QSignalSpy fieldChanged(&recordset, &Recordset::FieldChangeComplete);
        recordset.Open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.AddNew();
        recordset.Fields("FullName").SetValue(QStringLiteral("Jonas"));
        QCOMPARE(fieldChanged.count(), 1);
        QCOMPARE(fieldChanged.front().front().toString(), QString("FullName"));
        recordset.Update();
        QCOMPARE(recordset.Collect("ContactID").toInt(), 6);
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,šilas,Saulius,Jonas"));

        // A change written by a move, another dropped by CancelUpdate.
        recordset.MoveFirst();
        recordset.Fields("City").SetValue(QStringLiteral("Kaunas"));
        QCOMPARE(recordset.EditMode(), int(EditModeEnum::InProgress));
        QVERIFY(IsNull(recordset.Fields("City").UnderlyingValue()));
        recordset.MoveNext();
        QCOMPARE(reg.scalar("SELECT City FROM tbl_Contacts WHERE ContactID=1").toString(), QString("Kaunas"));
        recordset.Fields("City").SetValue(QStringLiteral("Alytus"));
        recordset.CancelUpdate();
        QVERIFY(IsNull(recordset.Collect("City")));
        QVERIFY(!recordset.HasPendingChanges());

        // A deleted row stays current until a move, without fields.
        recordset.Delete();
        QCOMPARE(names(reg), QString("Petras,Šarūnas,šilas,Saulius,Jonas"));
        QCOMPARE(recordset.RecordCount(), 5);
        QCOMPARE(errorOf([&] { recordset.Collect("FullName"); }), ErrorNumber::NoCurrentRecord);
        recordset.MoveNext();
        QCOMPARE(recordset.Collect("FullName").toString(), QString("Šarūnas"));
        recordset.MoveFirst();
        QCOMPARE(recordset.Collect("FullName").toString(), QString("Petras"));
    }

    void batchDeleteAndCancelBatch()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.Open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::BatchOptimistic);
        recordset.Move(1);
        recordset.Delete();
        recordset.MoveNext();
        recordset.Fields("FullName").SetValue(QStringLiteral("Pakeistas"));
        recordset.AddNew();
        recordset.Fields("FullName").SetValue(QStringLiteral("Naujas"));
        QCOMPARE(recordset.RecordCount(), 5);
        recordset.CancelBatch();
        QVERIFY(!recordset.HasPendingChanges());
        QCOMPARE(recordset.RecordCount(), 5);
        recordset.MoveFirst();
        QCOMPARE(
            Rows(recordset, {"FullName"}), QStringList({"Petras", "Ąžuolas", "Šarūnas", "šilas", "Saulius"}));

        recordset.MoveFirst();
        recordset.Delete();
        recordset.MoveNext();
        recordset.UpdateBatch();
        QCOMPARE(names(reg), QString("Ąžuolas,Šarūnas,šilas,Saulius"));
    }

    void valuesOfDateAndNumberFields_data()
    {
        QTest::addColumn<QVariant>("input");
        QTest::addColumn<QVariant>("stored");

        QTest::newRow("QDate") << QVariant(QDate(2024, 3, 5)) << QVariant("2024-03-05");
        QTest::newRow("QDateTime") << QVariant(QDateTime(QDate(2024, 3, 5), QTime(8, 9, 10)))
                                   << QVariant("2024-03-05 08:09:10");
        QTest::newRow("ISO text") << QVariant("2024-03-05") << QVariant("2024-03-05");
        QTest::newRow("dotted text") << QVariant("2024.03.05") << QVariant("2024-03-05");
        QTest::newRow("month first") << QVariant("3/5/2024") << QVariant("2024-03-05");
        QTest::newRow("with time") << QVariant("3/5/2024 17:30") << QVariant("2024-03-05 17:30:00");
        QTest::newRow("empty") << QVariant("") << QVariant();
        QTest::newRow("words") << QVariant("next week") << QVariant(13);
        QTest::newRow("no such day") << QVariant("2024-02-30") << QVariant(13);
        QTest::newRow("number") << QVariant(45000) << QVariant(13);
    }

    void valuesOfDateAndNumberFields()
    {
        QFETCH(QVariant, input);
        QFETCH(QVariant, stored);
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.Open("SELECT RastasID, DokRegistracData, KategID FROM tbl_Documents WHERE RastasID=1",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QString description;
        const long error
            = errorOf([&] { recordset.Fields("DokRegistracData").SetValue(input); }, &description);
        if (stored.typeId() == QMetaType::Int) {
            QCOMPARE(error, long(stored.toInt()));
            QVERIFY2(description.contains("DokRegistracData"), qPrintable(description));
            QCOMPARE(recordset.EditMode(), int(EditModeEnum::None));
            QCOMPARE(reg.scalar("SELECT DokRegistracData FROM tbl_Documents WHERE RastasID=1").toString(),
                QString("2024-03-01"));
            return;
        }
        QCOMPARE(error, 0L);
        recordset.Update();
        QCOMPARE(
            reg.scalar("SELECT CAST(DokRegistracData AS TEXT) FROM tbl_Documents WHERE RastasID=1"), stored);
        recordset.Requery();
        QCOMPARE(IsNull(recordset.Collect("DokRegistracData")), IsNull(stored));
    }

    // A date typed in the application's short form, day first, reads as that day.
    void dateInTheLocaleForm()
    {
        EngineRegister reg;
        reg.fillSmall();
        const QLocale previous;
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        Recordset recordset;
        recordset.Open("SELECT RastasID, DokRegistracData FROM tbl_Documents WHERE RastasID=1",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.Fields("DokRegistracData").SetValue(QStringLiteral("05/03/2024"));
        QLocale::setDefault(previous);
        QCOMPARE(recordset.Collect("DokRegistracData"), QVariant(QDate(2024, 3, 5)));
    }

    // Of a field selected twice, both copies change, and the row is written once.
    void fieldSelectedTwice()
    {
        EngineRegister reg;
        reg.fillSmall();
        reg.execute(
            "INSERT INTO tbl_Sub_Documents (SubRastasID, RastasID, SubDocDescript) VALUES (1, 1, 'a'), "
            "(2, 1, 'b')");
        Recordset recordset;
        recordset.Open("SELECT tbl_Sub_Documents.*, tbl_Sub_Documents.RastasID FROM tbl_Sub_Documents WHERE "
                       "tbl_Sub_Documents.RastasID=1",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QCOMPARE(recordset.FieldCount(), 7);
        QVERIFY(recordset.IsUpdatable());
        recordset.Fields(6).SetValue(2);
        QCOMPARE(recordset.Collect("RastasID").toInt(), 2);
        recordset.Update();
        recordset.MoveNext();
        recordset.Delete();
        QCOMPARE(reg.scalar("SELECT group_concat(SubRastasID || ':' || RastasID) FROM tbl_Sub_Documents")
                     .toString(),
            QString("1:2"));
    }

    void textIntoNumberField()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.Open("SELECT RastasID, KategID FROM tbl_Documents WHERE RastasID=1", reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        recordset.Fields("KategID").SetValue(QStringLiteral(" 12 "));
        QCOMPARE(recordset.Collect("KategID"), QVariant(12));
        recordset.Fields("KategID").SetValue(QStringLiteral(""));
        QVERIFY(IsNull(recordset.Collect("KategID")));
        QCOMPARE(errorOf([&] { recordset.Fields("KategID").SetValue(QStringLiteral("abc")); }),
            ErrorNumber::TypeMismatch);
        recordset.Update();
        QVERIFY(IsNull(reg.scalar("SELECT KategID FROM tbl_Documents WHERE RastasID=1")));
        QCOMPARE(errorOf([&] { recordset.Fields("RastasID").SetValue(5); }), 3251L);
    }

    // A recordset whose connection was closed refuses to write, with an error.
    void closedConnection()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.Open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        reg.connection().Close();
        QCOMPARE(recordset.Collect("FullName").toString(), QString("Petras"));
        recordset.Fields("City").SetValue("Vilnius");
        QString description;
        QCOMPARE(errorOf([&] { recordset.Update(); }, &description), 3704L);
        QCOMPARE(recordset.EditMode(), int(EditModeEnum::InProgress));
        QCOMPARE(errorOf([&] { recordset.Requery(); }), 3704L);
    }

    void readOnlyRecordsets()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset join;
        join.Open(
            "SELECT tbl_Documents.RastasID, tbl_Contacts.FullName FROM tbl_Documents INNER JOIN tbl_Contacts "
            "ON tbl_Contacts.ContactID = tbl_Documents.ContactID",
            reg.connection(), CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QVERIFY(!join.IsUpdatable());
        QString description;
        QCOMPARE(errorOf([&] { join.Fields("FullName").SetValue("x"); }, &description), 3251L);
        QVERIFY2(description.contains("more than one table"), qPrintable(description));
        QCOMPARE(errorOf([&] { join.AddNew(); }), 3251L);
        QCOMPARE(errorOf([&] { join.Delete(); }), 3251L);

        Recordset readOnly;
        readOnly.Open(Contacts, reg.connection(), CursorTypeEnum::Static, LockTypeEnum::ReadOnly);
        QCOMPARE(errorOf([&] { readOnly.Fields("FullName").SetValue("x"); }), 3251L);
    }

    // Without the key among its columns, a recordset reads the row key hidden.
    void keyNotSelected()
    {
        EngineRegister reg;
        reg.fillSmall();
        Recordset recordset;
        recordset.Open("SELECT FullName FROM tbl_Contacts WHERE FullName Like 'š%'", reg.connection(),
            CursorTypeEnum::Static, LockTypeEnum::Optimistic);
        QCOMPARE(recordset.FieldNames(), QStringList {"FullName"});
        QVERIFY(recordset.IsUpdatable());
        recordset.MoveLast();
        recordset.Fields("FullName").SetValue(QStringLiteral("Šilas"));
        recordset.Update();
        QCOMPARE(names(reg), QString("Petras,Ąžuolas,Šarūnas,Šilas,Saulius"));
    }

    // A refused batch writes none of its rows and keeps them all pending.
    void refusedBatchLeavesDataIntact()
    {
        EngineRegister reg;
        reg.execute("CREATE TABLE strict (id INTEGER PRIMARY KEY AUTOINCREMENT, name TEXT NOT NULL)");
        Recordset recordset;
        recordset.Open("SELECT id, name FROM strict", reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::BatchOptimistic);
        recordset.AddNew();
        recordset.Fields("name").SetValue("first");
        recordset.AddNew();
        QString description;
        QCOMPARE(errorOf([&] { recordset.UpdateBatch(); }, &description), ErrorNumber::CommandFailed);
        QVERIFY2(description.contains("NOT NULL"), qPrintable(description));
        QCOMPARE(reg.scalar("SELECT count(*) FROM strict").toInt(), 0);
        QVERIFY(recordset.HasPendingChanges());
        QVERIFY(IsNull(recordset.Collect("id")));
        recordset.Fields("name").SetValue("second");
        recordset.UpdateBatch();
        QCOMPARE(
            reg.scalar("SELECT group_concat(id || name) FROM strict").toString(), QString("1first,2second"));

        // An immediate Update that fails keeps the edit.
        recordset.Close();
        recordset.Open("SELECT id, name FROM strict", reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        recordset.AddNew();
        QCOMPARE(errorOf([&] { recordset.Update(); }), ErrorNumber::CommandFailed);
        QCOMPARE(recordset.EditMode(), int(EditModeEnum::Add));
        recordset.Fields("name").SetValue("third");
        recordset.Update();
        QCOMPARE(recordset.Collect("id").toInt(), 3);
    }
};

int RunEditTest(int argc, char** argv)
{
    EditTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_edit.moc"
