// Feeds any bytes to the reader of the options and ini files. The input is the file; its
// first line, when it has the form "section/name", also names a value to look up. Then a
// value (the input as text) is set, the file saved and read again: the value reads back
// exactly, and every value the file held before reads as it did.
#include "FuzzInput.h"
#include "options/SectionFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace {

const QString& scratchPath()
{
    static const QString path = QDir::tempPath() + QStringLiteral("/fuzz_section_file.")
        + QString::number(QCoreApplication::applicationPid()) + QStringLiteral(".ini");
    return path;
}

// The section and name pairs the file's lines name.
QList<QPair<QString, QString>> entriesOf(const QString& text)
{
    QList<QPair<QString, QString>> entries;
    QString section;
    for (QString line : text.split(u'\n')) {
        line = line.trimmed();
        if (line.startsWith(u'[') && line.endsWith(u']'))
            section = line.mid(1, line.size() - 2).trimmed();
        else if (line.contains(u'=') && !line.startsWith(u';') && !line.startsWith(u'#'))
            entries.append({section, line.left(line.indexOf(u'=')).trimmed()});
    }
    return entries;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using kartella::SectionFile;
    const QByteArray bytes = kartella::fuzz::bytes(data, size);
    const QString& path = scratchPath();
    {
        QFile file(path);
        FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        FUZZ_CHECK(file.write(bytes) == bytes.size());
    }
    SectionFile sections;
    FUZZ_CHECK(sections.load(path) == SectionFile::Status::Ok);

    const QList<QPair<QString, QString>> entries = entriesOf(QString::fromUtf8(bytes));
    QList<std::optional<QString>> before;
    for (const auto& [section, name] : entries)
        before << sections.value(section, name);

    const QString value = kartella::fuzz::text(data, size);
    sections.setValue(QStringLiteral("Options"), QStringLiteral("FuzzValue"), value);
    FUZZ_CHECK(sections.value(QStringLiteral("options"), QStringLiteral("fuzzvalue")) == value);
    FUZZ_CHECK(sections.save(path));

    SectionFile again;
    FUZZ_CHECK(again.load(path) == SectionFile::Status::Ok);
    FUZZ_CHECK(again.value(QStringLiteral("Options"), QStringLiteral("FuzzValue")) == value);
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const auto& [section, name] = entries.at(i);
        if (section.compare(QLatin1String("Options"), Qt::CaseInsensitive) != 0
            || name.compare(QLatin1String("FuzzValue"), Qt::CaseInsensitive) != 0)
            FUZZ_CHECK(again.value(section, name) == before.at(i));
    }
    return 0;
}
