#include "TrashBench.h"

#include "history/Trash.h"
#include "options/TrashOptions.h"
#include "store/InsertBatch.h"
#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"

#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <vector>

namespace kartella::bench {

namespace {

constexpr int RelatedDocuments = 20;
constexpr int Rounds = 5;

QString makeFile(const QString& path)
{
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(QByteArray(64 * 1024, 'k'));
    return path;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace

void measureTrash(const QString& folder, QTextStream& out)
{
    const QString path = QDir(folder).filePath(QStringLiteral("bench.mdb"));
    createRegister(path);
    Connection connection(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), path));
    connection.open();
    // Some rows besides, so that the delete finds its rows among others.
    {
        InsertBatch documents(connection, QStringLiteral("tbl_Documents"),
            {QStringLiteral("DokAntraste"), QStringLiteral("DokRegistracData")});
        for (int i = 0; i < 20000; ++i)
            documents.add({QStringLiteral("Document %1").arg(i), QDate(2024, 1, 1).addDays(i % 700)});
        documents.flush();
    }
    const QString files = QDir(folder).filePath(QStringLiteral("files"));
    QDir().mkpath(files);
    connection.execute(
        QStringLiteral("INSERT INTO tbl_Documents (DokAntraste, DokRegistracIndeksas, RastoKel) "
                       "VALUES ('Contract', 'B-1', '%1')")
            .arg(makeFile(QDir(files).filePath(QStringLiteral("contract.doc")))));
    const qint64 id = connection.keyCounter(QStringLiteral("tbl_Documents"));
    for (int i = 0; i < RelatedDocuments; ++i)
        connection.execute(
            QStringLiteral("INSERT INTO tbl_Sub_Documents (RastasID, SubDocDescript, SubRastoKelias) VALUES "
                           "(%1, 'Annex %2', '%3')")
                .arg(id)
                .arg(i)
                .arg(makeFile(QDir(files).filePath(QStringLiteral("annex %1.pdf").arg(i)))));
    Trash trash(connection, trashFolderFor(path));
    std::vector<double> deletes;
    std::vector<double> restores;
    for (int round = 0; round < Rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        const qint64 item = trash.deleteDocument(id);
        deletes.push_back(timer.nsecsElapsed() / 1e6);
        timer.restart();
        trash.restore(item);
        restores.push_back(timer.nsecsElapsed() / 1e6);
    }
    out << "delete_ms: " << median(deletes) << '\n' << "restore_ms: " << median(restores) << '\n';
    out.flush();
}

} // namespace kartella::bench
