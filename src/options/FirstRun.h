#pragma once

#include "platform/Clock.h"

#include <QDate>

namespace kartella {

// The installer's part: when the options key is missing, creates it with the initial
// options (today's date as the day of the running number), in one write. A key that
// lacks some of them gets those; the values it holds are left as they are. Returns true
// when it wrote anything.
bool seedOptionsIfMissing(const QDate& today = Clock::currentDate());

} // namespace kartella
