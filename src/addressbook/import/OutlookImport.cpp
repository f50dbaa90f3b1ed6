#include "addressbook/import/OutlookImport.h"

#include "addressbook/import/ContactFile.h"
#include "addressbook/import/ContactImporter.h"
#include "base/Error.h"
#include "platform/Prompter.h"
#include "store/Store.h"

#include <QDir>

namespace kartella {

namespace {

const QString ContactManagerTitle = QStringLiteral("Contact Manager");
const QString ClosingTitle = QStringLiteral("Import Contacts from Outlook");
const QString ErrorTitle = QStringLiteral("Error in ImportOutlookData()");

QString errorQuestion(const Error& error)
{
    return QStringLiteral("An error occured while importing data. The error was ")
        + QStringLiteral("error number ") + QString::number(error.number()) + QStringLiteral(": ")
        + error.description() + QStringLiteral("Would you like to continue trying to import data?");
}

} // namespace

QString countsText(const ContactImportCounts& counts)
{
    QString text = QStringLiteral("%1 added, %2 skipped as already there, %3 failed")
                       .arg(counts.added)
                       .arg(counts.alreadyThere)
                       .arg(counts.failed);
    if (const int unnamed = counts.skipped - counts.alreadyThere; unnamed > 0)
        text += QStringLiteral(", %1 passed over without a name").arg(unnamed);
    return text + u'.';
}

bool OutlookImport::run()
{
    const int answer = msgBox(QStringLiteral("Importing data will bring in ALL contacts from Outlook.")
            + QStringLiteral(" Do you wish to continue?"),
        MsgBoxStyle::YesNo + MsgBoxStyle::Question, ContactManagerTitle);
    if (answer != MsgBoxResult::Yes)
        return false;

    Prompter::OpenFileRequest request;
    request.title = QStringLiteral("Import Contacts");
    request.startFolder = QDir::homePath();
    request.filterLabel = QStringLiteral("vCard and Outlook CSV files");
    request.pattern = QStringLiteral("*.vcf;*.vcard;*.csv");
    const QString path = Prompter::instance().openFile(request);
    if (path.isEmpty())
        return false;

    QList<ContactItem> items;
    try {
        items = readContactFile(path);
    } catch (const Error& error) {
        msgBox(QStringLiteral("An error occured while importing data.  ") + error.description());
        return false;
    }
    if (items.isEmpty()) {
        msgBox(QStringLiteral("Unable to find Outlook Contacts folder"), MsgBoxStyle::Critical);
        return false;
    }

    const auto setBusy = [this](bool busy) {
        if (busyChanged)
            busyChanged(busy);
    };
    ContactImporter importer(plainConnectionString(), [&setBusy](const Error& error) {
        setBusy(false);
        const int choice
            = msgBox(errorQuestion(error), MsgBoxStyle::YesNo + MsgBoxStyle::Critical, ErrorTitle);
        setBusy(choice == MsgBoxResult::Yes);
        return choice == MsgBoxResult::Yes;
    });
    setBusy(true);
    const bool finished = importer.run(items);
    setBusy(false);
    if (importer.counts().added > 0)
        Q_EMIT ContactImportNotifier::instance().contactsImported();
    msgBox((finished ? QStringLiteral("Contacts successfully imported.")
                     : QStringLiteral("Contacts did not import."))
            + QStringLiteral("\n\n") + countsText(importer.counts()),
        MsgBoxStyle::OkOnly, ClosingTitle);
    return finished;
}

ContactImportNotifier& ContactImportNotifier::instance()
{
    static ContactImportNotifier notifier;
    return notifier;
}

} // namespace kartella
