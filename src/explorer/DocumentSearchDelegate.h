#pragma once

#include <QStyledItemDelegate>

namespace kartella {

// Paints a search's passage with its hit in bold (the hit between the marks of
// ListModel::MarkedTextRole); a text without marks as any other cell.
class PassageDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace kartella
