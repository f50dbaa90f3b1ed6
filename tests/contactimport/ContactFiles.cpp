#include "ContactFiles.h"

#include <QFile>
#include <QStringEncoder>

namespace kartella::test {

QString writeContactFile(const QString& dir, const QString& name, const QByteArray& data)
{
    const QString path = dir + u'/' + name;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(data);
    return path;
}

QByteArray encoded(const QString& text, const char* codePage)
{
    QStringEncoder encoder(codePage);
    return encoder(text);
}

} // namespace kartella::test
