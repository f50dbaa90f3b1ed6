#include "platform/DesktopShell.h"

#include "platform/DesktopHandlers.h"
#include "platform/FilePropertiesDialog.h"
#include "platform/Prompter.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QProgressDialog>
#include <QStandardPaths>
#include <QUrl>

namespace kartella {

namespace {

// The extensions of the files that LibreOffice prints: text documents, spreadsheets,
// presentations and drawings of the office formats.
bool isOfficeFile(const QString& path)
{
    static const QStringList extensions = {QStringLiteral("doc"), QStringLiteral("dot"),
        QStringLiteral("docx"), QStringLiteral("docm"), QStringLiteral("dotx"), QStringLiteral("rtf"),
        QStringLiteral("odt"), QStringLiteral("ott"), QStringLiteral("fodt"), QStringLiteral("xls"),
        QStringLiteral("xlt"), QStringLiteral("xlsx"), QStringLiteral("xlsm"), QStringLiteral("xltx"),
        QStringLiteral("ods"), QStringLiteral("ots"), QStringLiteral("fods"), QStringLiteral("ppt"),
        QStringLiteral("pot"), QStringLiteral("pps"), QStringLiteral("pptx"), QStringLiteral("pptm"),
        QStringLiteral("potx"), QStringLiteral("ppsx"), QStringLiteral("odp"), QStringLiteral("otp"),
        QStringLiteral("fodp"), QStringLiteral("odg"), QStringLiteral("vsd")};
    return extensions.contains(QFileInfo(path).suffix(), Qt::CaseInsensitive);
}

QWidget* ownerWindow()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

// A modal progress dialog with a Cancel button, closed when the copy ends.
class DialogProgress final : public CopyProgress
{
public:
    DialogProgress(const QString& source, const QString& target, qint64 total, bool moving)
        : m_dialog(ownerWindow())
        , m_total(total)
    {
        const QFileInfo into(target);
        m_dialog.setObjectName(QStringLiteral("dlgCopyProgress"));
        m_dialog.setWindowTitle(moving
                ? QCoreApplication::translate("kartella::DesktopShell", "Moving File")
                : QCoreApplication::translate("kartella::DesktopShell", "Copying File"));
        const QString name = QFileInfo(source).fileName();
        const QString folder = QDir::toNativeSeparators(into.absolutePath());
        m_dialog.setLabelText(moving
                ? QCoreApplication::translate("kartella::DesktopShell", "Moving '%1' to '%2'...")
                      .arg(name, folder)
                : QCoreApplication::translate("kartella::DesktopShell", "Copying '%1' to '%2'...")
                      .arg(name, folder));
        m_dialog.setCancelButtonText(QCoreApplication::translate("kartella::DesktopShell", "Cancel"));
        m_dialog.setWindowModality(Qt::ApplicationModal);
        m_dialog.setAutoClose(false);
        m_dialog.setAutoReset(false);
        m_dialog.setMinimumDuration(0);
        m_dialog.setRange(0, Steps);
        m_dialog.setValue(0);
        m_dialog.show();
        QCoreApplication::processEvents();
    }

    bool advance(qint64 done) override
    {
        m_dialog.setValue(m_total > 0 ? int(done * Steps / m_total) : Steps);
        QCoreApplication::processEvents();
        return !m_dialog.wasCanceled();
    }

private:
    static constexpr int Steps = 1000;
    QProgressDialog m_dialog;
    qint64 m_total;
};

} // namespace

bool DesktopShell::open(const QString& path)
{
    if (path.isEmpty() || !QFileInfo::exists(path))
        return false;
    if (!desktopOpensFile(path)) {
        ask(QCoreApplication::translate("kartella::DesktopShell",
                "No program on this desktop opens files of the type %1.\r\rInstall a program for "
                "this type of file, or choose one for it in the desktop's settings, "
                "then open the document again.")
                .arg(fileTypeDescription(path)),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation,
            QCoreApplication::translate("kartella::DesktopShell", "Unable to open Document"));
        return false;
    }
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
}

ShellCommand DesktopShell::printCommand(const QString& path)
{
    const QString file = QFileInfo(path).absoluteFilePath();
    if (isOfficeFile(path))
        return {QStringLiteral("soffice"), {QStringLiteral("--headless"), QStringLiteral("-p"), file}};
    return {QStringLiteral("lp"), {QStringLiteral("--"), file}};
}

bool DesktopShell::print(const QString& path)
{
    if (!QFileInfo(path).isFile())
        return false;
    const ShellCommand command = printCommand(path);
    const QString program = QStandardPaths::findExecutable(command.program);
    if (program.isEmpty())
        return false;
    return QProcess::startDetached(program, command.arguments);
}

void DesktopShell::showProperties(const QString& path)
{
    if (path.isEmpty() || !QFileInfo::exists(path))
        return;
    auto* dialog = new FilePropertiesDialog(path, ownerWindow());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->show();
}

std::unique_ptr<CopyProgress> DesktopShell::startProgress(
    const QString& source, const QString& target, qint64 total, bool moving)
{
    if (total <= m_progressThreshold || !qobject_cast<QApplication*>(QCoreApplication::instance()))
        return nullptr;
    ++m_progressShown;
    return std::make_unique<DialogProgress>(source, target, total, moving);
}

} // namespace kartella
