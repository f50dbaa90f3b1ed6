#pragma once

#include <QByteArray>
#include <QString>

namespace kartella::test {

// Writes data to dir/name and returns the path.
QString writeContactFile(const QString& dir, const QString& name, const QByteArray& data);
// text in the named code page.
QByteArray encoded(const QString& text, const char* codePage);

} // namespace kartella::test
