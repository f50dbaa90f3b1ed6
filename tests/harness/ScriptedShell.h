#pragma once

#include "platform/Shell.h"

#include <QList>
#include <QQueue>

namespace kartella::test {

// A shell for tests. It installs itself while it lives and records every call. Open, Print
// and showProperties only record (Open and Print answer true, or what setResult gave).
// deleteFile, copyFile and moveFile act on the real file system once their question is
// answered: confirm() and refuse() queue the answers, and a question that nobody scripted
// fails the running test with its text (and is refused). Notices of failures need no
// answer; they are recorded with the questions.
//
//     ScriptedShell shell;
//     shell.confirm();
//     QVERIFY(shellDeleteFile(path));
//     QCOMPARE(shell.take().first().kind, ScriptedShell::Kind::Delete);
class ScriptedShell final : public FileShell
{
public:
    enum class Kind { Open, Print, Properties, Delete, Copy, Move };

    struct Call
    {
        Kind kind;
        QString path; // the file acted on (the source of a copy or move)
        QString target; // the target of a copy or move
        bool result = false;
    };

    struct Question
    {
        QString text;
        QString title;
        int style = 0;
    };

    ScriptedShell();
    ~ScriptedShell() override;
    ScriptedShell(const ScriptedShell&) = delete;
    ScriptedShell& operator=(const ScriptedShell&) = delete;

    // Queue the answer of the next question: Yes, or No.
    ScriptedShell& confirm();
    ScriptedShell& refuse();
    // What Open or Print answer from now on.
    ScriptedShell& setResult(Kind kind, bool result);

    const QList<Call>& calls() const { return m_calls; }
    // Calls recorded since the last take, then forgets them.
    QList<Call> take();
    // The questions and notices shown, in order.
    const QList<Question>& questions() const { return m_questions; }
    bool allAnswered() const { return m_answers.isEmpty(); }

    bool open(const QString& path) override;
    bool print(const QString& path) override;
    void showProperties(const QString& path) override;
    bool deleteFile(const QString& path) override;
    bool copyFile(const QString& source, const QString& target) override;
    bool moveFile(const QString& source, const QString& target) override;

protected:
    int ask(const QString& prompt, int style, const QString& title) override;

private:
    bool record(Kind kind, const QString& path, const QString& target, bool result);

    Shell* m_previous = nullptr;
    QList<Call> m_calls;
    QList<Question> m_questions;
    QQueue<bool> m_answers;
    bool m_openResult = true;
    bool m_printResult = true;
};

} // namespace kartella::test
