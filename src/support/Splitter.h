#pragma once

#include <QObject>

class QSplitter;

namespace kartella {

// Makes the gap between the two panes of a QSplitter follow the program's rules: the
// split is given in percent (limited to 1..99, and further so that each boundary keeps a
// minimum distance from the container's edges), no pane ever goes below that distance or
// collapses, and a vertical bar stands between panes side by side.
class Splitter : public QObject
{
    Q_OBJECT

public:
    explicit Splitter(QObject* parent = nullptr);

    // barPixels 0 gives a bar of 4 pixels. percent is limited to 1..99.
    void create(QSplitter* splitter, bool vertical, int barPixels, int percent);
    bool created() const { return m_splitter != nullptr; }

    int splitterSize() const { return m_barPixels; }
    // The first pane's share of the container, in percent.
    int splitPercent() const;
    void setSplitPercent(int percent);
    // The least percent a boundary may take at the container's present size.
    int leastPercent() const;
    // How near an edge a boundary may come, in pixels.
    int minimumDistance() const;
    int percent() const { return m_percent; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int extent() const;

    QSplitter* m_splitter = nullptr;
    bool m_vertical = true;
    int m_barPixels = 4;
    int m_percent = 50;
    // Whether the split was laid out at a real size yet.
    bool m_applied = false;
};

} // namespace kartella
