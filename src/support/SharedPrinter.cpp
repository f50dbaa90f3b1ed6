#include "support/SharedPrinter.h"

#include <QPrinter>

namespace kartella {

QPrinter& SharedPrinter()
{
    static QPrinter printer(QPrinter::HighResolution);
    return printer;
}

} // namespace kartella
