#pragma once

// A register with one of each kind of row a delete takes, and files for the documents.
#include "harness/ServerDatabase.h"
#include "harness/TestRegister.h"
#include "store/engine/Connection.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

namespace kartella::test {

struct TrashFixture
{
    explicit TrashFixture(TestRegister::Where where = TestRegister::File);

    // Every row of the tables a delete touches, one text a row: table, then each column's
    // value and type.
    QStringList snapshot();
    // A file's bytes; empty when it is not there.
    static QByteArray bytes(const QString& path);
    QString makeFile(const QString& name, const QByteArray& content);

    TestRegister reg;
    QString trashFolder;
    Connection connection;
    QHash<QString, qint32> id; // by a name each test uses: "doc", "rel1", "Sutartys", ...
    QHash<QString, QString> file; // paths by the same names
};

} // namespace kartella::test
