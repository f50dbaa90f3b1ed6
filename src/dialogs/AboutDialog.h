#pragma once

#include <QDialog>

namespace kartella {

// frmAbout: the program's title and version, a short description, and a button that starts
// the system information tool where the machine has one.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent = nullptr);

public Q_SLOTS:
    // Starts the system information tool, or says that there is none.
    void startSysInfo();
};

} // namespace kartella
