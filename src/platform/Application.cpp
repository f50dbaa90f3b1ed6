#include "platform/Application.h"

#include "base/Error.h"
#include "platform/Prompter.h"

namespace kartella {

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv)
{
    // No display name: with one, the platform would append it to every window title, and
    // captions such as "Confirm Deletion" must show exactly as given.
    setApplicationName(QStringLiteral("Kartella"));
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const Error& error) {
        msgBox(error.description());
    } catch (const std::exception& error) {
        msgBox(QString::fromLocal8Bit(error.what()));
    }
    return false;
}

} // namespace kartella
