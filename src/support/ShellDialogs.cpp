#include "support/ShellDialogs.h"

#include "platform/Prompter.h"
#include "support/PathUtils.h"

namespace kartella {

namespace {

// The text without its trailing blanks (other white space stays).
QString TrimTrailingBlanks(const QString& text)
{
    qsizetype end = text.size();
    while (end > 0 && text.at(end - 1) == QLatin1Char(' '))
        --end;
    return text.left(end);
}

} // namespace

QString ShowOpenDialog(const OpenFileRecord& record)
{
    const Prompter::OpenFileRequest request {
        TrimTrailingBlanks(TrimAtNull(record.title)),
        TrimTrailingBlanks(TrimAtNull(record.startFolder)),
        TrimTrailingBlanks(TrimAtNull(record.filterLabel)),
        TrimTrailingBlanks(TrimAtNull(record.pattern)),
    };
    return TrimAtNull(Prompter::instance().OpenFile(request));
}

QString ChooseFolder(const QString& prompt)
{
    return TrimAtNull(Prompter::instance().ChooseFolder(prompt));
}

} // namespace kartella
