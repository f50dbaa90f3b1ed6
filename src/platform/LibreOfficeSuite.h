#pragma once

#include "platform/OfficeSuite.h"

#include <QByteArray>
#include <QStringList>

namespace kartella {

// Makes documents with LibreOffice running headless: it converts the template, or an empty
// seed document, to the Office 97 format of the kind, in a temporary folder and with a
// profile of its own for each call (so that a LibreOffice the user is running is left
// alone), and then moves the result to the target. Each call waits for LibreOffice, up to a
// time limit after which LibreOffice and its children are stopped.
class LibreOfficeSuite final : public OfficeSuite
{
public:
    static constexpr int DefaultTimeoutMs = 120 * 1000;

    void create(Kind kind, const QString& templatePath, const QString& target) override;
    void show(const QString& path) override;

    void setTimeout(int milliseconds) { m_timeoutMs = milliseconds; }

    // The extension of a new document of kind, without its dot: "doc", "xls", "ppt".
    static QString extension(Kind kind);
    // The empty document of kind as flat ODF (.fodt, .fods, .fodp), and its extension.
    static QByteArray seedDocument(Kind kind);
    static QString seedExtension(Kind kind);

    // The soffice program on the PATH; empty when LibreOffice is not installed.
    static QString program();
    // What every headless call starts with: no window, no recovery, and the profile folder
    // given, so that a LibreOffice the user is running is left alone.
    static QStringList headlessArguments(const QString& profileFolder);

private:
    int m_timeoutMs = DefaultTimeoutMs;
};

} // namespace kartella
