#include "support/Splitter.h"

#include <QEvent>
#include <QSplitter>

#include <cmath>

namespace kartella {

namespace {
constexpr int EdgePixels = 20;
}

Splitter::Splitter(QObject* parent)
    : QObject(parent)
{ }

void Splitter::create(QSplitter* splitter, bool vertical, int barPixels, int percent)
{
    m_splitter = splitter;
    m_vertical = vertical;
    m_barPixels = barPixels == 0 ? 4 : barPixels;
    m_percent = qBound(1, percent, 99);
    splitter->setOrientation(vertical ? Qt::Horizontal : Qt::Vertical);
    splitter->setHandleWidth(m_barPixels);
    splitter->setChildrenCollapsible(false);
    // Each pane keeps the minimum distance from the edge it stands at.
    for (int i = 0; i < splitter->count(); ++i) {
        QWidget* pane = splitter->widget(i);
        if (vertical)
            pane->setMinimumWidth(qMax(pane->minimumWidth(), minimumDistance() - m_barPixels / 2));
        else
            pane->setMinimumHeight(qMax(pane->minimumHeight(), minimumDistance() - m_barPixels / 2));
    }
    // The split is laid out once the container has its real size.
    splitter->installEventFilter(this);
    if (splitter->isVisible())
        setSplitPercent(m_percent);
}

bool Splitter::eventFilter(QObject* watched, QEvent* event)
{
    const bool laidOut = event->type() == QEvent::Resize || event->type() == QEvent::Show;
    if (watched == m_splitter && laidOut && !m_applied && m_splitter->isVisible())
        setSplitPercent(m_percent);
    return QObject::eventFilter(watched, event);
}

int Splitter::minimumDistance() const
{
    return EdgePixels;
}

int Splitter::extent() const
{
    if (!m_splitter)
        return 0;
    const int size = m_vertical ? m_splitter->width() : m_splitter->height();
    return qMax(1, size);
}

int Splitter::leastPercent() const
{
    return qMax(1, int(std::lround(100.0 * (minimumDistance() - m_barPixels / 2.0) / extent())));
}

int Splitter::splitPercent() const
{
    if (!m_splitter || m_splitter->count() < 2)
        return m_percent;
    const QList<int> sizes = m_splitter->sizes();
    const int total = sizes.value(0) + sizes.value(1) + m_barPixels;
    return int(std::lround(100.0 * (sizes.value(0) + m_barPixels / 2.0) / qMax(1, total)));
}

void Splitter::setSplitPercent(int percent)
{
    const int least = qMin(leastPercent(), 50);
    m_percent = qBound(least, percent, 100 - least);
    if (!m_splitter || m_splitter->count() < 2)
        return;
    const int total = extent();
    const int first = qMax(0, int(std::lround(total * m_percent / 100.0 - m_barPixels / 2.0)));
    m_splitter->setSizes({first, qMax(0, total - first - m_barPixels)});
    m_applied = m_splitter->isVisible();
}

} // namespace kartella
