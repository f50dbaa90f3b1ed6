#include "WorkgroupLog.h"

#include <QStringList>

namespace kartella::bench {

namespace {

QString escaped(QString text)
{
    return text.replace(u'\\', QStringLiteral("\\\\"))
        .replace(u'\t', QStringLiteral("\\t"))
        .replace(u'\n', QStringLiteral("\\n"));
}

QString unescaped(const QString& text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text.at(i) != u'\\' || i + 1 == text.size()) {
            plain += text.at(i);
            continue;
        }
        const QChar next = text.at(++i);
        plain += next == u't' ? QChar(u'\t') : next == u'n' ? QChar(u'\n') : next;
    }
    return plain;
}

} // namespace

QString resultName(LoggedOperation::Result result)
{
    switch (result) {
    case LoggedOperation::Result::Done:
        return QStringLiteral("done");
    case LoggedOperation::Result::Refused:
        return QStringLiteral("refused");
    case LoggedOperation::Result::Failed:
        break;
    }
    return QStringLiteral("failed");
}

OperationLog::OperationLog(const QString& path)
    : m_file(path)
{
    m_file.open(QIODevice::WriteOnly | QIODevice::Truncate);
}

void OperationLog::write(const LoggedOperation& operation)
{
    const QStringList fields {operation.kind, resultName(operation.result),
        QString::number(operation.ms, 'f', 3), QString::number(operation.key), escaped(operation.value),
        escaped(operation.read), escaped(operation.detail)};
    m_file.write((fields.join(u'\t') + u'\n').toUtf8());
    m_file.flush();
}

QList<LoggedOperation> OperationLog::read(const QString& path)
{
    QList<LoggedOperation> operations;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return operations;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).chopped(1);
        const QStringList fields = line.split(u'\t');
        if (fields.size() != 7)
            continue;
        LoggedOperation operation;
        operation.kind = fields[0];
        operation.result = fields[1] == u"done" ? LoggedOperation::Result::Done
            : fields[1] == u"refused"           ? LoggedOperation::Result::Refused
                                                : LoggedOperation::Result::Failed;
        operation.ms = fields[2].toDouble();
        operation.key = fields[3].toLongLong();
        operation.value = unescaped(fields[4]);
        operation.read = unescaped(fields[5]);
        operation.detail = unescaped(fields[6]);
        operations << operation;
    }
    return operations;
}

} // namespace kartella::bench
