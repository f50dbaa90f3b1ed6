#include "Import.h"

#include "RegisterArgument.h"
#include "ToolText.h"
#include "addressbook/import/ContactFile.h"
#include "addressbook/import/ContactImporter.h"
#include "addressbook/import/TextDecoding.h"
#include "base/Error.h"
#include "store/engine/Connection.h"

#include <QDir>

namespace kartella::tool {

int importCommand(const QString& registerPath, const QString& file, const QString& codePage, QTextStream& out,
    QTextStream& err)
{
    if (!codePage.isEmpty() && !isKnownCodePage(codePage))
        throw Error(ErrorNumber::PathFileAccess, ToolText::tr("unknown code page \"%1\"").arg(codePage));
    const QString location = existingRegister(registerPath);
    const QList<ContactItem> items = readContactFile(file, codePage);
    if (items.isEmpty())
        throw Error(ErrorNumber::PathFileAccess,
            ToolText::tr("the contact file \"%1\" holds no contacts").arg(QDir::toNativeSeparators(file)));

    // A register that can't be opened (a server out of reach) fails the command here rather
    // than each contact's steps one by one.
    Connection probe;
    probe.open(registerConnectionString(location));
    probe.close();

    ContactImporter importer(registerConnectionString(location), [&err](const Error& error) {
        err << "kartella-db: "
            << ToolText::tr("error %1: %2")
                   .arg(QString::number(error.number()), QString(error.description()).replace(u'\n', u' '))
            << Qt::endl;
        return true;
    });
    importer.run(items);
    const ContactImportCounts& counts = importer.counts();
    out << ToolText::tr("%1 contacts added, %2 skipped, %3 failed")
               .arg(QString::number(counts.added), QString::number(counts.skipped),
                   QString::number(counts.failed))
        << Qt::endl;
    return counts.errors == 0 ? 0 : 1;
}

} // namespace kartella::tool
