#include "addressbook/LimitedTextEdit.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextCursor>

namespace kartella {

LimitedTextEdit::LimitedTextEdit(QWidget* parent)
    : QPlainTextEdit(parent)
{ }

bool LimitedTextEdit::fits(const QString& text) const
{
    if (m_limit <= 0 || text.isEmpty())
        return true;
    const QTextCursor cursor = textCursor();
    const qsizetype length = toPlainText().size();
    const qsizetype after = length - (cursor.selectionEnd() - cursor.selectionStart()) + text.size();
    return after <= m_limit || after <= length;
}

void LimitedTextEdit::keyPressEvent(QKeyEvent* event)
{
    // Keys that write text write it as typed; the others (moves, deletes, shortcuts) pass.
    const QString text = event->text();
    const bool writes = !text.isEmpty() && text.at(0).isPrint()
        && !(event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier));
    if (writes && !fits(text)) {
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void LimitedTextEdit::inputMethodEvent(QInputMethodEvent* event)
{
    if (!fits(event->commitString())) {
        // The composition ends without adding its text.
        QInputMethodEvent dropped;
        QPlainTextEdit::inputMethodEvent(&dropped);
        event->accept();
        return;
    }
    QPlainTextEdit::inputMethodEvent(event);
}

void LimitedTextEdit::insertFromMimeData(const QMimeData* source)
{
    if (source && source->hasText() && !fits(source->text()))
        return;
    QPlainTextEdit::insertFromMimeData(source);
}

} // namespace kartella
