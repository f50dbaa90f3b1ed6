#include "platform/Application.h"

#include "base/Error.h"
#include "platform/Prompter.h"

namespace kartella {

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv)
{ }

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
