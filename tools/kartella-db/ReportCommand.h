#pragma once

namespace kartella::tool {

// Whether the command line asks for the report subcommand, which needs a GUI application
// (fonts, painting) instead of the plain one of the other commands.
bool isReportCommand(int argc, char** argv);

// kartella-db report --list | report NAME PATH.pdf [--register FILE] [--previous-month]
// [--overwrite]: writes a report to a PDF without a window. Never writes over the register,
// nor over an existing file without --overwrite; the PDF replaces the file only when it was
// written whole. Uses Qt's offscreen platform unless QT_QPA_PLATFORM names one. Gives the
// exit code: 0 written, 1 not written (the reason on stderr), 2 a wrong command line.
int runReportCommand(int argc, char** argv);

} // namespace kartella::tool
