#include "devicestate.h"
#include "devicestatesupport.h"

#include <QMutexLocker>
#include <QTimer>

namespace Simulation {

using namespace ParameterCollection;
using namespace DeviceStateSupport;

namespace {

// True while the dispatcher runs one of its own turns on this thread. The
// state may lose its last reference right there, and then must not delete the
// dispatcher under its own feet.
thread_local bool t_inDispatcherTurn = false;

struct DispatcherTurn
{
    DispatcherTurn()
        : m_previous(t_inDispatcherTurn)
    {
        t_inDispatcherTurn = true;
    }
    ~DispatcherTurn() { t_inDispatcherTurn = m_previous; }
    DispatcherTurn(const DispatcherTurn&) = delete;
    DispatcherTurn& operator=(const DispatcherTurn&) = delete;

private:
    bool m_previous;
};

} // namespace

// ============================================================ changes and their signals

DeviceState::~DeviceState()
{
    QObject* dispatcher = m_dispatcher;
    if (!dispatcher)
        return;
    QThread* thread = dispatcher->thread();
    const bool here = thread == QThread::currentThread();
    if (here && t_inDispatcherTurn)
        dispatcher->deleteLater();
    else if (!thread || here || !thread->isRunning())
        delete dispatcher;
    else
        dispatcher->deleteLater();
}

void DeviceState::setDeliveryThread(QThread* thread)
{
    QThread* target = thread ? thread : m_ownerThread;
    QObject* dispatcher = nullptr;
    {
        QMutexLocker lock(&m_mutex);
        dispatcher = m_dispatcher;
    }
    QThread* current = dispatcher->thread();
    if (current == target)
        return;
    if (current == QThread::currentThread()) {
        dispatcher->moveToThread(target);
    } else if (current && current->isRunning()) {
        // Only the thread an object lives in may push it elsewhere.
        QMetaObject::invokeMethod(
            dispatcher, [dispatcher, target] { dispatcher->moveToThread(target); }, Qt::BlockingQueuedConnection);
    } else {
        // Its thread is gone: start afresh with a new dispatcher.
        QObject* fresh = new QObject;
        fresh->moveToThread(target);
        QMutexLocker lock(&m_mutex);
        m_dispatcher = fresh;
        delete dispatcher;
        if (m_flushPosted) {
            m_flushPosted = false;
            scheduleFlushLocked();
        }
    }
}

void DeviceState::valueChanged(NodeMapState& m, int feature)
{
    // The feature itself and everything whose expressions or selection name it,
    // directly or through others. Nothing else is looked at.
    QVector<int> reached { feature };
    QSet<int> seen { feature };
    for (int next = 0; next < reached.size(); ++next) {
        if (const FeatureExtras* x = m.features[size_t(reached.at(next))].extras.get()) {
            for (int dependent : x->dependents) {
                if (!seen.contains(dependent)) {
                    seen.insert(dependent);
                    reached.append(dependent);
                }
            }
        }
    }
    // Formulas downstream take their new values first, to a fixed point, so
    // that every snapshot queued below already shows them. The changed feature
    // itself keeps what was written to it.
    for (int pass = 0; pass <= reached.size(); ++pass) {
        bool changed = false;
        for (int f : qAsConst(reached)) {
            const FeatureExtras* x = m.features[size_t(f)].extras.get();
            if (f != feature && x && x->formula.isSet())
                changed = storeValue(m, f, evaluate(m, x->formula)) || changed;
        }
        if (!changed)
            break;
    }
    for (int f : qAsConst(reached)) {
        queueIfChanged(m, f, false);
        const FeatureDescription& d = desc(m, f);
        if (d.kind == FeatureKind::Float && d.alias)
            queueIfChanged(m, f, true);
    }
}

void DeviceState::propertiesChanged(NodeMapState& m, int feature, bool alias)
{
    queueIfChanged(m, feature, alias);
    const FeatureDescription& d = desc(m, feature);
    if (!alias && d.kind == FeatureKind::Float && d.alias)
        queueIfChanged(m, feature, true);
}

void DeviceState::queueIfChanged(NodeMapState& m, int feature, bool alias)
{
    if (m.objects.isEmpty())
        return;
    auto it = m.objects.find(key(feature, alias));
    if (it == m.objects.end())
        return;
    if (it->object.isNull()) {
        m.objects.erase(it);
        return;
    }
    if (!m_plugged.load())
        return;
    QSharedPointer<const ParameterData> data = snapshot(m, feature, alias);
    if (it->last && sameSnapshot(*data, *it->last))
        return;
    it->last = data;
    m_queue.append(PendingEmission { it->object, data });
    scheduleFlushLocked();
}

void DeviceState::scheduleFlushLocked()
{
    if (m_flushPosted || !m_dispatcher)
        return;
    m_flushPosted = true;
    QWeakPointer<DeviceState> weak = sharedFromThis();
    QMetaObject::invokeMethod(
        m_dispatcher,
        [weak] {
            DispatcherTurn turn;
            if (QSharedPointer<DeviceState> state = weak.toStrongRef())
                state->flush();
        },
        Qt::QueuedConnection);
}

void DeviceState::flush()
{
    QVector<PendingEmission> batch;
    {
        QMutexLocker lock(&m_mutex);
        batch.swap(m_queue);
        m_flushPosted = false;
    }
    // What slots change meanwhile is queued anew and delivered in a later turn.
    for (const PendingEmission& emission : qAsConst(batch)) {
        if (!m_plugged.load())
            return;
        if (QSharedPointer<IParameter> object = emission.object.toStrongRef())
            emit object->parameterDataChangedDecoupled(emission.data);
    }
}

void DeviceState::startCommandTimer(int map, int feature, int generation, int duration)
{
    QWeakPointer<DeviceState> weak = sharedFromThis();
    QObject* dispatcher = m_dispatcher;
    // The timer is a child of the dispatcher, so it lives, and moves, with it.
    QMetaObject::invokeMethod(
        dispatcher,
        [weak, dispatcher, map, feature, generation, duration] {
            auto* timer = new QTimer(dispatcher);
            timer->setSingleShot(true);
            QObject::connect(timer, &QTimer::timeout, timer, [weak, timer, map, feature, generation] {
                timer->deleteLater();
                DispatcherTurn turn;
                if (QSharedPointer<DeviceState> state = weak.toStrongRef())
                    state->commandFinished(map, feature, generation);
            });
            timer->start(duration);
        },
        Qt::QueuedConnection);
}

void DeviceState::commandFinished(int map, int feature, int generation)
{
    QMutexLocker lock(&m_mutex);
    NodeMapState& m = *m_maps[size_t(map)];
    FeatureState& state = m.features[size_t(feature)];
    if (state.runGeneration != generation || !state.running)
        return;
    state.running = false;
    valueChanged(m, feature);
}

} // namespace Simulation
