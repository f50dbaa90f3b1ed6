// Feeds any text to the SHAPE parser and to the selects a recordset builds from a source
// and a filter (the input cut in two at a byte 0).
#include "FuzzInput.h"
#include "base/Error.h"
#include "store/engine/ShapeCommand.h"

#include <QSet>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kartella::engine;
    const QString text = kartella::fuzz::text(data, size);
    if (isShapeCommand(text)) {
        try {
            const ShapeCommand command = parseShape(text);
            FUZZ_CHECK(!command.compute || command.appends.empty());
            static const QSet<QString> functions = {QStringLiteral("COUNT"), QStringLiteral("SUM"),
                QStringLiteral("MIN"), QStringLiteral("MAX"), QStringLiteral("AVG")};
            for (const ShapeCommand::Aggregate& aggregate : command.aggregates)
                FUZZ_CHECK(functions.contains(aggregate.function));
            for (const ShapeCommand::Append& append : command.appends)
                FUZZ_CHECK(text.contains(append.sql));
            FUZZ_CHECK(text.contains(command.sql));
        } catch (const kartella::Error&) { }
    }

    const QList<QByteArray> parts = kartella::fuzz::parts(data, size, 2);
    const QString source = QString::fromUtf8(parts.at(0));
    const QString filter = QString::fromUtf8(parts.at(1));
    selectText(source);
    restrictedSelect(source, filter);
    const QString key = keyRestriction(filter);
    if (!key.isEmpty())
        restrictedSelect(source, key);
    return 0;
}
