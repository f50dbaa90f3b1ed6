// MainWindow: what the window keeps between runs in the options: its size and place, the
// tree's share of the width, the lists' view and the tree's mode. The lists keep their own
// sorts and column widths.
#include "explorer/ExplorerList.h"
#include "explorer/MainWindow.h"
#include "options/OptionStore.h"
#include "support/Splitter.h"

#include <QCloseEvent>

namespace kartella {

namespace {

const QString GeometryOption = QStringLiteral("WindowGeometry");
const QString TreeSplitOption = QStringLiteral("TreeSplitPercent");
const QString ListViewOption = QStringLiteral("ListView");
const QString TreeViewOption = QStringLiteral("TreeView");

QString option(const QString& name)
{
    return readRegValue(Hive::CurrentUser, optionsKeyPath(), name, {});
}

void storeOption(const QString& name, const QString& value)
{
    writeRegValue(Hive::CurrentUser, optionsKeyPath(), name, value);
}

// A whole number from 'least' to 'most' stored under name; fallback when there is none.
int storedNumber(const QString& name, int least, int most, int fallback)
{
    bool read = false;
    const int value = option(name).toInt(&read);
    return read && value >= least && value <= most ? value : fallback;
}

} // namespace

int MainWindow::storedTreeSplit(int fallback)
{
    return storedNumber(TreeSplitOption, 1, 99, fallback);
}

bool MainWindow::storedContactView()
{
    return option(TreeViewOption).compare(QLatin1String("Contacts"), Qt::CaseInsensitive) == 0;
}

void MainWindow::restoreLayout()
{
    const QByteArray geometry = QByteArray::fromBase64(option(GeometryOption).toLatin1());
    if (!geometry.isEmpty())
        restoreGeometry(geometry);
    setView(
        storedNumber(ListViewOption, ExplorerList::LargeIcons, ExplorerList::Report, ExplorerList::Report));
}

void MainWindow::storeLayout()
{
    storeOption(GeometryOption, QString::fromLatin1(saveGeometry().toBase64()));
    storeOption(TreeSplitOption, QString::number(m_splitters[0]->splitPercent()));
}

void MainWindow::storeView()
{
    storeOption(ListViewOption, QString::number(m_documents->view()));
}

void MainWindow::storeTreeView()
{
    storeOption(TreeViewOption, m_categoryView ? QStringLiteral("Categories") : QStringLiteral("Contacts"));
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    storeLayout();
    QMainWindow::closeEvent(event);
}

} // namespace kartella
