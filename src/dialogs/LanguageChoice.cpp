#include "dialogs/LanguageChoice.h"

#include "options/LanguageOption.h"
#include "support/DialogParts.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace kartella {

LanguageChoice::LanguageChoice(QWidget* parent)
    : QWidget(parent)
{
    m_language = new QComboBox(this);
    m_language->setObjectName(QStringLiteral("cboLanguage"));
    m_language->addItem(tr("The desktop's language"), int(InterfaceLanguage::Desktop));
    // Each language by its own name, the same in any language of the interface.
    m_language->addItem(QStringLiteral("English"), int(InterfaceLanguage::English));
    m_language->addItem(QStringLiteral("Lietuvių"), int(InterfaceLanguage::Lithuanian));
    m_language->setCurrentIndex(m_language->findData(int(interfaceLanguage())));

    auto* note = new QLabel(tr("The language changes at the next start."), this);
    note->setObjectName(QStringLiteral("lblLanguageNote"));
    note->setWordWrap(true);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    QLabel* label = makeBuddyLabel(tr("&Language:"), m_language, this);
    label->setObjectName(QStringLiteral("lblLanguage"));
    layout->addWidget(label, 0, 0);
    layout->addWidget(m_language, 0, 1);
    layout->addWidget(note, 1, 1);
    layout->setColumnStretch(1, 1);

    connect(m_language, &QComboBox::activated, this, [this] {
        if (InterfaceLanguage(m_language->currentData().toInt()) != interfaceLanguage())
            Q_EMIT changed();
    });
}

void LanguageChoice::save()
{
    const auto shown = InterfaceLanguage(m_language->currentData().toInt());
    if (shown != interfaceLanguage())
        setInterfaceLanguage(shown);
}

} // namespace kartella
