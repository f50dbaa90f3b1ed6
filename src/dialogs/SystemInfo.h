#pragma once

#include <QString>

#include <functional>
#include <optional>

namespace kartella {

// "Version major.minor.revision", each number in plain digits.
QString versionLine(int major, int minor, int revision);
// The version line of this build.
QString programVersionLine();

// Reads one text value of the machine's registry (key path, value name); nothing when the
// key or the value isn't there. Where there is no registry it finds nothing.
using MachineKeyReader = std::function<std::optional<QString>(const QString& keyPath, const QString& name)>;
std::optional<QString> readMachineKey(const QString& keyPath, const QString& name);

// The path of the system information tool: the value PATH of
// "SOFTWARE\Microsoft\Shared Tools\MSINFO", else MSINFO32.EXE in the folder that the value
// MSINFO of "SOFTWARE\Microsoft\Shared Tools Location" names, if that file exists. Empty
// text when neither gives a tool.
QString findSystemInfoTool(const MachineKeyReader& read = readMachineKey);

// The message shown when there is no tool to start.
QString systemInfoUnavailableText();

} // namespace kartella
