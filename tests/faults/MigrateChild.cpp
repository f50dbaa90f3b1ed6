// A migration run on its own, for the fault suite to kill: makes the register at its first
// argument and moves an old register of as many contacts as its second into it.
#include "faults/ListSource.h"
#include "store/Schema.h"
#include "store/migration/RegisterMigration.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 3)
        return 2;
    const QString target = QString::fromLocal8Bit(argv[1]);
    kartella::createRegister(target);
    kartella::test::ListSource source(QByteArray(argv[2]).toInt());
    // The old register holds two of the register's tables; the report names the others.
    kartella::migration::migrateRegister(source, target);
    return 0;
}
