#include "support/EnterAsTab.h"

#include <QApplication>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QWidget>

namespace kartella {

namespace {

bool isEnter(const QKeyEvent* key)
{
    return (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
        && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier));
}

} // namespace

EnterAsTab::EnterAsTab(QWidget* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
{
    dialog->installEventFilter(this);
}

void EnterAsTab::watch(QWidget* box)
{
    onEnter(box, [box] { focusNext(box); });
}

void EnterAsTab::onEnter(QWidget* widget, std::function<void()> handler)
{
    if (!m_enter.contains(widget)) {
        widget->installEventFilter(this);
        connect(widget, &QObject::destroyed, this, &EnterAsTab::forget);
    }
    m_enter.insert(widget, std::move(handler));
}

void EnterAsTab::onEscape(std::function<bool()> handler)
{
    m_escape = std::move(handler);
}

void EnterAsTab::forget(QObject* widget)
{
    m_enter.remove(widget);
}

void EnterAsTab::sendKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers);
    QCoreApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, modifiers);
    QCoreApplication::sendEvent(widget, &release);
}

void EnterAsTab::focusNext(QWidget* widget)
{
    // The window moves the focus on a Tab it receives itself, whatever the focused box would
    // do with one (a multi-line box would insert it).
    sendKey(widget->window(), Qt::Key_Tab);
}

bool EnterAsTab::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    if (isEnter(key)) {
        const auto handler = m_enter.constFind(watched);
        if (handler != m_enter.cend()) {
            const std::function<void()> run = handler.value();
            run();
            return true;
        }
        // A focused button leaves Enter to its window: here it reaches the dialog, and
        // the button is pressed.
        auto* button = qobject_cast<QPushButton*>(QApplication::focusWidget());
        if (watched == m_dialog && button && button->window() == m_dialog && button->isEnabled()) {
            button->click();
            return true;
        }
    } else if (key->key() == Qt::Key_Escape && watched == m_dialog && m_escape) {
        return m_escape();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kartella
