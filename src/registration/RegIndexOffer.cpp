#include "registration/RegIndexOffer.h"

#include "platform/Prompter.h"
#include "registration/RegIndex.h"
#include "store/engine/Connection.h"

#include <QCoreApplication>
#include <QLineEdit>

namespace kartella {

bool offerFreeRegIndex(QLineEdit* box, const QString& connectionString, const QString& title)
{
    const QString index = box->text();
    Connection connection;
    connection.open(connectionString);
    const QString next = reserveFreeRegIndex(connection, index);
    const QString question = QCoreApplication::translate("kartella::RegIndexOffer",
        "The register already has a document with the index \"%1\". Store this one as \"%2\"?")
                                 .arg(index, next);
    if (msgBox(question, MsgBoxStyle::YesNo | MsgBoxStyle::Question, title) != MsgBoxResult::Yes) {
        releaseRegIndex(connection, next);
        box->setFocus(Qt::OtherFocusReason);
        box->selectAll();
        return false;
    }
    box->setText(next);
    return true;
}

} // namespace kartella
