#include "support/PathUtils.h"

#include "base/Error.h"

#include <QCoreApplication>
#include <QDir>

namespace kartella {

namespace {

// Operating system error codes that the path routines raise.
constexpr qint32 PathNotFound = 3;
constexpr qint32 BadPathName = 161;

bool isSeparator(QChar c)
{
    return c == QDir::separator() || c == QLatin1Char('/');
}

// Where the root ends (index of its last character), by the first letter of the full path.
int findRootEnd(const QString& full)
{
    const QChar first = full.at(0).toUpper();
    if (first == QLatin1Char('/') && QDir::separator() == QLatin1Char('/'))
        return 0;
    if (first >= QLatin1Char('A') && first <= QLatin1Char('Z')) {
        if (full.size() >= 3 && full.at(1) == QLatin1Char(':') && isSeparator(full.at(2)))
            return 2;
        return -1;
    }
    if (isSeparator(first)) {
        // A network name: two separators, the server, then the separator that ends the root.
        if (full.size() < 2 || !isSeparator(full.at(1)))
            raiseApiError(BadPathName);
        for (qsizetype i = 2; i < full.size(); ++i) {
            if (isSeparator(full.at(i)))
                return int(i);
        }
        return int(full.size()) - 1;
    }
    if (first > QLatin1Char('Z'))
        raiseApiError(BadPathName);
    return -1;
}

QString expand(const QString& path)
{
    const QString base = QDir::currentPath();
    if (QDir::isRelativePath(path) && base.isEmpty())
        raiseApiError(PathNotFound);
    QString full = QDir::cleanPath(QDir(base).absoluteFilePath(path));
    if (isSeparator(path.back()) && !full.endsWith(QLatin1Char('/')))
        full += QLatin1Char('/');
    return QDir::toNativeSeparators(full);
}

} // namespace

bool hasShell()
{
    return true;
}

QString normalizePath(const QString& path)
{
    if (path.isEmpty() || path.back() != QDir::separator())
        return path % QDir::separator();
    return path;
}

void denormalizePath(QString& path)
{
    if (!path.isEmpty() && path.back() == QDir::separator())
        path.chop(1);
}

QString getFullPath(const QString& path, FullPathParts& parts)
{
    if (path.isEmpty())
        return {};
    const QString full = expand(path);
    const int rootEnd = findRootEnd(full);
    int name = rootEnd + 1;
    int extension = int(full.size());
    bool dotSeen = false;
    for (int i = int(full.size()) - 1; i >= rootEnd && i >= 0; --i) {
        const QChar c = full.at(i);
        if (isSeparator(c)) {
            name = i + 1;
            break;
        }
        if (c == QLatin1Char('.') && !dotSeen) {
            extension = i;
            dotSeen = true;
        }
    }
    parts = {name, extension, rootEnd};
    return full;
}

QString getFullPath(const QString& path, int& namePosition, int& extensionPosition, int& rootEnd)
{
    FullPathParts parts {namePosition, extensionPosition, rootEnd};
    QString full = getFullPath(path, parts);
    namePosition = parts.name;
    extensionPosition = parts.extension;
    rootEnd = parts.rootEnd;
    return full;
}

QString getFileBaseExt(const QString& path)
{
    if (path.isEmpty())
        return {};
    FullPathParts parts;
    return getFullPath(path, parts).mid(parts.name);
}

QString trimAtNull(const QString& text)
{
    const qsizetype at = text.indexOf(QChar(0));
    return at < 0 ? text : text.left(at);
}

QString apiErrorText(qint32 code)
{
    switch (code) {
    case 2:
        return QCoreApplication::translate(
            "kartella::PathUtils", "The system cannot find the file specified.");
    case PathNotFound:
        return QCoreApplication::translate(
            "kartella::PathUtils", "The system cannot find the path specified.");
    case 5:
        return QCoreApplication::translate("kartella::PathUtils", "Access is denied.");
    case 123:
        return QCoreApplication::translate(
            "kartella::PathUtils", "The filename, directory name, or volume label syntax is incorrect.");
    case BadPathName:
        return QCoreApplication::translate("kartella::PathUtils", "The specified path is invalid.");
    case 206:
        return QCoreApplication::translate("kartella::PathUtils", "The filename or extension is too long.");
    default:
        return {};
    }
}

long apiErrorNumber(qint32 code)
{
    return long(qint32(quint32(code) + 0x80047148u));
}

void raiseApiError(qint32 code)
{
    throw Error(apiErrorNumber(code), apiErrorText(code), QStringLiteral("Kartella.Windows"));
}

} // namespace kartella
