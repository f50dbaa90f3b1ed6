#pragma once

#include <QString>

namespace kartella {

// What copyKeptFiles did: the files copied; when it could not copy them all, why (problem);
// when the new register has nowhere to keep them, where they stay (notice).
struct KeptFilesCopy
{
    int files = 0;
    QString problem;
    QString notice;
};

// Copies the files the register at `from` keeps beside its rows, its deleted items' files
// (trash folder) and its documents' earlier versions (versions folder), to where the register
// at `to` keeps them, so that the copy can restore and open them as the original can. Nothing
// is copied when the source has none, or both registers share the folders (two registers on
// servers with one shared folder). A file already at the target is left as it is. A register
// on a server without a shared folder has nowhere to keep them: notice says so.
KeptFilesCopy copyKeptFiles(const QString& from, const QString& to);

} // namespace kartella
