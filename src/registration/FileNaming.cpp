#include "registration/FileNaming.h"

#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "registration/CategoryFields.h"
#include "registration/ValueConversions.h"
#include "store/Lookups.h"
#include "store/Store.h"

#include <QDir>
#include <QRandomGenerator>

#include <limits>

namespace kartella {

namespace {

constexpr qsizetype DescriptionLength = 25;
// The characters a new file's name doesn't keep.
constexpr QStringView IllegalCharacters = u"'!~@#$%^&/\\()<>.,:;";

} // namespace

QString CDocFileName::DocFileName(const QString& system, const QString& description,
    const QString& numberName, const QString& regIndex) const
{
    return BuildFileName(system, FileNameParts {description, numberName, regIndex});
}

QString CDocFileName::BuildFileName(const QString& system, const FileNameParts& parts) const
{
    if (system == QLatin1String("0"))
        return parts.NumberName;
    if (system == QLatin1String("1")) {
        const int number = QRandomGenerator::global()->bounded(1, 1000);
        return parts.Description.left(DescriptionLength) % QLatin1Char(' ') % QString::number(number);
    }
    if (system == QLatin1String("2")) {
        if (parts.RegIndex.isEmpty()) {
            MsgBox(QStringLiteral("Can't create a file, because the Registration Index is empty. Enter valid "
                                  "Registration Index, please."),
                MsgBoxStyle::OkOnly | MsgBoxStyle::Critical,
                QStringLiteral("The file name must be like Registration Index"));
            return {};
        }
        return CleanFileName(parts.RegIndex);
    }
    return {};
}

QString CDocFileName::CleanFileName(const QString& text)
{
    QString cleaned = text;
    for (QChar& c : cleaned) {
        if (IllegalCharacters.contains(c))
            c = QLatin1Char('p');
    }
    return cleaned;
}

QString MakeFileNumberName(qint32 category)
{
    const QString fileNumber = GetRegValue(QStringLiteral("FileNumber"));
    QString mnemonic
        = NullToDefault(CategoryField(category, QStringLiteral("Mnemonic")), QString()).toString();
    if (mnemonic.isEmpty()) {
        const QVariant title = CategoryField(category, QStringLiteral("DokKategorija"));
        mnemonic = NullToDefault(title, QStringLiteral("WMN")).toString().left(3);
    }
    const qint16 number = ToInteger16(fileNumber);
    if (number == std::numeric_limits<qint16>::max())
        RaiseOverflow(QStringLiteral("FileNumber can't go past 32767"));
    SetRegValue(QStringLiteral("FileNumber"), NumberWithSignPlace(number + 1));
    const QString digits = QStringLiteral("%1").arg(qAbs(int(number)), 5, 10, QLatin1Char('0'));
    return mnemonic % (number < 0 ? QStringLiteral("-") : QString()) % digits;
}

QString MakeNewFileName(const QString& description, const QString& extension, const QVariant& folder,
    const QVariant& category, const QString& regIndex)
{
    const QString system = GetRegValue(QStringLiteral("FileName"));
    const QString numberName = MakeFileNumberName(ToLong(category));
    const QString name = CDocFileName().DocFileName(system, description, numberName, regIndex);
    if (name.isEmpty())
        return {};
    const QString base = IsNull(folder) ? GetIniValue(QStringLiteral("AllDocs")) : folder.toString();
    return base % QDir::separator() % name % extension;
}

QString FileExistsMessage(const QString& path)
{
    return QStringLiteral("The File with name ") % path
        % QStringLiteral(
            " exist. Depending on the File Name style, check Doc. Description, Registration Index or "
            "other parameters.");
}

QVariant GetDocumentFolder(const QVariant& category, const QVariant& subCategory)
{
    if (!IsNull(subCategory) && !subCategory.toString().isEmpty()) {
        const QVariant folder = GetFieldValue(QStringLiteral("SubKategID"), QStringLiteral("SubPathToFiles"),
            QStringLiteral("tbl_Sub_Categories"), ToLong(subCategory));
        if (!IsNull(folder))
            return folder;
    }
    return GetFieldValue(QStringLiteral("KategID"), QStringLiteral("DokKategDaug"),
        QStringLiteral("tbl_Document_Categories"), ToLong(category));
}

} // namespace kartella
