#include "platform/WidgetPrompter.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>

namespace kartella {

namespace {

QMessageBox::StandardButton standardButton(int result)
{
    switch (result) {
    case MsgBoxResult::Ok:
        return QMessageBox::Ok;
    case MsgBoxResult::Cancel:
        return QMessageBox::Cancel;
    case MsgBoxResult::Abort:
        return QMessageBox::Abort;
    case MsgBoxResult::Retry:
        return QMessageBox::Retry;
    case MsgBoxResult::Ignore:
        return QMessageBox::Ignore;
    case MsgBoxResult::Yes:
        return QMessageBox::Yes;
    case MsgBoxResult::No:
        return QMessageBox::No;
    default:
        return QMessageBox::NoButton;
    }
}

QMessageBox::Icon icon(int style)
{
    switch (style & MsgBoxStyle::IconMask) {
    case MsgBoxStyle::Critical:
        return QMessageBox::Critical;
    case MsgBoxStyle::Question:
        return QMessageBox::Question;
    case MsgBoxStyle::Exclamation:
        return QMessageBox::Warning;
    case MsgBoxStyle::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QWidget* ownerWindow()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

const char* const ResultProperty = "msgBoxResult";

} // namespace

std::unique_ptr<QMessageBox> buildMessageBox(
    const QString& prompt, int style, const QString& title, QWidget* parent)
{
    auto box = std::make_unique<QMessageBox>(parent);
    box->setWindowTitle(title.isEmpty() ? programTitle() : title);
    // Messages separate their lines with a carriage return alone.
    QString text = prompt;
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
    box->setText(text);
    box->setTextFormat(Qt::PlainText);
    box->setIcon(icon(style));

    const QList<int> results = buttonResults(style);
    for (int result : results) {
        QPushButton* button = box->addButton(standardButton(result));
        button->setProperty(ResultProperty, result);
        if (result == defaultResult(style))
            box->setDefaultButton(button);
        if (result == escapeResult(style))
            box->setEscapeButton(button);
    }
    return box;
}

int messageBoxResult(const QMessageBox& box, int style)
{
    if (const QAbstractButton* clicked = box.clickedButton()) {
        const QVariant result = clicked->property(ResultProperty);
        if (result.isValid())
            return result.toInt();
    }
    return escapeResult(style) ? escapeResult(style) : defaultResult(style);
}

int WidgetPrompter::msgBox(const QString& prompt, int style, const QString& title)
{
    const std::unique_ptr<QMessageBox> box = buildMessageBox(prompt, style, title, ownerWindow());
    box->exec();
    return messageBoxResult(*box, style);
}

int WidgetPrompter::choose(const QString& prompt, const QStringList& choices, int style, const QString& title)
{
    const std::unique_ptr<QMessageBox> box
        = buildMessageBox(prompt, style & MsgBoxStyle::IconMask, title, ownerWindow());
    // The box comes with an OK button of its own; the choices take its place.
    for (QAbstractButton* button : box->buttons()) {
        box->removeButton(button);
        delete button;
    }
    QList<QPushButton*> buttons;
    for (const QString& choice : choices)
        buttons.append(box->addButton(choice, QMessageBox::ActionRole));
    if (buttons.isEmpty())
        return -1;
    box->setDefaultButton(buttons.first());
    box->setEscapeButton(buttons.last());
    box->exec();
    const qsizetype index = buttons.indexOf(qobject_cast<QPushButton*>(box->clickedButton()));
    return int(index < 0 ? buttons.size() - 1 : index);
}

QString fileDialogFilter(const QString& label, const QString& pattern)
{
    QString name = label.trimmed();
    if (name.endsWith(u')') && name.contains(u'('))
        name = name.left(name.lastIndexOf(u'(')).trimmed();
    QStringList patterns = pattern.trimmed().split(u';', Qt::SkipEmptyParts);
    for (QString& p : patterns) {
        p = p.trimmed();
#ifndef Q_OS_WIN
        // "*.*" means every file; elsewhere it would want a dot in the name.
        if (p == QLatin1String("*.*"))
            p = QStringLiteral("*");
#endif
    }
    if (patterns.isEmpty())
        patterns << QStringLiteral("*");
    return QStringLiteral("%1 (%2)").arg(name, patterns.join(u' '));
}

QString WidgetPrompter::openFile(const OpenFileRequest& request)
{
    const QString filter = fileDialogFilter(request.filterLabel, request.pattern);
    return QFileDialog::getOpenFileName(
        ownerWindow(), request.title.trimmed(), request.startFolder.trimmed(), filter);
}

std::unique_ptr<QFileDialog> buildFolderChooser(const QString& prompt, QWidget* parent)
{
    auto dialog = std::make_unique<QFileDialog>(parent, prompt, QDir::homePath());
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly, true);
    return dialog;
}

QString WidgetPrompter::chooseFolder(const QString& prompt)
{
    const auto dialog = buildFolderChooser(prompt, ownerWindow());
    if (dialog->exec() != QDialog::Accepted || dialog->selectedFiles().isEmpty())
        return {};
    return dialog->selectedFiles().constFirst();
}

} // namespace kartella
