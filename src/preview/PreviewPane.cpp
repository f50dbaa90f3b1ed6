#include "preview/PreviewPane.h"

#include "options/PreviewOptions.h"
#include "preview/PdfConverter.h"
#include "preview/PdfViewer.h"

#include <QApplication>
#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPdfDocument>
#include <QPdfView>
#include <QPlainTextEdit>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace kartella {

// An image drawn as large as fits the widget, never larger than it is, in the middle.
class FittedImage : public QWidget
{
public:
    using QWidget::QWidget;

    void setImage(const QImage& image)
    {
        m_image = image;
        update();
    }
    const QImage& image() const { return m_image; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        if (m_image.isNull())
            return;
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const QSize size = m_image.size().boundedTo(this->size()) == m_image.size()
            ? m_image.size()
            : m_image.size().scaled(this->size(), Qt::KeepAspectRatio);
        const QRect target(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
        painter.drawImage(target, m_image);
    }

private:
    QImage m_image;
};

namespace {

const QString ViewerName = QStringLiteral("Preview");

template<typename Widget>
Widget* viewerWidget(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    widget->setAccessibleName(ViewerName);
    widget->setFocusPolicy(Qt::StrongFocus);
    return widget;
}

} // namespace

PreviewPane::PreviewPane(QWidget* parent)
    : QWidget(parent)
    , m_pages(new QStackedWidget(this))
    , m_empty(viewerWidget(new QLabel(this), "emptyPreview"))
    , m_pdf(new PdfViewer(this))
    , m_image(viewerWidget(new FittedImage(this), "imagePreview"))
    , m_text(viewerWidget(new QPlainTextEdit(this), "textPreview"))
    , m_info(viewerWidget(new QWidget(this), "filePreview"))
    , m_infoIcon(new QLabel(m_info))
    , m_infoName(new QLabel(m_info))
    , m_infoSize(new QLabel(m_info))
    , m_infoMessage(new QLabel(m_info))
    , m_cache(PreviewCache::defaultFolder(), previewCacheLimitBytes())
{
    setObjectName(QStringLiteral("PreviewPane"));
    m_text->setReadOnly(true);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->setLineWrapMode(QPlainTextEdit::WidgetWidth);

    auto* info = new QVBoxLayout(m_info);
    info->addStretch(1);
    for (QLabel* label : {m_infoIcon, m_infoName, m_infoSize, m_infoMessage}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        info->addWidget(label);
    }
    info->addStretch(1);
    m_infoName->setObjectName(QStringLiteral("lblPreviewName"));
    m_infoSize->setObjectName(QStringLiteral("lblPreviewSize"));
    m_infoMessage->setObjectName(QStringLiteral("lblPreviewMessage"));
    m_infoName->setTextFormat(Qt::PlainText);
    QFont bold = m_infoName->font();
    bold.setBold(true);
    m_infoName->setFont(bold);

    for (QWidget* page : {static_cast<QWidget*>(m_empty), static_cast<QWidget*>(m_pdf),
             static_cast<QWidget*>(m_image), static_cast<QWidget*>(m_text), m_info})
        m_pages->addWidget(page);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pages);
    showPage(m_empty);

    m_settle.setSingleShot(true);
    m_settle.setInterval(0);
    connect(&m_settle, &QTimer::timeout, this, &PreviewPane::loadWanted);
    m_readers.setMaxThreadCount(2);
    setConverter(new LibreOfficeConverter(m_cache.folder() + QStringLiteral("/office-profile")));
}

PreviewPane::~PreviewPane()
{
    m_converter->abandon();
    // Nothing read for the pane may arrive after it is gone.
    m_readers.clear();
    m_readers.waitForDone();
}

void PreviewPane::setConverter(PdfConverter* converter)
{
    if (m_converter) {
        m_converter->abandon();
        delete m_converter;
    }
    m_converter = converter;
    m_converter->setParent(this);
    connect(m_converter, &PdfConverter::finished, this, &PreviewPane::onConverted);
}

void PreviewPane::showFile(const QString& path)
{
    m_wanted = path;
    m_settle.start();
}

void PreviewPane::loadWanted()
{
    if (m_wanted == m_shown)
        return;
    ++m_generation;
    m_converter->abandon();
    m_shown = m_wanted;
    m_kind = PreviewKind::Nothing;
    m_pdf->setDocument(nullptr);
    m_image->setImage({});
    m_text->clear();
    showPage(m_empty);
    if (m_shown.isEmpty()) {
        m_busy = false;
        Q_EMIT shown(m_shown);
        return;
    }
    m_busy = true;
    readInBackground(m_shown, false);
}

void PreviewPane::readInBackground(const QString& path, bool converted)
{
    const quint64 generation = m_generation;
    const PreviewCache cache = m_cache;
    QThread* owner = thread();
    m_readers.start([this, path, converted, generation, cache, owner] {
        auto content = std::make_shared<PreviewContent>();
        if (converted) {
            content->kind = PreviewKind::Office;
            content->convertedPdf = path;
            content->pdf = loadPdf(path, owner, &content->failure);
        } else {
            *content = readPreview(path, cache, owner);
        }
        QMetaObject::invokeMethod(
            this,
            [this, generation, converted, content] { onRead(generation, converted, std::move(*content)); },
            Qt::QueuedConnection);
    });
}

void PreviewPane::onRead(quint64 generation, bool converted, PreviewContent content)
{
    if (generation != m_generation)
        return;
    if (converted) {
        // The PDF made of the file on show: the rest of what is known stays.
        content.path = m_shown;
        content.name = QFileInfo(m_shown).fileName();
    }
    m_kind = content.kind;
    if (!content.failure.isEmpty()) {
        showInfo(content.path, content.failure, true);
        finish();
        return;
    }
    switch (content.kind) {
    case PreviewKind::Missing:
        showInfo(content.path,
            tr("File not found. It is no longer in its folder:\n")
                + QDir::toNativeSeparators(QFileInfo(content.path).absolutePath()),
            false);
        break;
    case PreviewKind::Pdf:
        m_pdf->setDocument(std::move(content.pdf));
        showPage(m_pdf);
        break;
    case PreviewKind::Office:
        if (content.pdf) {
            m_pdf->setDocument(std::move(content.pdf));
            showPage(m_pdf);
            break;
        }
        showInfo(content.path, tr("Making a preview of the document…"), true);
        m_converter->convert(content.path);
        return;
    case PreviewKind::Image:
        m_image->setImage(content.image);
        showPage(m_image);
        break;
    case PreviewKind::Text:
        m_text->setPlainText(content.textCut ? content.text + QStringLiteral("\n…") : content.text);
        showPage(m_text);
        break;
    default:
        showInfo(content.path, tr("No preview for this kind of file"), true);
        break;
    }
    finish();
}

void PreviewPane::onConverted(const QString& source, const QString& pdf, const QString& failure)
{
    if (source != m_shown || m_kind != PreviewKind::Office) {
        if (!pdf.isEmpty())
            QFile::remove(pdf);
        return;
    }
    if (pdf.isEmpty()) {
        showInfo(source, tr("No preview: ") + failure, true);
        finish();
        return;
    }
    m_cache.setLimitBytes(previewCacheLimitBytes());
    const QString entry = m_cache.store(pdf, QFileInfo(source), QStringLiteral("pdf"));
    if (entry.isEmpty()) {
        QFile::remove(pdf);
        showInfo(source,
            tr("No preview: the converted document can't be kept in ")
                + QDir::toNativeSeparators(m_cache.folder()),
            true);
        finish();
        return;
    }
    readInBackground(entry, true);
}

void PreviewPane::showInfo(const QString& path, const QString& message, bool withIcon)
{
    const QFileInfo file(path);
    m_infoIcon->setPixmap(withIcon ? QFileIconProvider().icon(file).pixmap(64, 64) : QPixmap());
    m_infoIcon->setVisible(withIcon);
    m_infoName->setText(file.fileName());
    m_infoSize->setText(withIcon && file.exists() ? QLocale().formattedDataSize(file.size()) : QString());
    m_infoMessage->setText(message);
    m_info->setAccessibleDescription(file.fileName() + u' ' + message);
    showPage(m_info);
}

void PreviewPane::showPage(QWidget* page)
{
    QWidget* current = m_pages->currentWidget();
    const QWidget* focused = QApplication::focusWidget();
    const bool hadFocus = current && focused && (current == focused || current->isAncestorOf(focused));
    m_pages->setCurrentWidget(page);
    setFocusProxy(page);
    if (hadFocus)
        page->setFocus();
}

void PreviewPane::finish()
{
    m_busy = false;
    Q_EMIT shown(m_shown);
}

QString PreviewPane::message() const
{
    return m_pages->currentWidget() == m_info ? m_infoMessage->text() : QString();
}

QWidget* PreviewPane::viewer() const
{
    return m_pages->currentWidget() == m_pdf ? static_cast<QWidget*>(m_pdf->view())
                                             : m_pages->currentWidget();
}

QImage PreviewPane::image() const
{
    return m_image->image();
}

} // namespace kartella
