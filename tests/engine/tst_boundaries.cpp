// The engine at its edges: times around noon and midnight, the turn of the two-digit year
// window, every Lithuanian letter in the folding and LIKE, and comparisons at equality.
#include "EngineFixture.h"
#include "base/Error.h"
#include "platform/Clock.h"
#include "store/engine/Criteria.h"
#include "store/engine/DateText.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/JetDialect.h"
#include "store/engine/TextFold.h"

#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

int compareNames(const QString& a, const QString& b)
{
    const QByteArray x = a.toUtf8();
    const QByteArray y = b.toUtf8();
    return engine::compareNames(x.constData(), std::size_t(x.size()), y.constData(), std::size_t(y.size()));
}

} // namespace

class BoundariesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // An invalid expected time: the text is no date.
    void timeAroundNoonAndMidnight_data()
    {
        QTest::addColumn<QString>("time");
        QTest::addColumn<QTime>("expected");

        QTest::newRow("12:30 PM") << "12:30 PM" << QTime(12, 30);
        QTest::newRow("12:05 AM") << "12:05 AM" << QTime(0, 5);
        QTest::newRow("12:00 PM") << "12:00 PM" << QTime(12, 0);
        QTest::newRow("12:00 AM") << "12:00 AM" << QTime(0, 0);
        QTest::newRow("11:59 AM") << "11:59 AM" << QTime(11, 59);
        QTest::newRow("11:59 PM") << "11:59 PM" << QTime(23, 59);
        QTest::newRow("1:00 AM") << "1:00 AM" << QTime(1, 0);
        QTest::newRow("1:00 PM") << "1:00 PM" << QTime(13, 0);
        QTest::newRow("lower case pm") << "12:30 pm" << QTime(12, 30);
        QTest::newRow("12:00") << "12:00" << QTime(12, 0);
        QTest::newRow("0:00") << "0:00" << QTime(0, 0);
        QTest::newRow("23:59:59") << "23:59:59" << QTime(23, 59, 59);
        QTest::newRow("seconds and a fraction") << "11:59:59.5 PM" << QTime(23, 59, 59, 500);
        QTest::newRow("a fraction of four digits at the end") << "11:59:59.1234" << QTime(11, 59, 59, 123);
        QTest::newRow("0:30 AM") << "0:30 AM" << QTime();
        QTest::newRow("13:00 PM") << "13:00 PM" << QTime();
        QTest::newRow("24:00") << "24:00" << QTime();
        QTest::newRow("12:60") << "12:60" << QTime();
    }

    void timeAroundNoonAndMidnight()
    {
        QFETCH(QString, time);
        QFETCH(QTime, expected);
        const QVariant read = engine::parseJetDate(QString(QStringLiteral("1/2/2024 ") + time));
        if (!expected.isValid()) {
            QVERIFY2(!read.isValid(), qPrintable(read.toString()));
            return;
        }
        QCOMPARE(read.typeId(), QMetaType::QDateTime);
        QCOMPARE(read.toDateTime(), QDateTime(QDate(2024, 1, 2), expected));
        // The same in a Jet date literal of a statement.
        QCOMPARE(engine::translateJetToSqlite(QStringLiteral("SELECT #1/2/2024 ") + time + u'#'),
            QStringLiteral("SELECT '2024-01-02 ") + expected.toString(u"HH:mm:ss") + u'\'');
    }

    // The century that puts a two-digit year nearest to today; a tie goes to the past.
    void twoDigitYearWindow_data()
    {
        QTest::addColumn<QDate>("today");
        QTest::addColumn<QString>("date");
        QTest::addColumn<int>("year");

        const QDate june2024(2024, 6, 15);
        QTest::newRow("49 years ahead") << june2024 << "3/5/73" << 2073;
        QTest::newRow("50 either way") << june2024 << "3/5/74" << 1974;
        QTest::newRow("49 years back") << june2024 << "3/5/75" << 1975;
        QTest::newRow("this year") << june2024 << "3/5/24" << 2024;
        QTest::newRow("00") << june2024 << "3/5/00" << 2000;
        QTest::newRow("99") << june2024 << "3/5/99" << 1999;
        QTest::newRow("next century") << QDate(2099, 1, 1) << "3/5/01" << 2101;
        QTest::newRow("last century") << QDate(2001, 1, 1) << "3/5/99" << 1999;
        QTest::newRow("one digit") << june2024 << "3/5/7" << 2007;
        QTest::newRow("four digits stay") << june2024 << "3/5/0074" << 74;
    }

    void twoDigitYearWindow()
    {
        QFETCH(QDate, today);
        QFETCH(QString, date);
        QFETCH(int, year);
        SettableClock clock(today);
        const QVariant read = engine::parseJetDate(date);
        QCOMPARE(read.typeId(), QMetaType::QDate);
        QCOMPARE(read.toDate(), QDate(year, 3, 5));
    }

    // A date literal is read from a part of a statement: what follows the part, a separator
    // or a digit, is no part of the date.
    void dateReadFromItsPartAlone_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("length");
        QTest::addColumn<QVariant>("expected");

        QTest::newRow("before seconds")
            << "3/5/2024 12:30:45" << 14 << QVariant(QDateTime(QDate(2024, 3, 5), QTime(12, 30)));
        QTest::newRow("before a fraction")
            << "3/5/2024 12:30:45.5" << 17 << QVariant(QDateTime(QDate(2024, 3, 5), QTime(12, 30, 45)));
        QTest::newRow("two digits of four") << "3/5/2024" << 6 << QVariant(QDate(2020, 3, 5));
    }

    void dateReadFromItsPartAlone()
    {
        QFETCH(QString, text);
        QFETCH(int, length);
        QFETCH(QVariant, expected);
        SettableClock clock(QDate(2024, 6, 15));
        QCOMPARE(engine::parseJetDate(QStringView(text).left(length)), expected);
    }

    void threeDigitYearIsNoDate() { QVERIFY(!engine::parseJetDate(u"3/5/024").isValid()); }

    // A date and time as SQLite stores it: each field at its limits, a fraction of one to
    // three digits, and what is near that form but not it. An invalid date: no date is read;
    // an invalid time: a date alone.
    void isoTextAtItsLimits_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QDate>("date");
        QTest::addColumn<QTime>("time");

        const QDate day(2024, 3, 5);
        QTest::newRow("a date") << QByteArray("2024-03-05") << day << QTime();
        QTest::newRow("a nine in every place")
            << QByteArray("1999-09-29 19:59:09") << QDate(1999, 9, 29) << QTime(19, 59, 9);
        QTest::newRow("last second of a day")
            << QByteArray("2024-03-05 23:59:59") << day << QTime(23, 59, 59);
        QTest::newRow("midnight, T") << QByteArray("2024-03-05T00:00:00") << day << QTime(0, 0);
        QTest::newRow("tenths") << QByteArray("2024-03-05 12:00:00.5") << day << QTime(12, 0, 0, 500);
        QTest::newRow("hundredths") << QByteArray("2024-03-05 12:00:00.25") << day << QTime(12, 0, 0, 250);
        QTest::newRow("thousandths") << QByteArray("2024-03-05 12:00:00.125") << day << QTime(12, 0, 0, 125);
        QTest::newRow("hour 24") << QByteArray("2024-03-05 24:00:00") << QDate() << QTime();
        QTest::newRow("minute 60") << QByteArray("2024-03-05 12:60:00") << QDate() << QTime();
        QTest::newRow("second 60") << QByteArray("2024-03-05 12:00:60") << QDate() << QTime();
        QTest::newRow("four fraction digits") << QByteArray("2024-03-05 12:00:00.1255") << QDate() << QTime();
        QTest::newRow("a point alone") << QByteArray("2024-03-05 12:00:00.") << QDate() << QTime();
        QTest::newRow("a zone") << QByteArray("2024-03-05 12:00:00Z") << QDate() << QTime();
        QTest::newRow("no seconds") << QByteArray("2024-03-05 12:00") << QDate() << QTime();
        QTest::newRow("no such day") << QByteArray("2024-02-30") << QDate() << QTime();
        QTest::newRow("a day short") << QByteArray("2024-03-5") << QDate() << QTime();
        QTest::newRow("a letter") << QByteArray("2024-0a-05") << QDate() << QTime();
        QTest::newRow("a letter after a digit") << QByteArray("2024-03-1x") << QDate() << QTime();
        QTest::newRow("a letter in the minutes") << QByteArray("2024-03-05 12:3x:00") << QDate() << QTime();
        QTest::newRow("the character after 9") << QByteArray("202:-03-05") << QDate() << QTime();
        QTest::newRow("slashes") << QByteArray("2024/03/05") << QDate() << QTime();
    }

    void isoTextAtItsLimits()
    {
        QFETCH(QByteArray, text);
        QFETCH(QDate, date);
        QFETCH(QTime, time);
        qint64 julianDay = 0;
        int msecs = -1;
        bool hasTime = false;
        const bool read
            = engine::parseIsoBytes(text.constData(), std::size_t(text.size()), julianDay, msecs, hasTime);
        QCOMPARE(read, date.isValid());
        if (!read)
            return;
        QCOMPARE(QDate::fromJulianDay(julianDay), date);
        QCOMPARE(hasTime, time.isValid());
        QCOMPARE(msecs, time.isValid() ? time.msecsSinceStartOfDay() : 0);
    }

    // A character of three bytes in UTF-8 sorts by what it is, after the letters.
    void charactersOfThreeBytes()
    {
        QVERIFY(compareNames(QStringLiteral("€"), QStringLiteral("b")) > 0);
        QVERIFY(compareNames(QStringLiteral("b"), QStringLiteral("€")) < 0);
        QVERIFY(compareNames(QStringLiteral("„a"), QStringLiteral("„b")) < 0);
        // Read byte by byte, the euro sign would start with 0xE2 and sort before the sign of division.
        QVERIFY(compareNames(QStringLiteral("€"), QStringLiteral("÷")) > 0);
    }

    // Each letter folds onto its base letter for the order of names, small and capital
    // alike, but LIKE keeps the accent and ignores only the case.
    void lithuanianLetters_data()
    {
        QTest::addColumn<QString>("small");
        QTest::addColumn<QString>("capital");
        QTest::addColumn<QString>("base");

        QTest::newRow("ą") << "ą"
                           << "Ą"
                           << "a";
        QTest::newRow("č") << "č"
                           << "Č"
                           << "c";
        QTest::newRow("ę") << "ę"
                           << "Ę"
                           << "e";
        QTest::newRow("ė") << "ė"
                           << "Ė"
                           << "e";
        QTest::newRow("į") << "į"
                           << "Į"
                           << "i";
        QTest::newRow("š") << "š"
                           << "Š"
                           << "s";
        QTest::newRow("ų") << "ų"
                           << "Ų"
                           << "u";
        QTest::newRow("ū") << "ū"
                           << "Ū"
                           << "u";
        QTest::newRow("ž") << "ž"
                           << "Ž"
                           << "z";
    }

    void lithuanianLetters()
    {
        QFETCH(QString, small);
        QFETCH(QString, capital);
        QFETCH(QString, base);
        const QString baseCapital = base.toUpper();
        for (const QString& letter : {small, capital}) {
            // Folded, the letter is its base: the next letter decides.
            QVERIFY(compareNames(letter + u'a', base + u'b') < 0);
            QVERIFY(compareNames(base + u'b', letter + u'a') > 0);
            QVERIFY(compareNames(letter + u'b', baseCapital + u'a') > 0);
            // Equal when folded: a fixed order by the bytes, the plain letter first.
            QVERIFY(compareNames(letter, base) > 0);
            QVERIFY(compareNames(base, letter) < 0);
            QCOMPARE(compareNames(letter + u'x', letter + u'x'), 0);
        }
        QVERIFY(compareNames(small + u'a', capital + u'b') < 0);
        QVERIFY(compareNames(capital + u'a', small + u'b') < 0);

        QVERIFY(engine::likeMatches(small, capital));
        QVERIFY(engine::likeMatches(capital, small));
        QVERIFY(engine::likeMatches(capital + u'%', small + QStringLiteral("rūnas")));
        QVERIFY(engine::likeMatches(u'_' + small, u'x' + capital));
        QVERIFY(!engine::likeMatches(small, base));
        QVERIFY(!engine::likeMatches(base, small));
        QVERIFY(!engine::likeMatches(capital, baseCapital));
        QVERIFY(!engine::likeMatches(base + u'%', capital + u'a'));
        QCOMPARE(engine::foldCase(capital.at(0).unicode()), char32_t(small.at(0).unicode()));
    }

    // A comparison with its boundary value: each operator on equal, lower and higher values.
    void comparisonsAtEquality_data()
    {
        QTest::addColumn<QString>("criteria");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("matches");

        struct Kind
        {
            const char* name;
            QString constant;
            QVariant lower;
            QVariant equal;
            QVariant higher;
        };
        const Kind kinds[] = {
            {"whole", QStringLiteral("5"), 4, 5, 6},
            {"negative", QStringLiteral("-1"), -2, -1, 0},
            {"fraction", QStringLiteral("0.5"), 0.25, 0.5, 0.75},
            {"date", QStringLiteral("#3/5/2024#"), QDate(2024, 3, 4), QDate(2024, 3, 5), QDate(2024, 3, 6)},
            {"date and time", QStringLiteral("#3/5/2024 12:30 PM#"),
                QDateTime(QDate(2024, 3, 5), QTime(12, 29)), QDateTime(QDate(2024, 3, 5), QTime(12, 30)),
                QDateTime(QDate(2024, 3, 5), QTime(12, 31))},
            {"text", QStringLiteral("'Mėta'"), QStringLiteral("Mėlynė"), QStringLiteral("MĖTA"),
                QStringLiteral("Mėtos")},
        };
        struct Op
        {
            const char* op;
            bool lower;
            bool equal;
            bool higher;
        };
        const Op ops[] = {{"=", false, true, false}, {"<>", false, false, true}, {"<", true, false, false},
            {"<=", true, true, false}, {">", false, false, true}, {">=", false, true, true}};
        for (const Kind& kind : kinds) {
            for (const Op& op : ops) {
                const QString criteria = QStringLiteral("F ") + QLatin1String(op.op) + u' ' + kind.constant;
                const bool notEqual = QLatin1String(op.op) == QLatin1String("<>");
                QTest::addRow("%s %s lower", kind.name, op.op)
                    << criteria << kind.lower << (op.lower || notEqual);
                QTest::addRow("%s %s equal", kind.name, op.op) << criteria << kind.equal << op.equal;
                QTest::addRow("%s %s higher", kind.name, op.op) << criteria << kind.higher << op.higher;
            }
        }
        QTest::newRow("a date's midnight is the day")
            << "F >= #3/5/2024#" << QVariant(QDateTime(QDate(2024, 3, 5), QTime(0, 0))) << true;
        QTest::newRow("later that day is past it")
            << "F <= #3/5/2024#" << QVariant(QDateTime(QDate(2024, 3, 5), QTime(0, 0, 1))) << false;
        QTest::newRow("whole against fraction") << "F <= 5" << QVariant(5.0) << true;
        QTest::newRow("Null is never equal") << "F = 5" << QVariant() << false;
        QTest::newRow("Null is never unequal") << "F <> 5" << QVariant() << false;
        QTest::newRow("!= is <>, equal") << "F != 5" << QVariant(5) << false;
        QTest::newRow("!= is <>, higher") << "F != 5" << QVariant(6) << true;
        QTest::newRow("True is -1") << "F = True" << QVariant(-1) << true;
        QTest::newRow("False is 0") << "F >= False" << QVariant(0) << true;
        QTest::newRow("a plus sign") << "F = +5" << QVariant(5) << true;
        QTest::newRow("an exponent") << "F = 1e3" << QVariant(1000) << true;
        QTest::newRow("a field of a table") << "t.F = 5" << QVariant(5) << true;
        QTest::newRow("a date stored as text")
            << "F = #3/5/2024#" << QVariant(QStringLiteral("2024-03-05")) << true;
        QTest::newRow("a date Like its text") << "F Like '3/5/2024'" << QVariant(QDate(2024, 3, 5)) << true;
        QTest::newRow("a date Like a month") << "F Like '3/*'" << QVariant(QDate(2024, 3, 5)) << true;
        QTest::newRow("a date not Like a day") << "F Like '*/6/*'" << QVariant(QDate(2024, 3, 5)) << false;
        QTest::newRow("Not Like, matching") << "F Not Like 'M*'" << QVariant(QStringLiteral("Mėta")) << false;
        QTest::newRow("Not Like, other") << "F Not Like 'M*'" << QVariant(QStringLiteral("Zita")) << true;
    }

    void comparisonsAtEquality()
    {
        QFETCH(QString, criteria);
        QFETCH(QVariant, value);
        QFETCH(bool, matches);
        const auto parsed = engine::Criteria::parse(
            criteria, [](const QString& name) { return name == QLatin1String("F") ? 0 : -1; });
        QCOMPARE(parsed->matches([&value](int) { return value; }), matches);
    }

    // Null, whatever type a Null value carries, and nothing else is Null.
    void criteriaOnNull_data()
    {
        QTest::addColumn<QString>("criteria");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("matches");

        const QVariant nullNumber(QMetaType::fromType<int>());
        const QVariant nullText(QMetaType::fromType<QString>());
        QTest::newRow("no value") << "F Is Null" << QVariant() << true;
        QTest::newRow("a Null number") << "F Is Null" << nullNumber << true;
        QTest::newRow("a Null text") << "F Is Null" << nullText << true;
        QTest::newRow("zero") << "F Is Null" << QVariant(0) << false;
        QTest::newRow("empty text") << "F Is Null" << QVariant(QStringLiteral("")) << false;
        QTest::newRow("not Null, a Null number") << "F Is Not Null" << nullNumber << false;
        QTest::newRow("not Null, zero") << "F Is Not Null" << QVariant(0) << true;
        QTest::newRow("= Null") << "F = Null" << nullText << true;
        QTest::newRow("<> Null") << "F <> Null" << nullText << false;
        QTest::newRow("= Null, then a value") << "F = Null Or F = 5" << QVariant(5) << true;
        QTest::newRow("Like on a Null text") << "F Like '%'" << nullText << false;
        QTest::newRow("Not Like on a Null text") << "F Not Like 'x'" << nullText << false;
    }

    void criteriaOnNull()
    {
        QFETCH(QString, criteria);
        QFETCH(QVariant, value);
        QFETCH(bool, matches);
        const auto parsed = engine::Criteria::parse(
            criteria, [](const QString& name) { return name == QLatin1String("F") ? 0 : -1; });
        QCOMPARE(parsed->matches([&value](int) { return value; }), matches);
    }

    // What a filter that can't be read says, whole.
    void badFilters_data()
    {
        QTest::addColumn<QString>("criteria");
        QTest::addColumn<QString>("says");

        QTest::newRow("more after the end") << "F = 1 2"
                                            << "unexpected '2'";
        QTest::newRow("unclosed parenthesis") << "(F = 1 Or F = 2"
                                              << "a closing parenthesis is missing";
        QTest::newRow("a field alone") << "F"
                                       << "a comparison is missing";
        QTest::newRow("Is without Null") << "F Is 1"
                                         << "Is must be followed by Null or Not Null";
        QTest::newRow("Is Not without Null") << "F Is Not Empty"
                                             << "Is must be followed by Null or Not Null";
        QTest::newRow("no comparison") << "F Between 1 And 2"
                                       << "'Between' is no comparison";
        QTest::newRow("a point at the end") << "F."
                                            << "'.' is no comparison";
        QTest::newRow("nothing after And") << "F = 1 And"
                                           << "a field name is missing";
        QTest::newRow("a number for a field") << "5 = F"
                                              << "'5' is no field name";
        QTest::newRow("unknown field of a table") << "t.G = 1"
                                                  << "there is no field 'G'";
        QTest::newRow("no value") << "F ="
                                  << "a value is missing";
        QTest::newRow("a sign alone") << "F = -"
                                      << "a value is missing";
        QTest::newRow("two points") << "F = 1.2.3"
                                    << "'1.2.3' is no number";
        QTest::newRow("no such day") << "F = #2/30/2024#"
                                     << "'#2/30/2024#' is no date";
        QTest::newRow("a word") << "F = Yes"
                                << "'Yes' is no value";
    }

    void badFilters()
    {
        QFETCH(QString, criteria);
        QFETCH(QString, says);
        try {
            engine::Criteria::parse(
                criteria, [](const QString& name) { return name == QLatin1String("F") ? 0 : -1; });
            QFAIL("no error");
        } catch (const Error& error) {
            QCOMPARE(error.number(), engine::EngineError::InvalidArgument);
            QCOMPARE(error.description(),
                QStringLiteral("The filter \"") + criteria + QStringLiteral("\" can't be used: ") + says
                    + u'.');
        }
    }

    // The same through a recordset's Filter, on the rows of a register.
    void filterAtEquality_data()
    {
        QTest::addColumn<QString>("criteria");
        QTest::addColumn<QString>("expected");

        QTest::newRow("number <=") << "KategID <= 2"
                                   << "1,2";
        QTest::newRow("number >=") << "KategID >= 2"
                                   << "2,3";
        QTest::newRow("date <=") << "DokRegistracData <= #3/6/2024#"
                                 << "1,2";
        QTest::newRow("date >=") << "DokRegistracData >= #3/6/2024#"
                                 << "2,3";
        QTest::newRow("text <=") << "DokAntraste <= 'ėglė'"
                                 << "1,2";
        QTest::newRow("text >=") << "DokAntraste >= 'ĖGLĖ'"
                                 << "2,3";
    }

    void filterAtEquality()
    {
        QFETCH(QString, criteria);
        QFETCH(QString, expected);
        EngineRegister reg;
        reg.execute(
            QStringLiteral("INSERT INTO tbl_Documents (RastasID, KategID, DokRegistracData, DokAntraste) "
                           "VALUES (1, 1, #3/5/2024#, 'Eglė'), (2, 2, #3/6/2024#, 'Ėglė'), "
                           "(3, 3, #3/7/2024#, 'Ėglės')"));
        Recordset recordset;
        recordset.open(QStringLiteral("SELECT * FROM tbl_Documents ORDER BY RastasID"), reg.connection());
        recordset.setFilter(criteria);
        QCOMPARE(rows(recordset, {QStringLiteral("RastasID")}).join(u','), expected);
    }

    // A whole number read is an int while it fits one, and 64 bits past either end.
    void wholeNumbersAtTheLimitsOfInt_data()
    {
        QTest::addColumn<qint64>("number");
        QTest::addColumn<int>("type");
        QTest::newRow("below the least") << Q_INT64_C(-2147483649) << int(QMetaType::LongLong);
        QTest::newRow("the least") << Q_INT64_C(-2147483648) << int(QMetaType::Int);
        QTest::newRow("the greatest") << Q_INT64_C(2147483647) << int(QMetaType::Int);
        QTest::newRow("above the greatest") << Q_INT64_C(2147483648) << int(QMetaType::LongLong);
    }

    void wholeNumbersAtTheLimitsOfInt()
    {
        QFETCH(qint64, number);
        QFETCH(int, type);
        EngineRegister reg;
        if (reg.onServer())
            QSKIP("a server gives each number the type of its column");
        const QVariant read = reg.scalar(QStringLiteral("SELECT ") + QString::number(number));
        QCOMPARE(read.typeId(), type);
        QCOMPARE(read.toLongLong(), number);

        // Typed into a whole-number field, the number is kept whole.
        reg.execute(QStringLiteral("CREATE TABLE numbers (id INTEGER PRIMARY KEY, n INTEGER)"));
        reg.execute(QStringLiteral("INSERT INTO numbers (n) VALUES (0)"));
        Recordset recordset;
        recordset.open(QStringLiteral("SELECT id, n FROM numbers"), reg.connection(), CursorTypeEnum::Static,
            LockTypeEnum::Optimistic);
        recordset.fields(QStringLiteral("n")).setValue(QString::number(number));
        QCOMPARE(recordset.fields(QStringLiteral("n")).value().typeId(), type);
        recordset.update();
        QCOMPARE(reg.scalar(QStringLiteral("SELECT n FROM numbers")).toLongLong(), number);
    }
};

QTEST_GUILESS_MAIN(BoundariesTest)

#include "tst_boundaries.moc"
