#include "platform/Shell.h"

#include "platform/Prompter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <filesystem>
#include <system_error>

namespace kartella {

namespace {

constexpr qint64 BlockSize = qint64(1) << 20;

Shell*& installed()
{
    static Shell* current = nullptr;
    return current;
}

ReplaceCheck*& newestReplaceCheck()
{
    static ReplaceCheck* newest = nullptr;
    return newest;
}

std::filesystem::path fsPath(const QString& path)
{
#ifdef Q_OS_WIN
    return std::filesystem::path(path.toStdWString());
#else
    return std::filesystem::path(QFile::encodeName(path).toStdString());
#endif
}

QString systemMessage(const std::error_code& code)
{
    return QString::fromLocal8Bit(code.message().c_str());
}

void setError(QString* error, const QString& text)
{
    if (error)
        *error = text;
}

// Whether both paths name one file (also through links).
bool sameFile(const QString& a, const QString& b)
{
    std::error_code code;
    const bool same = std::filesystem::equivalent(fsPath(a), fsPath(b), code);
    return !code && same;
}

QString displayName(const QString& path)
{
    return QFileInfo(path).fileName();
}

QString displayFolder(const QFileInfo& info)
{
    return QDir::toNativeSeparators(info.absolutePath());
}

} // namespace

Shell::~Shell() = default;

Shell& Shell::instance()
{
    static FileShell fallback;
    Shell* current = installed();
    return current ? *current : fallback;
}

void Shell::setInstance(Shell* shell)
{
    installed() = shell;
}

CopyProgress::~CopyProgress() = default;

bool copyFileContents(
    const QString& source, const QString& target, const CopyProgressFunction& progress, QString* error)
{
    setError(error, {});
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly)) {
        setError(error, in.errorString());
        return false;
    }
    // Without a commit the temporary file goes when out does, and target stays as it was.
    QSaveFile out(target);
    out.setDirectWriteFallback(false);
    if (!out.open(QIODevice::WriteOnly)) {
        setError(error, out.errorString());
        return false;
    }
    const qint64 total = in.size();
    if (progress && !progress(0, total))
        return false;
    QByteArray block(BlockSize, Qt::Uninitialized);
    qint64 done = 0;
    for (;;) {
        const qint64 read = in.read(block.data(), block.size());
        if (read < 0) {
            setError(error, in.errorString());
            return false;
        }
        if (read == 0)
            break;
        if (out.write(block.constData(), read) != read) {
            setError(error, out.errorString());
            return false;
        }
        done += read;
        if (progress && !progress(done, total))
            return false;
    }
    const QDateTime modified = QFileInfo(source).lastModified();
    if (!out.flush() || !out.setPermissions(in.permissions())
        || !out.setFileTime(modified, QFileDevice::FileModificationTime) || !out.commit()) {
        setError(error, out.errorString());
        return false;
    }
    return true;
}

bool moveFileContents(
    const QString& source, const QString& target, const CopyProgressFunction& progress, QString* error)
{
    setError(error, {});
    std::error_code code;
    std::filesystem::rename(fsPath(source), fsPath(target), code);
    if (!code)
        return true;
    if (code != std::errc::cross_device_link) {
        setError(error, systemMessage(code));
        return false;
    }
    if (!copyFileContents(source, target, progress, error))
        return false;
    QFile original(source);
    if (!original.remove()) {
        setError(error,
            QCoreApplication::translate("kartella::FileShell",
                "The file was copied to '%1', but the original couldn't be removed: %2")
                .arg(QDir::toNativeSeparators(target), original.errorString()));
        return false;
    }
    return true;
}

bool FileShell::open(const QString&)
{
    return false;
}

bool FileShell::print(const QString&)
{
    return false;
}

void FileShell::showProperties(const QString&) { }

QString FileShell::deleteQuestion(const QString& path)
{
    return QCoreApplication::translate(
        "kartella::FileShell", "Do you want to permanently delete the file '%1'?")
        .arg(displayName(path));
}

QString FileShell::replaceQuestion(const QString& target)
{
    const QFileInfo info(target);
    return QCoreApplication::translate(
        "kartella::FileShell", "The file '%1' already exists in '%2'. Do you want to replace it?")
        .arg(info.fileName(), displayFolder(info));
}

bool FileShell::deleteFile(const QString& path)
{
    const QString title = QCoreApplication::translate("kartella::FileShell", "Error Deleting File");
    if (path.isEmpty())
        return false;
    const QFileInfo info(path);
    if (!info.exists() && !info.isSymLink()) {
        fail(QCoreApplication::translate("kartella::FileShell", "Can't delete '%1': the file can't be found.")
                 .arg(displayName(path)),
            title);
        return false;
    }
    if (info.isDir() && !info.isSymLink()) {
        fail(QCoreApplication::translate("kartella::FileShell", "Can't delete '%1': it is a folder.")
                 .arg(displayName(path)),
            title);
        return false;
    }
    const int answer
        = ask(deleteQuestion(path), MsgBoxStyle::YesNo | MsgBoxStyle::Exclamation, deleteTitle());
    if (answer != MsgBoxResult::Yes)
        return false;
    QFile file(path);
    if (!file.remove()) {
        fail(QCoreApplication::translate("kartella::FileShell", "Can't delete '%1': %2")
                 .arg(displayName(path), file.errorString()),
            title);
        return false;
    }
    return true;
}

bool FileShell::copyFile(const QString& source, const QString& target)
{
    return transfer(source, target, false);
}

bool FileShell::moveFile(const QString& source, const QString& target)
{
    return transfer(source, target, true);
}

bool FileShell::transfer(const QString& source, const QString& target, bool moving)
{
    if (source.isEmpty() || target.isEmpty())
        return false;
    const QString title = moving ? QCoreApplication::translate("kartella::FileShell", "Error Moving File")
                                 : QCoreApplication::translate("kartella::FileShell", "Error Copying File");
    const QString name = displayName(source);
    const auto cant = [moving, &name](const QString& reason) {
        return moving
            ? QCoreApplication::translate("kartella::FileShell", "Can't move '%1': %2").arg(name, reason)
            : QCoreApplication::translate("kartella::FileShell", "Can't copy '%1': %2").arg(name, reason);
    };
    const QFileInfo from(source);
    if (!from.isFile()) {
        fail(cant(QCoreApplication::translate("kartella::FileShell", "the file can't be found.")), title);
        return false;
    }
    QString to = target;
    if (QFileInfo(to).isDir())
        to = QDir(to).filePath(from.fileName());
    const QFileInfo into(to);
    if (!into.absoluteDir().exists()) {
        fail(cant(QCoreApplication::translate("kartella::FileShell", "the folder '%1' doesn't exist.")
                      .arg(displayFolder(into))),
            title);
        return false;
    }
    if (into.exists()) {
        if (sameFile(source, to)) {
            fail(cant(QCoreApplication::translate(
                     "kartella::FileShell", "the source and the target are the same file.")),
                title);
            return false;
        }
        if (into.isDir()) {
            fail(cant(QCoreApplication::translate(
                     "kartella::FileShell", "a folder of that name exists in '%1'.")
                          .arg(displayFolder(into))),
                title);
            return false;
        }
        const int answer
            = ask(replaceQuestion(to), MsgBoxStyle::YesNo | MsgBoxStyle::Exclamation, replaceTitle());
        if (answer != MsgBoxResult::Yes || !ReplaceCheck::allows(to))
            return false;
    }

    // The sign appears with the first block actually copied: a rename needs none.
    std::unique_ptr<CopyProgress> sign;
    bool started = false;
    const CopyProgressFunction progress = [&](qint64 done, qint64 total) {
        if (!started) {
            started = true;
            sign = startProgress(source, to, total, moving);
        }
        return !sign || sign->advance(done);
    };
    QString error;
    const bool done = moving ? moveFileContents(source, to, progress, &error)
                             : copyFileContents(source, to, progress, &error);
    sign.reset();
    if (!done && !error.isEmpty())
        fail(cant(error), title);
    return done;
}

ReplaceCheck::ReplaceCheck(std::function<bool(const QString&)> check)
    : m_check(std::move(check))
    , m_outer(newestReplaceCheck())
{
    newestReplaceCheck() = this;
}

ReplaceCheck::~ReplaceCheck()
{
    newestReplaceCheck() = m_outer;
}

bool ReplaceCheck::allows(const QString& replaced)
{
    const ReplaceCheck* check = newestReplaceCheck();
    return !check || !check->m_check || check->m_check(replaced);
}

int FileShell::ask(const QString& prompt, int style, const QString& title)
{
    return msgBox(prompt, style, title);
}

std::unique_ptr<CopyProgress> FileShell::startProgress(const QString&, const QString&, qint64, bool)
{
    return nullptr;
}

void FileShell::fail(const QString& prompt, const QString& title)
{
    ask(prompt, MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, title);
}

} // namespace kartella
