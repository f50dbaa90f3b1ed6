#include "history/TrashCommands.h"

#include "base/Error.h"
#include "options/OptionStore.h"
#include "options/TrashOptions.h"
#include "platform/Prompter.h"
#include "store/engine/Connection.h"

#include <QCoreApplication>
#include <QDir>

namespace kartella {

QString registerTrashFolder()
{
    return trashFolderFor(getRegValue(QStringLiteral("DbLocation")).trimmed());
}

QString askRegisterTrashFolder()
{
    const QString location = getRegValue(QStringLiteral("DbLocation")).trimmed();
    const QString folder = trashFolderFor(location);
    if (!folder.isEmpty())
        return folder;
    const QString shared = Prompter::instance().chooseFolder(QCoreApplication::translate("kartella::Trash",
        "Choose the shared folder where the register keeps deleted files and earlier versions"));
    if (shared.isEmpty())
        return {};
    setSharedTrashFolder(shared);
    return trashFolderFor(location);
}

QString askRegisterVersionsFolder()
{
    const QString location = getRegValue(QStringLiteral("DbLocation")).trimmed();
    if (versionsFolderFor(location).isEmpty())
        askRegisterTrashFolder();
    return versionsFolderFor(location);
}

bool moveToRegisterTrash(Connection& connection, const QString& kind, qint64 key)
{
    try {
        Trash trash(connection, registerTrashFolder());
        trash.setFolderQuestion(askRegisterTrashFolder);
        trash.deleteItem(kind, key);
        return true;
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical,
            QCoreApplication::translate("kartella::Trash", "Unable to delete as requested"));
        return false;
    }
}

void tellRenamedFiles(const RestoreOutcome& outcome)
{
    if (outcome.renamed.isEmpty())
        return;
    QString text = QCoreApplication::translate("kartella::Trash",
        "Another file took the place of a restored one meanwhile; the restored file got a new name:");
    for (const auto& [path, renamed] : outcome.renamed)
        text += QStringLiteral("\n%1\n    -> %2")
                    .arg(QDir::toNativeSeparators(path), QDir::toNativeSeparators(renamed));
    msgBox(text, MsgBoxStyle::OkOnly + MsgBoxStyle::Information,
        QCoreApplication::translate("kartella::Trash", "Restore"));
}

} // namespace kartella
