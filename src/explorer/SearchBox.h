#pragma once

#include <QLineEdit>

class QTimer;

namespace kartella {

// The search box of the main window's band. It asks for a search a short pause after the
// last keystroke, at once on Enter, and with an empty text when Esc or its clear button
// empties it; a keystroke within the pause puts the search off again.
class SearchBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit SearchBox(QWidget* parent = nullptr);

    // The pause after a keystroke, in milliseconds.
    static constexpr int TypingPause = 250;

    // Empties the box without asking for a search (another list takes the window's place).
    void clearQuietly();

Q_SIGNALS:
    void searchRequested(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void onTextEdited(const QString& text);
    void requestNow();

    QTimer* m_pause = nullptr;
};

} // namespace kartella
