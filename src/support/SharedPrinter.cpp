#include "support/SharedPrinter.h"

#include <QPrinter>

namespace kartella {

QPrinter& sharedPrinter()
{
    static QPrinter printer(QPrinter::HighResolution);
    return printer;
}

} // namespace kartella
