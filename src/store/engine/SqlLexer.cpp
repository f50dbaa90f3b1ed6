#include "store/engine/SqlLexer.h"

namespace kartella::engine {

namespace {

bool isWordStart(QChar c)
{
    return c.isLetter() || c == u'_';
}
bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c == u'_' || c == u'$';
}

// The end of a run closed by `close`, where a doubled `close` stands for itself when
// `doubled` is set; an unclosed run takes the rest of the text.
qsizetype closingEnd(QStringView text, qsizetype start, QChar close, bool doubled)
{
    qsizetype i = start + 1;
    while (i < text.size()) {
        if (text[i] == close) {
            if (doubled && i + 1 < text.size() && text[i + 1] == close) {
                i += 2;
                continue;
            }
            return i + 1;
        }
        ++i;
    }
    return text.size();
}

// A #...# literal ends at the next # on the same line; otherwise # is plain punctuation.
qsizetype dateEnd(QStringView text, qsizetype start)
{
    for (qsizetype i = start + 1; i < text.size(); ++i) {
        if (text[i] == u'#')
            return i + 1;
        if (text[i] == u'\n' || text[i] == u'\r' || text[i] == u'\'')
            return -1;
    }
    return -1;
}

} // namespace

std::vector<SqlToken> tokenizeSql(QStringView text)
{
    std::vector<SqlToken> tokens;
    qsizetype i = 0;
    const qsizetype n = text.size();
    while (i < n) {
        const QChar c = text[i];
        const qsizetype start = i;
        SqlToken::Kind kind = SqlToken::Punct;
        if (c.isSpace()) {
            while (i < n && text[i].isSpace())
                ++i;
            kind = SqlToken::Space;
        } else if (c == u'\'') {
            i = closingEnd(text, i, u'\'', true);
            kind = SqlToken::String;
        } else if (c == u'"') {
            i = closingEnd(text, i, u'"', true);
            kind = SqlToken::Quoted;
        } else if (c == u'`') {
            i = closingEnd(text, i, u'`', false);
            kind = SqlToken::Quoted;
        } else if (c == u'[') {
            i = closingEnd(text, i, u']', false);
            kind = SqlToken::Quoted;
        } else if (c == u'#' && dateEnd(text, i) > 0) {
            i = dateEnd(text, i);
            kind = SqlToken::Date;
        } else if (c.isDigit() || (c == u'.' && i + 1 < n && text[i + 1].isDigit())) {
            while (i < n && (text[i].isDigit() || text[i] == u'.'))
                ++i;
            if (i < n && (text[i] == u'e' || text[i] == u'E')) {
                qsizetype j = i + 1;
                if (j < n && (text[j] == u'+' || text[j] == u'-'))
                    ++j;
                if (j < n && text[j].isDigit()) {
                    i = j;
                    while (i < n && text[i].isDigit())
                        ++i;
                }
            }
            kind = SqlToken::Number;
        } else if (isWordStart(c)) {
            while (i < n && isWordPart(text[i]))
                ++i;
            kind = SqlToken::Word;
        } else {
            ++i;
            if (i < n) {
                const QChar d = text[i];
                if ((c == u'<' && (d == u'>' || d == u'=')) || (c == u'>' && d == u'=')
                    || (c == u'!' && d == u'=') || (c == u'|' && d == u'|'))
                    ++i;
            }
        }
        tokens.push_back(SqlToken {kind, start, i - start});
    }
    return tokens;
}

bool isKeyword(QStringView text, const SqlToken& token, QStringView keyword)
{
    return token.kind == SqlToken::Word && tokenText(text, token).compare(keyword, Qt::CaseInsensitive) == 0;
}

bool isPunct(QStringView text, const SqlToken& token, QChar c)
{
    return token.kind == SqlToken::Punct && token.len == 1 && text[token.pos] == c;
}

QString unquotedText(QStringView text, const SqlToken& token)
{
    const QStringView raw = tokenText(text, token);
    if (token.kind != SqlToken::String && token.kind != SqlToken::Quoted)
        return raw.toString();
    if (raw.size() < 2)
        return raw.mid(1).toString();
    const QChar open = raw.front();
    const QChar close = open == u'[' ? QChar(u']') : open;
    QStringView inner = raw.mid(1);
    if (inner.endsWith(close))
        inner.chop(1);
    QString result = inner.toString();
    if (open == u'\'' || open == u'"')
        result.replace(QString(2, open), QString(open));
    return result;
}

} // namespace kartella::engine
