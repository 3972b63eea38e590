#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace Simulation {

//! A value met while evaluating an expression: a whole number, a real number or a text.
class ExpressionValue
{
public:
    enum Type { Integer, Float, Text };

    ExpressionValue() = default;
    static ExpressionValue fromInteger(qint64 value);
    static ExpressionValue fromFloat(double value);
    static ExpressionValue fromText(const QString& value);
    static ExpressionValue fromBool(bool value) { return fromInteger(value ? 1 : 0); }

    Type type() const { return m_type; }
    bool isNumber() const { return m_type != Text; }
    qint64 toInteger() const;
    double toDouble() const;
    bool toBool() const;
    QString toText() const;

private:
    Type m_type = Integer;
    qint64 m_integer = 0;
    double m_float = 0.0;
    QString m_text;
};

/*!
 * The small expression language of device descriptions: numbers, feature
 * names, 'texts', + - * / %, comparisons, && || !, ?:, parentheses, min(a, b)
 * and max(a, b). An expression is parsed once; names are looked up at
 * evaluation time through their index in names(), so that the caller can bind
 * them to whatever storage it has.
 */
class Expression
{
public:
    Expression() = default;

    //! Parses text; on failure gives an invalid expression and, if error is given, why.
    static Expression parse(const QString& text, QString* error = nullptr);

    bool isValid() const { return m_root != nullptr; }
    QString text() const { return m_text; }
    //! Distinct names in order of first appearance.
    const QStringList& names() const { return m_names; }

    //! Gives the value of the name with the given index in names().
    using Resolver = std::function<ExpressionValue(int nameIndex)>;
    //! Evaluates; an invalid expression gives 0.
    ExpressionValue evaluate(const Resolver& resolver) const;

    struct Node;

private:
    std::shared_ptr<const Node> m_root;
    QStringList m_names;
    QString m_text;
};

} // namespace Simulation
