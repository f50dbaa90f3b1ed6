#pragma once

#include "store/migration/SourceDatabase.h"

#include <QString>

namespace kartella::tool {

// A Jet (.mdb) file read through mdbtools. Jet 4 files hold their text as Unicode; the
// text of a Jet 3 file is read in the given code page (an iconv name such as "CP1257").
class MdbSource final : public migration::SourceDatabase
{
public:
    // Throws kartella::Error when the file can't be opened as a Jet database or the code
    // page is unknown.
    MdbSource(const QString& path, const QString& codePage);
    ~MdbSource() override;
    MdbSource(const MdbSource&) = delete;
    MdbSource& operator=(const MdbSource&) = delete;

    // "Jet 3", "Jet 4", ...
    QString version() const;
    QStringList tableNames() override;
    std::optional<migration::SourceTable> readTable(const QString& name) override;

private:
    struct Handle;
    Handle* m_handle;
    QString m_path;
};

} // namespace kartella::tool
