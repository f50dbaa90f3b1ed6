#pragma once

#include "store/engine/Recordset.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariant>

class QComboBox;

namespace kartella {

// A drop-down list over the rows of a list recordset: it shows one field of each row and
// stands for another (the key). Its value is that key as text, empty text for none; a key
// that the list doesn't hold is kept as the value and shows as an empty box.
//
// The list refills by itself whenever its recordset is opened again or requeried, so a
// dialog changes the list by opening the recordset on another source. A FieldBinder binds
// the value to a field of the row being edited.
//
//     auto* category = new BoundList(cmbCategory, this);
//     category->setRowSource(adodc3, "DokKategorija", "KategID");
//     connect(category, &BoundList::changed, this, &Dialog::onCategoryChanged);
class BoundList : public QObject
{
    Q_OBJECT

public:
    // Drives box (not owned), which it makes a pick-only list.
    explicit BoundList(QComboBox* box, QObject* parent = nullptr);

    QComboBox* box() const { return m_box; }

    // Fills the box from rows (not owned): listField is shown, boundColumn is the value.
    void setRowSource(Recordset* rows, const QString& listField, const QString& boundColumn);
    // Fills the box again from the row source as it stands; the value stays.
    void refill();

    // The key chosen, as text; empty text for none.
    QString value() const { return m_value; }
    // Chooses the item of key (a number or text; Null or empty text for none). Raises Change
    // when the value differs.
    void setValue(const QVariant& key);
    // The shown text of the chosen item; empty when none.
    QString text() const;
    // The shown text of the item of key; empty when the list doesn't hold it.
    QString textOf(const QVariant& key) const;

Q_SIGNALS:
    // The value changed, by the user's choice or by setValue.
    void changed();

private:
    void onActivated(int index);
    void showValue();
    static QString keyText(const QVariant& key);

    QComboBox* m_box;
    QPointer<Recordset> m_rows;
    QString m_listField;
    QString m_boundColumn;
    QString m_value;
    bool m_filling = false;
};

} // namespace kartella
