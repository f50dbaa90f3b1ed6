#pragma once

#include <QDate>
#include <QString>

namespace kartella::sample {

// What a sample file says about its document.
struct FileContent
{
    QString title;
    QString index;
    QDate date;
    QString text;
};

// Writes a small file of the type its extension names: an RTF body for .doc, a one-page
// PDF for .pdf, plain text for the others. Creates the folder. False when it can't write.
bool writeSampleFile(const QString& path, const FileContent& content);

} // namespace kartella::sample
