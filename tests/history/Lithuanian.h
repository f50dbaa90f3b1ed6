#pragma once

// The interface in Lithuanian for the life of a test's scope: the translators it installs go
// when it ends, so that the test functions after it run in English.
#include "platform/Translations.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLabel>
#include <QSet>
#include <QTranslator>
#include <QWidget>

namespace kartella::test {

class Lithuanian
{
public:
    Lithuanian()
        : m_before(QCoreApplication::instance()->findChildren<QTranslator*>())
        , m_installed(installTranslations({QStringLiteral("lt")}))
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

    QString installed() const { return m_installed; }

private:
    QList<QTranslator*> m_before;
    QString m_installed;
};

// The access keys of the buttons and labels in window that share their key with another,
// lower case; empty when every key is its own.
inline QStringList clashingAccessKeys(const QWidget& window)
{
    QStringList texts;
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>())
        texts << button->text();
    for (const QLabel* label : window.findChildren<QLabel*>()) {
        if (label->buddy())
            texts << label->text();
    }
    QSet<QChar> seen;
    QStringList clashes;
    for (const QString& text : std::as_const(texts)) {
        const qsizetype at = text.indexOf(u'&');
        if (at < 0 || at + 1 >= text.size() || text.at(at + 1) == u'&')
            continue;
        const QChar key = text.at(at + 1).toLower();
        if (seen.contains(key))
            clashes << QString(key);
        seen.insert(key);
    }
    return clashes;
}

} // namespace kartella::test
