#include "explorer/MainWindow.h"
#include "options/FirstRun.h"
#include "options/LanguageOption.h"
#include "platform/Application.h"
#include "platform/DesktopShell.h"
#include "platform/DesktopTelephony.h"
#include "platform/LibreOfficeSuite.h"
#include "platform/Translations.h"
#include "platform/WidgetPrompter.h"
#include "support/DataFiles.h"
#include "support/FileInfo.h"

int main(int argc, char* argv[])
{
    kartella::Application app(argc, argv);
    QApplication::setDesktopFileName(QStringLiteral("org.kartella.Kartella"));
    kartella::useIconThemeFallback();
    kartella::installTranslations(
        kartella::interfaceLanguages(kartella::interfaceLanguage(), QLocale::system().uiLanguages()));
    for (const QString& name : {QStringLiteral("snow.ico"), QStringLiteral("kartella.png")}) {
        if (kartella::findDataFile(name).isEmpty())
            qWarning("kartella: the data file %s was not found in %s", qPrintable(name),
                qPrintable(kartella::dataFolders().join(QStringLiteral(", "))));
    }
    QApplication::setWindowIcon(QIcon::fromTheme(
        QStringLiteral("kartella"), QIcon(kartella::findDataFile(QStringLiteral("kartella.png")))));

    kartella::WidgetPrompter prompter;
    kartella::Prompter::setInstance(&prompter);
    kartella::DesktopShell shell;
    kartella::Shell::setInstance(&shell);
    kartella::LibreOfficeSuite office;
    kartella::OfficeSuite::setInstance(&office);
    kartella::DesktopTelephony telephony;
    kartella::Telephony::setInstance(&telephony);

    // The installer's part: the options exist from the first start on.
    kartella::seedOptionsIfMissing();

    int code = 0;
    {
        kartella::MainWindow window;
        window.show();
        window.load();
        code = QApplication::exec();
    }
    kartella::Telephony::setInstance(nullptr);
    kartella::OfficeSuite::setInstance(nullptr);
    kartella::Shell::setInstance(nullptr);
    kartella::Prompter::setInstance(nullptr);
    return code;
}
