#include "store/engine/ShapeCommand.h"

#include "store/engine/EngineErrors.h"
#include "store/engine/SqlLexer.h"

#include <QRegularExpression>

#include <limits>

namespace kartella::engine {

namespace {

class ShapeParser
{
public:
    explicit ShapeParser(const QString& text)
        : m_text(text)
        , m_tokens(tokenizeSql(m_text))
    { }

    ShapeCommand parse()
    {
        ShapeCommand command;
        expectWord(u"SHAPE");
        command.sql = braced();
        command.alias = optionalAlias();
        if (atWord(u"APPEND")) {
            next();
            do {
                command.appends.push_back(append());
            } while (takePunct(u','));
        } else if (atWord(u"COMPUTE")) {
            next();
            command.compute = true;
            compute(command);
        } else if (!atEnd()) {
            fail(QStringLiteral("APPEND or COMPUTE is expected"));
        }
        if (!atEnd())
            fail(QStringLiteral("the command goes on after its end"));
        return command;
    }

private:
    [[noreturn]] void fail(const QString& what) const
    {
        std::size_t i = m_at;
        while (i < m_tokens.size() && m_tokens[i].kind == SqlToken::Space)
            ++i;
        const QString where = i >= m_tokens.size()
            ? QStringLiteral("at the end")
            : QStringLiteral("at '") + tokenText(m_text, m_tokens[i]).toString() + u'\'';
        throwError(ErrorNumber::CommandFailed,
            QStringLiteral("The SHAPE command can't be read: ") + what + u' ' + where
                + QStringLiteral(".\nCommand: ") + m_text,
            ConnectionSource);
    }

    void skipSpace()
    {
        while (m_at < m_tokens.size() && m_tokens[m_at].kind == SqlToken::Space)
            ++m_at;
    }
    bool atEnd()
    {
        skipSpace();
        return m_at >= m_tokens.size();
    }
    void next() { ++m_at; }
    bool atWord(QStringView word) { return !atEnd() && isKeyword(m_text, m_tokens[m_at], word); }
    bool atPunct(QChar c) { return !atEnd() && isPunct(m_text, m_tokens[m_at], c); }
    bool takePunct(QChar c)
    {
        if (!atPunct(c))
            return false;
        next();
        return true;
    }
    void expectWord(QStringView word)
    {
        if (!atWord(word))
            fail(word.toString() + QStringLiteral(" is expected"));
        next();
    }
    void expectPunct(QChar c)
    {
        if (!takePunct(c))
            fail(QStringLiteral("'") + c + QStringLiteral("' is expected"));
    }

    // {text}: the text between the braces, which may hold braces of its own.
    QString braced()
    {
        if (!atPunct(u'{'))
            fail(QStringLiteral("'{' is expected"));
        const qsizetype start = m_tokens[m_at].pos + 1;
        int depth = 0;
        for (; m_at < m_tokens.size(); ++m_at) {
            if (isPunct(m_text, m_tokens[m_at], u'{')) {
                ++depth;
            } else if (isPunct(m_text, m_tokens[m_at], u'}') && --depth == 0) {
                const QString inner = m_text.mid(start, m_tokens[m_at].pos - start).trimmed();
                ++m_at;
                return inner;
            }
        }
        fail(QStringLiteral("'}' is missing"));
    }

    // A name: bare, 'quoted', "quoted", `quoted` or [quoted].
    QString name()
    {
        if (atEnd())
            fail(QStringLiteral("a name is expected"));
        const SqlToken& token = m_tokens[m_at];
        if (token.kind != SqlToken::Word && token.kind != SqlToken::Quoted && token.kind != SqlToken::String)
            fail(QStringLiteral("a name is expected"));
        next();
        return unquotedText(m_text, token);
    }

    QString optionalAlias()
    {
        if (!atWord(u"AS"))
            return {};
        next();
        return name();
    }

    ShapeCommand::Append append()
    {
        ShapeCommand::Append item;
        expectPunct(u'(');
        item.sql = braced();
        item.alias = optionalAlias();
        expectWord(u"RELATE");
        do {
            ShapeCommand::Relation relation;
            relation.parentField = name();
            expectWord(u"TO");
            relation.childField = name();
            item.relations.push_back(relation);
        } while (takePunct(u','));
        expectPunct(u')');
        item.chapter = optionalAlias();
        if (item.chapter.isEmpty())
            item.chapter = item.alias.isEmpty() ? QStringLiteral("Chapter1") : item.alias;
        return item;
    }

    void compute(ShapeCommand& command)
    {
        command.computeChapter = name();
        while (takePunct(u',')) {
            ShapeCommand::Aggregate aggregate;
            aggregate.function = name().toUpper();
            static const QStringList functions = {QStringLiteral("COUNT"), QStringLiteral("SUM"),
                QStringLiteral("MIN"), QStringLiteral("MAX"), QStringLiteral("AVG")};
            if (!functions.contains(aggregate.function))
                fail(QStringLiteral("COUNT, SUM, MIN, MAX or AVG is expected"));
            expectPunct(u'(');
            const QString chapter = name();
            if (chapter.compare(command.computeChapter, Qt::CaseInsensitive) != 0)
                fail(QStringLiteral("the aggregate must name ") + command.computeChapter);
            if (takePunct(u'.'))
                aggregate.field = name();
            expectPunct(u')');
            aggregate.alias = optionalAlias();
            if (aggregate.alias.isEmpty())
                aggregate.alias = QStringLiteral("Aggr") + QString::number(command.aggregates.size() + 1);
            command.aggregates.push_back(aggregate);
        }
        expectWord(u"BY");
        do {
            command.by << name();
        } while (takePunct(u','));
    }

    QString m_text;
    std::vector<SqlToken> m_tokens;
    std::size_t m_at = 0;
};

} // namespace

bool isShapeCommand(const QString& text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    return trimmed.startsWith(u"SHAPE", Qt::CaseInsensitive)
        && (trimmed.size() == 5 || trimmed[5].isSpace() || trimmed[5] == u'{');
}

ShapeCommand parseShape(const QString& text)
{
    return ShapeParser(text).parse();
}

QString selectText(const QString& source)
{
    const std::vector<SqlToken> tokens = tokenizeSql(source);
    const SqlToken* only = nullptr;
    for (const SqlToken& token : tokens) {
        if (token.kind == SqlToken::Space)
            continue;
        if (only != nullptr)
            return source;
        only = &token;
    }
    if (only == nullptr || (only->kind != SqlToken::Word && only->kind != SqlToken::Quoted)
        || isKeyword(source, *only, u"SELECT"))
        return source;
    QString name = unquotedText(source, *only);
    name.replace(u'"', QLatin1String("\"\""));
    return QStringLiteral("SELECT * FROM \"") + name + u'"';
}

QString restrictedSelect(const QString& source, const QString& condition)
{
    QString sql = selectText(source).trimmed();
    if (condition.isEmpty())
        return sql;
    while (sql.endsWith(u';'))
        sql = sql.chopped(1).trimmed();
    // A plain select takes the condition as its WHERE; anything that has clauses of its
    // own is narrowed from outside.
    static const QRegularExpression clauses(
        QStringLiteral("\\b(where|group|order|union|having|limit|join)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    if (sql.contains(clauses))
        return QStringLiteral("SELECT * FROM (") + sql + QStringLiteral(") AS narrowed WHERE ") + condition;
    return sql + QStringLiteral(" WHERE ") + condition;
}

QString keyRestriction(const QString& filter)
{
    static const QRegularExpression key(
        QStringLiteral("^\\s*([A-Za-z_][A-Za-z0-9_]*)\\s*=\\s*(-?\\d{1,10})\\s*$"));
    const QRegularExpressionMatch match = key.match(filter);
    if (!match.hasMatch())
        return {};
    bool ok = false;
    const qint64 value = match.captured(2).toLongLong(&ok);
    if (!ok || value < std::numeric_limits<qint32>::min() || value > std::numeric_limits<qint32>::max())
        return {};
    return match.captured(1) + u'=' + QString::number(value);
}

} // namespace kartella::engine
