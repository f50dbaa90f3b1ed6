#pragma once

#include "reports/ReportData.h"
#include "reports/ReportLayouts.h"

#include <QDate>
#include <QFont>
#include <QList>
#include <QRectF>
#include <QString>

class QPagedPaintDevice;
class QPainter;

namespace kartella {

// One thing painted on a page, in the painter's coordinates of the device it was laid
// out for: one line of text in its box, or a line along the top edge of its box. A growing
// box that wraps gives one text item per line.
struct PaintedItem
{
    enum class Kind { Text, Line };
    Kind kind = Kind::Text;
    QRectF rect;
    QString text;
    bool bold = false;
    bool title = false;
    // A label of the page header or footer, whose "%d", "%p" and "%P" are filled in.
    bool pageCodes = false;
};

struct ReportPage
{
    QList<PaintedItem> items;

    // The texts of the page from top to bottom, left to right within a line.
    QStringList texts() const;
    // The texts that stand on one line (the same top edge), joined by a blank, from top
    // to bottom.
    QStringList lines() const;
};

// Lays a report's rows out on pages of a device: report header on the first page, page
// header on every page, a group header per parent row and a detail line per child row,
// group footer, page footer at the foot of every page, report footer. The margins are one
// inch. "%d", "%p" and "%P" are replaced in the labels of the page header and footer only,
// never in the data. The columns of a row with a date or an index are fitted to the page
// and to the rows first (fitColumns), so that those print whole. A group header never stands alone at the
// foot of a page: it moves to the next page with the first line of its first detail. A page that goes on with
// the details of a group starts with the group header again. A section taller than what is left of the page
// is split between two lines of text. The device's page layout (size, orientation) must be set before.
class ReportPaginator
{
public:
    ReportPaginator(const ReportLayout& layout, QPagedPaintDevice& device, const QDate& printed);

    QList<ReportPage> paginate(const ReportData& data);

private:
    struct Band
    {
        double height = 0.0;
        QList<PaintedItem> items;
    };

    Band band(const ReportSection& section, const QStringList& fields, const QVariantList& values,
        bool pageCodes = false) const;
    void place(const Band& band);
    void startPage();
    void placeWithBreak(const Band& band, double keepWith = 0.0);
    double freshPageRoom() const;
    void fillPageCodes();

    const ReportLayout& m_layout;
    // The layout with its columns fitted to the rows being paginated.
    ReportLayout m_fitted;
    QPagedPaintDevice& m_device;
    QDate m_printed;
    QFont m_font;
    QFont m_bold;
    QFont m_title;
    double m_left = 0.0;
    double m_width = 0.0;
    double m_top = 0.0;
    double m_bottom = 0.0;
    double m_footerTop = 0.0;
    double m_lineHeight = 0.0;
    double m_y = 0.0;
    double m_bodyTop = 0.0;
    Band m_pageHeader;
    Band m_pageFooter;
    // The header of the group whose details are being placed; repeated on a new page.
    const Band* m_groupHeader = nullptr;
    QList<ReportPage> m_pages;
};

// Paints laid-out pages on a painter that is active on the device they were laid out for;
// false when the device could not start a new page.
bool paintReportPages(const QList<ReportPage>& pages, QPainter& painter, QPagedPaintDevice& device);

// Sets the paper of a device for a report: A4 in the report's orientation, or in the one
// given.
void setReportPage(QPagedPaintDevice& device, const ReportLayout& layout);
void setReportPage(QPagedPaintDevice& device, ReportOrientation orientation);

// Lays out and paints a report on a printer or PDF writer; gives the number of pages.
int printReport(const ReportLayout& layout, const ReportData& data, QPagedPaintDevice& device);

// The day a report prints as its date.
QDate reportToday();

} // namespace kartella
