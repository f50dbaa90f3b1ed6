#pragma once

#include <QLabel>
#include <QSet>

class QStatusBar;

namespace kartella {

// The status bar's panel that tells, once per register and run, that the register file lies
// on a network share and how to move it to a server. It stays until another register is
// opened; a register told before is not told again.
class ShareNotice : public QLabel
{
    Q_OBJECT

public:
    explicit ShareNotice(QStatusBar* status);

    // The main window opened the register at location (a file or a server location).
    void registerOpened(const QString& location);

private:
    QSet<QString> m_told;
};

} // namespace kartella
