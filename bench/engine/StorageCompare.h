#pragma once

#include <string>

namespace kartella::bench {

// Reads the rows of sql twice with the sqlite3 C API, once into the engine's compact row
// store (typed cells, text kept as UTF-8) and once into one QVariant per cell, and then
// reads every value back as a QVariant, as a recordset hands it out. Prints the medians
// as storage_compact_ms and storage_variant_ms.
void compareStorage(const std::string& path, const std::string& sql, int runs);

} // namespace kartella::bench
