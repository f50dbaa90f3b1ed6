#include "capture/SaneScanner.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QMutex>
#include <QThread>

#include <cmath>
#include <csignal>
#include <cstring>
#include <dlfcn.h>
#include <link.h>
#include <pthread.h>
#include <sane/sane.h>
#include <sane/saneopts.h>
#include <unistd.h>
#include <vector>

namespace kartella {

namespace {

// SANE's entry points, from the library loaded once for the program's life.
struct SaneApi
{
    SANE_Status (*init)(SANE_Int*, SANE_Auth_Callback) = nullptr;
    void (*exit)() = nullptr;
    SANE_Status (*getDevices)(const SANE_Device***, SANE_Bool) = nullptr;
    SANE_Status (*open)(SANE_String_Const, SANE_Handle*) = nullptr;
    void (*close)(SANE_Handle) = nullptr;
    const SANE_Option_Descriptor* (*optionDescriptor)(SANE_Handle, SANE_Int) = nullptr;
    SANE_Status (*controlOption)(SANE_Handle, SANE_Int, SANE_Action, void*, SANE_Int*) = nullptr;
    SANE_Status (*getParameters)(SANE_Handle, SANE_Parameters*) = nullptr;
    SANE_Status (*start)(SANE_Handle) = nullptr;
    SANE_Status (*read)(SANE_Handle, SANE_Byte*, SANE_Int, SANE_Int*) = nullptr;
    void (*cancel)(SANE_Handle) = nullptr;
    SANE_String_Const (*statusText)(SANE_Status) = nullptr;
};

QMutex loading;
const QString DefaultLibrary = QStringLiteral("libsane.so.1");
QString chosenLibrary = DefaultLibrary;
void* libraryHandle = nullptr;
SaneApi api;

template<typename Function>
bool resolve(Function& function, const char* symbol)
{
    function = reinterpret_cast<Function>(dlsym(libraryHandle, symbol));
    return function != nullptr;
}

bool loadSane()
{
    const QMutexLocker lock(&loading);
    if (libraryHandle)
        return true;
    libraryHandle = dlopen(chosenLibrary.toLocal8Bit().constData(), RTLD_NOW | RTLD_LOCAL);
    if (!libraryHandle)
        return false;
    const bool complete = resolve(api.init, "sane_init") && resolve(api.exit, "sane_exit")
        && resolve(api.getDevices, "sane_get_devices") && resolve(api.open, "sane_open")
        && resolve(api.close, "sane_close") && resolve(api.optionDescriptor, "sane_get_option_descriptor")
        && resolve(api.controlOption, "sane_control_option")
        && resolve(api.getParameters, "sane_get_parameters") && resolve(api.start, "sane_start")
        && resolve(api.read, "sane_read") && resolve(api.cancel, "sane_cancel")
        && resolve(api.statusText, "sane_strstatus");
    if (!complete) {
        dlclose(libraryHandle);
        libraryHandle = nullptr;
    }
    return complete;
}

// SANE's dll backend loads the scanners' backends as it needs them and unloads them at
// sane_exit, so that each scan window would load them again, and what a backend keeps
// past its exit (SANE's test backend keeps a buffer of a cancelled scan) would be reported
// by a leak checker without a name. Once loaded, a backend stays for the program's life.
void keepBackendsLoaded()
{
    dl_iterate_phdr(
        [](dl_phdr_info* info, size_t, void*) {
            const char* path = info->dlpi_name;
            if (path && std::strstr(path, "/sane/libsane-")) {
                if (void* handle = dlopen(path, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE))
                    dlclose(handle);
            }
            return 0;
        },
        nullptr);
}

// SANE's backends read the scanner on a thread of their own (named like the thread that
// started it), and sane_cancel stops that thread with an asynchronous pthread_cancel. One
// that is just ending, inside the C library's freeing of its memory, dies holding the
// allocator's lock and hangs the program. So a reader that is ending is let end first:
// while this thread's name is on another thread of the process, and for a second at most.
void waitForReaderThreads()
{
#ifdef Q_OS_LINUX
    char name[32] = {};
    if (pthread_getname_np(pthread_self(), name, sizeof name) != 0 || name[0] == '\0')
        return;
    const QByteArray own = QByteArray(name) + '\n';
    const QByteArray self = QByteArray::number(qint64(gettid()));
    auto readersAlive = [&] {
        const QStringList tasks
            = QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
        for (const QString& task : tasks) {
            if (task.toLatin1() == self)
                continue;
            QFile comm(QStringLiteral("/proc/self/task/%1/comm").arg(task));
            if (comm.open(QIODevice::ReadOnly) && comm.readAll() == own)
                return true;
        }
        return false;
    };
    QElapsedTimer waited;
    waited.start();
    while (readersAlive() && waited.elapsed() < 1000)
        QThread::msleep(5);
#endif
}

QString saneText(SANE_String_Const text)
{
    return text ? QString::fromUtf8(text) : QString();
}

// The page SANE sent, as an image: black and white, grey or colour, 8 or 16 bits (16 kept as 8).
QImage makeImage(const SANE_Parameters& parameters, const std::vector<SANE_Byte>& data)
{
    const int width = parameters.pixels_per_line;
    const int lineBytes = parameters.bytes_per_line;
    if (width <= 0 || lineBytes <= 0)
        return {};
    const int lines = int(data.size() / size_t(lineBytes));
    if (lines <= 0)
        return {};
    const bool colour = parameters.format == SANE_FRAME_RGB;
    QImage image;
    if (parameters.depth == 1 && !colour) {
        image = QImage(width, lines, QImage::Format_Mono);
        // SANE's bit 1 is black.
        image.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    } else {
        image = QImage(width, lines, colour ? QImage::Format_RGB888 : QImage::Format_Grayscale8);
    }
    const int samples = width * (colour ? 3 : 1);
    for (int y = 0; y < lines; ++y) {
        const SANE_Byte* source = data.data() + size_t(y) * size_t(lineBytes);
        uchar* target = image.scanLine(y);
        if (parameters.depth == 1 && !colour) {
            std::memcpy(target, source, size_t(std::min<qsizetype>(lineBytes, image.bytesPerLine())));
        } else if (parameters.depth == 16) {
            const auto* wide = reinterpret_cast<const quint16*>(source);
            for (int i = 0; i < samples; ++i)
                target[i] = uchar(wide[i] >> 8);
        } else {
            std::memcpy(target, source, size_t(samples));
        }
    }
    return image;
}

} // namespace

SaneScanner::SaneScanner() = default;

SaneScanner::~SaneScanner()
{
    close();
    if (m_initialised)
        api.exit();
}

void SaneScanner::setLibraryName(const QString& name)
{
    const QMutexLocker lock(&loading);
    chosenLibrary = name;
}

QString SaneScanner::libraryName()
{
    const QMutexLocker lock(&loading);
    return chosenLibrary == DefaultLibrary ? QString() : chosenLibrary;
}

QString SaneScanner::missingSaneMessage()
{
    return QCoreApplication::translate("kartella::SaneScanner",
        "Scanning needs SANE, which is not installed. Install the Debian package libsane1.");
}

QString SaneScanner::noScannerMessage()
{
    return QCoreApplication::translate("kartella::SaneScanner",
        "No scanner was found. Check that the scanner is connected and switched on; "
        "the command scanimage -L (Debian package sane-utils) lists the scanners SANE sees.");
}

QString SaneScanner::noScannerOpenMessage()
{
    return QCoreApplication::translate("kartella::SaneScanner", "No scanner is open.");
}

QString SaneScanner::emptyFeederMessage()
{
    return QCoreApplication::translate("kartella::SaneScanner", "There is no paper in the feeder.");
}

bool SaneScanner::initialise(QString* message)
{
    if (m_initialised)
        return true;
    // Backends read the scanner on a thread of their own that writes into a pipe; a cancel
    // closes the pipe under it, and the write's SIGPIPE would end the program. The thread
    // is started from this one and takes its blocked signals: the write just fails.
    sigset_t pipe;
    sigemptyset(&pipe);
    sigaddset(&pipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipe, nullptr);
    if (!loadSane()) {
        *message = missingSaneMessage();
        return false;
    }
    SANE_Int version = 0;
    const SANE_Status status = api.init(&version, nullptr);
    if (status != SANE_STATUS_GOOD) {
        *message = QCoreApplication::translate("kartella::SaneScanner", "SANE could not start: %1.")
                       .arg(statusText(status));
        return false;
    }
    m_initialised = true;
    return true;
}

QList<ScannerDevice> SaneScanner::devices(QString* message)
{
    QList<ScannerDevice> found;
    if (!initialise(message))
        return found;
    const SANE_Device** list = nullptr;
    const SANE_Status status = api.getDevices(&list, SANE_FALSE);
    if (status == SANE_STATUS_GOOD && list) {
        for (const SANE_Device** device = list; *device; ++device)
            found.append(
                {saneText((*device)->name), saneText((*device)->vendor), saneText((*device)->model)});
    }
    keepBackendsLoaded();
    if (found.isEmpty())
        *message = noScannerMessage();
    return found;
}

bool SaneScanner::open(const QString& device, QString* message)
{
    close();
    if (!initialise(message))
        return false;
    SANE_Handle handle = nullptr;
    const SANE_Status status = api.open(device.toUtf8().constData(), &handle);
    if (status != SANE_STATUS_GOOD) {
        *message = QCoreApplication::translate("kartella::SaneScanner", "The scanner %1 can't be opened: %2.")
                       .arg(device, statusText(status));
        return false;
    }
    m_handle = handle;
    keepBackendsLoaded();
    return true;
}

void SaneScanner::close()
{
    if (!m_handle)
        return;
    finishBatch();
    api.close(m_handle);
    m_handle = nullptr;
}

int SaneScanner::findOption(const QString& name) const
{
    if (!m_handle)
        return -1;
    SANE_Int count = 0;
    if (api.controlOption(m_handle, 0, SANE_ACTION_GET_VALUE, &count, nullptr) != SANE_STATUS_GOOD)
        return -1;
    const QByteArray wanted = name.toUtf8();
    for (SANE_Int index = 1; index < count; ++index) {
        const SANE_Option_Descriptor* option = api.optionDescriptor(m_handle, index);
        if (option && option->name && wanted == option->name && SANE_OPTION_IS_ACTIVE(option->cap))
            return index;
    }
    return -1;
}

ScannerChoices SaneScanner::choices()
{
    ScannerChoices offered;
    auto words = [this](const char* name) {
        QStringList list;
        const int index = findOption(QString::fromLatin1(name));
        if (index < 0)
            return list;
        const SANE_Option_Descriptor* option = api.optionDescriptor(m_handle, index);
        if (option->constraint_type == SANE_CONSTRAINT_STRING_LIST) {
            for (const SANE_String_Const* word = option->constraint.string_list; *word; ++word)
                list << saneText(*word);
        }
        return list;
    };
    offered.sources = words(SANE_NAME_SCAN_SOURCE);
    offered.modes = words(SANE_NAME_SCAN_MODE);
    const int index = findOption(QStringLiteral(SANE_NAME_SCAN_RESOLUTION));
    if (index >= 0) {
        const SANE_Option_Descriptor* option = api.optionDescriptor(m_handle, index);
        auto toDpi = [option](SANE_Word word) {
            return option->type == SANE_TYPE_FIXED ? int(std::lround(SANE_UNFIX(word))) : int(word);
        };
        if (option->constraint_type == SANE_CONSTRAINT_WORD_LIST) {
            for (SANE_Int i = 1; i <= option->constraint.word_list[0]; ++i)
                offered.resolutions << toDpi(option->constraint.word_list[i]);
        } else if (option->constraint_type == SANE_CONSTRAINT_RANGE) {
            const int lowest = toDpi(option->constraint.range->min);
            const int highest = toDpi(option->constraint.range->max);
            for (const int dpi : {75, 100, 150, 200, 300, 400, 600, 1200}) {
                if (dpi >= lowest && dpi <= highest)
                    offered.resolutions << dpi;
            }
        }
    }
    return offered;
}

void SaneScanner::apply(const ScanSettings& settings)
{
    const ScannerChoices offered = choices();
    if (offered.sources.contains(settings.source))
        setOption(QStringLiteral(SANE_NAME_SCAN_SOURCE), settings.source);
    if (offered.modes.contains(settings.mode))
        setOption(QStringLiteral(SANE_NAME_SCAN_MODE), settings.mode);
    setOption(QStringLiteral(SANE_NAME_SCAN_RESOLUTION), QString::number(settings.resolution));
}

bool SaneScanner::setOption(const QString& name, const QString& value)
{
    const int index = findOption(name);
    if (index < 0)
        return false;
    const SANE_Option_Descriptor* option = api.optionDescriptor(m_handle, index);
    if (!SANE_OPTION_IS_SETTABLE(option->cap))
        return false;
    SANE_Int info = 0;
    SANE_Status status = SANE_STATUS_INVAL;
    switch (option->type) {
    case SANE_TYPE_BOOL:
    case SANE_TYPE_INT: {
        SANE_Word word = value == QLatin1String("true") ? 1 : value.toInt();
        status = api.controlOption(m_handle, index, SANE_ACTION_SET_VALUE, &word, &info);
        break;
    }
    case SANE_TYPE_FIXED: {
        SANE_Word word = SANE_FIX(value.toDouble());
        status = api.controlOption(m_handle, index, SANE_ACTION_SET_VALUE, &word, &info);
        break;
    }
    case SANE_TYPE_STRING: {
        std::vector<char> text(size_t(std::max(option->size, SANE_Int(1))), '\0');
        const QByteArray utf8 = value.toUtf8();
        std::memcpy(text.data(), utf8.constData(), std::min(size_t(utf8.size()), text.size() - 1));
        status = api.controlOption(m_handle, index, SANE_ACTION_SET_VALUE, text.data(), &info);
        break;
    }
    default:
        break;
    }
    return status == SANE_STATUS_GOOD;
}

SaneScanner::Outcome SaneScanner::scanPage(QImage* page, QString* message, const std::atomic_bool& cancel,
    bool moreToCome, const std::function<void()>& reading)
{
    if (!m_handle) {
        *message = noScannerOpenMessage();
        return Outcome::Failed;
    }
    SANE_Status status = api.start(m_handle);
    m_batchOpen = true;
    if (status == SANE_STATUS_NO_DOCS) {
        finishBatch();
        return Outcome::NoMorePages;
    }
    if (status == SANE_STATUS_CANCELLED || cancel) {
        finishBatch();
        return Outcome::Cancelled;
    }
    if (status != SANE_STATUS_GOOD) {
        finishBatch();
        *message = QCoreApplication::translate("kartella::SaneScanner", "The scanner can't start: %1.")
                       .arg(statusText(status));
        return Outcome::Failed;
    }
    SANE_Parameters parameters {};
    if (api.getParameters(m_handle, &parameters) != SANE_STATUS_GOOD
        || (parameters.format != SANE_FRAME_GRAY && parameters.format != SANE_FRAME_RGB)) {
        finishBatch();
        *message = QCoreApplication::translate("kartella::SaneScanner",
            "The scanner sends its colours in three passes, which Kartella can't read. "
            "Choose another colour mode.");
        return Outcome::Failed;
    }
    std::vector<SANE_Byte> data;
    if (parameters.lines > 0)
        data.reserve(size_t(parameters.lines) * size_t(parameters.bytes_per_line));
    std::vector<SANE_Byte> buffer(64 * 1024);
    for (;;) {
        if (cancel) {
            stopPageInProgress();
            return Outcome::Cancelled;
        }
        SANE_Int length = 0;
        status = api.read(m_handle, buffer.data(), SANE_Int(buffer.size()), &length);
        if (status == SANE_STATUS_EOF)
            break;
        if (status == SANE_STATUS_CANCELLED) {
            finishBatch();
            return Outcome::Cancelled;
        }
        if (status != SANE_STATUS_GOOD) {
            finishBatch();
            *message = QCoreApplication::translate("kartella::SaneScanner",
                "The scanner stopped in the middle of a page: %1. "
                "The pages scanned before it are kept.")
                           .arg(statusText(status));
            return Outcome::Failed;
        }
        data.insert(data.end(), buffer.begin(), buffer.begin() + length);
        if (reading && length > 0)
            reading();
    }
    if (!moreToCome)
        finishBatch();
    *page = makeImage(parameters, data);
    if (page->isNull()) {
        *message = QCoreApplication::translate("kartella::SaneScanner", "The scanner sent an empty page.");
        return Outcome::Failed;
    }
    SANE_Int resolution = 0;
    const int index = findOption(QStringLiteral(SANE_NAME_SCAN_RESOLUTION));
    if (index >= 0
        && api.controlOption(m_handle, index, SANE_ACTION_GET_VALUE, &resolution, nullptr)
            == SANE_STATUS_GOOD) {
        const SANE_Option_Descriptor* option = api.optionDescriptor(m_handle, index);
        const double dpi = option->type == SANE_TYPE_FIXED ? SANE_UNFIX(resolution) : double(resolution);
        const int perMetre = int(std::lround(dpi / 0.0254));
        page->setDotsPerMeterX(perMetre);
        page->setDotsPerMeterY(perMetre);
    }
    return Outcome::Page;
}

void SaneScanner::stopPageInProgress()
{
    // The rest of the page is read and dropped for a moment first, so that a fast scanner
    // ends its reader thread on its own (see finishBatch); a slow one is stopped at once.
    std::vector<SANE_Byte> buffer(64 * 1024);
    QElapsedTimer draining;
    draining.start();
    SANE_Int length = 0;
    while (draining.elapsed() < 1500
        && api.read(m_handle, buffer.data(), SANE_Int(buffer.size()), &length) == SANE_STATUS_GOOD) { }
    finishBatch();
}

void SaneScanner::finishBatch()
{
    if (m_handle && m_batchOpen) {
        waitForReaderThreads();
        api.cancel(m_handle);
    }
    m_batchOpen = false;
}

QString SaneScanner::statusText(int status) const
{
    return api.statusText ? saneText(api.statusText(SANE_Status(status))) : QString::number(status);
}

} // namespace kartella
