#include "options/FirstRun.h"
#include "platform/WidgetPrompter.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Kartella"));
    QApplication::setApplicationDisplayName(QStringLiteral("Kartella"));

    kartella::WidgetPrompter prompter;
    kartella::Prompter::setInstance(&prompter);

    kartella::SeedOptionsIfMissing();

    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Kartella"));
    window.show();
    const int code = QApplication::exec();
    kartella::Prompter::setInstance(nullptr);
    return code;
}
