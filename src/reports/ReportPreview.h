#pragma once

#include "reports/ReportData.h"
#include "reports/ReportLayouts.h"

#include <QList>
#include <QPrintPreviewDialog>
#include <QString>

#include <functional>

class QWidget;

namespace kartella {

// Qt's print preview of one report on the program's shared printer, with the report's
// caption. It prints on any printer, and its toolbar's "Save as PDF..." writes the report
// to a PDF file chosen in a file dialog, in the orientation the preview shows.
class ReportPreview : public QPrintPreviewDialog
{
    Q_OBJECT

public:
    ReportPreview(const ReportLayout& layout, ReportData data, QWidget* parent = nullptr);

    const ReportLayout& layout() const { return m_layout; }
    const ReportData& data() const { return m_data; }
    // How many pages the last paint gave.
    int pageCount() const { return m_pageCount; }

    // Asks for a file and writes the report there as a PDF; a failure is told in a message
    // and leaves any file that was there as it was.
    void saveAsPdf();

private:
    void paintReport(QPrinter* printer);
    void addSaveButton();

    const ReportLayout& m_layout;
    ReportData m_data;
    int m_pageCount = 0;
};

// What one entry of the Reports menu does: sets the printer's orientation (or, for the
// previous month, switches the month command), reads the report's rows and shows its
// preview, modal or beside the main window. Where an entry ignores errors a failure
// opens nothing and says nothing; elsewhere the kartella::Error reaches the caller.
struct ReportMenuEntry
{
    // The name the main window registers the entry's dialog under.
    QString dialog;
    std::function<void(QWidget* parent)> open;
};

const QList<ReportMenuEntry>& reportMenuEntries();

// The orientation step before a report: sets the shared printer's orientation, whether it
// prints on a printer queue or writes PDF on a machine without one.
void setPrinterOrientation(ReportOrientation orientation);

} // namespace kartella
