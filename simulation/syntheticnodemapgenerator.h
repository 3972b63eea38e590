#pragma once

#include "devicedescription.h"

namespace Simulation {

/*!
 * Builds large node map descriptions for benchmarks, in memory.
 *
 * featureCount value features (every kind but Category, mixed) are spread
 * round-robin over the leaf categories of a tree of categories: Root has
 * fanOut children, each of those fanOut children, and so on for depth levels
 * (depth 0: everything directly under Root). Categories come on top of
 * featureCount.
 *
 * Polled features are Integer or Float features spread evenly over the node
 * map: polledCount of them if it is zero or more, else polledShare of
 * featureCount. Of the polled features, changingPolledCount (all of them if
 * negative) change at every poll with a positive elapsed time; the others are
 * polled but never change. dependencyShare of the Integer features get a
 * maximum that depends on another Integer feature.
 *
 * The same options and seed give the same description.
 */
class SyntheticNodeMapGenerator
{
public:
    struct Options
    {
        int featureCount = 1000;
        int depth = 2;
        int fanOut = 10;
        int polledCount = -1;
        double polledShare = 0.01;
        int changingPolledCount = -1;
        double dependencyShare = 0.01;
        quint64 seed = 1;
        QString nodeMapName = QStringLiteral("@CameraDevice");
    };

    SyntheticNodeMapGenerator();
    explicit SyntheticNodeMapGenerator(const Options& options);

    const Options& options() const { return m_options; }

    NodeMapDescription generateNodeMap() const;
    //! A device with the one generated node map.
    DeviceDescription generateDevice(const QString& tlType = QStringLiteral("GEV")) const;

    //! Number of categories, Root included, that generateNodeMap() makes.
    int categoryCount() const;
    //! Number of polled features that generateNodeMap() makes.
    int polledCount() const;

    //! Short name of the value feature with the given index, 0-based.
    static QString featureName(int index);

private:
    Options m_options;
};

} // namespace Simulation
