#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace kartella::engine {

// A token of Jet-dialect text: where it stands and what kind it is. Blanks are tokens too,
// so that the text can be put together again around the tokens that change.
struct SqlToken
{
    enum Kind {
        Space,
        Word, // a name or keyword
        Number,
        String, // 'text', quotes doubled inside
        Quoted, // "name", `name` or [name]
        Date, // #...#
        Punct, // one operator or punctuation character, or <> <= >= != ||
    };
    Kind kind;
    qsizetype pos;
    qsizetype len;
};

std::vector<SqlToken> tokenizeSql(QStringView text);

// Helpers on a token of text.
inline QStringView tokenText(QStringView text, const SqlToken& token)
{
    return text.mid(token.pos, token.len);
}
bool isKeyword(QStringView text, const SqlToken& token, QStringView keyword);
bool isPunct(QStringView text, const SqlToken& token, QChar c);
// The name in a Word or Quoted token, without its quotes; the text of a String without
// its quotes and with doubled quotes made single.
QString unquotedText(QStringView text, const SqlToken& token);

} // namespace kartella::engine
