#pragma once

// The interface in Lithuanian for one test: the translators installed while the object lives
// are removed and deleted with it, so that the following tests see the English texts again.

#include "platform/Translations.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeySequence>
#include <QLabel>
#include <QMap>
#include <QTranslator>

namespace kartella::test {

class InLithuanian
{
public:
    InLithuanian()
        : m_before(QCoreApplication::instance()->findChildren<QTranslator*>())
        , m_language(installTranslations({QStringLiteral("lt")}))
    { }
    ~InLithuanian()
    {
        for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
            if (!m_before.contains(translator)) {
                QCoreApplication::removeTranslator(translator);
                delete translator;
            }
        }
    }
    InLithuanian(const InLithuanian&) = delete;
    InLithuanian& operator=(const InLithuanian&) = delete;

    // The language installed ("lt_LT"); empty when the translation is missing.
    QString language() const { return m_language; }

private:
    QList<QTranslator*> m_before;
    QString m_language;
};

// The texts of the labels and buttons under root (root's own included) whose access key
// another of them has too; empty when no two clash.
inline QStringList clashingAccessKeys(QWidget* root)
{
    QMap<QKeySequence, QStringList> byKey;
    const auto add = [&byKey](const QString& text) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            byKey[key].append(text);
    };
    for (const QLabel* label : root->findChildren<QLabel*>())
        add(label->text());
    for (const QAbstractButton* button : root->findChildren<QAbstractButton*>())
        add(button->text());
    QStringList clashes;
    for (const QStringList& texts : std::as_const(byKey)) {
        if (texts.size() > 1)
            clashes += texts;
    }
    return clashes;
}

} // namespace kartella::test
