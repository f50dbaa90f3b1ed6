#pragma once

#include <QString>
#include <QVariant>

namespace kartella {

// Names of new document files under the naming system of option FileName:
//   "0" mnemonic and the five-digit running number FileNumber (AGR00012),
//   "1" the description cut to 25 characters, a blank and a random number 1 to 999,
//   "2" the registration index with the characters a file name can't hold replaced by "p".

// The full path of a new file: folder (Null: the ini key "AllDocs"), the separator, the
// name and extension. Takes a running number under every naming system. Empty text when
// no name can be made (after telling the user why). Throws kartella::Error for an empty or
// unknown category or a FileNumber that isn't a number or would pass 32767.
QString makeNewFileName(const QString& description, const QString& extension, const QVariant& folder,
    const QVariant& category, const QString& regIndex);

// Mnemonic (or the first three letters of the title, "WMN" without one) and FileNumber
// as five digits; FileNumber then goes up by one.
QString makeFileNumberName(qint32 category);

// The message shown when the new file's path is taken.
QString fileExistsMessage(const QString& path);

// The folder for new files of a subcategory, else of its category: SubPathToFiles when it
// isn't Null (even when empty), else DokKategDaug, which may be Null.
QVariant getDocumentFolder(const QVariant& category, const QVariant& subCategory);

// The name of a document's file, without extension, under one naming system.
class DocumentFileName
{
public:
    QString docFileName(const QString& system, const QString& description, const QString& numberName,
        const QString& regIndex) const;

private:
    struct FileNameParts
    {
        QString description;
        QString numberName;
        QString regIndex;
    };

    QString buildFileName(const QString& system, const FileNameParts& parts) const;
    static QString cleanFileName(const QString& text);

    friend struct DocumentFileNameProbe; // the tests' view of the cleaning rule
};

} // namespace kartella
