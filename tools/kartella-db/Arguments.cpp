#include "Arguments.h"

#include "HistoryCommand.h"
#include "ToolText.h"

namespace kartella::tool {

namespace {

// "--name value" or "--name=value"; advances i past what it took.
std::optional<QString> optionValue(const QStringList& arguments, int& i, const QString& name)
{
    const QString& argument = arguments.at(i);
    if (argument.startsWith(name + u'='))
        return argument.mid(name.size() + 1);
    if (argument != name || i + 1 >= arguments.size())
        return std::nullopt;
    return arguments.at(++i);
}

// search PATH WORD...: every argument after the path is a word, also one that starts with "--".
std::optional<Invocation> parseSearch(const QStringList& arguments, QString& problem)
{
    if (arguments.size() < 3) {
        problem = arguments.size() < 2 ? ToolText::tr("no PATH given") : ToolText::tr("no WORD given");
        return std::nullopt;
    }
    Invocation invocation;
    invocation.command = Invocation::Command::Search;
    invocation.path = arguments.at(1);
    invocation.words = arguments.mid(2);
    return invocation;
}

} // namespace

QString usageText()
{
    // In blocks, so that a translation can follow the lines of each.
    //: The commands and options stay as they are; the words in capitals name what is given
    //: and are the same in the help, the usage lines and the usage errors.
    return ToolText::tr(
               "Usage: kartella-db create LOCATION\n"
               "       kartella-db sample PATH [--documents N] [--seed S]\n"
               "       kartella-db info PATH\n"
               "       kartella-db upgrade PATH\n"
               "       kartella-db copy FROM TO\n"
               "       kartella-db migrate OLD.mdb NEW [--codepage CP]\n"
               "       kartella-db report --list\n"
               "       kartella-db report NAME PATH.pdf [--register FILE] [--previous-month] [--overwrite]\n"
               "       kartella-db import PATH FILE [--codepage NAME]\n"
               "       kartella-db search PATH WORD...\n"
               "       kartella-db index PATH\n"
               "       kartella-db trash PATH\n"
               "       kartella-db restore PATH INDEX\n"
               "       kartella-db purge PATH --older-than DAYS\n"
               "       kartella-db history PATH [INDEX]\n"
               "       kartella-db --help\n")
        + u'\n'
        + ToolText::tr("  create   makes a new, empty register at LOCATION: a file (an existing file\n"
                       "           is refused) or an empty database on a server\n"
                       "  sample   makes a new register at PATH and fills it with sample data;\n"
                       "           its files go into the folder \"<name> files\" beside it\n"
                       "           (N documents, default 400; the same seed S gives the same data)\n"
                       "  info     counts the rows of each table of the register at PATH\n"
                       "  upgrade  brings the register at PATH, made by an earlier Kartella, to this\n"
                       "           version's form, keeping every row\n"
                       "  copy     copies the whole register FROM, keys kept, into a new register\n"
                       "           at TO (a file that doesn't exist yet, or an empty database on a\n"
                       "           server), then counts the rows of each table in both; FROM must\n"
                       "           be up to date (see upgrade). On a failure nothing is kept at TO\n"
                       "  migrate  copies every row of the Jet register OLD.mdb into a new register\n"
                       "           at NEW, keys kept; the text of a Jet 3 file is read in the code\n"
                       "           page CP (default CP1257, the Baltic one; CP1252 for Western)\n"
                       "  report   writes the report NAME to the PDF file PATH, from FILE or the\n"
                       "           register the options name; --list names the reports. An\n"
                       "           existing PATH is replaced only with --overwrite, never the register\n"
                       "  import   adds the contacts of FILE (vCard or Outlook CSV export) to the\n"
                       "           register at PATH, skipping names it holds already; text that\n"
                       "           is not UTF-8 is read in code page NAME (default: guessed)\n"
                       "  search   prints the documents of the register at PATH that hold every WORD\n"
                       "           (in description, index, notes, contact or file path; case and\n"
                       "           accents aside): index, date and description, tab-separated\n"
                       "  index    reads the text of the files of the documents of the register at\n"
                       "           PATH that are new or changed since they were last read, showing\n"
                       "           its progress, then counts the files read and those skipped, and why\n"
                       "  trash    lists the deleted items of the register at PATH, newest first:\n"
                       "           kind, registration index or name, who deleted it and when (UTC)\n"
                       "  restore  puts the deleted document of the registration index INDEX back,\n"
                       "           with its related documents, reminders and files\n"
                       "  purge    deletes for good the items deleted more than DAYS days ago\n"
                       "  history  prints the changes of the register at PATH, or of the document\n"
                       "           whose registration index is INDEX with its related documents and\n"
                       "           reminders, newest first: when, who, the command, what and the\n"
                       "           change, tab-separated\n")
        + u'\n'
        + ToolText::tr("Every register named (LOCATION, FROM, TO, NEW, the register's PATH or FILE)\n"
                       "is a file or a database on a PostgreSQL server, written\n"
                       "postgresql://USER@HOST:PORT/DATABASE; the password comes from ~/.pgpass or\n"
                       "the environment variable PGPASSWORD. The sample files of a register on a\n"
                       "server go into \"<database> files\" in the current folder.\n")
        + u'\n' + ToolText::tr("Exit codes: 0 success, 1 failure, 2 usage error.\n");
}

std::optional<Invocation> parseArguments(const QStringList& arguments, QString& problem)
{
    if (arguments.isEmpty()) {
        problem = ToolText::tr("no command given");
        return std::nullopt;
    }
    Invocation invocation;
    const QString& command = arguments.first();
    if (command == u"--help" || command == u"-h" || command == u"help") {
        if (arguments.size() == 1)
            return invocation;
        problem = ToolText::tr("--help takes no arguments");
        return std::nullopt;
    }
    if (command == u"create")
        invocation.command = Invocation::Command::Create;
    else if (command == u"sample")
        invocation.command = Invocation::Command::Sample;
    else if (command == u"info")
        invocation.command = Invocation::Command::Info;
    else if (command == u"upgrade")
        invocation.command = Invocation::Command::Upgrade;
    else if (command == u"migrate")
        invocation.command = Invocation::Command::Migrate;
    else if (command == u"import")
        invocation.command = Invocation::Command::Import;
    else if (command == u"copy")
        invocation.command = Invocation::Command::Copy;
    else if (command == u"index")
        invocation.command = Invocation::Command::Index;
    else if (command == u"trash")
        invocation.command = Invocation::Command::Trash;
    else if (command == u"restore")
        invocation.command = Invocation::Command::Restore;
    else if (command == u"purge")
        invocation.command = Invocation::Command::Purge;
    else if (command == u"search")
        return parseSearch(arguments, problem);
    else if (command == u"history")
        return parseHistory(arguments, problem);
    else {
        problem = ToolText::tr("unknown command \"%1\"").arg(command);
        return std::nullopt;
    }

    QStringList paths;
    for (int i = 1; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (!argument.startsWith(QStringLiteral("--")) || argument == u"--") {
            paths << argument;
            continue;
        }
        if (invocation.command == Invocation::Command::Migrate
            || invocation.command == Invocation::Command::Import) {
            const auto codePage = optionValue(arguments, i, QStringLiteral("--codepage"));
            if (!codePage || codePage->isEmpty()) {
                problem = ToolText::tr("unknown option or missing value: \"%1\"").arg(argument);
                return std::nullopt;
            }
            invocation.codePage = *codePage;
            continue;
        }
        if (invocation.command == Invocation::Command::Purge) {
            const auto days = optionValue(arguments, i, QStringLiteral("--older-than"));
            bool ok = false;
            invocation.olderThanDays = days ? days->toInt(&ok) : -1;
            if (!ok || invocation.olderThanDays < 0) {
                problem = ToolText::tr("--older-than needs a whole number of days, 0 or more");
                return std::nullopt;
            }
            continue;
        }
        if (invocation.command != Invocation::Command::Sample) {
            problem = ToolText::tr("unknown option \"%1\"").arg(argument);
            return std::nullopt;
        }
        bool ok = false;
        if (const auto value = optionValue(arguments, i, QStringLiteral("--documents"))) {
            invocation.documents = value->toInt(&ok);
            if (!ok || invocation.documents < 0) {
                problem = ToolText::tr("--documents needs a whole number of 0 or more");
                return std::nullopt;
            }
        } else if (const auto seed = optionValue(arguments, i, QStringLiteral("--seed"))) {
            invocation.seed = seed->toUInt(&ok);
            if (!ok) {
                problem = ToolText::tr("--seed needs a whole number from 0 to 4294967295");
                return std::nullopt;
            }
        } else {
            problem = ToolText::tr("unknown option or missing value: \"%1\"").arg(argument);
            return std::nullopt;
        }
    }
    if (invocation.command == Invocation::Command::Migrate) {
        if (paths.size() != 2) {
            problem = ToolText::tr("migrate needs OLD.mdb and NEW");
            return std::nullopt;
        }
        invocation.target = paths.takeLast();
    }
    if (invocation.command == Invocation::Command::Copy) {
        if (paths.size() != 2) {
            problem = ToolText::tr("copy needs FROM and TO");
            return std::nullopt;
        }
        invocation.target = paths.takeLast();
    }
    if (invocation.command == Invocation::Command::Purge && invocation.olderThanDays < 0) {
        problem = ToolText::tr("purge needs --older-than DAYS");
        return std::nullopt;
    }
    if (invocation.command == Invocation::Command::Restore) {
        if (paths.size() != 2) {
            problem = ToolText::tr("restore needs PATH and INDEX");
            return std::nullopt;
        }
        invocation.registrationIndex = paths.takeLast();
    }
    if (invocation.command == Invocation::Command::Import) {
        if (paths.size() != 2) {
            problem = ToolText::tr("import needs PATH and FILE");
            return std::nullopt;
        }
        invocation.contactFile = paths.takeLast();
    }
    if (paths.size() != 1) {
        problem = paths.isEmpty() ? ToolText::tr("no PATH given") : ToolText::tr("more than one PATH given");
        return std::nullopt;
    }
    invocation.path = paths.first();
    return invocation;
}

} // namespace kartella::tool
