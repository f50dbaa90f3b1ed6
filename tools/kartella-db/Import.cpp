#include "Import.h"

#include "addressbook/import/ContactFile.h"
#include "addressbook/import/ContactImporter.h"
#include "addressbook/import/TextDecoding.h"
#include "base/Error.h"
#include "store/Store.h"

#include <QDir>
#include <QFileInfo>

namespace kartella::tool {

void importCommand(const QString& registerPath, const QString& file, const QString& codePage,
    QTextStream& out, QTextStream& err)
{
    if (!codePage.isEmpty() && !isKnownCodePage(codePage))
        throw Error(ErrorNumber::PathFileAccess, QStringLiteral("unknown code page \"%1\"").arg(codePage));
    if (!QFileInfo(registerPath).isFile())
        throw Error(ErrorNumber::ConnectionFailed,
            QStringLiteral("no register at \"%1\"").arg(QDir::toNativeSeparators(registerPath)));
    const QList<ContactItem> items = readContactFile(file, codePage);
    if (items.isEmpty())
        throw Error(ErrorNumber::PathFileAccess,
            QStringLiteral("the contact file \"%1\" holds no contacts").arg(QDir::toNativeSeparators(file)));

    ContactImporter importer(plainConnectionString(QStringLiteral("Microsoft.Jet.OLEDB.4.0"), registerPath),
        [&err](const Error& error) {
            err << "kartella-db: error " << error.number() << ": "
                << QString(error.description()).replace(u'\n', u' ') << Qt::endl;
            return true;
        });
    importer.run(items);
    out << importer.counts().added << " contacts added, " << importer.counts().skipped << " skipped"
        << Qt::endl;
}

} // namespace kartella::tool
