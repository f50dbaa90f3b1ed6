#include "base/Error.h"
#include "harness/ScriptedOfficeSuite.h"
#include "harness/ScriptedPrompter.h"
#include "harness/TestRegister.h"
#include "options/OptionStore.h"
#include "registration/DayCounter.h"
#include "registration/FileNaming.h"
#include "registration/OfficeDocuments.h"
#include "registration/RegIndex.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "store/engine/Value.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

#include <functional>

using namespace kartella;
using kartella::test::ScriptedPrompter;
using kartella::test::TestRegister;

namespace kartella {

struct DocumentFileNameProbe
{
    static QString clean(const QString& text) { return DocumentFileName::cleanFileName(text); }
};

} // namespace kartella

namespace {

const QDate today(2024, 3, 5);
const QString Folder = QStringLiteral("/srv/Docs");

// The number of the kartella::Error that call throws; 0 when none.
long errorOf(const std::function<void()>& call)
{
    try {
        call();
    } catch (const Error& e) {
        return e.number();
    }
    return 0;
}

qint32 addCategory(
    const TestRegister& reg, const QVariant& title, const QVariant& mnemonic, const QVariant& folder = {})
{
    return reg.insert("tbl_Document_Categories",
        {{"DokKategorija", title}, {"Mnemonic", mnemonic}, {"DokKategDaug", folder}});
}

// The settings of the examples: Date 2024 03 05, TodayNumber 7, AutoRegIndex on, IndexStyle 1,
// Separator1 "-", Separator2 "/", UseMnemonic on; FileNumber 12.
void setExampleOptions()
{
    const QList<QPair<QString, QString>> options
        = {{"Date", "2024 03 05"}, {"TodayNumber", "7"}, {"AutoRegIndex", "1"}, {"IndexStyle", "1"},
            {"Separator1", "-"}, {"Separator2", "/"}, {"UseMnemonic", "1"}, {"FileNumber", " 12"}};
    for (const auto& [name, value] : options)
        setRegValue(name, value);
}

// Takes a register back to the form before the day's counter: the day's numbers are
// counted in the options, as an older program made it.
void makeOlderThanDayCounter(const TestRegister& reg)
{
    reg.exec("DROP TABLE tbl_Day_Counter");
    reg.exec("PRAGMA user_version = 4");
}

// "known" in a test row stands for the category of the test's register.
QVariant categoryArgument(const QVariant& category, qint32 known)
{
    return category == QVariant(QString("known")) ? QVariant(known) : category;
}

} // namespace

class RegistrationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // LibreOffice missing or stopped is told once a run, naming the packages a desktop user
    // installs; other failures of the suite stay silent. No file is named in the box.
    void missingOfficeIsToldOncePerRun()
    {
        TestRegister reg;
        const QString docs = reg.dir() + "/Docs";
        QDir().mkpath(docs);
        setRegValue("FileName", "0");
        setRegValue("FileNumber", " 12");
        const qint32 category = reg.insert("tbl_Document_Categories",
            {{"DokKategorija", "Sutartys"}, {"Mnemonic", "AGR"}, {"DokKategDaug", docs}});
        test::ScriptedOfficeSuite suite;
        ScriptedPrompter prompter;
        forgetOfficeNotice();
        QStringList locations;
        const auto run = [&](auto create) {
            const OfficeDocumentRequest request {
                "Sutartis", docs, QVariant(), QString::number(category), "A/1"};
            try {
                create(request, [&](const QString& path) { locations << path; });
                QFAIL("the suite's failure was swallowed");
            } catch (const Error&) { }
        };
        suite.failWith(OfficeErrorNumber::Failed);
        run(createWordDocument);
        QVERIFY(prompter.prompts().isEmpty());

        suite.failWith(OfficeErrorNumber::NotInstalled);
        prompter.answer(MsgBoxResult::Ok);
        run(createExcelDocument);
        QCOMPARE(prompter.prompts().size(), 1);
        const QString text = prompter.prompts().first().text;
        for (const char* package : {"libreoffice-writer", "libreoffice-calc", "libreoffice-impress"})
            QVERIFY2(text.contains(QLatin1String(package)), qPrintable(text));
        QVERIFY(!text.contains("nogui"));
        QCOMPARE(prompter.prompts().first().style, MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation);

        // Again, and stopped at the time limit: nothing more is said this run.
        run(createPowerPointDocument);
        suite.failWith(OfficeErrorNumber::TimedOut);
        run(createWordDocument);
        QCOMPARE(prompter.prompts().size(), 1);
        QVERIFY(locations.isEmpty());
        QCOMPARE(suite.made.size(), 4);
        QVERIFY(suite.shown.isEmpty());
        QVERIFY(prompter.allAnswered());
    }

    void formatIndexDate()
    {
        QLocale::setDefault(QLocale(QLocale::Lithuanian, QLocale::Lithuania));
        const QStringList expected
            = {"", "20240305", "03052024", "05032024", "240305", "030524", "050324", ""};
        for (int style = 0; style < expected.size(); ++style)
            QCOMPARE(kartella::formatIndexDate(today, style), expected.at(style));
        QLocale::setDefault(QLocale::c());
    }

    // Each row changes one option (or the mnemonic) from the example settings.
    void regIndex_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QVariant>("mnemonic");
        QTest::addColumn<QString>("index");
        QTest::addColumn<QString>("numberAfter"); // "1" also means Date was set to today
        auto row = [](const char* tag, const char* option, const char* value, const QVariant& mnemonic,
                       const char* index, const char* numberAfter) {
            QTest::newRow(tag) << QString(option) << QString(value) << mnemonic << QString(index)
                               << QString(numberAfter);
        };
        const QVariant agr = QString("AGR");
        row("as given", "", "", agr, "AGR-20240305/7", "7");
        row("UseMnemonic off", "UseMnemonic", "0", agr, "20240305/7", "7");
        row("no mnemonic", "", "", QVariant(), "20240305/7", "7");
        row("empty mnemonic", "", "", QString(""), "20240305/7", "7");
        row("IndexStyle 6", "IndexStyle", "6", agr, "AGR-050324/7", "7");
        row("IndexStyle 9", "IndexStyle", "9", agr, "AGR-/7", "7");
        row("separators empty", "Separators", "", agr, "AGR202403057", "7");
        row("long separators", "Separators", " - ", agr, "AGR - 20240305 - 7", "7");
        row("AutoRegIndex off", "AutoRegIndex", "0", agr, "", "7");
        row("day before", "Date", "2024 03 04", agr, "AGR-20240305/1", "1");
        row("clock set back", "Date", "2024 03 06", agr, "AGR-20240305/1", "1");
        row("numeric prefix", "TodayNumber", " 12.9abc", agr, "AGR-20240305/12", " 12.9abc");
        row("no number", "TodayNumber", "Not Found", agr, "AGR-20240305/0", "Not Found");
        row("largest number", "TodayNumber", "32767", agr, "AGR-20240305/32767", "32767");
    }

    void regIndex()
    {
        QFETCH(QString, option);
        QFETCH(QString, value);
        QFETCH(QVariant, mnemonic);
        QFETCH(QString, index);
        QFETCH(QString, numberAfter);
        TestRegister reg;
        makeOlderThanDayCounter(reg);
        const qint32 category = addCategory(reg, QString("Sutartys"), mnemonic);
        setExampleOptions();
        if (option == "Separators") {
            setRegValue("Separator1", value);
            setRegValue("Separator2", value);
        } else if (!option.isEmpty()) {
            setRegValue(option, value);
        }
        QCOMPARE(makeRegIndex(QString::number(category), today), index);
        QCOMPARE(getRegValue("TodayNumber"), numberAfter);
        QCOMPARE(getRegValue("Date"), numberAfter == "1" || option != "Date" ? QString("2024 03 05") : value);
        // A proposal reserves nothing: the next one is the same.
        QCOMPARE(makeRegIndex(category, today), index);
    }

    void regIndexFailures_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QVariant>("category");
        QTest::addColumn<long>("error");
        auto row = [](const char* tag, const char* option, const char* value, const QVariant& category,
                       long error) {
            QTest::newRow(tag) << QString(option) << QString(value) << category << error;
        };
        const QVariant known = QString("known");
        row("category not a number", "", "", QString("Sutartys"), 13);
        row("category out of range", "", "", QString("3000000000"), 6);
        row("no such category", "", "", 999, 3021);
        row("Date not a date", "Date", "5 March", known, 13);
        row("Date impossible", "Date", "2024 02 30", known, 13);
        row("AutoRegIndex not a flag", "AutoRegIndex", "Not Found", known, 13);
        row("UseMnemonic not a flag", "UseMnemonic", "", known, 13);
        row("IndexStyle not a number", "IndexStyle", "first", known, 13);
        row("TodayNumber above 32767", "TodayNumber", "32768", known, 6);
        row("TodayNumber far above", "TodayNumber", "99999999999999999999", known, 6);
    }

    void regIndexFailures()
    {
        QFETCH(QString, option);
        QFETCH(QString, value);
        QFETCH(QVariant, category);
        QFETCH(long, error);
        TestRegister reg;
        makeOlderThanDayCounter(reg);
        const qint32 known = addCategory(reg, QString("Sutartys"), QString("AGR"));
        setExampleOptions();
        if (!option.isEmpty())
            setRegValue(option, value);
        QCOMPARE(errorOf([&] { makeRegIndex(categoryArgument(category, known), today); }), error);
        QCOMPARE(getRegValue("TodayNumber"), option == "TodayNumber" ? value : QString("7"));
        QCOMPARE(getRegValue("Date"), option == "Date" ? value : QString("2024 03 05"));
    }

    // With no category chosen (New Document from the root of the tree) the index has no
    // mnemonic, and the day's count works as with one.
    void regIndexWithoutCategory()
    {
        TestRegister reg;
        makeOlderThanDayCounter(reg);
        setExampleOptions();
        QCOMPARE(makeRegIndex(QString(), today), QString("20240305/7"));
        QCOMPARE(makeRegIndex(QVariant(), today), QString("20240305/7"));
        setRegValue("Date", QString("2024 03 04"));
        QCOMPARE(makeRegIndex(QString(), today), QString("20240305/1"));
        QCOMPARE(getRegValue("TodayNumber"), QString("1"));
    }

    // A register that keeps the day's counter gives the number and leaves the options alone:
    // before anything is counted today it starts past the highest number its indexes of the
    // day hold (any mnemonic, today's date text and Separator2 only), then it follows the
    // counter, which only ever rises.
    void regIndexFromTheRegister()
    {
        TestRegister reg;
        const qint32 category = addCategory(reg, QString("Sutartys"), QString("AGR"));
        setExampleOptions();
        setRegValue("Date", QString("2024 03 01"));
        QCOMPARE(makeRegIndex(category, today), QString("AGR-20240305/1"));
        QCOMPARE(getRegValue("TodayNumber"), QString("7"));
        QCOMPARE(getRegValue("Date"), QString("2024 03 01"));

        const auto held = [&](const char* index) {
            reg.insert("tbl_Documents", {{"DokAntraste", "Held"}, {"DokRegistracIndeksas", QString(index)}});
        };
        held("LET-20240305/3");
        held("20240305/2");
        held("AGR-20240304/9"); // another day
        held("AGR-20240305-11"); // another separator
        held("AGR-20240305/"); // no number
        QCOMPARE(makeRegIndex(category, today), QString("AGR-20240305/4"));

        Connection connection;
        connection.open(reg.connectionString());
        QCOMPARE(lastDayNumber(connection, today), 3);
        connection.beginTrans();
        raiseDayCounter(connection, today, 2);
        connection.commitTrans();
        QCOMPARE(makeRegIndex(category, today), QString("AGR-20240305/3"));
        raiseDayCounter(connection, today, 6);
        raiseDayCounter(connection, today, 5);
        raiseDayCounter(connection, today.addDays(1), 1);
        QCOMPARE(dayCounterValue(connection, today), 6);
        QCOMPARE(makeRegIndex(category, today), QString("AGR-20240305/7"));
        QCOMPARE(makeRegIndex(category, today.addDays(1)), QString("AGR-20240306/2"));
        QCOMPARE(makeRegIndex(category, today.addDays(2)), QString("AGR-20240307/1"));
        // The next free number counts the counter too.
        QCOMPARE(nextFreeRegIndex(connection, "LET-20240305/3", today), QString("LET-20240305/7"));
        // Users refused at once are offered one number each, and proposals start past them.
        QCOMPARE(reserveFreeRegIndex(connection, "LET-20240305/3", today), QString("LET-20240305/7"));
        QCOMPARE(reserveFreeRegIndex(connection, "AGR-20240305/3", today), QString("AGR-20240305/8"));
        QCOMPARE(dayCounterValue(connection, today), 8);
        QCOMPARE(makeRegIndex(category, today), QString("AGR-20240305/9"));
        // The last one given back is offered again; one a user stored is not given back.
        releaseRegIndex(connection, "AGR-20240305/8", today);
        QCOMPARE(dayCounterValue(connection, today), 7);
        QCOMPARE(reserveFreeRegIndex(connection, "AGR-20240305/3", today), QString("AGR-20240305/8"));
        held("AGR-20240305/8");
        releaseRegIndex(connection, "AGR-20240305/8", today);
        QCOMPARE(dayCounterValue(connection, today), 8);
        // Nor one another user counted past meanwhile.
        QCOMPARE(reserveFreeRegIndex(connection, "AGR-20240305/3", today), QString("AGR-20240305/9"));
        raiseDayCounter(connection, today, 10);
        releaseRegIndex(connection, "AGR-20240305/9", today);
        QCOMPARE(dayCounterValue(connection, today), 10);
        // An index of no day reserves nothing.
        QCOMPARE(reserveFreeRegIndex(connection, "Sutartis 5", today), QString("Sutartis 6"));
        QCOMPARE(dayCounterValue(connection, today), 10);
        QCOMPARE(reserveFreeRegIndex(connection, "Sutartis 5", today.addDays(5)), QString("Sutartis 6"));
        // The first number of a day given back and drawn again.
        const QDate later = today.addDays(9);
        QCOMPARE(reserveFreeRegIndex(connection, "AGR-20240314/1", later), QString("AGR-20240314/2"));
        releaseRegIndex(connection, "AGR-20240314/2", later);
        releaseRegIndex(connection, "AGR-20240314/1", later);
        QCOMPARE(dayCounterValue(connection, later), 0);
        QCOMPARE(reserveFreeRegIndex(connection, "AGR-20240314/0", later), QString("AGR-20240314/1"));
        QCOMPARE(dayCounterValue(connection, later), 1);
        // Past the highest held with the same text before the number, and no other text.
        held("Sutartis 9");
        held("sutartis 10");
        held("Sutartis A 12");
        QCOMPARE(reserveFreeRegIndex(connection, "Sutartis 5", today), QString("Sutartis 11"));
        QCOMPARE(dayCounterValue(connection, today.addDays(5)), -1);
        // A draw that fails leaves no transaction open: what the connection writes next is stored.
        connection.execute("DROP TABLE tbl_Day_Counter");
        QVERIFY_THROWS_EXCEPTION(Error, reserveFreeRegIndex(connection, "AGR-20240305/3", today));
        connection.execute("INSERT INTO tbl_Contacts (FullName) VALUES ('After')");
        Connection other;
        other.open(reg.connectionString());
        Recordset after;
        after.open(QString("SELECT COUNT(*) AS N FROM tbl_Contacts WHERE FullName = 'After'"), other);
        QCOMPARE(after.fields(QString("N")).value().toInt(), 1);
    }

    // The register keeps the day's counter from the schema that made its table on.
    void dayCounterFromItsSchema_data()
    {
        QTest::addColumn<int>("version");
        QTest::addColumn<bool>("keeps");
        QTest::newRow("before the counter") << 4 << false;
        QTest::newRow("the counter's own") << 5 << true;
        QTest::newRow("later") << 6 << true;
    }

    void dayCounterFromItsSchema()
    {
        QFETCH(int, version);
        QFETCH(bool, keeps);
        TestRegister reg;
        reg.exec(QString("PRAGMA user_version = %1").arg(version));
        Connection connection;
        connection.open(reg.connectionString());
        QCOMPARE(registerKeepsDayCounter(connection), keeps);
    }

    void dayNumberOf_data()
    {
        QTest::addColumn<QString>("index");
        QTest::addColumn<qint64>("number");
        QTest::newRow("with mnemonic") << "AGR-20240305/12" << qint64(12);
        QTest::newRow("without mnemonic") << "20240305/1" << qint64(1);
        QTest::newRow("letter case") << "agr-20240305/3" << qint64(3);
        QTest::newRow("another day") << "AGR-20240304/12" << qint64(0);
        QTest::newRow("another separator") << "AGR-20240305-12" << qint64(0);
        QTest::newRow("no number") << "AGR-20240305/" << qint64(0);
        QTest::newRow("text after the number") << "AGR-20240305/12a" << qint64(0);
        QTest::newRow("typed by hand") << "Sutartis 5" << qint64(0);
    }
    void dayNumberOf()
    {
        QFETCH(QString, index);
        QFETCH(qint64, number);
        TestRegister reg;
        setExampleOptions();
        QCOMPARE(kartella::dayNumberOf(index, today), number);
    }

    void regIndexOffLooksAtNothingElse()
    {
        TestRegister reg;
        setExampleOptions();
        setRegValue("AutoRegIndex", QString("0"));
        setRegValue("Date", QString("2024 01 02"));
        QCOMPARE(makeRegIndex(QString(), today), QString());
        QCOMPARE(getRegValue("Date"), QString("2024 01 02"));
        // Without a register the lookup's own error comes through.
        setRegValue("AutoRegIndex", QString("1"));
        setRegValue("DbLocation", reg.dir() + "/none.mdb");
        const long error = errorOf([] { makeRegIndex(1, today); });
        QVERIFY(error != 0 && error != 3021);
    }

    void sampleAndReset()
    {
        TestRegister reg;
        setExampleOptions();
        QCOMPARE(regIndexSample(today), QString("AGR-20240305/1"));
        setRegValue("UseMnemonic", QString("0"));
        setRegValue("IndexStyle", QString("3"));
        QCOMPARE(regIndexSample(today), QString("05032024/1"));
        QCOMPARE(getRegValue("TodayNumber"), QString("7"));
        // A new day restarts the count even with AutoRegIndex off.
        setRegValue("AutoRegIndex", QString("0"));
        setRegValue("Date", QString("2024 02 28"));
        QCOMPARE(regIndexSample(today), QString("05032024/1"));
        QCOMPARE(getRegValue("Date"), QString("2024 03 05"));
        QCOMPARE(getRegValue("TodayNumber"), QString("1"));
        setRegValue("Date", QString("yesterday"));
        QCOMPARE(errorOf([] { regIndexSample(today); }), 13L);
        QLocale::setDefault(QLocale(QLocale::Lithuanian, QLocale::Lithuania));
        resetTodayNumber(QDate(2025, 1, 9));
        QLocale::setDefault(QLocale::c());
        QCOMPARE(getRegValue("Date"), QString("2025 01 09"));
    }

    void fileNames_data()
    {
        QTest::addColumn<QString>("system");
        QTest::addColumn<QString>("pattern"); // of the name behind the folder
        QTest::newRow("0 Mnemonic+Number") << "0"
                                           << "AGR00012\\.doc";
        QTest::newRow("1 Description+Number") << "1"
                                              << "Sutartis ([1-9]|[1-9][0-9]|[1-9][0-9][0-9])\\.doc";
        QTest::newRow("2 Like Registration Index") << "2"
                                                   << "AGR-20240305p7\\.doc";
    }

    void fileNames()
    {
        QFETCH(QString, system);
        QFETCH(QString, pattern);
        TestRegister reg;
        const qint32 category = addCategory(reg, QString("Sutartys"), QString("AGR"));
        setExampleOptions();
        setRegValue("FileName", system);
        const QString path
            = makeNewFileName("Sutartis", ".doc", Folder, QString::number(category), "AGR-20240305/7");
        const QRegularExpression expected(QRegularExpression::anchoredPattern(
            QRegularExpression::escape(Folder + QDir::separator()) + pattern));
        QVERIFY2(expected.match(path).hasMatch(), qPrintable(path));
        QCOMPARE(getRegValue("FileNumber"), QString(" 13"));
    }

    void numberNames_data()
    {
        QTest::addColumn<QVariant>("title");
        QTest::addColumn<QVariant>("mnemonic");
        QTest::addColumn<QString>("fileNumber");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("fileNumberAfter");
        auto row = [](const char* tag, const QVariant& title, const QVariant& mnemonic,
                       const char* fileNumber, const char* name, const char* after) {
            QTest::newRow(tag) << title << mnemonic << QString(fileNumber) << QString(name) << QString(after);
        };
        const QVariant title = QString("Sutartys");
        const QVariant agr = QString("AGR");
        row("mnemonic", title, agr, " 12", "AGR00012", " 13");
        row("not padded", title, QString("AB"), " 12", "AB00012", " 13");
        row("no mnemonic", title, QVariant(), " 12", "Sut00012", " 13");
        row("empty mnemonic", QString("Įsakymai"), QString(""), " 1", "Įsa00001", " 2");
        row("short title", QString("Ak"), QVariant(), " 12", "Ak00012", " 13");
        row("no title", QVariant(), QVariant(), " 12", "WMN00012", " 13");
        row("zero, no blank", title, agr, "0", "AGR00000", " 1");
        row("largest", title, agr, " 32766", "AGR32766", " 32767");
        row("negative", title, agr, "-3", "AGR-00003", "-2");
    }

    void numberNames()
    {
        QFETCH(QVariant, title);
        QFETCH(QVariant, mnemonic);
        QFETCH(QString, fileNumber);
        QFETCH(QString, name);
        QFETCH(QString, fileNumberAfter);
        TestRegister reg;
        const qint32 category = addCategory(reg, title, mnemonic);
        setRegValue("FileNumber", fileNumber);
        QCOMPARE(makeFileNumberName(category), name);
        QCOMPARE(getRegValue("FileNumber"), fileNumberAfter);
    }

    void fileNameFailures_data()
    {
        QTest::addColumn<QString>("fileNumber");
        QTest::addColumn<QVariant>("category");
        QTest::addColumn<long>("error");
        auto row = [](const char* tag, const char* fileNumber, const QVariant& category, long error) {
            QTest::newRow(tag) << QString(fileNumber) << category << error;
        };
        const QVariant known = QString("known");
        row("would pass 32767", " 32767", known, 6);
        row("above 16 bits", " 40000", known, 6);
        row("not a number", "twelve", known, 13);
        row("empty", "", known, 13);
        row("empty category", " 12", QString(""), 13);
        row("Null category", " 12", QVariant(), 13);
        row("no such category", " 12", 999, 3021);
    }

    void fileNameFailures()
    {
        QFETCH(QString, fileNumber);
        QFETCH(QVariant, category);
        QFETCH(long, error);
        TestRegister reg;
        const qint32 known = addCategory(reg, QString("Sutartys"), QString("AGR"));
        setRegValue("FileNumber", fileNumber);
        const QVariant argument = categoryArgument(category, known);
        QCOMPARE(errorOf([&] { makeNewFileName("Sutartis", ".doc", Folder, argument, "A/1"); }), error);
        QCOMPARE(getRegValue("FileNumber"), fileNumber);
        // The counter's own end is told in words of its own.
        if (error == 6) {
            QString told;
            try {
                makeFileNumberName(known);
            } catch (const Error& failure) {
                told = failure.description();
            }
            QVERIFY2(told.contains("FileNumber can't go past 32767") == (fileNumber == " 32767"),
                qPrintable(told));
        }
    }

    void descriptionsAndCleaning()
    {
        const QString letters25 = "Nuomos sutartis su UAB Ab";
        const QStringList descriptions = {letters25, letters25 + "c", "Akt", "A.B, C/D"};
        const QStringList kept = {letters25, letters25, "Akt", "A.B, C/D"};
        for (int i = 0; i < descriptions.size(); ++i) {
            const QString name = DocumentFileName().docFileName("1", descriptions.at(i), "AGR00012", "AGR-1");
            QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(
                                            QRegularExpression::escape(kept.at(i)) + " [1-9][0-9]{0,2}"))
                         .match(name)
                         .hasMatch(),
                qPrintable(name));
        }
        QCOMPARE(DocumentFileNameProbe::clean("'!~@#$%^&/\\()<>.,:;"), QString(19, 'p'));
        QCOMPARE(DocumentFileNameProbe::clean("A.B,C"), QString("ApBpC"));
        QCOMPARE(DocumentFileNameProbe::clean("a*b?c\"d|e f_g-Šč"), QString("a*b?c\"d|e f_g-Šč"));
    }

    void emptyIndexAndUnknownSystem()
    {
        TestRegister reg;
        const qint32 category = addCategory(reg, QString("Sutartys"), QString("AGR"));
        setExampleOptions();
        setRegValue("FileName", QString("2"));
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        QCOMPARE(makeNewFileName("Sutartis", ".doc", Folder, category, ""), QString());
        QCOMPARE(prompter.prompts().size(), 1);
        QCOMPARE(prompter.prompts().first().title, QString("The file name must be like Registration Index"));
        QCOMPARE(prompter.prompts().first().text,
            QString("Can't create a file, because the Registration Index is "
                    "empty. Enter valid Registration Index, please."));
        QCOMPARE(prompter.prompts().first().style, 16);
        QCOMPARE(getRegValue("FileNumber"), QString(" 13"));
        setRegValue("FileName", QString("Not Found"));
        QCOMPARE(makeNewFileName("Sutartis", ".doc", Folder, category, "A/1"), QString());
        QCOMPARE(getRegValue("FileNumber"), QString(" 14"));
    }

    void folders()
    {
        TestRegister reg;
        const qint32 cat = addCategory(reg, QString("Sutartys"), QString("AGR"), QString("/srv/cat"));
        const qint32 bare = addCategory(reg, QString("Raštai"), QVariant());
        auto sub = [&](qint32 category, const QVariant& path) {
            return reg.insert("tbl_Sub_Categories",
                {{"KategID", category}, {"DokSubKategorija", "N"}, {"SubPathToFiles", path}});
        };
        const qint32 subPath = sub(cat, QString("/srv/sub")), subEmpty = sub(cat, QString("")),
                     subNull = sub(cat, {});
        const qint32 subOfBare = sub(bare, {});
        QCOMPARE(getDocumentFolder(cat, subPath), QVariant(QString("/srv/sub")));
        QCOMPARE(getDocumentFolder(cat, QString::number(subEmpty)), QVariant(QString("")));
        QCOMPARE(getDocumentFolder(cat, subNull), QVariant(QString("/srv/cat")));
        QCOMPARE(getDocumentFolder(QString::number(cat), QString()), QVariant(QString("/srv/cat")));
        QVERIFY(isNull(getDocumentFolder(bare, subOfBare)));
        QCOMPARE(errorOf([] { getDocumentFolder(QString(), QVariant()); }), 13L);

        // A Null folder: the ini key "AllDocs", else the default folder, its separator kept.
        setRegValue("FileName", QString("0"));
        setRegValue("FileNumber", QString(" 1"));
        QCOMPARE(makeNewFileName("S", ".xls", QVariant(), bare, ""),
            QString(QDir::homePath() + "/" + QDir::separator() + "Raš00001.xls"));
        QVERIFY(writeIniValue("AllDocs", QDir::toNativeSeparators("/srv/all")));
        QCOMPARE(makeNewFileName("S", ".ppt", getDocumentFolder(bare, subOfBare), bare, ""),
            QDir::toNativeSeparators("/srv/all/Raš00002.ppt"));
        QCOMPARE(makeNewFileName("S", ".doc", QString(Folder + QDir::separator()), cat, ""),
            QString(Folder + QDir::separator() + QDir::separator() + "AGR00003.doc"));
        QCOMPARE(fileExistsMessage("/d/A.doc"),
            QString("The File with name /d/A.doc exist. Depending on the File "
                    "Name style, check Doc. Description, Registration Index or "
                    "other parameters."));
    }
};

QTEST_GUILESS_MAIN(RegistrationTest)
#include "tst_registration.moc"
