#pragma once

#include "reports/ReportData.h"
#include "reports/ReportLayouts.h"

#include <QString>

namespace kartella {

// Throws kartella::Error when path is the file of the register that connectionString
// opens (also by another name or through a link): a report never takes the register's
// place.
void refuseRegisterAsReport(const QString& path, const QString& connectionString);

// Writes a report to a PDF file in the report's orientation, or the one given, and gives
// the number of pages. The PDF goes to a temporary file beside path that takes path's
// place only when every step of writing it succeeded; on any failure path is as it was
// and kartella::Error says why.
int writeReportPdf(const ReportLayout& layout, const ReportData& data, const QString& path);
int writeReportPdf(
    const ReportLayout& layout, const ReportData& data, const QString& path, ReportOrientation orientation);

} // namespace kartella
