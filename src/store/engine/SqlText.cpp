#include "store/engine/SqlText.h"

namespace kartella {

QString sqlString(const QString& text)
{
    QString quoted;
    quoted.reserve(text.size() + 2);
    quoted += u'\'';
    for (const QChar c : text) {
        if (c == u'\'')
            quoted += u'\'';
        quoted += c;
    }
    quoted += u'\'';
    return quoted;
}

QString sqlLikeText(const QString& text, LikeMatch match)
{
    QString pattern;
    pattern.reserve(text.size() + 2);
    if (match == LikeMatch::Anywhere)
        pattern += u'%';
    for (const QChar c : text) {
        if (c == u'\\' || c == u'%' || c == u'_')
            pattern += u'\\';
        pattern += c;
    }
    if (match != LikeMatch::Whole)
        pattern += u'%';
    return sqlString(pattern) + QStringLiteral(" ESCAPE '\\'");
}

} // namespace kartella
