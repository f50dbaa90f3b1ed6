#pragma once

#include <QObject>
#include <QString>

namespace kartella {

// The options of files coming in, in the user's options key.

// The folder whose files wait in the tree's Inbox node ("InboxFolder"); empty: no inbox.
QString inboxFolder();
// Stores the folder and tells captureOptions() listeners.
void setInboxFolder(const QString& folder);

// The languages OCR reads, in Tesseract's form: codes joined by "+" ("OcrLanguages";
// "lit+eng" when unset or blank).
QString ocrLanguages();
void setOcrLanguages(const QString& languages);
inline const QString DefaultOcrLanguages = QStringLiteral("lit+eng");

// Tells the windows of the program that the inbox folder was stored anew.
class CaptureOptionsNotifier : public QObject
{
    Q_OBJECT

Q_SIGNALS:
    void inboxFolderChanged();
};
CaptureOptionsNotifier& captureOptions();

} // namespace kartella
