#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QString>

namespace Simulation {

//! One picture as a camera sends it: the raw pixels of its format, row after row without padding.
struct SimulatedFrame
{
    QByteArray data;
    int width = 0;
    int height = 0;
    QString pixelFormat; //!< the GenICam name: "Mono8", "BayerRG8", "RGB8", ...
    quint64 frameId = 0; //!< counts from 1 over the life of the source
};

} // namespace Simulation

Q_DECLARE_METATYPE(Simulation::SimulatedFrame)
