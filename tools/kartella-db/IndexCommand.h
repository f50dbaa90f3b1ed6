#pragma once

#include <QString>
#include <QTextStream>

namespace kartella::tool {

// Reads the text of the files of the register at path that changed since they were last
// read (see TextIndexer), the size limit taken from the options. The progress goes to
// progress as one line written over ("Reading files: 120 of 3 400"), then a summary to out:
// the files read, unchanged, without text, needing OCR, and those not read by reason.
// Throws kartella::Error when the register can't be opened.
void indexCommand(const QString& path, QTextStream& out, QTextStream& progress);

} // namespace kartella::tool
