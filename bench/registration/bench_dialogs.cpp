// Times the opening of the New Document and the document details dialogs on a register of
// 100 000 documents: from the command to the dialog shown with its row. Prints
// "name: value" lines.
#include "options/FirstRun.h"
#include "options/OptionStore.h"
#include "registration/DocumentDetailsDialog.h"
#include "registration/NewDocumentDialog.h"
#include "store/SampleRegister.h"
#include "store/Schema.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"
#include "support/SelectionState.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <functional>
#include <vector>

using namespace kartella;

namespace {

double medianMs(int runs, const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

template<typename Dialog>
void openAndClose(QString* description = nullptr)
{
    Dialog dialog;
    dialog.show();
    QCoreApplication::processEvents();
    if (description)
        *description = dialog.template findChild<QLineEdit*>(QStringLiteral("txtFields_7"))->text();
    dialog.reject();
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QTemporaryDir dir;
    qputenv("XDG_CONFIG_HOME", dir.filePath(QStringLiteral("config")).toUtf8());
    seedOptionsIfMissing();
    const QString path = dir.filePath(QStringLiteral("Kartella.mdb"));
    createRegister(path);
    SampleOptions options;
    options.documents = 100000;
    fillSampleRegister(path, options);
    setRegValue(QStringLiteral("DbLocation"), path);

    Connection connection(plainConnectionString());
    connection.open();
    Recordset middle;
    middle.open(
        QStringLiteral("select RastasID, KategID from tbl_Documents where RastasID=50000"), connection);
    SelectionState& state = selection();
    state.activeListName = QStringLiteral("ListDokSarasas");
    state.selectedDocumentId = middle.fields(QStringLiteral("RastasID")).value().toInt();
    state.currentCategoryId = middle.fields(QStringLiteral("KategID")).value().toInt();

    const int runs = 7;
    const double newDocument = medianMs(runs, [] { openAndClose<NewDocumentDialog>(); });
    QString description;
    const double details = medianMs(runs, [&] { openAndClose<DocumentDetailsDialog>(&description); });

    QTextStream out(stdout);
    out << "documents: " << options.documents << '\n';
    out << "details_description_length: " << description.size() << '\n';
    out << "new_document_open_ms: " << qRound(newDocument) << '\n';
    out << "details_open_ms: " << qRound(details) << '\n';
    return 0;
}
