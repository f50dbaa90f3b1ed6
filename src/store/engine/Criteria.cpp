#include "store/engine/Criteria.h"

#include "store/engine/DateText.h"
#include "store/engine/EngineErrors.h"
#include "store/engine/SqlLexer.h"
#include "store/engine/TextFold.h"

#include <QDate>
#include <QDateTime>

#include <optional>

namespace kartella::engine {

struct Criteria::Node
{
    enum Kind { And, Or, Compare, Like, IsNull };
    Kind kind = Compare;
    std::unique_ptr<Node> left;
    std::unique_ptr<Node> right;
    int field = -1;
    QString op;
    QVariant constant;
    bool negate = false;
};

namespace {

bool isNumeric(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Bool:
        return true;
    default:
        return false;
    }
}

bool isDate(const QVariant& value)
{
    return value.typeId() == QMetaType::QDate || value.typeId() == QMetaType::QDateTime;
}

QDateTime asDateTime(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDate)
        return value.toDate().startOfDay();
    if (value.typeId() == QMetaType::QDateTime)
        return value.toDateTime();
    const QVariant parsed = parseUserDate(value.toString());
    return parsed.isValid() ? asDateTime(parsed) : QDateTime();
}

template<typename T>
int threeWay(const T& a, const T& b)
{
    return a < b ? -1 : (b < a ? 1 : 0);
}

class Parser
{
public:
    Parser(const QString& text, const Criteria::FieldLookup& fieldIndex)
        : m_text(text)
        , m_fieldIndex(fieldIndex)
    {
        for (const SqlToken& token : tokenizeSql(m_text)) {
            if (token.kind != SqlToken::Space)
                m_tokens.push_back(token);
        }
    }

    std::unique_ptr<Criteria::Node> parse()
    {
        auto root = parseOr();
        if (m_at < m_tokens.size())
            fail(QStringLiteral("unexpected '") + tokenText(m_text, m_tokens[m_at]).toString() + u'\'');
        return root;
    }

private:
    [[noreturn]] void fail(const QString& what) const
    {
        throwError(EngineError::InvalidArgument,
            QStringLiteral("The filter \"") + m_text + QStringLiteral("\" can't be used: ") + what + u'.');
    }

    bool atWord(QStringView word) const
    {
        return m_at < m_tokens.size() && isKeyword(m_text, m_tokens[m_at], word);
    }
    bool atPunct(QChar c) const { return m_at < m_tokens.size() && isPunct(m_text, m_tokens[m_at], c); }

    std::unique_ptr<Criteria::Node> join(Criteria::Node::Kind kind, std::unique_ptr<Criteria::Node> left,
        std::unique_ptr<Criteria::Node> right)
    {
        auto node = std::make_unique<Criteria::Node>();
        node->kind = kind;
        node->left = std::move(left);
        node->right = std::move(right);
        return node;
    }

    std::unique_ptr<Criteria::Node> parseOr()
    {
        auto left = parseAnd();
        while (atWord(u"OR")) {
            ++m_at;
            left = join(Criteria::Node::Or, std::move(left), parseAnd());
        }
        return left;
    }

    std::unique_ptr<Criteria::Node> parseAnd()
    {
        auto left = parseTerm();
        while (atWord(u"AND")) {
            ++m_at;
            left = join(Criteria::Node::And, std::move(left), parseTerm());
        }
        return left;
    }

    std::unique_ptr<Criteria::Node> parseTerm()
    {
        if (atPunct(u'(')) {
            ++m_at;
            auto inner = parseOr();
            if (!atPunct(u')'))
                fail(QStringLiteral("a closing parenthesis is missing"));
            ++m_at;
            return inner;
        }
        auto node = std::make_unique<Criteria::Node>();
        node->field = parseField();
        if (m_at >= m_tokens.size())
            fail(QStringLiteral("a comparison is missing"));
        if (atWord(u"IS")) {
            ++m_at;
            node->kind = Criteria::Node::IsNull;
            if (atWord(u"NOT")) {
                ++m_at;
                node->negate = true;
            }
            if (!atWord(u"NULL"))
                fail(QStringLiteral("Is must be followed by Null or Not Null"));
            ++m_at;
            return node;
        }
        if (atWord(u"NOT") && m_at + 1 < m_tokens.size() && isKeyword(m_text, m_tokens[m_at + 1], u"LIKE")) {
            node->negate = true;
            ++m_at;
        }
        if (atWord(u"LIKE")) {
            node->kind = Criteria::Node::Like;
        } else {
            const SqlToken& token = m_tokens[m_at];
            const QString op = tokenText(m_text, token).toString();
            static const QStringList operators
                = {QStringLiteral("="), QStringLiteral("<>"), QStringLiteral("<"), QStringLiteral(">"),
                    QStringLiteral("<="), QStringLiteral(">="), QStringLiteral("!=")};
            if (token.kind != SqlToken::Punct || !operators.contains(op))
                fail(QStringLiteral("'") + op + QStringLiteral("' is no comparison"));
            node->op = op == QLatin1String("!=") ? QStringLiteral("<>") : op;
        }
        ++m_at;
        node->constant = parseConstant();
        if (node->kind == Criteria::Node::Like) {
            QString pattern = node->constant.toString();
            pattern.replace(u'*', u'%');
            node->constant = pattern;
        } else if (m_nullConstant) {
            // "Field = Null" and "Field <> Null" test for Null.
            node->negate = node->op == QLatin1String("<>");
            node->kind = Criteria::Node::IsNull;
            m_nullConstant = false;
        }
        return node;
    }

    int parseField()
    {
        if (m_at >= m_tokens.size())
            fail(QStringLiteral("a field name is missing"));
        const SqlToken& token = m_tokens[m_at];
        if (token.kind != SqlToken::Word && token.kind != SqlToken::Quoted)
            fail(QStringLiteral("'") + tokenText(m_text, token).toString()
                + QStringLiteral("' is no field name"));
        QString name = unquotedText(m_text, token);
        ++m_at;
        // table.field reads as field.
        while (atPunct(u'.') && m_at + 1 < m_tokens.size()) {
            name = unquotedText(m_text, m_tokens[m_at + 1]);
            m_at += 2;
        }
        const int index = m_fieldIndex(name);
        if (index < 0)
            fail(QStringLiteral("there is no field '") + name + u'\'');
        return index;
    }

    QVariant parseConstant()
    {
        if (m_at >= m_tokens.size())
            fail(QStringLiteral("a value is missing"));
        bool negative = false;
        if (atPunct(u'-') || atPunct(u'+')) {
            negative = atPunct(u'-');
            ++m_at;
        }
        if (m_at >= m_tokens.size())
            fail(QStringLiteral("a value is missing"));
        const SqlToken& token = m_tokens[m_at++];
        const QStringView raw = tokenText(m_text, token);
        switch (token.kind) {
        case SqlToken::Number: {
            bool ok = false;
            const qint64 whole = raw.toLongLong(&ok);
            if (ok)
                return negative ? -whole : whole;
            const double real = raw.toDouble(&ok);
            if (!ok)
                fail(QStringLiteral("'") + raw.toString() + QStringLiteral("' is no number"));
            return negative ? -real : real;
        }
        case SqlToken::String:
        case SqlToken::Quoted:
            return unquotedText(m_text, token);
        case SqlToken::Date: {
            const QVariant date = parseJetDate(raw.mid(1, raw.size() - 2));
            if (!date.isValid())
                fail(QStringLiteral("'") + raw.toString() + QStringLiteral("' is no date"));
            return date;
        }
        case SqlToken::Word:
            if (raw.compare(u"Null", Qt::CaseInsensitive) == 0) {
                m_nullConstant = true;
                return {};
            }
            if (raw.compare(u"True", Qt::CaseInsensitive) == 0)
                return -1;
            if (raw.compare(u"False", Qt::CaseInsensitive) == 0)
                return 0;
            break;
        default:
            break;
        }
        fail(QStringLiteral("'") + raw.toString() + QStringLiteral("' is no value"));
    }

    QString m_text;
    const Criteria::FieldLookup& m_fieldIndex;
    std::vector<SqlToken> m_tokens;
    std::size_t m_at = 0;
    bool m_nullConstant = false;
};

bool evaluate(const Criteria::Node& node, const Criteria::ValueOf& valueOf)
{
    switch (node.kind) {
    case Criteria::Node::And:
        return evaluate(*node.left, valueOf) && evaluate(*node.right, valueOf);
    case Criteria::Node::Or:
        return evaluate(*node.left, valueOf) || evaluate(*node.right, valueOf);
    case Criteria::Node::IsNull: {
        const QVariant value = valueOf(node.field);
        const bool null = !value.isValid() || value.isNull();
        return null != node.negate;
    }
    case Criteria::Node::Like: {
        const QVariant value = valueOf(node.field);
        if (!value.isValid() || value.isNull())
            return false;
        const QString text = isDate(value) ? value.toDate().toString(u"M/d/yyyy") : value.toString();
        return likeMatches(node.constant.toString(), text) != node.negate;
    }
    case Criteria::Node::Compare: {
        const std::optional<int> order = compareValues(valueOf(node.field), node.constant);
        if (!order)
            return false;
        const QString& op = node.op;
        if (op == QLatin1String("="))
            return *order == 0;
        if (op == QLatin1String("<>"))
            return *order != 0;
        if (op == QLatin1String("<"))
            return *order < 0;
        if (op == QLatin1String(">"))
            return *order > 0;
        if (op == QLatin1String("<="))
            return *order <= 0;
        return *order >= 0;
    }
    }
    return false;
}

} // namespace

std::unique_ptr<Criteria> Criteria::parse(const QString& text, const FieldLookup& fieldIndex)
{
    std::unique_ptr<Criteria> criteria(new Criteria);
    criteria->m_root = Parser(text, fieldIndex).parse();
    return criteria;
}

Criteria::~Criteria() = default;

bool Criteria::matches(const ValueOf& valueOf) const
{
    return evaluate(*m_root, valueOf);
}

std::optional<int> compareValues(const QVariant& a, const QVariant& b)
{
    if (!a.isValid() || a.isNull() || !b.isValid() || b.isNull())
        return std::nullopt;
    if (isNumeric(a) || isNumeric(b)) {
        bool okA = false;
        bool okB = false;
        const bool whole = a.typeId() != QMetaType::Double && b.typeId() != QMetaType::Double
            && a.typeId() != QMetaType::Float && b.typeId() != QMetaType::Float;
        if (whole) {
            const qint64 x = a.toLongLong(&okA);
            const qint64 y = b.toLongLong(&okB);
            if (okA && okB)
                return threeWay(x, y);
        }
        const double x = a.toDouble(&okA);
        const double y = b.toDouble(&okB);
        if (okA && okB)
            return threeWay(x, y);
        return std::nullopt;
    }
    if (isDate(a) || isDate(b)) {
        const QDateTime x = asDateTime(a);
        const QDateTime y = asDateTime(b);
        if (!x.isValid() || !y.isValid())
            return std::nullopt;
        return threeWay(x, y);
    }
    return a.toString().compare(b.toString(), Qt::CaseInsensitive);
}

} // namespace kartella::engine
