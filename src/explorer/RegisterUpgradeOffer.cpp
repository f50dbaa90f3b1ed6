#include "explorer/RegisterUpgradeOffer.h"

#include "platform/Prompter.h"
#include "store/SchemaSteps.h"

#include <QCursor>
#include <QGuiApplication>

namespace kartella {

std::optional<Error> offerRegisterUpgrade(const QString& path)
{
    try {
        if (!registerNeedsUpgrade(path))
            return std::nullopt;
    } catch (const Error&) {
        return std::nullopt;
    }
    const int answer = msgBox(QStringLiteral("The register \"") + path
            + QStringLiteral("\" was made by an earlier version of Kartella. Upgrade it to this version now?"
                             "\r\rEvery document, category and contact is kept."),
        MsgBoxStyle::YesNo + MsgBoxStyle::Question);
    if (answer != MsgBoxResult::Yes)
        return Error(ErrorNumber::ConnectionFailed,
            QStringLiteral("The register \"") + path
                + QStringLiteral("\" was made by an earlier version of Kartella and was not upgraded. "
                                 "Upgrade it, or choose another register."));
    QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    try {
        upgradeRegister(path);
        QGuiApplication::restoreOverrideCursor();
    } catch (const Error& error) {
        QGuiApplication::restoreOverrideCursor();
        return Error(ErrorNumber::ConnectionFailed,
            QStringLiteral("The register \"") + path
                + QStringLiteral("\" could not be upgraded; it is left as it was. ") + error.description());
    }
    return std::nullopt;
}

} // namespace kartella
