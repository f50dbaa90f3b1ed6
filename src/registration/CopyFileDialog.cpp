#include "registration/CopyFileDialog.h"

#include "base/Error.h"
#include "history/KeepVersion.h"
#include "platform/Prompter.h"
#include "platform/Shell.h"
#include "registration/ShellFiles.h"
#include "registration/StoredPaths.h"
#include "support/DialogParts.h"
#include "support/SelectionState.h"
#include "support/ShellDialogs.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace kartella {

namespace {

const QString DocumentList = QStringLiteral("ListDokSarasas");
const QString RelatedList = QStringLiteral("ListSusieti");

QLabel* makeValue(const char* name, QWidget* parent)
{
    auto* value = new QLabel(parent);
    value->setObjectName(QLatin1String(name));
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return value;
}

} // namespace

CopyFileDialog::CopyFileDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmCopyFile"));
    setWindowTitle(tr("Copy/Move File"));
    setModal(true);
    buildWidgets();
    m_hasFile = load();
}

CopyFileDialog::~CopyFileDialog() = default;

void CopyFileDialog::buildWidgets()
{
    m_document = new QLineEdit(this);
    m_document->setObjectName(QStringLiteral("txtDocument"));
    m_document->setReadOnly(true);
    m_pathNow = makeValue("txtPathNow", this);
    m_fileSize = makeValue("txtFileSize", this);
    m_fileDate = makeValue("txtFileDate", this);
    m_destination = new QLineEdit(this);
    m_destination->setObjectName(QStringLiteral("txtDestination"));
    m_destination->setAccessibleName(tr("Destination folder"));

    auto* chooser = makeDialogButton(QStringLiteral("cmdDestFolder"), tr("Destination"), this);
    auto* copy = makeDialogButton(QStringLiteral("cmdCopy"), tr("Copy"), this);
    auto* move = makeDialogButton(QStringLiteral("cmdMove"), tr("Move"), this);
    auto* close = makeDialogButton(QStringLiteral("cmdClose"), tr("Close"), this);
    connect(chooser, &QPushButton::clicked, this, &CopyFileDialog::chooseDestination);
    connect(copy, &QPushButton::clicked, this, &CopyFileDialog::copyFile);
    connect(move, &QPushButton::clicked, this, &CopyFileDialog::moveFile);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);

    auto* grid = new QGridLayout;
    int line = 0;
    for (const auto& [caption, field] :
        {std::pair<QString, QWidget*> {tr("Document Description:"), m_document},
            std::pair<QString, QWidget*> {tr("Current Location:"), m_pathNow},
            std::pair<QString, QWidget*> {tr("Size:"), m_fileSize},
            std::pair<QString, QWidget*> {tr("Date:"), m_fileDate}}) {
        grid->addWidget(makeBuddyLabel(caption, field, this), line, 0);
        grid->addWidget(field, line++, 1, 1, 2);
    }
    grid->addWidget(chooser, line, 0);
    grid->addWidget(m_destination, line, 1, 1, 2);
    grid->setColumnStretch(1, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(copy);
    buttons->addWidget(move);
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(grid);
    layout->addStretch(1);
    layout->addLayout(buttons);
    resize(520, 220);
}

bool CopyFileDialog::load()
{
    const SelectionState& state = selection();
    const bool listed = state.activeListName == DocumentList || state.activeListName == RelatedList;
    const QString path = listed ? state.selectedFilePath : QString();
    if (path.isEmpty()) {
        msgBox(tr("Select a document with a file first, please!"),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
        return false;
    }
    const QFileInfo file(path);
    if (!file.isFile()) {
        msgBox(tr("The file of this document can't be found:\n%1").arg(path),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
        return false;
    }
    m_document->setText(state.selectedItemText);
    m_fileSize->setText(QString::number(file.size()));
    m_fileDate->setText(QLocale::system().toString(file.lastModified(), QLocale::ShortFormat));
    m_pathNow->setText(path);
    return true;
}

void CopyFileDialog::chooseDestination()
{
    m_destination->setText(chooseFolder(tr("Select a Folder in which you'll to copy/move:")));
}

QString CopyFileDialog::destinationOrAsk() const
{
    const QString folder = m_destination->text();
    if (folder.isEmpty())
        msgBox(tr("Select the destination folder, please!"));
    return folder;
}

bool CopyFileDialog::keepEarlierVersion(const QString& replaced)
{
    QString reason;
    if (keepVersionBeforeReplacing(replaced, &reason))
        return true;
    msgBox(tr("The file %1 was not replaced: an earlier version of it could not be kept.\n\n%2")
               .arg(QDir::toNativeSeparators(replaced), reason),
        MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
    return false;
}

void CopyFileDialog::copyFile()
{
    const QString folder = destinationOrAsk();
    if (folder.isEmpty())
        return;
    const SelectionState& state = selection();
    QString target = targetInFolder(folder, state.selectedFilePath);
    const ReplaceCheck keepVersion([this](const QString& replaced) { return keepEarlierVersion(replaced); });
    shellCopyFile(state.selectedFilePath, target);
}

void CopyFileDialog::moveFile()
{
    const QString folder = destinationOrAsk();
    if (folder.isEmpty())
        return;
    SelectionState& state = selection();
    const QString source = state.selectedFilePath;
    // The row has to lead to the file from wherever the program starts next: a typed folder
    // counts from the working folder, and the row gets the absolute path.
    const QString target = QDir::cleanPath(QDir(folder).absoluteFilePath(fileNameOf(source)));
    if (QFileInfo(target).isDir()) {
        msgBox(tr("The folder %1 holds a folder named %2, so the file can't be moved there.")
                   .arg(QDir::toNativeSeparators(QFileInfo(target).path()), fileNameOf(source)),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, windowTitle());
        return;
    }
    QString moved = target;
    {
        const ReplaceCheck keepVersion(
            [this](const QString& replaced) { return keepEarlierVersion(replaced); });
        if (!shellMoveFile(source, moved))
            return;
    }
    moved = QFileInfo(moved).absoluteFilePath();
    const bool related = state.activeListName == RelatedList;
    try {
        storeMovedPath(related, related ? state.selectedSubDocumentId : state.selectedDocumentId, moved);
    } catch (const Error& error) {
        // The row keeps the old path, so the file goes back there: a row that leads to no
        // file would lose the document's file for every user.
        if (moveFileContents(moved, source)) {
            msgBox(error.description()
                + tr("\n\nThe file was moved back to %1.").arg(QDir::toNativeSeparators(source)));
            return;
        }
        msgBox(error.description()
            + tr("\n\nThe file could not be moved back; it is now at %1.")
                  .arg(QDir::toNativeSeparators(moved)));
    }
    state.selectedFilePath = moved;
    m_pathNow->setText(moved);
    Q_EMIT fileMoved(moved);
}

} // namespace kartella
