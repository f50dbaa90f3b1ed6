#include "harness/ScriptedShell.h"

#include "platform/Prompter.h"

#include <QTest>

namespace kartella::test {

ScriptedShell::ScriptedShell()
    : m_previous(&Shell::instance())
{
    Shell::setInstance(this);
}

ScriptedShell::~ScriptedShell()
{
    Shell::setInstance(m_previous);
}

ScriptedShell& ScriptedShell::confirm()
{
    m_answers.enqueue(true);
    return *this;
}

ScriptedShell& ScriptedShell::refuse()
{
    m_answers.enqueue(false);
    return *this;
}

ScriptedShell& ScriptedShell::setResult(Kind kind, bool result)
{
    if (kind == Kind::Open)
        m_openResult = result;
    else if (kind == Kind::Print)
        m_printResult = result;
    return *this;
}

QList<ScriptedShell::Call> ScriptedShell::take()
{
    return std::exchange(m_calls, {});
}

bool ScriptedShell::record(Kind kind, const QString& path, const QString& target, bool result)
{
    m_calls.append({kind, path, target, result});
    return result;
}

bool ScriptedShell::open(const QString& path)
{
    return record(Kind::Open, path, {}, m_openResult);
}

bool ScriptedShell::print(const QString& path)
{
    return record(Kind::Print, path, {}, m_printResult);
}

void ScriptedShell::showProperties(const QString& path)
{
    record(Kind::Properties, path, {}, true);
}

// The call is recorded before it runs, so that a question it asks comes after it.
bool ScriptedShell::deleteFile(const QString& path)
{
    const qsizetype at = m_calls.size();
    record(Kind::Delete, path, {}, false);
    return m_calls[at].result = FileShell::deleteFile(path);
}

bool ScriptedShell::copyFile(const QString& source, const QString& target)
{
    const qsizetype at = m_calls.size();
    record(Kind::Copy, source, target, false);
    return m_calls[at].result = FileShell::copyFile(source, target);
}

bool ScriptedShell::moveFile(const QString& source, const QString& target)
{
    const qsizetype at = m_calls.size();
    record(Kind::Move, source, target, false);
    return m_calls[at].result = FileShell::moveFile(source, target);
}

int ScriptedShell::ask(const QString& prompt, int style, const QString& title)
{
    m_questions.append({prompt, title, style});
    if ((style & MsgBoxStyle::ButtonMask) == MsgBoxStyle::OkOnly)
        return MsgBoxResult::Ok;
    if (m_answers.isEmpty()) {
        QTest::qFail(
            qPrintable(QStringLiteral("Unexpected shell question: \"%1\"").arg(prompt)), __FILE__, __LINE__);
        return MsgBoxResult::No;
    }
    return m_answers.dequeue() ? MsgBoxResult::Yes : MsgBoxResult::No;
}

} // namespace kartella::test
