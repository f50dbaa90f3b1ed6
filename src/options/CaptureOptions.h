#pragma once

#include <QString>

namespace kartella {

// The scanner settings the scan window remembers, and the languages of text recognition.
// Each reads its option quietly (a missing options key gives the default), so that a
// background worker may call it.
//
//   ScanDevice       the SANE name of the scanner last used ("" : the first one found)
//   ScanSource       its source ("Flatbed", "Automatic Document Feeder", ...: the scanner's words)
//   ScanMode         its colour mode ("Color", "Gray", "Lineart", ...)
//   ScanResolution   dots per inch, default 300
//   OcrLanguages     Tesseract's languages joined by "+", default "lit+eng"
struct ScanSettings
{
    QString device;
    QString source;
    QString mode;
    int resolution = 300;
};

inline constexpr int DefaultScanResolution = 300;

ScanSettings scanSettings();
// Writes the four options (a missing options key keeps nothing, silently).
void saveScanSettings(const ScanSettings& settings);

QString ocrLanguages();
QString defaultOcrLanguages(); // "lit+eng"

} // namespace kartella
