#include "harness/OfficeTemplates.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "platform/LibreOfficeSuite.h"
#include "registration/FileNaming.h"
#include "registration/OfficeDocuments.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QStringEncoder>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace kartella;
using kartella::test::ScriptedPrompter;
using kartella::test::ScriptedShell;
using kartella::test::TestRegister;

namespace {

using Operation = void (*)(const OfficeDocumentRequest&, const std::function<void(const QString&)>&);

Operation operationOf(const QString& kind)
{
    if (kind == "Word")
        return createWordDocument;
    if (kind == "Excel")
        return createExcelDocument;
    return createPowerPointDocument;
}

QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

const QString Marker = QStringLiteral("Template marker Sutartis");

// A register with one category, AGR, whose files go to a folder of their own; FileNumber 12
// under "Mnemonic+Number", so the first name is AGR00012. A template named like an Office
// template holds a flat ODF document with Marker in it (LibreOffice reads it by content).
struct Fixture
{
    TestRegister reg;
    QString docs = reg.dir() + QStringLiteral("/Docs");
    qint32 category = 0;
    QStringList locations;
    // The shell's calls at the moment of each setLocation.
    QList<qsizetype> callsAtLocation;
    ScriptedShell shell;
    ScriptedPrompter prompter;

    Fixture()
    {
        QDir().mkpath(docs);
        setRegValue("FileName", "0");
        setRegValue("FileNumber", " 12");
        category = reg.insert("tbl_Document_Categories",
            {{"DokKategorija", "Sutartys"}, {"Mnemonic", "AGR"}, {"DokKategDaug", docs}});
    }

    QString templateFile(const QString& extension)
    {
        QByteArray seed = LibreOfficeSuite::seedDocument(
            extension == ".xlt" ? OfficeSuite::Kind::Excel : OfficeSuite::Kind::Word);
        const QByteArray paragraph = "<text:p>" + Marker.toLatin1() + "</text:p>";
        if (extension == ".xlt") {
            const QByteArray cell
                = "<table:table-cell office:value-type=\"string\">" + paragraph + "</table:table-cell>";
            seed.replace("<table:table-cell/>", cell);
        } else {
            seed.replace("<text:p/>", paragraph);
        }
        const QString path = reg.dir() + "/Sutartis" + extension;
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(seed);
        return path;
    }

    void run(const QString& kind, const QVariant& templatePath, const QString& regIndex = "AGR-20240305/7")
    {
        const OfficeDocumentRequest request {
            "Sutartis", docs, templatePath, QString::number(category), regIndex};
        operationOf(kind)(request, [this](const QString& path) {
            locations << path;
            callsAtLocation << shell.calls().size();
        });
    }

    QString path(const QString& name) const { return QDir(docs).filePath(name); }
    QStringList files() const { return QDir(docs).entryList(QDir::Files | QDir::Hidden); }
};

} // namespace

class OfficeDocumentsTest : public QObject
{
    Q_OBJECT

    // The file is made, written to the Location box, and only then shown.
    static void verifyMade(Fixture& fx, const QString& name, bool withTemplate)
    {
        const QString path = fx.path(name);
        QCOMPARE(fx.locations, QStringList {path});
        QCOMPARE(fx.callsAtLocation, QList<qsizetype> {0});
        const QList<ScriptedShell::Call> calls = fx.shell.take();
        QCOMPARE(calls.size(), 1);
        QCOMPARE(calls.first().kind, ScriptedShell::Kind::Open);
        QCOMPARE(calls.first().path, path);
        QVERIFY(QFile::exists(path));
        QCOMPARE(test::fileHoldsText(path, Marker), withTemplate);
        fx.locations.clear();
        fx.callsAtLocation.clear();
    }

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable("soffice").isEmpty())
            QSKIP("LibreOffice isn't installed");
    }

    // The situations that stop before LibreOffice is asked: the name is taken, the user
    // cancels at a missing template, or "Like Registration Index" has no index. No file, no
    // location, nothing shown, and the running number taken all the same.
    void stops_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("situation");
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("title");
        const auto row = [](const char* kind, const char* situation, int style, const char* title) {
            QTest::newRow(qPrintable(QString(kind) + ", " + situation))
                << QString(kind) << QString(situation) << style << QString(title);
        };
        const int stop = MsgBoxStyle::OkOnly | MsgBoxStyle::Critical;
        const int question = MsgBoxStyle::OkCancel | MsgBoxStyle::Critical | MsgBoxStyle::DefaultButton2;
        row("Word", "taken", stop, "Can't create a file");
        row("Excel", "taken", stop, "Can't create a file. Try again.");
        row("PowerPoint", "taken", stop, "Can't create a file");
        row("Word", "cancel", question, "Warning: Desired template not found");
        row("Excel", "cancel", question, "Warning: Desired template not found");
        row("Word", "template is a folder", question, "Warning: Desired template not found");
        row("Excel", "template is a folder", question, "Warning: Desired template not found");
        row("Word", "no index", stop, "The file name must be like Registration Index");
        row("PowerPoint", "no index", stop, "The file name must be like Registration Index");
    }

    void stops()
    {
        QFETCH(QString, kind);
        QFETCH(QString, situation);
        QFETCH(int, style);
        QFETCH(QString, title);
        Fixture fx;
        const QString extension = kind == "Word" ? ".doc" : kind == "Excel" ? ".xls" : ".ppt";
        const QString taken = fx.path("AGR00012" + extension);
        const QString missing = situation == "template is a folder" ? fx.docs : fx.reg.dir() + "/Gone.dot";
        const bool asked = situation == "cancel" || situation == "template is a folder";
        if (situation == "taken") {
            QFile file(taken);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("mine");
        }
        if (situation == "no index")
            setRegValue("FileName", "2");
        fx.prompter.answer(asked ? MsgBoxResult::Cancel : MsgBoxResult::Ok);

        fx.run(kind, asked ? QVariant(missing) : QVariant(), situation == "no index" ? "" : "A/1");

        QCOMPARE(fx.prompter.prompts().size(), 1);
        const ScriptedPrompter::Prompt prompt = fx.prompter.prompts().first();
        QCOMPARE(prompt.style, style);
        QCOMPARE(prompt.title, title);
        if (situation == "taken")
            QCOMPARE(prompt.text, fileExistsMessage(taken));
        else if (asked)
            QCOMPARE(prompt.text,
                "Can't achieve desired template " + missing
                    + ".\r\rIf you want to continue without template click OK");
        QVERIFY(fx.locations.isEmpty());
        QVERIFY(fx.shell.calls().isEmpty());
        QCOMPARE(
            fx.files(), situation == "taken" ? QStringList {QFileInfo(taken).fileName()} : QStringList());
        if (situation == "taken")
            QCOMPARE(readFile(taken), "mine");
        QCOMPARE(getRegValue("FileNumber"), " 13");
    }

    void word()
    {
        Fixture fx;
        fx.run("Word", fx.templateFile(".dot"));
        QVERIFY(fx.prompter.prompts().isEmpty());
        verifyMade(fx, "AGR00012.doc", true);

        // A template that has gone: OK goes on without it.
        fx.prompter.answer(MsgBoxResult::Ok);
        fx.run("Word", QString(fx.reg.dir() + "/Gone.dot"));
        QCOMPARE(fx.prompter.take().size(), 1);
        verifyMade(fx, "AGR00013.doc", false);

        // Null and empty text both mean no template: no question.
        fx.run("Word", QString(""));
        verifyMade(fx, "AGR00014.doc", false);
        QCOMPARE(getRegValue("FileNumber"), " 15");
        QVERIFY(fx.prompter.allAnswered());
    }

    void excel()
    {
        Fixture fx;
        fx.run("Excel", fx.templateFile(".xlt"));
        QVERIFY(fx.prompter.prompts().isEmpty());
        verifyMade(fx, "AGR00012.xls", true);
        QCOMPARE(getRegValue("FileNumber"), " 13");
    }

    // The presentation is saved without its template, and a missing one draws no question.
    void powerPoint()
    {
        Fixture fx;
        fx.run("PowerPoint", fx.templateFile(".pot"));
        verifyMade(fx, "AGR00012.ppt", false);
        fx.run("PowerPoint", QString(fx.reg.dir() + "/Gone.pot"));
        verifyMade(fx, "AGR00013.ppt", false);
        QVERIFY(fx.prompter.prompts().isEmpty());
    }
};

QTEST_GUILESS_MAIN(OfficeDocumentsTest)
#include "tst_office_documents.moc"
