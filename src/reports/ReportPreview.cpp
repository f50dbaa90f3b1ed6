#include "reports/ReportPreview.h"

#include "base/Error.h"
#include "platform/Prompter.h"
#include "reports/ReportCommands.h"
#include "reports/ReportPages.h"
#include "reports/ReportPdf.h"
#include "support/BusyCursor.h"
#include "support/SharedPrinter.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QPainter>
#include <QPrinter>
#include <QToolBar>
#include <QToolButton>

namespace kartella {

namespace {

enum class Step { Landscape, Portrait, PreviousMonth };
enum class Shown { Modal, Beside };
enum class OnError { Ignore, Raise };

void openReport(const QString& name, Step step, Shown shown, OnError onError, QWidget* parent)
{
    try {
        if (step == Step::PreviousMonth)
            ReportCommands::instance().usePreviousMonth();
        else
            setPrinterOrientation(
                step == Step::Landscape ? ReportOrientation::Landscape : ReportOrientation::Portrait);
        const ReportLayout& layout = *findReportLayout(name);
        ReportData data;
        {
            BusyCursor busy;
            data = ReportCommands::instance().run(layout);
        }
        auto* preview = new ReportPreview(layout, std::move(data), parent);
        preview->setAttribute(Qt::WA_DeleteOnClose);
        if (shown == Shown::Modal)
            preview->exec();
        else
            preview->show();
    } catch (const Error&) {
        if (onError == OnError::Raise)
            throw;
    }
}

ReportMenuEntry entry(const QString& dialog, const QString& report, Step step, Shown shown, OnError onError)
{
    return {dialog, [=](QWidget* parent) { openReport(report, step, shown, onError, parent); }};
}

} // namespace

ReportPreview::ReportPreview(const ReportLayout& layout, ReportData data, QWidget* parent)
    : QPrintPreviewDialog(&sharedPrinter(), parent)
    , m_layout(layout)
    , m_data(std::move(data))
{
    setObjectName(layout.name);
    setWindowTitle(shownCaption(layout));
    connect(this, &QPrintPreviewDialog::paintRequested, this, &ReportPreview::paintReport);
    addSaveButton();
}

void ReportPreview::addSaveButton()
{
    auto* toolbar = findChild<QToolBar*>();
    if (!toolbar)
        return;
    // First on the toolbar, where a narrow window doesn't push it into the overflow menu.
    auto* save
        = new QAction(QIcon::fromTheme(QStringLiteral("document-save-as")), tr("Save as PDF..."), toolbar);
    save->setObjectName(QStringLiteral("savePdf"));
    // A tool button drops the dots of an action's text; the button shows them.
    save->setIconText(save->text());
    QAction* first = toolbar->actions().value(0);
    toolbar->insertAction(first, save);
    toolbar->insertSeparator(first);
    if (auto* button = qobject_cast<QToolButton*>(toolbar->widgetForAction(save))) {
        button->setObjectName(QStringLiteral("savePdfButton"));
        button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        button->setAccessibleName(QStringLiteral("Save as PDF"));
    }
    connect(save, &QAction::triggered, this, &ReportPreview::saveAsPdf);
}

void ReportPreview::saveAsPdf()
{
    QFileDialog chooser(this, tr("Save as PDF"), QDir::homePath(), tr("PDF files (*.pdf)"));
    chooser.setObjectName(QStringLiteral("savePdfDialog"));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setFileMode(QFileDialog::AnyFile);
    chooser.setDefaultSuffix(QStringLiteral("pdf"));
    chooser.selectFile(shownCaption(m_layout) + QStringLiteral(".pdf"));
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty())
        return;
    const QString path = chooser.selectedFiles().constFirst();
    const ReportOrientation orientation = printer()->pageLayout().orientation() == QPageLayout::Landscape
        ? ReportOrientation::Landscape
        : ReportOrientation::Portrait;
    try {
        BusyCursor busy;
        refuseRegisterAsReport(path, ReportCommands::instance().connectionString());
        writeReportPdf(m_layout, m_data, path, orientation);
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
    }
}

void ReportPreview::paintReport(QPrinter* printer)
{
    BusyCursor busy;
    const QList<ReportPage> pages = ReportPaginator(m_layout, *printer, reportToday()).paginate(m_data);
    QPainter painter(printer);
    paintReportPages(pages, painter, *printer);
    m_pageCount = int(pages.size());
}

const QList<ReportMenuEntry>& reportMenuEntries()
{
    static const QList<ReportMenuEntry> entries = {
        entry(QStringLiteral("DataReport1"), QStringLiteral("DataReport1"), Step::Landscape, Shown::Modal,
            OnError::Ignore),
        entry(QStringLiteral("rptThisMonth"), QStringLiteral("rptThisMonth"), Step::Landscape, Shown::Modal,
            OnError::Raise),
        entry(QStringLiteral("rptPreviousMonth"), QStringLiteral("rptThisMonth"), Step::PreviousMonth,
            Shown::Modal, OnError::Raise),
        entry(QStringLiteral("DataReport4"), QStringLiteral("DataReport4"), Step::Landscape, Shown::Modal,
            OnError::Ignore),
        entry(QStringLiteral("DataReport2"), QStringLiteral("DataReport2"), Step::Landscape, Shown::Modal,
            OnError::Raise),
        entry(QStringLiteral("DataReport3"), QStringLiteral("DataReport3"), Step::Portrait, Shown::Modal,
            OnError::Raise),
        entry(QStringLiteral("AddressBooks"), QStringLiteral("AddressBooks"), Step::Portrait, Shown::Modal,
            OnError::Raise),
        entry(QStringLiteral("DataReport5"), QStringLiteral("DataReport5"), Step::Portrait, Shown::Beside,
            OnError::Raise),
        entry(QStringLiteral("PhoneList"), QStringLiteral("PhoneList"), Step::Portrait, Shown::Modal,
            OnError::Ignore),
    };
    return entries;
}

void setPrinterOrientation(ReportOrientation orientation)
{
    // Also where there is no printer queue and the shared printer writes PDF: the preview
    // shows the report in the orientation it is printed in everywhere.
    QPrinter& printer = sharedPrinter();
    printer.setPageOrientation(
        orientation == ReportOrientation::Landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setDuplex(QPrinter::DuplexNone);
}

} // namespace kartella
