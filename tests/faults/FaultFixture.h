#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace kartella::test {

// What a register holds, to compare before and after a fault: every row of every table by
// its key (a hash of its values) and every file under a folder by its path relative to it.
// Read straight from the file, so that the engine under test has no part in the check.
struct RegisterSnapshot
{
    QMap<QString, QMap<QString, QByteArray>> tables;
    QMap<QString, QByteArray> files;

    static RegisterSnapshot take(const QString& registerPath, const QString& filesFolder = {});

    // The rows and files of `before` that this snapshot lacks or holds changed, one line each.
    QStringList lostOrChanged(const RegisterSnapshot& before) const;
    qint64 rowCount(const QString& table) const { return tables.value(table).size(); }
};

// The answer of PRAGMA integrity_check, "ok" for a sound file.
QString integrityCheck(const QString& registerPath);

// A file of count contacts in vCard 3.0, each with a business phone, a mobile phone and a web page.
QByteArray contactsVCard(int count, const QString& namePrefix = QStringLiteral("Kontaktas"));

// A run of kartella-db.
struct ToolRun
{
    bool finished = false;
    int exitCode = -1;
    QString out;
    QString err;
};
ToolRun runTool(const QStringList& arguments, int timeoutMs = 120000);

} // namespace kartella::test
