#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kartella::tool {

// One call of the tool, as read from its command line.
struct Invocation
{
    enum class Command {
        Help,
        Create,
        Sample,
        Info,
        Upgrade,
        Migrate,
        Import,
        Search,
        Copy,
        Index,
        Trash,
        Restore,
        Purge,
        History
    };
    Command command = Command::Help;
    QString path;
    QStringList words; // search; history: the registration index, when one is given
    QString contactFile; // import: the contact file
    // import: the code page of text that is not UTF-8 (empty: guessed); migrate: the code
    // page of a Jet 3 file (empty: CP1257).
    QString codePage;
    int documents = 400;
    quint32 seed = 20240305;
    // migrate: the new register (path is the old file); copy: the new register (path is the
    // register copied).
    QString target;
    QString registrationIndex; // restore
    int olderThanDays = -1; // purge
};

// Reads the arguments (without the program's name). On a usage error gives nothing and
// sets problem to a one-line reason.
std::optional<Invocation> parseArguments(const QStringList& arguments, QString& problem);

// The usage text, ending in a line break.
QString usageText();

} // namespace kartella::tool
