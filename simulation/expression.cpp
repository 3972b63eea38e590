#include "expression.h"

#include <QtMath>

#include <cmath>
#include <limits>

namespace Simulation {

ExpressionValue ExpressionValue::fromInteger(qint64 value)
{
    ExpressionValue v;
    v.m_type = Integer;
    v.m_integer = value;
    return v;
}

ExpressionValue ExpressionValue::fromFloat(double value)
{
    ExpressionValue v;
    v.m_type = Float;
    v.m_float = value;
    return v;
}

ExpressionValue ExpressionValue::fromText(const QString& value)
{
    ExpressionValue v;
    v.m_type = Text;
    v.m_text = value;
    return v;
}

qint64 ExpressionValue::toInteger() const
{
    switch (m_type) {
    case Integer:
        return m_integer;
    case Float: {
        if (std::isnan(m_float))
            return 0;
        if (m_float >= 9.2e18)
            return std::numeric_limits<qint64>::max();
        if (m_float <= -9.2e18)
            return std::numeric_limits<qint64>::min();
        return qRound64(m_float);
    }
    case Text:
        return m_text.toLongLong();
    }
    return 0;
}

double ExpressionValue::toDouble() const
{
    switch (m_type) {
    case Integer:
        return double(m_integer);
    case Float:
        return m_float;
    case Text:
        return m_text.toDouble();
    }
    return 0.0;
}

bool ExpressionValue::toBool() const
{
    switch (m_type) {
    case Integer:
        return m_integer != 0;
    case Float:
        return m_float != 0.0;
    case Text:
        return !m_text.isEmpty();
    }
    return false;
}

QString ExpressionValue::toText() const
{
    switch (m_type) {
    case Integer:
        return QString::number(m_integer);
    case Float:
        return QString::number(m_float);
    case Text:
        return m_text;
    }
    return QString();
}

struct Expression::Node
{
    enum Op {
        Constant,
        Name,
        Negate,
        Not,
        Add,
        Subtract,
        Multiply,
        Divide,
        Modulo,
        Equal,
        NotEqual,
        Less,
        LessEqual,
        Greater,
        GreaterEqual,
        And,
        Or,
        Conditional,
        Min,
        Max
    };

    Op op = Constant;
    ExpressionValue constant;
    int nameIndex = -1;
    std::shared_ptr<const Node> a, b, c;
};

namespace {

using NodePtr = std::shared_ptr<const Expression::Node>;

class Parser
{
public:
    Parser(const QString& text, QStringList* names)
        : m_text(text)
        , m_names(names)
    {
    }

    NodePtr parseAll()
    {
        NodePtr node = parseConditional();
        if (!node)
            return nullptr;
        skipSpace();
        if (m_pos < m_text.size())
            return fail(QStringLiteral("unexpected \"%1\"").arg(m_text.mid(m_pos, 8)));
        return node;
    }

    QString error;

private:
    NodePtr fail(const QString& message)
    {
        if (error.isEmpty())
            error = QStringLiteral("%1 at position %2").arg(message).arg(m_pos + 1);
        return nullptr;
    }

    void skipSpace()
    {
        while (m_pos < m_text.size() && m_text.at(m_pos).isSpace())
            ++m_pos;
    }

    bool accept(const char* token)
    {
        skipSpace();
        const QLatin1String t(token);
        if (QStringView(m_text).mid(m_pos, t.size()).compare(t) == 0) {
            m_pos += t.size();
            return true;
        }
        return false;
    }

    // Accepts a one-character operator that isn't the start of a longer one.
    bool acceptSingle(QChar c, const char* notFollowedBy = "")
    {
        skipSpace();
        if (m_pos < m_text.size() && m_text.at(m_pos) == c) {
            if (m_pos + 1 < m_text.size()) {
                const QChar next = m_text.at(m_pos + 1);
                for (const char* p = notFollowedBy; *p; ++p)
                    if (next == QLatin1Char(*p))
                        return false;
            }
            ++m_pos;
            return true;
        }
        return false;
    }

    static NodePtr make(Expression::Node::Op op, NodePtr a, NodePtr b = nullptr, NodePtr c = nullptr)
    {
        auto node = std::make_shared<Expression::Node>();
        node->op = op;
        node->a = std::move(a);
        node->b = std::move(b);
        node->c = std::move(c);
        return node;
    }

    NodePtr parseConditional()
    {
        NodePtr condition = parseOr();
        if (!condition)
            return nullptr;
        if (acceptSingle(QLatin1Char('?'))) {
            NodePtr yes = parseConditional();
            if (!yes)
                return nullptr;
            if (!acceptSingle(QLatin1Char(':')))
                return fail(QStringLiteral("\":\" expected"));
            NodePtr no = parseConditional();
            if (!no)
                return nullptr;
            return make(Expression::Node::Conditional, condition, yes, no);
        }
        return condition;
    }

    NodePtr parseOr()
    {
        NodePtr left = parseAnd();
        while (left && accept("||")) {
            NodePtr right = parseAnd();
            if (!right)
                return nullptr;
            left = make(Expression::Node::Or, left, right);
        }
        return left;
    }

    NodePtr parseAnd()
    {
        NodePtr left = parseEquality();
        while (left && accept("&&")) {
            NodePtr right = parseEquality();
            if (!right)
                return nullptr;
            left = make(Expression::Node::And, left, right);
        }
        return left;
    }

    NodePtr parseEquality()
    {
        NodePtr left = parseRelational();
        while (left) {
            Expression::Node::Op op;
            if (accept("=="))
                op = Expression::Node::Equal;
            else if (accept("!="))
                op = Expression::Node::NotEqual;
            else
                break;
            NodePtr right = parseRelational();
            if (!right)
                return nullptr;
            left = make(op, left, right);
        }
        return left;
    }

    NodePtr parseRelational()
    {
        NodePtr left = parseAdditive();
        while (left) {
            Expression::Node::Op op;
            if (accept("<="))
                op = Expression::Node::LessEqual;
            else if (accept(">="))
                op = Expression::Node::GreaterEqual;
            else if (acceptSingle(QLatin1Char('<')))
                op = Expression::Node::Less;
            else if (acceptSingle(QLatin1Char('>')))
                op = Expression::Node::Greater;
            else
                break;
            NodePtr right = parseAdditive();
            if (!right)
                return nullptr;
            left = make(op, left, right);
        }
        return left;
    }

    NodePtr parseAdditive()
    {
        NodePtr left = parseMultiplicative();
        while (left) {
            Expression::Node::Op op;
            if (acceptSingle(QLatin1Char('+')))
                op = Expression::Node::Add;
            else if (acceptSingle(QLatin1Char('-')))
                op = Expression::Node::Subtract;
            else
                break;
            NodePtr right = parseMultiplicative();
            if (!right)
                return nullptr;
            left = make(op, left, right);
        }
        return left;
    }

    NodePtr parseMultiplicative()
    {
        NodePtr left = parseUnary();
        while (left) {
            Expression::Node::Op op;
            if (acceptSingle(QLatin1Char('*')))
                op = Expression::Node::Multiply;
            else if (acceptSingle(QLatin1Char('/')))
                op = Expression::Node::Divide;
            else if (acceptSingle(QLatin1Char('%')))
                op = Expression::Node::Modulo;
            else
                break;
            NodePtr right = parseUnary();
            if (!right)
                return nullptr;
            left = make(op, left, right);
        }
        return left;
    }

    NodePtr parseUnary()
    {
        if (++m_depth > 200)
            return fail(QStringLiteral("expression nested too deeply"));
        NodePtr result;
        if (acceptSingle(QLatin1Char('-'))) {
            NodePtr operand = parseUnary();
            result = operand ? make(Expression::Node::Negate, operand) : nullptr;
        } else if (acceptSingle(QLatin1Char('+'))) {
            result = parseUnary();
        } else if (acceptSingle(QLatin1Char('!'), "=")) {
            NodePtr operand = parseUnary();
            result = operand ? make(Expression::Node::Not, operand) : nullptr;
        } else {
            result = parsePrimary();
        }
        --m_depth;
        return result;
    }

    NodePtr parsePrimary()
    {
        skipSpace();
        if (m_pos >= m_text.size())
            return fail(QStringLiteral("unexpected end of expression"));
        const QChar c = m_text.at(m_pos);
        if (c == QLatin1Char('(')) {
            ++m_pos;
            NodePtr inner = parseConditional();
            if (!inner)
                return nullptr;
            if (!acceptSingle(QLatin1Char(')')))
                return fail(QStringLiteral("\")\" expected"));
            return inner;
        }
        if (c == QLatin1Char('\'')) {
            const int end = m_text.indexOf(QLatin1Char('\''), m_pos + 1);
            if (end < 0)
                return fail(QStringLiteral("unterminated text"));
            auto node = std::make_shared<Expression::Node>();
            node->op = Expression::Node::Constant;
            node->constant = ExpressionValue::fromText(m_text.mid(m_pos + 1, end - m_pos - 1));
            m_pos = end + 1;
            return node;
        }
        if (c.isDigit() || c == QLatin1Char('.'))
            return parseNumber();
        if (c.isLetter() || c == QLatin1Char('_'))
            return parseName();
        return fail(QStringLiteral("unexpected \"%1\"").arg(c));
    }

    NodePtr parseNumber()
    {
        const int start = m_pos;
        auto node = std::make_shared<Expression::Node>();
        node->op = Expression::Node::Constant;
        if (QStringView(m_text).mid(m_pos, 2).compare(QLatin1String("0x"), Qt::CaseInsensitive) == 0) {
            m_pos += 2;
            while (m_pos < m_text.size() && isHexDigit(m_text.at(m_pos)))
                ++m_pos;
            bool ok = false;
            const qint64 value = QStringView(m_text).mid(start + 2, m_pos - start - 2).toLongLong(&ok, 16);
            if (!ok)
                return fail(QStringLiteral("bad hexadecimal number"));
            node->constant = ExpressionValue::fromInteger(value);
            return node;
        }
        bool isFloat = false;
        while (m_pos < m_text.size() && m_text.at(m_pos).isDigit())
            ++m_pos;
        if (m_pos < m_text.size() && m_text.at(m_pos) == QLatin1Char('.')) {
            isFloat = true;
            ++m_pos;
            while (m_pos < m_text.size() && m_text.at(m_pos).isDigit())
                ++m_pos;
        }
        if (m_pos < m_text.size() && (m_text.at(m_pos) == QLatin1Char('e') || m_text.at(m_pos) == QLatin1Char('E'))) {
            int p = m_pos + 1;
            if (p < m_text.size() && (m_text.at(p) == QLatin1Char('+') || m_text.at(p) == QLatin1Char('-')))
                ++p;
            if (p < m_text.size() && m_text.at(p).isDigit()) {
                isFloat = true;
                m_pos = p;
                while (m_pos < m_text.size() && m_text.at(m_pos).isDigit())
                    ++m_pos;
            }
        }
        const QStringView number = QStringView(m_text).mid(start, m_pos - start);
        bool ok = false;
        if (isFloat) {
            const double value = number.toDouble(&ok);
            node->constant = ExpressionValue::fromFloat(value);
        } else {
            const qint64 value = number.toLongLong(&ok);
            node->constant = ExpressionValue::fromInteger(value);
        }
        if (!ok)
            return fail(QStringLiteral("bad number \"%1\"").arg(number));
        return node;
    }

    static bool isHexDigit(QChar c)
    {
        return c.isDigit() || (c >= QLatin1Char('a') && c <= QLatin1Char('f'))
            || (c >= QLatin1Char('A') && c <= QLatin1Char('F'));
    }

    NodePtr parseName()
    {
        const int start = m_pos;
        while (m_pos < m_text.size() && (m_text.at(m_pos).isLetterOrNumber() || m_text.at(m_pos) == QLatin1Char('_')))
            ++m_pos;
        const QString name = m_text.mid(start, m_pos - start);
        const int afterName = m_pos;
        if (name == QLatin1String("min") || name == QLatin1String("max")) {
            if (acceptSingle(QLatin1Char('('))) {
                NodePtr first = parseConditional();
                if (!first)
                    return nullptr;
                if (!acceptSingle(QLatin1Char(',')))
                    return fail(QStringLiteral("\",\" expected"));
                NodePtr second = parseConditional();
                if (!second)
                    return nullptr;
                if (!acceptSingle(QLatin1Char(')')))
                    return fail(QStringLiteral("\")\" expected"));
                return make(
                    name == QLatin1String("min") ? Expression::Node::Min : Expression::Node::Max, first, second);
            }
            m_pos = afterName;
        }
        auto node = std::make_shared<Expression::Node>();
        if (name == QLatin1String("true") || name == QLatin1String("false")) {
            node->op = Expression::Node::Constant;
            node->constant = ExpressionValue::fromBool(name == QLatin1String("true"));
            return node;
        }
        node->op = Expression::Node::Name;
        int index = m_names->indexOf(name);
        if (index < 0) {
            index = m_names->size();
            m_names->append(name);
        }
        node->nameIndex = index;
        return node;
    }

    const QString& m_text;
    QStringList* m_names;
    int m_pos = 0;
    int m_depth = 0;
};

bool bothIntegers(const ExpressionValue& a, const ExpressionValue& b)
{
    return a.type() == ExpressionValue::Integer && b.type() == ExpressionValue::Integer;
}

int compareValues(const ExpressionValue& a, const ExpressionValue& b, bool* comparable)
{
    *comparable = true;
    if (a.type() == ExpressionValue::Text || b.type() == ExpressionValue::Text) {
        if (a.type() != b.type()) {
            *comparable = false;
            return 0;
        }
        return QString::compare(a.toText(), b.toText());
    }
    if (bothIntegers(a, b))
        return a.toInteger() < b.toInteger() ? -1 : (a.toInteger() > b.toInteger() ? 1 : 0);
    const double x = a.toDouble();
    const double y = b.toDouble();
    if (std::isnan(x) || std::isnan(y)) {
        *comparable = false;
        return 0;
    }
    return x < y ? -1 : (x > y ? 1 : 0);
}

ExpressionValue evaluateNode(const Expression::Node& node, const Expression::Resolver& resolver)
{
    using N = Expression::Node;
    switch (node.op) {
    case N::Constant:
        return node.constant;
    case N::Name:
        return resolver ? resolver(node.nameIndex) : ExpressionValue();
    case N::Negate: {
        const ExpressionValue v = evaluateNode(*node.a, resolver);
        if (v.type() == ExpressionValue::Integer)
            return ExpressionValue::fromInteger(-v.toInteger());
        return ExpressionValue::fromFloat(-v.toDouble());
    }
    case N::Not:
        return ExpressionValue::fromBool(!evaluateNode(*node.a, resolver).toBool());
    case N::And:
        return ExpressionValue::fromBool(
            evaluateNode(*node.a, resolver).toBool() && evaluateNode(*node.b, resolver).toBool());
    case N::Or:
        return ExpressionValue::fromBool(
            evaluateNode(*node.a, resolver).toBool() || evaluateNode(*node.b, resolver).toBool());
    case N::Conditional:
        return evaluateNode(*node.a, resolver).toBool() ? evaluateNode(*node.b, resolver)
                                                        : evaluateNode(*node.c, resolver);
    default:
        break;
    }

    const ExpressionValue a = evaluateNode(*node.a, resolver);
    const ExpressionValue b = evaluateNode(*node.b, resolver);
    const bool integers = bothIntegers(a, b);
    switch (node.op) {
    case N::Add:
        if (a.type() == ExpressionValue::Text || b.type() == ExpressionValue::Text)
            return ExpressionValue::fromText(a.toText() + b.toText());
        return integers ? ExpressionValue::fromInteger(a.toInteger() + b.toInteger())
                        : ExpressionValue::fromFloat(a.toDouble() + b.toDouble());
    case N::Subtract:
        return integers ? ExpressionValue::fromInteger(a.toInteger() - b.toInteger())
                        : ExpressionValue::fromFloat(a.toDouble() - b.toDouble());
    case N::Multiply:
        return integers ? ExpressionValue::fromInteger(a.toInteger() * b.toInteger())
                        : ExpressionValue::fromFloat(a.toDouble() * b.toDouble());
    case N::Divide:
        if (integers)
            return ExpressionValue::fromInteger(b.toInteger() == 0 ? 0 : a.toInteger() / b.toInteger());
        return ExpressionValue::fromFloat(a.toDouble() / b.toDouble());
    case N::Modulo:
        if (integers)
            return ExpressionValue::fromInteger(b.toInteger() == 0 ? 0 : a.toInteger() % b.toInteger());
        return ExpressionValue::fromFloat(std::fmod(a.toDouble(), b.toDouble()));
    case N::Min:
    case N::Max: {
        bool comparable = false;
        const int order = compareValues(a, b, &comparable);
        if (node.op == N::Min)
            return order <= 0 ? a : b;
        return order >= 0 ? a : b;
    }
    default:
        break;
    }

    bool comparable = false;
    const int order = compareValues(a, b, &comparable);
    switch (node.op) {
    case N::Equal:
        return ExpressionValue::fromBool(comparable && order == 0);
    case N::NotEqual:
        return ExpressionValue::fromBool(!comparable || order != 0);
    case N::Less:
        return ExpressionValue::fromBool(comparable && order < 0);
    case N::LessEqual:
        return ExpressionValue::fromBool(comparable && order <= 0);
    case N::Greater:
        return ExpressionValue::fromBool(comparable && order > 0);
    case N::GreaterEqual:
        return ExpressionValue::fromBool(comparable && order >= 0);
    default:
        break;
    }
    return ExpressionValue();
}

} // namespace

Expression Expression::parse(const QString& text, QString* error)
{
    Expression expression;
    expression.m_text = text;
    if (text.trimmed().isEmpty()) {
        if (error)
            *error = QStringLiteral("empty expression");
        return expression;
    }
    Parser parser(text, &expression.m_names);
    NodePtr root = parser.parseAll();
    if (!root) {
        if (error)
            *error = parser.error;
        expression.m_names.clear();
        return expression;
    }
    expression.m_root = root;
    return expression;
}

ExpressionValue Expression::evaluate(const Resolver& resolver) const
{
    if (!m_root)
        return ExpressionValue();
    return evaluateNode(*m_root, resolver);
}

} // namespace Simulation
