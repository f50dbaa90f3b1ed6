#pragma once

#include "platform/Shell.h"

#include <QStringList>

namespace kartella {

// A program and its arguments.
struct ShellCommand
{
    QString program;
    QStringList arguments;
};

// The shell of the running program: the desktop's program opens a file, LibreOffice or
// CUPS prints it, a dialog of our own shows its properties, and copies and moves of large
// files show a progress dialog that can stop them.
class DesktopShell final : public FileShell
{
public:
    // Copies and moves of more bytes than this show their progress.
    static constexpr qint64 DefaultProgressThreshold = qint64(4) << 20;

    // Opens path with the desktop's program for its type; where the desktop has none, says
    // so, naming the type, and gives false.
    bool open(const QString& path) override;
    // Starts the printing program and doesn't wait for it; false when it can't be started.
    bool print(const QString& path) override;
    void showProperties(const QString& path) override;

    // What prints path: "soffice --headless -p" for the formats of an office suite, "lp"
    // for everything else. The program is named, not searched for.
    static ShellCommand printCommand(const QString& path);

    void setProgressThreshold(qint64 bytes) { m_progressThreshold = bytes; }
    // How many progress dialogs this shell has shown.
    int progressShown() const { return m_progressShown; }

protected:
    std::unique_ptr<CopyProgress> startProgress(
        const QString& source, const QString& target, qint64 total, bool moving) override;

private:
    qint64 m_progressThreshold = DefaultProgressThreshold;
    int m_progressShown = 0;
};

} // namespace kartella
