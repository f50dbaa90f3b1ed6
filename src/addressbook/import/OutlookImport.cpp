#include "addressbook/import/OutlookImport.h"

#include "addressbook/import/ContactFile.h"
#include "addressbook/import/ContactImporter.h"
#include "base/Error.h"
#include "platform/Prompter.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <QDir>

namespace kartella {

namespace {

QString errorQuestion(const Error& error)
{
    return QCoreApplication::translate("kartella::OutlookImport",
        "An error occured while importing data. The error was error number %1: %2Would you like to "
        "continue trying to import data?")
        .arg(QString::number(error.number()), error.description());
}

} // namespace

QString countsText(const ContactImportCounts& counts)
{
    QString text = QCoreApplication::translate(
        "kartella::OutlookImport", "%1 added, %2 skipped as already there, %3 failed")
                       .arg(counts.added)
                       .arg(counts.alreadyThere)
                       .arg(counts.failed);
    if (const int unnamed = counts.skipped - counts.alreadyThere; unnamed > 0)
        text += QCoreApplication::translate("kartella::OutlookImport", ", %1 passed over without a name")
                    .arg(unnamed);
    return text + u'.';
}

bool OutlookImport::run()
{
    const int answer
        = msgBox(QCoreApplication::translate("kartella::OutlookImport",
                     "Importing data will bring in ALL contacts from Outlook. Do you wish to continue?"),
            MsgBoxStyle::YesNo + MsgBoxStyle::Question,
            QCoreApplication::translate("kartella::OutlookImport", "Contact Manager"));
    if (answer != MsgBoxResult::Yes)
        return false;

    Prompter::OpenFileRequest request;
    request.title = QCoreApplication::translate("kartella::OutlookImport", "Import Contacts");
    request.startFolder = QDir::homePath();
    request.filterLabel
        = QCoreApplication::translate("kartella::OutlookImport", "vCard and Outlook CSV files");
    request.pattern = QStringLiteral("*.vcf;*.vcard;*.csv");
    const QString path = Prompter::instance().openFile(request);
    if (path.isEmpty())
        return false;

    QList<ContactItem> items;
    try {
        items = readContactFile(path);
    } catch (const Error& error) {
        msgBox(QCoreApplication::translate(
            "kartella::OutlookImport", "An error occured while importing data.  %1")
                   .arg(error.description()));
        return false;
    }
    if (items.isEmpty()) {
        msgBox(
            QCoreApplication::translate("kartella::OutlookImport", "Unable to find Outlook Contacts folder"),
            MsgBoxStyle::Critical);
        return false;
    }

    const auto setBusy = [this](bool busy) {
        if (busyChanged)
            busyChanged(busy);
    };
    ContactImporter importer(plainConnectionString(), [&setBusy](const Error& error) {
        setBusy(false);
        const int choice = msgBox(errorQuestion(error), MsgBoxStyle::YesNo + MsgBoxStyle::Critical,
            QCoreApplication::translate("kartella::OutlookImport", "Error in ImportOutlookData()"));
        setBusy(choice == MsgBoxResult::Yes);
        return choice == MsgBoxResult::Yes;
    });
    setBusy(true);
    const bool finished = importer.run(items);
    setBusy(false);
    if (importer.counts().added > 0)
        Q_EMIT ContactImportNotifier::instance().contactsImported();
    msgBox(
        (finished ? QCoreApplication::translate("kartella::OutlookImport", "Contacts successfully imported.")
                  : QCoreApplication::translate("kartella::OutlookImport", "Contacts did not import."))
            + QStringLiteral("\n\n") + countsText(importer.counts()),
        MsgBoxStyle::OkOnly,
        QCoreApplication::translate("kartella::OutlookImport", "Import Contacts from Outlook"));
    return finished;
}

ContactImportNotifier& ContactImportNotifier::instance()
{
    static ContactImportNotifier notifier;
    return notifier;
}

} // namespace kartella
