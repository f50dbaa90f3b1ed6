#pragma once

#include "harness/TestRegister.h"
#include "reports/ReportData.h"
#include "reports/ReportLayouts.h"
#include "reports/ReportPages.h"

#include <QDate>
#include <QStringList>

namespace kartella::test {

// A small register whose every row a report shows is known: two categories (one with a
// subcategory), a contact with two phones and an address, a contact without phones, a
// document of this month with contact and reminder, one of this month without contact,
// one of the previous month. In a file, or on the tests' PostgreSQL server.
struct ReportFixture
{
    explicit ReportFixture(TestRegister::Where where = TestRegister::File);

    TestRegister reg;
    QDate thisMonth;
    QDate previousMonth;
    QDate reminderDate;
};

// Lays out the rows of a report on A4 in the report's orientation, as a PDF would get them.
QList<ReportPage> layOut(const ReportLayout& layout, const ReportData& data);

// The text lines of all pages, in order.
QStringList allLines(const QList<ReportPage>& pages);

} // namespace kartella::test
