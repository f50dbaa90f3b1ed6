#pragma once

#include <QString>

namespace kartella::bench {

// Makes a register at path with the given number of documents, a few thousand contacts
// and some dozens of categories, written in one transaction. About one document in ten
// has no contact.
void buildRegister(const QString& path, int documents);

} // namespace kartella::bench
