#include "explorer/AfterPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace kartella {

AfterPaint::AfterPaint(QWidget* painted, QObject* parent)
    : QObject(parent)
    , m_painted(painted)
{
    painted->installEventFilter(this);
}

void AfterPaint::run(std::function<void()> work)
{
    const int generation = ++m_generation;
    if (!m_painted || !m_painted->isVisible()) {
        m_work = {};
        work();
        return;
    }
    m_work = std::move(work);
    QTimer::singleShot(MaxWaitMs, this, [this, generation] { release(generation); });
}

void AfterPaint::cancel()
{
    ++m_generation;
    m_work = {};
}

bool AfterPaint::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_painted && event->type() == QEvent::Paint && m_work) {
        // After the paint: the rest of the window paints in the same pass.
        const int generation = m_generation;
        QTimer::singleShot(0, this, [this, generation] { release(generation); });
    }
    return QObject::eventFilter(watched, event);
}

void AfterPaint::release(int generation)
{
    if (generation != m_generation || !m_work)
        return;
    const std::function<void()> work = std::move(m_work);
    m_work = {};
    work();
}

} // namespace kartella
