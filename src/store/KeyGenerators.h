#pragma once

namespace kartella {

class Connection;

// After rows were written with their keys (a copy, a migration, the sample): makes each
// register table's generator of new keys go on after the highest key it holds. SQLite's
// keys need nothing (a key written moves its generator); a server database makes a key
// from a sequence that such rows leave where it was. Runs in the connection's transaction.
void continueKeyGenerators(Connection& connection);

} // namespace kartella
