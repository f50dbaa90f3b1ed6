#include "registration/FileNaming.h"

#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "registration/CategoryFields.h"
#include "registration/ValueConversions.h"
#include "store/Lookups.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <QDir>
#include <QRandomGenerator>

#include <limits>

namespace kartella {

namespace {

constexpr qsizetype DescriptionLength = 25;
// The characters a new file's name doesn't keep.
constexpr QStringView IllegalCharacters = u"'!~@#$%^&/\\()<>.,:;";

} // namespace

QString DocumentFileName::docFileName(const QString& system, const QString& description,
    const QString& numberName, const QString& regIndex) const
{
    return buildFileName(system, FileNameParts {description, numberName, regIndex});
}

QString DocumentFileName::buildFileName(const QString& system, const FileNameParts& parts) const
{
    if (system == QLatin1String("0"))
        return parts.numberName;
    if (system == QLatin1String("1")) {
        const int number = QRandomGenerator::global()->bounded(1, 1000);
        return parts.description.left(DescriptionLength) % QLatin1Char(' ') % QString::number(number);
    }
    if (system == QLatin1String("2")) {
        if (parts.regIndex.isEmpty()) {
            msgBox(QCoreApplication::translate("kartella::DocumentFileName",
                       "Can't create a file, because the Registration Index is empty. Enter valid "
                       "Registration Index, please."),
                MsgBoxStyle::OkOnly | MsgBoxStyle::Critical,
                QCoreApplication::translate(
                    "kartella::DocumentFileName", "The file name must be like Registration Index"));
            return {};
        }
        return cleanFileName(parts.regIndex);
    }
    return {};
}

QString DocumentFileName::cleanFileName(const QString& text)
{
    QString cleaned = text;
    for (QChar& c : cleaned) {
        if (IllegalCharacters.contains(c))
            c = QLatin1Char('p');
    }
    return cleaned;
}

QString makeFileNumberName(qint32 category)
{
    QString mnemonic
        = nullToDefault(categoryField(category, QStringLiteral("Mnemonic")), QString()).toString();
    if (mnemonic.isEmpty()) {
        const QVariant title = categoryField(category, QStringLiteral("DokKategorija"));
        mnemonic = nullToDefault(title, QStringLiteral("WMN")).toString().left(3);
    }
    // A value that can't be read names the option in its error.
    const qint16 number = getRegInteger(QStringLiteral("FileNumber"));
    if (number == std::numeric_limits<qint16>::max())
        raiseOverflow(
            QCoreApplication::translate("kartella::DocumentFileName", "FileNumber can't go past 32767"));
    setRegValue(QStringLiteral("FileNumber"), numberWithSignPlace(number + 1));
    const QString digits = QStringLiteral("%1").arg(qAbs(int(number)), 5, 10, QLatin1Char('0'));
    return mnemonic % (number < 0 ? QStringLiteral("-") : QString()) % digits;
}

QString makeNewFileName(const QString& description, const QString& extension, const QVariant& folder,
    const QVariant& category, const QString& regIndex)
{
    const QString system = getRegValue(QStringLiteral("FileName"));
    const QString numberName = makeFileNumberName(toLong(category));
    const QString name = DocumentFileName().docFileName(system, description, numberName, regIndex);
    if (name.isEmpty())
        return {};
    const QString base = isNull(folder) ? getIniValue(QStringLiteral("AllDocs")) : folder.toString();
    return base % QDir::separator() % name % extension;
}

QString fileExistsMessage(const QString& path)
{
    return QCoreApplication::translate("kartella::DocumentFileName",
        "The File with name %1 exist. Depending on the File Name style, check Doc. Description, "
        "Registration Index or other parameters.")
        .arg(path);
}

QVariant getDocumentFolder(const QVariant& category, const QVariant& subCategory)
{
    if (!isNull(subCategory) && !subCategory.toString().isEmpty()) {
        const QVariant folder = getFieldValue(QStringLiteral("SubKategID"), QStringLiteral("SubPathToFiles"),
            QStringLiteral("tbl_Sub_Categories"), toLong(subCategory));
        if (!isNull(folder))
            return folder;
    }
    return getFieldValue(QStringLiteral("KategID"), QStringLiteral("DokKategDaug"),
        QStringLiteral("tbl_Document_Categories"), toLong(category));
}

} // namespace kartella
