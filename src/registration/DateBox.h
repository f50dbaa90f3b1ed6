#pragma once

#include <QDateEdit>
#include <QVariant>

namespace kartella {

// A date picker that can be blank, for date fields that may hold Null. A blank box shows
// nothing; its calendar opens on today, and Up or Down start it at today, so that today is
// picked as easily as any other day. Delete makes the box blank again.
//
// The blank state is the picker's minimum date shown as an empty special value: no date
// before it can be picked.
class DateBox : public QDateEdit
{
    Q_OBJECT

public:
    explicit DateBox(QWidget* parent = nullptr);

    // The date shown, or Null when the box is blank.
    QVariant value() const;
    // Shows date; Null or an invalid date makes the box blank.
    void setValue(const QVariant& date);
    bool isBlank() const;
    void clear() override;
    void stepBy(int steps) override;

Q_SIGNALS:
    // The user (or setValue) changed the date: a QDate, or Null when the box became blank.
    void valueChanged(const QVariant& value);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace kartella
