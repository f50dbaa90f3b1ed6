#include "UpgradeCommand.h"

#include "RegisterArgument.h"
#include "ToolText.h"
#include "store/SchemaSteps.h"

#include <QCoreApplication>

namespace kartella::tool {

namespace {

// A step's summary is kept in English with the step; it is translated where it is shown.
QString stepSummary(const SchemaStep& step)
{
    return QCoreApplication::translate("kartella::SchemaStep", step.summary.toUtf8().constData());
}

} // namespace

void upgradeCommand(const QString& path, QTextStream& out)
{
    const std::vector<const SchemaStep*> done = upgradeRegister(existingRegister(path));
    if (done.empty()) {
        out << ToolText::tr("The register is up to date (schema version %1).").arg(newestSchemaVersion())
            << '\n';
        return;
    }
    for (const SchemaStep* step : done)
        out << ToolText::tr("Step %1: %2").arg(QString::number(step->version), stepSummary(*step)) << '\n';
    out << ToolText::tr("The register is at schema version %1.").arg(done.back()->version) << '\n';
}

} // namespace kartella::tool
