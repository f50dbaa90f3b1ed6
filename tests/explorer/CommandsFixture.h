#pragma once

#include "explorer/ExplorerFixture.h"
#include "explorer/MainWindow.h"
#include "options/OptionStore.h"
#include "options/TrashOptions.h"

#include <QDirIterator>
#include <QFile>
#include <QMenu>
#include <QStandardPaths>
#include <QStringList>
#include <QTest>

namespace kartella::test {

inline const QStringList PathCommands = {"mnuOpen", "mnuCopy", "mnuMove", "mnuPrint", "mnuProperties",
    "mnuPopCopy", "mnuPopOpen", "mnuPopPrint", "mnuPopProperties"};
inline const QStringList DocumentCommands = {"mnuOpen", "mnuCopy", "mnuMove", "mnuDelete", "mnuPrint",
    "mnuRelated", "mnuShowDetails", "mnuProperties"};
inline const QStringList Dialogs
    = {"frmNewDocument", "frmCopyFile", "frmRelated", "frmNew", "frmRelDescr", "frmCategory"};

// A main window with every dialog registered as a recorder, and the menus it would pop up.
struct CommandsFixture : ExplorerFixture
{
    QStringList opened;
    QList<QMenu*> popups;

    MainWindow& load()
    {
        MainWindow& w = window();
        for (const QString& name : Dialogs)
            w.setDialog(name, [this, name](const QString& file) {
                opened << name + (file.isEmpty() ? QString() : QString(":" + file));
            });
        w.popupMenu = [this](QMenu* menu, const QPoint&) { popups << menu; };
        return w;
    }

    bool enabled(const QString& name) { return window().action(name)->isEnabled(); }
    bool toolbarEnabled(int position) { return window().toolbarButton(position)->isEnabled(); }
    int rowCount(const QString& table) { return reg.scalar("SELECT COUNT(*) FROM " + table).toInt(); }
    bool documentExists(const QString& name)
    {
        return reg.scalar("SELECT COUNT(*) FROM tbl_Documents WHERE RastasID=" + QString::number(id[name]))
                   .toInt()
            == 1;
    }
    void rightClick(QWidget* viewport, const QPoint& pos = {5, 5})
    {
        QTest::mousePress(viewport, Qt::RightButton, {}, pos);
        QTest::mouseRelease(viewport, Qt::RightButton, {}, pos);
    }
    QString makeFile(const QString& name)
    {
        const QString path = reg.dir() + "/" + name;
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write("x");
        return path;
    }
    void setPath(
        const QString& table, const QString& key, qint32 keyValue, const QString& field, const QString& path)
    {
        reg.exec(QString("UPDATE %1 SET %2 = '%3' WHERE %4=%5").arg(table, field, path, key).arg(keyValue));
    }
};

inline QString trashFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/Trash";
}

// Whether the register's trash holds a file of that name (an item's folder keeps it as
// "<n>-<name>").
inline bool inTrash(const QString& name)
{
    QDirIterator files(
        trashFolderFor(getRegValue("DbLocation").trimmed()), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        if (files.next().endsWith(u'-' + name))
            return true;
    }
    return false;
}

} // namespace kartella::test
