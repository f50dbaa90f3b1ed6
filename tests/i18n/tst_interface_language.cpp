// The program in the desktop's language: the main window and Qt's own dialogs in Lithuanian,
// the same windows in English exactly as written, and no two access keys clashing in either.
#include "explorer/ExplorerFixture.h"
#include "explorer/MainWindow.h"
#include "harness/Lithuanian.h"
#include "platform/Translations.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <optional>

using namespace kartella;
using namespace kartella::test;

namespace {

QStringList menuTitles(const QWidget& window)
{
    QStringList titles;
    for (const QAction* action : window.findChild<QMenuBar*>()->actions())
        titles << action->text();
    return titles;
}

} // namespace

class InterfaceLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mainWindowSpeaksTheLanguage_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("view");
        QTest::newRow("English") << ""
                                 << "&File"
                                 << "&View";
        QTest::newRow("Lithuanian") << "lt"
                                    << "Failas"
                                    << "Rodinys";
    }
    void mainWindowSpeaksTheLanguage()
    {
        QFETCH(QString, language);
        QFETCH(QString, file);
        QFETCH(QString, view);
        std::optional<Lithuanian> lithuanian;
        if (!language.isEmpty()) {
            lithuanian.emplace();
            QVERIFY(lithuanian->installed());
        }
        ExplorerFixture fixture;
        MainWindow& window = fixture.window();
        const QStringList titles = menuTitles(window);
        if (language.isEmpty()) {
            QVERIFY2(titles.contains(file) && titles.contains(view), qPrintable(titles.join(u' ')));
        } else {
            QStringList plain = titles;
            plain.replaceInStrings(QStringLiteral("&"), QString());
            QVERIFY2(plain.contains(file) && plain.contains(view), qPrintable(titles.join(u' ')));
        }
        QStringList clashes = clashingAccessKeys(titles);
        for (const QMenu* menu : window.findChildren<QMenu*>())
            clashes += clashingAccessKeys(actionTexts(menu->actions()));
        QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(u'\n')));
    }

    // Qt's message box buttons from our own file, its file dialog from Debian's Qt translation.
    void qtDialogsSpeakLithuanian()
    {
        const Lithuanian lithuanian;
        QMessageBox box(QMessageBox::Question, QStringLiteral("Kartella"), QStringLiteral("?"),
            QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.button(QMessageBox::Yes)->text(), QStringLiteral("&Taip"));
        QCOMPARE(box.button(QMessageBox::No)->text(), QStringLiteral("&Ne"));
        QDialogButtonBox buttons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
        QCOMPARE(buttons.button(QDialogButtonBox::Ok)->text(), QStringLiteral("Gerai"));
        QCOMPARE(buttons.button(QDialogButtonBox::Cancel)->text(), QStringLiteral("Atsisakyti"));

        QFileDialog files;
        files.setOption(QFileDialog::DontUseNativeDialog);
        files.setAcceptMode(QFileDialog::AcceptOpen);
        const QDialogButtonBox* fileButtons = files.findChild<QDialogButtonBox*>();
        QVERIFY(fileButtons);
        QCOMPARE(fileButtons->button(QDialogButtonBox::Open)->text(), QStringLiteral("At&verti"));
    }
};

QTEST_MAIN(InterfaceLanguageTest)
#include "tst_interface_language.moc"
