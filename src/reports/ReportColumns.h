#pragma once

#include "reports/ReportData.h"
#include "reports/ReportLayouts.h"

#include <QString>

#include <functional>

namespace kartella {

// The width in device units a text takes on one line, in the plain or the bold font.
using TextWidth = std::function<double(const QString& text, bool bold)>;

// The layout with its columns fitted to the page and to the rows it is to print. Each row
// of the group header and the detail that holds a whole box is laid out again from the
// left edge of its first box to the right edge of the page. Every box would take its
// widest text (or heading) and a gap; when that leaves room over, the boxes that are not
// whole share it by their own widths. When it doesn't, a whole box still takes its widest
// text and the others give way, down to half their own width (or their widest text, when
// narrower, and never below their heading), by what they would have wanted. Only when that is still too wide
// is every box narrowed and a whole box cut. A column heading (ReportItem::heads) takes the place of its
// field. Rows without a whole box, and every other section, keep their places. pageWidth
// is the printable width in the units of measure.
ReportLayout fitColumns(
    const ReportLayout& layout, const ReportData& data, double pageWidth, const TextWidth& measure);

} // namespace kartella
