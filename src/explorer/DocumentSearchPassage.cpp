// The passages the search shows from the documents' files' texts: the words around the
// first hit, found as the files' index finds words.
#include "explorer/DocumentSearch.h"
#include "store/engine/Connection.h"
#include "store/engine/Recordset.h"

#include <QHash>
#include <QStringList>

namespace kartella {

namespace {

// Words shown before the hit and after it.
constexpr int WordsAround = 8;

struct Word
{
    qsizetype start = 0;
    qsizetype end = 0;
    QString folded;
};

bool isWordCharacter(QChar c)
{
    return c.isLetterOrNumber() || c.isMark();
}

// A character as the index keeps it: its diacritics dropped, its case folded. Each one is
// worked out once; NFD decomposes a character alone, so a word folds character by character.
const QString& foldedCharacter(QChar c)
{
    thread_local QHash<char16_t, QString> folded;
    auto found = folded.constFind(c.unicode());
    if (found != folded.cend())
        return *found;
    QString base;
    for (const QChar part : QString(c).normalized(QString::NormalizationForm_D)) {
        if (!part.isMark())
            base += part;
    }
    return *folded.insert(c.unicode(), base.toCaseFolded());
}

// A word as the index keeps it: diacritics dropped, case folded.
QString foldWord(QStringView word)
{
    QString folded;
    folded.reserve(word.size());
    for (const QChar c : word) {
        const char16_t u = c.unicode();
        if (u < 0x80) {
            folded += u >= u'A' && u <= u'Z' ? QChar(u + (u'a' - u'A')) : c;
        } else if (c.isSurrogate()) {
            // A character beyond the first plane: the word is folded whole.
            QString whole;
            for (const QChar part : word.toString().normalized(QString::NormalizationForm_D)) {
                if (!part.isMark())
                    whole += part;
            }
            return whole.toCaseFolded();
        } else {
            folded += foldedCharacter(c);
        }
    }
    return folded;
}

// The words of a text from `from` on, as far as `count` of them (all when -1).
QList<Word> wordsOf(const QString& text, qsizetype from = 0, int count = -1)
{
    QList<Word> words;
    qsizetype at = from;
    while (at < text.size() && count != 0) {
        if (!isWordCharacter(text[at])) {
            ++at;
            continue;
        }
        Word word;
        word.start = at;
        while (at < text.size() && isWordCharacter(text[at]))
            ++at;
        word.end = at;
        word.folded = foldWord(QStringView(text).mid(word.start, word.end - word.start));
        words << word;
        if (count > 0)
            --count;
    }
    return words;
}

struct Pattern
{
    QStringList words;
    bool prefix = false;
};

// Whether the words from `at` on match the pattern.
bool matchesAt(const QList<Word>& words, qsizetype at, const Pattern& pattern)
{
    if (at + pattern.words.size() > words.size())
        return false;
    for (qsizetype i = 0; i < pattern.words.size(); ++i) {
        const QString& word = words[at + i].folded;
        const bool last = i + 1 == pattern.words.size();
        if (last && pattern.prefix ? !word.startsWith(pattern.words[i]) : word != pattern.words[i])
            return false;
    }
    return true;
}

QString oneLine(const QString& text)
{
    return text.simplified();
}

} // namespace

QString searchPassage(const QString& text, const QList<SearchTerm>& terms)
{
    QList<Pattern> patterns;
    qsizetype longest = 1;
    for (const SearchTerm& term : terms) {
        Pattern pattern;
        for (const Word& word : wordsOf(term.text))
            pattern.words << word.folded;
        pattern.prefix = term.prefix;
        if (!pattern.words.isEmpty()) {
            longest = std::max(longest, pattern.words.size());
            patterns << pattern;
        }
    }
    if (patterns.isEmpty() || text.isEmpty())
        return {};
    // The text is read a stretch of words at a time, so that a long text whose first hit
    // is near its start is not folded whole.
    constexpr int Stretch = 400;
    QList<Word> words;
    qsizetype searched = 0;
    qsizetype next = 0;
    while (true) {
        const QList<Word> more = wordsOf(text, next, Stretch);
        words << more;
        const bool atEnd = more.size() < Stretch;
        if (!more.isEmpty())
            next = more.back().end;
        const qsizetype until = atEnd ? words.size() : std::max(searched, words.size() - longest + 1);
        for (qsizetype at = searched; at < until; ++at) {
            for (const Pattern& pattern : patterns) {
                if (!matchesAt(words, at, pattern))
                    continue;
                // The words after the hit may be in the next stretch.
                words << wordsOf(text, next, WordsAround + 1);
                const qsizetype hitEnd = at + pattern.words.size() - 1;
                const qsizetype first = std::max<qsizetype>(0, at - WordsAround);
                const qsizetype last = std::min(words.size() - 1, hitEnd + WordsAround);
                QString passage = first > 0 ? QStringLiteral("… ") : QString();
                passage += oneLine(text.mid(words[first].start, words[at].start - words[first].start));
                if (first < at)
                    passage += u' ';
                passage += PassageHitStart
                    + oneLine(text.mid(words[at].start, words[hitEnd].end - words[at].start)) + PassageHitEnd;
                if (hitEnd < last)
                    passage += u' ';
                passage += oneLine(text.mid(words[hitEnd].end, words[last].end - words[hitEnd].end));
                if (last + 1 < words.size())
                    passage += QStringLiteral(" …");
                return passage;
            }
        }
        searched = until;
        if (atEnd)
            return {};
    }
}

std::map<qint32, QString> searchPassages(
    Connection& connection, const std::vector<qint32>& ids, const QList<SearchTerm>& terms)
{
    std::map<qint32, QString> passages;
    if (ids.empty())
        return passages;
    QStringList list;
    for (const qint32 id : ids)
        list << QString::number(id);
    Recordset rs;
    rs.open(QStringLiteral("SELECT RastasID, Body FROM tbl_Document_Text WHERE RastasID IN (")
            + list.join(u',') + u')',
        connection);
    while (!rs.eof()) {
        const QString passage = searchPassage(rs.fields(QStringLiteral("Body")).value().toString(), terms);
        if (!passage.isEmpty())
            passages.emplace(rs.fields(QStringLiteral("RastasID")).value().toInt(), passage);
        rs.moveNext();
    }
    rs.close();
    return passages;
}

} // namespace kartella
