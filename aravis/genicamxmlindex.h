#pragma once

#include <QByteArray>
#include <QHash>
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
    //! The node, or an empty one for a name the document doesn't hold.
    Node node(const QString& name) const { return m_nodes.value(name); }

    /*!
     * Every node whose value, range or access may change when the named node
     * is written: the node, where its write goes on to (pValue), and everything
     * that refers to any of those, transitively.
     */
    QSet<QString> affectedByWrite(const QString& name) const;

private:
    void addReference(const QString& from, const QString& tag, const QString& to);

    QHash<QString, Node> m_nodes;
    QHash<QString, QSet<QString>> m_dependents; //!< node -> nodes that refer to it
    bool m_valid = false;
    QString m_error;
};

} // namespace Aravis
