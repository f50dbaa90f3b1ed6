#pragma once

#include "preview/PreviewCache.h"
#include "preview/PreviewContent.h"

#include <QThreadPool>
#include <QTimer>
#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QStackedWidget;

namespace kartella {

class FittedImage;
class PdfConverter;
class PdfViewer;

// The preview pane beside the document list: the selected document's file as PDF pages,
// an image, text, or, for any other kind, its icon, name and size. Office files show as the
// PDF LibreOffice makes of them, kept in the preview cache. Files are read on worker
// threads and conversions run in the background: a new file asked for drops whatever was
// under way for the one before, and a result that comes late is thrown away. The viewer
// showing is the pane's focus proxy and is named "Preview" for assistive technology.
class PreviewPane : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewPane(QWidget* parent = nullptr);
    ~PreviewPane() override;

    // Shows the file at path; an empty path empties the pane. Returns at once: the file is
    // read once the event loop runs, and a later call before that replaces this one.
    void showFile(const QString& path);

    // The file on show (or being read or converted) and its kind; Nothing while empty.
    QString shownPath() const { return m_shown; }
    PreviewKind shownKind() const { return m_kind; }
    // Whether the file asked for last is still being read or converted.
    bool isBusy() const { return m_busy; }
    // The message of a file shown as its name and size, or of one that can't be shown.
    QString message() const;
    // The viewer showing (the pane's focus proxy).
    QWidget* viewer() const;
    PdfViewer* pdfViewer() const { return m_pdf; }
    QPlainTextEdit* textViewer() const { return m_text; }
    // The image on show, at its full size as read.
    QImage image() const;

    // Installs the converter of Office files (the pane takes it over).
    void setConverter(PdfConverter* converter);
    PdfConverter* converter() const { return m_converter; }
    PreviewCache& cache() { return m_cache; }

Q_SIGNALS:
    // The file asked for last is on show, as its preview or its message.
    void shown(const QString& path);

private:
    void loadWanted();
    void readInBackground(const QString& path, bool converted);
    void onRead(quint64 generation, bool converted, PreviewContent content);
    void onConverted(const QString& source, const QString& pdf, const QString& failure);
    void showInfo(const QString& path, const QString& message, bool withIcon);
    void showPage(QWidget* page);
    void finish();

    QStackedWidget* m_pages;
    QLabel* m_empty;
    PdfViewer* m_pdf;
    FittedImage* m_image;
    QPlainTextEdit* m_text;
    QWidget* m_info;
    QLabel* m_infoIcon;
    QLabel* m_infoName;
    QLabel* m_infoSize;
    QLabel* m_infoMessage;
    PdfConverter* m_converter = nullptr;
    PreviewCache m_cache;
    QThreadPool m_readers;
    QTimer m_settle;
    QString m_wanted;
    QString m_shown;
    PreviewKind m_kind = PreviewKind::Nothing;
    quint64 m_generation = 0;
    bool m_busy = false;
};

} // namespace kartella
