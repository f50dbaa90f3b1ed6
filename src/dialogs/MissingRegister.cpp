#include "dialogs/MissingRegister.h"

#include "options/OptionStore.h"
#include "platform/Prompter.h"
#include "store/DefaultRegister.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace kartella {

namespace {

enum Choice { TryAgain, ChooseAnother, OpenSettings };

// An absent value reads as this text.
bool namesNoRegister(const QString& location)
{
    return location.trimmed().isEmpty() || location == QLatin1String("Not Found");
}

} // namespace

QString missingRegisterQuestion(const QString& location)
{
    return QCoreApplication::translate("kartella::MissingRegister",
        "The register %1 cannot be found.\r\rIf it is on a drive or a network share that isn't "
        "connected yet, connect it and choose Try Again. You can also choose another register, or "
        "open the settings.")
        .arg(location);
}

bool settleRegisterLocation(const QString& defaultLocation)
{
    const QString location = getRegValue(QStringLiteral("DbLocation"));
    if (namesNoRegister(location)) {
        setRegValue(QStringLiteral("DbLocation"), defaultLocation);
        return true;
    }
    if (!registerLocationMissing(location))
        return true;
    // The installed program's own register is offered for creation once the start goes on.
    if (defaultRegisterInDataFolder() && location == defaultLocation)
        return true;
    const QStringList choices = {QCoreApplication::translate("kartella::MissingRegister", "Try Again"),
        QCoreApplication::translate("kartella::MissingRegister", "Choose Another..."),
        QCoreApplication::translate("kartella::MissingRegister", "Open Settings")};
    for (;;) {
        const int choice = Prompter::instance().choose(missingRegisterQuestion(location), choices,
            MsgBoxStyle::Exclamation,
            QCoreApplication::translate("kartella::MissingRegister", "Register not found"));
        if (choice == TryAgain) {
            if (!registerLocationMissing(location))
                return true;
        } else if (choice == ChooseAnother) {
            const QString chosen = Prompter::instance().openFile(
                {QCoreApplication::translate("kartella::MissingRegister", "Select the Database File"),
                    QFileInfo(location).absolutePath(),
                    QCoreApplication::translate("kartella::MissingRegister", "Access databases (*.mdb)"),
                    QStringLiteral("*.mdb")});
            if (!chosen.isEmpty()) {
                setRegValue(QStringLiteral("DbLocation"), chosen);
                return true;
            }
        } else {
            return false;
        }
    }
}

} // namespace kartella
