#include "registration/DateBox.h"

#include "platform/Clock.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace kartella {

namespace {

// The first day the picker knows; it stands for a blank box.
const QDate Blank(1752, 9, 14);

} // namespace

DateBox::DateBox(QWidget* parent)
    : QDateEdit(parent)
{
    setMinimumDate(Blank);
    // A space: an empty special text would turn the special value off.
    setSpecialValueText(QStringLiteral(" "));
    setCalendarPopup(true);
    setDate(Blank);
    calendarWidget()->installEventFilter(this);
    connect(this, &QDateEdit::dateChanged, this, [this] { Q_EMIT valueChanged(value()); });
}

QVariant DateBox::value() const
{
    return isBlank() ? QVariant() : QVariant(date());
}

void DateBox::setValue(const QVariant& date)
{
    const QDate day = date.toDate();
    setDate(date.isNull() || !day.isValid() ? Blank : day);
}

bool DateBox::isBlank() const
{
    return date() == Blank;
}

void DateBox::clear()
{
    setDate(Blank);
}

void DateBox::stepBy(int steps)
{
    if (isBlank())
        setDate(Clock::currentDate());
    else
        QDateEdit::stepBy(steps);
}

void DateBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier) {
        clear();
        event->accept();
        return;
    }
    QDateEdit::keyPressEvent(event);
}

bool DateBox::eventFilter(QObject* watched, QEvent* event)
{
    // The calendar of a blank box would open in 1752. Today is only offered: the box takes it
    // when the user picks it, not by the calendar's opening.
    if (watched == calendarWidget() && event->type() == QEvent::Show && isBlank()) {
        const QSignalBlocker quiet(calendarWidget());
        calendarWidget()->setSelectedDate(Clock::currentDate());
    }
    return QDateEdit::eventFilter(watched, event);
}

} // namespace kartella
