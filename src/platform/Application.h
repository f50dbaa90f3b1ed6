#pragma once

#include <QApplication>

namespace kartella {

// The program's application object. An error that escapes an event handler is shown to
// the user in a plain message box and the program goes on: no failure ends it.
class Application : public QApplication
{
public:
    Application(int& argc, char** argv);
    bool notify(QObject* receiver, QEvent* event) override;
};

} // namespace kartella
