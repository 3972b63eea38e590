#pragma once

#include <QByteArray>
#include <QHash>
#include <QPair>
#include <QSet>
#include <QString>
#include <QStringList>

namespace Aravis {

/*!
 * What the node map needs from a GenICam document beyond Aravis's own API:
 * the element kind of each node, the order of categories' features and of
 * enumeration entries as the document gives them, the pAlias of each node,
 * whether a float names an increment, its DocuURL, and which nodes depend on
 * which (every p-reference, selectors and registers sharing an address), so
 * that a write can tell which features it may have changed.
 *
 * It also judges the document, which comes from a device nobody here
 * controls, before Aravis evaluates anything of it: a node defined twice, a
 * node whose value refers to itself through any chain of references (Aravis
 * would recurse until the stack ends, or loop for ever), a node that refers to
 * one the document doesn't define (Aravis reads that as 0 without a word), a
 * register of absurd length, a formula nested absurdly deep, and every node
 * that reads one of these, each get a problem text and are left out of the
 * node map. A document nested absurdly deep is refused. Categories that
 * hold themselves, directly or through others, lose the pFeature that closes
 * the cycle, and a category lists each feature once.
 */
class GenICamXmlIndex
{
public:
    struct Node
    {
        QString element; //!< "Integer", "FloatReg", "Enumeration", ...
        QStringList features; //!< pFeature of a category, in document order
        QStringList entries; //!< EnumEntry names of an enumeration, in document order
        QString alias; //!< pAlias, or empty
        QString docuUrl;
        bool hasIncrement = false; //!< Inc or pInc given
        QStringList valueTargets; //!< pValue and pValueCopy: where a write goes on to
    };

    //! Parses the document; on failure isValid() is false and errorString() says why.
    explicit GenICamXmlIndex(const QByteArray& xml = QByteArray());

    bool isValid() const { return m_valid; }
    QString errorString() const { return m_error; }

    bool contains(const QString& name) const { return m_nodes.contains(name); }
    /*!
     * Why the named node is left out of the node map ("defined more than
     * once", "its value refers to itself through A, B"), or empty for a node
     * that may be used.
     */
    QString problem(const QString& name) const { return m_problems.value(name); }
    //! How many nodes are left out, for the log.
    int problemCount() const { return m_problems.size(); }
    //! The first of them in name order, with its reason, as "Name: reason"; empty when there is none.
    QString firstProblem() const;
    //! The node, or an empty one for a name the document doesn't hold.
    Node node(const QString& name) const { return m_nodes.value(name); }

    /*!
     * Every node whose value, range or access may change when the named node
     * is written: the node, where its write goes on to (pValue), and everything
     * that refers to any of those, transitively.
     */
    QSet<QString> affectedByWrite(const QString& name) const;

    //! Longest register a node may claim; Aravis allocates it whole for each read.
    static constexpr qint64 maximumRegisterLength = 1 << 20;
    //! Deepest nesting of parentheses accepted in a formula.
    static constexpr int maximumFormulaDepth = 256;
    //! Deepest nesting of elements accepted in a document; GenICam's own go five or six deep.
    static constexpr int maximumNesting = 64;

private:
    void addReference(const QString& from, const QString& tag, const QString& to, bool inEntry);
    void checkLength(const QString& name, const QString& element, const QString& text);
    void findReferenceCycles();
    void cutCategoryCycles();

    QHash<QString, Node> m_nodes;
    QHash<QString, QSet<QString>> m_dependents; //!< node -> nodes that refer to it
    //! node -> the nodes whose values Aravis reads to give the node's value
    QHash<QString, QStringList> m_reads;
    //! node -> the nodes read for its range, availability and lock, and for its
    //! enumeration entries': never while its value is read, so no part of a cycle
    QHash<QString, QStringList> m_facetReads;
    QHash<QString, QStringList> m_entryReads;
    QHash<QString, QString> m_problems; //!< node -> why it is left out
    bool m_valid = false;
    QString m_error;
};

} // namespace Aravis
