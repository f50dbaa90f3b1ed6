#include "reports/ReportPages.h"

#include "base/Error.h"
#include "platform/Clock.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace kartella {

namespace {

constexpr double Inch = 1.0;
constexpr int FileWriteFailed = 75;

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
    const ReportSection& section, const QStringList& fields, const QVariantList& values) const
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
            QString text = item.text;
            if (item.kind == ReportItem::Kind::Field) {
                const int index = int(fields.indexOf(item.text));
                text = index >= 0 && index < values.size() ? reportText(values.at(index)) : QString();
            }
            const bool isTitle = item.bold && item.kind == ReportItem::Kind::Label;
            const QFontMetricsF& metrics = isTitle ? title : item.bold ? bold : plain;
            double height = metrics.height();
            const bool fits = !text.contains(u'\n') && metrics.horizontalAdvance(text) <= w;
            if (item.grows && !fits) {
                height = std::max(height,
                    metrics.boundingRect(QRectF(0, 0, w, 1e6), Qt::TextWordWrap | Qt::AlignLeft, text)
                        .height());
            } else if (!fits) {
                text = metrics.elidedText(QString(text).replace(u'\n', u' '), Qt::ElideRight, w);
            }
            result.items << PaintedItem {PaintedItem::Kind::Text, QRectF(x, rowTop, w, height), text,
                item.bold, isTitle, item.grows && !fits};
            rowHeight = std::max(rowHeight, height);
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
        place(band(m_layout.reportHeader, {}, {}));
    place(band(m_layout.pageHeader, {}, {}));
    m_bodyTop = m_y;
    const double y = m_y;
    m_y = m_footerTop - m_pageFooter.height;
    place(m_pageFooter);
    m_y = y;
}

void ReportPaginator::placeWithBreak(const Band& band, double keepWith)
{
    if (band.items.isEmpty() && band.height == 0.0)
        return;
    if (m_y + band.height + keepWith > m_bottom && m_y > m_bodyTop)
        startPage();
    place(band);
}

QList<ReportPage> ReportPaginator::paginate(const ReportData& data)
{
    m_pages.clear();
    m_pageFooter = band(m_layout.pageFooter, {}, {});
    m_bottom = m_footerTop - m_pageFooter.height;
    startPage();
    for (const ReportGroup& group : data.groups) {
        const Band header = band(m_layout.groupHeader, data.parentFields, group.values);
        QList<Band> details;
        details.reserve(group.children.size());
        for (const QVariantList& child : group.children)
            details << band(m_layout.detail, data.childFields, child);
        placeWithBreak(header, details.isEmpty() ? 0.0 : details.first().height);
        for (const Band& detail : details)
            placeWithBreak(detail);
        placeWithBreak(band(m_layout.groupFooter, data.parentFields, group.values));
    }
    placeWithBreak(band(m_layout.reportFooter, {}, {}));
    fillPageCodes();
    return m_pages;
}

void ReportPaginator::fillPageCodes()
{
    const QString total = QString::number(m_pages.size());
    const QString date = reportText(m_printed);
    for (int page = 0; page < m_pages.size(); ++page) {
        for (PaintedItem& item : m_pages[page].items) {
            if (!item.text.contains(u'%'))
                continue;
            item.text.replace(QStringLiteral("%d"), date);
            item.text.replace(QStringLiteral("%p"), QString::number(page + 1));
            item.text.replace(QStringLiteral("%P"), total);
        }
    }
}

void paintReportPages(const QList<ReportPage>& pages, QPainter& painter, QPagedPaintDevice& device)
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
        if (page > 0)
            device.newPage();
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
            // One line goes the short way, without a text layout of its own.
            if (item.wraps)
                painter.drawText(item.rect, Qt::TextWordWrap | Qt::AlignLeft | Qt::AlignTop, item.text);
            else
                painter.drawText(QPointF(item.rect.left(), item.rect.top() + ascent), item.text);
        }
    }
}

void setReportPage(QPagedPaintDevice& device, const ReportLayout& layout)
{
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4),
        layout.orientation == ReportOrientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
        QMarginsF(0, 0, 0, 0)));
}

int printReport(const ReportLayout& layout, const ReportData& data, QPagedPaintDevice& device)
{
    const QList<ReportPage> pages = ReportPaginator(layout, device, reportToday()).paginate(data);
    QPainter painter;
    if (!painter.begin(&device))
        throw Error(FileWriteFailed, QStringLiteral("The report could not be printed."));
    paintReportPages(pages, painter, device);
    painter.end();
    return int(pages.size());
}

int writeReportPdf(const ReportLayout& layout, const ReportData& data, const QString& path)
{
    QPdfWriter writer(path);
    writer.setResolution(300);
    writer.setTitle(layout.caption);
    writer.setCreator(QStringLiteral("Kartella"));
    setReportPage(writer, layout);
    QPainter probe;
    if (!probe.begin(&writer))
        throw Error(FileWriteFailed, QStringLiteral("Can't write the file \"%1\".").arg(path));
    const QList<ReportPage> pages = ReportPaginator(layout, writer, reportToday()).paginate(data);
    paintReportPages(pages, probe, writer);
    probe.end();
    return int(pages.size());
}

QDate reportToday()
{
    return Clock::currentDate();
}

} // namespace kartella
