#pragma once

#include <QObject>
#include <QString>

class QProcess;
class QTemporaryDir;

namespace kartella {

// Turns an Office file into a PDF in the background. One conversion at a time: starting
// another, or abandon(), drops the one running, whose result is never reported. The
// default is LibreOfficeConverter; tests install a scripted one.
class PdfConverter : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Starts converting source; finished follows, unless the conversion is abandoned first.
    virtual void convert(const QString& source) = 0;
    // Stops the conversion running, if any, without a word.
    virtual void abandon() = 0;
    virtual bool isRunning() const = 0;

    // Whether the extension (without its dot, any case) is one of the Office formats that
    // are converted: doc docx odt xls xlsx ods ppt pptx odp rtf.
    static bool converts(const QString& suffix);

Q_SIGNALS:
    // The conversion of source ended: pdf is the made file (the receiver moves it away at
    // once), or empty with the reason in message.
    void finished(const QString& source, const QString& pdf, const QString& message);
};

// Converts with LibreOffice running headless (soffice --convert-to pdf), with a profile of
// its own in the cache folder so that a LibreOffice the user runs is left alone. An
// abandoned or overlong conversion is stopped with every process LibreOffice started.
class LibreOfficeConverter final : public PdfConverter
{
    Q_OBJECT

public:
    static constexpr int DefaultTimeoutMs = 120 * 1000;

    explicit LibreOfficeConverter(const QString& profileFolder, QObject* parent = nullptr);
    ~LibreOfficeConverter() override;

    void convert(const QString& source) override;
    void abandon() override;
    bool isRunning() const override { return m_process != nullptr; }
    void setTimeout(int milliseconds) { m_timeoutMs = milliseconds; }

    // The soffice program on the PATH; empty when LibreOffice isn't installed.
    static QString program();

private:
    void onProcessEnded();
    void stop();

    QString m_profile;
    QString m_source;
    QProcess* m_process = nullptr;
    QTemporaryDir* m_output = nullptr;
    int m_timeoutMs = DefaultTimeoutMs;
};

} // namespace kartella
