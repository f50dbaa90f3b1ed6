#pragma once

#include <QHash>
#include <QObject>

#include <functional>

class QWidget;

namespace kartella {

// The keyboard of a data dialog: Enter in a watched box moves on to the next control as
// Tab would (the Enter itself is dropped), a widget may take Enter for a handler of its
// own (a grid moving to its next cell), Enter on a focused button presses it, and Esc
// anywhere in the dialog may go to a handler that asks before closing.
//
//     auto* keys = new EnterAsTab(this);
//     keys->Watch(txtDescription);
//     keys->onEnter(grid, [this] { moveToNextCell(); });
//     keys->onEscape([this] { return askBeforeClosing(); });
class EnterAsTab : public QObject
{
    Q_OBJECT

public:
    // Works in dialog, which also owns it.
    explicit EnterAsTab(QWidget* dialog);

    // Enter in box acts as Tab.
    void watch(QWidget* box);
    // Enter in widget (or in an editor inside it that leaves the key alone) runs handler.
    void onEnter(QWidget* widget, std::function<void()> handler);
    // Esc in the dialog runs handler; true from it drops the key, false leaves the key to the
    // dialog (whose own Esc rejects it).
    void onEscape(std::function<bool()> handler);

    // Sends one key press and release to widget, as if typed there.
    static void sendKey(QWidget* widget, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Moves the focus of widget's window on, as Tab does.
    static void focusNext(QWidget* widget);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void forget(QObject* widget);

    QWidget* m_dialog;
    QHash<QObject*, std::function<void()>> m_enter;
    std::function<bool()> m_escape;
};

} // namespace kartella
