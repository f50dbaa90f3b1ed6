#pragma once

// The interface in Lithuanian for the life of a test's scope, and the check that no two
// access keys of a window or menu clash.
#include "platform/Translations.h"

#include <QAbstractButton>
#include <QAction>
#include <QCoreApplication>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QTabBar>
#include <QTranslator>
#include <QWidget>

namespace kartella::test {

// While one lives, the interface speaks Lithuanian. The translators it installed go with it,
// so that the test functions after it run in the program's English.
class Lithuanian
{
public:
    Lithuanian()
        : m_before(QCoreApplication::instance()->findChildren<QTranslator*>())
        , m_language(installTranslations({QStringLiteral("lt")}))
    { }
    ~Lithuanian()
    {
        for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
            if (!m_before.contains(translator)) {
                QCoreApplication::removeTranslator(translator);
                delete translator;
            }
        }
    }
    Lithuanian(const Lithuanian&) = delete;
    Lithuanian& operator=(const Lithuanian&) = delete;

    // The language installed ("lt_LT"); empty when the translation is missing.
    QString language() const { return m_language; }
    bool installed() const { return m_language.startsWith(QLatin1String("lt")); }

private:
    QList<QTranslator*> m_before;
    QString m_language;
};

// The texts that share their access key with another of texts, grouped by key
// ("&Naujas / &Nauja"); "&&" is an ampersand, no key. Empty when no two clash.
inline QStringList clashingAccessKeys(const QStringList& texts)
{
    QMap<QKeySequence, QStringList> byKey;
    for (const QString& text : texts) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            byKey[key].append(text);
    }
    QStringList clashes;
    for (const QStringList& owners : std::as_const(byKey)) {
        if (owners.size() > 1)
            clashes << owners.join(QStringLiteral(" / "));
    }
    return clashes;
}

// The texts of a menu's commands.
inline QStringList actionTexts(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions) {
        if (!action->isSeparator())
            texts << action->text();
    }
    return texts;
}

// The access keys that clash among the buttons, labels, group boxes and tabs under window.
inline QStringList clashingAccessKeys(const QWidget& window)
{
    QStringList texts;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        texts << button->text();
    for (const QLabel* label : window.findChildren<QLabel*>())
        texts << label->text();
    for (const QGroupBox* group : window.findChildren<QGroupBox*>())
        texts << group->title();
    for (const QTabBar* tabs : window.findChildren<QTabBar*>()) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            texts << tabs->tabText(tab);
    }
    return clashingAccessKeys(texts);
}

inline QStringList clashingAccessKeys(const QWidget* window)
{
    return clashingAccessKeys(*window);
}

} // namespace kartella::test
