#pragma once

#include <QString>

#include <functional>
#include <vector>

namespace kartella {

class Connection;

// A register is plain SQLite: no column, index, view or trigger of it names a collation
// or function of ours, so that the sqlite3 shell, a scripting language, a database browser
// or a backup script can read and write it for as long as the user keeps their data. The
// order of names (case and the Lithuanian letters folded) is the engine's: it adds its
// collation in the SQL it runs (see JetDialect.h). An index or view that needs names in
// order uses SQLite's own collations and functions only (nameOrderKey below).
//
// The schema grows by numbered steps. A register's PRAGMA user_version is the number of
// the last step it has had; a new register goes through every step from the first, an
// older one through those it lacks (kartella-db upgrade, or the program when it opens
// one). Each step is one function that takes the register from the form before it to its
// own, and runs together with the new user_version; the steps of one upgrade are one
// transaction, so a failure leaves the register as it was. A change of the schema is a new function at the
// end of schemaSteps(); no step is ever changed once registers carry its number.

struct SchemaStep
{
    int version;
    QString summary; // what the step does, for the upgrade tool's report
    std::function<void(Connection&)> apply;
    std::function<void(Connection&)> applyOnServer; // the same step in PostgreSQL's SQL
};

// Every step, in order; the version of the last is the newest schema.
const std::vector<SchemaStep>& schemaSteps();
int newestSchemaVersion();

// The register's schema version (its user_version; on a server, the row of
// tbl_Schema_Version): 0 for an empty file or database.
int schemaVersion(Connection& connection);

// Runs the steps after version `from` on an open register, all of them in one transaction
// (each step a level of its own inside it), so that a failing step leaves the register as it
// was; gives the steps run, in order. Throws kartella::Error from the failing step.
std::vector<const SchemaStep*> runSchemaSteps(Connection& connection, int from);

// A plain SQLite expression that orders a text column as the engine's name collation does,
// for indexes and views that must not name that collation: the Lithuanian letters fold
// onto their base letters and ASCII letters onto lower case.
QString nameOrderKey(const QString& column);

// Whether the open database holds no table at all (a new file, or a new server database).
bool databaseIsEmpty(Connection& connection);

// Whether the register at path is older than this program: made by an earlier version, it
// needs the steps it lacks. Throws kartella::Error (ConnectionFailed) when it can't be opened.
bool registerNeedsUpgrade(const QString& path);

// Brings the register at path to the newest schema; gives the steps run. A register newer
// than this program, or not made by Kartella, is refused with kartella::Error and left as
// it was.
std::vector<const SchemaStep*> upgradeRegister(const QString& path);

} // namespace kartella
