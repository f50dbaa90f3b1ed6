#pragma once

#include <QPlainTextEdit>

namespace kartella {

// A multi-line box whose typing stops at a length: what the user types, pastes or drops
// may not make the text longer than the limit. A longer text set by the program shows
// whole and may be shortened, never lengthened beyond the limit or its own length.
class LimitedTextEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LimitedTextEdit(QWidget* parent = nullptr);

    // 0 is no limit.
    void setTypingLimit(int characters) { m_limit = characters; }
    int typingLimit() const { return m_limit; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    // Whether text may replace the selection.
    bool fits(const QString& text) const;

    int m_limit = 0;
};

} // namespace kartella
