#pragma once

#include <QString>

namespace kartella::bench {

// What the seed of the register holds and the clients count on. Documents 1 to HotDocuments
// are edited by every client on purpose and never deleted; the others may be deleted while
// another client edits them.
constexpr int SeedDocuments = 300;
constexpr int HotDocuments = 10;
constexpr int SeedContacts = 200;
constexpr int ImportBatches = 10;
constexpr int ImportSize = 100;
const QString JetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

QString seedContactName(int i);
// The contacts of an import of a batch: half of them seed contacts, half new; the clients
// import the same batches, so the new half is there already for all but the first of them.
QString importedName(int batch, int i);

struct ClientOptions
{
    int number = 0;
    QString location;
    QString logPath;
    int seconds = 60;
    bool pause = true;
};

// Runs one client's mix until its time is up, through the program's own code, each operation
// on connections of its own as the windows make them. The options (XDG_CONFIG_HOME) are the
// client's own. Returns the process's exit status.
int runClient(const ClientOptions& options);

} // namespace kartella::bench
