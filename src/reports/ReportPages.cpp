#include "reports/ReportPages.h"

#include "base/Error.h"
#include "platform/Clock.h"
#include "reports/ReportColumns.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace kartella {

namespace {

constexpr double Inch = 1.0;
constexpr int PrintFailed = 75;
// Room for rounding between the edges of two boxes that touch.
constexpr double Touching = 0.5;

QString fontFamily()
{
    return QStringLiteral("DejaVu Sans");
}

bool sameLine(const PaintedItem& a, const PaintedItem& b)
{
    return qAbs(a.rect.top() - b.rect.top()) < 0.5;
}

QList<PaintedItem> readingOrder(QList<PaintedItem> items)
{
    std::stable_sort(items.begin(), items.end(), [](const PaintedItem& a, const PaintedItem& b) {
        if (!sameLine(a, b))
            return a.rect.top() < b.rect.top();
        return a.rect.left() < b.rect.left();
    });
    return items;
}

// The lines a growing box of width shows text in: broken between words where they fit,
// anywhere inside a word wider than the box, and at every line break of the text.
QStringList wrappedLines(const QString& text, const QFont& font, const QPaintDevice* device, double width)
{
    QString flowing = text;
    flowing.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    flowing.replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(flowing, font, device);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        QString part = flowing.mid(line.textStart(), line.textLength());
        part.remove(QChar::LineSeparator);
        while (part.endsWith(u' '))
            part.chop(1);
        lines << part;
    }
    layout.endLayout();
    return lines;
}

// The text of a page header or footer label with "%d" (the date printed), "%p" (the page)
// and "%P" (the pages) filled in, in one pass so that no filled-in text is read again.
QString withPageCodes(const QString& text, const QString& date, int page, int pages)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar code = i + 1 < text.size() && text.at(i) == u'%' ? text.at(i + 1) : QChar();
        if (code == u'd')
            result += date;
        else if (code == u'p')
            result += QString::number(page);
        else if (code == u'P')
            result += QString::number(pages);
        else {
            result += text.at(i);
            continue;
        }
        ++i;
    }
    return result;
}

} // namespace

QStringList ReportPage::texts() const
{
    QStringList result;
    for (const PaintedItem& item : readingOrder(items)) {
        if (item.kind == PaintedItem::Kind::Text)
            result << item.text;
    }
    return result;
}

QStringList ReportPage::lines() const
{
    QStringList result;
    const PaintedItem* previous = nullptr;
    const QList<PaintedItem> ordered = readingOrder(items);
    for (const PaintedItem& item : ordered) {
        if (item.kind != PaintedItem::Kind::Text || item.text.isEmpty())
            continue;
        if (previous && sameLine(*previous, item))
            result.last() += u' ' + item.text;
        else
            result << item.text;
        previous = &item;
    }
    return result;
}

ReportPaginator::ReportPaginator(const ReportLayout& layout, QPagedPaintDevice& device, const QDate& printed)
    : m_layout(layout)
    , m_fitted(layout)
    , m_device(device)
    , m_printed(printed)
    , m_font(fontFamily())
{
    m_font.setPointSizeF(9.0);
    m_bold = m_font;
    m_bold.setBold(true);
    m_title = m_bold;
    m_title.setPointSizeF(14.0);

    // The painter's origin is the device's paintable area; the margins are measured from
    // the edge of the paper.
    const int dpi = device.logicalDpiY();
    const QPageLayout page = device.pageLayout();
    const QRect full = page.fullRectPixels(dpi);
    const QRect paintable = page.paintRectPixels(dpi);
    const double margin = Inch * dpi;
    const double left = std::max(0.0, margin - paintable.left());
    const double top = std::max(0.0, margin - paintable.top());
    m_left = left;
    m_width = full.width() - 2 * margin;
    m_top = top;
    m_footerTop = full.height() - margin - paintable.top();
    m_lineHeight = QFontMetricsF(m_font, &device).height();
}

ReportPaginator::Band ReportPaginator::band(
    const ReportSection& section, const QStringList& fields, const QVariantList& values, bool pageCodes) const
{
    Band result;
    const QFontMetricsF plain(m_font, &m_device);
    const QFontMetricsF bold(m_bold, &m_device);
    const QFontMetricsF title(m_title, &m_device);
    int lastRow = -1;
    for (const ReportItem& item : section)
        lastRow = std::max(lastRow, item.hidden ? -1 : item.row);
    double rowTop = 0.0;
    for (int row = 0; row <= lastRow; ++row) {
        double rowHeight = 0.0;
        for (const ReportItem& item : section) {
            if (item.hidden || item.row != row)
                continue;
            const double x = m_left + item.left * m_width;
            const double w = item.width * m_width;
            if (item.kind == ReportItem::Kind::Rule) {
                const double height = m_lineHeight / 2;
                result.items << PaintedItem {
                    PaintedItem::Kind::Line, QRectF(x, rowTop + height / 2, w, 0), {}};
                rowHeight = std::max(rowHeight, height);
                continue;
            }
            QString text = shownText(item);
            if (item.kind == ReportItem::Kind::Field) {
                const int index = int(fields.indexOf(item.text));
                text = index >= 0 && index < values.size() ? reportText(values.at(index)) : QString();
            }
            const bool isTitle = item.bold && item.kind == ReportItem::Kind::Label;
            const QFontMetricsF& metrics = isTitle ? title : item.bold ? bold : plain;
            const QFont& font = isTitle ? m_title : item.bold ? m_bold : m_font;
            const double height = metrics.height();
            const bool codes = pageCodes && item.kind == ReportItem::Kind::Label;
            const bool fits
                = !text.contains(u'\n') && !text.contains(u'\r') && metrics.horizontalAdvance(text) <= w;
            QStringList lines {text};
            if (item.grows && !fits)
                lines = wrappedLines(text, font, &m_device, w);
            else if (!fits)
                lines = {metrics.elidedText(
                    QString(text).replace(u'\r', u' ').replace(u'\n', u' '), Qt::ElideRight, w)};
            for (qsizetype line = 0; line < lines.size(); ++line) {
                result.items << PaintedItem {PaintedItem::Kind::Text,
                    QRectF(x, rowTop + double(line) * height, w, height), lines.at(line), item.bold, isTitle,
                    codes};
            }
            rowHeight = std::max(rowHeight, double(std::max<qsizetype>(lines.size(), 1)) * height);
        }
        rowTop += rowHeight;
    }
    result.height = rowTop;
    return result;
}

void ReportPaginator::place(const Band& band)
{
    for (PaintedItem item : band.items) {
        item.rect.translate(0, m_y);
        m_pages.last().items << item;
    }
    m_y += band.height;
}

void ReportPaginator::startPage()
{
    m_pages << ReportPage {};
    m_y = m_top;
    if (m_pages.size() == 1)
        place(band(m_fitted.reportHeader, {}, {}));
    place(m_pageHeader);
    if (m_groupHeader)
        place(*m_groupHeader);
    m_bodyTop = m_y;
    const double y = m_y;
    m_y = m_footerTop - m_pageFooter.height;
    place(m_pageFooter);
    m_y = y;
}

double ReportPaginator::freshPageRoom() const
{
    return m_bottom - m_top - m_pageHeader.height - (m_groupHeader ? m_groupHeader->height : 0.0);
}

namespace {

// Whether a band can be cut at y: no line of text stands across it.
bool cutsBetweenLines(const QList<PaintedItem>& items, double y)
{
    return std::none_of(items.begin(), items.end(), [y](const PaintedItem& item) {
        return item.rect.top() < y - Touching && item.rect.bottom() > y + Touching;
    });
}

// The lowest place within room where a band's items can be cut, or the highest place below
// its first line when nothing fits in room; 0 when the band can't be cut at all.
double cutOf(const QList<PaintedItem>& items, double height, double room)
{
    double best = 0.0;
    double first = 0.0;
    for (const PaintedItem& item : items) {
        const double y = item.rect.bottom();
        if (y <= Touching || y >= height - Touching || !cutsBetweenLines(items, y))
            continue;
        if (y <= room + Touching)
            best = std::max(best, y);
        first = first == 0.0 ? y : std::min(first, y);
    }
    return best > 0.0 ? best : first;
}

} // namespace

void ReportPaginator::placeWithBreak(const Band& band, double keepWith)
{
    if (band.items.isEmpty() && band.height == 0.0)
        return;
    if (m_y + band.height + keepWith <= m_bottom + Touching) {
        place(band);
        return;
    }
    if (m_y > m_bodyTop && band.height + keepWith <= freshPageRoom() + Touching) {
        startPage();
        place(band);
        return;
    }
    // Taller than the room a page has: what fits goes here, the rest on the pages after.
    Band rest = band;
    while (m_y + rest.height > m_bottom + Touching) {
        const double room = m_bottom - m_y;
        const double cut = cutOf(rest.items, rest.height, room);
        if (cut <= 0.0)
            break;
        if (cut > room + Touching && m_y > m_bodyTop) {
            startPage();
            continue;
        }
        Band head {cut, {}};
        Band tail {rest.height - cut, {}};
        for (PaintedItem item : std::as_const(rest.items)) {
            if (item.rect.top() < cut - Touching) {
                head.items << item;
            } else {
                item.rect.translate(0, -cut);
                tail.items << item;
            }
        }
        place(head);
        startPage();
        rest = tail;
    }
    place(rest);
}

namespace {

// The height of the first line of text of a band: what must stand below a group header on
// its page.
double firstLineHeight(const QList<PaintedItem>& items, double height)
{
    const double cut = cutOf(items, height, 0.0);
    return cut > 0.0 ? cut : height;
}

} // namespace

QList<ReportPage> ReportPaginator::paginate(const ReportData& data)
{
    m_pages.clear();
    m_groupHeader = nullptr;
    const QFontMetricsF plain(m_font, &m_device);
    const QFontMetricsF bold(m_bold, &m_device);
    m_fitted = fitColumns(m_layout, data, m_width,
        [&](const QString& text, bool isBold) { return (isBold ? bold : plain).horizontalAdvance(text); });
    m_pageHeader = band(m_fitted.pageHeader, {}, {}, true);
    m_pageFooter = band(m_fitted.pageFooter, {}, {}, true);
    m_bottom = m_footerTop - m_pageFooter.height;
    startPage();
    for (const ReportGroup& group : data.groups) {
        const Band header = band(m_fitted.groupHeader, data.parentFields, group.values);
        QList<Band> details;
        details.reserve(group.children.size());
        for (const QVariantList& child : group.children)
            details << band(m_fitted.detail, data.childFields, child);
        // The header takes its first detail along, or the first line of one taller than a page.
        double keepWith = 0.0;
        if (!details.isEmpty()) {
            const Band& first = details.first();
            keepWith = header.height + first.height <= freshPageRoom() + Touching
                ? first.height
                : firstLineHeight(first.items, first.height);
        }
        placeWithBreak(header, keepWith);
        m_groupHeader = &header;
        for (const Band& detail : details)
            placeWithBreak(detail);
        m_groupHeader = nullptr;
        placeWithBreak(band(m_fitted.groupFooter, data.parentFields, group.values));
    }
    placeWithBreak(band(m_fitted.reportFooter, {}, {}));
    fillPageCodes();
    return m_pages;
}

void ReportPaginator::fillPageCodes()
{
    const int pages = int(m_pages.size());
    const QString date = reportText(m_printed);
    for (int page = 0; page < pages; ++page) {
        for (PaintedItem& item : m_pages[page].items) {
            if (item.pageCodes)
                item.text = withPageCodes(item.text, date, page + 1, pages);
        }
    }
}

bool paintReportPages(const QList<ReportPage>& pages, QPainter& painter, QPagedPaintDevice& device)
{
    QFont plain(fontFamily());
    plain.setPointSizeF(9.0);
    QFont bold = plain;
    bold.setBold(true);
    QFont title = bold;
    title.setPointSizeF(14.0);
    const QFont* current = nullptr;
    double ascent = 0.0;
    for (int page = 0; page < pages.size(); ++page) {
        if (page > 0 && !device.newPage())
            return false;
        for (const PaintedItem& item : pages.at(page).items) {
            if (item.kind == PaintedItem::Kind::Line) {
                painter.drawLine(item.rect.topLeft(), item.rect.topRight());
                continue;
            }
            const QFont& font = item.title ? title : item.bold ? bold : plain;
            if (&font != current) {
                painter.setFont(font);
                current = &font;
                ascent = QFontMetricsF(font, &device).ascent();
            }
            painter.drawText(QPointF(item.rect.left(), item.rect.top() + ascent), item.text);
        }
    }
    return true;
}

void setReportPage(QPagedPaintDevice& device, const ReportLayout& layout)
{
    setReportPage(device, layout.orientation);
}

void setReportPage(QPagedPaintDevice& device, ReportOrientation orientation)
{
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
        orientation == ReportOrientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
        QMarginsF(0, 0, 0, 0)));
}

int printReport(const ReportLayout& layout, const ReportData& data, QPagedPaintDevice& device)
{
    const QList<ReportPage> pages = ReportPaginator(layout, device, reportToday()).paginate(data);
    QPainter painter;
    if (!painter.begin(&device))
        throw Error(PrintFailed,
            QCoreApplication::translate("kartella::ReportPages", "The report could not be printed."));
    const bool painted = paintReportPages(pages, painter, device);
    if (!painter.end() || !painted)
        throw Error(PrintFailed,
            QCoreApplication::translate("kartella::ReportPages", "The report could not be printed."));
    return int(pages.size());
}

QDate reportToday()
{
    return Clock::currentDate();
}

} // namespace kartella
