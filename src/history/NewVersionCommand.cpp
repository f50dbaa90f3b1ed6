#include "history/NewVersionCommand.h"

#include "base/Error.h"
#include "history/TrashCommands.h"
#include "history/Versions.h"
#include "options/TrashOptions.h"
#include "platform/Prompter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace kartella {

namespace {

QString newVersionTitle()
{
    return QCoreApplication::translate("kartella::Versions", "New Version");
}

} // namespace

bool hasReplaceableFile(qint64 documentId, const QString& currentPath)
{
    if (documentId == 0) {
        msgBox(QCoreApplication::translate("kartella::Versions", "Select document, please!"),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, newVersionTitle());
        return false;
    }
    if (currentPath.isEmpty() || !QFileInfo(currentPath).isFile()) {
        msgBox(QCoreApplication::translate("kartella::Versions", "This document has no file to replace."),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, newVersionTitle());
        return false;
    }
    return true;
}

bool putNewVersion(qint64 documentId, const QString& currentPath, const QString& newFile)
{
    if (QFileInfo(newFile).canonicalFilePath() == QFileInfo(currentPath).canonicalFilePath()) {
        msgBox(QCoreApplication::translate("kartella::Versions", "This is the document's own file."),
            MsgBoxStyle::OkOnly + MsgBoxStyle::Exclamation, newVersionTitle());
        return false;
    }
    try {
        Versions versions(askRegisterVersionsFolder(), versionsPerDocument());
        versions.replace(documentId, currentPath, newFile);
    } catch (const Error& error) {
        msgBox(error.description(), MsgBoxStyle::OkOnly + MsgBoxStyle::Critical, newVersionTitle());
        return false;
    }
    return true;
}

bool replaceWithNewVersion(qint64 documentId, const QString& currentPath, const QString& newFile)
{
    if (!hasReplaceableFile(documentId, currentPath))
        return false;
    QString chosen = newFile;
    if (chosen.isEmpty()) {
        chosen = Prompter::instance().openFile(
            {QCoreApplication::translate("kartella::Versions", "New version of %1")
                    .arg(QFileInfo(currentPath).fileName()),
                QFileInfo(currentPath).absolutePath(),
                QCoreApplication::translate("kartella::Versions", "All files"), QStringLiteral("*")});
        if (chosen.isEmpty())
            return false;
    } else if (msgBox(QCoreApplication::translate(
                          "kartella::Versions", "Put %1 in place of %2, keeping %2 as an earlier version?")
                          .arg(QFileInfo(chosen).fileName(), QFileInfo(currentPath).fileName()),
                   MsgBoxStyle::YesNo + MsgBoxStyle::Question, newVersionTitle())
        != MsgBoxResult::Yes) {
        return false;
    }
    return putNewVersion(documentId, currentPath, chosen);
}

} // namespace kartella
