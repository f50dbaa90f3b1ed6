#pragma once

#include <QFile>
#include <QList>
#include <QString>

namespace kartella::bench {

// One operation of a client, as its log line holds it (tab-separated, one line each, written
// as soon as the operation ends so that a client that dies leaves what it did).
struct LoggedOperation
{
    enum class Result { Done, Refused, Failed };

    QString kind; // list, search, new, edit, contact, import, delete
    Result result = Result::Done;
    double ms = 0; // the write alone for new, edit and contact; the whole step otherwise
    qint64 key = 0; // the document's id (new, edit, delete), the import's batch
    QString value; // what was stored: the description, the contact's name, the index
    QString read; // edit: the description read before it was changed; new: the indexes tried after a refusal
    QString detail; // the error's text, or counts
};

class OperationLog
{
public:
    explicit OperationLog(const QString& path);
    bool isOpen() const { return m_file.isOpen(); }
    void write(const LoggedOperation& operation);

    static QList<LoggedOperation> read(const QString& path);

private:
    QFile m_file;
};

QString resultName(LoggedOperation::Result result);

} // namespace kartella::bench
