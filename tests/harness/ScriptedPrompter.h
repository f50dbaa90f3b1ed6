#pragma once

#include "platform/Prompter.h"

#include <QList>
#include <QQueue>

#include <functional>

namespace kartella::test {

// A prompter for tests. It installs itself while it lives, records every prompt and
// answers from queues. A prompt that nobody scripted fails the running test with its text.
class ScriptedPrompter final : public Prompter
{
public:
    struct Prompt
    {
        QString text;
        QString title; // as shown: the program's title when the caller gave none
        int style = 0;
    };

    ScriptedPrompter();
    ~ScriptedPrompter() override;
    ScriptedPrompter(const ScriptedPrompter&) = delete;
    ScriptedPrompter& operator=(const ScriptedPrompter&) = delete;

    // Queues the answer of the next message box (a MsgBoxResult code).
    ScriptedPrompter& answer(int result);
    // Queues the answer of the next file or folder chooser (empty text = Cancel).
    ScriptedPrompter& answerFile(const QString& path);
    ScriptedPrompter& answerFolder(const QString& path);

    const QList<Prompt>& prompts() const { return m_prompts; }
    QStringList texts() const;
    // Prompts recorded since the last call, then forgets them.
    QList<Prompt> take();
    bool allAnswered() const { return m_answers.isEmpty() && m_files.isEmpty() && m_folders.isEmpty(); }

    int msgBox(const QString& prompt, int style, const QString& title) override;
    QString openFile(const OpenFileRequest& request) override;
    QString chooseFolder(const QString& prompt) override;

    // Runs once, when the next message box is shown and before it is answered: what happens
    // while the user reads it.
    std::function<void()> whileAsking;

    QList<OpenFileRequest> fileRequests;
    QStringList folderPrompts;

private:
    Prompter* m_previous = nullptr;
    QList<Prompt> m_prompts;
    QQueue<int> m_answers;
    QQueue<QString> m_files;
    QQueue<QString> m_folders;
};

} // namespace kartella::test
