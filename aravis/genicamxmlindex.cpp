#include "genicamxmlindex.h"

#include <QVector>
#include <QXmlStreamReader>

#include <algorithm>

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
        QStringLiteral("SmartFeature"), QStringLiteral("DcamLock"), QStringLiteral("Node") };
    return elements;
}

// References that say nothing about a node's value: the port every register
// goes through, a category's members, and the alias that only names a twin.
bool carriesNoDependency(const QString& tag)
{
    return tag == QLatin1String("pPort") || tag == QLatin1String("pFeature") || tag == QLatin1String("pAlias")
        || tag == QLatin1String("pCastAlias") || tag == QLatin1String("pSelected");
}

// References that Aravis doesn't follow when it reads a node: the members of
// a category, the selected features of a selector, the twin that an alias
// names, and the nodes a write invalidates.
bool evaluatedOnRead(const QString& tag)
{
    return tag != QLatin1String("pFeature") && tag != QLatin1String("pSelected") && tag != QLatin1String("pAlias")
        && tag != QLatin1String("pCastAlias") && tag != QLatin1String("pInvalidator");
}

// References to what a node's range, availability or lock depend on: Aravis
// follows them only when it is asked for that, never for the node's value,
// so a node whose maximum or availability reads its own value is sound.
bool readsBesideTheValue(const QString& tag)
{
    return tag == QLatin1String("pMin") || tag == QLatin1String("pMax") || tag == QLatin1String("pInc")
        || tag == QLatin1String("pIsAvailable") || tag == QLatin1String("pIsImplemented")
        || tag == QLatin1String("pIsLocked") || tag == QLatin1String("pError");
}

bool isFormula(const QString& tag)
{
    return tag == QLatin1String("Formula") || tag == QLatin1String("FormulaTo") || tag == QLatin1String("FormulaFrom");
}

// Registers that hold one number: Aravis reads at most eight bytes of them.
bool isNumberRegister(const QString& element)
{
    return element == QLatin1String("IntReg") || element == QLatin1String("MaskedIntReg")
        || element == QLatin1String("FloatReg") || element == QLatin1String("StructEntry");
}

int parenthesisDepth(const QString& formula)
{
    int depth = 0;
    int deepest = 0;
    for (const QChar c : formula) {
        if (c == QLatin1Char('('))
            deepest = qMax(deepest, ++depth);
        else if (c == QLatin1Char(')'))
            --depth;
    }
    return deepest;
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
    QString structLength; // its Length, which its entries share
    QStringList structEntries;
    QString currentEnumEntry;
    QHash<QString, QStringList> byAddress;
    int depth = 0;

    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            // Aravis's parser gives up on deep nesting and keeps half the document.
            if (++depth > maximumNesting) {
                m_error = QStringLiteral("the GenICam document nests elements more than %1 deep (line %2)")
                              .arg(maximumNesting)
                              .arg(reader.lineNumber());
                m_nodes.clear();
                return;
            }
            const QString tag = reader.name().toString();
            const QString nameAttribute = reader.attributes().value(QLatin1String("Name")).toString();
            if (tag == QLatin1String("StructReg")) {
                structAddress.clear();
                structLength.clear();
                structEntries.clear();
                continue;
            }
            if (tag == QLatin1String("EnumEntry") && !open.isEmpty()) {
                m_nodes[open.last().name].entries.append(nameAttribute);
                currentEnumEntry = nameAttribute;
                continue;
            }
            if (nodeElements().contains(tag) && !nameAttribute.isEmpty()) {
                Node& node = m_nodes[nameAttribute];
                if (!node.element.isEmpty())
                    m_problems.insert(nameAttribute, QStringLiteral("defined more than once"));
                node.element = tag;
                OpenNode entry { nameAttribute, QString() };
                if (tag == QLatin1String("StructEntry")) {
                    entry.addressKey = structAddress;
                    structEntries.append(nameAttribute);
                }
                open.append(entry);
                continue;
            }
            // A child element of a node: its text may name another node.
            const bool reference = tag.size() > 1 && tag.at(0) == QLatin1Char('p') && tag.at(1).isUpper();
            const bool address
                = tag == QLatin1String("Address") || tag == QLatin1String("pAddress") || tag == QLatin1String("pIndex");
            const bool increment = tag == QLatin1String("Inc") || tag == QLatin1String("pInc");
            const bool docuUrl = tag == QLatin1String("DocuURL");
            const bool length = tag == QLatin1String("Length");
            const bool formula = isFormula(tag);
            if (!reference && !address && !increment && !docuUrl && !length && !formula)
                continue;
            const QString text = reader.readElementText(QXmlStreamReader::SkipChildElements).trimmed();
            --depth; // its end element is read with its text
            if (open.isEmpty()) {
                // Inside a StructReg but outside its entries: the common address and length.
                if (address)
                    structAddress += tag + QLatin1Char('=') + text + QLatin1Char(';');
                if (length)
                    structLength = text;
                continue;
            }
            OpenNode& current = open.last();
            Node& node = m_nodes[current.name];
            if (length && currentEnumEntry.isEmpty())
                checkLength(current.name, node.element, text);
            if (formula) {
                const int depth = parenthesisDepth(text);
                if (depth > maximumFormulaDepth)
                    m_problems.insert(current.name, QStringLiteral("its formula is nested %1 deep").arg(depth));
            }
            if (address && currentEnumEntry.isEmpty())
                current.addressKey += tag + QLatin1Char('=') + text + QLatin1Char(';');
            if (increment && currentEnumEntry.isEmpty())
                node.hasIncrement = true;
            if (docuUrl && currentEnumEntry.isEmpty())
                node.docuUrl = text;
            if (reference && !text.isEmpty())
                addReference(current.name, tag, text, !currentEnumEntry.isEmpty());
        } else if (reader.isEndElement()) {
            --depth;
            const QString tag = reader.name().toString();
            if (tag == QLatin1String("StructReg")) {
                for (const QString& entry : qAsConst(structEntries))
                    checkLength(entry, QStringLiteral("StructEntry"), structLength);
            } else if (tag == QLatin1String("EnumEntry")) {
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
    findReferenceCycles();
    cutCategoryCycles();
    m_valid = true;
}

QString GenICamXmlIndex::firstProblem() const
{
    if (m_problems.isEmpty())
        return QString();
    QStringList names = m_problems.keys();
    std::sort(names.begin(), names.end());
    return names.first() + QStringLiteral(": ") + m_problems.value(names.first());
}

void GenICamXmlIndex::checkLength(const QString& name, const QString& element, const QString& text)
{
    if (text.isEmpty())
        return;
    bool ok = false;
    const qint64 length = text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive) ? text.mid(2).toLongLong(&ok, 16)
                                                                                    : text.toLongLong(&ok);
    const qint64 limit = isNumberRegister(element) ? 8 : maximumRegisterLength;
    if (ok && (length < 0 || length > limit))
        m_problems.insert(name, QStringLiteral("it claims a register of %1 bytes").arg(length));
}

void GenICamXmlIndex::findReferenceCycles()
{
    // Nodes as numbers, and the references Aravis follows when it reads them.
    QHash<QString, int> number;
    QStringList names;
    for (auto node = m_nodes.cbegin(); node != m_nodes.cend(); ++node) {
        number.insert(node.key(), names.size());
        names.append(node.key());
    }
    const int count = names.size();
    auto targets = [&](const QHash<QString, QStringList>& edges) {
        QVector<QVector<int>> result(count);
        for (auto from = edges.cbegin(); from != edges.cend(); ++from) {
            const int source = number.value(from.key(), -1);
            if (source < 0)
                continue;
            for (const QString& to : from.value()) {
                const int target = number.value(to, -1);
                if (target >= 0)
                    result[source].append(target);
            }
        }
        return result;
    };
    const QVector<QVector<int>> reads = targets(m_reads);
    const QVector<QVector<int>> facetReads = targets(m_facetReads);
    const QVector<QVector<int>> entryReads = targets(m_entryReads);

    // Tarjan's strongly connected components of the value references, without
    // recursion: a document may chain 100 000 nodes. Aravis follows a cycle
    // among them until the stack ends, or for ever.
    QVector<int> order(count, -1);
    QVector<int> low(count, 0);
    QVector<bool> onStack(count, false);
    QVector<int> stack;
    QVector<QPair<int, int>> calls; // node, next reference to follow
    QVector<bool> hazard(count, false);
    int counter = 0;
    for (int start = 0; start < count; ++start) {
        if (order[start] >= 0)
            continue;
        calls.append({ start, 0 });
        order[start] = low[start] = counter++;
        stack.append(start);
        onStack[start] = true;
        while (!calls.isEmpty()) {
            const int node = calls.last().first;
            const int next = calls.last().second;
            if (next < reads[node].size()) {
                ++calls.last().second;
                const int target = reads[node][next];
                if (order[target] < 0) {
                    order[target] = low[target] = counter++;
                    stack.append(target);
                    onStack[target] = true;
                    calls.append({ target, 0 });
                } else if (onStack[target]) {
                    low[node] = qMin(low[node], order[target]);
                }
                continue;
            }
            calls.removeLast();
            if (!calls.isEmpty())
                low[calls.last().first] = qMin(low[calls.last().first], low[node]);
            if (low[node] != order[node])
                continue;
            QStringList component;
            int member = -1;
            do {
                member = stack.takeLast();
                onStack[member] = false;
                component.append(names[member]);
            } while (member != node);
            if (component.size() == 1 && !reads[node].contains(node))
                continue;
            std::sort(component.begin(), component.end());
            const QString problem = component.size() == 1
                ? QStringLiteral("its value refers to itself")
                : QStringLiteral("its value refers to itself through %1").arg(component.join(QLatin1String(", ")));
            for (const QString& name : qAsConst(component)) {
                hazard[number.value(name)] = true;
                m_problems.insert(name, problem);
            }
        }
    }

    // A reference to a node the document doesn't define: Aravis reads it as
    // nothing at all and gives 0 without a word.
    for (const QHash<QString, QStringList>* edges : { &m_reads, &m_facetReads, &m_entryReads }) {
        for (auto from = edges->cbegin(); from != edges->cend(); ++from) {
            if (m_problems.contains(from.key()))
                continue;
            for (const QString& to : from.value()) {
                if (!number.contains(to)) {
                    m_problems.insert(
                        from.key(), QStringLiteral("it refers to %1, which the document doesn't define").arg(to));
                    break;
                }
            }
        }
    }

    // Any of these hurts whoever reads the node as well.
    for (auto problem = m_problems.cbegin(); problem != m_problems.cend(); ++problem)
        if (problem.value() != QLatin1String("defined more than once") && number.contains(problem.key()))
            hazard[number.value(problem.key())] = true;

    // Whatever reads a node that hurts, through any chain, is left out with it.
    QVector<QVector<int>> readers(count);
    for (int from = 0; from < count; ++from) {
        for (const QVector<QVector<int>>* edges : { &reads, &facetReads, &entryReads })
            for (const int to : edges->at(from))
                readers[to].append(from);
    }
    QVector<int> pending;
    for (int node = 0; node < count; ++node)
        if (hazard[node])
            pending.append(node);
    while (!pending.isEmpty()) {
        const int node = pending.takeLast();
        const QString why = m_problems.value(names[node]);
        for (const int reader : qAsConst(readers[node])) {
            if (hazard[reader])
                continue;
            hazard[reader] = true;
            if (!m_problems.contains(names[reader]))
                m_problems.insert(
                    names[reader], QStringLiteral("it reads %1, which is left out: %2").arg(names[node], why));
            pending.append(reader);
        }
    }
}

void GenICamXmlIndex::cutCategoryCycles()
{
    auto isCategory = [this](const QString& name) {
        const auto node = m_nodes.constFind(name);
        return node != m_nodes.constEnd() && node->element == QLatin1String("Category");
    };
    QStringList categories;
    for (auto node = m_nodes.begin(); node != m_nodes.end(); ++node) {
        if (node->element != QLatin1String("Category"))
            continue;
        node->features.removeDuplicates();
        categories.append(node.key());
    }
    // Depth first from Root, then from any category Root doesn't reach: a
    // pFeature to a category still open on the way down closes a cycle and goes.
    std::sort(categories.begin(), categories.end());
    categories.removeOne(QStringLiteral("Root"));
    categories.prepend(QStringLiteral("Root"));
    enum Colour { White, Grey, Black };
    QHash<QString, Colour> colour;
    QHash<QString, QSet<QString>> cut;
    for (const QString& start : qAsConst(categories)) {
        if (!isCategory(start) || colour.value(start, White) != White)
            continue;
        QVector<QPair<QString, int>> path { { start, 0 } };
        colour.insert(start, Grey);
        while (!path.isEmpty()) {
            const QString category = path.last().first;
            const QStringList& features = m_nodes[category].features;
            const int next = path.last().second;
            if (next >= features.size()) {
                colour.insert(category, Black);
                path.removeLast();
                continue;
            }
            ++path.last().second;
            const QString& feature = features.at(next);
            if (!isCategory(feature))
                continue;
            const Colour seen = colour.value(feature, White);
            if (seen == Grey) {
                cut[category].insert(feature);
            } else if (seen == White) {
                colour.insert(feature, Grey);
                path.append({ feature, 0 });
            }
        }
    }
    for (auto category = cut.cbegin(); category != cut.cend(); ++category)
        for (const QString& feature : category.value())
            m_nodes[category.key()].features.removeAll(feature);
}

void GenICamXmlIndex::addReference(const QString& from, const QString& tag, const QString& to, bool inEntry)
{
    if (evaluatedOnRead(tag))
        (inEntry ? m_entryReads : readsBesideTheValue(tag) ? m_facetReads : m_reads)[from].append(to);
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
