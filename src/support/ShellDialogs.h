#pragma once

#include <QString>

namespace kartella {

// What a caller of the file chooser fills in: the dialog's title, the folder it starts
// in, and one filter (a label such as "Word templates (*.dot)" and its pattern "*.dot").
struct OpenFileRecord
{
    QString title;
    QString startFolder;
    QString filterLabel;
    QString pattern;
};

// Asks the user for one existing file through the installed Prompter. Title, start
// folder and filter lose their trailing blanks first. Returns the chosen path; Cancel
// gives empty text.
QString showOpenDialog(const OpenFileRecord& record);

// Asks the user for a folder, prompt as the chooser's title. Returns the chosen folder;
// Cancel gives empty text.
QString chooseFolder(const QString& prompt);

} // namespace kartella
