#pragma once

#include <QCoreApplication>
#include <QString>

#include <functional>
#include <memory>

namespace kartella {

// What the program asks of the desktop for a document's file: open it, print it, show its
// properties, and delete, copy or move it with the user's confirmation. The program uses
// the one installed instance; tests install a scripted one.
class Shell
{
public:
    virtual ~Shell();

    // Opens path with the desktop's program for it; false when nothing could be started.
    virtual bool open(const QString& path) = 0;
    // Prints path with the program for its type: office formats through LibreOffice headless
    // (soffice --headless -p), others through lp (CUPS).
    virtual bool print(const QString& path) = 0;
    // Shows the file's properties: a dialog of our own (name, type, size, folder, modified and
    // created dates, permissions).
    virtual void showProperties(const QString& path) = 0;
    // Deletes path for good after asking the user to confirm ("permanently delete"); refused,
    // cancelled or failed = false.
    virtual bool deleteFile(const QString& path) = 0;
    // Copies or moves a file, asking before overwriting an existing target, with progress for
    // large files; refused, cancelled or failed = false. A target that is an existing folder
    // receives the file under its own name.
    virtual bool copyFile(const QString& source, const QString& target) = 0;
    virtual bool moveFile(const QString& source, const QString& target) = 0;

    static Shell& instance();
    // Installs shell (not owned); nullptr restores the default, a FileShell.
    static void setInstance(Shell* shell);
};

// While one lives, a copy or move of the shell over an existing file asks it, once the user
// agreed to replace the file, whether the file may go: a false answer stops the copy or move
// and leaves both files as they are (the check tells the user why). Checks nest; the newest
// one alive answers.
class ReplaceCheck
{
public:
    explicit ReplaceCheck(std::function<bool(const QString& replaced)> check);
    ~ReplaceCheck();
    ReplaceCheck(const ReplaceCheck&) = delete;
    ReplaceCheck& operator=(const ReplaceCheck&) = delete;

    // What the newest check alive says of replaced; true when none is.
    static bool allows(const QString& replaced);

private:
    std::function<bool(const QString&)> m_check;
    ReplaceCheck* m_outer = nullptr;
};

// A sign of a copy's progress, alive while the copy runs.
class CopyProgress
{
public:
    virtual ~CopyProgress();
    // Bytes copied so far; false when the user wants the copy to stop.
    virtual bool advance(qint64 done) = 0;
};

// Called after each block of a copy with the bytes done so far and the total; false stops it.
using CopyProgressFunction = std::function<bool(qint64 done, qint64 total)>;

// Copies source's content to target through a temporary file beside target, which replaces
// target only once the copy is complete; the copy keeps source's permissions and time of
// change. On failure or when progress stops it, target is left as it was and false comes
// back, with the reason in *error when error isn't null (empty for a stop).
bool copyFileContents(const QString& source, const QString& target, const CopyProgressFunction& progress = {},
    QString* error = nullptr);

// Moves source to target: a rename within one file system (replacing target), else a copy
// through copyFileContents and then the removal of source. Source is removed only after the
// copy is complete. False with the reason in *error as for copyFileContents.
bool moveFileContents(const QString& source, const QString& target, const CopyProgressFunction& progress = {},
    QString* error = nullptr);

// The shell that needs no window: deletes, copies and moves files for real and asks its
// questions through msgBox; it opens, prints and shows nothing. The desktop's shell and the
// tests' shell build on it.
class FileShell : public Shell
{
public:
    bool open(const QString& path) override;
    bool print(const QString& path) override;
    void showProperties(const QString& path) override;
    bool deleteFile(const QString& path) override;
    bool copyFile(const QString& source, const QString& target) override;
    bool moveFile(const QString& source, const QString& target) override;

    // The texts of the shell's questions.
    static QString deleteQuestion(const QString& path);
    static QString replaceQuestion(const QString& target);
    static QString deleteTitle() { return QCoreApplication::translate("kartella::FileShell", "Delete File"); }
    static QString replaceTitle()
    {
        return QCoreApplication::translate("kartella::FileShell", "Confirm File Replace");
    }

protected:
    // Asks a question or tells of a failure: a msgBox with prompt, style and title, whose
    // result code comes back.
    virtual int ask(const QString& prompt, int style, const QString& title);
    // A sign of progress for a copy or move of total bytes from source to target (moving
    // tells which); nullptr for none, which is what this shell gives.
    virtual std::unique_ptr<CopyProgress> startProgress(
        const QString& source, const QString& target, qint64 total, bool moving);

private:
    bool transfer(const QString& source, const QString& target, bool moving);
    void fail(const QString& prompt, const QString& title);
};

} // namespace kartella
