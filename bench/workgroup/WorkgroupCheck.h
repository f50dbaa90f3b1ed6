#pragma once

#include "WorkgroupLog.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace kartella::bench {

// Fills a new, empty register with what the clients count on (WorkgroupClient.h).
void seedRegister(const QString& location);

// What the register holds after the run against what the clients' logs say.
struct CheckResult
{
    QString integrity; // "ok", or what was found wrong
    int failures = 0; // failed operations and successes missing, refusals present
    int lostUpdates = 0;
    int duplicateIndexes = 0;
    int duplicateContacts = 0;
    QStringList problems; // the first few, to be shown
};

CheckResult checkRegister(const QString& location, const QList<LoggedOperation>& operations);

} // namespace kartella::bench
