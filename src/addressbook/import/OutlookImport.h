#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace kartella {

struct ContactImportCounts;

// "2 added, 1 skipped as already there, 0 failed.", and how many items had no name when
// some had none.
QString countsText(const ContactImportCounts& counts);

// The address book's import command: asks whether to go on, lets the user choose a
// contact file (vCard or Outlook CSV export), copies its contacts into the register of
// the options through ContactImporter and tells how it went, all through the Prompter.
//
// A failure to read the file is shown in a plain message box that names the file and
// the reason, and ends the import without a closing message; a file without contacts
// gives "Unable to find Outlook Contacts folder". Each failed step of the copy asks
// whether to go on. The closing message tells, under its first line, what the copy did
// (countsText).
class OutlookImport
{
public:
    // Called with true before the copy starts and with false when it ends or stops to
    // ask, so that a window can show the busy pointer meanwhile.
    std::function<void(bool)> busyChanged;

    // True when the item loop ended, also after errors passed over; false otherwise.
    bool run();
};

// Tells whoever listens that an import added contacts, so that an open contact list can
// refresh itself. Nobody needs to listen.
class ContactImportNotifier : public QObject
{
    Q_OBJECT

public:
    static ContactImportNotifier& instance();

Q_SIGNALS:
    void contactsImported();
};

} // namespace kartella
