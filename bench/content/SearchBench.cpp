// Times the quick search over a register of 100 000 documents (another number with
// --documents N) whose files' text is two pages each, of Lithuanian and English words drawn
// from a vocabulary of about 5 000, the frequent ones far more often (as in real text).
// Each search runs as the window runs it: the indexes looked up, the list of results
// counted and its first page read with the passages, to the first page shown (a search whose
// results come by date shows it before they are counted) and to the count. The register is made once and kept
// in the build folder. Prints "name: value" lines.
#include "ContentBench.h"
#include "explorer/DocumentFills.h"
#include "explorer/DocumentSearch.h"
#include "explorer/ListModel.h"
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "store/InsertBatch.h"
#include "store/Schema.h"
#include "store/engine/Connection.h"
#include "support/SelectionState.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QRandomGenerator>
#include <QTextStream>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace kartella;

namespace {

constexpr int WordsPerDocument = 700; // two pages

const QStringList Stems = {QStringLiteral("sutart"), QStringLiteral("nuom"), QStringLiteral("sąskait"),
    QStringLiteral("mokėjim"), QStringLiteral("įsakym"), QStringLiteral("prašym"), QStringLiteral("akt"),
    QStringLiteral("priedas"), QStringLiteral("šal"), QStringLiteral("tiekėj"), QStringLiteral("pirkėj"),
    QStringLiteral("pardavėj"), QStringLiteral("darbuotoj"), QStringLiteral("atostog"),
    QStringLiteral("komandiruot"), QStringLiteral("Šiauli"), QStringLiteral("Vilni"), QStringLiteral("Kaun"),
    QStringLiteral("Klaipėd"), QStringLiteral("Panevėž"), QStringLiteral("bank"), QStringLiteral("paskol"),
    QStringLiteral("palūkan"), QStringLiteral("termin"), QStringLiteral("įsipareigojim"),
    QStringLiteral("atsakomyb"), QStringLiteral("žal"), QStringLiteral("draudim"), QStringLiteral("turt"),
    QStringLiteral("patalp"), QStringLiteral("ploto"), QStringLiteral("kain"), QStringLiteral("sum"),
    QStringLiteral("mokesč"), QStringLiteral("PVM"), QStringLiteral("direktor"), QStringLiteral("vadov"),
    QStringLiteral("skyri"), QStringLiteral("įmon"), QStringLiteral("bendrov"), QStringLiteral("savivaldyb"),
    QStringLiteral("ministerij"), QStringLiteral("teism"), QStringLiteral("skund"),
    QStringLiteral("sprendim"), QStringLiteral("nutarim"), QStringLiteral("protokol"),
    QStringLiteral("posėd"), QStringLiteral("susirinkim"), QStringLiteral("ataskait"),
    QStringLiteral("biudžet"), QStringLiteral("projekt"), QStringLiteral("pasiūlym"),
    QStringLiteral("konkurs"), QStringLiteral("pirkim"), QStringLiteral("prekė"), QStringLiteral("paslaug"),
    QStringLiteral("darb"), QStringLiteral("užsakym"), QStringLiteral("pristatym"),
    QStringLiteral("garantij"), QStringLiteral("kokyb"), QStringLiteral("reikalavim"),
    QStringLiteral("standart"), QStringLiteral("dokument"), QStringLiteral("pažym"),
    QStringLiteral("liudijim"), QStringLiteral("leidim"), QStringLiteral("licencij"),
    QStringLiteral("registr"), QStringLiteral("duomen"), QStringLiteral("asmen"), QStringLiteral("adres"),
    QStringLiteral("telefon"), QStringLiteral("laišk"), QStringLiteral("atsakym"),
    QStringLiteral("paklausim"), QStringLiteral("informacij"), QStringLiteral("pranešim"),
    QStringLiteral("contract"), QStringLiteral("invoice"), QStringLiteral("payment"),
    QStringLiteral("delivery"), QStringLiteral("agreement"), QStringLiteral("supplier"),
    QStringLiteral("customer"), QStringLiteral("order"), QStringLiteral("report"), QStringLiteral("meeting"),
    QStringLiteral("budget"), QStringLiteral("project"), QStringLiteral("service"), QStringLiteral("warrant"),
    QStringLiteral("insur"), QStringLiteral("lease"), QStringLiteral("tax"), QStringLiteral("account"),
    QStringLiteral("complain"), QStringLiteral("decision")};
const QStringList Endings = {QStringLiteral("as"), QStringLiteral("o"), QStringLiteral("ui"),
    QStringLiteral("ą"), QStringLiteral("u"), QStringLiteral("e"), QStringLiteral("ai"), QStringLiteral("ų"),
    QStringLiteral("ams"), QStringLiteral("us"), QStringLiteral("ais"), QStringLiteral("uose"),
    QStringLiteral("is"), QStringLiteral("ies"), QStringLiteral("iai"), QStringLiteral("ių"),
    QStringLiteral("ims"), QStringLiteral("ėje"), QStringLiteral("ės"), QStringLiteral("os"),
    QStringLiteral("ų"), QStringLiteral("oms"), QStringLiteral("omis"), QStringLiteral("ose"),
    QStringLiteral("s"), QStringLiteral("es"), QStringLiteral("ed"), QStringLiteral("ing"),
    QStringLiteral("er"), QStringLiteral("ers"), QStringLiteral("ment"), QStringLiteral("al"),
    QStringLiteral("ly"), QStringLiteral("ion"), QStringLiteral("ions"), QStringLiteral("ai"),
    QStringLiteral("ei"), QStringLiteral("iu"), QStringLiteral("ėl"), QStringLiteral("ininkas"),
    QStringLiteral("ystė"), QStringLiteral("inis"), QStringLiteral("ingas"), QStringLiteral("umas"),
    QStringLiteral("imas"), QStringLiteral("ymas"), QStringLiteral("avimas"), QStringLiteral("inti"),
    QStringLiteral("ėti"), QStringLiteral("yti")};
const QStringList Common = {QStringLiteral("ir"), QStringLiteral("su"), QStringLiteral("dėl"),
    QStringLiteral("į"), QStringLiteral("nuo"), QStringLiteral("iki"), QStringLiteral("pagal"),
    QStringLiteral("kad"), QStringLiteral("the"), QStringLiteral("of"), QStringLiteral("and"),
    QStringLiteral("to"), QStringLiteral("in"), QStringLiteral("for"), QStringLiteral("yra"),
    QStringLiteral("bus"), QStringLiteral("buvo"), QStringLiteral("per"), QStringLiteral("be")};

// The vocabulary: every stem with every ending (about 5 000 words), the function words first.
QStringList vocabulary()
{
    QStringList words = Common;
    for (const QString& ending : Endings) {
        for (const QString& stem : Stems)
            words << stem + ending;
    }
    words.removeDuplicates();
    return words;
}

// Two pages of text: the word of rank r drawn with a weight of 1/r (Zipf).
class TextGenerator
{
public:
    explicit TextGenerator(const QStringList& words)
        : m_words(words)
    {
        double sum = 0;
        for (qsizetype rank = 1; rank <= words.size(); ++rank) {
            sum += 1.0 / double(rank);
            m_cumulative.push_back(sum);
        }
    }

    QString pages()
    {
        QString text;
        text.reserve(WordsPerDocument * 9);
        int sentence = 0;
        for (int i = 0; i < WordsPerDocument; ++i) {
            const double pick = m_random.generateDouble() * m_cumulative.back();
            const auto at
                = std::lower_bound(m_cumulative.begin(), m_cumulative.end(), pick) - m_cumulative.begin();
            QString word = m_words[qsizetype(at)];
            if (sentence == 0)
                word[0] = word[0].toUpper();
            text += word;
            if (++sentence >= 6 + int(m_random.bounded(10))) {
                text += QStringLiteral(". ");
                sentence = 0;
            } else {
                text += u' ';
            }
            if (i % 350 == 349)
                text += u'\n';
        }
        return text;
    }

private:
    QStringList m_words;
    std::vector<double> m_cumulative;
    QRandomGenerator m_random {20241125};
};

void fill(const QString& path, int documents)
{
    Connection connection;
    connection.open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path);
    TextGenerator generator(vocabulary());
    const QDate first(2015, 1, 1);
    constexpr int PerTransaction = 2000;
    for (int from = 0; from < documents; from += PerTransaction) {
        connection.beginTrans();
        {
            InsertBatch rows(connection, QStringLiteral("tbl_Documents"),
                {QStringLiteral("RastasID"), QStringLiteral("DokRegistracData"),
                    QStringLiteral("DokAntraste"), QStringLiteral("DokRegistracIndeksas"),
                    QStringLiteral("KryptisID")});
            InsertBatch texts(connection, QStringLiteral("tbl_Document_Text"),
                {QStringLiteral("RastasID"), QStringLiteral("State"), QStringLiteral("Body")}, 40);
            for (int id = from + 1; id <= std::min(documents, from + PerTransaction); ++id) {
                rows.add({id, first.addDays(id % 3650), QStringLiteral("Dokumentas %1").arg(id),
                    QStringLiteral("D-%1").arg(id), 1 + id % 3});
                texts.add({id, 1, generator.pages()});
            }
            rows.flush();
            texts.flush();
        }
        connection.commitTrans();
        if (from % 20000 == 0)
            QTextStream(stderr) << "  " << from << " documents\n";
    }
    connection.close();
}

QString sampleRegister(int documents)
{
    const QString folder
        = QStringLiteral(KARTELLA_BENCH_DATA) + QStringLiteral("/content-search-%1").arg(documents);
    const QString path = folder + QStringLiteral("/Kartella.mdb");
    if (QFile::exists(path + QStringLiteral(".done")))
        return path;
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    QTextStream(stderr) << "making a register of " << documents << " documents with their text in " << folder
                        << '\n';
    createRegister(path);
    fill(path, documents);
    QFile done(path + QStringLiteral(".done"));
    done.open(QIODevice::WriteOnly);
    return path;
}

double percentile(std::vector<double> times, double part)
{
    std::sort(times.begin(), times.end());
    return times[std::min(times.size() - 1, size_t(double(times.size()) * part))];
}

} // namespace

void kartella::bench::benchSearch(const QString& folder, QTextStream& out)
{
    int documents = 100000;
    const QStringList arguments = QCoreApplication::arguments();
    const qsizetype at = arguments.indexOf(QStringLiteral("--documents"));
    if (at > 0 && at + 1 < arguments.size())
        documents = arguments.at(at + 1).toInt();
    const QString path = sampleRegister(documents);

    qputenv("XDG_CONFIG_HOME", QDir(folder).filePath(QStringLiteral("config")).toUtf8());
    seedOptionsIfMissing();
    setRegValue(QStringLiteral("DbLocation"), path);
    setRegValue(QStringLiteral("Filter"), QStringLiteral("0"));

    // Words of every frequency, two words, a phrase, prefixes, a word of no document, a word
    // of the fields.
    const QStringList searches = {QStringLiteral("sutartis"), QStringLiteral("siauliu"),
        QStringLiteral("PVM"), QStringLiteral("payment"), QStringLiteral("ir"), QStringLiteral("the"),
        QStringLiteral("garantijos"), QStringLiteral("komandiruotes"), QStringLiteral("licencijomis"),
        QStringLiteral("nuomos sutarties"), QStringLiteral("bankas paskolos"),
        QStringLiteral("invoice delivery"), QStringLiteral("\"nuomos sutartis\""),
        QStringLiteral("\"ir su\""), QStringLiteral("sutart*"), QStringLiteral("kaun*"),
        QStringLiteral("deliver*"), QStringLiteral("neegzistuojantis"), QStringLiteral("dokumentas 4711"),
        QStringLiteral("D-99999"), QStringLiteral("protokolas posedzio"), QStringLiteral("insurance"),
        QStringLiteral("skundas teismui"), QStringLiteral("direktoriaus įsakymas")};
    ListModel model(nullptr);
    SelectionState selection;
    DocumentFills fills(model, selection);
    std::vector<double> times;
    std::vector<double> counted;
    const bool verbose = qEnvironmentVariableIsSet("KARTELLA_BENCH_VERBOSE");
    for (int round = 0; round < 3; ++round) {
        for (const QString& search : searches) {
            QElapsedTimer timer;
            timer.start();
            int rows = 0;
            {
                const SearchIndexes indexes = registerSearchIndexes();
                const QList<SearchTerm> terms = searchTerms(search);
                fills.fillSearchList(
                    searchListSql(terms, indexes, 0, false, {}, {}), searchRanking(terms, indexes), terms);
                rows = model.itemCount();
                // The first page, as the list paints it.
                if (rows > 0)
                    model.item(0);
            }
            const double ms = double(timer.nsecsElapsed()) / 1e6;
            times.push_back(ms);
            // A search listed by date is counted on a thread of its own after its first page.
            while (fills.findingSearch())
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 5);
            counted.push_back(double(timer.nsecsElapsed()) / 1e6);
            if (verbose && round == 0)
                QTextStream(stderr) << search << ": " << model.itemCount() << " rows, " << qRound(ms)
                                    << " ms, counted at " << qRound(counted.back()) << " ms\n";
        }
    }
    out << "documents: " << documents << '\n';
    out << "content_search_p50_ms: " << qRound(percentile(times, 0.5)) << '\n';
    out << "content_search_p90_ms: " << qRound(percentile(times, 0.9)) << '\n';
    out << "content_search_max_ms: " << qRound(percentile(times, 1.0)) << '\n';
    out << "content_search_counted_p90_ms: " << qRound(percentile(counted, 0.9)) << '\n';
}
