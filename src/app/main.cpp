#include "explorer/MainWindow.h"
#include "options/FirstRun.h"
#include "platform/Application.h"
#include "platform/DesktopShell.h"
#include "platform/LibreOfficeSuite.h"
#include "platform/WidgetPrompter.h"
#include "support/FileInfo.h"

int main(int argc, char* argv[])
{
    kartella::Application app(argc, argv);
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("folder-documents")));
    kartella::useIconThemeFallback();

    kartella::WidgetPrompter prompter;
    kartella::Prompter::setInstance(&prompter);
    kartella::DesktopShell shell;
    kartella::Shell::setInstance(&shell);
    kartella::LibreOfficeSuite office;
    kartella::OfficeSuite::setInstance(&office);

    // The installer's part: the options exist from the first start on.
    kartella::seedOptionsIfMissing();

    int code = 0;
    {
        kartella::MainWindow window;
        window.show();
        window.load();
        code = QApplication::exec();
    }
    kartella::OfficeSuite::setInstance(nullptr);
    kartella::Shell::setInstance(nullptr);
    kartella::Prompter::setInstance(nullptr);
    return code;
}
