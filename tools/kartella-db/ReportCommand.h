#pragma once

namespace kartella::tool {

// Whether the command line asks for the report subcommand, which needs a GUI application
// (fonts, painting) instead of the plain one of the other commands.
bool isReportCommand(int argc, char** argv);

// kartella-db report --list | report NAME PATH.pdf [--register FILE] [--previous-month]:
// writes a report to a PDF without a window. Uses Qt's offscreen platform unless
// QT_QPA_PLATFORM names one. Gives the exit code.
int runReportCommand(int argc, char** argv);

} // namespace kartella::tool
