#include "explorer/DeletedItemsNode.h"

#include "base/Error.h"
#include "explorer/NavigationTree.h"
#include "history/Trash.h"
#include "options/OptionStore.h"
#include "options/TrashOptions.h"
#include "platform/Clock.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QCoreApplication>

namespace kartella {

void addDeletedItemsNode(NavigationTree& tree)
{
    try {
        Connection connection(plainConnectionString());
        connection.open();
        if (Trash::inRegister(connection))
            tree.addNode({}, DeletedItemsKey,
                QCoreApplication::translate("kartella::DeletedItemsNode", "Deleted items"),
                QStringLiteral("Closed"), QStringLiteral("Open"));
    } catch (const Error&) { }
}

void purgeOldDeletedItems()
{
    try {
        Connection connection(plainConnectionString());
        connection.open();
        if (!Trash::inRegister(connection))
            return;
        // A register on a server whose shared folder isn't named yet: the rows go, and the
        // files stay in the folder until someone names it.
        const QString location = getRegValue(QStringLiteral("DbLocation")).trimmed();
        Trash trash(connection, trashFolderFor(location));
        trash.setVersionsFolder(versionsFolderFor(location));
        trash.purgeOlderThan(trashDays(), Clock::instance().now().toUTC());
    } catch (const Error&) { }
}

} // namespace kartella
