#include "EngineFixture.h"
#include "store/engine/JetDialect.h"
#include "store/engine/Recordset.h"
#include "store/engine/SqlLexer.h"
#include "store/engine/SqlText.h"

#include <QLocale>
#include <QTest>

using namespace kartella;
using namespace kartella::test;

namespace {

// Each token of the first length characters of text as kind:text, "_" for blanks; a
// string or quoted name also gives its text without the quotes, after "=".
QStringList tokens(const QString& text, int length)
{
    const QStringView part = QStringView(text).left(length);
    QStringList found;
    for (const engine::SqlToken& token : engine::tokenizeSql(part)) {
        QString shown
            = QString(QStringLiteral("_WNSQDP").at(int(token.kind))) + u':' + text.mid(token.pos, token.len);
        if (token.kind == engine::SqlToken::String || token.kind == engine::SqlToken::Quoted)
            shown += u'=' + engine::unquotedText(part, token);
        found << shown;
    }
    return found;
}

} // namespace

class DialectTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The tokens of a statement; read from a part of a longer text, they end at the
    // part's end, whatever follows it.
    void tokens_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("length");
        QTest::addColumn<QStringList>("expected");

        QTest::newRow("names") << "_a b$1 Mid$(x)" << 14
                               << QStringList {"W:_a", "_: ", "W:b$1", "_: ", "W:Mid$", "P:(", "W:x", "P:)"};
        QTest::newRow("numbers") << "1 2.5 .5 1e3 1E-3 2e+4 3e t.c" << 29
                                 << QStringList {"N:1", "_: ", "N:2.5", "_: ", "N:.5", "_: ", "N:1e3",
                                        "_: ", "N:1E-3", "_: ", "N:2e+4", "_: ", "N:3", "W:e", "_: ", "W:t",
                                        "P:.", "W:c"};
        QTest::newRow("operators") << "<> <= >= != || =< !|" << 20
                                   << QStringList {"P:<>",
                                          "_: ", "P:<=", "_: ", "P:>=", "_: ", "P:!=", "_: ", "P:||",
                                          "_: ", "P:=", "P:<", "_: ", "P:!", "P:|"};
        QTest::newRow("quotes") << "'O''Brien' \"a\"\"b\" `c` [d e] 'open" << 33
                                << QStringList {"S:'O''Brien'=O'Brien", "_: ", "Q:\"a\"\"b\"=a\"b",
                                       "_: ", "Q:`c`=c", "_: ", "Q:[d e]=d e", "_: ", "S:'open=open"};
        QTest::newRow("a quote alone") << "x '" << 3 << QStringList {"W:x", "_: ", "S:'="};
        // Only quotes and double quotes stand for themselves doubled: a bracket or a backtick ends
        // its name at once.
        QTest::newRow("closing marks doubled") << "[a]]`b``" << 8
                                               << QStringList {
                                                      "Q:[a]=a",
                                                      "P:]",
                                                      "Q:`b`=b",
                                                      "Q:`=",
                                                  };
        QTest::newRow("dates") << "#1/2/2024# # 'a#' #\n#" << 21
                               << QStringList {"D:#1/2/2024#", "_: ", "P:#", "_: ", "S:'a#'=a#", "_: ", "P:#",
                                      "_:\n", "P:#"};

        QTest::newRow("part: blanks") << "a  b" << 2 << QStringList {"W:a", "_: "};
        QTest::newRow("part: a number") << "12" << 1 << QStringList {"N:1"};
        QTest::newRow("part: a fraction") << "1.5" << 2 << QStringList {"N:1."};
        QTest::newRow("part: an exponent") << "1e5" << 2 << QStringList {"N:1", "W:e"};
        QTest::newRow("part: an exponent's sign") << "1e-5" << 3 << QStringList {"N:1", "W:e", "P:-"};
        QTest::newRow("part: a point") << ".5" << 1 << QStringList {"P:."};
        QTest::newRow("part: a name") << "ab" << 1 << QStringList {"W:a"};
        QTest::newRow("part: an operator") << "<>" << 1 << QStringList {"P:<"};
        QTest::newRow("part: a string") << "'a'" << 2 << QStringList {"S:'a=a"};
        QTest::newRow("part: a date")
            << "#1/2/2024#" << 9 << QStringList {"P:#", "N:1", "P:/", "N:2", "P:/", "N:2024"};
    }

    void tokens()
    {
        QFETCH(QString, text);
        QFETCH(int, length);
        QFETCH(QStringList, expected);
        QCOMPARE(::tokens(text, length), expected);
    }

    void translation_data()
    {
        QTest::addColumn<QString>("jet");
        QTest::addColumn<QString>("sqlite");

        QTest::newRow("date range")
            << "SELECT * FROM t WHERE d between #3/1/2024# and #4/12/2024# ORDER BY d"
            << "SELECT * FROM t WHERE d between '2024-03-01' and '2024-04-12' ORDER BY d";
        QTest::newRow("date with time") << "SELECT 1 WHERE d = #12/31/2023 14:05:09#"
                                        << "SELECT 1 WHERE d = '2023-12-31 14:05:09'";
        QTest::newRow("date with PM") << "SELECT 1 WHERE d < #1/2/2024 2:30 PM#"
                                      << "SELECT 1 WHERE d < '2024-01-02 14:30:00'";
        QTest::newRow("ISO date") << "SELECT 1 WHERE d = #2024-03-05#"
                                  << "SELECT 1 WHERE d = '2024-03-05'";
        QTest::newRow("delete star")
            << "DELETE tbl_Documents.* FROM tbl_Documents WHERE tbl_Documents.RastasID=5"
            << "DELETE FROM tbl_Documents WHERE tbl_Documents.RastasID=5";
        QTest::newRow("delete field list")
            << "DELETE tbl_Sub_Categories.*, tbl_Sub_Categories.KategID, tbl_Sub_Categories.DokSubKategorija "
               "From "
               "tbl_Sub_Categories WHERE (tbl_Sub_Categories.DokSubKategorija Is Null) OR KategID=0;"
            << "DELETE From tbl_Sub_Categories WHERE (tbl_Sub_Categories.DokSubKategorija Is Null) OR "
               "KategID=0";
        QTest::newRow("plain delete") << "DELETE FROM t WHERE a=1"
                                      << "DELETE FROM t WHERE a=1";
        QTest::newRow("update qualified")
            << "UPDATE tbl_Documents SET tbl_Documents.RastoKel = '/a/b.doc' WHERE "
               "(((tbl_Documents.RastasID)=3));"
            << "UPDATE tbl_Documents SET RastoKel = '/a/b.doc' WHERE (((tbl_Documents.RastasID)=3))";
        QTest::newRow("update several") << "UPDATE t SET t.a = 1, `t`.b=(2), c = t.a WHERE t.a = 0"
                                        << "UPDATE t SET a = 1, b=(2), c = t.a WHERE t.a = 0";
        QTest::newRow("backticks") << "SELECT * FROM `qry_Phones`"
                                   << "SELECT * FROM \"qry_Phones\"";
        QTest::newRow("semicolon and blanks") << "SELECT 1;  \r\n"
                                              << "SELECT 1";
        QTest::newRow("semicolons alone") << ";"
                                          << "";
        QTest::newRow("nothing") << ""
                                 << "";
        QTest::newRow("blanks") << " \r\n"
                                << "";
        QTest::newRow("literal untouched")
            << "UPDATE t SET t.a = 'x #3/1/2024# `q` t.b = 1;' WHERE b = 'DELETE t.* FROM'"
            << "UPDATE t SET a = 'x #3/1/2024# `q` t.b = 1;' WHERE b = 'DELETE t.* FROM'";
        QTest::newRow("quote in literal") << "SELECT 1 WHERE FullName <> '\"' AND n = 'O''Brien #1/1/2000#'"
                                          << "SELECT 1 WHERE FullName <> '\"' AND n = 'O''Brien #1/1/2000#'";
        QTest::newRow("right join")
            << "SELECT tbl_Documents.RastasID, tbl_Contacts.FullName FROM tbl_Contacts RIGHT JOIN "
               "tbl_Documents ON "
               "tbl_Contacts.ContactID = tbl_Documents.ContactID WHERE tbl_Documents.KategID=7 ORDER BY 1"
            << "SELECT tbl_Documents.RastasID, tbl_Contacts.FullName FROM tbl_Documents LEFT JOIN "
               "tbl_Contacts ON "
               "tbl_Contacts.ContactID = tbl_Documents.ContactID WHERE tbl_Documents.KategID=7 ORDER BY 1";
        QTest::newRow("right join of a join")
            << "SELECT a.x, count(*) FROM `a` RIGHT OUTER JOIN (b INNER JOIN c ON b.k=c.k) ON a.i=c.i"
            << "SELECT a.x, count(*) FROM (b INNER JOIN c ON b.k=c.k) LEFT JOIN \"a\" ON a.i=c.i";
        QTest::newRow("right join with star") << "SELECT * FROM a RIGHT JOIN b ON a.i=b.i"
                                              << "SELECT * FROM a RIGHT JOIN b ON a.i=b.i";
        QTest::newRow("right join before a set operation")
            << "SELECT a.x, b.y FROM a RIGHT JOIN b ON a.i=b.i EXCEPT SELECT p, q FROM r"
            << "SELECT a.x, b.y FROM b LEFT JOIN a ON a.i=b.i EXCEPT SELECT p, q FROM r";
        QTest::newRow("right join, a condition, a set operation")
            << "SELECT a.x, b.y FROM a RIGHT JOIN b ON a.i=b.i WHERE a.x=1 INTERSECT SELECT p, q FROM r"
            << "SELECT a.x, b.y FROM b LEFT JOIN a ON a.i=b.i WHERE a.x=1 INTERSECT SELECT p, q FROM r";
        QTest::newRow("right join, grouped by two")
            << "SELECT a.x, b.y FROM a RIGHT JOIN b ON a.i=b.i GROUP BY a.x, b.y"
            << "SELECT a.x, b.y FROM b LEFT JOIN a ON a.i=b.i GROUP BY a.x, b.y";
        QTest::newRow("right join, ordered by two")
            << "SELECT a.x, b.y FROM a RIGHT JOIN b ON a.i=b.i ORDER BY 1, 2"
            << "SELECT a.x, b.y FROM b LEFT JOIN a ON a.i=b.i ORDER BY 1, 2";
        QTest::newRow("right join among joins")
            << "SELECT a.x FROM a RIGHT JOIN b ON a.i=b.i LEFT JOIN c ON c.i=b.i"
            << "SELECT a.x FROM a RIGHT JOIN b ON a.i=b.i LEFT JOIN c ON c.i=b.i";
        QTest::newRow("names ordered")
            << "SELECT ContactID, FullName AS FN FROM tbl_Contacts WHERE FullName <> '\"' ORDER BY FullName;"
            << "SELECT ContactID, FullName AS FN FROM tbl_Contacts WHERE FullName <> '\"' ORDER BY FullName "
               "COLLATE NAMEFOLD";
        QTest::newRow("qualified names, several terms")
            << "SELECT a FROM t ORDER BY tbl_Document_Categories.DokKategorija DESC, `CompanyName`, x, "
               "t.DokSubKategorija"
            << "SELECT a FROM t ORDER BY tbl_Document_Categories.DokKategorija COLLATE NAMEFOLD DESC, "
               "\"CompanyName\" COLLATE NAMEFOLD, x, t.DokSubKategorija COLLATE NAMEFOLD";
        QTest::newRow("name terms before each ending of a term")
            << "SELECT a FROM t WHERE k IN (SELECT k FROM c ORDER BY DokKategorija) ORDER BY FullName ASC, "
               "CompanyName NULLS LAST, DokSubKategorija LIMIT 2"
            << "SELECT a FROM t WHERE k IN (SELECT k FROM c ORDER BY DokKategorija COLLATE NAMEFOLD) ORDER "
               "BY "
               "FullName COLLATE NAMEFOLD ASC, CompanyName COLLATE NAMEFOLD NULLS LAST, DokSubKategorija "
               "COLLATE "
               "NAMEFOLD LIMIT 2";
        // A name that qualifies another, or has its own collation, is left as it is.
        QTest::newRow("name as a qualifier or collated")
            << "SELECT 1 FROM c AS FullName WHERE 'B' > FullName.FullName AND 'C' > FullName COLLATE NOCASE"
            << "SELECT 1 FROM c AS FullName WHERE 'B' > FullName.FullName COLLATE NAMEFOLD AND 'C' > "
               "FullName "
               "COLLATE NOCASE";
        QTest::newRow("names compared") << "DELETE t.* FROM t WHERE FullName >= 'A' AND 'B' > t.FullName AND "
                                           "DokKategorija BETWEEN 'a' AND 'b'"
                                        << "DELETE FROM t WHERE FullName COLLATE NAMEFOLD >= 'A' AND 'B' > "
                                           "t.FullName COLLATE NAMEFOLD AND "
                                           "DokKategorija COLLATE NAMEFOLD BETWEEN 'a' AND 'b'";
        QTest::newRow("names in a subquery, expression or set list")
            << "UPDATE t SET FullName = 'x' WHERE k IN (SELECT k FROM c ORDER BY FullName LIMIT 1) "
               "AND upper(FullName) < 'M' ORDER BY FullName || 'x'"
            << "UPDATE t SET FullName = 'x' WHERE k IN (SELECT k FROM c ORDER BY FullName COLLATE NAMEFOLD "
               "LIMIT 1) AND upper(FullName) < 'M' ORDER BY FullName || 'x'";
        QTest::newRow("names left alone") << "SELECT FullName, CompanyName FROM t GROUP BY FullName ORDER BY "
                                             "FullName COLLATE NOCASE, 2"
                                          << "SELECT FullName, CompanyName FROM t GROUP BY FullName ORDER BY "
                                             "FullName COLLATE NOCASE, 2";
        QTest::newRow("schema statements untouched")
            << "CREATE VIEW v AS SELECT FullName FROM t ORDER BY FullName"
            << "CREATE VIEW v AS SELECT FullName FROM t ORDER BY FullName";
        QTest::newRow("not a date") << "SELECT '#' || x, #abc# FROM t"
                                    << "SELECT '#' || x, #abc# FROM t";
    }

    void translation()
    {
        QFETCH(QString, jet);
        QFETCH(QString, sqlite);
        QCOMPARE(engine::translateJetToSqlite(jet), sqlite);
    }

    // The same statements for PostgreSQL, whose register declares its names in mixed case.
    void serverTranslation_data()
    {
        QTest::addColumn<QString>("jet");
        QTest::addColumn<QString>("server");

        QTest::newRow("names in any case")
            << "SELECT tbl_documents.rastasid, DokAntraste FROM TBL_Documents WHERE `KategID` = 7"
            << "SELECT \"tbl_Documents\".\"RastasID\", \"DokAntraste\" FROM \"tbl_Documents\" WHERE "
               "\"KategID\" = 7";
        QTest::newRow("bracketed and unknown names")
            << "SELECT [FullName], other FROM tbl_Contacts t WHERE t.ContactID = 1"
            << "SELECT \"FullName\", other FROM \"tbl_Contacts\" t WHERE t.\"ContactID\" = 1";
        QTest::newRow("aliases kept as written")
            << "SELECT COUNT(*) AS N, max(RastasID) AS Top FROM tbl_Documents ORDER BY n"
            << "SELECT COUNT(*) AS \"N\", max(\"RastasID\") AS \"Top\" FROM \"tbl_Documents\" ORDER BY \"N\" "
               "NULLS FIRST";
        QTest::newRow("functions and casts")
            << "SELECT lower(FullName), CAST(KategID AS text) FROM tbl_Contacts"
            << "SELECT lower(\"FullName\"), CAST(\"KategID\" AS text) FROM \"tbl_Contacts\"";
        QTest::newRow("a function named as a column")
            << "SELECT Title (FullName), Title FROM tbl_Contacts"
            << "SELECT Title (\"FullName\"), \"Title\" FROM \"tbl_Contacts\"";
        QTest::newRow("insert into a table")
            << "INSERT INTO tbl_Contacts (FullName) VALUES ('FullName')"
            << "INSERT INTO \"tbl_Contacts\" (\"FullName\") VALUES ('FullName')";
        QTest::newRow("dates typed")
            << "SELECT 1 WHERE DokRegistracData between #3/1/2024# and #3/5/2024 14:00#"
            << "SELECT 1 WHERE \"DokRegistracData\" between DATE '2024-03-01' and "
               "TIMESTAMP '2024-03-05 14:00:00'";
        QTest::newRow("like")
            << "SELECT 1 FROM tbl_Contacts WHERE FullName Like 'a\\%' AND Title NOT LIKE '%' || Dear || '_'"
            << "SELECT 1 FROM \"tbl_Contacts\" WHERE \"FullName\" ILIKE 'a\\%' ESCAPE '' AND "
               "\"Title\" NOT ILIKE '%' || \"Dear\" || '_' ESCAPE ''";
        QTest::newRow("like a call and a parenthesis") << "SELECT 1 FROM tbl_Contacts WHERE FullName LIKE "
                                                          "lower(Title) || '%' AND Dear LIKE ('a' || Title)"
                                                       << "SELECT 1 FROM \"tbl_Contacts\" WHERE \"FullName\" "
                                                          "ILIKE lower(\"Title\") || '%' ESCAPE '' AND "
                                                          "\"Dear\" ILIKE ('a' || \"Title\") ESCAPE ''";
        QTest::newRow("like a qualified name")
            << "SELECT 1 FROM tbl_Contacts WHERE FullName LIKE tbl_Contacts.Title || '%'"
            << "SELECT 1 FROM \"tbl_Contacts\" WHERE \"FullName\" ILIKE \"tbl_Contacts\".\"Title\" || '%' "
               "ESCAPE ''";
        QTest::newRow("like a signed value") << "SELECT 1 WHERE Title LIKE -1"
                                             << "SELECT 1 WHERE \"Title\" ILIKE -1 ESCAPE ''";
        QTest::newRow("like with its escape") << "SELECT 1 WHERE FullName LIKE '50!%' ESCAPE '!'"
                                              << "SELECT 1 WHERE \"FullName\" ILIKE '50!%' ESCAPE '!'";
        QTest::newRow("name order")
            << "DELETE tbl_Contacts.* FROM tbl_Contacts WHERE FullName < 'B' ORDER BY FullName"
            << "DELETE FROM \"tbl_Contacts\" WHERE \"FullName\" COLLATE NAMEFOLD < 'B' ORDER BY \"FullName\" "
               "COLLATE NAMEFOLD NULLS FIRST";
        QTest::newRow("null first as in Jet")
            << "SELECT (SELECT max(Title) FROM tbl_Contacts ORDER BY Dear DESC LIMIT 1) AS T FROM "
               "tbl_Documents "
               "ORDER BY KategID, DokRegistracData DESC, RastasID NULLS LAST, lower(DokAntraste) ASC"
            << "SELECT (SELECT max(\"Title\") FROM \"tbl_Contacts\" ORDER BY \"Dear\" DESC NULLS LAST LIMIT "
               "1) AS "
               "\"T\" FROM \"tbl_Documents\" ORDER BY \"KategID\" NULLS FIRST, \"DokRegistracData\" DESC "
               "NULLS LAST, "
               "\"RastasID\" NULLS LAST, lower(\"DokAntraste\") ASC NULLS FIRST";
        QTest::newRow("order ended by a parenthesis")
            << "SELECT RastasID FROM tbl_Documents WHERE KategID IN (SELECT KategID FROM tbl_Documents ORDER "
               "BY "
               "KategID DESC)"
            << "SELECT \"RastasID\" FROM \"tbl_Documents\" WHERE \"KategID\" IN (SELECT \"KategID\" FROM "
               "\"tbl_Documents\" ORDER BY \"KategID\" DESC NULLS LAST)";
        QTest::newRow("order by a call last")
            << "SELECT RastasID FROM tbl_Documents ORDER BY lower(DokAntraste)"
            << "SELECT \"RastasID\" FROM \"tbl_Documents\" ORDER BY lower(\"DokAntraste\") NULLS FIRST";
        QTest::newRow("ordered rows of a subquery")
            << "SELECT n FROM (SELECT KategID AS n FROM tbl_Documents ORDER BY KategID) AS t"
            << "SELECT \"n\" FROM (SELECT \"KategID\" AS \"n\" FROM \"tbl_Documents\" ORDER BY \"KategID\" "
               "NULLS "
               "FIRST) AS \"t\"";
        QTest::newRow("order before OFFSET")
            << "SELECT RastasID FROM tbl_Documents ORDER BY KategID OFFSET 2"
            << "SELECT \"RastasID\" FROM \"tbl_Documents\" ORDER BY \"KategID\" NULLS FIRST OFFSET 2";
        QTest::newRow("order before FOR UPDATE")
            << "SELECT RastasID FROM tbl_Documents ORDER BY KategID DESC FOR UPDATE"
            << "SELECT \"RastasID\" FROM \"tbl_Documents\" ORDER BY \"KategID\" DESC NULLS LAST FOR UPDATE";
        // A set operation after an ORDER BY ends its last term and the ORDER BY, whatever the
        // server makes of it: the names listed after it are no terms to order by.
        for (const char* operation : {"UNION", "EXCEPT", "INTERSECT"}) {
            QTest::addRow("order before %s", operation)
                << QStringLiteral(
                       "SELECT RastasID FROM tbl_Documents ORDER BY KategID %1 SELECT 1, FullName, 2 "
                       "FROM tbl_Contacts")
                       .arg(operation)
                << QStringLiteral(
                       "SELECT \"RastasID\" FROM \"tbl_Documents\" ORDER BY \"KategID\" NULLS FIRST %1 "
                       "SELECT 1, \"FullName\", 2 FROM \"tbl_Contacts\"")
                       .arg(operation);
        }
        QTest::newRow("a connection's own tables")
            << "INSERT INTO temp.found (RastasID) SELECT RastasID FROM tbl_Documents WHERE RastasID IN "
               "(SELECT RastasID FROM TEMP.found) AND temp = 1"
            << "INSERT INTO pg_temp.found (\"RastasID\") SELECT \"RastasID\" FROM \"tbl_Documents\" WHERE "
               "\"RastasID\" IN (SELECT \"RastasID\" FROM pg_temp.found) AND temp = 1";
        QTest::newRow("schema statements as they stand") << "CREATE TABLE strict (id integer, FullName text);"
                                                         << "CREATE TABLE strict (id integer, FullName text)";
    }

    void serverTranslation()
    {
        QFETCH(QString, jet);
        QFETCH(QString, server);
        engine::ServerNames names;
        for (const char* name : {"tbl_Documents", "tbl_Contacts", "RastasID", "DokAntraste", "KategID",
                 "FullName", "ContactID", "DokRegistracData", "Title", "Dear"})
            names.insert(QString::fromLatin1(name).toLower(), QString::fromLatin1(name));
        QCOMPARE(engine::translateJetToPostgres(jet, names), server);
    }

    void dateLiteralIsMonthFirstInAnyLocale()
    {
        const QLocale previous;
        QLocale::setDefault(QLocale(QStringLiteral("lt_LT")));
        const QString translated = engine::translateJetToSqlite(QStringLiteral("SELECT #3/5/2024#"));
        QLocale::setDefault(previous);
        QCOMPARE(translated, QStringLiteral("SELECT '2024-03-05'"));
    }

    // Like: wildcards, case of every letter, accents kept.
    void like_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QStringList>("names");

        QTest::newRow("š%") << "š%" << QStringList {"šilas", "Šarūnas"};
        QTest::newRow("Š%") << "Š%" << QStringList {"šilas", "Šarūnas"};
        QTest::newRow("s%") << "s%" << QStringList {"Saulius", "sąžinė"};
        QTest::newRow("%ŪN%") << "%ŪN%" << QStringList {"Šarūnas"};
        QTest::newRow("ą_uolas") << "ą_uolas" << QStringList {"Ąžuolas"};
        QTest::newRow("exact, other case") << "ĄŽUOLAS" << QStringList {"Ąžuolas"};
        QTest::newRow("cyrillic and greek") << "жук%" << QStringList {"ЖУКОВ", "Жуков"};
        QTest::newRow("german") << "ÜBER" << QStringList {"über"};
        QTest::newRow("nothing") << "x%" << QStringList {};
        QTest::newRow("percent first") << "%S" << QStringList {"Saulius", "Šarūnas", "šilas", "Ąžuolas"};
        QTest::newRow("percent inside") << "s%s" << QStringList {"Saulius"};
    }

    void like()
    {
        QFETCH(QString, pattern);
        QFETCH(QStringList, names);
        EngineRegister reg;
        reg.execute(
            QStringLiteral("INSERT INTO tbl_Contacts (FullName) VALUES ('Šarūnas'), ('šilas'), ('Saulius'), "
                           "('Ąžuolas'), ('sąžinė'), ('ЖУКОВ'), ('Жуков'), ('über'), (Null)"));
        Recordset recordset;
        recordset.open(QStringLiteral("SELECT FullName FROM tbl_Contacts WHERE FullName Like '") + pattern
                + QStringLiteral("' ORDER BY ContactID"),
            reg.connection());
        QStringList found = rows(recordset, {QStringLiteral("FullName")});
        found.sort();
        names.sort();
        QCOMPARE(found, names);
    }

    void likeEscape()
    {
        EngineRegister reg;
        QCOMPARE(reg.scalar(QStringLiteral("SELECT '50%' LIKE '50!%' ESCAPE '!'")).toInt(), 1);
        QCOMPARE(reg.scalar(QStringLiteral("SELECT '500' LIKE '50!%' ESCAPE '!'")).toInt(), 0);
        // With an escape, letters fold as they do without one.
        QCOMPARE(reg.scalar(QStringLiteral("SELECT 'šilas 50%' LIKE 'ŠILAS 50!%' ESCAPE '!'")).toInt(), 1);
        QCOMPARE(reg.scalar(QStringLiteral("SELECT '' LIKE '%'")).toInt(), 1);
        QVERIFY(isNull(reg.scalar(QStringLiteral("SELECT NULL LIKE '%'"))));
    }

    // A text put into Like stands for itself: %, _ and \ match only themselves, a quote is
    // doubled, and only the match asked for adds a wildcard.
    void likeTextStandsForItself_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<LikeMatch>("match");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("found");

        QTest::newRow("percent, whole") << "50%" << LikeMatch::Whole << "'50\\%' ESCAPE '\\'"
                                        << "50%";
        QTest::newRow("percent, start") << "50%" << LikeMatch::Start << "'50\\%%' ESCAPE '\\'"
                                        << "50%,50% off";
        QTest::newRow("percent, anywhere") << "50%" << LikeMatch::Anywhere << "'%50\\%%' ESCAPE '\\'"
                                           << "50%,50% off,x50%y";
        QTest::newRow("underscore") << "a_b" << LikeMatch::Whole << "'a\\_b' ESCAPE '\\'"
                                    << "a_b";
        QTest::newRow("backslash") << "a\\b" << LikeMatch::Whole << "'a\\\\b' ESCAPE '\\'"
                                   << "a\\b";
        QTest::newRow("quote, other case") << "o'brien" << LikeMatch::Start << "'o''brien%' ESCAPE '\\'"
                                           << "O'Brien,o'brien jr";
    }

    void likeTextStandsForItself()
    {
        QFETCH(QString, text);
        QFETCH(LikeMatch, match);
        QFETCH(QString, pattern);
        QFETCH(QString, found);
        QCOMPARE(sqlLikeText(text, match), pattern);
        EngineRegister reg;
        for (const char* name :
            {"50%", "500", "50% off", "x50%y", "a_b", "axb", "a\\b", "ab", "O'Brien", "o'brien jr"})
            reg.execute(QStringLiteral("INSERT INTO tbl_Contacts (FullName) VALUES (")
                + sqlString(QString::fromUtf8(name)) + u')');
        QCOMPARE(reg.joined(QStringLiteral("SELECT FullName FROM tbl_Contacts WHERE FullName Like ") + pattern
                     + QStringLiteral(" ORDER BY ContactID")),
            found);
    }

    void nameOrder()
    {
        EngineRegister reg;
        reg.execute(
            QStringLiteral("INSERT INTO tbl_Contacts (FullName) VALUES ('Benas'), ('Yla'), ('Ąžuolas'), "
                           "('antanas'), ('Žygimantas'), ('Antanas'), ('Zita'), ('Čepas'), ('Cezaris'), "
                           "('Ūla'), ('Ugnė'), ('Yoda'), ('Ėglė'), ('Eglė'), ('Daiva')"));
        Recordset recordset;
        recordset.open(
            QStringLiteral("SELECT FullName FROM tbl_Contacts ORDER BY FullName"), reg.connection());
        // Folded equal names keep a fixed order by their bytes: "Antanas" before "antanas",
        // "Eglė" before "Ėglė".
        QCOMPARE(rows(recordset, {QStringLiteral("FullName")}),
            QStringList({"Antanas", "antanas", "Ąžuolas", "Benas", "Čepas", "Cezaris", "Daiva", "Eglė",
                "Ėglė", "Ugnė", "Ūla", "Yla", "Yoda", "Zita", "Žygimantas"}));
    }
};

int runDialectTest(int argc, char** argv)
{
    DialectTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dialect.moc"
