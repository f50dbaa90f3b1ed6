#include "TestPages.h"

#include <QFont>
#include <QHash>
#include <QPainter>
#include <QRegularExpression>
#include <QTextOption>

#include <cmath>

namespace kartella::test {

QImage renderTextPage(const QString& text, int dotsPerInch, const QSizeF& millimetres, int pointSize)
{
    const auto pixels = [dotsPerInch](double mm) { return int(std::lround(mm / 25.4 * dotsPerInch)); };
    QImage page(pixels(millimetres.width()), pixels(millimetres.height()), QImage::Format_Grayscale8);
    const int perMetre = int(std::lround(dotsPerInch / 0.0254));
    page.setDotsPerMeterX(perMetre);
    page.setDotsPerMeterY(perMetre);
    page.fill(Qt::white);
    QPainter painter(&page);
    QFont font(QStringLiteral("DejaVu Serif"));
    font.setPointSize(pointSize);
    painter.setFont(font);
    painter.setPen(Qt::black);
    const int margin = pixels(20);
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    painter.drawText(
        QRectF(margin, margin, page.width() - 2 * margin, page.height() - 2 * margin), text, option);
    return page;
}

QString lithuanianPage()
{
    return QStringLiteral(
        "Šiaulių miesto savivaldybės administracija gavo prašymą dėl žemės sklypo nuomos sutarties "
        "pratęsimo. Prašymą pateikė uždaroji akcinė bendrovė „Žalgiris“, kurios buveinė yra Vilniuje, "
        "Gedimino prospekte. Bendrovė įsipareigoja mokėti nuomos mokestį kiekvieną ketvirtį ir laikytis "
        "visų aplinkosaugos reikalavimų.\n\n"
        "Komisija, išnagrinėjusi pateiktus dokumentus, nusprendė pritarti prašymui su sąlyga, kad "
        "bendrovė per trisdešimt dienų pateiks atnaujintą sklypo planą. Sprendimas įsigalioja nuo "
        "pasirašymo dienos. Dėl šio sprendimo galima kreiptis į Regionų administracinį teismą per vieną "
        "mėnesį nuo jo įteikimo dienos.\n\n"
        "Pridedama: sklypo planas, įgaliojimas, mokesčio apskaičiavimas ir ankstesnės sutarties kopija. "
        "Už dokumentų tikrumą atsako pareiškėjas. Kopijos siunčiamos Kauno, Klaipėdos ir Panevėžio "
        "skyriams susipažinti.");
}

namespace {

QHash<QString, int> wordCounts(const QString& text)
{
    static const QRegularExpression separators(
        QStringLiteral("[^\\w]+"), QRegularExpression::UseUnicodePropertiesOption);
    QHash<QString, int> counts;
    for (const QString& word : text.toLower().split(separators, Qt::SkipEmptyParts))
        ++counts[word];
    return counts;
}

} // namespace

double wordAccuracy(const QString& expected, const QString& read)
{
    const QHash<QString, int> wanted = wordCounts(expected);
    const QHash<QString, int> got = wordCounts(read);
    int total = 0;
    int found = 0;
    for (auto word = wanted.cbegin(); word != wanted.cend(); ++word) {
        total += word.value();
        found += std::min(word.value(), got.value(word.key()));
    }
    return total == 0 ? 1.0 : double(found) / total;
}

} // namespace kartella::test
