#pragma once

#include <QObject>
#include <QString>

class QLabel;
class QMainWindow;

namespace kartella {

class AfterPaint;
class ReadingQueue;

// The background reading of the open register's files, and its progress in the main
// window's status bar ("Reading files: 120 of 3 400"), shown while a walk has files to read.
class ContentProgress : public QObject
{
    Q_OBJECT

public:
    explicit ContentProgress(QMainWindow* window);
    ~ContentProgress() override;

    // Reads the files of the register at location (as the options name it: DbLocation),
    // with the options' provider and size limit, once the window has painted; what was
    // being read for another register stops first.
    void start(const QString& location);
    void stop();

    ReadingQueue& queue() const { return *m_queue; }

private:
    // Shows text (readingProgressText or recognitionProgressText) while done < total.
    void showProgress(int done, int total, QString (*text)(int, int));

    ReadingQueue* m_queue = nullptr;
    AfterPaint* m_afterPaint = nullptr;
    QLabel* m_panel = nullptr;
};

} // namespace kartella
