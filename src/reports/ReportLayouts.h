#pragma once

#include <QList>
#include <QString>

namespace kartella {

// One thing a report section holds: a label with fixed text, a text box bound to a field,
// or a line across the page. Boxes stand on a row of their section (0 is the top row) and
// are placed by fractions of the printable width, so one layout fits both orientations.
struct ReportItem
{
    enum class Kind { Label, Field, Rule };
    Kind kind = Kind::Label;
    // The label's text, or the bound field's name.
    QString text;
    int row = 0;
    double left = 0.0;
    double width = 0.0;
    // A growing box wraps its text and makes its row as tall as the text needs; any other
    // box keeps one line and cuts its text short.
    bool grows = false;
    // A hidden box takes part in the binding and prints nothing.
    bool hidden = false;
    bool bold = false;
    // A whole box (a date, a registration index) always shows its text on one line and
    // uncut: its row's boxes are fitted to the page and to the texts they print (see
    // fitColumns).
    bool whole = false;
    // For a column heading of the page header: the field of the group header or detail it
    // stands over, whose place it takes when the columns are fitted.
    QString heads;
};

using ReportSection = QList<ReportItem>;

enum class ReportOrientation { Portrait, Landscape };

// A fixed layout bound to one hierarchical command: a group header for each parent row,
// a detail line for each of its child rows.
struct ReportLayout
{
    // The report's own name, the name scripts use, and its window caption.
    QString name;
    QString scriptName;
    QString caption;
    // The parent command and the chapter of child rows.
    QString command;
    QString childMember;
    ReportOrientation orientation = ReportOrientation::Portrait;

    ReportSection reportHeader;
    ReportSection pageHeader;
    ReportSection groupHeader;
    ReportSection detail;
    ReportSection groupFooter;
    ReportSection pageFooter;
    ReportSection reportFooter;
};

// The eight reports, in the order `kartella-db report --list` prints them.
const QList<ReportLayout>& reportLayouts();
// The layout by its own name or its script name; null when there is none.
const ReportLayout* findReportLayout(const QString& name);

// The layouts keep the program's own texts, which code looks up and compares; these give
// what a label prints and what a window shows, in the interface's language.
QString shownText(const ReportItem& item);
QString shownCaption(const ReportLayout& layout);

} // namespace kartella
