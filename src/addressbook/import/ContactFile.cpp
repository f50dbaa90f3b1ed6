#include "addressbook/import/ContactFile.h"

#include "addressbook/import/OutlookCsvReader.h"
#include "addressbook/import/VCardReader.h"
#include "base/Error.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

namespace kartella {

QList<ContactItem> readContactFile(const QString& path, const QString& codePage)
{
    QFile file(path);
    const QString shown = QDir::toNativeSeparators(path);
    if (!file.open(QIODevice::ReadOnly))
        throw Error(ErrorNumber::PathFileAccess,
            QCoreApplication::translate(
                "kartella::ContactFile", "The contact file \"%1\" could not be read: %2.")
                .arg(shown, file.errorString()));
    const QByteArray data = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw Error(ErrorNumber::PathFileAccess,
            QCoreApplication::translate(
                "kartella::ContactFile", "The contact file \"%1\" could not be read: %2.")
                .arg(shown, file.errorString()));
    if (looksLikeVCard(data))
        return readVCards(data, codePage);
    bool recognised = false;
    QList<ContactItem> contacts = readOutlookCsv(data, codePage, &recognised);
    if (!recognised && !data.trimmed().isEmpty())
        throw Error(ErrorNumber::PathFileAccess,
            QCoreApplication::translate("kartella::ContactFile",
                "The contact file \"%1\" is neither a vCard file nor an Outlook CSV export.")
                .arg(shown));
    return contacts;
}

} // namespace kartella
