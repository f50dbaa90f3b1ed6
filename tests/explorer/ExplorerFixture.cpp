#include "explorer/ExplorerFixture.h"

#include "explorer/DocumentFills.h"
#include "explorer/ExplorerList.h"
#include "explorer/ListModel.h"
#include "explorer/MainWindow.h"
#include "explorer/NavigationTree.h"

#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QTest>
#include <QTreeView>

namespace kartella::test {

ExplorerFixture::ExplorerFixture(TestRegister::Where where)
    : reg(where)
{
    const QDate today = QDate::currentDate();
    thisMonth = QDate(today.year(), today.month(), 10);
    lastMonth = thisMonth.addMonths(-1);

    id["Sutartys"]
        = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Sutartys"}, {"Mnemonic", "SUT"}});
    id["Raštai"] = reg.insert("tbl_Document_Categories", {{"DokKategorija", "Raštai"}, {"Mnemonic", "RAS"}});
    id["Nuomos"]
        = reg.insert("tbl_Sub_Categories", {{"KategID", id["Sutartys"]}, {"DokSubKategorija", "Nuomos"}});
    id["Darbo"]
        = reg.insert("tbl_Sub_Categories", {{"KategID", id["Sutartys"]}, {"DokSubKategorija", "Darbo"}});
    // Two subcategories the tree's fill removes: no name, and no category.
    id["noname"] = reg.insert("tbl_Sub_Categories", {{"KategID", id["Sutartys"]}});
    id["orphan"] = reg.insert("tbl_Sub_Categories", {{"KategID", 0}, {"DokSubKategorija", "Orphan"}});

    for (const char* name : {"Antanas Petraitis", "Ąžuolas Kairys", "benas Jonaitis", "Šarūnas Vilkas",
             "Yla Rimkutė", "5 skyrius", "Ūla Žukienė", "Zita Zabielienė"})
        id[QString::fromUtf8(name).section(u' ', 0, 0)]
            = reg.insert("tbl_Contacts", {{"FullName", QString::fromUtf8(name)}});
    id["company"] = reg.insert("tbl_Contacts", {{"CompanyName", "UAB Be vardo"}});

    existingFile = reg.dir() + "/laiskas.txt";
    QFile file(existingFile);
    file.open(QIODevice::WriteOnly);
    file.write("Laiškas\n");
    file.close();

    auto document = [&](const QString& name, const QVariantMap& values) {
        QVariantMap row = values;
        row["DokAntraste"] = name;
        if (!row.contains("DokRegistracData"))
            row["DokRegistracData"] = QVariant(thisMonth);
        id[name] = reg.insert("tbl_Documents", row);
    };
    document("contract",
        {{"KategID", id["Sutartys"]}, {"SubKategID", id["Nuomos"]}, {"ContactID", id["Antanas"]},
            {"KryptisID", 2}, {"DokRegistracIndeksas", "SUT-1"}, {"DokPastaba", "Pasirašyta"}});
    document("work",
        {{"KategID", id["Sutartys"]}, {"SubKategID", id["Darbo"]}, {"ContactID", id["Ąžuolas"]},
            {"KryptisID", 3}, {"DokRegistracIndeksas", "SUT-2"}, {"DokRegistracData", QVariant(lastMonth)}});
    document("letter",
        {{"KategID", id["Raštai"]}, {"ContactID", id["Ąžuolas"]}, {"KryptisID", 3},
            {"RastoKel", existingFile}});
    document("note",
        {{"KategID", id["Raštai"]}, {"ContactID", id["benas"]}, {"KryptisID", 1},
            {"RastoKel", QString(reg.dir() + "/gone.doc")}});
    document("loose", {{"KryptisID", 4}});

    id["annex"] = reg.insert("tbl_Sub_Documents",
        {{"RastasID", id["contract"]}, {"SubDocDescript", "annex"}, {"ContactID", id["Antanas"]},
            {"SubRastGavimoData", thisMonth}});
    id["copy"] = reg.insert("tbl_Sub_Documents",
        {{"RastasID", id["contract"]}, {"SubDocDescript", "copy"}, {"SubRastoKelias", existingFile}});
}

ExplorerFixture::~ExplorerFixture() = default;

MainWindow& ExplorerFixture::window()
{
    if (!m_window) {
        m_window = std::make_unique<MainWindow>();
        m_window->resize(1000, 700);
        m_window->show();
        m_window->load();
        if (!QTest::qWaitForWindowExposed(m_window.get()))
            qWarning("window not exposed");
    }
    return *m_window;
}

ListModel& ExplorerFixture::documents() const
{
    return *m_window->documentModel();
}

ListModel& ExplorerFixture::related() const
{
    return *m_window->relatedModel();
}

QStringList ExplorerFixture::documentTexts() const
{
    QStringList texts;
    for (int row = 0; row < documents().itemCount(); ++row)
        texts << documents().item(row).text;
    texts.sort();
    return texts;
}

QStringList ExplorerFixture::columnCaptions(const ListModel& model) const
{
    QStringList captions;
    for (const ListColumn& column : model.columns())
        captions << column.caption;
    return captions;
}

void ExplorerFixture::clickNode(const QString& key)
{
    NavigationTree* tree = m_window->tree();
    QTreeWidgetItem* node = tree->nodeByKey(key);
    QVERIFY2(node, qPrintable("no node " + key));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    tree->scrollToItem(node);
    const QRect rect = tree->visualItemRect(node);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, rect.center());
    QVERIFY2(tree->currentItem() == node,
        qPrintable(QString("clicked beside node %1 at %2,%3, current %4, viewport %5x%6")
                       .arg(key)
                       .arg(rect.center().x())
                       .arg(rect.center().y())
                       .arg(NavigationTree::nodeKey(tree->currentItem()))
                       .arg(tree->viewport()->width())
                       .arg(tree->viewport()->height())));
}

void ExplorerFixture::clickDocument(const QString& name)
{
    const int row = documents().rowOfKey(DocumentFills::itemKey(id.value(name)));
    QVERIFY2(row >= 0, qPrintable("no document " + name));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    QTreeView* view = m_window->documentList()->detailsView();
    const QModelIndex index = documents().index(row, 0);
    view->scrollTo(index);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(index).center());
}

QString ExplorerFixture::countText() const
{
    return m_window->findChild<QLabel*>("pnCount")->text();
}

} // namespace kartella::test
