#include "support/ShellDialogs.h"

#include "platform/Prompter.h"
#include "support/PathUtils.h"

namespace kartella {

namespace {

// The text without its trailing blanks (other white space stays).
QString trimTrailingBlanks(const QString& text)
{
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1) == QLatin1Char(' '))
        --end;
    return text.left(end);
}

} // namespace

QString showOpenDialog(const OpenFileRecord& record)
{
    const Prompter::OpenFileRequest request {
        trimTrailingBlanks(trimAtNull(record.title)),
        trimTrailingBlanks(trimAtNull(record.startFolder)),
        trimTrailingBlanks(trimAtNull(record.filterLabel)),
        trimTrailingBlanks(trimAtNull(record.pattern)),
    };
    return trimAtNull(Prompter::instance().openFile(request));
}

QString chooseFolder(const QString& prompt)
{
    return trimAtNull(Prompter::instance().chooseFolder(prompt));
}

} // namespace kartella
