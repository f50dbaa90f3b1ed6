#include "platform/Prompter.h"

#include <QList>
#include <QTextStream>

namespace kartella {

namespace {

// Used where no window is around (the command-line tool): prints the message and
// takes the default button, and never offers a file.
class ConsolePrompter final : public Prompter
{
public:
    int msgBox(const QString& prompt, int style, const QString& title) override
    {
        QTextStream err(stderr);
        err << (title.isEmpty() ? programTitle() : title) << ": " << QString(prompt).replace(u'\r', u'\n')
            << Qt::endl;
        return defaultResult(style);
    }
    QString openFile(const OpenFileRequest&) override { return {}; }
    QString chooseFolder(const QString&) override { return {}; }
    // Takes the last choice, as Esc would: the first may only ask again.
    int choose(const QString& prompt, const QStringList& choices, int style, const QString& title) override
    {
        msgBox(prompt, (style & MsgBoxStyle::IconMask) + MsgBoxStyle::OkOnly, title);
        return int(choices.size()) - 1;
    }
};

Prompter*& installed()
{
    static Prompter* current = nullptr;
    return current;
}

} // namespace

QString programTitle()
{
    return QStringLiteral("Kartella");
}

QList<int> buttonResults(int style)
{
    using namespace MsgBoxResult;
    switch (style & MsgBoxStyle::ButtonMask) {
    case MsgBoxStyle::OkCancel:
        return {Ok, Cancel};
    case MsgBoxStyle::AbortRetryIgnore:
        return {Abort, Retry, Ignore};
    case MsgBoxStyle::YesNoCancel:
        return {Yes, No, Cancel};
    case MsgBoxStyle::YesNo:
        return {Yes, No};
    case MsgBoxStyle::RetryCancel:
        return {Retry, Cancel};
    default:
        return {Ok};
    }
}

int defaultResult(int style)
{
    const QList<int> buttons = buttonResults(style);
    qsizetype index = 0;
    if ((style & MsgBoxStyle::DefaultMask) == MsgBoxStyle::DefaultButton2)
        index = 1;
    else if ((style & MsgBoxStyle::DefaultMask) == MsgBoxStyle::DefaultButton3)
        index = 2;
    return buttons.value(index < buttons.size() ? index : 0);
}

int escapeResult(int style)
{
    const QList<int> buttons = buttonResults(style);
    if (buttons.contains(MsgBoxResult::Cancel))
        return MsgBoxResult::Cancel;
    return buttons.size() == 1 ? buttons.first() : 0;
}

Prompter::~Prompter() = default;

int Prompter::choose(const QString& prompt, const QStringList& choices, int style, const QString& title)
{
    const int buttons = choices.size() > 2 ? MsgBoxStyle::YesNoCancel : MsgBoxStyle::YesNo;
    const QList<int> results = buttonResults(buttons);
    const int answer = msgBox(prompt, buttons + (style & MsgBoxStyle::IconMask), title);
    const qsizetype index = results.indexOf(answer);
    return int(index < 0 ? results.size() - 1 : index);
}

Prompter& Prompter::instance()
{
    static ConsolePrompter fallback;
    Prompter* current = installed();
    return current ? *current : fallback;
}

void Prompter::setInstance(Prompter* prompter)
{
    installed() = prompter;
}

int msgBox(const QString& prompt, int style, const QString& title)
{
    return Prompter::instance().msgBox(prompt, style, title);
}

} // namespace kartella
