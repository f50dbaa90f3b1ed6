#pragma once

#include <QString>
#include <QStringList>

namespace kartella {

// Style values of a message box: one button set, plus one icon, plus a default button.
namespace MsgBoxStyle {
constexpr int OkOnly = 0;
constexpr int OkCancel = 1;
constexpr int AbortRetryIgnore = 2;
constexpr int YesNoCancel = 3;
constexpr int YesNo = 4;
constexpr int RetryCancel = 5;
constexpr int Critical = 16;
constexpr int Question = 32;
constexpr int Exclamation = 48;
constexpr int Information = 64;
constexpr int DefaultButton2 = 256;
constexpr int DefaultButton3 = 512;

constexpr int ButtonMask = 0x7;
constexpr int IconMask = 0x70;
constexpr int DefaultMask = 0x300;
} // namespace MsgBoxStyle

// What a message box answers: the code of the button pressed.
namespace MsgBoxResult {
constexpr int Ok = 1;
constexpr int Cancel = 2;
constexpr int Abort = 3;
constexpr int Retry = 4;
constexpr int Ignore = 5;
constexpr int Yes = 6;
constexpr int No = 7;
} // namespace MsgBoxResult

// The program's title, shown on every message that has none of its own.
QString programTitle();

// The result codes of a style's buttons, in the order they are shown.
QList<int> buttonResults(int style);
// The result of the style's default button (the first, or the second with 256, the third with 512).
int defaultResult(int style);
// The result of Esc: Cancel where there is one, else the only button, else none (0).
int escapeResult(int style);

// Everything the program asks the user in a modal way: messages, the file chooser and
// the folder chooser. The program uses the one installed instance; tests install a
// scripted one that answers from a queue.
class Prompter
{
public:
    struct OpenFileRequest
    {
        QString title;
        QString startFolder;
        QString filterLabel;
        QString pattern;
    };

    virtual ~Prompter();

    // Shows prompt with the buttons and icon of style; an empty title gives programTitle().
    // Returns the code of the button pressed.
    virtual int msgBox(const QString& prompt, int style, const QString& title) = 0;
    // Asks for one existing file; Cancel gives an empty text.
    virtual QString openFile(const OpenFileRequest& request) = 0;
    // Asks for a folder; Cancel gives an empty text.
    virtual QString chooseFolder(const QString& prompt) = 0;
    // Offers two or three choices on buttons of their own texts, with the icon of style
    // (its buttons are ignored); returns the index of the button pressed. The first button
    // is the default and Esc takes the last. A prompter that knows only the standard
    // button sets asks it as a msgBox of YesNo or YesNoCancel: Yes, No and Cancel stand for
    // the choices in their order.
    virtual int choose(const QString& prompt, const QStringList& choices, int style, const QString& title);

    static Prompter& instance();
    // Installs prompter (not owned); nullptr restores the default, which writes to stderr.
    static void setInstance(Prompter* prompter);
};

// Shorthand for Prompter::instance().msgBox.
int msgBox(const QString& prompt, int style = MsgBoxStyle::OkOnly, const QString& title = {});

} // namespace kartella
