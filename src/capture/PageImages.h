#pragma once

#include <QImage>
#include <QString>

namespace kartella {

// The pages of a file as images, for text recognition: a PDF's pages rendered by Poppler,
// an image file's frames (a TIFF may hold several) as Qt reads them.

// png, jpg, jpeg, tif, tiff (lower case, no dot).
bool isPageImageExtension(const QString& extension);
bool isPagedFile(const QString& path); // a PDF or an image of the kinds above

inline constexpr int RecognitionDotsPerInch = 300;

// How many pages path has. Throws kartella::Error with the reason a user reads (the
// content readers' "damaged", "password-protected", "file not found").
int pageCount(const QString& path);

// Page index (0-based) of path: a PDF page rendered at dotsPerInch in shades of grey; an
// image as it is. Throws kartella::Error as pageCount does.
QImage pageImage(const QString& path, int index, int dotsPerInch = RecognitionDotsPerInch);
// The resolution a page image was made for: dotsPerInch for a PDF, the image's own
// (or dotsPerInch when it names none).
int pageResolution(const QImage& page, int dotsPerInch = RecognitionDotsPerInch);

} // namespace kartella
