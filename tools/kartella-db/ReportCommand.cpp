#include "ReportCommand.h"

#include "RegisterArgument.h"
#include "ToolText.h"
#include "base/Error.h"
#include "options/LanguageOption.h"
#include "platform/Translations.h"
#include "reports/ReportCommands.h"
#include "reports/ReportLayouts.h"
#include "reports/ReportPdf.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QLocale>
#include <QTextStream>

#include <cstring>
#include <exception>

namespace kartella::tool {

namespace {

constexpr int ExitSuccess = 0;
constexpr int ExitFailure = 1;
constexpr int ExitUsage = 2;

int usageError(const QString& problem)
{
    QTextStream(stderr) << "kartella-db: " << problem << '\n'
                        << ToolText::tr("Usage: kartella-db report --list\n"
                                        "       kartella-db report NAME PATH.pdf [--register FILE] "
                                        "[--previous-month] [--overwrite]\n");
    return ExitUsage;
}

void listReports()
{
    QTextStream out(stdout);
    for (const ReportLayout& layout : reportLayouts())
        out << layout.scriptName.leftJustified(16) << u' ' << shownCaption(layout) << '\n';
}

} // namespace

bool isReportCommand(int argc, char** argv)
{
    return argc > 1 && std::strcmp(argv[1], "report") == 0;
}

int runReportCommand(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    installTranslations(interfaceLanguages(interfaceLanguage(), QLocale::system().uiLanguages()));
    QStringList arguments = QCoreApplication::arguments().mid(2);

    if (arguments == QStringList {QStringLiteral("--list")}) {
        listReports();
        return ExitSuccess;
    }
    QString registerPath;
    bool previousMonth = false;
    bool overwrite = false;
    QStringList positional;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString& argument = arguments.at(i);
        if (argument == u"--previous-month") {
            previousMonth = true;
        } else if (argument == u"--overwrite") {
            overwrite = true;
        } else if (argument.startsWith(QStringLiteral("--register="))) {
            registerPath = argument.mid(11);
        } else if (argument == u"--register") {
            if (i + 1 >= arguments.size())
                return usageError(ToolText::tr("--register needs a FILE"));
            registerPath = arguments.at(++i);
        } else if (argument.startsWith(QStringLiteral("--"))) {
            return usageError(ToolText::tr("unknown option \"%1\"").arg(argument));
        } else {
            positional << argument;
        }
    }
    if (positional.size() != 2)
        return usageError(ToolText::tr("report needs a NAME and a PATH.pdf (or --list)"));
    const ReportLayout* layout = findReportLayout(positional.at(0));
    if (!layout || layout->scriptName != positional.at(0))
        return usageError(ToolText::tr("no report named \"%1\" (kartella-db report --list names them)")
                              .arg(positional.at(0)));
    if (previousMonth && layout->scriptName != u"this-month")
        return usageError(ToolText::tr("--previous-month goes with the this-month report only"));

    try {
        const QString& target = positional.at(1);
        ReportCommands& commands = ReportCommands::instance();
        if (!registerPath.isEmpty())
            commands.setConnectionString(registerConnectionString(existingRegister(registerPath)));
        refuseRegisterAsReport(target, commands.connectionString());
        if (!overwrite && QFileInfo::exists(target)) {
            QTextStream(stderr)
                << "kartella-db: "
                << ToolText::tr("\"%1\" exists; --overwrite replaces it with the report").arg(target) << '\n';
            return ExitFailure;
        }
        if (previousMonth)
            commands.usePreviousMonth();
        const int pages = writeReportPdf(*layout, commands.run(*layout), target);
        QTextStream(stdout) << ToolText::tr("pages: %1").arg(pages) << '\n';
        return ExitSuccess;
    } catch (const Error& error) {
        QTextStream(stderr) << "kartella-db: " << QString(error.description()).replace(u'\n', u' ') << '\n';
    } catch (const std::exception& error) {
        QTextStream(stderr) << "kartella-db: " << QString::fromLocal8Bit(error.what()) << '\n';
    }
    return ExitFailure;
}

} // namespace kartella::tool
