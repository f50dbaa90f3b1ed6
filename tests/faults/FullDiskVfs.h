#pragma once

#include <QtGlobal>

namespace kartella::test {

// A disk that fills up, for SQLite: a VFS over the default one, made the default while an
// object lives, so that every connection the program opens writes through it. Once armed
// with a budget, files may grow by that many bytes in all (database, journal and temporary
// files alike); a write that would grow one further fails with SQLITE_FULL, as on a full
// disk, while writes within a file's size go through. Disarmed, it only passes calls on.
class FullDiskVfs
{
public:
    FullDiskVfs();
    ~FullDiskVfs();
    FullDiskVfs(const FullDiskVfs&) = delete;
    FullDiskVfs& operator=(const FullDiskVfs&) = delete;

    void arm(qint64 budgetBytes);
    void disarm();
    // Bytes that files grew by since the last arm or disarm.
    qint64 written() const;
    // Whether a write was refused since the last arm.
    bool refused() const;
};

} // namespace kartella::test
