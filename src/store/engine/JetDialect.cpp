#include "store/engine/JetDialect.h"

#include "store/engine/DateText.h"
#include "store/engine/SqlLexer.h"

#include <optional>
#include <vector>

namespace kartella::engine {

namespace {

// The columns that hold names, ordered by the engine's collation.
constexpr const char16_t* NameColumns[]
    = {u"FullName", u"CompanyName", u"DokKategorija", u"DokSubKategorija"};
const QString NameCollationClause = QStringLiteral(" COLLATE ") + QLatin1String(NameCollation);

class Rewriter
{
public:
    explicit Rewriter(const QString& sql, const ServerNames* serverNames = nullptr)
        : m_serverNames(serverNames)
        , m_text(sql)
        , m_tokens(tokenizeSql(m_text))
        , m_drop(m_tokens.size(), false)
        , m_replace(m_tokens.size())
    { }

    QString run()
    {
        trailingSemicolons();
        const qsizetype first = nextSolid(0);
        if (m_serverNames
            && !(isWord(first, u"SELECT") || isWord(first, u"INSERT") || isWord(first, u"UPDATE")
                || isWord(first, u"DELETE") || isWord(first, u"WITH")))
            return assemble(0, size());
        literals();
        if (m_serverNames) {
            serverNames();
            temporarySchema();
        }
        if (first < size()) {
            if (isKeyword(m_text, m_tokens[first], u"DELETE")) {
                nameOrder();
                deleteFieldList(first);
            } else if (isKeyword(m_text, m_tokens[first], u"UPDATE")) {
                nameOrder();
                updateSetList(first);
            } else if (isKeyword(m_text, m_tokens[first], u"SELECT")) {
                nameOrder();
                rightJoin(first);
            }
        }
        if (m_serverNames) {
            ilike();
            nullsFirst();
        }
        return assemble(0, size());
    }

private:
    qsizetype size() const { return qsizetype(m_tokens.size()); }

    // The first token from i on that isn't blank.
    qsizetype nextSolid(qsizetype i) const
    {
        while (i < size() && m_tokens[i].kind == SqlToken::Space)
            ++i;
        return i;
    }

    // Whether i is a token: previousSolid gives -1 before the first, nextSolid size() after the last.
    bool isToken(qsizetype i) const { return i >= 0 && i < size(); }
    bool isWord(qsizetype i, QStringView keyword) const
    {
        return isToken(i) && isKeyword(m_text, m_tokens[i], keyword);
    }
    bool isPunct(qsizetype i, QChar c) const { return isToken(i) && engine::isPunct(m_text, m_tokens[i], c); }
    bool isName(qsizetype i) const
    {
        return isToken(i) && (m_tokens[i].kind == SqlToken::Word || m_tokens[i].kind == SqlToken::Quoted);
    }

    void literals()
    {
        for (qsizetype i = 0; i < size(); ++i) {
            const SqlToken& token = m_tokens[i];
            const QStringView raw = tokenText(m_text, token);
            if (token.kind == SqlToken::Date) {
                const QVariant value = parseJetDate(raw.mid(1, raw.size() - 2));
                const bool typed = m_serverNames != nullptr;
                if (value.typeId() == QMetaType::QDate)
                    m_replace[i] = (typed ? QStringLiteral("DATE '") : QStringLiteral("'"))
                        + isoText(value.toDate()) + u'\'';
                else if (value.typeId() == QMetaType::QDateTime)
                    m_replace[i] = (typed ? QStringLiteral("TIMESTAMP '") : QStringLiteral("'"))
                        + isoText(value.toDateTime()) + u'\'';
            } else if (token.kind == SqlToken::Quoted && raw.startsWith(u'`')) {
                QString name = unquotedText(m_text, token);
                name.replace(u'"', QLatin1String("\"\""));
                m_replace[i] = u'"' + name + u'"';
            }
        }
    }

    bool isNameColumn(qsizetype i) const
    {
        if (!isName(i))
            return false;
        const QString name = unquotedText(m_text, m_tokens[i]);
        for (const char16_t* column : NameColumns) {
            if (name.compare(QStringView(column), Qt::CaseInsensitive) == 0)
                return true;
        }
        return false;
    }

    bool isOrderingOperator(qsizetype i) const
    {
        if (!isToken(i) || m_tokens[i].kind != SqlToken::Punct)
            return false;
        const QStringView op = tokenText(m_text, m_tokens[i]);
        return op == u"<" || op == u">" || op == u"<=" || op == u">=";
    }

    // The solid token before i, or -1.
    qsizetype previousSolid(qsizetype i) const
    {
        for (--i; i >= 0 && m_tokens[i].kind == SqlToken::Space; --i) { }
        return i;
    }

    // A name column that is an ORDER BY term or an operand of <, >, <=, >= or BETWEEN gets
    // the name collation, unless it has a collation already.
    void nameOrder()
    {
        std::vector<bool> inOrderBy(1, false);
        for (qsizetype i = 0; i < size(); ++i) {
            if (isPunct(i, u'(')) {
                inOrderBy.push_back(false);
                continue;
            }
            if (isPunct(i, u')')) {
                if (inOrderBy.size() > 1)
                    inOrderBy.pop_back();
                continue;
            }
            if (isWord(i, u"BY") && isWord(previousSolid(i), u"ORDER")) {
                inOrderBy.back() = true;
                continue;
            }
            if (isWord(i, u"LIMIT") || isWord(i, u"UNION") || isWord(i, u"EXCEPT")
                || isWord(i, u"INTERSECT")) {
                inOrderBy.back() = false;
                continue;
            }
            if (!isNameColumn(i))
                continue;
            const qsizetype next = nextSolid(i + 1);
            if (isPunct(next, u'.') || isWord(next, u"COLLATE"))
                continue;
            qsizetype before = previousSolid(i);
            if (isPunct(before, u'.'))
                before = previousSolid(previousSolid(before));
            const bool compared
                = isOrderingOperator(next) || isWord(next, u"BETWEEN") || isOrderingOperator(before);
            const bool orderTerm = inOrderBy.back() && (isWord(before, u"BY") || isPunct(before, u','))
                && (next >= size() || isPunct(next, u',') || isPunct(next, u')') || isPunct(next, u';')
                    || isWord(next, u"ASC") || isWord(next, u"DESC") || isWord(next, u"NULLS")
                    || isWord(next, u"LIMIT"));
            if (compared || orderTerm)
                m_replace[i] = (m_replace[i] ? *m_replace[i] : tokenText(m_text, m_tokens[i]).toString())
                    + NameCollationClause;
        }
    }

    void trailingSemicolons()
    {
        for (qsizetype i = size() - 1; i >= 0; --i) {
            if (m_tokens[i].kind == SqlToken::Space || isPunct(i, u';'))
                m_drop[i] = true;
            else
                break;
        }
    }

    // DELETE t.*, t.f FROM t -> DELETE FROM t: everything between DELETE and FROM goes.
    void deleteFieldList(qsizetype deleteAt)
    {
        const qsizetype start = nextSolid(deleteAt + 1);
        if (start >= size() || isWord(start, u"FROM"))
            return;
        qsizetype from = start;
        int depth = 0;
        for (; from < size(); ++from) {
            if (isPunct(from, u'('))
                ++depth;
            else if (isPunct(from, u')'))
                --depth;
            else if (depth == 0 && isWord(from, u"FROM"))
                break;
        }
        if (from >= size())
            return;
        for (qsizetype i = start; i < from; ++i)
            m_drop[i] = true;
    }

    // UPDATE t SET t.f = v, t.g = w WHERE ... -> UPDATE t SET f = v, g = w WHERE ...
    void updateSetList(qsizetype updateAt)
    {
        qsizetype i = updateAt + 1;
        int depth = 0;
        for (; i < size(); ++i) {
            if (isPunct(i, u'('))
                ++depth;
            else if (isPunct(i, u')'))
                --depth;
            else if (depth == 0 && isWord(i, u"SET"))
                break;
        }
        bool assignmentStart = true;
        for (++i; i < size(); ++i) {
            if (m_tokens[i].kind == SqlToken::Space)
                continue;
            if (isPunct(i, u'('))
                ++depth;
            else if (isPunct(i, u')'))
                --depth;
            if (depth == 0
                && (isWord(i, u"WHERE") || isWord(i, u"FROM") || isWord(i, u"RETURNING")
                    || isWord(i, u"ORDER") || isWord(i, u"LIMIT")))
                return;
            if (assignmentStart) {
                unqualify(i);
                assignmentStart = false;
            }
            if (depth == 0 && isPunct(i, u','))
                assignmentStart = true;
        }
    }

    // name . name = : drops the first name and the dot.
    void unqualify(qsizetype i)
    {
        const qsizetype dot = nextSolid(i + 1);
        const qsizetype field = nextSolid(dot + 1);
        const qsizetype equals = nextSolid(field + 1);
        if (isName(i) && isPunct(dot, u'.') && isName(field) && isPunct(equals, u'=')) {
            for (qsizetype k = i; k < field; ++k)
                m_drop[k] = true;
        }
    }

    // SELECT <named columns> FROM A RIGHT JOIN B ON c [WHERE ...] -> ... FROM B LEFT JOIN A ON c:
    // the same rows, but SQLite can then read B in the order of an index and look A up
    // by its key, where the right join scans A and sorts. A is a table; B a table or a
    // parenthesised join. Any other FROM clause, or a * in the column list (whose order
    // would change), stays as it is.
    void rightJoin(qsizetype selectAt)
    {
        int depth = 0;
        qsizetype from = -1;
        for (qsizetype i = selectAt + 1; i < size() && from < 0; ++i) {
            if (isPunct(i, u'('))
                ++depth;
            else if (isPunct(i, u')'))
                --depth;
            else if (depth == 0 && isPunct(i, u'*'))
                return;
            else if (depth == 0 && isWord(i, u"FROM"))
                from = i;
        }
        const qsizetype left = nextSolid(from + 1);
        qsizetype right = nextSolid(left + 1);
        if (from < 0 || !isName(left) || !isWord(right, u"RIGHT"))
            return;
        qsizetype join = nextSolid(right + 1);
        if (isWord(join, u"OUTER"))
            join = nextSolid(join + 1);
        if (!isWord(join, u"JOIN"))
            return;
        const qsizetype otherStart = nextSolid(join + 1);
        qsizetype otherEnd = otherStart;
        if (isPunct(otherStart, u'(')) {
            for (depth = 0; otherEnd < size(); ++otherEnd) {
                if (isPunct(otherEnd, u'('))
                    ++depth;
                else if (isPunct(otherEnd, u')') && --depth == 0)
                    break;
            }
        } else if (!isName(otherStart)) {
            return;
        }
        if (otherEnd >= size() || !isWord(nextSolid(otherEnd + 1), u"ON"))
            return;
        // The ON condition must run to the end of the FROM clause: no further join.
        depth = 0;
        for (qsizetype i = nextSolid(otherEnd + 1) + 1; i < size(); ++i) {
            if (isPunct(i, u'('))
                ++depth;
            else if (isPunct(i, u')'))
                --depth;
            else if (depth < 0)
                return;
            else if (depth == 0
                && (isWord(i, u"WHERE") || isWord(i, u"GROUP") || isWord(i, u"ORDER") || isWord(i, u"HAVING")
                    || isWord(i, u"LIMIT") || isWord(i, u"UNION") || isWord(i, u"EXCEPT")
                    || isWord(i, u"INTERSECT")))
                break;
            else if (depth == 0 && (isWord(i, u"JOIN") || isPunct(i, u',')))
                return;
        }
        m_replace[left]
            = assemble(otherStart, otherEnd + 1) + QStringLiteral(" LEFT JOIN ") + assemble(left, left + 1);
        for (qsizetype i = left + 1; i <= otherEnd; ++i)
            m_drop[i] = true;
    }

    // Known names in their declared case, aliases after AS as written, both quoted.
    void serverNames()
    {
        QHash<QString, QString> aliases;
        // Whether each open parenthesis is that of a CAST, whose AS names a type.
        std::vector<bool> inCast(1, false);
        for (qsizetype i = 0; i < size(); ++i) {
            if (isPunct(i, u'(')) {
                inCast.push_back(isWord(previousSolid(i), u"CAST"));
                continue;
            }
            if (isPunct(i, u')')) {
                if (inCast.size() > 1)
                    inCast.pop_back();
                continue;
            }
            if (!isWord(i, u"AS") || inCast.back())
                continue;
            const qsizetype alias = nextSolid(i + 1);
            if (!isName(alias) || isWord(alias, u"SELECT") || isWord(alias, u"WITH")
                || isWord(alias, u"VALUES"))
                continue;
            const QString name = unquotedText(m_text, m_tokens[alias]);
            aliases.insert(name.toLower(), name);
        }
        for (qsizetype i = 0; i < size(); ++i) {
            if (!isName(i))
                continue;
            const bool quoted = m_tokens[i].kind == SqlToken::Quoted;
            // A bare word before ( is a function, but for the table of INSERT INTO t (...).
            if (!quoted && isPunct(nextSolid(i + 1), u'(') && !isWord(previousSolid(i), u"INTO"))
                continue;
            const QString name = unquotedText(m_text, m_tokens[i]);
            const QString lower = name.toLower();
            QString declared = m_serverNames->value(lower);
            if (declared.isEmpty())
                declared = aliases.value(lower);
            if (declared.isEmpty() && quoted)
                declared = name;
            if (declared.isEmpty())
                continue;
            declared.replace(u'"', QLatin1String("\"\""));
            m_replace[i] = u'"' + declared + u'"';
        }
    }

    // temp.t, a connection's own table t in SQLite, is pg_temp.t on a server.
    void temporarySchema()
    {
        for (qsizetype i = 0; i + 1 < size(); ++i) {
            if (m_tokens[i].kind != SqlToken::Quoted && isName(i) && isWord(i, u"temp")
                && isPunct(i + 1, u'.'))
                m_replace[i] = QStringLiteral("pg_temp");
        }
    }

    // Null comes first in an ascending order, as in Jet and SQLite (PostgreSQL puts it last):
    // each ORDER BY term without NULLS of its own gets NULLS FIRST, or NULLS LAST after DESC.
    void nullsFirst()
    {
        struct Level
        {
            bool inOrderBy = false;
            qsizetype last = -1; // the last solid token of the term so far
            bool hasNulls = false;
        };
        std::vector<Level> levels(1);
        auto endTerm = [this](Level& level) {
            if (level.inOrderBy && level.last >= 0 && !level.hasNulls) {
                const QString text = m_replace[level.last]
                    ? *m_replace[level.last]
                    : tokenText(m_text, m_tokens[level.last]).toString();
                m_replace[level.last] = text
                    + (isWord(level.last, u"DESC") ? QStringLiteral(" NULLS LAST")
                                                   : QStringLiteral(" NULLS FIRST"));
            }
            level.last = -1;
            level.hasNulls = false;
        };
        for (qsizetype i = 0; i < size(); ++i) {
            if (m_tokens[i].kind == SqlToken::Space)
                continue;
            Level& level = levels.back();
            if (isPunct(i, u'(')) {
                if (level.inOrderBy)
                    level.last = i;
                levels.emplace_back();
                continue;
            }
            if (isPunct(i, u')')) {
                if (levels.size() > 1) {
                    endTerm(levels.back());
                    levels.pop_back();
                    if (levels.back().inOrderBy)
                        levels.back().last = i;
                }
                continue;
            }
            if (isWord(i, u"BY") && isWord(previousSolid(i), u"ORDER")) {
                level.inOrderBy = true;
                level.last = -1;
                continue;
            }
            if (!level.inOrderBy)
                continue;
            if (isPunct(i, u',')) {
                endTerm(level);
            } else if (isWord(i, u"LIMIT") || isWord(i, u"OFFSET") || isWord(i, u"FOR") || isPunct(i, u';')
                || isWord(i, u"UNION") || isWord(i, u"EXCEPT") || isWord(i, u"INTERSECT")) {
                endTerm(level);
                level.inOrderBy = false;
            } else {
                if (isWord(i, u"NULLS"))
                    level.hasNulls = true;
                level.last = i;
            }
        }
        for (Level& level : levels)
            endTerm(level);
    }

    // x LIKE p -> x ILIKE p ESCAPE '', unless an ESCAPE follows the pattern.
    void ilike()
    {
        for (qsizetype i = 0; i < size(); ++i) {
            if (!isWord(i, u"LIKE"))
                continue;
            m_replace[i] = QStringLiteral("ILIKE");
            const qsizetype end = operandEnd(nextSolid(i + 1));
            if (end < 0 || isWord(nextSolid(end + 1), u"ESCAPE"))
                continue;
            m_replace[end] = (m_replace[end] ? *m_replace[end] : tokenText(m_text, m_tokens[end]).toString())
                + QStringLiteral(" ESCAPE ''");
        }
    }

    // The last token of the operand that starts at i: a value, a qualified name, a call or
    // a parenthesised expression, and what || joins to it; -1 when there is none.
    qsizetype operandEnd(qsizetype i) const
    {
        qsizetype end = -1;
        while (i < size()) {
            if (isPunct(i, u'-') || isPunct(i, u'+'))
                i = nextSolid(i + 1);
            if (i >= size())
                return -1;
            qsizetype last = i;
            if (isName(i)) {
                while (isPunct(nextSolid(last + 1), u'.') && isName(nextSolid(nextSolid(last + 1) + 1)))
                    last = nextSolid(nextSolid(last + 1) + 1);
                if (isPunct(nextSolid(last + 1), u'('))
                    last = closingParenthesis(nextSolid(last + 1));
            } else if (isPunct(i, u'(')) {
                last = closingParenthesis(i);
            } else if (m_tokens[i].kind == SqlToken::Punct) {
                return -1;
            }
            if (last < 0)
                return -1;
            end = last;
            const qsizetype next = nextSolid(last + 1);
            if (next >= size() || tokenText(m_text, m_tokens[next]) != u"||")
                break;
            i = nextSolid(next + 1);
        }
        return end;
    }

    qsizetype closingParenthesis(qsizetype open) const
    {
        int depth = 0;
        for (qsizetype i = open; i < size(); ++i) {
            if (isPunct(i, u'('))
                ++depth;
            else if (isPunct(i, u')') && --depth == 0)
                return i;
        }
        return -1;
    }

    QString assemble(qsizetype from, qsizetype to) const
    {
        QString out;
        out.reserve(m_text.size() + 16);
        for (qsizetype i = from; i < to; ++i) {
            if (m_drop[i]) {
                // A dropped run between two solid tokens leaves one blank.
                if (!out.isEmpty() && !out.back().isSpace() && i + 1 < to && !m_drop[i + 1]
                    && m_tokens[i + 1].kind != SqlToken::Space && m_tokens[i].kind == SqlToken::Space)
                    out += u' ';
                continue;
            }
            if (m_replace[i])
                out += *m_replace[i];
            else
                out += tokenText(m_text, m_tokens[i]);
        }
        return out;
    }

    const ServerNames* m_serverNames;
    QString m_text;
    std::vector<SqlToken> m_tokens;
    std::vector<bool> m_drop;
    std::vector<std::optional<QString>> m_replace;
};

} // namespace

QString translateJetToSqlite(const QString& sql)
{
    return Rewriter(sql).run();
}

QString translateJetToPostgres(const QString& sql, const ServerNames& names)
{
    return Rewriter(sql, &names).run();
}

} // namespace kartella::engine
