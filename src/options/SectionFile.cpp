#include "options/SectionFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace kartella {

namespace {

// Values are written as they are, backslashes and all, so that a value written by hand
// reads back unchanged. Only a value holding a line break, which a line can't hold, is
// written in the form @Lines(...), with "\\", "\n" and "\r" standing for a backslash
// and the two breaks.
const QString LinesPrefix = QStringLiteral("@Lines(");

// A value written by hand in double quotes ("FileNumber=" 1"") reads as the text between
// them, the blanks outside the quotes left out. A value of ours that would read so is
// written in quotes of its own.
bool isQuoted(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    return trimmed.size() >= 2 && trimmed.startsWith(u'"') && trimmed.endsWith(u'"');
}

QString encode(const QString& value)
{
    // A line break goes into the line form first, in quotes or not: a raw one would end the
    // line and start another.
    const bool lines = value.contains(u'\n') || value.contains(u'\r') || value.startsWith(LinesPrefix);
    if (!lines && isQuoted(value))
        return u'"' + value + u'"';
    if (!lines)
        return value;
    QString out = LinesPrefix;
    for (QChar c : value) {
        if (c == u'\\')
            out += QStringLiteral("\\\\");
        else if (c == u'\n')
            out += QStringLiteral("\\n");
        else if (c == u'\r')
            out += QStringLiteral("\\r");
        else
            out += c;
    }
    return out + u')';
}

QString decode(QStringView text)
{
    if (isQuoted(text)) {
        const QStringView trimmed = text.trimmed();
        return trimmed.mid(1, trimmed.size() - 2).toString();
    }
    if (!text.startsWith(LinesPrefix) || !text.endsWith(u')'))
        return text.toString();
    const QStringView inner = text.mid(LinesPrefix.size(), text.size() - LinesPrefix.size() - 1);
    QString out;
    out.reserve(inner.size());
    for (qsizetype i = 0; i < inner.size(); ++i) {
        const QChar c = inner[i];
        if (c == u'\\' && i + 1 < inner.size()) {
            const QChar next = inner[++i];
            out += next == u'n' ? QChar(u'\n') : next == u'r' ? QChar(u'\r') : next;
        } else {
            out += c;
        }
    }
    return out;
}

std::optional<QString> sectionName(QStringView line)
{
    const QStringView trimmed = line.trimmed();
    if (trimmed.size() >= 2 && trimmed.startsWith(u'[') && trimmed.endsWith(u']'))
        return trimmed.mid(1, trimmed.size() - 2).trimmed().toString();
    return std::nullopt;
}

bool isComment(QStringView line)
{
    const QStringView trimmed = line.trimmed();
    return trimmed.isEmpty() || trimmed.startsWith(u';') || trimmed.startsWith(u'#');
}

// The name of a "name=value" line, or nothing for other lines.
std::optional<QStringView> entryName(QStringView line)
{
    if (isComment(line))
        return std::nullopt;
    const qsizetype eq = line.indexOf(u'=');
    if (eq < 0)
        return std::nullopt;
    return line.left(eq).trimmed();
}

} // namespace

SectionFile::Status SectionFile::load(const QString& path)
{
    m_lines.clear();
    QFile file(path);
    if (!file.exists())
        return Status::Missing;
    if (QFileInfo(path).isDir() || !file.open(QIODevice::ReadOnly))
        return Status::Unreadable;
    const QString text = QString::fromUtf8(file.readAll());
    if (file.error() != QFileDevice::NoError)
        return Status::Unreadable;
    m_lines = text.split(u'\n');
    // Every carriage return before the line's end goes with it: a file that went through a
    // conversion twice ends its lines "\r\r\n", and a value never ends with one.
    for (QString& line : m_lines) {
        while (line.endsWith(u'\r'))
            line.chop(1);
    }
    while (!m_lines.isEmpty() && m_lines.last().isEmpty())
        m_lines.removeLast();
    return Status::Ok;
}

bool SectionFile::save(const QString& path) const
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QByteArray data;
    for (const QString& line : m_lines) {
        data += line.toUtf8();
        data += '\n';
    }
    // The data waits in the file's buffer: on a full disk only the flush fails, and commit
    // would put the short file in place of the whole one.
    if (file.write(data) != data.size() || !file.flush()) {
        file.cancelWriting();
        return false;
    }
    return file.commit();
}

std::optional<QString> SectionFile::value(const QString& section, const QString& name) const
{
    bool inSection = false;
    for (const QString& line : m_lines) {
        if (const auto header = sectionName(line)) {
            inSection = header->compare(section, Qt::CaseInsensitive) == 0;
            continue;
        }
        if (!inSection)
            continue;
        const auto entry = entryName(line);
        if (entry && entry->compare(name, Qt::CaseInsensitive) == 0)
            return decode(QStringView(line).mid(line.indexOf(u'=') + 1));
    }
    return std::nullopt;
}

void SectionFile::setValue(const QString& section, const QString& name, const QString& value)
{
    bool inSection = false;
    qsizetype sectionEnd = -1; // index after the last entry line of the section
    for (qsizetype i = 0; i < m_lines.size(); ++i) {
        const QString& line = m_lines[i];
        if (const auto header = sectionName(line)) {
            inSection = header->compare(section, Qt::CaseInsensitive) == 0;
            if (inSection)
                sectionEnd = i + 1;
            continue;
        }
        if (!inSection)
            continue;
        const auto entry = entryName(line);
        if (entry && entry->compare(name, Qt::CaseInsensitive) == 0) {
            // The stored name keeps its spelling; one option, whatever case it is written in.
            m_lines[i] = entry->toString() + u'=' + encode(value);
            return;
        }
        if (!isComment(line))
            sectionEnd = i + 1;
    }
    const QString entry = name + u'=' + encode(value);
    if (sectionEnd < 0) {
        if (!m_lines.isEmpty() && !m_lines.last().isEmpty())
            m_lines << QString();
        m_lines << u'[' + section + u']' << entry;
    } else {
        m_lines.insert(sectionEnd, entry);
    }
}

} // namespace kartella
