#include "base/Error.h"
#include "harness/ScriptedPrompter.h"
#include "harness/Lithuanian.h"
#include "support/DataFiles.h"
#include "support/DialogParts.h"
#include "support/FileInfo.h"
#include "support/PathUtils.h"
#include "support/ShellDialogs.h"

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <QTest>

using namespace kartella;
using kartella::test::ScriptedPrompter;

namespace {

// Paths are written with "/" here; on Windows they take the platform's separator.
QString native(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

QString writeFile(const QString& path, const QByteArray& content = {})
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(content) >= 0 ? path : QString();
}

} // namespace

class SupportTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    const QString m_home = QDir::currentPath();

    QString path(const QString& name) const { return m_dir.filePath(name); }

private Q_SLOTS:
    void initTestCase() { useIconThemeFallback(); }
    void cleanup() { QDir::setCurrent(m_home); }

    void separators_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("normalized");
        QTest::addColumn<QString>("denormalized");
        auto row = [](const char* path, const char* normalized, const char* denormalized) {
            QTest::newRow(path) << QString(path) << QString(normalized) << QString(denormalized);
        };
        row("", "/", "");
        row("/srv/docs", "/srv/docs/", "/srv/docs");
        row("/srv/docs/", "/srv/docs/", "/srv/docs");
        row("/srv/docs//", "/srv/docs//", "/srv/docs/");
        row("/", "/", "");
    }

    void separators()
    {
        QFETCH(QString, path);
        QFETCH(QString, normalized);
        QFETCH(QString, denormalized);
        QCOMPARE(normalizePath(native(path)), native(normalized));
        QString changed = native(path);
        denormalizePath(changed);
        QCOMPARE(changed, native(denormalized));
    }

    void fullPath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("full");
        QTest::addColumn<int>("name");
        QTest::addColumn<int>("extension");
        QTest::addColumn<QString>("baseExt");
        auto row = [](const char* path, const char* full, int name, int extension, const char* baseExt) {
            QTest::newRow(path) << QString(path) << QString(full) << name << extension << QString(baseExt);
        };
        row("/srv/docs/Sutartis 417.doc", "/srv/docs/Sutartis 417.doc", 10, 22, "Sutartis 417.doc");
        row("/srv/x.tar.gz", "/srv/x.tar.gz", 5, 10, "x.tar.gz");
        row("/srv/v1.2/README", "/srv/v1.2/README", 10, 16, "README");
        row("/srv/.profile", "/srv/.profile", 5, 5, ".profile");
        row("/srv/docs/", "/srv/docs/", 10, 10, "");
        row("/srv/docs", "/srv/docs", 5, 9, "docs");
        row("/srv/./docs/../Ąžuolas.odt", "/srv/Ąžuolas.odt", 5, 12, "Ąžuolas.odt");
        row("/", "/", 1, 1, "");
    }

    void fullPath()
    {
        QFETCH(QString, path);
        QFETCH(QString, full);
        QFETCH(int, name);
        QFETCH(int, extension);
        QFETCH(QString, baseExt);
        int namePosition = -1, extensionPosition = -1, rootEnd = -1;
        QCOMPARE(getFullPath(native(path), namePosition, extensionPosition, rootEnd), native(full));
        QCOMPARE(namePosition, name);
        QCOMPARE(extensionPosition, extension);
        QCOMPARE(rootEnd, 0);
        QCOMPARE(getFileBaseExt(native(path)), baseExt);
    }

    void relativeAndEmptyPaths()
    {
        QVERIFY(QDir::setCurrent(m_dir.path()));
        const QString current = native(QDir::currentPath());
        FullPathParts parts {7, 8, 9};
        QCOMPARE(getFullPath(QString(), parts), QString());
        QCOMPARE(parts.name, 7); // left alone
        QCOMPARE(getFullPath("sub/", parts), QString(current + native("/sub/")));
        QCOMPARE(parts.name, int(current.size()) + 5);
        QCOMPARE(getFileBaseExt("AGR00012.doc"), QString("AGR00012.doc"));
        QCOMPARE(getFileBaseExt("sub/AGR00012.doc"), QString("AGR00012.doc"));
        QCOMPARE(getFileBaseExt(QString()), QString());
    }

    void unreachableCurrentFolderIsAnError()
    {
        {
            QTemporaryDir gone;
            QVERIFY(QDir::setCurrent(gone.path()));
        }
        if (!QDir::currentPath().isEmpty())
            QSKIP("This system still names a removed current folder");
        try {
            getFileBaseExt("a.txt");
            QFAIL("no error");
        } catch (const Error& e) {
            QCOMPARE(e.number(), -2147192501L); // 3 + 0x80047148
            QCOMPARE(e.description(), QString("The system cannot find the path specified."));
            QCOMPARE(e.source(), QString("Kartella.Windows"));
        }
        QCOMPARE(getFileBaseExt(native("/srv/a.txt")), QString("a.txt"));
    }

    void trimAtNull()
    {
        QCOMPARE(kartella::trimAtNull("abc"), QString("abc"));
        QCOMPARE(kartella::trimAtNull(QChar(0) + QString("abc")), QString());
        QCOMPARE(kartella::trimAtNull(QString("ab") + QChar(0) + "cd" + QChar(0)), QString("ab"));
    }

    void shellDialogs()
    {
        ScriptedPrompter prompter;
        prompter.answerFile("/srv/docs/Sutartis.doc")
            .answerFile(QString())
            .answerFolder("/srv/S")
            .answerFolder("");
        QCOMPARE(showOpenDialog({"Select Document   ", " /srv/docs  ", "All files (*.*) ", "*.*\t "}),
            QString("/srv/docs/Sutartis.doc"));
        const auto& request = prompter.fileRequests.first();
        QCOMPARE(request.title, QString("Select Document"));
        QCOMPARE(request.startFolder, QString(" /srv/docs"));
        QCOMPARE(request.filterLabel, QString("All files (*.*)"));
        QCOMPARE(request.pattern, QString("*.*\t"));
        QCOMPARE(
            showOpenDialog({"Select the Database File", "", "Access databases (*.mdb)", "*.mdb"}), QString());
        const QString prompt = "Select a folder in which to place the new files of - Sutartys - category:";
        QCOMPARE(chooseFolder(prompt), QString("/srv/S"));
        QCOMPARE(chooseFolder(prompt), QString());
        QCOMPARE(prompter.folderPrompts.first(), prompt);
    }

    void namesAndTypes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("displayName");
        QTest::addColumn<QString>("typeName");
        auto row = [](const char* name, const QByteArray& content, const char* displayName,
                       const char* typeName) {
            QTest::newRow(name) << QString(name) << content << QString(displayName) << QString(typeName);
        };
        row("Sutartis 417.txt", "x", "Sutartis 417.txt", "plain text document");
        row("Ataskaita.pdf", {}, "Ataskaita.pdf", "PDF document");
        row("AGR00012.doc", {}, "AGR00012.doc", "Microsoft Word Document");
        row("Ąžuolas.odt", {}, "Ąžuolas.odt", "OpenDocument Text");
        row("scan", "%PDF-1.4\n", "scan", "PDF document"); // the name tells nothing, the content does
        row("Reg.desktop", "[Desktop Entry]\nName=Register\n[X]\nName=No\n", "Register", "Shortcut");
        row("Sutartys", {}, "Sutartys", "folder");
    }

    void namesAndTypes()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        QFETCH(QString, displayName);
        QFETCH(QString, typeName);
        const QString file
            = name.contains('.') || !content.isEmpty() ? writeFile(path(name), content) : path(name);
        QDir().mkpath(path("Sutartys"));

        FileInfo* info = getFileInfoObject(file);
        QVERIFY(info);
        QCOMPARE(info->itemType(), 1);
        QCOMPARE(info->item(), file);
        QCOMPARE(info->displayName(), displayName);
        QCOMPARE(info->typeName(), typeName);

        // Described by name, a trailing separator ignored, and no message.
        ScriptedPrompter prompter;
        FileInfo byName;
        byName.setItem(name == "Sutartys" ? file + QDir::separator() : file);
        QCOMPARE(byName.displayName(), displayName);
        QCOMPARE(byName.typeName(), typeName);
        if (QIcon::fromTheme("text-x-generic").isNull())
            QSKIP("No icon theme is installed");
        QCOMPARE(info->smallIcon().availableSizes().value(0), QSize(16, 16));
        QCOMPARE(info->largeIcon().availableSizes().value(0), QSize(32, 32));
        QVERIFY(!byName.shellIcon().isNull());
    }

    void emptyAndMissing()
    {
        FileInfo info;
        QCOMPARE(info.displayName(), QString("Unknown"));
        QCOMPARE(info.typeName(), QString("None"));
        QVERIFY(info.smallIcon().isNull() && info.largeIcon().isNull() && info.shellIcon().isNull());

        const QString missing = path("gone.doc");
        QCOMPARE(getFileInfoObject(missing), nullptr);
        QCOMPARE(getFileInfoObject(QString()), nullptr);
        info.createFromFile(writeFile(path("here.txt")));
        info.createFromFile(missing); // forgets the file before
        QCOMPARE(info.itemType(), 0);
        QCOMPARE(info.displayName(), QString("Unknown"));

        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        info.setItem(missing);
        QCOMPARE(prompter.prompts().size(), 1);
        QCOMPARE(prompter.prompts().first().text, QString("API Error"));
        QCOMPARE(prompter.prompts().first().title, QString("Operating System Error"));
        QCOMPARE(prompter.prompts().first().style, 16);
        QCOMPARE(info.displayName(), QString("gone.doc"));
        QCOMPARE(info.typeName(), QString("Microsoft Word Document"));

        info.setItem(QDir::rootPath()); // a drive root isn't searched for
        QCOMPARE(info.itemType(), 1);
        QCOMPARE(getFileInfoObject(path("here.txt")), getFileInfoObject(m_dir.path())); // one shared object
    }

    void launcherHasItsOwnIcon()
    {
        if (QIcon::fromTheme("text-x-generic").isNull())
            QSKIP("No icon theme is installed");
        QImage red(32, 32, QImage::Format_ARGB32);
        red.fill(Qt::red);
        QVERIFY(red.save(path("red.png")));
        const QString file
            = writeFile(path("Red.desktop"), "[Desktop Entry]\nName=Red\nIcon=" + path("red.png").toUtf8());
        auto centre = [](const QIcon& icon) { return icon.pixmap(32, 32).toImage().pixelColor(16, 16); };
        QCOMPARE(centre(getFileInfoObject(file)->largeIcon()), QColor(Qt::red));
        FileInfo byName; // described by name: the icon of its type
        byName.setItem(file);
        QVERIFY(!byName.largeIcon().isNull());
        QVERIFY(centre(byName.largeIcon()) != QColor(Qt::red));
        const QString lost = writeFile(path("Lost.desktop"), "[Desktop Entry]\nIcon=no-such-icon\n");
        QVERIFY(!getFileInfoObject(lost)->smallIcon().isNull());
    }

    void dataFilesAreFoundInTheInstalledDataFolders()
    {
        QTemporaryDir data;
        QVERIFY(QDir().mkpath(data.filePath("kartella")));
        const QString shipped = writeFile(data.filePath("kartella/only-here.txt"), "x");
        qputenv("XDG_DATA_HOME", QFile::encodeName(data.path()));
        QCOMPARE(findDataFile("only-here.txt"), QDir::toNativeSeparators(shipped));
        QCOMPARE(findDataFile("nowhere.txt"), QString());
        QVERIFY(dataFolders().indexOf(QDir::cleanPath(data.filePath("kartella")))
            > dataFolders().indexOf(QCoreApplication::applicationDirPath()));
        qunsetenv("XDG_DATA_HOME");
    }

    // The notice that another user deleted a row is one sentence per row the dialogs name, so
    // that Lithuanian declines the noun; a row it doesn't know is named in brackets.
    void deletedRowNoticeInLithuanian_data()
    {
        QTest::addColumn<QString>("what");
        QTest::addColumn<QString>("text");
        QTest::newRow("document") << "document"
                                  << "Dokumentą pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.";
        QTest::newRow("related document")
            << "related document"
            << "Susijusį dokumentą pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.";
        QTest::newRow("contact") << "contact"
                                 << "Kontaktą pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.";
        QTest::newRow("category") << "category"
                                  << "Kategoriją pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.";
        QTest::newRow("another") << "phone"
                                 << "Šį įrašą (phone) pašalino kitas naudotojas; jūsų pakeitimai neįrašyti.";
    }
    void deletedRowNoticeInLithuanian()
    {
        QFETCH(QString, what);
        QFETCH(QString, text);
        const kartella::test::Lithuanian lithuanian;
        ScriptedPrompter prompter;
        prompter.answer(MsgBoxResult::Ok);
        reportDeletedRow(what, QStringLiteral("Kontaktai"));
        QCOMPARE(prompter.texts(), QStringList {text});
    }

    void noFileIcon()
    {
        QVERIFY(!noFileIconPath().isEmpty());
        QVERIFY(!QIcon(noFileIconPath()).isNull());
        QVERIFY(!QIcon(KARTELLA_SNOW_ICON).isNull());
        QImageReader reader(KARTELLA_SNOW_ICON);
        const QImage image = reader.read();
        QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
        QCOMPARE(image.size(), QSize(32, 32));
        QCOMPARE(image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(image.pixelColor(16, 16).alpha(), 255);
    }
};

QTEST_MAIN(SupportTest)
#include "tst_support.moc"
