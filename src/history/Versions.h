#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

namespace kartella {

// One earlier file of a document: where it is kept, when it was kept (UTC), its size and who
// replaced it.
struct FileVersion
{
    QString path;
    QDateTime keptAt;
    qint64 size = 0;
    QString keptBy;
};

// The earlier files of the documents, in the versions folder (see versionsFolderFor): one
// folder per document, named by its key; a version's file name carries when and by whom it
// was kept and the file's own name, so that every user of the register sees the same
// versions without a table to keep in step. Beyond the limit per document the oldest go.
// Failures throw kartella::Error and leave the document's file as it was.
class Versions
{
public:
    Versions(QString folder, int limit);

    // Keeps a copy of file as the newest version of the document; nothing when there is no
    // such file.
    void keep(qint64 documentId, const QString& file);
    // The versions of the document, newest first.
    QList<FileVersion> list(qint64 documentId) const;
    // Puts the content of replacement in place of the document's file current, keeping the
    // current one as a version first.
    void replace(qint64 documentId, const QString& current, const QString& replacement);
    // Makes a version the current file again, keeping the current one as a version.
    void restore(qint64 documentId, const QString& current, const FileVersion& version);

private:
    QString documentFolder(qint64 documentId) const;
    void dropBeyondLimit(qint64 documentId);

    QString m_folder;
    int m_limit;
};

} // namespace kartella
