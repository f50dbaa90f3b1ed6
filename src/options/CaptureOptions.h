#pragma once

#include <QObject>
#include <QString>

namespace kartella {

// The options of files coming in, in the user's options key: the inbox folder, the scanner
// settings the scan window remembers, and the languages of text recognition. Each reads
// its option quietly (a missing options key gives the default), so that a background
// worker may call it.
//
//   InboxFolder      the folder whose files wait in the tree's Inbox node ("": no inbox)
//   ScanDevice       the SANE name of the scanner last used ("" : the first one found)
//   ScanSource       its source ("Flatbed", "Automatic Document Feeder", ...: the scanner's words)
//   ScanMode         its colour mode ("Color", "Gray", "Lineart", ...)
//   ScanResolution   dots per inch, default 300
//   OcrLanguages     Tesseract's languages joined by "+", default "lit+eng"

QString inboxFolder();
// Stores the folder and tells captureOptions() listeners.
void setInboxFolder(const QString& folder);

QString ocrLanguages();
void setOcrLanguages(const QString& languages);
inline const QString DefaultOcrLanguages = QStringLiteral("lit+eng");
inline QString defaultOcrLanguages()
{
    return DefaultOcrLanguages;
}

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

// Tells the windows of the program that the inbox folder was stored anew.
class CaptureOptionsNotifier : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void inboxFolderChanged();
};
CaptureOptionsNotifier& captureOptions();

} // namespace kartella
