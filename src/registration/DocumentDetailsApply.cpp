#include "base/Error.h"
#include "registration/DocumentDetailsDialog.h"
#include "registration/RegIndexOffer.h"
#include "store/engine/Recordset.h"
#include "store/engine/WriteContext.h"
#include "support/BoundList.h"
#include "support/BusyCursor.h"
#include "support/ChangedRowPrompt.h"
#include "support/DialogParts.h"
#include "support/FieldBinder.h"
#include "support/RecordsetModel.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QRadioButton>

// What the details dialog stores, and what it asks when another user stored the same
// document first.

namespace kartella {

namespace {

// The captions of the row's fields, as a changed row lists them.
const std::pair<const char*, const char*> FieldCaptions[]
    = {{"DokAntraste", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Description")},
        {"ContactID", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Sender/Receiver")},
        {"RastoKel", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Location")},
        {"DokGavSiuntData", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Send/Receive Date")},
        {"DokRegistracData", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Registration Date")},
        {"DokRegistracIndeksas", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Registration Index")},
        {"KategID", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Category")},
        {"SubKategID", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Subcategory")},
        {"KryptisID", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Direction")},
        {"DokPastaba", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Notes")},
        {"TicklerDate", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Reminder date")},
        {"TicklerText", QT_TRANSLATE_NOOP("kartella::DocumentDetailsDialog", "Reminder text")}};

QList<QPair<QString, QString>> fieldCaptions()
{
    QList<QPair<QString, QString>> captions;
    for (const auto& [field, caption] : FieldCaptions)
        captions.append({QString::fromLatin1(field),
            QCoreApplication::translate("kartella::DocumentDetailsDialog", caption)});
    return captions;
}

} // namespace

bool DocumentDetailsDialog::apply()
{
    if (!m_changed)
        return true;
    const BusyCursor busy;
    const CommandScope command(QStringLiteral("Details"));
    try {
        commitOpenEditor();
        for (;;) {
            m_binder->validate();
            try {
                m_document->updateBatch(AffectEnum::Current);
                break;
            } catch (const Error& error) {
                if (rowWasChanged(error)) {
                    if (!resolveChangedDocument(*m_document))
                        return false;
                    continue;
                }
                if (error.number() != ErrorNumber::DuplicateValue)
                    throw;
            }
            if (!offerFreeRegIndex(m_regIndex, m_listConnection, windowTitle()))
                return false;
        }
        m_storedIndex = m_regIndex->text();
        Recordset* reminders = m_tickler->recordset();
        for (;;) {
            try {
                m_reminders->updateBatch(AffectEnum::All);
                break;
            } catch (const Error& error) {
                if (!rowWasChanged(error) || !reminders)
                    throw;
            }
            if (!resolveChangedDocument(*reminders))
                return false;
        }
    } catch (const Error& error) {
        if (rowWasDeleted(error))
            reportDeletedRow(tr("document"), errorTitle());
        else
            reportStoreError(error.number(), error.description(), errorTitle());
        return false;
    }
    setClean();
    return true;
}

QString DocumentDetailsDialog::shownName(const QString& field, const QVariant& value) const
{
    if (field == QLatin1String("ContactID"))
        return m_sender->textOf(value);
    if (field == QLatin1String("KategID"))
        return m_category->textOf(value);
    if (field == QLatin1String("SubKategID"))
        return m_subCategory->textOf(value);
    if (field == QLatin1String("KryptisID")) {
        const QRadioButton* button = directionButton(value.toInt());
        return button ? button->text() : QString();
    }
    return QString();
}

bool DocumentDetailsDialog::resolveChangedDocument(Recordset& rows)
{
    const bool reminders = &rows != m_document;
    const ChangedRowChoice choice = resolveChangedRow(rows, tr("document"), fieldCaptions(), errorTitle(),
        reminders ? AffectEnum::All : AffectEnum::Current,
        [this](const QString& field, const QVariant& value) { return shownName(field, value); });
    if (choice == ChangedRowChoice::Reload && !reminders) {
        m_storedIndex = m_regIndex->text();
        m_showing = true;
        showDirection();
        m_showing = false;
    }
    return choice == ChangedRowChoice::KeepMine;
}

} // namespace kartella
