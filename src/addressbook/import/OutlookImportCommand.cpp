#include "addressbook/import/OutlookImportCommand.h"

#include "addressbook/import/OutlookImport.h"

#include <QCursor>
#include <QGuiApplication>

namespace kartella {

void importOutlookData()
{
    bool busy = false;
    OutlookImport import;
    import.busyChanged = [&busy](bool nowBusy) { if (nowBusy == busy) return;
    busy = nowBusy;
    if (busy)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QGuiApplication::restoreOverrideCursor();
};
import.run();
if (busy)
    QGuiApplication::restoreOverrideCursor();
} // namespace kartella

} // namespace kartella
