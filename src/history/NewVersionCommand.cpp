#include "history/NewVersionCommand.h"

#include "base/Error.h"
#include "history/Versions.h"
#include "options/OptionStore.h"
#include "options/TrashOptions.h"
#include "platform/Prompter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace kartella {

bool replaceWithNewVersion(qint64 documentId, const QString& currentPath)
{
    const QString title = QCoreApplication::translate("kartella::Versions", "New Version");
    if (documentId == 0) {
        msgBox(QCoreApplication::translate("kartella::Versions", "Select document, please!"),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, title);
        return false;
    }
    if (currentPath.isEmpty() || !QFileInfo(currentPath).isFile()) {
        msgBox(QCoreApplication::translate("kartella::Versions", "This document has no file to replace."),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, title);
        return false;
    }
    const QString chosen = Prompter::instance().openFile(
        {QCoreApplication::translate("kartella::Versions", "New version of %1")
                .arg(QFileInfo(currentPath).fileName()),
            QFileInfo(currentPath).absolutePath(),
            QCoreApplication::translate("kartella::Versions", "All files"), QStringLiteral("*")});
    if (chosen.isEmpty())
        return false;
    if (QFileInfo(chosen).canonicalFilePath() == QFileInfo(currentPath).canonicalFilePath()) {
        msgBox(QCoreApplication::translate("kartella::Versions", "This is the document's own file."),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, title);
        return false;
    }
    try {
        Versions versions(
            versionsFolderFor(getRegValue(QStringLiteral("DbLocation")).trimmed()), versionsPerDocument());
        versions.replace(documentId, currentPath, chosen);
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, title);
        return false;
    }
    return true;
}

} // namespace kartella
