#include "history/HistoryTab.h"

#include "base/Error.h"
#include "history/HistoryLog.h"
#include "history/HistoryText.h"
#include "history/VersionList.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace kartella {

HistoryTab::HistoryTab(Subject subject, std::function<qint64()> key, QWidget* parent)
    : QWidget(parent)
    , m_subject(subject)
    , m_key(std::move(key))
{
    setObjectName(QStringLiteral("tabHistory"));
    m_table = new QTableWidget(0, 5, this);
    m_table->setObjectName(QStringLiteral("lstHistory"));
    m_table->setAccessibleName(QStringLiteral("Changes"));
    m_table->setHorizontalHeaderLabels({tr("When"), tr("Who"), tr("Command"), tr("What"), tr("Change")});
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setTabKeyNavigation(false);
    m_table->verticalHeader()->setVisible(false);
    m_table->horizontalHeader()->setStretchLastSection(true);
    auto* label = new QLabel(tr("&Changes:"), this);
    label->setBuddy(m_table);
    m_layout = new QVBoxLayout(this);
    m_layout->addWidget(label);
    m_layout->addWidget(m_table, 1);
}

void HistoryTab::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    refresh();
}

void HistoryTab::showFileVersions(qint64 documentId, const QString& currentPath)
{
    if (m_versions || documentId <= 0)
        return;
    // The list carries its own caption.
    m_versions = new VersionList(documentId, currentPath, this);
    m_layout->addWidget(m_versions);
    // A version made current is a change of the document too.
    connect(m_versions, &VersionList::restored, this, &HistoryTab::refresh);
}

void HistoryTab::refresh()
{
    m_table->setRowCount(0);
    const qint64 key = m_key ? m_key() : 0;
    if (key <= 0)
        return;
    std::vector<HistoryEntry> entries;
    HistoryNames names;
    try {
        Connection connection(m_connectionString.isEmpty() ? plainConnectionString() : m_connectionString);
        connection.open();
        entries = m_subject == Document ? documentHistory(connection, key) : contactHistory(connection, key);
        names = historyNames(connection, entries);
    } catch (const Error& error) {
        // The history is a view beside the dialog's work: a register it can't read leaves it empty.
        m_table->setToolTip(error.description());
        return;
    }
    std::vector<HistoryLine> lines;
    lines.reserve(entries.size());
    for (const HistoryEntry& entry : entries) {
        if (std::optional<HistoryLine> line = historyLine(entry, &names))
            lines.push_back(std::move(*line));
    }
    m_table->setRowCount(int(lines.size()));
    for (int row = 0; row < int(lines.size()); ++row) {
        const HistoryLine& line = lines[std::size_t(row)];
        int column = 0;
        for (const QString& text : {line.when, line.who, line.command, line.what, line.change})
            m_table->setItem(row, column++, new QTableWidgetItem(text));
    }
    m_table->resizeColumnsToContents();
}

} // namespace kartella
