#include "genicamxmlindex.h"

#include <QVector>
#include <QXmlStreamReader>

namespace Aravis {

namespace {

// Elements that are nodes of the node map. EnumEntry is read as part of its
// enumeration, StructEntry as a node of its own that shares its StructReg's register.
const QSet<QString>& nodeElements()
{
    static const QSet<QString> elements = { QStringLiteral("Category"), QStringLiteral("Integer"),
        QStringLiteral("IntReg"), QStringLiteral("MaskedIntReg"), QStringLiteral("IntConverter"),
        QStringLiteral("IntSwissKnife"), QStringLiteral("Float"), QStringLiteral("FloatReg"),
        QStringLiteral("Converter"), QStringLiteral("SwissKnife"), QStringLiteral("Boolean"), QStringLiteral("Command"),
        QStringLiteral("Enumeration"), QStringLiteral("String"), QStringLiteral("StringReg"),
        QStringLiteral("Register"), QStringLiteral("StructEntry"), QStringLiteral("Port"), QStringLiteral("ConfRom"),
        QStringLiteral("TextDesc"), QStringLiteral("IntKey"), QStringLiteral("AdvFeatureLock"),
        QStringLiteral("SmartFeature") };
    return elements;
}

// References that say nothing about a node's value: the port every register
// goes through, a category's members, and the alias that only names a twin.
bool carriesNoDependency(const QString& tag)
{
    return tag == QLatin1String("pPort") || tag == QLatin1String("pFeature") || tag == QLatin1String("pAlias")
        || tag == QLatin1String("pCastAlias") || tag == QLatin1String("pSelected");
}

struct OpenNode
{
    QString name;
    QString addressKey; //!< registers at the same address change together
};

} // namespace

GenICamXmlIndex::GenICamXmlIndex(const QByteArray& xml)
{
    if (xml.isEmpty()) {
        m_error = QStringLiteral("empty GenICam document");
        return;
    }
    QXmlStreamReader reader(xml);
    QVector<OpenNode> open; // nodes whose element is open, innermost last
    QString structAddress; // Address/pAddress of the StructReg being read
    QString currentEnumEntry;
    QHash<QString, QStringList> byAddress;

    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            const QString tag = reader.name().toString();
            const QString nameAttribute = reader.attributes().value(QLatin1String("Name")).toString();
            if (tag == QLatin1String("StructReg")) {
                structAddress.clear();
                continue;
            }
            if (tag == QLatin1String("EnumEntry") && !open.isEmpty()) {
                m_nodes[open.last().name].entries.append(nameAttribute);
                currentEnumEntry = nameAttribute;
                continue;
            }
            if (nodeElements().contains(tag) && !nameAttribute.isEmpty()) {
                Node& node = m_nodes[nameAttribute];
                node.element = tag;
                OpenNode entry { nameAttribute, QString() };
                if (tag == QLatin1String("StructEntry"))
                    entry.addressKey = structAddress;
                open.append(entry);
                continue;
            }
            // A child element of a node: its text may name another node.
            const bool reference = tag.size() > 1 && tag.at(0) == QLatin1Char('p') && tag.at(1).isUpper();
            const bool address
                = tag == QLatin1String("Address") || tag == QLatin1String("pAddress") || tag == QLatin1String("pIndex");
            const bool increment = tag == QLatin1String("Inc") || tag == QLatin1String("pInc");
            const bool docuUrl = tag == QLatin1String("DocuURL");
            if (!reference && !address && !increment && !docuUrl)
                continue;
            const QString text = reader.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
            if (open.isEmpty()) {
                // Inside a StructReg but outside its entries: the common address.
                if (address)
                    structAddress += tag + QLatin1Char('=') + text + QLatin1Char(';');
                continue;
            }
            OpenNode& current = open.last();
            Node& node = m_nodes[current.name];
            if (address && currentEnumEntry.isEmpty())
                current.addressKey += tag + QLatin1Char('=') + text + QLatin1Char(';');
            if (increment && currentEnumEntry.isEmpty())
                node.hasIncrement = true;
            if (docuUrl && currentEnumEntry.isEmpty())
                node.docuUrl = text;
            if (reference && !text.isEmpty())
                addReference(current.name, tag, text);
        } else if (reader.isEndElement()) {
            const QString tag = reader.name().toString();
            if (tag == QLatin1String("EnumEntry")) {
                currentEnumEntry.clear();
            } else if (nodeElements().contains(tag) && !open.isEmpty()) {
                const OpenNode closed = open.takeLast();
                if (!closed.addressKey.isEmpty())
                    byAddress[closed.addressKey].append(closed.name);
            }
        }
    }
    if (reader.hasError()) {
        m_error = QStringLiteral("GenICam document does not parse: %1 (line %2)")
                      .arg(reader.errorString())
                      .arg(reader.lineNumber());
        m_nodes.clear();
        return;
    }
    // Registers at the same address are one register seen through several nodes.
    for (const QStringList& names : qAsConst(byAddress)) {
        for (const QString& a : names)
            for (const QString& b : names)
                if (a != b)
                    m_dependents[a].insert(b);
    }
    m_valid = true;
}

void GenICamXmlIndex::addReference(const QString& from, const QString& tag, const QString& to)
{
    Node& node = m_nodes[from];
    if (tag == QLatin1String("pFeature")) {
        node.features.append(to);
    } else if (tag == QLatin1String("pAlias")) {
        node.alias = to;
    } else if (tag == QLatin1String("pSelected")) {
        // The selector picks which slot the selected feature shows.
        m_dependents[from].insert(to);
    } else if (!carriesNoDependency(tag)) {
        m_dependents[to].insert(from);
        if (tag == QLatin1String("pValue") || tag == QLatin1String("pValueCopy"))
            node.valueTargets.append(to);
    }
}

QSet<QString> GenICamXmlIndex::affectedByWrite(const QString& name) const
{
    // Where the write goes: the node and, through pValue, what it writes on to.
    QSet<QString> written;
    QStringList pending { name };
    while (!pending.isEmpty()) {
        const QString current = pending.takeLast();
        if (written.contains(current))
            continue;
        written.insert(current);
        pending += m_nodes.value(current).valueTargets;
    }
    // Everything that reads any of them.
    QSet<QString> affected;
    pending = written.values();
    while (!pending.isEmpty()) {
        const QString current = pending.takeLast();
        if (affected.contains(current))
            continue;
        affected.insert(current);
        for (const QString& dependent : m_dependents.value(current))
            pending.append(dependent);
    }
    return affected;
}

} // namespace Aravis
