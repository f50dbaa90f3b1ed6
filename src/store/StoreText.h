#pragma once

#include <QCoreApplication>

namespace kartella {

// The register's own messages to its user (making, upgrading, copying and migrating a
// register), in one translation context. SQL, table and column names stay as they are.
class StoreText
{
    Q_DECLARE_TR_FUNCTIONS(kartella::StoreText)
};

} // namespace kartella
