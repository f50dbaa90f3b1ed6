#include "harness/ScriptedOfficeSuite.h"

#include "base/Error.h"

#include <QFile>

namespace kartella::test {

ScriptedOfficeSuite::ScriptedOfficeSuite()
{
    OfficeSuite::setInstance(this);
}

ScriptedOfficeSuite::~ScriptedOfficeSuite()
{
    OfficeSuite::setInstance(nullptr);
}

void ScriptedOfficeSuite::create(Kind kind, const QString& templatePath, const QString& target)
{
    made.append({kind, templatePath, target});
    if (whileCreating)
        whileCreating();
    if (m_failure != 0)
        throw Error(m_failure, QStringLiteral("The scripted Office suite failed."));
    QFile file(target);
    if (!file.open(QIODevice::WriteOnly))
        throw Error(OfficeErrorNumber::Failed, QStringLiteral("Can't write ") + target);
    file.write("scripted Office file\n");
}

void ScriptedOfficeSuite::show(const QString& path)
{
    shown << path;
}

} // namespace kartella::test
