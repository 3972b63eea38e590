#include "nodemapprinter.h"

#include "parameters/iadvancedparameteraccess.h"

#include <exception>

using namespace ParameterCollection;

NodeMapPrinter::NodeMapPrinter(QTextStream& out, int maxDepth)
    : m_out(out)
    , m_maxDepth(maxDepth)
{
}

int NodeMapPrinter::print(const QSharedPointer<IParameterCollection>& collection, const QString& nodeMapName)
{
    m_printed = 0;
    m_out << nodeMapName << '\n';
    if (collection)
        printNode(*collection, nodeMapName + QStringLiteral("/Root"), 1);
    return m_printed;
}

void NodeMapPrinter::printNode(IParameterCollection& collection, const QString& fullName, int depth)
{
    if (depth > m_maxDepth)
        return;
    QList<QString> children;
    try {
        children = collection.getChildNames(fullName, false, true);
    } catch (const std::exception& e) {
        m_out << QString(depth * 2, QLatin1Char(' ')) << "<" << e.what() << ">\n";
        return;
    } catch (...) {
        m_out << QString(depth * 2, QLatin1Char(' ')) << "<unspecified exception>\n";
        return;
    }
    for (const QString& child : children) {
        const QString indent(depth * 2, QLatin1Char(' '));
        try {
            const QSharedPointer<IParameter> parameter = collection.getParameter(child);
            if (!parameter || parameter->isZombie()) {
                m_out << indent << child << " <gone>\n";
                continue;
            }
            QString displayName = parameter->getName();
            if (const auto access = parameter->advancedAccess())
                displayName = access->getProperty(QStringLiteral("DisplayName"), displayName);
            ++m_printed;
            if (parameter->getType() == TypeCategory) {
                m_out << indent << displayName << '\n';
                printNode(collection, child, depth + 1);
            } else {
                m_out << indent << displayName << " (" << parameter->getName() << ") = " << valueText(*parameter)
                      << '\n';
            }
        } catch (const std::exception& e) {
            m_out << indent << child << " <" << e.what() << ">\n";
        } catch (...) {
            m_out << indent << child << " <unspecified exception>\n";
        }
    }
}

QString NodeMapPrinter::valueText(const IParameter& parameter)
{
    const QSharedPointer<const ParameterData> data = parameter.getParameterData();
    if (!data || !data->implemented)
        return QStringLiteral("<not implemented>");
    if (data->type == TypeCommand)
        return QStringLiteral("<command>");
    if (data->readable) {
        QString text = data->valueText;
        if (const auto access = parameter.advancedAccess()) {
            const QString unit = access->getProperty(QStringLiteral("Unit"), QString());
            if (!unit.isEmpty())
                text += QLatin1Char(' ') + unit;
        }
        return text;
    }
    return data->writable ? QStringLiteral("<not readable>") : QStringLiteral("<not available>");
}
