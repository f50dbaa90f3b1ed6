// What the tests of files brought into the register share: a register with categories and
// folders, the New Document dialogs answered as they open, and drops as a file manager makes.
#pragma once

#include "explorer/NavigationTree.h"
#include "harness/ScriptedPrompter.h"
#include "harness/ScriptedShell.h"
#include "harness/TestRegister.h"
#include "registration/NewDocumentDialog.h"
#include "support/SelectionState.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QLineEdit>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUrl>

#include <functional>

namespace kartella::test {

inline void writeFile(
    const QString& path, const QByteArray& content, QIODevice::OpenMode mode = QIODevice::WriteOnly)
{
    QFile file(path);
    QVERIFY2(file.open(mode), qPrintable(path));
    file.write(content);
}

inline QByteArray readFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// What the user does in one New Document dialog.
using DialogStep = std::function<void(NewDocumentDialog&)>;

inline void pressButton(NewDocumentDialog& dialog, const char* name)
{
    QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(name)), Qt::LeftButton);
}

inline void chooseCategory(NewDocumentDialog& dialog, const QString& name)
{
    // Typed, as the user picks an entry of the box from the keyboard.
    auto* box = dialog.findChild<QComboBox*>(QStringLiteral("cmbCategory"));
    box->setFocus();
    QTest::keyClicks(box, name);
    QCOMPARE(box->currentText(), name);
}

inline const DialogStep PressOk = [](NewDocumentDialog& dialog) { pressButton(dialog, "cmdOK"); };
inline const DialogStep PressCancel = [](NewDocumentDialog& dialog) { pressButton(dialog, "cmdCancel"); };
inline const DialogStep PressEsc = [](NewDocumentDialog& dialog) {
    QTest::keyClick(dialog.findChild<QLineEdit*>(QStringLiteral("txtFields_4")), Qt::Key_Escape);
};

// Answers the New Document dialogs as they open, one step each, and notes what each showed.
class DialogScript : public QObject
{
public:
    explicit DialogScript(QList<DialogStep> steps)
        : m_steps(std::move(steps))
    {
        connect(&m_timer, &QTimer::timeout, this, &DialogScript::answer);
        m_timer.start(10);
    }

    struct Shown
    {
        QString location;
        QString category;
        QString description;
    };
    QList<Shown> shown;

private:
    void answer()
    {
        auto* dialog = qobject_cast<NewDocumentDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible() || dialog == m_answered)
            return;
        m_answered = dialog;
        shown.append({dialog->findChild<QLineEdit*>(QStringLiteral("txtFields_5"))->text(),
            dialog->findChild<QComboBox*>(QStringLiteral("cmbCategory"))->currentText(),
            dialog->findChild<QLineEdit*>(QStringLiteral("txtFields_4"))->text()});
        // A dialog nobody expected is noted and closed, for the test to fail rather than hang.
        if (shown.size() > m_steps.size())
            static_cast<QDialog*>(dialog)->done(QDialog::Rejected);
        else
            m_steps[shown.size() - 1](*dialog);
    }

    QList<DialogStep> m_steps;
    QTimer m_timer;
    QPointer<NewDocumentDialog> m_answered;
};

// A register with two categories, each with a folder and a mnemonic, and a subcategory with
// a folder of its own; files to drop, an inbox folder, and a trash of the test's own.
struct Fixture
{
    TestRegister reg;
    ScriptedPrompter prompter;
    ScriptedShell shell;
    // Under the tests' home, so that the desktop's trash of that home takes the inbox's files.
    QTemporaryDir work {QDir::homePath() + QStringLiteral("/inbox-XXXXXX")};
    QString contracts = folder("contracts");
    QString letters = folder("letters");
    QString leases = folder("leases");
    QString outside = folder("outside");
    QString inbox = folder("inbox");
    QString dataHome = folder("data");
    qint32 contractsId = 0;
    qint32 lettersId = 0;
    qint32 leasesId = 0;
    QByteArray previousDataHome = qgetenv("XDG_DATA_HOME");

    Fixture()
    {
        qputenv("XDG_DATA_HOME", dataHome.toLocal8Bit());
        contractsId = reg.insert("tbl_Document_Categories",
            {{"DokKategorija", "Contracts"}, {"Mnemonic", "AGR"}, {"DokKategDaug", contracts}});
        lettersId = reg.insert("tbl_Document_Categories",
            {{"DokKategorija", "Letters"}, {"Mnemonic", "LET"}, {"DokKategDaug", letters}});
        leasesId = reg.insert("tbl_Sub_Categories",
            {{"KategID", contractsId}, {"DokSubKategorija", "Leases"}, {"SubPathToFiles", leases}});
        selection() = SelectionState();
    }
    ~Fixture()
    {
        qputenv("XDG_DATA_HOME", previousDataHome);
        selection() = SelectionState();
    }

    QString folder(const char* name) const
    {
        const QString path = work.filePath(QLatin1String(name));
        QDir().mkpath(path);
        return path;
    }
    // The stored documents as "category/subcategory/file", in the order they were stored.
    QStringList documents() const
    {
        QStringList rows;
        const int count = reg.scalar("SELECT COUNT(*) FROM tbl_Documents").toInt();
        for (int i = 0; i < count; ++i) {
            const QString at = " FROM tbl_Documents ORDER BY RastasID LIMIT 1 OFFSET " + QString::number(i);
            rows << reg.scalar("SELECT KategID" + at).toString() + u'/'
                    + reg.scalar("SELECT SubKategID" + at).toString() + u'/'
                    + reg.scalar("SELECT RastoKel" + at).toString();
        }
        return rows;
    }
};

// Drags paths from outside the program onto target at pos and lets go, as a file manager does.
inline void dropFiles(QWidget* target, const QPoint& pos, const QStringList& paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls << QUrl::fromLocalFile(path);
    data.setUrls(urls);
    QDragEnterEvent enter(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    QVERIFY(enter.isAccepted());
    QDragMoveEvent move(pos, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &move);
    QVERIFY(move.isAccepted());
    QDropEvent drop(QPointF(pos), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
}

inline QPoint nodeCenter(NavigationTree* tree, const QString& text)
{
    const QList<QTreeWidgetItem*> nodes = tree->findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    if (nodes.size() != 1)
        return {};
    tree->scrollToItem(nodes.first());
    return tree->visualItemRect(nodes.first()).center();
}

} // namespace kartella::test
