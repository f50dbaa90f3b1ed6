#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

namespace kartella::test {

// A page of printed text as a scanner would give it: paragraphs in a serif face at
// pointSize, black on white, in shades of grey, at dotsPerInch, on a page of the size given
// in millimetres (A4 by default).
QImage renderTextPage(
    const QString& text, int dotsPerInch, const QSizeF& millimetres = QSizeF(210, 297), int pointSize = 12);

// A page of plain Lithuanian prose, every letter of its alphabet in it.
QString lithuanianPage();

// The share of expected's words found in read, each as many times as it occurs (order
// and punctuation aside): 1 when every word was read back.
double wordAccuracy(const QString& expected, const QString& read);

} // namespace kartella::test
