#pragma once

#include "platform/Translations.h"

#include <QAction>
#include <QCoreApplication>
#include <QHash>
#include <QList>
#include <QStringList>
#include <QTranslator>

namespace kartella::test {

// The interface in Lithuanian while it lives. The translators it installed go with it, so
// that the tests after it read the program's English again.
class LithuanianTexts
{
public:
    LithuanianTexts()
        : m_before(QCoreApplication::instance()->findChildren<QTranslator*>())
        , m_language(installTranslations({QStringLiteral("lt")}))
    { }

    ~LithuanianTexts()
    {
        for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
            if (!m_before.contains(translator)) {
                QCoreApplication::removeTranslator(translator);
                delete translator;
            }
        }
    }

    LithuanianTexts(const LithuanianTexts&) = delete;
    LithuanianTexts& operator=(const LithuanianTexts&) = delete;

    // The language installed ("lt_LT"), or empty when no translation was found.
    QString language() const { return m_language; }

private:
    QList<QTranslator*> m_before;
    QString m_language;
};

// The access keys that more than one of texts has ("&Naujas" and "&Nauja": "n"); "&&" is
// an ampersand, no key.
inline QStringList clashingAccessKeys(const QStringList& texts)
{
    QHash<QChar, int> uses;
    for (const QString& text : texts) {
        for (qsizetype at = text.indexOf(u'&'); at >= 0 && at + 1 < text.size();
             at = text.indexOf(u'&', at + 2)) {
            if (text.at(at + 1) != u'&') {
                ++uses[text.at(at + 1).toLower()];
                break;
            }
        }
    }
    QStringList clashes;
    for (auto it = uses.cbegin(); it != uses.cend(); ++it) {
        if (it.value() > 1)
            clashes << QString(it.key());
    }
    return clashes;
}

inline QStringList actionTexts(const QList<QAction*>& actions)
{
    QStringList texts;
    for (const QAction* action : actions) {
        if (!action->isSeparator())
            texts << action->text();
    }
    return texts;
}

} // namespace kartella::test
