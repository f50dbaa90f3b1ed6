// How report rows are laid out on pages: page codes, breaking of long texts, sections taller
// than a page, the headers of the report, the page and the group.
#include "ReportFixture.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

using namespace kartella;
using namespace kartella::test;

Q_DECLARE_METATYPE(kartella::ReportOrientation)

namespace {

// Many groups of one to seven documents: every way a page can end.
ReportData manyGroups(int groups)
{
    ReportData data {{"DokKategorija", "KategID"},
        {"DokRegistracData", "DokRegistracIndeksas", "DokAntraste", "FullName", "DokKategorija", "RastasID"},
        {}};
    for (int g = 0; g < groups; ++g) {
        ReportGroup group {{QStringLiteral("Category %1").arg(g), g}, {}};
        for (int d = 0; d <= (g * 5) % 7; ++d) {
            group.children << QVariantList {QDate(2026, 3, 1 + d), QStringLiteral("C%1/%2").arg(g).arg(d),
                QStringLiteral("Document %1 of %2").arg(d).arg(g), QStringLiteral("Ona"),
                QStringLiteral("Category %1").arg(g), d};
        }
        data.groups << group;
    }
    return data;
}

// The fields a section binds, in order, each once.
QStringList fieldsOf(const ReportSection& section, QStringList fields = {})
{
    for (const ReportItem& item : section) {
        if (item.kind == ReportItem::Kind::Field && !fields.contains(item.text))
            fields << item.text;
    }
    return fields;
}

// Lays a report out on A4 in the given orientation, as its preview prints it after a report
// of that orientation.
QList<ReportPage> layOut(const ReportLayout& layout, const ReportData& data, ReportOrientation orientation)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(300);
    setReportPage(writer, orientation);
    return ReportPaginator(layout, writer, reportToday()).paginate(data);
}

// The items of a page that stand in the column starting at left, top to bottom.
QList<PaintedItem> column(const ReportPage& page, double left)
{
    QList<PaintedItem> items;
    for (const PaintedItem& item : page.items) {
        if (item.kind == PaintedItem::Kind::Text && qAbs(item.rect.left() - left) < 0.5)
            items << item;
    }
    std::sort(items.begin(), items.end(),
        [](const PaintedItem& a, const PaintedItem& b) { return a.rect.top() < b.rect.top(); });
    return items;
}

const PaintedItem* itemNamed(const ReportPage& page, const QString& text)
{
    for (const PaintedItem& item : page.items) {
        if (item.text == text)
            return &item;
    }
    return nullptr;
}

// The top of the page footer, or of the margin below the page when it has none.
double footerTop(const ReportPage& page, double pageBottom)
{
    double top = pageBottom;
    for (const PaintedItem& item : page.items) {
        if (item.text == "Printed:")
            top = std::min(top, item.rect.top());
    }
    return top;
}

} // namespace

class ReportPagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageCodesAreFilledInOnlyInPageLabels_data()
    {
        QTest::addColumn<QString>("report");
        for (const ReportLayout& layout : reportLayouts())
            QTest::newRow(qPrintable(layout.scriptName)) << layout.scriptName;
    }

    void pageCodesAreFilledInOnlyInPageLabels()
    {
        QFETCH(QString, report);
        const ReportLayout& layout = *findReportLayout(report);
        const QString coded = "%p%d%P";
        ReportData data {
            fieldsOf(layout.groupHeader, fieldsOf(layout.groupFooter)), fieldsOf(layout.detail), {}};
        ReportGroup group;
        for (qsizetype i = 0; i < data.parentFields.size(); ++i)
            group.values << coded;
        QVariantList child;
        for (qsizetype i = 0; i < data.childFields.size(); ++i)
            child << coded;
        group.children << child;
        data.groups << group;

        const QList<ReportPage> pages = layOut(layout, data);
        QCOMPARE(pages.size(), 1);
        int shown = 0;
        for (const ReportSection* section : {&layout.groupHeader, &layout.detail, &layout.groupFooter}) {
            for (const ReportItem& item : *section)
                shown += item.kind == ReportItem::Kind::Field && !item.hidden ? 1 : 0;
        }
        const QStringList texts = pages.first().texts();
        QCOMPARE(texts.count(coded), shown);
        const QString today = reportText(reportToday());
        QCOMPARE(texts.filter(today).size(), layout.pageFooter.isEmpty() ? 0 : 1);
        if (!layout.pageFooter.isEmpty())
            QCOMPARE(pages.first().lines().last(), QString("Printed: %1 page 1 of 1").arg(today));
    }

    void pageNumbersOnAThreePageReport()
    {
        const ReportLayout& layout = *findReportLayout("this-month");
        ReportData data = manyGroups(1);
        QList<ReportPage> pages;
        while ((pages = layOut(layout, data)).size() < 3)
            data.groups.first().children << data.groups.first().children.first();
        QCOMPARE(pages.size(), 3);
        const QString today = reportText(reportToday());
        for (int page = 0; page < 3; ++page) {
            const QStringList lines = pages.at(page).lines();
            QCOMPARE(lines.first(), QString("List Of documents By Categories"));
            // A group longer than a page goes on under the repeated page and group headers.
            QCOMPARE(lines.at(2), QString("Category 0"));
            QCOMPARE(lines.at(3),
                QString("%1 C0/0 Document 0 of 0 Ona Category 0").arg(reportText(QDate(2026, 3, 1))));
            QCOMPARE(lines.last(), QString("Printed: %1 page %2 of 3").arg(today).arg(page + 1));
        }
    }

    void datesAndIndexesPrintWhole_data()
    {
        QTest::addColumn<QString>("report");
        QTest::addColumn<ReportOrientation>("orientation");
        for (const char* report : {"by-category", "by-contacts", "this-month", "reminder"}) {
            QTest::addRow("%s, landscape", report) << report << ReportOrientation::Landscape;
            QTest::addRow("%s, portrait", report) << report << ReportOrientation::Portrait;
        }
    }

    // Long indexes beside long descriptions, names and categories, which take what room
    // they get: every date and index stands whole on one line, beside its neighbours.
    void datesAndIndexesPrintWhole()
    {
        QFETCH(QString, report);
        QFETCH(ReportOrientation, orientation);
        const ReportLayout& layout = *findReportLayout(report);
        ReportData data {
            fieldsOf(layout.groupHeader, fieldsOf(layout.groupFooter)), fieldsOf(layout.detail), {}};
        const QStringList indexes {"ATA-20261103/Metinė ataskaita", "ATA-20261103/Metinė ataskaita/12", "S-1",
            "VVVVVVVVVVVVVVVVVVVVVVVV-999"};
        const QList<QDate> dates {QDate(2026, 11, 4), QDate(2026, 12, 31), QDate(2000, 1, 1)};
        const QString longText = QString("Labai ilgas tekstas be galo ").repeated(6).trimmed();
        const auto valueOf = [&](const QString& field, int n) -> QVariant {
            if (field == "DokRegistracIndeksas")
                return indexes.at(n % indexes.size());
            if (field == "DokRegistracData" || field == "TicklerDate")
                return dates.at(n % dates.size());
            if (field.endsWith("ID"))
                return n;
            return longText;
        };
        QStringList whole;
        for (int g = 0; g < 4; ++g) {
            ReportGroup group;
            for (const QString& field : std::as_const(data.parentFields))
                group.values << valueOf(field, g);
            for (int d = 0; d < 3; ++d) {
                QVariantList child;
                for (const QString& field : std::as_const(data.childFields))
                    child << valueOf(field, g + d);
                group.children << child;
            }
            data.groups << group;
        }
        for (const QString field : {"DokRegistracIndeksas", "DokRegistracData", "TicklerDate"}) {
            if (data.parentFields.contains(field) || data.childFields.contains(field)) {
                for (const QVariant& value : field == "DokRegistracIndeksas"
                        ? QVariantList(indexes.begin(), indexes.end())
                        : QVariantList(dates.begin(), dates.end()))
                    whole << reportText(value);
            }
        }
        QVERIFY(!whole.isEmpty());

        const QList<ReportPage> pages = layOut(layout, data, orientation);
        QStringList texts;
        for (const ReportPage& page : pages) {
            texts << page.texts();
            for (const PaintedItem& item : page.items) {
                if (!whole.contains(item.text))
                    continue;
                // No other box of its line starts inside it.
                for (const PaintedItem& other : page.items) {
                    if (&other != &item && other.kind == PaintedItem::Kind::Text
                        && qAbs(other.rect.top() - item.rect.top()) < 0.5)
                        QVERIFY2(other.rect.left() <= item.rect.left() + 0.5
                                || other.rect.left() >= item.rect.right() - 0.5,
                            qPrintable(item.text + " / " + other.text));
                }
            }
        }
        for (const QString& text : std::as_const(whole))
            QVERIFY2(texts.contains(text), qPrintable(text + " is not whole in:\n" + texts.join('\n')));
        // The long texts beside them still print whole, wrapped where they grow.
        QVERIFY(texts.join(' ').contains(longText.left(40)));
    }

    void everyListReportHasColumnHeadings_data()
    {
        QTest::addColumn<QString>("report");
        QTest::addColumn<QString>("headings");
        QTest::newRow("by-category") << "by-category"
                                     << "Doc. Description Reg. Index Reg. Date Sender/Receiver";
        QTest::newRow("by-contacts") << "by-contacts"
                                     << "Doc. Description Reg. Date Reg. Index Category";
        QTest::newRow("this-month") << "this-month"
                                    << "Reg. Date Reg. Index Doc. Description Sender/Receiver Category";
    }

    // On every page, under the title, each heading standing over its column.
    void everyListReportHasColumnHeadings()
    {
        QFETCH(QString, report);
        QFETCH(QString, headings);
        const ReportLayout& layout = *findReportLayout(report);
        ReportData data {fieldsOf(layout.groupHeader), fieldsOf(layout.detail), {}};
        for (int g = 0; g < 60; ++g) {
            ReportGroup group;
            for (const QString& field : std::as_const(data.parentFields))
                group.values << QStringLiteral("%1 %2").arg(field).arg(g);
            for (int d = 0; d < 3; ++d) {
                QVariantList child;
                for (const QString& field : std::as_const(data.childFields))
                    child << (field == "DokRegistracData"
                            ? QVariant(QDate(2026, 11, 1 + d))
                            : QVariant(QStringLiteral("%1 %2").arg(field).arg(d)));
                group.children << child;
            }
            data.groups << group;
        }
        const QList<ReportPage> pages = layOut(layout, data);
        QVERIFY(pages.size() >= 2);
        for (const ReportPage& page : pages) {
            QCOMPARE(page.lines().at(1), headings);
            const double headingTop = itemNamed(page, headings.section(' ', 0, 1))->rect.top();
            for (const PaintedItem& heading : page.items) {
                if (qAbs(heading.rect.top() - headingTop) >= 0.5)
                    continue;
                const QList<PaintedItem> below = column(page, heading.rect.left());
                QVERIFY2(below.size() > 1, qPrintable(heading.text));
                QVERIFY(qFuzzyCompare(below.last().rect.width(), heading.rect.width()));
            }
        }
    }

    void theReportHeaderStandsOnTheFirstPageOnly()
    {
        const ReportLayout& layout = *findReportLayout("categories");
        ReportData data {fieldsOf(layout.groupHeader), fieldsOf(layout.detail), {}};
        for (int g = 0; g < 120; ++g) {
            QVariantList values;
            for (const QString& field : std::as_const(data.parentFields))
                values << (field == "DokKategorija" ? QVariant(QStringLiteral("Kategorija %1").arg(g))
                                                    : QVariant());
            data.groups << ReportGroup {values, {}};
        }
        const QList<ReportPage> pages = layOut(layout, data);
        QVERIFY(pages.size() >= 3);
        const QString headings = "Mnem Location of files WORD Template EXCEL Template POWERPOINT Template";
        for (int page = 0; page < pages.size(); ++page) {
            const QStringList lines = pages.at(page).lines();
            QCOMPARE(lines.count("CATEGORIES"), page == 0 ? 1 : 0);
            QCOMPARE(lines.at(page == 0 ? 1 : 0), headings);
        }
        QCOMPARE(allLines(pages).filter(QRegularExpression("^Kategorija \\d+$")).size(), 120);
    }

    void aGroupHeaderNeverEndsAPage()
    {
        const ReportLayout& layout = *findReportLayout("this-month");
        const QList<ReportPage> pages = layOut(layout, manyGroups(300));
        QVERIFY(pages.size() > 5);
        for (const ReportPage& page : pages) {
            const double bottom = footerTop(page, 1e9);
            // The lowest line above the page footer is a detail line, never a group header.
            const PaintedItem* lowest = nullptr;
            for (const PaintedItem& item : page.items) {
                if (item.kind == PaintedItem::Kind::Text && item.rect.top() < bottom
                    && (!lowest || item.rect.top() > lowest->rect.top()))
                    lowest = &item;
            }
            QVERIFY(lowest);
            QVERIFY2(!lowest->bold, qPrintable(lowest->text));
        }
    }

    void growingBoxesWrapAndPushTheLineDown()
    {
        const ReportLayout& layout = *findReportLayout("by-category");
        const QString longTitle = QString("Labai ilgas dokumento pavadinimas ").repeated(8).trimmed();
        ReportData data {{"DokKategorija", "KategID"},
            {"DokAntraste", "DokRegistracIndeksas", "DokRegistracData", "FullName", "ContactID"},
            {{{"Raštai", 1},
                {{longTitle, "R-1", QDate(2026, 3, 2), "Ona", 1},
                    {"Trumpas", "R-2", QDate(2026, 3, 3), "Jonas", 2}}}}};
        const QList<ReportPage> pages = layOut(layout, data);
        QCOMPARE(pages.size(), 1);
        const PaintedItem* next = itemNamed(pages.first(), "Trumpas");
        const PaintedItem* index = itemNamed(pages.first(), "R-1");
        QVERIFY(next && index);
        QList<PaintedItem> title = column(pages.first(), next->rect.left());
        title.removeIf([&](const PaintedItem& item) { return item.rect.top() >= next->rect.top(); });
        title.removeIf([&](const PaintedItem& item) { return item.rect.top() < index->rect.top() - 0.5; });
        QVERIFY(title.size() >= 3);
        QStringList words;
        for (const PaintedItem& line : std::as_const(title))
            words << line.text;
        QCOMPARE(words.join(' '), longTitle);
        QVERIFY(next->rect.top() >= title.last().rect.bottom() - 0.5);
    }

    void aWordWiderThanItsBoxIsBroken()
    {
        // A template path without a blank, far wider than its column of the categories.
        const ReportLayout& layout = *findReportLayout("categories");
        const QString path = "/srv/dokumentai/sablonai/" + QString("labai_ilgas_katalogo_vardas/").repeated(6)
            + "laiskas.dot";
        ReportData data {fieldsOf(layout.groupHeader), fieldsOf(layout.detail), {}};
        QVariantList values;
        for (const QString& field : std::as_const(data.parentFields))
            values << (field == "DokKategorija" ? QVariant("Laiškai")
                    : field == "DokTemplates"   ? QVariant(path)
                                                : QVariant());
        data.groups << ReportGroup {values, {}};
        const QList<ReportPage> pages = layOut(layout, data);
        QCOMPARE(pages.size(), 1);
        const PaintedItem* heading = itemNamed(pages.first(), "WORD Template");
        QVERIFY(heading);
        QList<PaintedItem> lines = column(pages.first(), heading->rect.left());
        lines.removeFirst();
        QVERIFY(lines.size() >= 3);
        QString whole;
        for (qsizetype line = 0; line < lines.size(); ++line) {
            whole += lines.at(line).text;
            if (line > 0)
                QVERIFY(lines.at(line).rect.top() >= lines.at(line - 1).rect.bottom() - 0.5);
        }
        QCOMPARE(whole, path);
    }

    void aSectionTallerThanAPageGoesOnUnderItsGroupHeader()
    {
        // A reminder of four hundred lines under a document title.
        const ReportLayout& layout = *findReportLayout("reminder");
        QStringList text;
        for (int line = 1; line <= 400; ++line)
            text << QStringLiteral("Eilutė %1").arg(line);
        ReportData data {{"DokAntraste", "RastasID"}, {"TicklerDate", "TicklerText"},
            {{{"Nuomos sutartis", 7}, {{QDate(2030, 1, 1), text.join("\r\n")}}},
                {{"Kita sutartis", 8}, {{QDate(2030, 2, 1), "Trumpas"}}}}};
        const QList<ReportPage> pages = layOut(layout, data);
        QVERIFY(pages.size() >= 6);

        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        QPdfWriter writer(&buffer);
        writer.setResolution(300);
        setReportPage(writer, layout);
        const double paperBottom = writer.pageLayout().paintRectPixels(300).height();

        QStringList printed;
        for (int page = 0; page < pages.size(); ++page) {
            const QStringList lines = pages.at(page).lines();
            QCOMPARE(lines.at(0), QString("Reminder"));
            QCOMPARE(lines.at(1), QString("Nuomos sutartis"));
            if (page == 0)
                QVERIFY(lines.at(2).startsWith(reportText(QDate(2030, 1, 1)) + " Eilutė 1"));
            for (const PaintedItem& item : pages.at(page).items)
                QVERIFY2(item.rect.bottom() <= paperBottom - 299, qPrintable(item.text));
            printed << pages.at(page).texts().filter(QRegularExpression("^Eilutė \\d+$"));
        }
        QCOMPARE(printed, text);
        QCOMPARE(allLines(pages).last(), reportText(QDate(2030, 2, 1)) + " Trumpas");
    }
};

int runReportPagesTest(int argc, char** argv)
{
    ReportPagesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_report_pages.moc"
