#pragma once

#include <QString>
#include <QStringList>

namespace kartella {

// Installs the interface's translation for the first of languages (best first, as
// QLocale::uiLanguages() gives them) that has one, with Qt's own translation of its dialogs
// and buttons in that language where Qt has one. An English language before any translated
// one keeps the program's own English texts. Returns the language installed ("lt"), or an
// empty text when the texts stay English.
QString installTranslations(const QStringList& languages);

// The language of the program's own translation installed now ("lt_LT"), empty while its
// texts are English; a process the program starts is told it, to speak as the program does.
QString installedInterfaceLanguage();

// The translations compiled into the program.
inline const QString BuiltInTranslationsFolder = QStringLiteral(":/i18n");

// Where the program looks for its translations, first hit wins: "translations" in each of
// its data folders (<prefix>/share/kartella/translations when installed, where a new
// language's .qm can be dropped in), then the ones compiled into the program.
QStringList translationFolders();

} // namespace kartella
