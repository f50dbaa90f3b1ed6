#pragma once

#include "platform/OfficeSuite.h"

#include <QByteArray>
#include <QString>

namespace kartella::test {

// A flat ODF document of kind holding text (a paragraph, a cell, a text box on a slide).
QByteArray flatDocument(OfficeSuite::Kind kind, const QByteArray& text);

// Makes the Office 97 template of kind (".dot", ".xlt", ".pot") in folder with LibreOffice,
// holding "Template marker <name>". Returns its path, or empty text when LibreOffice failed.
QString makeOfficeTemplate(OfficeSuite::Kind kind, const QString& folder, const QString& name);

// Whether a document file holds text, in one byte or two bytes a character.
bool fileHoldsText(const QString& path, const QString& text);

} // namespace kartella::test
