#include "faults/FullDiskVfs.h"

#include <algorithm>
#include <cstring>
#include <sqlite3.h>

namespace kartella::test {

namespace {

sqlite3_vfs* g_base = nullptr;
sqlite3_vfs g_vfs;
bool g_armed = false;
bool g_refused = false;
qint64 g_budget = 0;
qint64 g_written = 0;

// The shim's file: its own header, then the base VFS's file in the same allocation.
struct ShimFile
{
    sqlite3_file header;
    sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* real(sqlite3_file* file)
{
    return reinterpret_cast<ShimFile*>(file)->real();
}

int shimClose(sqlite3_file* file)
{
    sqlite3_file* inner = real(file);
    return inner->pMethods ? inner->pMethods->xClose(inner) : SQLITE_OK;
}
int shimRead(sqlite3_file* file, void* buffer, int amount, sqlite3_int64 offset)
{
    return real(file)->pMethods->xRead(real(file), buffer, amount, offset);
}
int shimWrite(sqlite3_file* file, const void* buffer, int amount, sqlite3_int64 offset)
{
    // Only the bytes that grow a file take space: overwriting a page (a rollback) does not.
    sqlite3_int64 size = 0;
    if (real(file)->pMethods->xFileSize(real(file), &size) != SQLITE_OK)
        size = 0;
    const qint64 growth = std::max<qint64>(0, offset + amount - size);
    if (g_armed && g_written + growth > g_budget) {
        g_refused = true;
        return SQLITE_FULL;
    }
    g_written += growth;
    return real(file)->pMethods->xWrite(real(file), buffer, amount, offset);
}
int shimTruncate(sqlite3_file* file, sqlite3_int64 size)
{
    return real(file)->pMethods->xTruncate(real(file), size);
}
int shimSync(sqlite3_file* file, int flags)
{
    return real(file)->pMethods->xSync(real(file), flags);
}
int shimFileSize(sqlite3_file* file, sqlite3_int64* size)
{
    return real(file)->pMethods->xFileSize(real(file), size);
}
int shimLock(sqlite3_file* file, int lock)
{
    return real(file)->pMethods->xLock(real(file), lock);
}
int shimUnlock(sqlite3_file* file, int lock)
{
    return real(file)->pMethods->xUnlock(real(file), lock);
}
int shimCheckReservedLock(sqlite3_file* file, int* out)
{
    return real(file)->pMethods->xCheckReservedLock(real(file), out);
}
int shimFileControl(sqlite3_file* file, int op, void* argument)
{
    // The size hint grows the file in one go; a full disk refuses that too.
    if (op == SQLITE_FCNTL_SIZE_HINT && g_armed && g_written >= g_budget)
        return SQLITE_FULL;
    return real(file)->pMethods->xFileControl(real(file), op, argument);
}
int shimSectorSize(sqlite3_file* file)
{
    return real(file)->pMethods->xSectorSize(real(file));
}
int shimDeviceCharacteristics(sqlite3_file* file)
{
    return real(file)->pMethods->xDeviceCharacteristics(real(file));
}
int shimShmMap(sqlite3_file* file, int page, int size, int extend, void volatile** memory)
{
    return real(file)->pMethods->xShmMap(real(file), page, size, extend, memory);
}
int shimShmLock(sqlite3_file* file, int offset, int n, int flags)
{
    return real(file)->pMethods->xShmLock(real(file), offset, n, flags);
}
void shimShmBarrier(sqlite3_file* file)
{
    real(file)->pMethods->xShmBarrier(real(file));
}
int shimShmUnmap(sqlite3_file* file, int deleteFlag)
{
    return real(file)->pMethods->xShmUnmap(real(file), deleteFlag);
}
int shimFetch(sqlite3_file* file, sqlite3_int64 offset, int amount, void** page)
{
    // No memory-mapped pages: every write goes through xWrite.
    *page = nullptr;
    (void)file;
    (void)offset;
    (void)amount;
    return SQLITE_OK;
}
int shimUnfetch(sqlite3_file* file, sqlite3_int64 offset, void* page)
{
    (void)file;
    (void)offset;
    (void)page;
    return SQLITE_OK;
}

const sqlite3_io_methods g_methods = {3, shimClose, shimRead, shimWrite, shimTruncate, shimSync, shimFileSize,
    shimLock, shimUnlock, shimCheckReservedLock, shimFileControl, shimSectorSize, shimDeviceCharacteristics,
    shimShmMap, shimShmLock, shimShmBarrier, shimShmUnmap, shimFetch, shimUnfetch};

int shimOpen(sqlite3_vfs*, sqlite3_filename name, sqlite3_file* file, int flags, int* outFlags)
{
    auto* shim = reinterpret_cast<ShimFile*>(file);
    std::memset(shim->real(), 0, size_t(g_base->szOsFile));
    const int code = g_base->xOpen(g_base, name, shim->real(), flags, outFlags);
    file->pMethods = shim->real()->pMethods ? &g_methods : nullptr;
    return code;
}
int shimDelete(sqlite3_vfs*, const char* name, int syncDir)
{
    return g_base->xDelete(g_base, name, syncDir);
}
int shimAccess(sqlite3_vfs*, const char* name, int flags, int* out)
{
    return g_base->xAccess(g_base, name, flags, out);
}
int shimFullPathname(sqlite3_vfs*, const char* name, int size, char* out)
{
    return g_base->xFullPathname(g_base, name, size, out);
}
void* shimDlOpen(sqlite3_vfs*, const char* name)
{
    return g_base->xDlOpen(g_base, name);
}
void shimDlError(sqlite3_vfs*, int size, char* out)
{
    g_base->xDlError(g_base, size, out);
}
void (*shimDlSym(sqlite3_vfs*, void* handle, const char* symbol))(void)
{
    return g_base->xDlSym(g_base, handle, symbol);
}
void shimDlClose(sqlite3_vfs*, void* handle)
{
    g_base->xDlClose(g_base, handle);
}
int shimRandomness(sqlite3_vfs*, int size, char* out)
{
    return g_base->xRandomness(g_base, size, out);
}
int shimSleep(sqlite3_vfs*, int microseconds)
{
    return g_base->xSleep(g_base, microseconds);
}
int shimCurrentTime(sqlite3_vfs*, double* now)
{
    return g_base->xCurrentTime(g_base, now);
}
int shimGetLastError(sqlite3_vfs*, int size, char* out)
{
    return g_base->xGetLastError ? g_base->xGetLastError(g_base, size, out) : 0;
}
int shimCurrentTimeInt64(sqlite3_vfs*, sqlite3_int64* now)
{
    return g_base->xCurrentTimeInt64(g_base, now);
}

} // namespace

FullDiskVfs::FullDiskVfs()
{
    sqlite3_initialize();
    g_base = sqlite3_vfs_find(nullptr);
    std::memset(&g_vfs, 0, sizeof g_vfs);
    g_vfs.iVersion = 2;
    g_vfs.szOsFile = int(sizeof(ShimFile)) + g_base->szOsFile;
    g_vfs.mxPathname = g_base->mxPathname;
    g_vfs.zName = "kartella-full-disk";
    g_vfs.xOpen = shimOpen;
    g_vfs.xDelete = shimDelete;
    g_vfs.xAccess = shimAccess;
    g_vfs.xFullPathname = shimFullPathname;
    g_vfs.xDlOpen = shimDlOpen;
    g_vfs.xDlError = shimDlError;
    g_vfs.xDlSym = shimDlSym;
    g_vfs.xDlClose = shimDlClose;
    g_vfs.xRandomness = shimRandomness;
    g_vfs.xSleep = shimSleep;
    g_vfs.xCurrentTime = shimCurrentTime;
    g_vfs.xGetLastError = shimGetLastError;
    g_vfs.xCurrentTimeInt64 = shimCurrentTimeInt64;
    sqlite3_vfs_register(&g_vfs, 1);
}

FullDiskVfs::~FullDiskVfs()
{
    disarm();
    sqlite3_vfs_unregister(&g_vfs);
}

void FullDiskVfs::arm(qint64 budgetBytes)
{
    g_budget = budgetBytes;
    g_written = 0;
    g_refused = false;
    g_armed = true;
}

void FullDiskVfs::disarm()
{
    g_armed = false;
    g_written = 0;
}

qint64 FullDiskVfs::written() const
{
    return g_written;
}

bool FullDiskVfs::refused() const
{
    return g_refused;
}

} // namespace kartella::test
