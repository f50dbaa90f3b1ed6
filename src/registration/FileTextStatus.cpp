#include "registration/FileTextStatus.h"

#include "base/Error.h"
#include "content/TextStore.h"
#include "store/Store.h"
#include "store/engine/Connection.h"
#include "support/DialogParts.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace kartella {

FileTextStatus::FileTextStatus(qint32 documentId, QWidget* parent)
    : QWidget(parent)
{
    m_status = new QLineEdit(this);
    m_status->setObjectName(QStringLiteral("txtFileText"));
    m_status->setReadOnly(true);
    m_status->setToolTip(tr("Whether the text of the file was read for the search"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(makeBuddyLabel(tr("Text of the file:"), m_status, this));
    layout->addWidget(m_status, 1);

    QString status;
    try {
        Connection connection(plainConnectionString());
        connection.open();
        const auto stored = storedDocumentText(connection, documentId, false);
        status
            = stored ? textStatusText(stored->state, stored->reason) : textStatusText(TextState::NotRead, {});
    } catch (const Error&) {
        // A register of an older form has no such table: its files aren't read.
        status = textStatusText(TextState::NotRead, {});
    }
    m_status->setText(status);
}

QString FileTextStatus::text() const
{
    return m_status->text();
}

} // namespace kartella
