#include "platform/Application.h"

#include "platform/Prompter.h"
#include "support/Error.h"

namespace kartella {

Application::Application(int& argc, char** argv)
    : QApplication(argc, argv)
{ }

bool Application::notify(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const Error& error) {
        MsgBox(error.description());
    } catch (const std::exception& error) {
        MsgBox(QString::fromLocal8Bit(error.what()));
    }
    return false;
}

} // namespace kartella
