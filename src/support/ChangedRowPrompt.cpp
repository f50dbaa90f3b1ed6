#include "support/ChangedRowPrompt.h"

#include "base/Error.h"
#include "platform/Prompter.h"
#include "store/engine/Recordset.h"

#include <QCoreApplication>
#include <QDate>
#include <QDateTime>
#include <QStringList>

namespace kartella {

namespace {

QString shownValue(const QString& field, const QVariant& value, const ShownNames& shownNames)
{
    if (!value.isValid() || value.isNull() || value.toString().isEmpty())
        return QCoreApplication::translate("kartella::ChangedRowPrompt", "(empty)");
    const QString name = shownNames ? shownNames(field, value) : QString();
    if (!name.isEmpty())
        return QCoreApplication::translate("kartella::ChangedRowPrompt", "\"%1\"").arg(name);
    if (value.typeId() == QMetaType::QDate)
        return value.toDate().toString(u"yyyy.MM.dd");
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime().toString(u"yyyy.MM.dd HH:mm:ss");
    return QCoreApplication::translate("kartella::ChangedRowPrompt", "\"%1\"").arg(value.toString());
}

QString captionOf(const QString& field, const QList<QPair<QString, QString>>& captions)
{
    for (const auto& [name, caption] : captions) {
        if (name.compare(field, Qt::CaseInsensitive) == 0)
            return caption;
    }
    return field;
}

// Whole sentences for the rows the dialogs name, so that a language can decline the noun.
QString changedRowText(const QString& what)
{
    static const std::pair<const char*, const char*> known[] = {
        {"document",
            QT_TRANSLATE_NOOP("kartella::ChangedRowPrompt",
                "This document was changed by another user since you opened it.")},
        {"related document",
            QT_TRANSLATE_NOOP("kartella::ChangedRowPrompt",
                "This related document was changed by another user since you opened it.")},
        {"contact",
            QT_TRANSLATE_NOOP("kartella::ChangedRowPrompt",
                "This contact was changed by another user since you opened it.")},
        {"category",
            QT_TRANSLATE_NOOP("kartella::ChangedRowPrompt",
                "This category was changed by another user since you opened it.")},
    };
    for (const auto& [noun, text] : known) {
        if (what == QLatin1String(noun))
            return QCoreApplication::translate("kartella::ChangedRowPrompt", text);
    }
    return QCoreApplication::translate(
        "kartella::ChangedRowPrompt", "This %1 was changed by another user since you opened it.")
        .arg(what);
}

} // namespace

bool rowWasChanged(const Error& error)
{
    return error.number() == ErrorNumber::RowChanged;
}

ChangedRowChoice resolveChangedRow(Recordset& recordset, const QString& what,
    const QList<QPair<QString, QString>>& captions, const QString& title, int affect,
    const ShownNames& shownNames)
{
    QStringList lines;
    try {
        recordset.resync(affect, ResyncEnum::UnderlyingValues);
        for (int index = 0; recordset.currentRow() >= 0 && index < recordset.fieldCount(); ++index) {
            const Field field = recordset.fields(index);
            if (field.isChapter() || !field.isChanged())
                continue;
            lines << QCoreApplication::translate("kartella::ChangedRowPrompt", "%1: stored %2, yours %3")
                         .arg(captionOf(field.name(), captions),
                             shownValue(field.name(), field.underlyingValue(), shownNames),
                             shownValue(field.name(), field.value(), shownNames));
        }
    } catch (const Error& error) {
        // The row could not be read again: the choice is still the user's, without the list.
        lines << error.description();
    }
    QString prompt = changedRowText(what);
    if (!lines.isEmpty())
        prompt += QStringLiteral("\n\n") + lines.join(u'\n');
    prompt += QStringLiteral("\n\n")
        + QCoreApplication::translate("kartella::ChangedRowPrompt",
            "Reload shows what is stored now, and you may type again. Keep Mine "
            "stores yours over it. Cancel goes back to what you typed.");
    const int answer = Prompter::instance().choose(prompt,
        {QCoreApplication::translate("kartella::ChangedRowPrompt", "&Reload"),
            QCoreApplication::translate("kartella::ChangedRowPrompt", "&Keep Mine"),
            QCoreApplication::translate("kartella::ChangedRowPrompt", "Cancel")},
        MsgBoxStyle::Exclamation, title);
    if (answer == 0) {
        try {
            recordset.resync(affect, ResyncEnum::AllValues);
        } catch (const Error& error) {
            msgBox(error.description(), MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, title);
        }
        return ChangedRowChoice::Reload;
    }
    return answer == 1 ? ChangedRowChoice::KeepMine : ChangedRowChoice::Cancel;
}

bool storeResolvingChanges(Recordset& recordset, int affect, const QString& what,
    const QList<QPair<QString, QString>>& captions, const QString& title, const ShownNames& shownNames)
{
    for (;;) {
        try {
            recordset.updateBatch(affect);
            return true;
        } catch (const Error& error) {
            if (!rowWasChanged(error))
                throw;
        }
        if (resolveChangedRow(recordset, what, captions, title, affect, shownNames)
            != ChangedRowChoice::KeepMine)
            return false;
    }
}

} // namespace kartella
