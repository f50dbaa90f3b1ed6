// Feeds any text to the connection string parser, and checks that what it read, written
// back as a connection string, reads the same.
#include "FuzzInput.h"
#include "store/engine/ConnectionString.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace kartella::engine;
    const ConnectionTarget target = parseConnectionString(kartella::fuzz::text(data, size));
    FUZZ_CHECK(target.dataSource == target.dataSource.trimmed());
    FUZZ_CHECK(target.provider == target.provider.trimmed());
    FUZZ_CHECK(!target.provider.contains(u';'));
    isJetProvider(target.provider);

    QString written
        = target.shaped ? QStringLiteral("Provider=MSDataShape;Data Provider=") : QStringLiteral("Provider=");
    // The closing ; keeps a ; that ends the data source.
    written += target.provider + QStringLiteral(";Data Source=") + target.dataSource + u';';
    const ConnectionTarget again = parseConnectionString(written);
    FUZZ_CHECK(again.shaped == target.shaped);
    FUZZ_CHECK(again.provider == target.provider);
    FUZZ_CHECK(again.dataSource == target.dataSource);
    return 0;
}
