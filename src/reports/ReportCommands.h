#pragma once

#include "reports/ReportData.h"
#include "reports/ReportLayouts.h"

#include <QString>

namespace kartella {

// The named hierarchical commands the reports read, on one connection whose string is
// set the first time the commands are used in a run and never again: a report keeps
// reading the register it first read until the program restarts.
class ReportCommands
{
public:
    // The one set of the running program.
    static ReportCommands& instance();

    // The SHAPE text of a parent command ("Categories", "This_Month_Grouping", ...);
    // empty for an unknown name. remindersKeptDone: the register keeps reminders done, and
    // the reminders' command leaves those out.
    QString commandText(const QString& command, bool remindersKeptDone = false) const;

    // Makes the month command read the previous month for the rest of the run.
    void usePreviousMonth();
    bool readsPreviousMonth() const;

    // The connection string; set from the options on first use unless set before.
    QString connectionString();
    void setConnectionString(const QString& connectionString);

    // Runs the layout's command and gathers the fields its group header and footer and
    // its detail section bind. Throws kartella::Error.
    ReportData run(const ReportLayout& layout);

private:
    QString m_connectionString;
    bool m_connectionSet = false;
    QString m_monthSource = QStringLiteral("qry_This_Month");
};

} // namespace kartella
