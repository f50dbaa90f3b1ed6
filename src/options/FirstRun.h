#pragma once

#include "platform/Clock.h"

#include <QDate>

namespace kartella {

// The installer's part: when the options key is missing, creates it with the initial
// options (today's date as the day of the running number). An existing key is left as
// it is. Returns true when it created the key.
bool seedOptionsIfMissing(const QDate& today = Clock::currentDate());

} // namespace kartella
