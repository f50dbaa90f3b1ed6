#pragma once

#include "base/Error.h"

#include <QString>

#include <optional>

namespace kartella {

// When the register at path was made by an earlier Kartella, asks the user (through the
// Prompter, Yes/No) whether to upgrade it, and does so on Yes. Gives the error that stands
// in for an unusable register when the user says No or the upgrade fails (the register is
// then left as it was); nothing when the register can be opened as it is, or can't be read
// at all (the first fill reports that).
std::optional<Error> offerRegisterUpgrade(const QString& path);

} // namespace kartella
