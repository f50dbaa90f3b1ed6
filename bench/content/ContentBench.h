#pragma once

#include <QString>
#include <QTextStream>

namespace kartella::bench {

// One part of kartella-bench-content: prints its figures as "name: value" lines to out,
// working in folder (a temporary folder of the run).
using BenchPart = void (*)(const QString& folder, QTextStream& out);

// Reading files: index_pdf_per_s, index_docx_per_s, index_doc_per_s, max_ui_stall_ms.
void benchReading(const QString& folder, QTextStream& out);

} // namespace kartella::bench
