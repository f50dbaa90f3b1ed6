#include "explorer/TreeFills.h"

#include "explorer/NavigationTree.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

namespace kartella {

namespace {
const QString RootKey = QStringLiteral("ALL");

QString text(const QVariant& value)
{
    return IsNull(value) ? NullMark : value.toString();
}
} // namespace

int ContactLetterIndex(QChar first)
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

void BuildCategoryTree(NavigationTree& tree)
{
    Connection connection;
    connection.Open(PlainConnectionString());
    connection.Execute(QStringLiteral("DELETE tbl_Sub_Categories.*, tbl_Sub_Categories.KategID, "
                                      "tbl_Sub_Categories.DokSubKategorija ")
        + QStringLiteral("From tbl_Sub_Categories ")
        + QStringLiteral("WHERE (tbl_Sub_Categories.DokSubKategorija Is Null) OR KategID=0;"));
    Recordset categories;
    categories.Open(
        QStringLiteral("SELECT tbl_Document_Categories.KategID, tbl_Document_Categories.DokKategorija ")
            + QStringLiteral("FROM tbl_Document_Categories ")
            + QStringLiteral("ORDER BY tbl_Document_Categories.DokKategorija;"),
        connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
    QTreeWidgetItem* root = tree.addNode({}, RootKey, QStringLiteral("CATEGORIES"));
    tree.setExpandedImage(root, QStringLiteral("Open"));
    while (!categories.Eof()) {
        const QString id = categories.Collect(QStringLiteral("KategID")).toString();
        const QString categoryKey = u'a' + id;
        tree.addNode(RootKey, categoryKey, text(categories.Collect(QStringLiteral("DokKategorija"))),
            QStringLiteral("Closed"), QStringLiteral("Open"));
        Recordset subCategories;
        subCategories.Open(QStringLiteral("SELECT  tbl_Sub_Categories.SubKategID, ")
                + QStringLiteral("tbl_Sub_Categories.KategID, tbl_Sub_Categories.DokSubKategorija ")
                + QStringLiteral("FROM tbl_Sub_Categories ")
                + QStringLiteral("WHERE tbl_Sub_Categories.KategID= ") + id,
            connection, CursorTypeEnum::Static, LockTypeEnum::Unspecified);
        if (subCategories.RecordCount() > 0) {
            while (!subCategories.Eof()) {
                tree.addNode(categoryKey,
                    u'b' + subCategories.Collect(QStringLiteral("SubKategID")).toString(),
                    text(subCategories.Collect(QStringLiteral("DokSubKategorija"))), QStringLiteral("Closed"),
                    QStringLiteral("Open"));
                subCategories.MoveNext();
            }
        }
        subCategories.Close();
        categories.MoveNext();
    }
    categories.Close();
    connection.Close();
    tree.expandAll();
    tree.selectNode(tree.nodeByIndex(1));
}

void BuildContactTree(NavigationTree& tree)
{
    Connection connection;
    connection.Open(PlainConnectionString());
    Recordset contacts;
    contacts.Open(QStringLiteral("SELECT ContactID,CompanyName,FullName AS FN ")
            + QStringLiteral("FROM tbl_Contacts ")
            + QStringLiteral("WHERE FullName <> '\"' ORDER BY FullName"),
        connection, CursorTypeEnum::Dynamic, LockTypeEnum::Unspecified);
    QTreeWidgetItem* root = tree.addNode({}, RootKey, QStringLiteral("CONTACTS"));
    tree.setExpandedImage(root, QStringLiteral("Open"));
    for (int letterIndex = 0; letterIndex < 26; ++letterIndex) {
        const QString letter(QChar(u'A' + letterIndex));
        tree.addNode(RootKey, letter, letter, QStringLiteral("Closed"), QStringLiteral("Twist"));
        while (!contacts.Eof()) {
            const QString name = contacts.Collect(QStringLiteral("FN")).toString();
            const int belongs = name.isEmpty() ? -1 : ContactLetterIndex(name.at(0));
            if (belongs > letterIndex)
                break; // stays current for the letters to come
            if (belongs == letterIndex) {
                tree.addNode(letter,
                    QStringLiteral("ID") + contacts.Collect(QStringLiteral("ContactID")).toString(), name,
                    QStringLiteral("Open"), QStringLiteral("Point"));
            }
            contacts.MoveNext();
        }
    }
    contacts.Close();
    connection.Close();
    QTreeWidgetItem* first = tree.nodeByIndex(1);
    tree.selectNode(first);
    first->setExpanded(true);
}

} // namespace kartella
