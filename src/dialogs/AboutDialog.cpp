#include "dialogs/AboutDialog.h"

#include "dialogs/SystemInfo.h"
#include "platform/Prompter.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QStyle>

namespace kartella {

namespace {

QLabel* makeLabel(const QString& name, const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setWordWrap(true);
    return label;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAbout"));
    const QString title = programTitle();
    setWindowTitle(tr("About %1").arg(title));

    auto* icon = makeLabel(QStringLiteral("picIcon"), {}, this);
    QIcon picture = QApplication::windowIcon();
    if (picture.isNull())
        picture = style()->standardIcon(QStyle::SP_FileDialogInfoView);
    icon->setPixmap(picture.pixmap(48, 48));
    icon->setAccessibleName(tr("Program icon"));

    QLabel* titleLabel = makeLabel(QStringLiteral("lblTitle"), title, this);
    QFont bigger = titleLabel->font();
    bigger.setPointSizeF(bigger.pointSizeF() * 1.5);
    bigger.setBold(true);
    titleLabel->setFont(bigger);
    QLabel* version = makeLabel(QStringLiteral("lblVersion"), programVersionLine(), this);
    QLabel* description = makeLabel(QStringLiteral("lblDescription"),
        tr("The Documents Management Application for single users and small workgroups."), this);
    QLabel* disclaimer = makeLabel(QStringLiteral("lblDisclaimer"),
        tr("Warning: this program is provided as is, without warranty of any kind. Keep copies of "
           "your register and documents."),
        this);

    auto* ok = new QPushButton(tr("OK"), this);
    ok->setObjectName(QStringLiteral("cmdOK"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &QDialog::accept);
    auto* sysInfo = new QPushButton(tr("&System Info..."), this);
    sysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
    sysInfo->setAutoDefault(false);
    connect(sysInfo, &QPushButton::clicked, this, &AboutDialog::startSysInfo);

    auto* layout = new QGridLayout(this);
    layout->addWidget(icon, 0, 0, 3, 1, Qt::AlignTop);
    layout->addWidget(titleLabel, 0, 1);
    layout->addWidget(version, 1, 1);
    layout->addWidget(description, 2, 1);
    layout->addWidget(disclaimer, 3, 0, 1, 2);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok);
    buttons->addWidget(sysInfo);
    layout->addLayout(buttons, 4, 0, 1, 2);
    ok->setFocus();
}

void AboutDialog::startSysInfo()
{
    const QString tool = findSystemInfoTool();
    if (tool.isEmpty() || !QProcess::startDetached(tool, {}))
        msgBox(systemInfoUnavailableText());
}

} // namespace kartella
