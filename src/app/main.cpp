#include "explorer/Form2.h"
#include "options/FirstRun.h"
#include "platform/WidgetPrompter.h"
#include "support/FileInfo.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kartella"));
    QApplication::setApplicationDisplayName(QStringLiteral("Kartella"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("folder-documents")));
    kartella::UseIconThemeFallback();

    kartella::WidgetPrompter prompter;
    kartella::Prompter::setInstance(&prompter);

    // The installer's part: the options exist from the first start on.
    kartella::SeedOptionsIfMissing();

    int code = 0;
    {
        kartella::Form2 window;
        window.show();
        window.Form_Load();
        code = QApplication::exec();
    }
    kartella::Prompter::setInstance(nullptr);
    return code;
}
