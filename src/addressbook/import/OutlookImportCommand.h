#pragma once

namespace kartella {

// Runs the contact import from the main window: OutlookImport with the busy pointer
// shown while contacts are copied.
void importOutlookData();

} // namespace kartella
