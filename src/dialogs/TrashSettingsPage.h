#pragma once

#include <QWidget>

class QLineEdit;
class QSpinBox;

namespace kartella {

// The settings' tab of the trash and the versions: how many days deleted items are kept, how
// many earlier files per document, and the shared folder of both for a register on a server.
// Shows the options as they stand; save() stores what is shown.
class TrashSettingsPage : public QWidget
{
    Q_OBJECT

public:
    explicit TrashSettingsPage(QWidget* parent = nullptr);

    void save();

private:
    void browseFolder();

    QSpinBox* m_days = nullptr;
    QSpinBox* m_versions = nullptr;
    QLineEdit* m_folder = nullptr;
};

} // namespace kartella
