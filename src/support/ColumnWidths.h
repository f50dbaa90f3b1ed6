#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QHeaderView;

namespace kartella {

// The column widths of a list with a header, as its user sets them:
// - the last column stretches to the list's right edge;
// - a double-click on a column's right edge fits the column to its contents (header
//   included, as far as the rows on show go);
// - a width the user sets, by a drag or a double-click, goes into the options under a name
//   of the list's own and is given back to the list at the next start.
//
//     ColumnWidths::attach(view->header(), QStringLiteral("AddressBookColumns"));
//
// The widths are kept in twips, all columns but the last, and given back to the columns
// they name (a header with a column more, or fewer, gets those it shares); a list of one
// column (an empty state) keeps its own width. Widths set by code are not stored. A
// list that sets its own widths whenever its columns come calls apply() after it.
class ColumnWidths : public QObject
{
    Q_OBJECT

public:
    // Makes header behave as above, remembering under the option optionName; the object
    // belongs to the header. Widths stored earlier are applied at once.
    static ColumnWidths* attach(QHeaderView* header, const QString& optionName);

    // Gives the header the widths stored for its number of columns, if there are any.
    void apply();
    // The widths stored, in twips; empty when none are.
    QList<int> storedWidths() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ColumnWidths(QHeaderView* header, const QString& optionName);
    void fitToContents(int column);
    void store();
    void onSectionResized();

    QHeaderView* m_header;
    QString m_optionName;
    // While the user drags a column's edge; a resize then is the user's.
    bool m_dragging = false;
    bool m_draggedWidths = false;
    bool m_applying = false;
    // The widths the user set in this run, in twips.
    QList<int> m_userWidths;
};

} // namespace kartella
