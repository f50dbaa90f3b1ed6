#include "registration/DialogParts.h"

#include "platform/Prompter.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace kartella {

QPushButton* makeDialogButton(const QString& name, const QString& caption, QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QLabel* makeBuddyLabel(const QString& caption, QWidget* buddy, QWidget* parent)
{
    auto* label = new QLabel(caption, parent);
    label->setBuddy(buddy);
    return label;
}

QLineEdit* makeFieldBox(int index, QWidget* parent)
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(QStringLiteral("txtFields_") + QString::number(index));
    return box;
}

void restoreDefaultCursor()
{
    while (QGuiApplication::overrideCursor())
        QGuiApplication::restoreOverrideCursor();
}

void reportStoreError(long number, const QString& description, const QString& title)
{
    msgBox(QStringLiteral("Error: ") + QString::number(number) + u' ' + description,
        MsgBoxStyle::OkOnly | MsgBoxStyle::Critical, title);
}

} // namespace kartella
