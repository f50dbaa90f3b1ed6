#include "explorer/TreeFills.h"

#include "explorer/DeletedItemsNode.h"
#include "explorer/NavigationTree.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QCoreApplication>

namespace kartella {

namespace {
const QString RootKey = QStringLiteral("ALL");

QString text(const QVariant& value)
{
    return isNull(value) ? NullMark : value.toString();
}
} // namespace

int contactLetterIndex(QChar first)
{
    const QChar upper = first.toUpper();
    if (upper >= u'A' && upper <= u'Z')
        return upper.unicode() - u'A';
    switch (upper.unicode()) {
    case u'Ą':
        return 0;
    case u'Č':
        return u'C' - u'A';
    case u'Ė':
        return u'E' - u'A';
    case u'Į':
        return u'I' - u'A';
    case u'Š':
        return u'S' - u'A';
    case u'Ų':
        return u'U' - u'A';
    case u'Ž':
        return u'Z' - u'A';
    default:
        return -1;
    }
}

void buildCategoryTree(NavigationTree& tree)
{
    Connection connection;
    connection.open(plainConnectionString());
    connection.execute(QStringLiteral("DELETE tbl_Sub_Categories.*, tbl_Sub_Categories.KategID, "
                                      "tbl_Sub_Categories.DokSubKategorija ")
        + QStringLiteral("From tbl_Sub_Categories ")
        + QStringLiteral("WHERE (tbl_Sub_Categories.DokSubKategorija Is Null) OR KategID=0;"));
    Recordset categories;
    categories.open(
        QStringLiteral("SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija ")
            + QStringLiteral("FROM tbl_Document_Categories ")
            + QStringLiteral("ORDER BY tbl_Document_Categories.DokKategorija;"),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    QTreeWidgetItem* root
        = tree.addNode({}, RootKey, QCoreApplication::translate("kartella::TreeFills", "CATEGORIES"));
    tree.setExpandedImage(root, QStringLiteral("Open"));
    while (!categories.eof()) {
        const QString id = categories.collect(QStringLiteral("KategID")).toString();
        const QString categoryKey = u'a' + id;
        tree.addNode(RootKey, categoryKey, text(categories.collect(QStringLiteral("DokKategorija"))),
            QStringLiteral("Closed"), QStringLiteral("Open"));
        Recordset subCategories;
        subCategories.open(QStringLiteral("SELECT  tbl_Sub_Categories.SubKategID, ")
                + QStringLiteral("tbl_Sub_Categories.KategID, tbl_Sub_Categories.DokSubKategorija ")
                + QStringLiteral("FROM tbl_Sub_Categories ")
                + QStringLiteral("WHERE tbl_Sub_Categories.KategID= ") + id,
            connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        if (subCategories.recordCount() > 0) {
            while (!subCategories.eof()) {
                tree.addNode(categoryKey,
                    u'b' + subCategories.collect(QStringLiteral("SubKategID")).toString(),
                    text(subCategories.collect(QStringLiteral("DokSubKategorija"))), QStringLiteral("Closed"),
                    QStringLiteral("Open"));
                subCategories.moveNext();
            }
        }
        subCategories.close();
        categories.moveNext();
    }
    categories.close();
    connection.close();
    addDeletedItemsNode(tree);
    tree.expandAll();
    tree.selectNode(tree.nodeByIndex(1));
}

void buildContactTree(NavigationTree& tree)
{
    Connection connection;
    connection.open(plainConnectionString());
    Recordset contacts;
    contacts.open(QStringLiteral("SELECT ContactID,CompanyName,FullName AS FN ")
            + QStringLiteral("FROM tbl_Contacts ")
            + QStringLiteral("WHERE FullName <> '\"' ORDER BY FullName"),
        connection, CursorTypeEnum::Dynamic, LockTypeEnum::Unspecified);
    QTreeWidgetItem* root
        = tree.addNode({}, RootKey, QCoreApplication::translate("kartella::TreeFills", "CONTACTS"));
    tree.setExpandedImage(root, QStringLiteral("Open"));
    for (int letterIndex = 0; letterIndex < 26; ++letterIndex) {
        const QString letter(QChar(u'A' + letterIndex));
        tree.addNode(RootKey, letter, letter, QStringLiteral("Closed"), QStringLiteral("Twist"));
        QList<std::pair<QString, QString>> letterContacts;
        while (!contacts.eof()) {
            const QString name = contacts.collect(QStringLiteral("FN")).toString();
            const int belongs = name.isEmpty() ? -1 : contactLetterIndex(name.at(0));
            if (belongs > letterIndex)
                break; // stays current for the letters to come
            if (belongs == letterIndex)
                letterContacts.append(
                    {QStringLiteral("ID") + contacts.collect(QStringLiteral("ContactID")).toString(), name});
            contacts.moveNext();
        }
        tree.addNodes(letter, letterContacts, QStringLiteral("Open"), QStringLiteral("Point"));
    }
    contacts.close();
    connection.close();
    addDeletedItemsNode(tree);
    QTreeWidgetItem* first = tree.nodeByIndex(1);
    tree.selectNode(first);
    first->setExpanded(true);
}

} // namespace kartella
