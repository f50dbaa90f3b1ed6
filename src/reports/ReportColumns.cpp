#include "reports/ReportColumns.h"

#include <QHash>
#include <QList>
#include <QStringList>

#include <algorithm>
#include <numeric>

namespace kartella {

namespace {

// How far a box that is not whole may give way to a whole one, of its own width.
constexpr double ShrinkLimit = 0.5;

// The widest line of a text.
double widthOf(const QString& text, bool bold, const TextWidth& measure)
{
    if (!text.contains(u'\n') && !text.contains(u'\r'))
        return measure(text, bold);
    QString lines = text;
    lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    double widest = 0.0;
    for (const QString& line : lines.split(u'\n'))
        widest = std::max(widest, measure(line, bold));
    return widest;
}

// The texts a section prints for one field: one value of each of its rows.
struct SectionRows
{
    const QStringList& fields;
    QList<const QVariantList*> rows;
};

double widestHeading(const QStringList& headings, const TextWidth& measure)
{
    double widest = 0.0;
    for (const QString& heading : headings)
        widest = std::max(widest, widthOf(heading, false, measure));
    return widest;
}

// The widest text a box prints for the rows.
double widestText(const ReportItem& item, const SectionRows& rows, const TextWidth& measure)
{
    double widest = 0.0;
    if (item.kind == ReportItem::Kind::Label) {
        widest = widthOf(shownText(item), item.bold, measure);
    } else {
        const qsizetype index = rows.fields.indexOf(item.text);
        if (index >= 0) {
            for (const QVariantList* values : rows.rows) {
                if (index < values->size())
                    widest = std::max(widest, widthOf(reportText(values->at(index)), item.bold, measure));
            }
        }
    }
    return widest;
}

// The widths, as fractions of the page, of boxes that share room; want and floor as in
// the contract of fitColumns.
QList<double> shareRoom(
    const QList<const ReportItem*>& boxes, const QList<double>& want, const QList<double>& floor, double room)
{
    const double wanted = std::accumulate(want.begin(), want.end(), 0.0);
    const double least = std::accumulate(floor.begin(), floor.end(), 0.0);
    QList<double> widths(boxes.size(), 0.0);
    if (wanted <= room) {
        double shares = 0.0;
        for (const ReportItem* box : boxes)
            shares += box->whole ? 0.0 : box->width;
        for (qsizetype i = 0; i < boxes.size(); ++i) {
            const double share = boxes.at(i)->whole || shares <= 0.0 ? 0.0 : boxes.at(i)->width / shares;
            widths[i] = want.at(i) + (room - wanted) * share;
        }
    } else if (least <= room) {
        const double giving = wanted - least;
        for (qsizetype i = 0; i < boxes.size(); ++i)
            widths[i] = floor.at(i) + (room - least) * (want.at(i) - floor.at(i)) / giving;
    } else {
        for (qsizetype i = 0; i < boxes.size(); ++i)
            widths[i] = floor.at(i) * room / least;
    }
    return widths;
}

void fitRow(ReportSection& section, int row, const SectionRows& rows,
    const QHash<QString, QStringList>& headings, double pageWidth, double gap, const TextWidth& measure)
{
    QList<ReportItem*> boxes;
    for (ReportItem& item : section) {
        if (item.row == row && !item.hidden && item.kind != ReportItem::Kind::Rule)
            boxes << &item;
    }
    if (std::none_of(boxes.begin(), boxes.end(), [](const ReportItem* box) { return box->whole; }))
        return;
    std::stable_sort(boxes.begin(), boxes.end(),
        [](const ReportItem* a, const ReportItem* b) { return a->left < b->left; });
    QList<double> want;
    QList<double> floor;
    for (const ReportItem* box : std::as_const(boxes)) {
        const QStringList heads
            = box->kind == ReportItem::Kind::Field ? headings.value(box->text) : QStringList();
        const double heading = widestHeading(heads, measure) / pageWidth + gap;
        const double widest = std::max(widestText(*box, rows, measure) / pageWidth + gap, heading);
        want << widest;
        floor << (box->whole ? widest : std::max(heading, std::min(widest, box->width * ShrinkLimit)));
    }
    const double start = boxes.first()->left;
    const QList<double> widths
        = shareRoom(QList<const ReportItem*>(boxes.begin(), boxes.end()), want, floor, 1.0 - start);
    double left = start;
    for (qsizetype i = 0; i < boxes.size(); ++i) {
        boxes[i]->left = left;
        boxes[i]->width = widths.at(i);
        left += widths.at(i);
    }
}

void fitSection(ReportSection& section, const SectionRows& rows, const QHash<QString, QStringList>& headings,
    double pageWidth, double gap, const TextWidth& measure)
{
    int lastRow = -1;
    for (const ReportItem& item : section)
        lastRow = std::max(lastRow, item.row);
    for (int row = 0; row <= lastRow; ++row)
        fitRow(section, row, rows, headings, pageWidth, gap, measure);
}

// Where a field stands in a section, if it stands there.
const ReportItem* placeOf(const ReportSection& section, const QString& field)
{
    for (const ReportItem& item : section) {
        if (item.kind == ReportItem::Kind::Field && !item.hidden && item.text == field)
            return &item;
    }
    return nullptr;
}

} // namespace

ReportLayout fitColumns(
    const ReportLayout& layout, const ReportData& data, double pageWidth, const TextWidth& measure)
{
    ReportLayout fitted = layout;
    if (pageWidth <= 0.0)
        return fitted;
    QHash<QString, QStringList> headings;
    for (const ReportItem& item : layout.pageHeader) {
        if (!item.heads.isEmpty())
            headings[item.heads] << shownText(item);
    }
    const double gap = measure(QStringLiteral("  "), false) / pageWidth;

    SectionRows parents {data.parentFields, {}};
    SectionRows children {data.childFields, {}};
    for (const ReportGroup& group : data.groups) {
        parents.rows << &group.values;
        for (const QVariantList& child : group.children)
            children.rows << &child;
    }
    fitSection(fitted.groupHeader, parents, headings, pageWidth, gap, measure);
    fitSection(fitted.detail, children, headings, pageWidth, gap, measure);

    for (ReportItem& item : fitted.pageHeader) {
        if (item.heads.isEmpty())
            continue;
        const ReportItem* column = placeOf(fitted.detail, item.heads);
        if (!column)
            column = placeOf(fitted.groupHeader, item.heads);
        if (column) {
            item.left = column->left;
            item.width = column->width;
        }
    }
    return fitted;
}

} // namespace kartella
