#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace kartella::tool {

// One call of the tool, as read from its command line.
struct Invocation
{
    enum class Command { Help, Create, Sample, Info, Upgrade, Search };
    Command command = Command::Help;
    QString path;
    QStringList words; // search
    int documents = 400;
    quint32 seed = 20240305;
};

// Reads the arguments (without the program's name). On a usage error gives nothing and
// sets problem to a one-line reason.
std::optional<Invocation> parseArguments(const QStringList& arguments, QString& problem);

// The usage text, ending in a line break.
QString usageText();

} // namespace kartella::tool
