#include "syntheticnodemapgenerator.h"

#include <algorithm>

namespace Simulation {

namespace {

// SplitMix64, so that a seed gives the same node map on every platform.
class Random
{
public:
    explicit Random(quint64 seed)
        : m_state(seed)
    {
    }

    quint64 next()
    {
        quint64 z = (m_state += 0x9E3779B97F4A7C15ULL);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }

    int below(int bound) { return bound <= 0 ? 0 : int(next() % quint64(bound)); }

private:
    quint64 m_state;
};

} // namespace

SyntheticNodeMapGenerator::SyntheticNodeMapGenerator() = default;

SyntheticNodeMapGenerator::SyntheticNodeMapGenerator(const Options& options)
    : m_options(options)
{
}

QString SyntheticNodeMapGenerator::featureName(int index)
{
    return QStringLiteral("Feature%1").arg(index, 6, 10, QLatin1Char('0'));
}

int SyntheticNodeMapGenerator::categoryCount() const
{
    const int fanOut = std::max(1, m_options.fanOut);
    int count = 1;
    int level = 1;
    for (int d = 0; d < m_options.depth; ++d) {
        level *= fanOut;
        count += level;
    }
    return count;
}

int SyntheticNodeMapGenerator::polledCount() const
{
    const int count = std::max(0, m_options.featureCount);
    const int polled = m_options.polledCount >= 0 ? m_options.polledCount : int(count * m_options.polledShare);
    return std::min(polled, count);
}

NodeMapDescription SyntheticNodeMapGenerator::generateNodeMap() const
{
    const int count = std::max(0, m_options.featureCount);
    const int fanOut = std::max(1, m_options.fanOut);
    const int depth = std::max(0, m_options.depth);
    Random random(m_options.seed);

    NodeMapDescription map;
    map.name = m_options.nodeMapName;
    map.features.reserve(count + categoryCount());

    // Categories, breadth first; the last level holds the value features.
    FeatureDescription root;
    root.name = QStringLiteral("Root");
    root.kind = FeatureKind::Category;
    map.features.append(root);
    QVector<int> level { 0 };
    for (int d = 0; d < depth; ++d) {
        QVector<int> next;
        next.reserve(level.size() * fanOut);
        for (int parent : qAsConst(level)) {
            for (int c = 0; c < fanOut; ++c) {
                FeatureDescription category;
                category.kind = FeatureKind::Category;
                category.name = QStringLiteral("Category%1_%2").arg(d + 1).arg(next.size());
                category.displayName = QStringLiteral("Category %1.%2").arg(d + 1).arg(next.size());
                map.features[parent].children.append(category.name);
                next.append(map.features.size());
                map.features.append(category);
            }
        }
        level = next;
    }

    const int polled = polledCount();
    const int changing = m_options.changingPolledCount < 0 ? polled : std::min(polled, m_options.changingPolledCount);
    const int polledStride = polled > 0 ? std::max(1, count / polled) : 0;

    int lastInteger = -1;
    int polledMade = 0;
    for (int i = 0; i < count; ++i) {
        FeatureDescription f;
        f.name = featureName(i);
        f.displayName = QStringLiteral("Feature %1").arg(i);
        const bool isPolled = polledMade < polled && i % polledStride == 0;
        const int pick = random.below(100);
        if (isPolled)
            f.kind = pick < 50 ? FeatureKind::Integer : FeatureKind::Float;
        else if (pick < 30)
            f.kind = FeatureKind::Integer;
        else if (pick < 55)
            f.kind = FeatureKind::Float;
        else if (pick < 70)
            f.kind = FeatureKind::Boolean;
        else if (pick < 85)
            f.kind = FeatureKind::Enumeration;
        else if (pick < 93)
            f.kind = FeatureKind::String;
        else
            f.kind = FeatureKind::Command;
        f.visibility = GenApi::EVisibility(random.below(10) < 6 ? 0 : random.below(3));
        if (random.below(10) == 0)
            f.access = GenApi::RO;

        switch (f.kind) {
        case FeatureKind::Integer:
            f.minimum = ValueSource::fromConstant(qint64(0));
            f.maximum = ValueSource::fromConstant(qint64(1000000));
            f.value = ValueSource::fromConstant(qint64(random.below(1000)));
            if (lastInteger >= 0 && !isPolled && random.next() % 10000 < quint64(m_options.dependencyShare * 10000))
                f.maximum = ValueSource::fromExpression(featureName(lastInteger) + QStringLiteral(" + 1000000"));
            lastInteger = i;
            break;
        case FeatureKind::Float:
            f.minimum = ValueSource::fromConstant(-1000.0);
            f.maximum = ValueSource::fromConstant(1000000.0);
            f.value = ValueSource::fromConstant(double(random.below(1000)) / 4.0);
            f.precision = 2;
            f.unit = QStringLiteral("us");
            break;
        case FeatureKind::Boolean:
            f.value = ValueSource::fromConstant(random.below(2) == 1);
            break;
        case FeatureKind::Enumeration: {
            const int entries = 2 + random.below(4);
            for (int e = 0; e < entries; ++e) {
                EnumEntryDescription entry;
                entry.value = QStringLiteral("Value%1").arg(e);
                entry.displayName = QStringLiteral("Value %1").arg(e);
                entry.numeric = e;
                f.entries.append(entry);
            }
            break;
        }
        case FeatureKind::String:
            f.value = ValueSource::fromConstant(QStringLiteral("text %1").arg(i));
            break;
        case FeatureKind::Command:
            f.duration = 10;
            break;
        case FeatureKind::Category:
            break;
        }
        if (isPolled) {
            f.access = GenApi::RO;
            if (polledMade < changing) {
                f.poll.mode = PollDescription::Mode::Clock;
                f.poll.perMillisecond = 1.0;
                f.maximum = ValueSource();
            } else {
                // Polled, but standing still: a walk of step 0.
                f.poll.mode = PollDescription::Mode::RandomWalk;
                f.poll.step = 0.0;
            }
            ++polledMade;
        }
        const int leaf = level.at(i % level.size());
        map.features[leaf].children.append(f.name);
        map.features.append(f);
    }
    return map;
}

DeviceDescription SyntheticNodeMapGenerator::generateDevice(const QString& tlType) const
{
    DeviceDescription device;
    device.vendor = QStringLiteral("Zarvex");
    device.model = QStringLiteral("Synthetic");
    device.serialNumber = QString::number(m_options.seed);
    device.transportLayerType = tlType;
    device.nodeMaps.append(generateNodeMap());
    return device;
}

} // namespace Simulation
