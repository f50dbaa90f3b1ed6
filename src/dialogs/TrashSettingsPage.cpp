#include "dialogs/TrashSettingsPage.h"

#include "options/TrashOptions.h"
#include "platform/Prompter.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace kartella {

TrashSettingsPage::TrashSettingsPage(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("tabTrash"));
    auto* form = new QFormLayout(this);
    m_days = new QSpinBox(this);
    m_days->setObjectName(QStringLiteral("spnTrashDays"));
    m_days->setRange(1, 36500);
    m_days->setValue(trashDays());
    auto* daysLabel = new QLabel(tr("&Keep deleted items for (days):"), this);
    daysLabel->setBuddy(m_days);
    form->addRow(daysLabel, m_days);

    m_versions = new QSpinBox(this);
    m_versions->setObjectName(QStringLiteral("spnVersions"));
    m_versions->setRange(1, 1000);
    m_versions->setValue(versionsPerDocument());
    auto* versionsLabel = new QLabel(tr("Earlier &versions kept per document:"), this);
    versionsLabel->setBuddy(m_versions);
    form->addRow(versionsLabel, m_versions);

    m_folder = new QLineEdit(sharedTrashFolder(), this);
    m_folder->setObjectName(QStringLiteral("txtTrashFolder"));
    auto* browse = new QPushButton(tr("&Browse..."), this);
    browse->setObjectName(QStringLiteral("cmdBrowseTrashFolder"));
    connect(browse, &QPushButton::clicked, this, &TrashSettingsPage::browseFolder);
    auto* row = new QHBoxLayout;
    row->addWidget(m_folder);
    row->addWidget(browse);
    auto* folderLabel = new QLabel(tr("&Shared folder of a register on a server:"), this);
    folderLabel->setBuddy(m_folder);
    form->addRow(folderLabel, row);
    auto* note = new QLabel(
        tr("A register file keeps its deleted files and earlier versions in folders beside it."), this);
    note->setWordWrap(true);
    form->addRow(note);
}

void TrashSettingsPage::browseFolder()
{
    const QString chosen = Prompter::instance().chooseFolder(tr("Shared folder of the trash and versions"));
    if (!chosen.isEmpty())
        m_folder->setText(chosen);
}

void TrashSettingsPage::save()
{
    if (m_days->value() != trashDays())
        setTrashDays(m_days->value());
    if (m_versions->value() != versionsPerDocument())
        setVersionsPerDocument(m_versions->value());
    if (m_folder->text().trimmed() != sharedTrashFolder())
        setSharedTrashFolder(m_folder->text().trimmed());
}

} // namespace kartella
