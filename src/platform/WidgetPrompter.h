#pragma once

#include "platform/Prompter.h"

#include <QFileDialog>
#include <QMessageBox>

#include <memory>

class QWidget;

namespace kartella {

// Builds the message box for a prompt and style, without showing it. Each button
// carries its result code in the property "msgBoxResult".
std::unique_ptr<QMessageBox> buildMessageBox(
    const QString& prompt, int style, const QString& title, QWidget* parent = nullptr);
// The result code of the button that closed box, or its escape result when none was clicked.
int messageBoxResult(const QMessageBox& box, int style);

// The file dialog's filter for a label such as "Word templates (*.dot)" and its pattern.
QString fileDialogFilter(const QString& label, const QString& pattern);

// Builds the folder chooser for a prompt, without showing it. It starts in the user's home
// folder.
std::unique_ptr<QFileDialog> buildFolderChooser(const QString& prompt, QWidget* parent = nullptr);

// The prompter of the running program: Qt's message box and file dialogs, owned by the
// window that is active at the time.
class WidgetPrompter final : public Prompter
{
public:
    int msgBox(const QString& prompt, int style, const QString& title) override;
    QString openFile(const OpenFileRequest& request) override;
    QString chooseFolder(const QString& prompt) override;
    int choose(const QString& prompt, const QStringList& choices, int style, const QString& title) override;
};

} // namespace kartella
