#pragma once

#include <QWidget>

class QDialog;
class QLineEdit;

namespace kartella {

// The settings' "Incoming Files" tab: the inbox folder (empty: no inbox) and the languages
// OCR reads. Both are stored when the settings dialog is accepted; a folder that isn't there
// or languages not in Tesseract's form ("lit+eng") are told and not stored.
class CaptureSettingsPage : public QWidget
{
    Q_OBJECT

public:
    explicit CaptureSettingsPage(QDialog* dialog);

    // Whether text names OCR languages as Tesseract takes them: codes of letters, digits and
    // "_", joined by "+".
    static bool validOcrLanguages(const QString& text);

public Q_SLOTS:
    void chooseInboxFolder();
    void store();

private:
    QLineEdit* m_inboxFolder = nullptr;
    QLineEdit* m_ocrLanguages = nullptr;
};

} // namespace kartella
