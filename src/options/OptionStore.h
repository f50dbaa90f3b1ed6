#pragma once

#include <QList>
#include <QPair>
#include <QString>

#include <concepts>
#include <optional>

namespace kartella {

// Where an options key lives: the user's own options or the machine's.
enum class Hive { CurrentUser, LocalMachine };

// The key under which the program's options live.
QString optionsKeyPath(); // "SOFTWARE\Kartella\Options"

// Options: one text value per name, names compared without regard to case. Nothing is
// cached; each read goes to the store and each write reaches it at once.
//
// Under Windows the key is the registry key HKEY_CURRENT_USER\SOFTWARE\Kartella\Options.
// Elsewhere it is the file $XDG_CONFIG_HOME/Kartella/Options.ini (default ~/.config),
// section [Options]; the key exists when the file does.

// Stores one option. Does nothing, silently, when the key is missing; a refused write
// shows "Unable to set Registry Value ..." and keeps the old value.
void setRegValue(const QString& name, const QString& value);
template<std::integral T>
void setRegValue(const QString& name, T value)
{
    setRegValue(name, QString::number(value));
}

// Reads one option: its text; "Not Found" when the key holds no such value (or one
// longer than 254 characters); empty text, after the "Unable to get Registry Value ..."
// message, when the key is missing.
QString getRegValue(const QString& name);

// Reads an option that holds a whole number (FileNumber, TodayNumber, IndexStyle, ...) as
// toInteger16 converts it, or a flag (AutoRegIndex, UseMnemonic, ...) as toTruthValue does.
// A value that can't be read so throws that conversion's Error (type mismatch or overflow)
// with wrongOptionMessage as its description, so that whoever shows it names the option.
qint16 getRegInteger(const QString& name);
bool getRegFlag(const QString& name);
// The message for an option whose value can't be read: it names the option, its value as
// read and where the options are kept, and adds the reason.
QString wrongOptionMessage(const QString& name, const QString& value, const QString& reason);

// The primitives under the two: write or read one value of any key.
bool writeRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& value);
QString readRegValue(Hive hive, const QString& keyPath, const QString& name, const QString& defaultValue);

// Writes several values of a key in one step: all of them or, when the store refuses,
// none. With keepExisting, a value the key already holds is left as it is. Returns how
// many values it wrote, -1 when the store refused (or couldn't be read).
int writeRegValues(
    Hive hive, const QString& keyPath, const QList<QPair<QString, QString>>& values, bool keepExisting);

// Whether the options key is there.
bool optionsKeyExists();
// The file that holds the options key where there is no registry.
QString optionsFilePath();

// The ini file: Windows directory + "\kartella.ini" under Windows, else
// $XDG_CONFIG_HOME/kartella.ini. Worked out anew at each call.
QString iniFilePath();
// Reads one key of section "DocContr"; a missing file or key gives iniDefaultValue().
QString getIniValue(const QString& key);
// Reads one key of section "DocContr" as getIniValue does; nothing for a missing file or key.
std::optional<QString> findIniValue(const QString& key);
// Writes one key of section "DocContr"; false when the file system refuses.
bool writeIniValue(const QString& key, const QString& value);
// "c:\" under Windows; elsewhere the home folder followed by "/".
QString iniDefaultValue();

// The folder that holds per-user configuration: $XDG_CONFIG_HOME, else ~/.config.
QString configFolder();

} // namespace kartella
