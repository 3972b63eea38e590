#include "devicestate.h"
#include "devicestatesupport.h"

#include "simulatedbooleanparameter.h"
#include "simulatedcategoryparameter.h"
#include "simulatedcommandparameter.h"
#include "simulatedenumparameter.h"
#include "simulatedfloatparameter.h"
#include "simulatedintegerparameter.h"
#include "simulatedstringparameter.h"
#include "simulatedzombieparameter.h"

#include <QMutexLocker>

namespace Simulation {

using namespace ParameterCollection;
using namespace DeviceStateSupport;

// ============================================================ look-ups

bool DeviceState::resolve(const NodeMapState& m, const QString& name, int* feature, bool* alias) const
{
    QStringView rest(name);
    if (rest.startsWith(m.prefix))
        rest = rest.mid(m.prefix.size());
    else if (rest.startsWith(QLatin1Char('@')))
        return false;
    *alias = false;
    // The last letter first, inline: few names end in it.
    if (rest.endsWith(QLatin1Char('s')) && rest.endsWith(QLatin1String("/Alias"))) {
        *alias = true;
        rest.chop(6);
    }
    if (rest.contains(QLatin1Char('/')))
        return false;
    const int index = m.byName.value(rest);
    if (index < 0 || m.features[size_t(index)].excluded)
        return false;
    if (*alias) {
        const FeatureDescription& d = desc(m, index);
        if (d.kind != FeatureKind::Float || !d.alias)
            return false;
    }
    *feature = index;
    return true;
}

QSharedPointer<IParameter> DeviceState::getParameter(int map, const QString& name)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    checkFaultLocked(m.name, Operation::GetParameter);
    requirePluggedLocked();
    int feature = -1;
    bool alias = false;
    if (!resolve(m, name, &feature, &alias)) {
        QString fullName = name;
        QString shortName = name;
        if (name.startsWith(QLatin1Char('@')) && name.contains(QLatin1Char('/')))
            shortName = name.mid(name.indexOf(QLatin1Char('/')) + 1);
        else
            fullName = m.prefix + name;
        FeatureRef ref { map, -1, false };
        return QSharedPointer<IParameter>(new SimulatedZombieParameter(sharedFromThis(), ref, fullName, shortName));
    }
    ObjectSlot& slot = m.objects[key(feature, alias)];
    if (QSharedPointer<IParameter> existing = slot.object.toStrongRef())
        return existing;

    const FeatureDescription& d = desc(m, feature);
    const FeatureRef ref { map, feature, alias };
    const QString shortName = alias ? d.name + QStringLiteral("/Alias") : d.name;
    const QString fullName = alias ? fullNameOf(m, feature) + QStringLiteral("/Alias") : fullNameOf(m, feature);
    QSharedPointer<DeviceState> self = sharedFromThis();
    IParameter* object = nullptr;
    switch (alias ? FeatureKind::Integer : d.kind) {
    case FeatureKind::Integer:
        object = new SimulatedIntegerParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Float:
        object = new SimulatedFloatParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Boolean:
        object = new SimulatedBooleanParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Command:
        object = new SimulatedCommandParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::String:
        object = new SimulatedStringParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Enumeration:
        object = new SimulatedEnumParameter(self, ref, fullName, shortName);
        break;
    case FeatureKind::Category:
        object = new SimulatedCategoryParameter(self, ref, fullName, shortName);
        break;
    }
    QSharedPointer<IParameter> result(object);
    slot.object = result;
    slot.last = snapshot(m, feature, alias);
    return result;
}

bool DeviceState::hasParameter(int map, const QString& name)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    checkFaultLocked(m.name, Operation::HasParameter);
    int feature = -1;
    bool alias = false;
    return resolve(m, name, &feature, &alias);
}

QList<QString> DeviceState::getChildNames(int map, const QString& name, bool recursive, bool presentationOrder)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    checkFaultLocked(m.name, Operation::GetChildNames);
    requirePluggedLocked();
    int feature = -1;
    bool alias = false;
    if (!resolve(m, name, &feature, &alias))
        throwGeneric(QStringLiteral("%1 is not a feature of node map %2").arg(name, m.name));
    QList<QString> names;
    if (alias)
        return names;
    if (recursive) {
        QSet<int> visited;
        collectChildren(m, feature, true, &visited, &names);
    } else {
        // One level visits nothing twice: no set to fill.
        collectChildren(m, feature, false, nullptr, &names);
    }
    if (!presentationOrder)
        std::sort(names.begin(), names.end());
    return names;
}

void DeviceState::collectChildren(
    NodeMapState& m, int category, bool recursive, QSet<int>* visited, QList<QString>* names)
{
    if (visited) {
        if (visited->contains(category))
            return;
        visited->insert(category);
    }
    if (desc(m, category).kind != FeatureKind::Category)
        return;
    const QVector<int>& children = m.features[size_t(category)].children;
    names->reserve(names->size() + children.size());
    for (int child : children) {
        if (m.features[size_t(child)].excluded)
            continue;
        names->append(fullNameOf(m, child));
        if (recursive)
            collectChildren(m, child, true, visited, names);
    }
}

const QString& DeviceState::fullNameOf(NodeMapState& m, int feature)
{
    QString& fullName = m.features[size_t(feature)].fullName;
    if (fullName.isNull())
        fullName = m.prefix + desc(m, feature).name;
    return fullName;
}

} // namespace Simulation
