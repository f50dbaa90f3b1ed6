#pragma once

#include "base/Error.h"

#include <QString>

namespace kartella::engine {

// Error numbers of the engine beyond those in support/Error.h, with ADO's values.
namespace EngineError {
// The argument is of the wrong type or out of range (adErrInvalidArgument); a bad bookmark.
constexpr long InvalidArgument = 3001;
// The recordset can't be changed (adErrFeatureNotAvailable).
constexpr long NotUpdatable = 3251;
// The object is closed (adErrObjectClosed).
constexpr long ObjectClosed = 3704;
// The object is already open (adErrObjectOpen).
constexpr long ObjectOpen = 3705;
} // namespace EngineError

inline const QString ConnectionSource = QStringLiteral("Kartella.Connection");
inline const QString RecordsetSource = QStringLiteral("Kartella.Recordset");

[[noreturn]] inline void throwError(
    long number, const QString& description, const QString& source = RecordsetSource)
{
    throw Error(number, description, source);
}

} // namespace kartella::engine
