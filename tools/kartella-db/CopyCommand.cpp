#include "CopyCommand.h"

#include "RegisterArgument.h"
#include "store/RegisterCopy.h"

#include <QElapsedTimer>

namespace kartella::tool {

namespace {

// A copy quicker than this shows no progress; a longer one a line at most this often.
constexpr qint64 QuietMilliseconds = 2000;
constexpr qint64 ProgressMilliseconds = 1000;

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
              err << "kartella-db: copying " << table << ": " << written << " of " << rows << " rows"
                  << Qt::endl;
          });

    for (const QString& line : report.lines())
        out << line << '\n';
    if (!report.complete()) {
        out.flush();
        err << "kartella-db: the row counts differ. " << report.undone << Qt::endl;
        return 1;
    }
    out << "Copied " << source << " to " << target << Qt::endl;
    return 0;
}

} // namespace kartella::tool
