#pragma once

#include <QString>

class QFileInfo;

namespace kartella {

// The folder that keeps what the preview made from documents' files: the PDFs that
// LibreOffice converted Office files to, and the first-page thumbnails. An entry is named
// after its file's absolute path, size and modification time, so that a changed file gets a
// new entry and its old one ages out. The folder is held to a size limit: when it grows
// past it, the entries used longest ago go first (an entry's modification time is the time
// it was last made or used). Entries can be looked up and stored from any thread.
class PreviewCache
{
public:
    explicit PreviewCache(const QString& folder = defaultFolder(), qint64 limitBytes = 500LL * 1024 * 1024);

    // $XDG_CACHE_HOME/kartella (the platform's cache folder elsewhere).
    static QString defaultFolder();

    QString folder() const { return m_folder; }
    qint64 limitBytes() const { return m_limitBytes; }
    void setLimitBytes(qint64 bytes) { m_limitBytes = bytes; }

    // Where the entry of source with the suffix ("pdf", "png") is or would be kept.
    QString entryPath(const QFileInfo& source, const QString& suffix) const;
    // The entry's path when it is there, marked as used now; empty when it isn't.
    QString find(const QFileInfo& source, const QString& suffix) const;
    // Moves made (a file on the same disk or not) into the cache as the entry of source and
    // trims the cache; the entry's path, or empty when it couldn't be stored.
    QString store(const QString& made, const QFileInfo& source, const QString& suffix) const;
    // Removes the entries used longest ago until the folder fits the limit; keep stays.
    void trim(const QString& keep = {}) const;
    // The bytes all entries take.
    qint64 usedBytes() const;

private:
    QString m_folder;
    qint64 m_limitBytes;
};

} // namespace kartella
