#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace kartella {

// The busy pointer while it lives: around any work that makes the user wait.
class BusyCursor
{
public:
    BusyCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyCursor() { QGuiApplication::restoreOverrideCursor(); }
    BusyCursor(const BusyCursor&) = delete;
    BusyCursor& operator=(const BusyCursor&) = delete;
};

} // namespace kartella
