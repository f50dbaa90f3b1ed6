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

// Where the program's translations are: compiled into the program.
inline const QString TranslationsFolder = QStringLiteral(":/i18n");

} // namespace kartella
