#include "CopyCommand.h"

#include "RegisterArgument.h"
#include "ToolText.h"
#include "history/KeptFilesCopy.h"
#include "store/RegisterCopy.h"

#include <QElapsedTimer>

namespace kartella::tool {

namespace {

// A copy quicker than this shows no progress; a longer one a line at most this often.
constexpr qint64 QuietMilliseconds = 2000;
constexpr qint64 ProgressMilliseconds = 1000;

// The deleted items' files and the earlier versions go with the register.
int copyKeptFilesOf(const QString& source, const QString& target, QTextStream& out, QTextStream& err)
{
    const KeptFilesCopy kept = copyKeptFiles(source, target);
    if (kept.files > 0)
        out << ToolText::tr("Copied %1 files of deleted items and earlier versions").arg(kept.files)
            << Qt::endl;
    if (!kept.notice.isEmpty())
        err << "kartella-db: " << kept.notice << Qt::endl;
    if (kept.problem.isEmpty())
        return 0;
    err << "kartella-db: " << kept.problem << u' '
        << ToolText::tr(
               "The register was copied; the files of its deleted items and earlier versions are not "
               "all there.")
        << Qt::endl;
    return 1;
}

} // namespace

int copyCommand(const QString& from, const QString& to, QTextStream& out, QTextStream& err)
{
    const QString source = existingRegister(from);
    const QString target = registerLocation(to);

    QElapsedTimer clock;
    clock.start();
    qint64 lastShown = QuietMilliseconds - ProgressMilliseconds;
    const RegisterCopyReport report
        = copyRegister(source, target, [&](const QString& table, qint64 written, qint64 rows) {
              if (clock.elapsed() - lastShown < ProgressMilliseconds)
                  return;
              lastShown = clock.elapsed();
              err << "kartella-db: "
                  << ToolText::tr("copying %1: %2 of %3 rows")
                         .arg(table, QString::number(written), QString::number(rows))
                  << Qt::endl;
          });

    for (const QString& line : report.lines())
        out << line << '\n';
    if (!report.complete()) {
        out.flush();
        err << "kartella-db: " << ToolText::tr("the row counts differ. %1").arg(report.undone) << Qt::endl;
        return 1;
    }
    out << ToolText::tr("Copied %1 to %2").arg(source, target) << Qt::endl;
    return copyKeptFilesOf(source, target, out, err);
}

} // namespace kartella::tool
