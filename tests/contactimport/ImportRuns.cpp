#include "ImportRuns.h"

#include "addressbook/import/OutlookImport.h"
#include "platform/Prompter.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"

#include <QTest>

namespace kartella::test {

const QString Question
    = QStringLiteral("Importing data will bring in ALL contacts from Outlook. Do you wish to continue?");
const QString Success = QStringLiteral("Contacts successfully imported.");
const QString Failure = QStringLiteral("Contacts did not import.");
const QString ClosingTitle = QStringLiteral("Import Contacts from Outlook");

QString closing(const QString& first, int added, int alreadyThere, int failed, int unnamed)
{
    QString text = first
        + QStringLiteral("\n\n%1 added, %2 skipped as already there, %3 failed")
              .arg(added)
              .arg(alreadyThere)
              .arg(failed);
    if (unnamed > 0)
        text += QStringLiteral(", %1 passed over without a name").arg(unnamed);
    return text + u'.';
}

QStringList rows(const TestRegister& reg, const QString& sql)
{
    Connection connection(reg.connectionString());
    connection.open();
    Recordset recordset;
    recordset.open(sql, connection);
    QStringList result;
    for (int row = 0; row < recordset.recordCount(); ++row) {
        QStringList fields;
        for (int column = 0; column < recordset.fieldCount(); ++column) {
            const QVariant value = recordset.rowValue(row, column);
            fields << (isNull(value) ? QStringLiteral("<null>") : value.toString());
        }
        result << fields.join(u'|');
    }
    return result;
}

QStringList contactNames(const TestRegister& reg)
{
    return rows(reg, QStringLiteral("SELECT FullName FROM tbl_Contacts ORDER BY ContactID"));
}

QByteArray cards(const QStringList& names)
{
    QByteArray file;
    for (const QString& name : names)
        file += "BEGIN:VCARD\r\nVERSION:3.0\r\nFN:" + name.toUtf8() + "\r\nEND:VCARD\r\n";
    return file;
}

bool importFile(ScriptedPrompter& prompter, const QString& path, QList<int> errorAnswers)
{
    prompter.answer(MsgBoxResult::Yes).answerFile(path);
    for (const int answer : errorAnswers)
        prompter.answer(answer);
    prompter.answer(MsgBoxResult::Ok);
    return OutlookImport().run();
}

void places()
{
    QTest::addColumn<TestRegister::Where>("where");
    QTest::newRow("file") << TestRegister::File;
    QTest::newRow("server") << TestRegister::Server;
}

void refuseName(const TestRegister& reg, TestRegister::Where where)
{
    if (where == TestRegister::File) {
        reg.exec(
            QStringLiteral("CREATE TRIGGER refuse_name BEFORE INSERT ON tbl_Contacts "
                           "WHEN NEW.FullName = 'Refused' BEGIN SELECT RAISE(ABORT, 'name refused'); END"));
        return;
    }
    reg.exec(QStringLiteral("CREATE FUNCTION refuse_name() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN "
                            "IF NEW.\"FullName\" = 'Refused' THEN RAISE EXCEPTION 'name refused'; END IF; "
                            "RETURN NEW; END $$"));
    reg.exec(QStringLiteral("CREATE TRIGGER refuse_name BEFORE INSERT ON \"tbl_Contacts\" FOR EACH ROW "
                            "EXECUTE FUNCTION refuse_name()"));
}

} // namespace kartella::test
