#pragma once

#include "options/CaptureOptions.h"

#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>

namespace kartella {

// A scanner as SANE names it.
struct ScannerDevice
{
    QString name; // "test:0", "epson2:net:192.168.1.20"
    QString vendor;
    QString model;

    QString label() const
    {
        return QString(vendor + u' ' + model).trimmed() + QStringLiteral(" (") + name + u')';
    }
};

// What the open scanner offers, in its own words.
struct ScannerChoices
{
    QStringList sources;
    QStringList modes;
    QList<int> resolutions;
};

// The scanners of the machine through SANE's C API. libsane is loaded when first needed,
// so that a machine without it runs the program and is told what to install. SANE wants
// every call from one thread: a Scanner is made, used and destroyed on one (a worker's).
class SaneScanner
{
public:
    enum class Outcome {
        Page, // a page came
        NoMorePages, // the feeder is empty
        Cancelled, // cancel was set: the scanner is stopped, the page dropped
        Failed, // the scanner failed or went away: message says so
    };

    SaneScanner();
    ~SaneScanner();
    SaneScanner(const SaneScanner&) = delete;
    SaneScanner& operator=(const SaneScanner&) = delete;

    // The library to load instead of Debian's libsane.so.1 (a test names one that isn't there).
    static void setLibraryName(const QString& name);
    // The library named instead of Debian's; empty for Debian's own.
    static QString libraryName();
    // The messages a user reads.
    static QString missingSaneMessage(); // names libsane1
    static QString noScannerMessage(); // names sane-utils' scanimage -L
    static QString noScannerOpenMessage();
    static QString emptyFeederMessage();

    // Loads SANE and starts it; false with message when it can't.
    bool initialise(QString* message);
    // The scanners SANE finds; none gives noScannerMessage in message.
    QList<ScannerDevice> devices(QString* message);

    bool open(const QString& device, QString* message);
    void close();
    bool isOpen() const { return m_handle != nullptr; }
    ScannerChoices choices();
    // Sets what the scanner offers of source, mode and resolution; the rest is left as the
    // scanner has it.
    void apply(const ScanSettings& settings);
    // Sets any option by name from text (a number, or a word of its list); false when the
    // scanner has no such option or refuses the value.
    bool setOption(const QString& name, const QString& value);

    // Scans one page (a feeder: the next sheet). Ends the scanner's batch unless
    // moreToCome. cancel, set from any thread, stops the scanner within one read. reading,
    // when given, is called after each part of the page the scanner sends.
    Outcome scanPage(QImage* page, QString* message, const std::atomic_bool& cancel, bool moreToCome,
        const std::function<void()>& reading = {});
    // Ends a batch that scanPage left open.
    void finishBatch();

private:
    void stopPageInProgress();
    int findOption(const QString& name) const;
    QString statusText(int status) const;

    void* m_handle = nullptr;
    bool m_initialised = false;
    bool m_batchOpen = false;
};

} // namespace kartella
