#include "dialogs/CaptureSettingsPage.h"

#include "options/CaptureOptions.h"
#include "platform/Prompter.h"
#include "support/DialogParts.h"
#include "support/ShellDialogs.h"

#include <QDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

namespace kartella {

CaptureSettingsPage::CaptureSettingsPage(QDialog* dialog)
    : QWidget(dialog)
{
    setObjectName(QStringLiteral("tabIncomingFiles"));
    m_inboxFolder = new QLineEdit(inboxFolder(), this);
    m_inboxFolder->setObjectName(QStringLiteral("txtInboxFolder"));
    m_inboxFolder->setPlaceholderText(tr("No inbox"));
    auto* browse = new QPushButton(tr("&Browse..."), this);
    browse->setObjectName(QStringLiteral("cmdInboxFolder"));
    connect(browse, &QPushButton::clicked, this, &CaptureSettingsPage::chooseInboxFolder);
    m_ocrLanguages = new QLineEdit(ocrLanguages(), this);
    m_ocrLanguages->setObjectName(QStringLiteral("txtOcrLanguages"));
    m_ocrLanguages->setToolTip(tr("Tesseract's language codes joined by \"+\", as in \"lit+eng\""));

    auto* layout = new QGridLayout(this);
    layout->addWidget(makeBuddyLabel(tr("&Inbox folder:"), m_inboxFolder, this), 0, 0);
    layout->addWidget(m_inboxFolder, 0, 1);
    layout->addWidget(browse, 0, 2);
    auto* note = new QLabel(
        tr("Files put in this folder wait in the Inbox at the top of the tree. Leave it empty for no inbox."),
        this);
    note->setWordWrap(true);
    layout->addWidget(note, 1, 1, 1, 2);
    layout->addWidget(makeBuddyLabel(tr("&OCR languages:"), m_ocrLanguages, this), 2, 0);
    layout->addWidget(m_ocrLanguages, 2, 1, 1, 2);
    layout->setRowStretch(3, 1);

    connect(dialog, &QDialog::accepted, this, &CaptureSettingsPage::store);
}

bool CaptureSettingsPage::validOcrLanguages(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("^[A-Za-z0-9_]+(\\+[A-Za-z0-9_]+)*$"));
    return form.match(text.trimmed()).hasMatch();
}

void CaptureSettingsPage::chooseInboxFolder()
{
    const QString folder = chooseFolder(tr("Select the inbox folder"));
    if (!folder.isEmpty())
        m_inboxFolder->setText(folder);
}

void CaptureSettingsPage::store()
{
    const QString title = tr("Application Settings");
    const QString folder = m_inboxFolder->text().trimmed();
    if (!folder.isEmpty() && !QFileInfo(folder).isDir()) {
        msgBox(tr("The inbox folder \"%1\" is not there. The inbox stays as it was.").arg(folder),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, title);
    } else {
        setInboxFolder(folder);
    }
    const QString languages = m_ocrLanguages->text().trimmed();
    if (languages.isEmpty() || validOcrLanguages(languages)) {
        setOcrLanguages(languages);
    } else {
        msgBox(tr("\"%1\" are no OCR languages: write Tesseract's codes joined by \"+\", as in \"lit+eng\". "
                  "The languages stay as they were.")
                   .arg(languages),
            MsgBoxStyle::OkOnly | MsgBoxStyle::Exclamation, title);
    }
}

} // namespace kartella
