#include "explorer/RegisterUpgradeOffer.h"

#include "dialogs/SettingsStore.h"
#include "platform/Prompter.h"
#include "store/SchemaSteps.h"
#include "store/engine/Connection.h"
#include "support/BusyCursor.h"

#include <QCoreApplication>

namespace kartella {

std::optional<Error> offerRegisterUpgrade(const QString& path)
{
    const QString shown = withoutPasswords(path);
    try {
        const BusyCursor busy;
        if (!registerNeedsUpgrade(path))
            return std::nullopt;
    } catch (const Error& error) {
        // A register file that can't be read is reported by the first fill; a server that
        // can't be reached is reported now, as one more try would only wait for it again.
        if (isServerLocation(path) && error.number() == ErrorNumber::ConnectionFailed)
            return error;
        return std::nullopt;
    }
    const int answer
        = msgBox(QCoreApplication::translate("kartella::RegisterUpgradeOffer",
                     "The register \"%1\" was made by an earlier version of Kartella. Upgrade it to this "
                     "version now?\r\rEvery document, category and contact is kept.")
                     .arg(shown),
            MsgBoxStyle::YesNo + MsgBoxStyle::Question);
    if (answer != MsgBoxResult::Yes)
        return Error(ErrorNumber::ConnectionFailed,
            QCoreApplication::translate("kartella::RegisterUpgradeOffer",
                "The register \"%1\" was made by an earlier version of Kartella and was not upgraded. "
                "Upgrade it, or choose another register.")
                .arg(shown));
    try {
        const BusyCursor busy;
        upgradeRegister(path);
    } catch (const Error& error) {
        return Error(ErrorNumber::ConnectionFailed,
            QCoreApplication::translate("kartella::RegisterUpgradeOffer",
                "The register \"%1\" could not be upgraded; it is left as it was. %2")
                .arg(shown, error.description()));
    }
    return std::nullopt;
}

} // namespace kartella
