#include "store/SampleRegister.h"

#include "base/Error.h"
#include "history/HistorySchema.h"
#include "store/InsertBatch.h"
#include "store/SampleData.h"
#include "store/SampleFiles.h"
#include "store/Store.h"
#include "store/StoreText.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

namespace kartella {

namespace {

using namespace sample;

const QString JetProvider = QStringLiteral("Microsoft.Jet.OLEDB.4.0");

const QStringList Tables = {
    QStringLiteral("tbl_Document_Categories"),
    QStringLiteral("tbl_Sub_Categories"),
    QStringLiteral("tbl_Contacts"),
    QStringLiteral("tbl_Phones"),
    QStringLiteral("tbl_HomePages"),
    QStringLiteral("tbl_Documents"),
    QStringLiteral("tbl_Sub_Documents"),
    QStringLiteral("tbl_Tickler"),
};

QVariant textOrNull(const QString& text)
{
    return text.isEmpty() ? nullValue() : QVariant(text);
}

// "UAB „Baltijos statyba“" -> "baltijos-statyba.lt".
QString webDomain(const QString& company)
{
    const qsizetype open = company.indexOf(u'„');
    const QString name = open >= 0 ? company.mid(open + 1) : company;
    return asciiSlug(name).replace(u'.', u'-') + QStringLiteral(".lt");
}

// Takes exactly `needed` of `total` items, each with the same chance, in one pass.
class selection
{
public:
    selection(int needed, int total)
        : m_needed(needed)
        , m_remaining(total)
    { }
    bool next(Random& random)
    {
        if (m_remaining <= 0)
            return false;
        const bool take = random.below(m_remaining) < m_needed;
        --m_remaining;
        if (take)
            --m_needed;
        return take;
    }

private:
    int m_needed;
    int m_remaining;
};

struct PendingFile
{
    QString path;
    FileContent content;
};

struct SubCategoryRow
{
    int id;
    QString folder; // absolute, empty when none
};

struct CategoryRow
{
    int id;
    QString prefix; // of file names: the mnemonic, or the title's first three letters
    QString folder;
    QList<SubCategoryRow> subCategories;
    const CategoryEntry* entry;
};

// Writes the rows of a sample register in one pass; the files to make are kept
// until the rows are stored.
class SampleWriter
{
public:
    SampleWriter(Connection& connection, const SampleOptions& options, const QString& filesFolder)
        : m_connection(connection)
        , m_options(options)
        , m_filesFolder(filesFolder)
        , m_random(options.seed)
    { }

    void writeRows()
    {
        writeCategories();
        writeContacts();
        writeDocuments();
    }

    const QList<PendingFile>& files() const { return m_files; }
    QStringList folders() const { return m_folders; }

private:
    QString absoluteFolder(const QString& relative)
    {
        if (relative.isEmpty())
            return {};
        const QString folder = QDir::toNativeSeparators(m_filesFolder + u'/' + relative);
        m_folders << folder;
        return folder;
    }

    void writeCategories()
    {
        InsertBatch categories(m_connection, QStringLiteral("tbl_Document_Categories"),
            {QStringLiteral("KategID"), QStringLiteral("DokKategorija"), QStringLiteral("Mnemonic"),
                QStringLiteral("DokKategDaug"), QStringLiteral("DokTemplates"),
                QStringLiteral("DokTemplatesExel"), QStringLiteral("DokTemplatesPowPoint")});
        InsertBatch subCategories(m_connection, QStringLiteral("tbl_Sub_Categories"),
            {QStringLiteral("SubKategID"), QStringLiteral("KategID"), QStringLiteral("DokSubKategorija"),
                QStringLiteral("SubPathToFiles"), QStringLiteral("SubDokTemplates"),
                QStringLiteral("SubDokTemplatesExel"), QStringLiteral("SubDokTemplatesPowPoint")});
        int subId = 0;
        for (const CategoryEntry& entry : sampleCategories()) {
            CategoryRow row {int(m_categories.size()) + 1,
                entry.mnemonic.isEmpty() ? entry.title.left(3) : entry.mnemonic, absoluteFolder(entry.folder),
                {}, &entry};
            categories.add({row.id, entry.title, textOrNull(entry.mnemonic), textOrNull(row.folder),
                nullValue(), nullValue(), nullValue()});
            for (const SubCategoryEntry& sub : entry.subCategories) {
                const SubCategoryRow subRow {++subId, absoluteFolder(sub.folder)};
                subCategories.add({subRow.id, row.id, sub.title, textOrNull(subRow.folder), nullValue(),
                    nullValue(), nullValue()});
                row.subCategories << subRow;
            }
            m_categories << row;
        }
        categories.flush();
        subCategories.flush();
    }

    void writeContacts()
    {
        InsertBatch contacts(m_connection, QStringLiteral("tbl_Contacts"),
            {QStringLiteral("ContactID"), QStringLiteral("CompanyName"), QStringLiteral("Title"),
                QStringLiteral("Dear"), QStringLiteral("FullName"), QStringLiteral("Address"),
                QStringLiteral("City"), QStringLiteral("StateOrProvince"), QStringLiteral("PostalCode"),
                QStringLiteral("Region"), QStringLiteral("Country"), QStringLiteral("EmailName"),
                QStringLiteral("Notes")});
        InsertBatch phones(m_connection, QStringLiteral("tbl_Phones"),
            {QStringLiteral("PhoneID"), QStringLiteral("ContactID"), QStringLiteral("PhoneName"),
                QStringLiteral("PhoneNumber")});
        InsertBatch pages(m_connection, QStringLiteral("tbl_HomePages"),
            {QStringLiteral("HomeID"), QStringLiteral("ContactID"), QStringLiteral("Description"),
                QStringLiteral("HomeWWW")});
        int phoneId = 0;
        int pageId = 0;
        const QList<ContactEntry>& entries = sampleContacts();
        for (int i = 0; i < entries.size(); ++i) {
            const ContactEntry& entry = entries.at(i);
            const int id = i + 1;
            const bool person = !entry.fullName.isEmpty();
            const QString company = person
                ? (m_random.percent(50) ? m_random.pick(sampleCompanies()) : QString())
                : entry.company;
            const QString firstName = entry.fullName.section(u' ', 0, 0);
            const bool woman = isWomansName(firstName);
            const CityEntry& city = m_random.pick(sampleCities());
            QString title;
            if (person && !company.isEmpty()) {
                static const QStringList men = {QStringLiteral("Direktorius"), QStringLiteral("Vadybininkas"),
                    QStringLiteral("Buhalteris"), QStringLiteral("Teisininkas")};
                static const QStringList women = {QStringLiteral("Direktorė"), QStringLiteral("Vadybininkė"),
                    QStringLiteral("Buhalterė"), QStringLiteral("Teisininkė")};
                title = m_random.pick(woman ? women : men);
            }
            const QString dear = person
                ? (woman ? QStringLiteral("Gerbiamoji ") : QStringLiteral("Gerbiamasis "))
                    + vocative(firstName)
                : QString();
            const QString slug = asciiSlug(entry.fullName);
            const QString domain = company.isEmpty() ? QStringLiteral("pastas.lt") : webDomain(company);
            const QString email
                = m_random.percent(85) ? (person ? slug : QStringLiteral("info")) + u'@' + domain : QString();
            const QString address
                = m_random.pick(sampleStreets()) + u' ' + QString::number(m_random.between(1, 120));
            const QString postal = city.postalPrefix + QString::number(m_random.between(1000, 9999));
            const QString region = m_random.percent(40) ? city.region : QString();
            const QString notes = m_random.percent(20) ? m_random.pick(sampleNotes()) : QString();
            contacts.add({id, textOrNull(company), textOrNull(title), textOrNull(dear),
                textOrNull(entry.fullName), address, city.city, city.county, postal, textOrNull(region),
                QStringLiteral("Lietuva"), textOrNull(email), textOrNull(notes)});

            // Every twelfth contact has no phone, every fifth no web page.
            if (i % 12 != 7) {
                const bool business = !company.isEmpty();
                if (person && m_random.percent(80))
                    phones.add({++phoneId, id, QStringLiteral("Mobile"), mobileNumber()});
                if (business && (!person || m_random.percent(60)))
                    phones.add({++phoneId, id, QStringLiteral("Business"), landNumber(city)});
                if (person && m_random.percent(25))
                    phones.add({++phoneId, id, QStringLiteral("Home"), landNumber(city)});
                if (business && m_random.percent(30))
                    phones.add({++phoneId, id, QStringLiteral("Fax"), landNumber(city)});
            }
            if (i % 5 != 2) {
                if (!company.isEmpty() && m_random.percent(85))
                    pages.add({++pageId, id, QStringLiteral("Svetainė"),
                        QString(QStringLiteral("https://www.") + domain)});
                if (person && m_random.percent(30))
                    pages.add({++pageId, id,
                        m_random.percent(50) ? QVariant(QStringLiteral("Profilis")) : QVariant(),
                        QString(QStringLiteral("https://www.linkedin.com/in/")
                            + QString(slug).replace(u'.', u'-'))});
            }
        }
        contacts.flush();
        phones.flush();
        pages.flush();
    }

    QString mobileNumber()
    {
        return QStringLiteral("+370 6") + QString::number(m_random.between(10, 99)) + u' '
            + QString::number(m_random.between(10000, 99999));
    }

    QString landNumber(const CityEntry& city)
    {
        const int digits = 8 - int(city.areaCode.size());
        QString number;
        for (int i = 0; i < digits; ++i)
            number += QChar(u'0' + (i == 0 ? m_random.between(2, 7) : m_random.below(10)));
        return QStringLiteral("+370 ") + city.areaCode + u' ' + number;
    }

    QString newFilePath(const QString& folder, const QString& prefix, const QString& extension)
    {
        const QString base = prefix + u'-' + QString::number(++m_fileNumber).rightJustified(4, u'0');
        const QString inFolder = folder.isEmpty() ? QDir::toNativeSeparators(m_filesFolder) : folder;
        return inFolder + QDir::separator() + base + u'.' + extension;
    }

    QString extension()
    {
        static const QStringList weighted = {QStringLiteral("doc"), QStringLiteral("doc"),
            QStringLiteral("doc"), QStringLiteral("xls"), QStringLiteral("xls"), QStringLiteral("pdf"),
            QStringLiteral("pdf"), QStringLiteral("txt"), QStringLiteral("odt"), QStringLiteral("ppt")};
        return m_random.pick(weighted);
    }

    // What a document's related rows take from it.
    struct DocumentFacts
    {
        int id;
        QDate registered;
        QString index;
        QString description;
        QString folder;
        QVariant contact;
    };

    void writeDocuments();
    void addRelated(InsertBatch& related, const DocumentFacts& document);
    void addReminders(InsertBatch& reminders, int documentId, const QDate& registered);

    Connection& m_connection;
    const SampleOptions& m_options;
    QString m_filesFolder;
    Random m_random;
    QList<CategoryRow> m_categories;
    QList<PendingFile> m_files;
    QStringList m_folders;
    int m_fileNumber = 0;
    int m_relatedId = 0;
    int m_relatedFiles = 0;
    int m_relatedFileCap = 0;
    int m_reminderId = 0;
};

void SampleWriter::writeDocuments()
{
    InsertBatch documents(m_connection, QStringLiteral("tbl_Documents"),
        {QStringLiteral("RastasID"), QStringLiteral("DokGavSiuntData"), QStringLiteral("DokRegistracData"),
            QStringLiteral("DokRegistracIndeksas"), QStringLiteral("DokAntraste"),
            QStringLiteral("DokVykdytojas"), QStringLiteral("DokIvykdymoZyma"), QStringLiteral("RastoKel"),
            QStringLiteral("ContactID"), QStringLiteral("KategID"), QStringLiteral("SubKategID"),
            QStringLiteral("DokPastaba"), QStringLiteral("KryptisID")});
    InsertBatch related(m_connection, QStringLiteral("tbl_Sub_Documents"),
        {QStringLiteral("SubRastasID"), QStringLiteral("RastasID"), QStringLiteral("SubDocDescript"),
            QStringLiteral("ContactID"), QStringLiteral("SubRastoKelias"),
            QStringLiteral("SubRastGavimoData")});
    InsertBatch reminders(m_connection, QStringLiteral("tbl_Tickler"),
        {QStringLiteral("TicklerID"), QStringLiteral("RastasID"), QStringLiteral("TicklerDate"),
            QStringLiteral("TicklerText")});

    const int count = qMax(0, m_options.documents);
    const int withFiles
        = m_options.filesOnDisk >= 0 ? qMin(m_options.filesOnDisk, count) : qMin(count * 3 / 10, 150);
    const int missing = qMin(count / 10, 3 + withFiles / 50);
    m_relatedFileCap = withFiles == 0 ? 0 : qMax(1, withFiles / 3);
    selection fileSelection(withFiles, count);
    selection missingSelection(missing, count - withFiles);

    const QDate today = m_options.today;
    const QDate first = today.addMonths(-3).addDays(1);
    const qint64 span = first.daysTo(today) + 1;
    const int contactCount = int(sampleContacts().size());
    QDate day;
    int dayNumber = 0;

    for (int i = 0; i < count; ++i) {
        const int id = i + 1;
        const QDate registered = first.addDays(qint64(i) * span / count);
        dayNumber = registered == day ? dayNumber + 1 : 1;
        day = registered;
        const int direction = i < 4 ? i + 1 : m_random.pick(QList<int> {1, 2, 2, 3, 3, 3, 4});
        const QDate received = direction == 2 ? registered : registered.addDays(-m_random.below(6));

        const CategoryRow* category = (i % 17 == 5 || m_random.percent(4))
            ? nullptr
            : &m_categories.at(m_random.below(int(m_categories.size())));
        const SubCategoryRow* sub = category && !category->subCategories.isEmpty() && m_random.percent(70)
            ? &category->subCategories.at(m_random.below(int(category->subCategories.size())))
            : nullptr;
        const QVariant contact
            = (i % 13 == 3 || m_random.percent(8)) ? nullValue() : QVariant(m_random.below(contactCount) + 1);

        const QString mnemonic = category ? category->entry->mnemonic : QString();
        const QString index = (mnemonic.isEmpty() ? QString() : mnemonic + u'-')
            + registered.toString(QStringLiteral("yyyyMMdd")) + u'/' + QString::number(dayNumber);
        QString description;
        if (!m_random.percent(3)) {
            static const QStringList general
                = {QStringLiteral("Bendrasis raštas"), QStringLiteral("Informacinis pranešimas")};
            description = m_random.pick(category ? category->entry->descriptions : general);
            if (m_random.percent(50))
                description += QStringLiteral(" Nr. ") + QString::number(m_random.between(1, 250));
        }
        const QString executor = m_random.percent(30) ? m_random.pick(sampleExecutors()) : QString();
        const QString mark = executor.isEmpty() ? QString()
            : m_random.percent(60)              ? QStringLiteral("Įvykdyta")
                                                : QStringLiteral("Vykdoma");
        const QString notes = (i % 7 != 2 && m_random.percent(40)) ? m_random.pick(sampleNotes()) : QString();

        const QString folder = sub && !sub->folder.isEmpty() ? sub->folder
            : category                                       ? category->folder
                                                             : QString();
        const QString prefix = category ? category->prefix : QStringLiteral("DOK");
        QString path;
        if (fileSelection.next(m_random)) {
            path = newFilePath(folder, prefix, extension());
            m_files << PendingFile {path, {description, index, registered, notes}};
        } else if (missingSelection.next(m_random)) {
            path = newFilePath(folder, prefix, extension()); // named, never written
        }

        documents.add({id, received, registered, index, textOrNull(description), textOrNull(executor),
            textOrNull(mark), textOrNull(path), contact, category ? QVariant(category->id) : nullValue(),
            sub ? QVariant(sub->id) : nullValue(), textOrNull(notes), direction});

        if (i % 10 == 1 || m_random.percent(6))
            addRelated(related, {id, registered, index, description, folder, contact});
        if (i % 9 == 4 || m_random.percent(8))
            addReminders(reminders, id, registered);
    }
    documents.flush();
    related.flush();
    reminders.flush();
}

void SampleWriter::addRelated(InsertBatch& related, const DocumentFacts& document)
{
    const int count = m_random.between(1, 3);
    for (int k = 0; k < count; ++k) {
        ++m_relatedId;
        const QString text = m_random.pick(sampleRelatedDescriptions());
        QString path;
        if (m_relatedId % 3 == 1 && m_relatedFiles < m_relatedFileCap) {
            ++m_relatedFiles;
            path = newFilePath(document.folder, QStringLiteral("Priedas"), extension());
            m_files << PendingFile {path, {text, document.index, document.registered, document.description}};
        }
        const QVariant contact = m_random.percent(20) ? nullValue() : document.contact;
        const QDate date = qMin(m_options.today, document.registered.addDays(m_random.below(8)));
        related.add({m_relatedId, document.id, text, contact, textOrNull(path), date});
    }
}

void SampleWriter::addReminders(InsertBatch& reminders, int documentId, const QDate& registered)
{
    const int count = m_random.between(1, 2);
    for (int k = 0; k < count; ++k)
        reminders.add({++m_reminderId, documentId, registered.addDays(m_random.between(3, 40)),
            m_random.pick(sampleReminders())});
}

bool registerIsEmpty(Connection& connection)
{
    for (const QString& table : Tables) {
        Recordset count;
        count.open(QStringLiteral("SELECT COUNT(*) AS N FROM ") + table, connection);
        if (count.fields(QStringLiteral("N")).value().toLongLong() != 0)
            return false;
    }
    return true;
}

} // namespace

QString sampleFilesFolder(const QString& registerPath)
{
    // A register on a server has no folder beside it: its files go into the current folder,
    // under the name of its database.
    if (isServerLocation(registerPath)) {
        QString database = QUrl(registerPath.trimmed()).path().section(u'/', -1);
        if (database.isEmpty())
            database = QStringLiteral("Kartella");
        return QDir::current().absoluteFilePath(database + QStringLiteral(" files"));
    }
    const QFileInfo info(registerPath);
    return info.absolutePath() + u'/' + info.completeBaseName() + QStringLiteral(" files");
}

void fillSampleRegister(const QString& registerPath, const SampleOptions& options)
{
    if (!options.today.isValid())
        throw Error(ErrorNumber::IllegalOperation,
            kartella::StoreText::tr("The sample needs a valid day to count back from."));
    const QString path
        = isServerLocation(registerPath) ? registerPath : QFileInfo(registerPath).absoluteFilePath();
    Connection connection;
    connection.open(plainConnectionString(JetProvider, path));
    if (!registerIsEmpty(connection))
        throw Error(ErrorNumber::IllegalOperation,
            kartella::StoreText::tr(
                "The register \"%1\" already holds data; a sample goes into an empty one.")
                .arg(path));

    SampleWriter writer(connection, options, sampleFilesFolder(path));
    connection.beginTrans();
    try {
        // A sample is no one's change: its rows come without history.
        pauseHistory(connection);
        writer.writeRows();
        resumeHistory(connection);
        connection.commitTrans();
    } catch (...) {
        connection.rollbackTrans();
        throw;
    }
    connection.close();

    // The files come after the rows are stored, so a failed fill leaves none behind.
    QStringList folders = writer.folders();
    folders.prepend(sampleFilesFolder(path));
    for (const QString& folder : std::as_const(folders)) {
        if (!QDir().mkpath(folder))
            throw Error(ErrorNumber::PathFileAccess,
                kartella::StoreText::tr("Can't create the folder \"%1\"").arg(folder));
    }
    for (const PendingFile& file : writer.files()) {
        if (!writeSampleFile(file.path, file.content))
            throw Error(ErrorNumber::PathFileAccess,
                kartella::StoreText::tr("Can't write the file \"%1\"").arg(file.path));
    }
}

} // namespace kartella
