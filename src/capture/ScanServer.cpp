#include "capture/ScanProtocol.h"

#include <QElapsedTimer>
#include <QMutex>
#include <QWaitCondition>

#include <atomic>
#include <cerrno>
#include <deque>
#include <pthread.h>
#include <thread>
#include <unistd.h>

namespace kartella {

namespace {

// Reads the requests on a thread of its own, so that a Cancel reaches a scan in progress
// at once; the other requests wait in order for the scanning (main) thread.
class Requests
{
public:
    Requests()
        : m_reader([this] { read(); })
    { }
    ~Requests() { m_reader.detach(); }

    const std::atomic_bool& cancel() const { return m_cancel; }

    // The next request, waiting for it; Quit when the program went away.
    std::pair<ScanMessage, QByteArray> next()
    {
        QMutexLocker lock(&m_mutex);
        while (m_queue.empty())
            m_arrived.wait(&m_mutex);
        auto request = m_queue.front();
        m_queue.pop_front();
        if (request.first == ScanMessage::Scan)
            m_cancel = false;
        return request;
    }

private:
    void read()
    {
        // SANE's backends start their reader threads from the scanning thread and wait for
        // the ones named like it (see SaneScanner): this one has a name of its own.
        pthread_setname_np(pthread_self(), "scan-requests");
        QByteArray buffer;
        char chunk[4096];
        for (;;) {
            const ssize_t got = ::read(STDIN_FILENO, chunk, sizeof chunk);
            if (got < 0 && errno == EINTR)
                continue;
            if (got <= 0) {
                push(ScanMessage::Quit, {});
                return;
            }
            buffer.append(chunk, qsizetype(got));
            ScanMessage message {};
            QByteArray values;
            while (takeScanFrame(&buffer, &message, &values)) {
                if (message == ScanMessage::Cancel)
                    m_cancel = true;
                else
                    push(message, values);
                if (message == ScanMessage::Quit)
                    return;
            }
        }
    }

    void push(ScanMessage message, const QByteArray& values)
    {
        QMutexLocker lock(&m_mutex);
        m_queue.emplace_back(message, values);
        m_arrived.wakeOne();
    }

    std::atomic_bool m_cancel = false;
    QMutex m_mutex;
    QWaitCondition m_arrived;
    std::deque<std::pair<ScanMessage, QByteArray>> m_queue;
    std::thread m_reader;
};

void answer(ScanMessage message, const QByteArray& values)
{
    const QByteArray frame = scanFrame(message, values);
    qsizetype written = 0;
    while (written < frame.size()) {
        const ssize_t count
            = ::write(STDOUT_FILENO, frame.constData() + written, size_t(frame.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return; // the program went away; its Quit follows
        written += count;
    }
}

void scan(SaneScanner& scanner, const QByteArray& values, const std::atomic_bool& cancel)
{
    QDataStream stream(values);
    ScanSettings settings;
    bool wholeFeeder = false;
    stream >> settings >> wholeFeeder;
    if (!scanner.isOpen()) {
        answer(ScanMessage::Ended, scanValues(false, SaneScanner::noScannerOpenMessage()));
        return;
    }
    scanner.apply(settings);
    // Tells the program, twice a second at most, that the scanner is still sending.
    QElapsedTimer sinceTold;
    sinceTold.start();
    const auto reading = [&sinceTold] {
        if (sinceTold.elapsed() >= 500) {
            answer(ScanMessage::Reading, {});
            sinceTold.restart();
        }
    };
    int pages = 0;
    for (;;) {
        QImage page;
        QString message;
        switch (scanner.scanPage(&page, &message, cancel, wholeFeeder, reading)) {
        case SaneScanner::Outcome::Page: {
            ++pages;
            QByteArray image;
            QDataStream out(&image, QIODevice::WriteOnly);
            writeScanImage(out, page);
            answer(ScanMessage::Page, image);
            if (wholeFeeder)
                continue;
            answer(ScanMessage::Ended, scanValues(false, QString()));
            return;
        }
        case SaneScanner::Outcome::NoMorePages:
            answer(ScanMessage::Ended,
                scanValues(false, pages == 0 ? SaneScanner::emptyFeederMessage() : QString()));
            return;
        case SaneScanner::Outcome::Cancelled:
            answer(ScanMessage::Ended, scanValues(true, QString()));
            return;
        case SaneScanner::Outcome::Failed:
            answer(ScanMessage::Ended, scanValues(false, message));
            return;
        }
    }
}

} // namespace

int serveScanner(const QString& libraryName)
{
    if (!libraryName.isEmpty())
        SaneScanner::setLibraryName(libraryName);
    Requests requests;
    SaneScanner scanner;
    for (;;) {
        const auto [message, values] = requests.next();
        QDataStream stream(values);
        switch (message) {
        case ScanMessage::Find: {
            QString text;
            const QList<ScannerDevice> devices = scanner.devices(&text);
            answer(ScanMessage::Found, scanValues(devices, text));
            break;
        }
        case ScanMessage::Open: {
            QString device;
            stream >> device;
            QString text;
            if (scanner.open(device, &text))
                answer(ScanMessage::Opened, scanValues(scanner.choices(), QString()));
            else
                answer(ScanMessage::Opened, scanValues(ScannerChoices(), text));
            break;
        }
        case ScanMessage::SetOption: {
            QString name;
            QString value;
            stream >> name >> value;
            scanner.setOption(name, value);
            break;
        }
        case ScanMessage::Scan:
            scan(scanner, values, requests.cancel());
            break;
        case ScanMessage::Quit:
            return 0;
        default:
            break;
        }
    }
}

} // namespace kartella
