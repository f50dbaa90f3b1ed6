// kartella-scanner: the process in which Kartella talks to SANE. The program starts it for
// each scan window and speaks to it over its standard input and output.
#include "capture/ScanProtocol.h"
#include "options/LanguageOption.h"
#include "platform/Translations.h"

#include <QCoreApplication>
#include <QLocale>

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Kartella"));
    const QStringList arguments = QCoreApplication::arguments();
    // The program names its language; started by hand, the options and the desktop choose.
    const qsizetype language = arguments.indexOf(QStringLiteral("--language"));
    kartella::installTranslations(language > 0 && language + 1 < arguments.size()
            ? QStringList {arguments.at(language + 1)}
            : kartella::interfaceLanguages(kartella::interfaceLanguage(), QLocale::system().uiLanguages()));
    QString library;
    const qsizetype at = arguments.indexOf(QStringLiteral("--sane-library"));
    if (at > 0 && at + 1 < arguments.size())
        library = arguments.at(at + 1);
    return kartella::serveScanner(library);
}
