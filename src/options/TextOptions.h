#pragma once

#include <QtGlobal>

namespace kartella {

// TextSizeLimitMB: files larger than this many megabytes have no text read from them.
// Default 50; a value that isn't a whole number of 1 or more counts as the default.
inline constexpr int DefaultTextSizeLimitMB = 50;

// The limit in bytes. Reads the option without a word when the options are missing, so that
// a background reader may call it.
qint64 textSizeLimitBytes();

} // namespace kartella
