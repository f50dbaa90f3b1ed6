#pragma once

#include <QString>
#include <QTextStream>

namespace kartella::bench {

// One part of kartella-bench-content: prints its figures as "name: value" lines to out,
// working in folder (a temporary folder of the run).
using BenchPart = void (*)(const QString& folder, QTextStream& out);

// Reading files: index_pdf_per_s, index_docx_per_s, index_doc_per_s, max_ui_stall_ms.
void benchReading(const QString& folder, QTextStream& out);
// Searching the words of the files over a register of 100,000 documents (--documents N),
// made once and kept in the build folder: content_search_p50_ms, _p90_ms, _max_ms.
void benchSearch(const QString& folder, QTextStream& out);
// The preview pane, from a selection to the first page of a 20-page PDF painted:
// preview_pdf_ms (median) and preview_pdf_max_ms.
void benchPreview(const QString& folder, QTextStream& out);

} // namespace kartella::bench
