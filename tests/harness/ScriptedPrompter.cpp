#include "harness/ScriptedPrompter.h"

#include <QTest>

#include <utility>

namespace kartella::test {

namespace {
Prompter* currentInstance()
{
    return &Prompter::instance();
}
} // namespace

ScriptedPrompter::ScriptedPrompter()
    : m_previous(currentInstance())
{
    Prompter::setInstance(this);
}

ScriptedPrompter::~ScriptedPrompter()
{
    Prompter::setInstance(m_previous);
}

ScriptedPrompter& ScriptedPrompter::answer(int result)
{
    m_answers.enqueue(result);
    return *this;
}

ScriptedPrompter& ScriptedPrompter::answerFile(const QString& path)
{
    m_files.enqueue(path);
    return *this;
}

ScriptedPrompter& ScriptedPrompter::answerFolder(const QString& path)
{
    m_folders.enqueue(path);
    return *this;
}

QStringList ScriptedPrompter::texts() const
{
    QStringList out;
    for (const Prompt& p : m_prompts)
        out << p.text;
    return out;
}

QList<ScriptedPrompter::Prompt> ScriptedPrompter::take()
{
    return std::exchange(m_prompts, {});
}

int ScriptedPrompter::msgBox(const QString& prompt, int style, const QString& title)
{
    m_prompts.append({prompt, title.isEmpty() ? programTitle() : title, style});
    if (whileAsking)
        std::exchange(whileAsking, nullptr)();
    if (m_answers.isEmpty()) {
        QTest::qFail(
            qPrintable(QStringLiteral("Unexpected message box: \"%1\"").arg(prompt)), __FILE__, __LINE__);
        return escapeResult(style) ? escapeResult(style) : defaultResult(style);
    }
    return m_answers.dequeue();
}

QString ScriptedPrompter::openFile(const OpenFileRequest& request)
{
    fileRequests.append(request);
    if (m_files.isEmpty()) {
        QTest::qFail(qPrintable(QStringLiteral("Unexpected file dialog: \"%1\"").arg(request.title)),
            __FILE__, __LINE__);
        return {};
    }
    return m_files.dequeue();
}

QString ScriptedPrompter::chooseFolder(const QString& prompt)
{
    folderPrompts.append(prompt);
    if (m_folders.isEmpty()) {
        QTest::qFail(
            qPrintable(QStringLiteral("Unexpected folder chooser: \"%1\"").arg(prompt)), __FILE__, __LINE__);
        return {};
    }
    return m_folders.dequeue();
}

} // namespace kartella::test
