#pragma once

#include <QCoreApplication>

namespace kartella::tool {

// The texts kartella-db shows its user (help, messages, errors), in one translation context.
// What scripts read as data (tab-separated lines, table names, counts of tables) is not here.
class ToolText
{
    Q_DECLARE_TR_FUNCTIONS(kartella::tool::ToolText)
};

} // namespace kartella::tool
