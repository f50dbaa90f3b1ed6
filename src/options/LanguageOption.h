#pragma once

#include <QString>
#include <QStringList>

namespace kartella {

// The language of the interface, in the user's options key ("Language"): empty follows the
// desktop, "en" is English (the program's own texts), "lt" is Lithuanian. It takes effect
// at the next start.
enum class InterfaceLanguage { Desktop, English, Lithuanian };

InterfaceLanguage interfaceLanguage();
void setInterfaceLanguage(InterfaceLanguage language);

// The languages to look for translations in, best first, as QLocale::uiLanguages() gives
// them ("lt-LT", "lt"): the desktop's for Desktop, none for English (the texts as written).
QStringList interfaceLanguages(InterfaceLanguage language, const QStringList& desktopLanguages);

} // namespace kartella
