// What the tests of two programs on one register share.
#pragma once

#include "base/Error.h"
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

#include <memory>

namespace kartella::test {

// Every case runs on a register file, and on a register on the tests' server when there is one.
inline void addPlaces()
{
    QTest::addColumn<int>("where");
    QTest::newRow("file") << int(TestRegister::File);
    QTest::newRow("server") << int(TestRegister::Server);
}

inline std::unique_ptr<TestRegister> makeRegister()
{
    QFETCH(int, where);
    if (where == TestRegister::Server && !ServerDatabase::available())
        return nullptr;
    return std::make_unique<TestRegister>(TestRegister::Where(where));
}

// Declares reg, the register of the running row; skips the server row without a server and
// fails (rather than ending the run) when the register can't be made.
#define REGISTER_OR_SKIP(reg)                                                                                \
    std::unique_ptr<TestRegister> reg;                                                                       \
    try {                                                                                                    \
        reg = makeRegister();                                                                                \
    } catch (const Error& error) {                                                                           \
        QFAIL(qPrintable(error.description()));                                                              \
    }                                                                                                        \
    if (!reg)                                                                                                \
        QSKIP(qPrintable(ServerDatabase::skipReason()));

inline void showActive(QWidget* widget)
{
    widget->show();
    widget->activateWindow();
    QApplication::setActiveWindow(widget);
    if (!QTest::qWaitForWindowActive(widget))
        qWarning("The window didn't become active");
}

template<typename T>
inline T* child(QWidget* parent, const char* name)
{
    T* found = parent->findChild<T*>(QLatin1String(name));
    if (!found)
        qWarning("No control %s", name);
    return found;
}

inline void retype(QLineEdit* box, const QString& text)
{
    box->setFocus();
    box->selectAll();
    QTest::keyClick(box, Qt::Key_Delete);
    QTest::keyClicks(box, text);
}

inline QString idText(qint32 id)
{
    return QString::number(id);
}

} // namespace kartella::test
