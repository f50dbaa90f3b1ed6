#include "support/ColumnWidths.h"

#include "options/OptionStore.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QHeaderView>
#include <QMouseEvent>

#include <algorithm>

namespace kartella {

namespace {

constexpr int TwipsPerInch = 1440;

int toTwips(int pixels, const QWidget* widget)
{
    return qRound(double(pixels) * TwipsPerInch / widget->logicalDpiX());
}

int toPixels(int twips, const QWidget* widget)
{
    return qRound(double(twips) * widget->logicalDpiX() / TwipsPerInch);
}

} // namespace

ColumnWidths::ColumnWidths(QHeaderView* header, const QString& optionName)
    : QObject(header)
    , m_header(header)
    , m_optionName(optionName)
{
    header->setStretchLastSection(true);
    header->viewport()->installEventFilter(this);
    connect(header, &QHeaderView::sectionResized, this, &ColumnWidths::onSectionResized);
    connect(header, &QHeaderView::sectionHandleDoubleClicked, this, [this](int column) {
        fitToContents(column);
        store();
    });
    // New columns come with widths of their own: the user's go over them.
    connect(header, &QHeaderView::sectionCountChanged, this, &ColumnWidths::apply);
}

ColumnWidths* ColumnWidths::attach(QHeaderView* header, const QString& optionName)
{
    auto* widths = new ColumnWidths(header, optionName);
    widths->apply();
    return widths;
}

QList<int> ColumnWidths::storedWidths() const
{
    // Widths set in this run hold even where the options could not take them.
    if (!m_userWidths.isEmpty())
        return m_userWidths;
    const QString text = readRegValue(Hive::CurrentUser, optionsKeyPath(), m_optionName, {});
    QList<int> widths;
    for (const QString& part : text.split(u',', Qt::SkipEmptyParts)) {
        bool number = false;
        const int width = part.trimmed().toInt(&number);
        // A value that isn't a list of widths (edited by hand, say) counts as none; a hidden
        // column's width is 0.
        if (!number || width < 0)
            return {};
        widths.append(width);
    }
    return widths;
}

void ColumnWidths::apply()
{
    const QList<int> widths = storedWidths();
    // A list of one column (an empty state) keeps its own width; one with a column more than
    // when the widths were stored (the search results' passages) gets them for the columns
    // they name.
    const int shared = std::min(int(widths.size()), m_header->count() - 1);
    if (shared < 1 || m_header->count() < 2)
        return;
    m_applying = true;
    for (int column = 0; column < shared; ++column) {
        if (!m_header->isSectionHidden(column) && widths[column] > 0)
            m_header->resizeSection(column, toPixels(widths[column], m_header));
    }
    m_applying = false;
}

void ColumnWidths::fitToContents(int column)
{
    auto* view = qobject_cast<QAbstractItemView*>(m_header->parentWidget());
    const int contents = view ? view->sizeHintForColumn(column) : 0;
    m_header->resizeSection(column, qMax(contents, m_header->sectionSizeHint(column)));
}

void ColumnWidths::store()
{
    // The last column takes what is left: only the others are the user's.
    if (m_header->count() < 2)
        return;
    m_userWidths.clear();
    QStringList widths;
    for (int column = 0; column < m_header->count() - 1; ++column) {
        m_userWidths << toTwips(m_header->sectionSize(column), m_header);
        widths << QString::number(m_userWidths.last());
    }
    if (!optionsKeyExists())
        return;
    // A failure to store costs only the widths at the next start: no message for it.
    writeRegValue(Hive::CurrentUser, optionsKeyPath(), m_optionName, widths.join(u','));
}

void ColumnWidths::onSectionResized()
{
    if (m_dragging && !m_applying)
        m_draggedWidths = true;
}

bool ColumnWidths::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        m_dragging = static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        m_draggedWidths = false;
    } else if (event->type() == QEvent::MouseButtonRelease && m_dragging) {
        // Stored once the drag ends, not at each step of it.
        m_dragging = false;
        if (m_draggedWidths)
            store();
        m_draggedWidths = false;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kartella
