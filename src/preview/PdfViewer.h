#pragma once

#include <QWidget>

class QLabel;
class QPdfDocument;
class QPdfView;
class QToolButton;

namespace kartella {

// A PDF's pages one under another, fitted to the width: a bar above them zooms out and in
// (Ctrl+minus and Ctrl+plus on the pages too) and shows "Page 3 of 20" for the page in view;
// Home and End go to the first and the last page.
class PdfViewer : public QWidget
{
    Q_OBJECT

public:
    explicit PdfViewer(QWidget* parent = nullptr);
    ~PdfViewer() override;

    // Shows document (taking it over), at the first page; nullptr shows nothing.
    void setDocument(std::unique_ptr<QPdfDocument> document);
    QPdfDocument* document() const { return m_document.get(); }
    QPdfView* view() const { return m_view; }
    QString pageText() const;

    // The factor the pages are shown at (1: their printed size).
    qreal zoom() const;
    void zoomIn();
    void zoomOut();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showPage();
    // The page in view (from 0).
    int pageInView() const;
    void setZoom(qreal factor);

    std::unique_ptr<QPdfDocument> m_document;
    QPdfView* m_view;
    QToolButton* m_zoomOut;
    QToolButton* m_zoomIn;
    QLabel* m_page;
};

} // namespace kartella
