#pragma once

#include "devicedescription.h"
#include "expression.h"
#include "simulatedfault.h"
#include "simulatednodemap.h"

#include "parameters/ibaseinfo.h"

#include <QObject>
#include <QSharedPointer>
#include <QStringList>
#include <QVariant>
#include <QVector>

class QThread;

namespace Simulation {

class DeviceState;

/*!
 * An in-memory camera built from a device description. It hands out one
 * SimulatedNodeMap per described node map, camera information, and the hooks
 * that tests use to make the camera misbehave.
 *
 * Node maps and parameters share the device's state, so a host may drop the
 * device object first. Every call is thread-safe.
 */
class SimulatedDevice : public QObject
{
    Q_OBJECT

public:
    using Operation = Simulation::Operation;
    using FaultKind = Simulation::FaultKind;

    ~SimulatedDevice() override;

    //! The shipped default camera, with the given transport-layer type ("GEV", "U3V", ...).
    static QSharedPointer<SimulatedDevice> createDefault(const QString& tlType = QStringLiteral("GEV"));
    //! A device from a JSON description; null and an error text if it is refused.
    //! tlType empty: the description's own transport-layer type.
    static QSharedPointer<SimulatedDevice> fromJson(
        const QByteArray& json, QString* error, const QString& tlType = QString());
    static QSharedPointer<SimulatedDevice> fromFile(
        const QString& path, QString* error, const QString& tlType = QString());
    //! A device from a description in memory; null if it is refused (error, if given, says why).
    static QSharedPointer<SimulatedDevice> fromDescription(
        const DeviceDescription& description, const QString& tlType = QString(), QString* error = nullptr);

    //! Node map names in description order, such as "@CameraDevice".
    QStringList nodeMapNames() const;
    //! Null for an unknown name.
    QSharedPointer<SimulatedNodeMap> nodeMap(const QString& name) const;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> baseInfo() const;
    QString transportLayerType() const;
    const DeviceDescription& description() const;

    //! After unplug() every parameter is a zombie, every collection operation but hasParameter throws
    //! and nothing is signalled, until replug().
    void unplug();
    void replug();
    bool isPlugged() const;

    //! Makes op of the parameter (full name) or node map (its name) target throw; times < 0: until cleared.
    void injectFault(const QString& target, Operation op, FaultKind kind, int times = -1);
    void clearFaults();

    //! getParameterData() of that parameter gives null while on.
    void setNullSnapshot(const QString& fullName, bool on);

    /*!
     * Change signals are emitted from this thread's event loop; null: the
     * thread that made the device. Call it from the thread that delivers now,
     * or while that thread runs its event loop.
     */
    void setDeliveryThread(QThread* thread);

    //! The camera changes a value by itself; the node map sees it at the next poll (polled features) or refreshAll.
    //! False for an unknown feature or an unusable value.
    bool changeOnDevice(const QString& fullName, const QVariant& value);

    //! The simulated time, advanced only by poll(elapsed).
    qint64 clockMilliseconds() const;

    //! Evaluates an expression over the features of a node map, as the device's own are; unknown names read 0.
    ExpressionValue evaluate(const QString& nodeMap, const Expression& expression) const;

private:
    explicit SimulatedDevice(QSharedPointer<DeviceState> state);

    QSharedPointer<DeviceState> m_state;
    QVector<QSharedPointer<SimulatedNodeMap>> m_nodeMaps;
    QSharedPointer<Plugin::CameraPool::IBaseInfo> m_baseInfo;
};

} // namespace Simulation
