#include "platform/OfficeSuite.h"

#include "platform/LibreOfficeSuite.h"

namespace kartella {

namespace {

OfficeSuite*& installed()
{
    static OfficeSuite* current = nullptr;
    return current;
}

} // namespace

OfficeSuite::~OfficeSuite() = default;

OfficeSuite& OfficeSuite::instance()
{
    static LibreOfficeSuite fallback;
    OfficeSuite* current = installed();
    return current ? *current : fallback;
}

void OfficeSuite::setInstance(OfficeSuite* suite)
{
    installed() = suite;
}

} // namespace kartella
