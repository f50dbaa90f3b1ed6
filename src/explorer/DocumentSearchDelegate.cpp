#include "explorer/DocumentSearchDelegate.h"

#include "explorer/DocumentSearch.h"
#include "explorer/ListModel.h"

#include <QApplication>
#include <QPainter>

namespace kartella {

void PassageDelegate::paint(
    QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const QString marked = index.data(ListModel::MarkedTextRole).toString();
    const qsizetype start = marked.indexOf(QChar(PassageHitStart));
    const qsizetype end = marked.indexOf(QChar(PassageHitEnd));
    if (start < 0 || end < start) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cell.text.clear();
    QStyle* style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

    const QRect area
        = style->subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget).adjusted(2, 0, -2, 0);
    const QString parts[] = {marked.left(start), marked.mid(start + 1, end - start - 1), marked.mid(end + 1)};
    QFont bold = cell.font;
    bold.setBold(true);
    painter->save();
    painter->setClipRect(area);
    painter->setPen(
        cell.palette.color(cell.state & QStyle::State_Enabled ? QPalette::Normal : QPalette::Disabled,
            cell.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text));
    int x = area.left();
    for (int i = 0; i < 3 && x < area.right(); ++i) {
        const QFont& font = i == 1 ? bold : cell.font;
        painter->setFont(font);
        const QString text = QFontMetrics(font).elidedText(parts[i], Qt::ElideRight, area.right() - x);
        painter->drawText(QRect(x, area.top(), area.right() - x, area.height()),
            Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
        x += QFontMetrics(font).horizontalAdvance(text);
    }
    painter->restore();
}

} // namespace kartella
