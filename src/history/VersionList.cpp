#include "history/VersionList.h"

#include "base/Error.h"
#include "history/Versions.h"
#include "options/OptionStore.h"
#include "options/TrashOptions.h"
#include "platform/Prompter.h"
#include "platform/Shell.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace kartella {

namespace {

constexpr int PathRole = Qt::UserRole;

Versions registerVersions()
{
    return Versions(
        versionsFolderFor(getRegValue(QStringLiteral("DbLocation")).trimmed()), versionsPerDocument());
}

} // namespace

VersionList::VersionList(qint64 documentId, QString currentPath, QWidget* parent)
    : QWidget(parent)
    , m_documentId(documentId)
    , m_currentPath(std::move(currentPath))
{
    setObjectName(QStringLiteral("VersionList"));
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel(tr("&Earlier versions of the file:"), this);
    m_list = new QTreeWidget(this);
    m_list->setObjectName(QStringLiteral("lstVersions"));
    m_list->setRootIsDecorated(false);
    m_list->setHeaderLabels({tr("Kept"), tr("Size"), tr("Replaced by")});
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    label->setBuddy(m_list);
    layout->addWidget(label);
    layout->addWidget(m_list);
    auto* buttons = new QHBoxLayout;
    m_open = new QPushButton(tr("&Open"), this);
    m_open->setObjectName(QStringLiteral("cmdOpenVersion"));
    m_restore = new QPushButton(tr("&Restore"), this);
    m_restore->setObjectName(QStringLiteral("cmdRestoreVersion"));
    buttons->addStretch();
    buttons->addWidget(m_open);
    buttons->addWidget(m_restore);
    layout->addLayout(buttons);
    connect(m_open, &QPushButton::clicked, this, &VersionList::openSelected);
    connect(m_restore, &QPushButton::clicked, this, &VersionList::restoreSelected);
    connect(m_list, &QTreeWidget::itemActivated, this, &VersionList::openSelected);
    connect(m_list, &QTreeWidget::itemSelectionChanged, this, &VersionList::updateButtons);
    fill();
}

void VersionList::fill()
{
    m_list->clear();
    try {
        const QLocale locale;
        for (const FileVersion& version : registerVersions().list(m_documentId)) {
            auto* row = new QTreeWidgetItem(m_list,
                {locale.toString(version.keptAt.toLocalTime(), QLocale::ShortFormat),
                    locale.formattedDataSize(version.size), version.keptBy});
            row->setData(0, PathRole, version.path);
            row->setData(1, PathRole, version.size);
            row->setData(2, PathRole, version.keptAt);
        }
    } catch (const Error&) {
        // No versions folder named yet: no versions to show.
    }
    if (m_list->topLevelItemCount() > 0)
        m_list->setCurrentItem(m_list->topLevelItem(0));
    updateButtons();
}

void VersionList::updateButtons()
{
    const bool chosen = m_list->currentItem() != nullptr;
    m_open->setEnabled(chosen);
    m_restore->setEnabled(chosen && !m_currentPath.isEmpty());
}

void VersionList::openSelected()
{
    if (const QTreeWidgetItem* row = m_list->currentItem())
        Shell::instance().open(row->data(0, PathRole).toString());
}

void VersionList::restoreSelected()
{
    const QTreeWidgetItem* row = m_list->currentItem();
    if (!row || m_currentPath.isEmpty())
        return;
    const FileVersion version {row->data(0, PathRole).toString(), row->data(2, PathRole).toDateTime(),
        row->data(1, PathRole).toLongLong(), row->text(2)};
    try {
        registerVersions().restore(m_documentId, m_currentPath, version);
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, tr("Restore"));
        return;
    }
    fill();
    Q_EMIT restored();
}

} // namespace kartella
