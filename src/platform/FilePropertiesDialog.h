#pragma once

#include <QDialog>
#include <QFileDevice>

class QDateTime;
class QFormLayout;
class QLineEdit;

namespace kartella {

// The properties of one file: name, type, size, folder, dates of change and creation, and
// permissions, each in a read-only field that can be selected and copied. Close or Esc
// closes it.
class FilePropertiesDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit FilePropertiesDialog(const QString& path, QWidget* parent = nullptr);

    // "512 bytes", "1 byte", or a rounded size with the exact count: "1.5 MiB (1,572,864 bytes)".
    static QString sizeText(qint64 bytes);
    // The owner's access in words, then the symbolic form: "Read and write (rw-r--r--)".
    static QString permissionsText(QFileDevice::Permissions permissions);
    // A date and time as the fields show it; "Unknown" for an invalid one.
    static QString dateText(const QDateTime& when);
    // The file's kind as FileInfo gives it, in the interface's language.
    static QString typeText(const QString& typeName);

private:
    QLineEdit* addField(QFormLayout* form, const QString& objectName, const QString& label,
        const QString& accessibleName, const QString& value);
};

} // namespace kartella
