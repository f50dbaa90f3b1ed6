// The passage a search shows from a file's text around the first hit: a word folded as the
// index folds it, a prefix, a phrase, the first of the terms, a passage cut on both sides, and
// the edges: a hit that ends the text, a phrase the text ends in the middle of, and hits where
// the text is read in two stretches.
#include "explorer/DocumentSearch.h"

#include <QTest>

using namespace kartella;

namespace {

QString words(const QString& word, int count)
{
    QStringList list;
    for (int i = 0; i < count; ++i)
        list << word;
    return list.join(u' ');
}

// a1 a2 ... an
QString numbered(int count)
{
    QStringList list;
    for (int i = 1; i <= count; ++i)
        list << QStringLiteral("a%1").arg(i);
    return list.join(u' ');
}

} // namespace

class SearchPassageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passageAtTheEdges_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("search");
        QTest::addColumn<QString>("passage");
        QTest::newRow("word") << "Vienas du trys SUTARTIS keturi"
                              << "sutartis"
                              << "Vienas du trys [SUTARTIS] keturi";
        QTest::newRow("folded") << "Miestas: Šiaulių\n\trajonas"
                                << "siauliu"
                                << "Miestas: [Šiaulių] rajonas";
        QTest::newRow("piece of a word") << "sutartys ir sutartis"
                                         << "sutart"
                                         << "";
        QTest::newRow("prefix") << "sutartys ir sutartis"
                                << "sutart*"
                                << "[sutartys] ir sutartis";
        QTest::newRow("phrase") << "banko paskola, paskolos bankas, banko paskolos"
                                << "\"banko paskolos\""
                                << "banko paskola, paskolos bankas, [banko paskolos]";
        QTest::newRow("first of the terms") << "a b c aktas d e sutartis"
                                            << "sutartis aktas"
                                            << "a b c [aktas] d e sutartis";
        QTest::newRow("cut on both sides") << "1 2 3 4 5 6 7 8 9 10 hit 11 12 13 14 15 16 17 18 19"
                                           << "hit"
                                           << "… 3 4 5 6 7 8 9 10 [hit] 11 12 13 14 15 16 17 18 …";
        QTest::newRow("none") << "nothing here"
                              << "sutartis"
                              << "";
        QString far;
        for (int i = 0; i < 1000; ++i)
            far += QStringLiteral("žodis ");
        QTest::newRow("after a long text")
            << far + "radinys pabaiga"
            << "radinys"
            << "… žodis žodis žodis žodis žodis žodis žodis žodis [radinys] pabaiga";

        QTest::newRow("last word, every capital folded") << "Kelias į ZOOLOGIJOS sodą: ZUIKIS"
                                                         << "zuikis"
                                                         << "Kelias į ZOOLOGIJOS sodą: [ZUIKIS]";
        QTest::newRow("phrase cut by the end") << "paskolos banko"
                                               << "\"banko paskolos\""
                                               << "";
        QTest::newRow("phrase of the last words") << "sutartis dėl banko paskolos"
                                                  << "\"banko paskolos\""
                                                  << "sutartis dėl [banko paskolos]";
        // The text is read 400 words at a time: the words after a hit may be in the next.
        const QString before = words(QStringLiteral("žodis"), 399);
        const QString shown = QStringLiteral("… ") + words(QStringLiteral("žodis"), 8);
        QTest::newRow("last word of the first stretch")
            << before + " radinys " + numbered(9) << "radinys" << shown + " [radinys] " + numbered(8) + " …";
        QTest::newRow("last word of the first stretch, eight after")
            << before + " radinys " + numbered(8) << "radinys" << shown + " [radinys] " + numbered(8);
        QTest::newRow("phrase across the stretches")
            << before + " banko paskolos " + numbered(10) << "\"banko paskolos\""
            << shown + " [banko paskolos] " + numbered(8) + " …";
        QTest::newRow("first word of the second stretch") << words(QStringLiteral("žodis"), 400) + " radinys"
                                                          << "radinys" << shown + " [radinys]";
    }

    void passageAtTheEdges()
    {
        QFETCH(QString, text);
        QFETCH(QString, search);
        QFETCH(QString, passage);
        const QString shown = searchPassage(text, searchTerms(search))
                                  .replace(QChar(PassageHitStart), u'[')
                                  .replace(QChar(PassageHitEnd), u']');
        QCOMPARE(shown, passage);
    }
};

QTEST_GUILESS_MAIN(SearchPassageTest)
#include "tst_search_passage.moc"
