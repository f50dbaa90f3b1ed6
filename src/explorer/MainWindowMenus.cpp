// MainWindow: the menu bar, the toolbar, the two context menus and the enabling of commands.
#include "content/ReadingQueue.h"
#include "explorer/ContentProgress.h"
#include "explorer/MainWindow.h"
#include "registration/NewDocumentDialog.h"
#include "store/engine/WriteContext.h"
#include "support/SelectionState.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace kartella {

namespace {

// What a user calls each dialog, for the tool tip of a command whose dialog is missing.
QString dialogTitle(const QString& name)
{
    static const QHash<QString, const char*> titles = {
        {QStringLiteral("frmNewDocument"), QT_TRANSLATE_NOOP("kartella::MainWindow", "New Document")},
        {QStringLiteral("frmCopyFile"), QT_TRANSLATE_NOOP("kartella::MainWindow", "Copy/Move File")},
        {QStringLiteral("frmRelated"), QT_TRANSLATE_NOOP("kartella::MainWindow", "New Related Document")},
        {QStringLiteral("frmNew"), QT_TRANSLATE_NOOP("kartella::MainWindow", "Document Details")},
        {QStringLiteral("frmCategory"), QT_TRANSLATE_NOOP("kartella::MainWindow", "Category Options")},
        {QStringLiteral("frmCorr"), QT_TRANSLATE_NOOP("kartella::MainWindow", "New Contact")},
        {QStringLiteral("frmNewCategory"), QT_TRANSLATE_NOOP("kartella::MainWindow", "New Category")},
        {QStringLiteral("frmCoresp"), QT_TRANSLATE_NOOP("kartella::MainWindow", "Address Book")},
        {QStringLiteral("frmSettings"), QT_TRANSLATE_NOOP("kartella::MainWindow", "Options")},
        {QStringLiteral("frmAbout"), QT_TRANSLATE_NOOP("kartella::MainWindow", "About Kartella")},
        {QStringLiteral("reports"), QT_TRANSLATE_NOOP("kartella::MainWindow", "report")},
        {QStringLiteral("outlookImport"), QT_TRANSLATE_NOOP("kartella::MainWindow", "contact import")},
    };
    const char* title = titles.value(name);
    return title ? QCoreApplication::translate("kartella::MainWindow", title) : name;
}

QString unavailableText(const QString& dialog)
{
    return QCoreApplication::translate(
        "kartella::MainWindow", "The %1 dialog is not available in this version.")
        .arg(dialogTitle(dialog));
}

QIcon themed(const char* name, const char* fallback = "")
{
    return QIcon::fromTheme(QLatin1String(name), QIcon::fromTheme(QLatin1String(fallback)));
}

} // namespace

QAction* MainWindow::addCommand(QMenu* menu, const QString& name, const QString& caption,
    void (MainWindow::*slot)(), const QKeySequence& shortcut, const QString& dialog)
{
    auto* action = new QAction(caption, this);
    action->setObjectName(name);
    if (!shortcut.isEmpty())
        action->setShortcut(shortcut);
    if (slot)
        connect(action, &QAction::triggered, this, slot);
    else if (!dialog.isEmpty())
        connect(action, &QAction::triggered, this, [this, dialog] { openDialog(dialog); });
    if (!dialog.isEmpty())
        m_actionDialogs.insert(action, dialog);
    if (menu)
        menu->addAction(action);
    m_actions.insert(name, action);
    setCommandEnabled(name, true);
    return action;
}

QAction* MainWindow::action(const QString& name) const
{
    return m_actions.value(name);
}

QAction* MainWindow::toolbarButton(int position) const
{
    return position >= 1 && position <= m_toolbar.size() ? m_toolbar[position - 1] : nullptr;
}

void MainWindow::setDialog(const QString& name, DialogOpener open)
{
    m_dialogs.insert(name, std::move(open));
    for (auto it = m_actionDialogs.cbegin(); it != m_actionDialogs.cend(); ++it) {
        if (it.value() == name)
            setCommandEnabled(it.key()->objectName(), it.key()->property("wantedEnabled").toBool());
    }
}

void MainWindow::openDialog(const QString& name, const QString& droppedFile)
{
    const DialogOpener open = m_dialogs.value(name);
    if (!open)
        return;
    open(droppedFile);
    // The dialogs that write documents: the list shows what they wrote, and the files they
    // named are read now rather than at the next rescan.
    static const QStringList writers = {QStringLiteral("frmNewDocument"), QStringLiteral("frmRelated"),
        QStringLiteral("frmRelDescr"), QStringLiteral("frmNew"), QStringLiteral("frmCopyFile")};
    if (writers.contains(name)) {
        refillList();
        m_contentProgress->queue().rescan();
    }
}

void MainWindow::setCommandEnabled(const QString& name, bool enabled)
{
    QAction* command = m_actions.value(name);
    if (!command)
        return;
    command->setProperty("wantedEnabled", enabled);
    const QString dialog = m_actionDialogs.value(command);
    const bool available = dialog.isEmpty() || m_dialogs.contains(dialog);
    command->setEnabled(enabled && available);
    QString tip = command->property("ownToolTip").toString();
    if (!available)
        tip = tip.isEmpty() ? unavailableText(dialog) : tip + u'\n' + unavailableText(dialog);
    command->setToolTip(tip.isEmpty() ? QString(command->text()).remove(u'&') : tip);
}

void MainWindow::setToolbarEnabled(std::initializer_list<int> positions, bool enabled)
{
    for (int position : positions) {
        if (QAction* button = toolbarButton(position))
            setCommandEnabled(button->objectName(), enabled);
    }
}

void MainWindow::buildMenus()
{
    QMenuBar* bar = menuBar();
    QMenu* file = bar->addMenu(tr("&File"));
    file->setObjectName(QStringLiteral("mnuFile"));
    addCommand(file, QStringLiteral("mnuNew"), tr("&New Document"), &MainWindow::newDocument,
        QKeySequence(Qt::CTRL | Qt::Key_N), QStringLiteral("frmNewDocument"));
    // A new document whose file is scanned: the New Document dialog, its Scan pressed once it
    // shows (its loading may run events of its own before).
    QAction* scanNew = addCommand(file, QStringLiteral("mnuScanNew"), tr("Sc&an New Document..."), nullptr,
        {}, QStringLiteral("frmNewDocument"));
    disconnect(scanNew, &QAction::triggered, this, nullptr);
    connect(scanNew, &QAction::triggered, this, [this] {
        const CommandScope command(QStringLiteral("New Document"));
        QTimer pressScan;
        pressScan.setInterval(10);
        connect(&pressScan, &QTimer::timeout, this, [this, &pressScan] {
            if (auto* dialog = findChild<NewDocumentDialog*>(); dialog && dialog->isVisible()) {
                pressScan.stop();
                dialog->scanDocument();
            }
        });
        pressScan.start();
        openDialog(QStringLiteral("frmNewDocument"));
    });
    addCommand(file, QStringLiteral("mnuOpen"), tr("&Open Document"), &MainWindow::openDocument,
        QKeySequence(Qt::CTRL | Qt::Key_O));
    file->addSeparator()->setObjectName(QStringLiteral("mnuHyper3"));
    addCommand(file, QStringLiteral("mnuCopy"), tr("&Copy Document"), &MainWindow::copyDocument,
        QKeySequence(Qt::CTRL | Qt::Key_C), QStringLiteral("frmCopyFile"));
    addCommand(file, QStringLiteral("mnuMove"), tr("&Move Document"), &MainWindow::copyDocument,
        QKeySequence(Qt::CTRL | Qt::Key_M), QStringLiteral("frmCopyFile"));
    addCommand(file, QStringLiteral("mnuNewVersion"), tr("New &Version..."), &MainWindow::newVersion);
    addCommand(
        file, QStringLiteral("mnuScanNewVersion"), tr("Scan New Vers&ion..."), &MainWindow::scanNewVersion);
    addCommand(file, QStringLiteral("mnuDelete"), tr("&Delete Document"), &MainWindow::deleteSelected,
        QKeySequence(Qt::Key_Delete));
    file->addSeparator()->setObjectName(QStringLiteral("mnuHyper4"));
    addCommand(file, QStringLiteral("mnuDeleteCategory"), tr("De&lete Category"),
        &MainWindow::deleteSelectedCategory);
    file->addSeparator()->setObjectName(QStringLiteral("mnuhyper6"));
    addCommand(file, QStringLiteral("mnuPrintSetup"), tr("Print Set&up"), &MainWindow::printSetup);
    addCommand(file, QStringLiteral("mnuPrint"), tr("&Print Document"), &MainWindow::printDocument,
        QKeySequence(Qt::CTRL | Qt::Key_P));
    file->addSeparator()->setObjectName(QStringLiteral("mnuhypen1"));
    addCommand(file, QStringLiteral("mnuRelated"), tr("Ne&w Related Document"),
        &MainWindow::newRelatedDocument, {}, QStringLiteral("frmRelated"));
    file->addSeparator()->setObjectName(QStringLiteral("mnuHyper5"));
    addCommand(file, QStringLiteral("mnuShowDetails"), tr("&Show Details"), &MainWindow::showDetails,
        QKeySequence(Qt::Key_F3), QStringLiteral("frmNew"));
    addCommand(file, QStringLiteral("mnuProperties"), tr("P&roperties"), &MainWindow::showProperties,
        QKeySequence(Qt::Key_F4));
    file->addSeparator()->setObjectName(QStringLiteral("mnuhypen2"));
    addCommand(file, QStringLiteral("mnuExit"), tr("E&xit"), &MainWindow::exitProgram);
    for (const char* name : {"mnuOpen", "mnuCopy", "mnuMove", "mnuDelete", "mnuDeleteCategory", "mnuPrint",
             "mnuRelated", "mnuShowDetails", "mnuProperties"})
        setCommandEnabled(QLatin1String(name), false);

    QMenu* view = bar->addMenu(tr("&View"));
    view->setObjectName(QStringLiteral("mnuView"));
    addCommand(view, QStringLiteral("mnuByCategory"), tr("By Category"), &MainWindow::viewByCategory)
        ->setCheckable(true);
    addCommand(view, QStringLiteral("mnuByContacts"), tr("By Contacts"), &MainWindow::viewByContacts)
        ->setCheckable(true);
    action(QStringLiteral("mnuByCategory"))->setChecked(true);
    view->addSeparator()->setObjectName(QStringLiteral("mnuHypen9"));
    addCommand(view, QStringLiteral("mnuLargeIcons"), tr("Lar&ge Icons"), &MainWindow::viewLargeIcons);
    addCommand(view, QStringLiteral("mnuSmallIcons"), tr("S&mall Icons"), &MainWindow::viewSmallIcons);
    addCommand(view, QStringLiteral("mnuList"), tr("&List"), &MainWindow::viewList);
    addCommand(view, QStringLiteral("mnuDetails"), tr("&Details"), &MainWindow::viewDetails);
    for (const char* name : {"mnuLargeIcons", "mnuSmallIcons", "mnuList", "mnuDetails"})
        action(QLatin1String(name))->setCheckable(true);
    action(QStringLiteral("mnuDetails"))->setChecked(true);
    addCommand(view, QStringLiteral("mnuPreviewPane"), tr("Pre&view Pane"), &MainWindow::viewPreviewPane)
        ->setCheckable(true);
    view->addSeparator()->setObjectName(QStringLiteral("mnuHypen5"));
    QMenu* arrange = view->addMenu(tr("Arrange &Icons"));
    arrange->setObjectName(QStringLiteral("mnuArrangeIcons"));
    addCommand(
        arrange, QStringLiteral("mnubyName"), tr("by &Document description"), &MainWindow::arrangeByName);
    addCommand(arrange, QStringLiteral("mnubyRegIndex"), tr("by &Registration Index"),
        &MainWindow::arrangeByRegIndex);
    addCommand(arrange, QStringLiteral("mnubyCorrespondent"), tr("by &Correspondent"),
        &MainWindow::arrangeByCorrespondent);
    addCommand(arrange, QStringLiteral("mnubyDate"), tr("by D&ate"), &MainWindow::arrangeByDate);
    view->addSeparator()->setObjectName(QStringLiteral("mnuhypen6"));
    addCommand(
        view, QStringLiteral("mnuRefresh"), tr("&Refresh"), &MainWindow::refresh, QKeySequence(Qt::Key_F5));
    addCommand(view, QStringLiteral("mnuCategoryOptions"), tr("&Category Options"), &MainWindow::editCategory,
        {}, QStringLiteral("frmCategory"));
    setCommandEnabled(QStringLiteral("mnuCategoryOptions"), false);

    QMenu* go = bar->addMenu(tr("&Go"));
    go->setObjectName(QStringLiteral("mnuGo"));
    addCommand(
        go, QStringLiteral("mnuNewContact"), tr("&New Contact"), nullptr, {}, QStringLiteral("frmCorr"));
    addCommand(go, QStringLiteral("mnuNewCategory"), tr("Ne&w Category"), nullptr, {},
        QStringLiteral("frmNewCategory"));
    go->addSeparator()->setObjectName(QStringLiteral("mnuhypen10"));
    addCommand(
        go, QStringLiteral("mnuAddressBook"), tr("&Address Book"), nullptr, {}, QStringLiteral("frmCoresp"));

    QMenu* tools = bar->addMenu(tr("&Tools"));
    tools->setObjectName(QStringLiteral("mnuTools"));
    addCommand(
        tools, QStringLiteral("mnuOptions"), tr("&Options"), nullptr, {}, QStringLiteral("frmSettings"));
    tools->addSeparator()->setObjectName(QStringLiteral("sep45"));
    addCommand(tools, QStringLiteral("mnuOutlookData"), tr("&Import Address Book from Outlook"), nullptr, {},
        QStringLiteral("outlookImport"));

    QMenu* reports = bar->addMenu(tr("&Reports"));
    reports->setObjectName(QStringLiteral("mnuReports"));
    addCommand(reports, QStringLiteral("mnuCategoriesRep"), tr("&Categories"), nullptr, {},
        QStringLiteral("DataReport1"));
    QMenu* lists = reports->addMenu(tr("&Documents List's"));
    lists->setObjectName(QStringLiteral("mnuDocumentsLists"));
    QMenu* byCategory = lists->addMenu(tr("By Category"));
    byCategory->setObjectName(QStringLiteral("mnuDocumByCategory"));
    addCommand(byCategory, QStringLiteral("mnuThisMonth"), tr("This Month"), nullptr, {},
        QStringLiteral("rptThisMonth"));
    addCommand(byCategory, QStringLiteral("mnurptPrevMonth"), tr("Previous Month"), nullptr, {},
        QStringLiteral("rptPreviousMonth"));
    addCommand(byCategory, QStringLiteral("mnuAll"), tr("All"), nullptr, {}, QStringLiteral("DataReport4"));
    addCommand(lists, QStringLiteral("mnuDocByContacts"), tr("By Contacts"), nullptr, {},
        QStringLiteral("DataReport2"));
    QMenu* addressBook = reports->addMenu(tr("&Address Book"));
    addressBook->setObjectName(QStringLiteral("mnurptAddressBook"));
    addCommand(addressBook, QStringLiteral("mnurptPhones"), tr("P&hones"), nullptr, {},
        QStringLiteral("DataReport3"));
    addCommand(addressBook, QStringLiteral("mnuContacts"), tr("&Contacts"), nullptr, {},
        QStringLiteral("AddressBooks"));
    addCommand(
        reports, QStringLiteral("mnuReminder"), tr("&Reminder"), nullptr, {}, QStringLiteral("DataReport5"));

    QMenu* help = bar->addMenu(tr("&Help"));
    help->setObjectName(QStringLiteral("mnuHelp"));
    addCommand(
        help, QStringLiteral("mnuAboutKA"), tr("&About Kartella"), nullptr, {}, QStringLiteral("frmAbout"));
}

void MainWindow::buildToolbar()
{
    auto* toolbar = new QToolBar(tr("Toolbar"), m_band);
    toolbar->setObjectName(QStringLiteral("Toolbar1"));
    toolbar->setIconSize(QSize(22, 22));
    auto button = [&](const QString& key, const QString& tip, const char* icon, void (MainWindow::*slot)(),
                      const QString& dialog = {}) {
        QAction* command
            = addCommand(nullptr, key, QString(tip).section(QStringLiteral(" ("), 0, 0), slot, {}, dialog);
        command->setIcon(themed(icon));
        command->setProperty("ownToolTip", tip);
        setCommandEnabled(key, true);
        toolbar->addAction(command);
        if (QWidget* widget = toolbar->widgetForAction(command)) {
            widget->setObjectName(key);
            widget->setAccessibleName(QString(tip).section(QStringLiteral(" ("), 0, 0));
        }
        m_toolbar << command;
    };
    auto separator = [&](const QString& key) {
        QAction* separator = toolbar->addSeparator();
        separator->setObjectName(key);
        m_toolbar << separator;
    };
    button(QStringLiteral("btnNewDocument"), tr("New Document (Ctrl+N)"), "document-new",
        &MainWindow::newDocument, QStringLiteral("frmNewDocument"));
    button(
        QStringLiteral("btnOpen"), tr("Open Document (Ctrl+O)"), "document-open", &MainWindow::openDocument);
    separator(QStringLiteral("firstSep"));
    button(QStringLiteral("btnCopy"), tr("Copy Document (Ctrl+C)"), "edit-copy", &MainWindow::copyDocument,
        QStringLiteral("frmCopyFile"));
    button(QStringLiteral("btnMove"), tr("Move Document (Ctrl+M)"), "go-jump", &MainWindow::copyDocument,
        QStringLiteral("frmCopyFile"));
    button(
        QStringLiteral("btnDelete"), tr("Delete Document (Del)"), "edit-delete", &MainWindow::deleteSelected);
    button(QStringLiteral("btnPrint"), tr("Print (Ctrl+P)"), "document-print", &MainWindow::printDocument);
    separator({});
    button(QStringLiteral("btnDetails"), tr("Show Details (F3)"), "document-page-setup",
        &MainWindow::showDetails, QStringLiteral("frmNew"));
    button(QStringLiteral("btnProperties"), tr("Properties (F4)"), "document-properties",
        &MainWindow::showProperties);
    separator({});

    // The view button: its face does nothing, its menu sets the view.
    auto* viewMenu = new QMenu(toolbar);
    viewMenu->setObjectName(QStringLiteral("btnViewMenu"));
    const QList<std::tuple<QString, QString, void (MainWindow::*)()>> views = {
        {QStringLiteral("btnLarge"), tr("Lar&ge"), &MainWindow::viewLargeIcons},
        {QStringLiteral("btnSmall"), tr("&Small"), &MainWindow::viewSmallIcons},
        {QStringLiteral("btnList"), tr("&List"), &MainWindow::viewList},
        {QStringLiteral("btnDetailsV"), tr("&Details"), &MainWindow::viewDetails},
    };
    for (const auto& [key, caption, slot] : views)
        addCommand(viewMenu, key, caption, slot);
    auto* viewButton = new QAction(themed("view-list-icons", "view-list-symbolic"), tr("View Type"), this);
    viewButton->setObjectName(QStringLiteral("btnView"));
    viewButton->setToolTip(tr("View Type"));
    viewButton->setMenu(viewMenu);
    m_actions.insert(viewButton->objectName(), viewButton);
    toolbar->addAction(viewButton);
    if (auto* widget = qobject_cast<QToolButton*>(toolbar->widgetForAction(viewButton))) {
        widget->setObjectName(QStringLiteral("btnView"));
        widget->setPopupMode(QToolButton::MenuButtonPopup);
        widget->setAccessibleName(tr("View Type"));
    }
    m_toolbar << viewButton;
    separator(QStringLiteral("secsepar"));
    button(QStringLiteral("btnNewCat"), tr("New Category"), "folder-new", nullptr,
        QStringLiteral("frmNewCategory"));
    button(QStringLiteral("btnNewContact"), tr("New Contact"), "contact-new", nullptr,
        QStringLiteral("frmCorr"));
    separator(QStringLiteral("sep12"));
    button(QStringLiteral("btnContacts"), tr("Address Book"), "x-office-address-book", nullptr,
        QStringLiteral("frmCoresp"));
    separator(QStringLiteral("btnSepar3"));
    m_band->insertWidget(m_band->actions().value(0), toolbar);
}

void MainWindow::buildPopups()
{
    m_documentMenu = new QMenu(QStringLiteral("PopDoc"), this);
    m_documentMenu->setObjectName(QStringLiteral("mnuPopUp"));
    addCommand(m_documentMenu, QStringLiteral("mnuPopNew"), tr("&New Document"), &MainWindow::newDocument, {},
        QStringLiteral("frmNewDocument"));
    m_documentMenu->addSeparator()->setObjectName(QStringLiteral("mnuhypen15"));
    addCommand(m_documentMenu, QStringLiteral("mnuPopOpen"), tr("&Open"), &MainWindow::openDocument);
    m_documentMenu->addSeparator()->setObjectName(QStringLiteral("mnuhypen11"));
    addCommand(m_documentMenu, QStringLiteral("mnuPopCopy"), tr("&Copy/Move"), &MainWindow::copyDocument, {},
        QStringLiteral("frmCopyFile"));
    // The document's file replaced by another, the one it had kept as an earlier version.
    addCommand(
        m_documentMenu, QStringLiteral("mnuPopNewVersion"), tr("New &Version..."), &MainWindow::newVersion);
    addCommand(m_documentMenu, QStringLiteral("mnuPopDelete"), tr("&Delete"), &MainWindow::deleteSelected);
    m_documentMenu->addSeparator()->setObjectName(QStringLiteral("mnuhypen12"));
    addCommand(m_documentMenu, QStringLiteral("mnuPopPrint"), tr("&Print"), &MainWindow::printDocument);
    m_documentMenu->addSeparator()->setObjectName(QStringLiteral("mnuhypen13"));
    addCommand(m_documentMenu, QStringLiteral("mnuPopRelated"), tr("Ne&w Related"),
        &MainWindow::newRelatedDocument, {}, QStringLiteral("frmRelated"));
    QAction* hyphen14 = m_documentMenu->addSeparator();
    hyphen14->setObjectName(QStringLiteral("mnuhypen14"));
    m_actions.insert(hyphen14->objectName(), hyphen14);
    addCommand(m_documentMenu, QStringLiteral("mnuPopDetails"), tr("&Show Details"), &MainWindow::showDetails,
        {}, QStringLiteral("frmNew"));
    addCommand(
        m_documentMenu, QStringLiteral("mnuPopProperties"), tr("P&roperties"), &MainWindow::showProperties);

    m_categoryMenu = new QMenu(QStringLiteral("PopCat"), this);
    m_categoryMenu->setObjectName(QStringLiteral("mnuPopCat"));
    addCommand(m_categoryMenu, QStringLiteral("mnuPopCatNewDoc"), tr("&New Document"),
        &MainWindow::newDocument, {}, QStringLiteral("frmNewDocument"));
    addCommand(
        m_categoryMenu, QStringLiteral("mnuPopCatDel"), tr("&Delete"), &MainWindow::deleteSelectedCategory);
    addCommand(m_categoryMenu, QStringLiteral("mnuPopCatEdit"), tr("&Edit Details"),
        &MainWindow::editCategory, {}, QStringLiteral("frmCategory"));
}

void MainWindow::updateCommandState()
{
    const bool path = !m_state.selectedFilePath.isEmpty();
    for (const char* name : {"mnuOpen", "mnuCopy", "mnuMove", "mnuPrint", "mnuProperties", "mnuPopCopy",
             "mnuPopOpen", "mnuPopPrint", "mnuPopProperties"})
        setCommandEnabled(QLatin1String(name), path);
    setCommandEnabled(QStringLiteral("mnuDelete"), true);
    setToolbarEnabled({2, 4, 5, 7, 10}, path);
    setToolbarEnabled({6, 9}, true);
}

void MainWindow::disableDocumentCommands()
{
    for (const char* name : {"mnuOpen", "mnuCopy", "mnuMove", "mnuDelete", "mnuPrint", "mnuRelated",
             "mnuShowDetails", "mnuProperties"})
        setCommandEnabled(QLatin1String(name), false);
    setToolbarEnabled({2, 4, 5, 6, 7, 9, 10}, false);
}

} // namespace kartella
