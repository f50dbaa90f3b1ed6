#include "store/engine/WriteContext.h"

#include <QProcessEnvironment>
#include <QSysInfo>

namespace kartella {

namespace {

QString g_user;
thread_local QString t_command;

} // namespace

void WriteContext::setUser(const QString& who)
{
    g_user = who;
}

QString WriteContext::user()
{
    static const QString desktop = desktopUser();
    return g_user.isEmpty() ? desktop : g_user;
}

QString WriteContext::desktopUser()
{
    const QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QString name = environment.value(QStringLiteral("USER"));
    if (name.isEmpty())
        name = environment.value(QStringLiteral("USERNAME"));
    if (name.isEmpty())
        name = QStringLiteral("unknown");
    return name + u'@' + QSysInfo::machineHostName();
}

QString WriteContext::command()
{
    return t_command;
}

void WriteContext::setCommand(const QString& command)
{
    t_command = command;
}

CommandScope::CommandScope(const QString& command)
    : m_previous(WriteContext::command())
{
    WriteContext::setCommand(command);
}

CommandScope::~CommandScope()
{
    WriteContext::setCommand(m_previous);
}

} // namespace kartella
