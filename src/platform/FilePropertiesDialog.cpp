#include "platform/FilePropertiesDialog.h"

#include "support/FileInfo.h"

#include <QDateTime>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

namespace kartella {

namespace {

constexpr int IconSize = 32;

QString symbolic(QFileDevice::Permissions p)
{
    const auto flag = [p](QFileDevice::Permission bit, char letter) {
        return QLatin1Char(p.testFlag(bit) ? letter : '-');
    };
    QString text;
    text += flag(QFileDevice::ReadOwner, 'r');
    text += flag(QFileDevice::WriteOwner, 'w');
    text += flag(QFileDevice::ExeOwner, 'x');
    text += flag(QFileDevice::ReadGroup, 'r');
    text += flag(QFileDevice::WriteGroup, 'w');
    text += flag(QFileDevice::ExeGroup, 'x');
    text += flag(QFileDevice::ReadOther, 'r');
    text += flag(QFileDevice::WriteOther, 'w');
    text += flag(QFileDevice::ExeOther, 'x');
    return text;
}

} // namespace

FilePropertiesDialog::FilePropertiesDialog(const QString& path, QWidget* parent)
    : QDialog(parent)
{
    const QFileInfo info(path);
    FileInfo shellInfo;
    shellInfo.createFromFile(path);

    setObjectName(QStringLiteral("frmFileProperties"));
    setWindowTitle(tr("%1 Properties").arg(info.fileName()));

    auto* layout = new QVBoxLayout(this);
    auto* header = new QHBoxLayout;
    auto* icon = new QLabel(this);
    icon->setObjectName(QStringLiteral("imgIcon"));
    icon->setAccessibleName(QStringLiteral("File icon"));
    icon->setPixmap(shellInfo.largeIcon().pixmap(IconSize, IconSize));
    icon->setFixedSize(IconSize, IconSize);
    header->addWidget(icon);
    header->addStretch();
    layout->addLayout(header);

    auto* form = new QFormLayout;
    addField(form, QStringLiteral("txtName"), tr("&Name:"), QStringLiteral("Name"), info.fileName());
    addField(form, QStringLiteral("txtType"), tr("&Type:"), QStringLiteral("Type"),
        typeText(shellInfo.typeName()));
    addField(form, QStringLiteral("txtSize"), tr("&Size:"), QStringLiteral("Size"),
        info.isDir() ? QString() : sizeText(info.size()));
    addField(form, QStringLiteral("txtFolder"), tr("&Folder:"), QStringLiteral("Folder"),
        QDir::toNativeSeparators(info.absolutePath()));
    addField(form, QStringLiteral("txtModified"), tr("&Modified:"), QStringLiteral("Modified"),
        dateText(info.lastModified()));
    addField(form, QStringLiteral("txtCreated"), tr("&Created:"), QStringLiteral("Created"),
        dateText(info.birthTime()));
    addField(form, QStringLiteral("txtPermissions"), tr("&Permissions:"), QStringLiteral("Permissions"),
        permissionsText(info.permissions()));
    layout->addLayout(form);

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close = buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole);
    close->setObjectName(QStringLiteral("cmdClose"));
    close->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    close->setFocus();
}

QLineEdit* FilePropertiesDialog::addField(QFormLayout* form, const QString& objectName, const QString& label,
    const QString& accessibleName, const QString& value)
{
    auto* field = new QLineEdit(value, this);
    field->setObjectName(objectName);
    field->setAccessibleName(accessibleName);
    field->setReadOnly(true);
    field->setFrame(false);
    field->setMinimumWidth(
        field->fontMetrics().horizontalAdvance(value) + 2 * field->fontMetrics().averageCharWidth());
    field->setCursorPosition(0);
    auto* caption = new QLabel(label, this);
    caption->setBuddy(field);
    form->addRow(caption, field);
    return field;
}

QString FilePropertiesDialog::sizeText(qint64 bytes)
{
    const QLocale locale;
    if (bytes == 1)
        return tr("1 byte");
    if (bytes < 1024)
        return tr("%1 bytes").arg(locale.toString(bytes));
    return tr("%1 (%2 bytes)").arg(locale.formattedDataSize(bytes), locale.toString(bytes));
}

QString FilePropertiesDialog::permissionsText(QFileDevice::Permissions permissions)
{
    QString access;
    if (permissions.testFlag(QFileDevice::ReadOwner) && permissions.testFlag(QFileDevice::WriteOwner))
        access = tr("Read and write");
    else if (permissions.testFlag(QFileDevice::ReadOwner))
        access = tr("Read only");
    else if (permissions.testFlag(QFileDevice::WriteOwner))
        access = tr("Write only");
    else
        access = tr("No access");
    if (permissions.testFlag(QFileDevice::ExeOwner))
        access = tr("%1, executable").arg(access);
    return tr("%1 (%2)").arg(access, symbolic(permissions));
}

QString FilePropertiesDialog::typeText(const QString& typeName)
{
    // FileInfo names a launcher and nothing in English words of its own, which others compare.
    if (typeName == QLatin1String("Shortcut"))
        return tr("Shortcut");
    if (typeName == QLatin1String("None"))
        return tr("None");
    return typeName;
}

QString FilePropertiesDialog::dateText(const QDateTime& when)
{
    if (!when.isValid())
        return tr("Unknown");
    return QLocale().toString(when.toLocalTime(), QLocale::LongFormat);
}

} // namespace kartella
