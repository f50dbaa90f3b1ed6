#include "HistoryCommand.h"

#include "RegisterArgument.h"
#include "ToolText.h"
#include "base/Error.h"
#include "history/HistoryLog.h"
#include "history/HistoryText.h"
#include "store/engine/Connection.h"

namespace kartella::tool {

namespace {

// A text as one cell of a line: no tab or line break inside.
QString cell(QString text)
{
    for (QChar& c : text) {
        if (c == u'\t' || c == u'\n' || c == u'\r')
            c = u' ';
    }
    return text;
}

} // namespace

std::optional<Invocation> parseHistory(const QStringList& arguments, QString& problem)
{
    if (arguments.size() < 2 || arguments.size() > 3) {
        problem = arguments.size() < 2 ? ToolText::tr("no PATH given")
                                       : ToolText::tr("history takes PATH and at most one INDEX");
        return std::nullopt;
    }
    Invocation invocation;
    invocation.command = Invocation::Command::History;
    invocation.path = arguments.at(1);
    invocation.words = arguments.mid(2);
    return invocation;
}

void historyCommand(const QString& path, const QStringList& index, QTextStream& out)
{
    const QString location = existingRegister(path);
    Connection connection;
    connection.open(registerConnectionString(location));
    if (!registerHasHistory(connection))
        throw Error(ErrorNumber::CommandFailed,
            ToolText::tr(
                "the register at %1 has no history: it was made by an earlier Kartella (see kartella-db "
                "upgrade)")
                .arg(path));
    std::vector<HistoryEntry> entries;
    if (index.isEmpty()) {
        entries = registerHistory(connection);
    } else {
        const qint64 document = documentWithRegIndex(connection, index.first());
        if (document == 0)
            throw Error(ErrorNumber::CommandFailed,
                ToolText::tr("no document has the registration index \"%1\"").arg(index.first()));
        entries = documentHistory(connection, document);
    }
    const HistoryNames names = historyNames(connection, entries);
    for (const HistoryEntry& entry : entries) {
        const std::optional<HistoryLine> line = historyLine(entry, &names);
        if (!line)
            continue;
        out << cell(line->when) << u'\t' << cell(line->who) << u'\t' << cell(line->command) << u'\t'
            << cell(line->what) << u'\t' << cell(line->change) << u'\n';
    }
    out.flush();
}

} // namespace kartella::tool
