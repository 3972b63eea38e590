#include "benchmarkutil.h"

#include "parameters/iadvancedparameteraccess.h"

#include <malloc.h>

#include <algorithm>
#include <limits>

namespace BenchmarkUtil {

qint64 heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<qint64>(info.uordblks + info.hblkhd);
}

double timeMs(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return timer.nsecsElapsed() / 1e6;
}

double fastestMs(int repeats, const std::function<void()>& work)
{
    double best = std::numeric_limits<double>::max();
    for (int i = 0; i < repeats; ++i)
        best = std::min(best, timeMs(work));
    return best;
}

int walkRowCount(const QAbstractItemModel& model, const QModelIndex& parent)
{
    const int rows = model.rowCount(parent);
    int total = rows;
    for (int row = 0; row < rows; ++row)
        total += walkRowCount(model, model.index(row, 0, parent));
    return total;
}

void fillStandardModel(QStandardItem* parent, ParameterCollection::IParameterCollection& collection,
    const QString& fullName, QList<QSharedPointer<ParameterCollection::IParameter>>* keep)
{
    using namespace ParameterCollection;
    for (const QString& child : collection.getChildNames(fullName, false, true)) {
        const QSharedPointer<IParameter> parameter = collection.getParameter(child);
        if (!parameter || parameter->isZombie())
            continue;
        if (keep)
            keep->append(parameter);
        const QSharedPointer<const ParameterData> data = parameter->getParameterData();
        const QSharedPointer<IAdvancedParameterAccess> access = parameter->advancedAccess();
        const QString displayName = access->getProperty(QStringLiteral("DisplayName"), QStringLiteral("<unknown>"));
        // The same name column as the feature tree shows: a feature with a unit
        // is titled "<display name> [<unit>]".
        const QString unit = access->getProperty(QStringLiteral("Unit"), QString());
        auto* nameItem
            = new QStandardItem(unit.isEmpty() ? displayName : QStringLiteral("%1 [%2]").arg(displayName, unit));
        auto* valueItem = new QStandardItem(data ? data->valueText : QString());
        parent->appendRow({ nameItem, valueItem });
        if (parameter->getType() == TypeCategory)
            fillStandardModel(nameItem, collection, child, keep);
    }
}

} // namespace BenchmarkUtil
