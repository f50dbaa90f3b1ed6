#pragma once

#include <QDialog>

class QLabel;
class QLineEdit;
class QPushButton;

namespace kartella {

// frmCopyFile, "Copy/Move File": copies or moves the file of the selected document or
// related document into another folder, as often as the user likes while it is open. A
// copy leaves the register alone; a move stores the file's new absolute path in the row and
// in the selection, or moves the file back when the row can't be written, so that the row
// always leads to the file. The shell asks before replacing a file and shows the progress;
// its refusal leaves everything as it was. A document's file the user agreed to replace is
// kept as a version of that document first, and stays when it can't be.
class CopyFileDialog : public QDialog
{
    Q_OBJECT

public:
    // Reads the selected file. Without one (nothing clicked, or a file that has gone) it
    // tells the user so, and hasFile() is false: the dialog is not to be shown.
    explicit CopyFileDialog(QWidget* parent = nullptr);
    ~CopyFileDialog() override;

    bool hasFile() const { return m_hasFile; }

public Q_SLOTS:
    void chooseDestination();
    void copyFile();
    void moveFile();

Q_SIGNALS:
    // The file now lives at path (whether or not the register could be told).
    void fileMoved(const QString& path);

private:
    void buildWidgets();
    bool load();
    QString destinationOrAsk() const;
    // Keeps the earlier version of a document's file about to be replaced; when it can't be
    // kept, tells the user and gives false, so that the file stays.
    bool keepEarlierVersion(const QString& replaced);

    bool m_hasFile = false;
    QLineEdit* m_document = nullptr;
    QLabel* m_pathNow = nullptr;
    QLabel* m_fileSize = nullptr;
    QLabel* m_fileDate = nullptr;
    QLineEdit* m_destination = nullptr;
};

} // namespace kartella
