#pragma once

#include <QString>

namespace kartella {

// The numbers of the errors that an office suite raises.
namespace OfficeErrorNumber {
// The suite isn't installed (as when an automation object can't be created).
constexpr long NotInstalled = 429;
// The suite ran and made no document (E_FAIL).
constexpr long Failed = -2147467259;
// The suite didn't finish in time (RPC_E_TIMEOUT).
constexpr long TimedOut = -2147417825;
// The new document's path is taken, or the template can't be read.
constexpr long FileExists = 58;
} // namespace OfficeErrorNumber

// Makes new Word, Excel and PowerPoint documents and shows them to the user. The program
// uses the one installed instance; the default is LibreOfficeSuite.
class OfficeSuite
{
public:
    enum class Kind { Word, Excel, PowerPoint };

    virtual ~OfficeSuite();

    // Makes a new document of kind at target (".doc", ".xls" or ".ppt"): the template's
    // content when templatePath is given, else an empty document. Throws kartella::Error
    // when it can't (LibreOffice missing, failed, timed out).
    virtual void create(Kind kind, const QString& templatePath, const QString& target) = 0;
    // Shows the file in the desktop's program for it (through Shell::instance().Open).
    // Throws kartella::Error when no program could be started.
    virtual void show(const QString& path) = 0;

    static OfficeSuite& instance();
    // Installs suite (not owned); nullptr restores the default.
    static void setInstance(OfficeSuite* suite);
};

} // namespace kartella
