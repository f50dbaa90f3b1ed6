#pragma once

#include <QString>
#include <QWidget>

#include <functional>

class QTableWidget;
class QVBoxLayout;

namespace kartella {

class VersionList;

// The History tab of the details dialog and the contact editor: the changes of one
// document (with its related documents and reminders) or of one contact (with its phones
// and web pages), newest first, in the words of HistoryText.h. Read-only; it reads the
// register each time it is shown, so that it holds what Apply just stored. On a register
// without history it stays empty.
class HistoryTab : public QWidget
{
    Q_OBJECT

public:
    enum Subject { Document, Contact };

    // key gives the document's or contact's key when the tab is shown (0: none yet, as for
    // a contact not yet stored). The register is the one the options name.
    HistoryTab(Subject subject, std::function<qint64()> key, QWidget* parent = nullptr);

    // The tab's layout, for the lists that go under the changes.
    QVBoxLayout* pageLayout() const { return m_layout; }

    // Shows the earlier versions of a document's file, at currentPath now, under the changes.
    void showFileVersions(qint64 documentId, const QString& currentPath);

    // The register to read, as a connection string; the one the options name unless set.
    void setConnectionString(const QString& connectionString) { m_connectionString = connectionString; }

    // Reads the changes again.
    void refresh();

protected:
    void showEvent(QShowEvent* event) override;

private:
    Subject m_subject;
    std::function<qint64()> m_key;
    QString m_connectionString;
    QTableWidget* m_table = nullptr;
    QVBoxLayout* m_layout = nullptr;
    VersionList* m_versions = nullptr;
};

} // namespace kartella
