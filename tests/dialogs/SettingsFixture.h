#pragma once

#include "dialogs/SettingsDialog.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"
#include "options/OptionStore.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QTest>

namespace kartella::test {

inline QString escapeQuestion()
{
    return QStringLiteral(
        "You have settings changes that have not applied.\r\n\r\nDo you want to apply these now?");
}

// The keys of the ini file in the order its lines stand.
inline QStringList iniKeyOrder()
{
    QFile file(iniFilePath());
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return {};
    QStringList keys;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.contains(u'=') && !line.startsWith(u'['))
            keys.append(line.left(line.indexOf(u'=')));
    }
    return keys;
}

// The settings dialog as the user sees it, shown so that focus and keys work.
struct Settings
{
    SettingsDialog dialog;

    Settings()
    {
        dialog.show();
        dialog.activateWindow();
        if (!QTest::qWaitForWindowActive(&dialog))
            qWarning("The dialog didn't become active");
    }

    template<class T = QWidget>
    T* control(const QString& name)
    {
        return dialog.findChild<T*>(name);
    }
    void type(const QString& box, const QString& text)
    {
        auto* edit = control<QLineEdit>(box);
        edit->setFocus();
        edit->selectAll();
        QTest::keyClick(edit, Qt::Key_Delete);
        QTest::keyClicks(edit, text);
    }
    // Presses a button, check box or option button with the space bar.
    void press(const QString& button)
    {
        auto* widget = control(button);
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Space);
    }
    void escape() { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); }
    QString sample() { return control<QLineEdit>(QStringLiteral("txtSample"))->text(); }
};

// The texts of the category nodes of the main window's tree, in their order.
inline QStringList categoryNodeTexts(MainWindow& window)
{
    QStringList texts;
    for (int index = 1; index <= window.tree()->nodeCount(); ++index) {
        const QTreeWidgetItem* node = window.tree()->nodeByIndex(index);
        if (node && NavigationTree::nodeKey(node).startsWith(u'a'))
            texts.append(node->text(0));
    }
    return texts;
}

} // namespace kartella::test
