#include "platform/Translations.h"

#include "support/DataFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QTranslator>

namespace kartella {

namespace {

// Loads the program's translation for locale from the first folder that has it, with the
// parts that come beside its main file (kartella_lt.qtbase.qm); null when none has it.
QTranslator* loadOwnTranslation(const QLocale& locale)
{
    for (const QString& folder : translationFolders()) {
        auto* ours = new QTranslator(QCoreApplication::instance());
        if (!ours->load(locale, QStringLiteral("kartella"), QStringLiteral("_"), folder)) {
            delete ours;
            continue;
        }
        QCoreApplication::installTranslator(ours);
        const QString mainFile = QFileInfo(ours->filePath()).completeBaseName();
        for (const QString& part :
            QDir(folder).entryList({mainFile + QStringLiteral(".*.qm")}, QDir::Files)) {
            auto* more = new QTranslator(QCoreApplication::instance());
            if (more->load(part, folder))
                QCoreApplication::installTranslator(more);
            else
                delete more;
        }
        return ours;
    }
    return nullptr;
}

} // namespace

QStringList translationFolders()
{
    QStringList folders;
    for (const QString& data : dataFolders())
        folders << data + QStringLiteral("/translations");
    folders << BuiltInTranslationsFolder;
    return folders;
}

QString installedInterfaceLanguage()
{
    const QRegularExpression ownMainFile(QStringLiteral("^kartella_[A-Za-z_]+\\.qm$"));
    for (const QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
        if (!translator->isEmpty()
            && ownMainFile.match(QFileInfo(translator->filePath()).fileName()).hasMatch())
            return translator->language();
    }
    return {};
}

QString installTranslations(const QStringList& languages)
{
    for (const QString& language : languages) {
        const QLocale locale(language);
        if (locale.language() == QLocale::English)
            return {};
        QTranslator* ours = loadOwnTranslation(locale);
        if (!ours)
            continue;
        // Qt's file, print and message box dialogs, where Debian's qt6-translations-l10n has them.
        const QString qtFolder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
        for (const QString& catalog : {QStringLiteral("qtbase"), QStringLiteral("qt")}) {
            auto* qt = new QTranslator(QCoreApplication::instance());
            if (qt->load(locale, catalog, QStringLiteral("_"), qtFolder)) {
                QCoreApplication::installTranslator(qt);
                break;
            }
            delete qt;
        }
        return ours->language().isEmpty() ? locale.name().section(u'_', 0, 0) : ours->language();
    }
    return {};
}

} // namespace kartella
