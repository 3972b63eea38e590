#pragma once

#include "devicedescription.h"
#include "expression.h"
#include "nameindex.h"
#include "simulatedfault.h"

#include "parameters/iparameter.h"
#include "parameters/parameterdata.h"

#include <QEnableSharedFromThis>
#include <QHash>
#include <QMutex>
#include <QPointer>
#include <QSet>
#include <QSharedPointer>
#include <QStringList>
#include <QThread>
#include <QVector>

#include <atomic>
#include <memory>
#include <vector>

namespace Simulation {

//! Which feature of which node map a parameter object stands for. feature -1: a name the node map doesn't hold.
struct FeatureRef
{
    int map = -1;
    int feature = -1;
    bool alias = false;
};

/*!
 * The whole state of one simulated device: every node map's features, values,
 * imposed properties, the parameter objects handed out so far, the injected
 * faults and the queue of pending change signals. Node maps and parameters
 * share it, so it outlives the device object if they do.
 *
 * One mutex guards everything. Public functions take it themselves; the
 * private ones, named ...Locked or called only from those, expect it held.
 * The lock is never held while a signal is emitted.
 *
 * The definitions are spread by concern: devicestate.cpp builds the state from
 * its description and holds the device's hooks; devicestateevaluation.cpp the
 * expressions, access and ranges; devicestatesnapshots.cpp the snapshots;
 * devicestatedelivery.cpp the queue of change signals and its dispatcher;
 * devicestatelookup.cpp the look-ups by name; devicestatepolling.cpp pending
 * device values and the poll rules; devicestateparameters.cpp the operations
 * of the parameter objects.
 */
class DeviceState : public QEnableSharedFromThis<DeviceState>
{
public:
    static QSharedPointer<DeviceState> build(
        const DeviceDescription& description, const QString& tlType, QString* error);
    ~DeviceState();

    DeviceState(const DeviceState&) = delete;
    DeviceState& operator=(const DeviceState&) = delete;

    // ---- device
    QString transportLayerType() const { return m_tlType; }
    const DeviceDescription& description() const { return m_description; }
    QStringList nodeMapNames() const;
    void setPlugged(bool plugged);
    bool isPlugged() const { return m_plugged.load(); }
    void injectFault(const QString& target, Operation op, FaultKind kind, int times);
    void clearFaults();
    void setNullSnapshot(const QString& fullName, bool on);
    void setDeliveryThread(QThread* thread);
    bool changeOnDevice(const QString& fullName, const QVariant& value);
    qint64 clockMilliseconds() const;
    //! Evaluates an expression over the features of the node map by name; unknown names read as 0.
    ExpressionValue evaluateExpression(const QString& mapName, const Expression& expression);

    // ---- collection operations, by node map index
    QSharedPointer<ParameterCollection::IParameter> getParameter(int map, const QString& name);
    bool hasParameter(int map, const QString& name);
    QList<QString> getChildNames(int map, const QString& name, bool recursive, bool presentationOrder);
    void refreshAll(int map);
    void poll(int map, qint64 elapsedMilliseconds);

    // ---- parameter operations; fullName is the object's own name, the target of faults
    void touch(const FeatureRef& ref, const QString& fullName, Operation op);
    void setValueFromString(const FeatureRef& ref, const QString& fullName, const QString& text);
    bool isZombie(const FeatureRef& ref, const QString& fullName);
    bool isWritable(const FeatureRef& ref, const QString& fullName);
    bool isImposable(const FeatureRef& ref, const QString& fullName);
    GenApi::EVisibility getVisibility(const FeatureRef& ref, const QString& fullName);
    int getType(const FeatureRef& ref, const QString& fullName);
    void checkAdvancedAccess(const FeatureRef& ref, const QString& fullName);
    QSharedPointer<const ParameterCollection::ParameterData> getParameterData(
        const FeatureRef& ref, const QString& fullName);

    void setInteger(const FeatureRef& ref, const QString& fullName, qint64 value);
    qint64 getInteger(const FeatureRef& ref, const QString& fullName, Operation which);
    void setFloat(const FeatureRef& ref, const QString& fullName, double value);
    double getFloat(const FeatureRef& ref, const QString& fullName, Operation which);
    void setCommandPending(const FeatureRef& ref, const QString& fullName, bool pending);
    void execute(const FeatureRef& ref, const QString& fullName);

    QString getProperty(const FeatureRef& ref, const QString& fullName, const QString& key, bool* present);
    void setProperty(const FeatureRef& ref, const QString& fullName, const QString& key, const QString& value);

private:
    struct Scalar
    {
        qint64 i = 0;
        double f = 0.0;
        QString s;
        bool operator==(const Scalar& o) const { return i == o.i && f == o.f && s == o.s; }
        bool operator!=(const Scalar& o) const { return !(*this == o); }
    };

    struct BoundExpression
    {
        Expression expression;
        QVector<int> features; //!< per name of the expression: the feature, -1 if not present
        bool isSet() const { return expression.isValid(); }
    };

    // What only some features need; null for the plain ones, to keep a feature small.
    struct FeatureExtras
    {
        BoundExpression formula; //!< "value" given as an expression: recomputed when what it names changes
        BoundExpression minimum, maximum, increment;
        BoundExpression readableWhen, writableWhen, implementedWhen;
        BoundExpression pollWhen, pollRate;
        QVector<BoundExpression> entryImplemented; //!< Enumeration, parallel to the entries
        QVector<QPair<int, BoundExpression>> onExecute;
        int selector = -1; //!< feature index of the selector
        QVector<Scalar> selected; //!< one value per entry of the selector
        QVector<int> dependents; //!< features whose expressions or selection name this one
        quint64 random = 0; //!< randomWalk generator state
        double carry = 0.0; //!< rate: fraction not yet counted
    };

    struct FeatureState
    {
        Scalar value;
        std::unique_ptr<FeatureExtras> extras;
        QString fullName; //!< prefix + name, made on first need; every name handed out shares it
        QVector<int> children; //!< Category: the described children, by index
        int runGeneration = 0;
        bool excluded = false; //!< not on this transport layer
        bool running = false; //!< Command
    };

    struct ObjectSlot
    {
        QWeakPointer<ParameterCollection::IParameter> object;
        QSharedPointer<const ParameterCollection::ParameterData> last; //!< the last snapshot queued
    };

    struct Imposed
    {
        int visibility = -1;
        int access = -1;
    };

    struct Access
    {
        bool implemented = false;
        bool readable = false;
        bool writable = false;
    };

    //! An enumeration's symbolic values and display texts, all entries, shared by its snapshots.
    struct EnumTexts
    {
        QVector<QString> symbolicValues;
        QVector<QString> displayTexts;
    };

    struct NodeMapState
    {
        QString name;
        QString prefix; //!< name + "/"
        NodeMapDescription description;
        std::vector<FeatureState> features;
        NameIndex byName;
        QHash<int, ObjectSlot> objects; //!< key: feature * 2 + alias
        QHash<int, Imposed> imposed; //!< same key
        QVector<int> polled;
        QHash<QPair<int, int>, Scalar> pendingDevice; //!< (feature, selected slot) -> value on the device
        QHash<int, EnumTexts> enumTexts; //!< made on the first snapshot of an enumeration without entry conditions
    };

    struct Fault
    {
        Operation op;
        FaultKind kind;
        int times;
    };

    struct PendingEmission
    {
        QWeakPointer<ParameterCollection::IParameter> object;
        QSharedPointer<const ParameterCollection::ParameterData> data;
    };

    DeviceState() = default;

    bool buildNodeMap(const NodeMapDescription& description, QString* error);
    bool checkFrameSource(const FrameSourceDescription& frameSource, QString* error) const;
    bool bind(
        NodeMapState& m, int feature, const QString& field, const QString& text, BoundExpression* out, QString* error);
    FeatureExtras& extras(NodeMapState& m, int feature);
    void addDependency(NodeMapState& m, int on, int dependent);

    // Everything below expects the lock held.
    void checkFaultLocked(const QString& target, Operation op);
    void requirePluggedLocked() const;
    const FeatureDescription& desc(const NodeMapState& m, int feature) const { return m.description.features[feature]; }
    FeatureKind kindOf(const FeatureRef& ref) const;
    void requireLive(const FeatureRef& ref, const QString& fullName) const;
    static int key(int feature, bool alias) { return feature * 2 + (alias ? 1 : 0); }

    Scalar& valueRef(NodeMapState& m, int feature);
    int selectedSlot(NodeMapState& m, int feature);
    ExpressionValue featureExpressionValue(NodeMapState& m, int feature);
    ExpressionValue evaluate(NodeMapState& m, const BoundExpression& bound);
    bool condition(NodeMapState& m, const BoundExpression& bound);

    Access accessOf(NodeMapState& m, int feature, bool alias);
    GenApi::EVisibility visibilityOf(NodeMapState& m, int feature, bool alias);
    void integerRange(NodeMapState& m, int feature, bool alias, qint64* minimum, qint64* maximum, qint64* increment);
    void floatRange(
        NodeMapState& m, int feature, double* minimum, double* maximum, bool* hasIncrement, double* increment);
    QVector<int> implementedEntries(NodeMapState& m, int feature);
    QSharedPointer<const ParameterCollection::ParameterData> snapshot(NodeMapState& m, int feature, bool alias);
    //! What every kind's snapshot has: kind, visibility and access.
    void finish(ParameterCollection::ParameterData* data, NodeMapState& m, int feature, bool alias, FeatureKind kind);
    //! The snapshot fill makes: the last one queued if it reads the same, else a new one.
    template <class T, class Fill>
    QSharedPointer<const ParameterCollection::ParameterData> publish(NodeMapState& m, int feature, bool alias,
        FeatureKind kind, const QSharedPointer<const ParameterCollection::ParameterData>* last, const Fill& fill);
    const EnumTexts& enumTexts(NodeMapState& m, int feature);
    //! The last snapshot queued for the parameter, null if none.
    const QSharedPointer<const ParameterCollection::ParameterData>* lastSnapshot(
        const NodeMapState& m, int feature, bool alias) const;

    void writeInteger(NodeMapState& m, int feature, bool alias, qint64 value);
    void writeFloat(NodeMapState& m, int feature, double value);
    void assign(NodeMapState& m, int feature, const ExpressionValue& value);
    //! Stores a value without announcing it; true if it differs from the one before.
    bool storeValue(NodeMapState& m, int feature, const ExpressionValue& value);
    bool applyPending(NodeMapState& m, int feature, QVector<int>* changed);
    bool applyPollRule(NodeMapState& m, int feature, qint64 elapsed);

    void valueChanged(NodeMapState& m, int feature);
    void propertiesChanged(NodeMapState& m, int feature, bool alias);
    void queueIfChanged(NodeMapState& m, int feature, bool alias);
    void scheduleFlushLocked();
    void flush();
    void commandFinished(int map, int feature, int generation);
    void startCommandTimer(int map, int feature, int generation, int duration);

    bool resolve(const NodeMapState& m, const QString& name, int* feature, bool* alias) const;
    const QString& fullNameOf(NodeMapState& m, int feature);
    void collectChildren(NodeMapState& m, int category, bool recursive, QSet<int>* visited, QList<QString>* names);

    mutable QMutex m_mutex;
    DeviceDescription m_description;
    QString m_tlType;
    std::vector<std::unique_ptr<NodeMapState>> m_maps;
    std::atomic<bool> m_plugged { true };
    qint64 m_clock = 0;
    QHash<QString, QVector<Fault>> m_faults;
    QSet<QString> m_nullSnapshots;

    QThread* m_ownerThread = nullptr;
    QObject* m_dispatcher = nullptr; //!< lives in the delivery thread; signals are emitted from its turns
    QVector<PendingEmission> m_queue;
    bool m_flushPosted = false;
};

} // namespace Simulation
