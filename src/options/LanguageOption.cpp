#include "options/LanguageOption.h"

#include "options/OptionStore.h"

namespace kartella {

namespace {

const QString LanguageName = QStringLiteral("Language");

} // namespace

InterfaceLanguage interfaceLanguage()
{
    const QString value = readRegValue(Hive::CurrentUser, optionsKeyPath(), LanguageName, {}).trimmed();
    if (value.compare(QLatin1String("en"), Qt::CaseInsensitive) == 0)
        return InterfaceLanguage::English;
    if (value.compare(QLatin1String("lt"), Qt::CaseInsensitive) == 0)
        return InterfaceLanguage::Lithuanian;
    return InterfaceLanguage::Desktop;
}

void setInterfaceLanguage(InterfaceLanguage language)
{
    const QString value = language == InterfaceLanguage::English ? QStringLiteral("en")
        : language == InterfaceLanguage::Lithuanian              ? QStringLiteral("lt")
                                                                 : QString();
    writeRegValue(Hive::CurrentUser, optionsKeyPath(), LanguageName, value);
}

QStringList interfaceLanguages(InterfaceLanguage language, const QStringList& desktopLanguages)
{
    switch (language) {
    case InterfaceLanguage::English:
        return {};
    case InterfaceLanguage::Lithuanian:
        return {QStringLiteral("lt")};
    case InterfaceLanguage::Desktop:
        break;
    }
    return desktopLanguages;
}

} // namespace kartella
