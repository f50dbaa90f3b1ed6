#include "MdbSource.h"

#include "ToolText.h"
#include "base/Error.h"

#include <QFileInfo>

#include <iconv.h>
#include <mdbtools.h>
#include <memory>
#include <vector>

namespace kartella::tool {

namespace {

// Room for one bound value: a memo typed in a text box holds up to 64K characters, each up
// to four bytes once converted to UTF-8; mdbtools cuts a longer value to fit, so a value
// that fills the room is refused rather than taken cut.
constexpr size_t BindSize = 1024 * 1024;

bool knownCodePage(const QString& codePage)
{
    const iconv_t converter = iconv_open("UTF-8", codePage.toLatin1().constData());
    if (converter == iconv_t(-1))
        return false;
    iconv_close(converter);
    return true;
}

Error readError(const QString& path, const QString& what)
{
    return Error(ErrorNumber::PathFileAccess, ToolText::tr("Can't read \"%1\": %2").arg(path, what));
}

} // namespace

struct MdbSource::Handle
{
    MdbHandle* mdb = nullptr;
};

MdbSource::MdbSource(const QString& path, const QString& codePage)
    : m_handle(new Handle)
    , m_path(QFileInfo(path).absoluteFilePath())
{
    if (!QFileInfo(m_path).isFile()) {
        delete m_handle;
        throw Error(ErrorNumber::PathFileAccess, ToolText::tr("no file at \"%1\"").arg(m_path));
    }
    if (codePage.isEmpty() || !knownCodePage(codePage)) {
        delete m_handle;
        throw Error(ErrorNumber::IllegalOperation, ToolText::tr("unknown code page \"%1\"").arg(codePage));
    }
    // mdbtools reads the code page of a Jet 3 file from the environment when it opens it.
    qputenv("MDB_JET3_CHARSET", codePage.toLatin1());
    m_handle->mdb = mdb_open(QFile::encodeName(m_path).constData(), MDB_NOFLAGS);
    if (!m_handle->mdb) {
        delete m_handle;
        throw readError(m_path, ToolText::tr("it is not a Jet (Access) database"));
    }
    mdb_set_bind_size(m_handle->mdb, BindSize);
    mdb_set_date_fmt(m_handle->mdb, "%Y-%m-%d %H:%M:%S");
    mdb_set_shortdate_fmt(m_handle->mdb, "%Y-%m-%d %H:%M:%S");
    mdb_set_boolean_fmt_numbers(m_handle->mdb);
    if (!mdb_read_catalog(m_handle->mdb, MDB_TABLE)) {
        mdb_close(m_handle->mdb);
        delete m_handle;
        throw readError(m_path, ToolText::tr("its list of tables is unreadable"));
    }
}

MdbSource::~MdbSource()
{
    mdb_close(m_handle->mdb);
    delete m_handle;
}

QString MdbSource::version() const
{
    switch (m_handle->mdb->f->jet_version) {
    case MDB_VER_JET3:
        return QStringLiteral("Jet 3");
    case MDB_VER_JET4:
        return QStringLiteral("Jet 4");
    default:
        return ToolText::tr("Access 2007 or later");
    }
}

QStringList MdbSource::tableNames()
{
    QStringList names;
    MdbHandle* mdb = m_handle->mdb;
    for (unsigned int i = 0; i < mdb->num_catalog; ++i) {
        auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb->catalog, i));
        if (entry->object_type == MDB_TABLE && mdb_is_user_table(entry))
            names << QString::fromUtf8(entry->object_name);
    }
    return names;
}

std::optional<migration::SourceTable> MdbSource::readTable(const QString& name)
{
    MdbHandle* mdb = m_handle->mdb;
    MdbCatalogEntry* found = nullptr;
    for (unsigned int i = 0; i < mdb->num_catalog && !found; ++i) {
        auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb->catalog, i));
        if (entry->object_type == MDB_TABLE && mdb_is_user_table(entry)
            && QString::fromUtf8(entry->object_name).compare(name, Qt::CaseInsensitive) == 0)
            found = entry;
    }
    if (!found)
        return std::nullopt;

    const std::unique_ptr<MdbTableDef, decltype(&mdb_free_tabledef)> table(
        mdb_read_table(found), &mdb_free_tabledef);
    if (!table || !mdb_read_columns(table.get()) || mdb_rewind_table(table.get()) != 0)
        throw readError(m_path, ToolText::tr("the table %1 is unreadable").arg(name));

    migration::SourceTable result;
    result.name = QString::fromUtf8(table->name);
    result.statedRows = int(table->num_rows);
    const unsigned int columnCount = table->num_cols;
    std::vector<std::vector<char>> buffers(columnCount, std::vector<char>(BindSize));
    std::vector<int> lengths(columnCount, 0);
    std::vector<int> types(columnCount, 0);
    for (unsigned int i = 0; i < columnCount; ++i) {
        auto* column = static_cast<MdbColumn*>(g_ptr_array_index(table->columns, i));
        result.columns << QString::fromUtf8(column->name);
        types[i] = column->col_type;
        mdb_bind_column(table.get(), int(i) + 1, buffers[i].data(), &lengths[i]);
    }
    while (mdb_fetch_row(table.get())) {
        QVariantList row;
        for (unsigned int i = 0; i < columnCount; ++i) {
            // A truth value is never Null in Jet; mdbtools gives no bytes for Null otherwise.
            if (lengths[i] == 0 && types[i] != MDB_BOOL)
                row << QVariant();
            else if (size_t(lengths[i]) + 1 >= BindSize)
                throw readError(m_path,
                    ToolText::tr("a value of %1 is too long to be read whole")
                        .arg(result.name + u'.' + result.columns.at(int(i))));
            else
                row << QString::fromUtf8(buffers[i].data(), lengths[i]);
        }
        result.rows << row;
    }
    return result;
}

} // namespace kartella::tool
