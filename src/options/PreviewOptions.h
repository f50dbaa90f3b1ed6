#pragma once

#include <QtGlobal>

namespace kartella {

// The preview pane's options, in the user's options key.

// Whether View > Preview Pane is on ("PreviewPane", 1 or 0; off when unset).
bool previewPaneShown();
void setPreviewPaneShown(bool shown);

// The most the converted PDFs and thumbnails of the preview cache may take on disk
// ("PreviewCacheMB", in megabytes, 1 to 100 000; 500 when unset or unreadable).
qint64 previewCacheLimitBytes();
constexpr int DefaultPreviewCacheMb = 500;

} // namespace kartella
