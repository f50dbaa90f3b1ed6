#include "base/Error.h"
#include "registration/ValueConversions.h"

#include <QTest>

#include <functional>

using namespace kartella;

namespace {

using Conversion = std::function<QString(const QVariant&)>;

} // namespace

Q_DECLARE_METATYPE(Conversion)

namespace {

// What the conversion gives, as text, or the error's number and words.
QString outcome(const Conversion& convert, const QVariant& value)
{
    try {
        return convert(value);
    } catch (const Error& error) {
        return QString::number(error.number()) + u' ' + error.description();
    }
}

const QString Mismatch = QString::number(ErrorNumber::TypeMismatch) + QStringLiteral(" Type mismatch: ");
const QString Overflow = QString::number(ErrorNumber::Overflow) + QStringLiteral(" Overflow: ");

} // namespace

class ValueConversionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The options' and the register's values read as the program reads them, at the ends of
    // their ranges, and the words of each refusal.
    void conversions_data()
    {
        QTest::addColumn<Conversion>("convert");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("expected");
        const Conversion date
            = [](const QVariant& v) { return toStoredDate(v.toString()).toString(Qt::ISODate); };
        const Conversion truth
            = [](const QVariant& v) { return QString(toTruthValue(v.toString()) ? "yes" : "no"); };
        const Conversion int16 = [](const QVariant& v) { return QString::number(toInteger16(v.toString())); };
        const Conversion toLongText = [](const QVariant& v) { return QString::number(toLong(v)); };
        const Conversion leading
            = [](const QVariant& v) { return QString::number(leadingInteger16(v.toString())); };
        const Conversion signPlace = [](const QVariant& v) { return numberWithSignPlace(v.toLongLong()); };

        QTest::newRow("date with zeros") << date << QVariant("2024 03 05") << "2024-03-05";
        QTest::newRow("date without") << date << QVariant(" 2024 3 5 ") << "2024-03-05";
        QTest::newRow("no date") << date << QVariant("5.3.2024") << Mismatch + "\"5.3.2024\" isn't a date";
        QTest::newRow("truth -0.5") << truth << QVariant("-0.5") << "yes";
        QTest::newRow("truth 0") << truth << QVariant("0") << "no";
        QTest::newRow("truth word") << truth << QVariant(" false ") << "no";
        QTest::newRow("no truth") << truth << QVariant("maybe") << Mismatch + "\"maybe\" isn't a truth value";
        QTest::newRow("int16 top") << int16 << QVariant("32767") << "32767";
        QTest::newRow("int16 past") << int16 << QVariant("32768") << Overflow + "\"32768\" is out of range";
        QTest::newRow("int16 text") << int16 << QVariant("x1") << Mismatch + "\"x1\" isn't a number";
        QTest::newRow("long of text") << toLongText << QVariant("12") << "12";
        QTest::newRow("long rounded") << toLongText << QVariant(2.6) << "3";
        QTest::newRow("long of nothing") << toLongText << QVariant() << Mismatch + "the value is empty";
        QTest::newRow("long of an empty text")
            << toLongText << QVariant(QString()) << Mismatch + "\"\" isn't a number";
        QTest::newRow("long of a null")
            << toLongText << QVariant::fromValue(nullptr) << Mismatch + "the value is empty";
        QTest::newRow("long of words")
            << toLongText << QVariant("abc") << Mismatch + "\"abc\" isn't a number";
        QTest::newRow("long of a date")
            << toLongText << QVariant(QDate(2024, 3, 5)) << Mismatch + "the value isn't a number";
        QTest::newRow("long past") << toLongText << QVariant(3e10)
                                   << Overflow + "30000000000 is out of range";
        QTest::newRow("leading digits") << leading << QVariant(" \t12abc") << "12";
        QTest::newRow("leading minus") << leading << QVariant("-3") << "-3";
        QTest::newRow("leading plus") << leading << QVariant("+7") << "7";
        QTest::newRow("leading none") << leading << QVariant("abc") << "0";
        QTest::newRow("leading sign twice") << leading << QVariant("--5") << "0";
        QTest::newRow("leading bottom") << leading << QVariant("-32768") << "-32768";
        QTest::newRow("leading below")
            << leading << QVariant("-32769") << Overflow + "\"-32769\" is out of range";
        QTest::newRow("leading other digits") << leading << QVariant(QString::fromUtf8("١٢")) << "0";
        QTest::newRow("sign place of 0") << signPlace << QVariant(0) << " 0";
        QTest::newRow("sign place of -1") << signPlace << QVariant(-1) << "-1";
    }

    void conversions()
    {
        QFETCH(Conversion, convert);
        QFETCH(QVariant, value);
        QFETCH(QString, expected);
        QCOMPARE(outcome(convert, value), expected);
    }
};

QTEST_GUILESS_MAIN(ValueConversionsTest)
#include "tst_value_conversions.moc"
