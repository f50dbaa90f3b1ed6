#pragma once

class QPrinter;

namespace kartella {

// The one printer of the running program: the print setup dialog sets it up, and the
// reports print on it with the orientation they set.
QPrinter& sharedPrinter();

} // namespace kartella
