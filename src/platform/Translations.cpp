#include "platform/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace kartella {

QString installTranslations(const QStringList& languages)
{
    for (const QString& language : languages) {
        const QLocale locale(language);
        if (locale.language() == QLocale::English)
            return {};
        auto* ours = new QTranslator(QCoreApplication::instance());
        if (!ours->load(locale, QStringLiteral("kartella"), QStringLiteral("_"), TranslationsFolder)) {
            delete ours;
            continue;
        }
        QCoreApplication::installTranslator(ours);
        // A language's texts may come in parts besides its main file (kartella_lt.reports.qm).
        const QString mainFile = QFileInfo(ours->filePath()).completeBaseName();
        for (const QString& part :
            QDir(TranslationsFolder).entryList({mainFile + QStringLiteral(".*.qm")}, QDir::Files)) {
            auto* more = new QTranslator(QCoreApplication::instance());
            if (more->load(part, TranslationsFolder))
                QCoreApplication::installTranslator(more);
            else
                delete more;
        }
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
