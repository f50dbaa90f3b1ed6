#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QGroupBox>
#include <QLabel>
#include <QStringList>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>
#include <QWidget>

namespace kartella::test {

// The words of a window, one line each, in the order of its children: its title, then each
// control's name with its caption, tooltip and accessible name; a grid's caption is the
// headers of the columns it shows. A label counts when it
// captions a field (its buddy); labels that show values change with the data. Qt's own parts
// (a calendar's buttons, a tab bar's arrows) are left out.
inline QStringList shownTexts(const QWidget& window)
{
    const auto qtsOwn = [&window](const QWidget* widget) {
        if (widget->objectName().startsWith(QStringLiteral("qt_")))
            return true;
        for (const QWidget* up = widget->parentWidget(); up && up != &window; up = up->parentWidget()) {
            if (qobject_cast<const QCalendarWidget*>(up) || qobject_cast<const QTabBar*>(up))
                return true;
        }
        return false;
    };
    QStringList texts {window.windowTitle()};
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (qtsOwn(widget))
            continue;
        QStringList captions;
        if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            if (label->buddy() == nullptr)
                continue;
            captions << label->text();
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            captions << button->text();
        } else if (const auto* group = qobject_cast<const QGroupBox*>(widget)) {
            captions << group->title();
        } else if (const auto* tabs = qobject_cast<const QTabWidget*>(widget)) {
            for (int i = 0; i < tabs->count(); ++i)
                captions << tabs->tabText(i);
        } else if (const auto* grid = qobject_cast<const QTableView*>(widget); grid && grid->model()) {
            QStringList headers;
            for (int column = 0; column < grid->model()->columnCount(); ++column) {
                if (!grid->isColumnHidden(column))
                    headers << grid->model()->headerData(column, Qt::Horizontal).toString();
            }
            captions << headers.join(QStringLiteral(", "));
        }
        captions << widget->toolTip() << widget->accessibleName();
        if (captions.join(QString()).trimmed().isEmpty())
            continue;
        texts << widget->objectName() + QStringLiteral(": ") + captions.join(QStringLiteral(" | "));
    }
    return texts;
}

// Pairs of shown controls that cover each other, by name: a control left out of its layout
// sits in a corner over another. A control inside another (a box in its frame) is no overlap.
inline QStringList overlaps(const QWidget& window)
{
    QList<const QWidget*> shown;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->isVisible() && !widget->objectName().startsWith(QStringLiteral("qt_"))
            && !widget->isWindow())
            shown << widget;
    }
    const auto area = [&window](const QWidget* widget) {
        return QRect(widget->mapTo(&window, QPoint(0, 0)), widget->size());
    };
    QStringList found;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        for (qsizetype j = i + 1; j < shown.size(); ++j) {
            const QWidget* a = shown[i];
            const QWidget* b = shown[j];
            if (a->isAncestorOf(b) || b->isAncestorOf(a) || !area(a).intersects(area(b)))
                continue;
            // Qt's own parts of a control (a combo's box, a date's arrows) lie in it.
            if (a->parentWidget() != b->parentWidget()
                && (a->objectName().isEmpty() || b->objectName().isEmpty()))
                continue;
            found << a->objectName() + QStringLiteral(" over ") + b->objectName();
        }
    }
    return found;
}

// The controls that Tab reaches, by name, from the one with the focus: `presses` of the key.
// A control without a name of its own (the box inside a combo) goes by its parent's.
inline QStringList tabChain(int presses)
{
    QStringList names;
    for (int i = 0; i < presses; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QWidget* at = QApplication::focusWidget();
        while (at && at->objectName().isEmpty() && at->parentWidget())
            at = at->parentWidget();
        names << (at ? at->objectName() : QString());
    }
    return names;
}

} // namespace kartella::test
