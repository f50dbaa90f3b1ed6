#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kartella {

// A small sectioned text file of "name=value" lines, the form the options and the ini
// file take where there is no registry. Names and sections are compared without regard
// to case; values are kept exactly, leading blanks and backslashes included (only a value with a
// line break is written in an escaped form, @Lines(...)). A value in double quotes, as people
// write them by hand, reads as the text between the quotes. Lines the file holds besides ours
// are kept.
class SectionFile
{
public:
    enum class Status { Ok, Missing, Unreadable };

    // Reads path into this object. Missing: no such file (the object is empty);
    // Unreadable: the file is there but can't be read.
    Status load(const QString& path);
    // Writes the whole file at once; false when the file system refuses.
    bool save(const QString& path) const;

    std::optional<QString> value(const QString& section, const QString& name) const;
    void setValue(const QString& section, const QString& name, const QString& value);

private:
    QStringList m_lines;
};

} // namespace kartella
