#include "reports/ReportPdf.h"

#include "base/Error.h"
#include "reports/ReportPages.h"
#include "store/engine/ConnectionString.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

#include <cerrno>

namespace kartella {

namespace {

[[noreturn]] void cantWrite(const QString& path, const QString& reason)
{
    throw Error(ErrorNumber::PathFileAccess,
        QCoreApplication::translate("kartella::ReportPdf", "Can't write the file \"%1\": %2.")
            .arg(QDir::toNativeSeparators(path), reason));
}

} // namespace

void refuseRegisterAsReport(const QString& path, const QString& connectionString)
{
    const QFileInfo target(path);
    const QFileInfo registerFile(engine::parseConnectionString(connectionString).dataSource);
    if (!target.exists() || !registerFile.exists())
        return;
    if (target.canonicalFilePath() == registerFile.canonicalFilePath()) {
        throw Error(ErrorNumber::PathFileAccess,
            QCoreApplication::translate("kartella::ReportPdf",
                "\"%1\" is the register the report reads; choose another file for the report.")
                .arg(QDir::toNativeSeparators(path)));
    }
}

int writeReportPdf(const ReportLayout& layout, const ReportData& data, const QString& path)
{
    return writeReportPdf(layout, data, path, layout.orientation);
}

int writeReportPdf(
    const ReportLayout& layout, const ReportData& data, const QString& path, ReportOrientation orientation)
{
    // The PDF is made in memory first: a write to the file that takes only part of it is
    // then seen as the short write it is.
    QBuffer pdf;
    pdf.open(QIODevice::WriteOnly);
    int pages = 0;
    {
        QPdfWriter writer(&pdf);
        writer.setResolution(300);
        writer.setTitle(shownCaption(layout));
        writer.setCreator(QStringLiteral("Kartella"));
        setReportPage(writer, orientation);
        QPainter painter;
        if (!painter.begin(&writer))
            cantWrite(
                path, QCoreApplication::translate("kartella::ReportPdf", "the PDF could not be started"));
        const QList<ReportPage> laidOut = ReportPaginator(layout, writer, reportToday()).paginate(data);
        const bool painted = paintReportPages(laidOut, painter, writer);
        if (!painter.end() || !painted)
            cantWrite(path, QCoreApplication::translate("kartella::ReportPdf", "the PDF could not be made"));
        pages = int(laidOut.size());
    }
    // A device or a folder can't be replaced whole, so it is not written at all.
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        cantWrite(path, QCoreApplication::translate("kartella::ReportPdf", "it is not a plain file"));
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        cantWrite(path, file.errorString());
    if (file.write(pdf.data()) != pdf.data().size() || !file.flush()) {
        // The system's reason, which the file device does not always keep (a full disk).
        const int reason = errno;
        file.cancelWriting();
        cantWrite(path, reason != 0 ? qt_error_string(reason) : file.errorString());
    }
    if (!file.commit())
        cantWrite(path, file.errorString());
    return pages;
}

} // namespace kartella
