// kartella-db: makes, fills and copies registers and tells what they hold.
#include "Arguments.h"
#include "Commands.h"
#include "CopyCommand.h"
#include "HistoryCommand.h"
#include "Import.h"
#include "IndexCommand.h"
#include "Migrate.h"
#include "ReportCommand.h"
#include "SearchCommand.h"
#include "TrashCommand.h"
#include "UpgradeCommand.h"
#include "base/Error.h"
#include "options/LanguageOption.h"
#include "platform/Translations.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTextStream>

#include <exception>

using namespace kartella;
using namespace kartella::tool;

namespace {

constexpr int ExitSuccess = 0;
constexpr int ExitFailure = 1;
constexpr int ExitUsage = 2;

int fail(const QString& message)
{
    QTextStream(stderr) << "kartella-db: " << QString(message).replace(u'\n', u' ') << Qt::endl;
    return ExitFailure;
}

int run(const Invocation& invocation)
{
    QTextStream out(stdout);
    switch (invocation.command) {
    case Invocation::Command::Help:
        out << usageText();
        break;
    case Invocation::Command::Create:
        createCommand(invocation.path);
        break;
    case Invocation::Command::Sample:
        sampleCommand(invocation.path, invocation.documents, invocation.seed, out);
        break;
    case Invocation::Command::Info:
        infoCommand(invocation.path, out);
        break;
    case Invocation::Command::Upgrade:
        upgradeCommand(invocation.path, out);
        break;
    case Invocation::Command::Migrate:
        return migrateCommand(invocation.path, invocation.target,
            invocation.codePage.isEmpty() ? QStringLiteral("CP1257") : invocation.codePage, out);
    case Invocation::Command::Import: {
        QTextStream err(stderr);
        return importCommand(invocation.path, invocation.contactFile, invocation.codePage, out, err);
    }
    case Invocation::Command::Search:
        searchCommand(invocation.path, invocation.words, out);
        break;
    case Invocation::Command::Index: {
        QTextStream err(stderr);
        indexCommand(invocation.path, out, err);
        break;
    }
    case Invocation::Command::Trash:
        trashCommand(invocation.path, out);
        break;
    case Invocation::Command::Restore:
        restoreCommand(invocation.path, invocation.registrationIndex, out);
        break;
    case Invocation::Command::Purge:
        purgeCommand(invocation.path, invocation.olderThanDays, out);
        break;
    case Invocation::Command::History:
        historyCommand(invocation.path, invocation.words, out);
        break;
    case Invocation::Command::Copy: {
        QTextStream err(stderr);
        return copyCommand(invocation.path, invocation.target, out, err);
    }
    }
    return ExitSuccess;
}

} // namespace

int main(int argc, char** argv)
{
    if (isReportCommand(argc, argv))
        return runReportCommand(argc, argv);
    QCoreApplication app(argc, argv);
    installTranslations(interfaceLanguages(interfaceLanguage(), QLocale::system().uiLanguages()));
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();

    QString problem;
    const auto invocation = parseArguments(arguments, problem);
    if (!invocation) {
        QTextStream(stderr) << "kartella-db: " << problem << '\n' << usageText();
        return ExitUsage;
    }
    try {
        return run(*invocation);
    } catch (const Error& error) {
        return fail(error.description());
    } catch (const std::exception& error) {
        return fail(QString::fromLocal8Bit(error.what()));
    }
}
