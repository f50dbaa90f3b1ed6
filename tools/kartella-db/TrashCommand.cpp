#include "TrashCommand.h"

#include "RegisterArgument.h"
#include "ToolText.h"
#include "base/Error.h"
#include "history/Trash.h"
#include "options/TrashOptions.h"
#include "platform/Clock.h"
#include "store/engine/Connection.h"

#include <QDir>

namespace kartella::tool {

namespace {

// Opens the register at path with its trash; refuses a register that has none.
template<typename Work>
void withTrash(const QString& path, Work work)
{
    const QString location = existingRegister(path);
    Connection connection(registerConnectionString(location));
    connection.open();
    if (!Trash::inRegister(connection))
        throw Error(ErrorNumber::CommandFailed,
            ToolText::tr(
                "the register at %1 has no trash: it was made by an earlier Kartella (see kartella-db "
                "upgrade)")
                .arg(path));
    Trash trash(connection, trashFolderFor(location));
    trash.setVersionsFolder(versionsFolderFor(location));
    work(trash);
}

} // namespace

void trashCommand(const QString& path, QTextStream& out)
{
    withTrash(path, [&out](Trash& trash) {
        const QList<TrashItem> items = trash.items();
        if (items.isEmpty())
            out << ToolText::tr("The trash is empty.") << '\n';
        for (const TrashItem& item : items) {
            out << item.kind << '\t'
                << (item.registrationIndex.isEmpty() ? item.title : item.registrationIndex) << '\t'
                << item.deletedBy << '\t' << item.deletedAt.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"))
                << " UTC\n";
        }
    });
}

void restoreCommand(const QString& path, const QString& registrationIndex, QTextStream& out)
{
    withTrash(path, [&](Trash& trash) {
        const qint64 item = trash.findDocument(registrationIndex);
        if (item == 0)
            throw Error(ErrorNumber::ItemNotFound,
                ToolText::tr("the trash holds no document with the registration index \"%1\"")
                    .arg(registrationIndex));
        const RestoreOutcome outcome = trash.restore(item);
        for (const TrashItem& restored : outcome.restored)
            out << ToolText::tr("Restored %1 \"%2\"").arg(restored.kind, restored.title) << '\n';
        for (const auto& [taken, renamed] : outcome.renamed)
            out << ToolText::tr("The path %1 was taken; the file is now %2")
                       .arg(QDir::toNativeSeparators(taken), QDir::toNativeSeparators(renamed))
                << '\n';
    });
}

void purgeCommand(const QString& path, int days, QTextStream& out)
{
    withTrash(path, [&](Trash& trash) {
        const int purged = trash.purgeOlderThan(days, Clock::instance().now().toUTC());
        out << (purged == 1 ? ToolText::tr("Deleted for good: %1 item")
                            : ToolText::tr("Deleted for good: %1 items"))
                   .arg(purged)
            << '\n';
    });
}

} // namespace kartella::tool
