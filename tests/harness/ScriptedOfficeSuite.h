#pragma once

#include "platform/OfficeSuite.h"

#include <QList>
#include <QStringList>

#include <functional>

namespace kartella::test {

// An Office suite for tests that need no real Office file: it records what it is asked
// to make and show, writes a small stand-in file at the target, or fails with the error
// number it is given. It installs itself while it lives.
class ScriptedOfficeSuite final : public OfficeSuite
{
public:
    struct Made
    {
        Kind kind;
        QString templatePath;
        QString target;
    };

    ScriptedOfficeSuite();
    ~ScriptedOfficeSuite() override;
    ScriptedOfficeSuite(const ScriptedOfficeSuite&) = delete;
    ScriptedOfficeSuite& operator=(const ScriptedOfficeSuite&) = delete;

    // Every create from now on fails with this error number (0: they make the file).
    void failWith(long number) { m_failure = number; }

    void create(Kind kind, const QString& templatePath, const QString& target) override;
    void show(const QString& path) override;

    // Called in create, before the file is made (to look at the window meanwhile).
    std::function<void()> whileCreating;

    QList<Made> made;
    QStringList shown;

private:
    long m_failure = 0;
};

} // namespace kartella::test
