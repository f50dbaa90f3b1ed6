// The interface's language: the option, the desktop's languages, and the translations found.
#include "options/LanguageOption.h"
#include "platform/Translations.h"

#include <QCoreApplication>
#include <QTest>
#include <QTranslator>

using namespace kartella;

class TranslationsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionKeepsTheChoice_data()
    {
        QTest::addColumn<int>("language");
        QTest::newRow("desktop") << int(InterfaceLanguage::Desktop);
        QTest::newRow("English") << int(InterfaceLanguage::English);
        QTest::newRow("Lithuanian") << int(InterfaceLanguage::Lithuanian);
    }
    void optionKeepsTheChoice()
    {
        QFETCH(int, language);
        setInterfaceLanguage(InterfaceLanguage(language));
        QCOMPARE(int(interfaceLanguage()), language);
    }

    // The first language of the list that has a translation wins; English before it keeps
    // the program's own texts.
    void firstTranslatedLanguageWins_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<QStringList>("desktop");
        QTest::addColumn<QString>("installed");
        QTest::addColumn<QString>("english");
        const QString lithuanian = QStringLiteral("&Failas");
        QTest::newRow("Lithuanian desktop")
            << int(InterfaceLanguage::Desktop) << QStringList {"lt-LT", "lt"} << "lt" << lithuanian;
        QTest::newRow("German, then Lithuanian")
            << int(InterfaceLanguage::Desktop) << QStringList {"de-DE", "lt-LT"} << "lt" << lithuanian;
        QTest::newRow("English, then Lithuanian")
            << int(InterfaceLanguage::Desktop) << QStringList {"en-US", "lt-LT"} << ""
            << "&File";
        QTest::newRow("German only") << int(InterfaceLanguage::Desktop) << QStringList {"de-DE"} << ""
                                     << "&File";
        QTest::newRow("English chosen on a Lithuanian desktop")
            << int(InterfaceLanguage::English) << QStringList {"lt-LT"} << ""
            << "&File";
        QTest::newRow("Lithuanian chosen on an English desktop")
            << int(InterfaceLanguage::Lithuanian) << QStringList {"en-GB"} << "lt" << lithuanian;
    }
    void firstTranslatedLanguageWins()
    {
        QFETCH(int, option);
        QFETCH(QStringList, desktop);
        QFETCH(QString, installed);
        QFETCH(QString, english);
        const QList<QTranslator*> before = QCoreApplication::instance()->findChildren<QTranslator*>();
        QCOMPARE(
            installTranslations(interfaceLanguages(InterfaceLanguage(option), desktop)).left(2), installed);
        QCOMPARE(QCoreApplication::translate("kartella::MainWindow", "&File"), english);
        for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
            if (!before.contains(translator)) {
                QCoreApplication::removeTranslator(translator);
                delete translator;
            }
        }
    }
};

QTEST_GUILESS_MAIN(TranslationsTest)
#include "tst_translations.moc"
