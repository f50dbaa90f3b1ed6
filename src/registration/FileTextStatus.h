#pragma once

#include <QWidget>

class QLineEdit;

namespace kartella {

// A line of the document details: whether the text of the document's file was read for the
// search ("Read", "Needs text recognition (a scanned PDF)", "Not read: damaged", ...), as the
// register of the options holds it when the line is made.
class FileTextStatus : public QWidget
{
    Q_OBJECT

public:
    FileTextStatus(qint32 documentId, QWidget* parent = nullptr);

    QString text() const;

private:
    QLineEdit* m_status = nullptr;
};

} // namespace kartella
