#include "explorer/SearchBox.h"

#include <QKeyEvent>
#include <QTimer>

namespace kartella {

SearchBox::SearchBox(QWidget* parent)
    : QLineEdit(parent)
{
    setObjectName(QStringLiteral("txtSearch"));
    setPlaceholderText(tr("Search documents"));
    setAccessibleName(tr("Search documents"));
    setToolTip(tr("Search documents (Ctrl+F); Esc clears"));
    setClearButtonEnabled(true);
    setMinimumWidth(200);
    m_pause = new QTimer(this);
    m_pause->setSingleShot(true);
    m_pause->setInterval(TypingPause);
    connect(m_pause, &QTimer::timeout, this, &SearchBox::requestNow);
    connect(this, &QLineEdit::textEdited, this, &SearchBox::onTextEdited);
    connect(this, &QLineEdit::returnPressed, this, &SearchBox::requestNow);
}

void SearchBox::clearQuietly()
{
    m_pause->stop();
    clear();
}

void SearchBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
        requestNow();
        event->accept();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void SearchBox::onTextEdited(const QString& text)
{
    // An emptied box (clear button, last character deleted) goes back at once.
    if (text.trimmed().isEmpty())
        requestNow();
    else
        m_pause->start();
}

void SearchBox::requestNow()
{
    m_pause->stop();
    Q_EMIT searchRequested(text());
}

} // namespace kartella
