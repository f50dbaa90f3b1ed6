#include "reports/ReportLayouts.h"

#include <QCoreApplication>

namespace kartella {

namespace {

using Kind = ReportItem::Kind;

ReportItem box(Kind kind, const QString& text, int row, double left, double width)
{
    ReportItem item;
    item.kind = kind;
    item.text = text;
    item.row = row;
    item.left = left;
    item.width = width;
    return item;
}

ReportItem label(const QString& text, int row, double left, double width, bool grows = false)
{
    ReportItem item = box(Kind::Label, text, row, left, width);
    item.grows = grows;
    return item;
}

// A heading over the column of a field.
ReportItem columnHeading(const QString& text, const QString& field, int row, double left, double width)
{
    ReportItem item = box(Kind::Label, text, row, left, width);
    item.heads = field;
    return item;
}

ReportItem title(const QString& text)
{
    ReportItem item = box(Kind::Label, text, 0, 0.0, 1.0);
    item.bold = true;
    return item;
}

ReportItem field(const QString& name, int row, double left, double width, bool grows = false)
{
    ReportItem item = box(Kind::Field, name, row, left, width);
    item.grows = grows;
    return item;
}

// A date or a registration index: printed whole on one line.
ReportItem wholeField(const QString& name, int row, double left, double width, bool bold = false)
{
    ReportItem item = box(Kind::Field, name, row, left, width);
    item.whole = true;
    item.bold = bold;
    return item;
}

ReportItem heading(const QString& name, int row, double left, double width, bool grows = false)
{
    ReportItem item = field(name, row, left, width, grows);
    item.bold = true;
    return item;
}

ReportItem hidden(const QString& name)
{
    ReportItem item = box(Kind::Field, name, 0, 0.0, 0.0);
    item.hidden = true;
    return item;
}

ReportItem rule(int row)
{
    return box(Kind::Rule, {}, row, 0.0, 1.0);
}

ReportLayout makeLayout(const QString& name, const QString& scriptName, const QString& caption,
    const QString& command, const QString& childMember, ReportOrientation orientation)
{
    ReportLayout layout;
    layout.name = name;
    layout.scriptName = scriptName;
    layout.caption = caption;
    layout.command = command;
    layout.childMember = childMember;
    layout.orientation = orientation;
    return layout;
}

ReportLayout categories()
{
    ReportLayout r = makeLayout(QStringLiteral("DataReport1"), QStringLiteral("categories"),
        QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Categories"), QStringLiteral("Categories"),
        QStringLiteral("SubCategories"), ReportOrientation::Landscape);
    r.reportHeader = {title(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "CATEGORIES"))};
    r.pageHeader = {label(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Mnem"), 0, 0.20, 0.07),
        label(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Location of files"), 0, 0.27, 0.19),
        label(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "WORD Template"), 0, 0.46, 0.18),
        label(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "EXCEL Template"), 0, 0.64, 0.18),
        label(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "POWERPOINT Template"), 0, 0.82, 0.18, true),
        rule(1)};
    r.groupHeader = {heading(QStringLiteral("DokKategorija"), 0, 0.0, 0.20, true),
        field(QStringLiteral("Mnemonic"), 0, 0.20, 0.07),
        field(QStringLiteral("DokKategDaug"), 0, 0.27, 0.19, true),
        field(QStringLiteral("DokTemplates"), 0, 0.46, 0.18, true),
        field(QStringLiteral("DokTemplatesExel"), 0, 0.64, 0.18, true),
        field(QStringLiteral("DokTemplatesPowPoint"), 0, 0.82, 0.18, true), hidden(QStringLiteral("KategID")),
        rule(1)};
    r.detail = {field(QStringLiteral("DokSubKategorija"), 0, 0.02, 0.44),
        field(QStringLiteral("SubDokTemplates"), 0, 0.46, 0.18, true),
        field(QStringLiteral("SubDokTemplatesExel"), 0, 0.64, 0.18, true),
        field(QStringLiteral("SubDokTemplatesPowPoint"), 0, 0.82, 0.18, true),
        hidden(QStringLiteral("SubKategID"))};
    return r;
}

ReportLayout byContacts()
{
    ReportLayout r = makeLayout(QStringLiteral("DataReport2"), QStringLiteral("by-contacts"),
        QT_TRANSLATE_NOOP("kartella::ReportLayouts", "List by Contacts"), QStringLiteral("DocByCor_Grouping"),
        QStringLiteral("DocByCor"), ReportOrientation::Landscape);
    r.pageHeader = {title(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "List of Documents by Contacts")),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Doc. Description"),
            QStringLiteral("DokAntraste"), 1, 0.03, 0.43),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Reg. Date"),
            QStringLiteral("DokRegistracData"), 1, 0.46, 0.12),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Reg. Index"),
            QStringLiteral("DokRegistracIndeksas"), 1, 0.58, 0.17),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Category"),
            QStringLiteral("DokKategorija"), 1, 0.75, 0.25)};
    r.groupHeader = {heading(QStringLiteral("FullName"), 0, 0.0, 0.45, true),
        heading(QStringLiteral("FullName"), 0, 0.55, 0.45), hidden(QStringLiteral("ContactID"))};
    r.detail = {field(QStringLiteral("DokAntraste"), 0, 0.03, 0.43, true),
        wholeField(QStringLiteral("DokRegistracData"), 0, 0.46, 0.12),
        wholeField(QStringLiteral("DokRegistracIndeksas"), 0, 0.58, 0.17),
        field(QStringLiteral("DokKategorija"), 0, 0.75, 0.25), hidden(QStringLiteral("RastasID"))};
    return r;
}

ReportLayout phones()
{
    ReportLayout r = makeLayout(QStringLiteral("DataReport3"), QStringLiteral("phones"),
        QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Phones"), QStringLiteral("Command1_Grouping"),
        QStringLiteral("Command1"), ReportOrientation::Portrait);
    r.reportHeader = {title(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Phones"))};
    r.groupHeader = {heading(QStringLiteral("FullName"), 0, 0.0, 1.0), hidden(QStringLiteral("ContactID"))};
    r.detail = {field(QStringLiteral("PhoneName"), 0, 0.05, 0.45, true),
        field(QStringLiteral("PhoneNumber"), 0, 0.50, 0.50, true)};
    return r;
}

ReportLayout byCategory()
{
    ReportLayout r = makeLayout(QStringLiteral("DataReport4"), QStringLiteral("by-category"),
        QT_TRANSLATE_NOOP("kartella::ReportLayouts", "List of Documents by Category"),
        QStringLiteral("Command2_Grouping"), QStringLiteral("Command2"), ReportOrientation::Landscape);
    r.pageHeader = {title(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "List of Documents by Category")),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Doc. Description"),
            QStringLiteral("DokAntraste"), 1, 0.03, 0.42),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Reg. Index"),
            QStringLiteral("DokRegistracIndeksas"), 1, 0.45, 0.18),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Reg. Date"),
            QStringLiteral("DokRegistracData"), 1, 0.63, 0.12),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Sender/Receiver"),
            QStringLiteral("FullName"), 1, 0.75, 0.25)};
    r.groupHeader
        = {heading(QStringLiteral("DokKategorija"), 0, 0.0, 1.0, true), hidden(QStringLiteral("KategID"))};
    r.detail = {field(QStringLiteral("DokAntraste"), 0, 0.03, 0.42, true),
        wholeField(QStringLiteral("DokRegistracIndeksas"), 0, 0.45, 0.18),
        wholeField(QStringLiteral("DokRegistracData"), 0, 0.63, 0.12),
        field(QStringLiteral("FullName"), 0, 0.75, 0.25, true), hidden(QStringLiteral("ContactID"))};
    return r;
}

ReportLayout reminder()
{
    ReportLayout r = makeLayout(QStringLiteral("DataReport5"), QStringLiteral("reminder"),
        QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Reminder"), QStringLiteral("Tickler_Grouping"),
        QStringLiteral("Tickler"), ReportOrientation::Portrait);
    r.pageHeader = {title(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Reminder"))};
    // The index tells apart two documents of one description.
    r.groupHeader = {wholeField(QStringLiteral("DokRegistracIndeksas"), 0, 0.0, 0.25, true),
        heading(QStringLiteral("DokAntraste"), 0, 0.25, 0.75, true), hidden(QStringLiteral("RastasID"))};
    r.detail = {wholeField(QStringLiteral("TicklerDate"), 0, 0.05, 0.20),
        field(QStringLiteral("TicklerText"), 0, 0.25, 0.75, true)};
    return r;
}

ReportLayout telephoneList()
{
    ReportLayout r = makeLayout(QStringLiteral("PhoneList"), QStringLiteral("telephone-list"),
        QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Telephone List"), QStringLiteral("Contacts"),
        QStringLiteral("Phones"), ReportOrientation::Portrait);
    r.reportHeader = {title(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Telephone List"))};
    r.groupHeader = {heading(QStringLiteral("FullName"), 0, 0.0, 0.5, true),
        field(QStringLiteral("CompanyName"), 0, 0.5, 0.5, true), hidden(QStringLiteral("ContactID"))};
    r.detail = {field(QStringLiteral("PhoneName"), 0, 0.05, 0.45),
        field(QStringLiteral("PhoneNumber"), 0, 0.50, 0.50), hidden(QStringLiteral("PhoneID"))};
    return r;
}

ReportLayout addresses()
{
    ReportLayout r = makeLayout(QStringLiteral("AddressBooks"), QStringLiteral("addresses"),
        QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Addresses"), QStringLiteral("AddressBook_Grouping"),
        QStringLiteral("AddressBook"), ReportOrientation::Portrait);
    r.reportHeader = {title(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Address Book"))};
    r.groupHeader = {heading(QStringLiteral("FullName"), 0, 0.0, 0.5, true),
        field(QStringLiteral("CompanyName"), 0, 0.5, 0.5, true),
        field(QStringLiteral("Address"), 1, 0.0, 0.35), field(QStringLiteral("City"), 1, 0.35, 0.2),
        field(QStringLiteral("StateOrProvince"), 1, 0.55, 0.2),
        field(QStringLiteral("Country"), 1, 0.75, 0.25), hidden(QStringLiteral("ContactID"))};
    r.detail = {field(QStringLiteral("PhoneName"), 0, 0.05, 0.45, true),
        field(QStringLiteral("PhoneNumber"), 0, 0.50, 0.50)};
    r.groupFooter = {rule(0)};
    return r;
}

ReportLayout thisMonth()
{
    ReportLayout r = makeLayout(QStringLiteral("rptThisMonth"), QStringLiteral("this-month"),
        QT_TRANSLATE_NOOP("kartella::ReportLayouts", "This Month"), QStringLiteral("This_Month_Grouping"),
        QStringLiteral("This_Month"), ReportOrientation::Landscape);
    r.pageHeader = {title(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "List Of documents By Categories")),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Reg. Date"),
            QStringLiteral("DokRegistracData"), 1, 0.03, 0.10),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Reg. Index"),
            QStringLiteral("DokRegistracIndeksas"), 1, 0.13, 0.15),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Doc. Description"),
            QStringLiteral("DokAntraste"), 1, 0.28, 0.32),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Sender/Receiver"),
            QStringLiteral("FullName"), 1, 0.60, 0.20),
        columnHeading(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Category"),
            QStringLiteral("DokKategorija"), 1, 0.80, 0.20)};
    r.groupHeader
        = {heading(QStringLiteral("DokKategorija"), 0, 0.0, 1.0, true), hidden(QStringLiteral("KategID"))};
    r.detail = {wholeField(QStringLiteral("DokRegistracData"), 0, 0.03, 0.10),
        wholeField(QStringLiteral("DokRegistracIndeksas"), 0, 0.13, 0.15),
        field(QStringLiteral("DokAntraste"), 0, 0.28, 0.32),
        field(QStringLiteral("FullName"), 0, 0.60, 0.20, true),
        field(QStringLiteral("DokKategorija"), 0, 0.80, 0.20, true), hidden(QStringLiteral("RastasID"))};
    r.pageFooter = {rule(0), label(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "Printed:"), 1, 0.0, 0.08),
        label(QStringLiteral("%d"), 1, 0.08, 0.14),
        label(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "page"), 1, 0.72, 0.06),
        label(QStringLiteral("%p"), 1, 0.78, 0.07),
        label(QT_TRANSLATE_NOOP("kartella::ReportLayouts", "of"), 1, 0.85, 0.04),
        label(QStringLiteral("%P"), 1, 0.89, 0.11)};
    return r;
}

} // namespace

const QList<ReportLayout>& reportLayouts()
{
    static const QList<ReportLayout> layouts = {categories(), byContacts(), phones(), byCategory(),
        reminder(), telephoneList(), addresses(), thisMonth()};
    return layouts;
}

const ReportLayout* findReportLayout(const QString& name)
{
    for (const ReportLayout& layout : reportLayouts()) {
        if (layout.name == name || layout.scriptName == name)
            return &layout;
    }
    return nullptr;
}

QString shownText(const ReportItem& item)
{
    if (item.kind != ReportItem::Kind::Label || item.text.isEmpty())
        return item.text;
    return QCoreApplication::translate("kartella::ReportLayouts", item.text.toUtf8().constData());
}

QString shownCaption(const ReportLayout& layout)
{
    return QCoreApplication::translate("kartella::ReportLayouts", layout.caption.toUtf8().constData());
}

} // namespace kartella
