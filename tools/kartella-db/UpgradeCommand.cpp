#include "UpgradeCommand.h"

#include "RegisterArgument.h"
#include "store/SchemaSteps.h"

namespace kartella::tool {

void upgradeCommand(const QString& path, QTextStream& out)
{
    const std::vector<const SchemaStep*> done = upgradeRegister(existingRegister(path));
    if (done.empty()) {
        out << "The register is up to date (schema version " << newestSchemaVersion() << ").\n";
        return;
    }
    for (const SchemaStep* step : done)
        out << "Step " << step->version << ": " << step->summary << '\n';
    out << "The register is at schema version " << done.back()->version << ".\n";
}

} // namespace kartella::tool
