#pragma once

#include "platform/Translations.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeySequence>
#include <QLabel>
#include <QList>
#include <QMultiHash>
#include <QStringList>
#include <QTranslator>
#include <QWidget>

namespace kartella::test {

// While one lives, the interface speaks Lithuanian. The translators it installed are
// removed when it ends, so that the tests after it see the program's English texts.
class LithuanianScreen
{
public:
    LithuanianScreen()
        : m_before(QCoreApplication::instance()->findChildren<QTranslator*>())
        , m_language(installTranslations({QStringLiteral("lt")}))
    { }
    ~LithuanianScreen()
    {
        for (QTranslator* translator : QCoreApplication::instance()->findChildren<QTranslator*>()) {
            if (!m_before.contains(translator)) {
                QCoreApplication::removeTranslator(translator);
                delete translator;
            }
        }
    }
    LithuanianScreen(const LithuanianScreen&) = delete;
    LithuanianScreen& operator=(const LithuanianScreen&) = delete;

    bool installed() const { return m_language.startsWith(QLatin1String("lt")); }

private:
    QList<QTranslator*> m_before;
    QString m_language;
};

// The access keys that more than one button or label of a window marks, each with the
// texts that mark it.
inline QStringList clashingAccessKeys(const QWidget* window)
{
    QStringList texts;
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>())
        texts << button->text();
    for (const QLabel* label : window->findChildren<QLabel*>())
        texts << label->text();
    QMultiHash<QKeySequence, QString> owners;
    for (const QString& text : std::as_const(texts)) {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            owners.insert(key, text);
    }
    QStringList clashes;
    for (const QKeySequence& key : owners.uniqueKeys()) {
        if (owners.count(key) > 1)
            clashes << owners.values(key).join(QStringLiteral(" / "));
    }
    return clashes;
}

} // namespace kartella::test
