#pragma once

#include <QWidget>

class QComboBox;

namespace kartella {

// The settings' choice of the interface's language: the desktop's, English or Lithuanian.
// Shows the option as it stands; save() stores what is shown. The program reads the option
// when it starts, so a new choice shows at the next start, as the note beside it says.
class LanguageChoice : public QWidget
{
    Q_OBJECT

public:
    explicit LanguageChoice(QWidget* parent = nullptr);

    void save();

Q_SIGNALS:
    // The user picked another language than the stored one.
    void changed();

private:
    QComboBox* m_language = nullptr;
};

} // namespace kartella
