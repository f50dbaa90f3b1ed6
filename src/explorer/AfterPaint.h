#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace kartella {

// Holds a piece of work back until a widget has painted, so that work that reads the whole
// register (the due reminders' count, the walk of the files to read) leaves the window's
// first screen its time. A hidden widget, which nothing paints, lets the work run at once;
// one that stays unpainted (a window behind others) lets it run after MaxWaitMs.
class AfterPaint : public QObject
{
public:
    static constexpr int MaxWaitMs = 2000;

    AfterPaint(QWidget* painted, QObject* parent);

    // Runs work once the widget has painted next; replaces work still waiting.
    void run(std::function<void()> work);
    // Drops the work still waiting, if any.
    void cancel();
    bool waiting() const { return bool(m_work); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void release(int generation);

    QPointer<QWidget> m_painted;
    std::function<void()> m_work;
    int m_generation = 0;
};

} // namespace kartella
