#pragma once

#include "parameters/iparametercollection.h"

#include <QSharedPointer>
#include <QTextStream>

/*!
 * Writes a node map as an indented tree of display names, names and values,
 * walking from "<node map>/Root" in presentation order. Every call into the
 * node map is guarded: a feature that throws is printed with the reason and
 * the walk goes on.
 */
class NodeMapPrinter
{
public:
    NodeMapPrinter(QTextStream& out, int maxDepth);

    //! Returns the number of features printed.
    int print(const QSharedPointer<ParameterCollection::IParameterCollection>& collection, const QString& nodeMapName);

private:
    void printNode(ParameterCollection::IParameterCollection& collection, const QString& fullName, int depth);
    static QString valueText(const ParameterCollection::IParameter& parameter);

    QTextStream& m_out;
    int m_maxDepth;
    int m_printed = 0;
};
