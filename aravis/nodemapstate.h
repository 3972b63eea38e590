#pragma once

#include "genicamxmlindex.h"

#include "parameters/genapienums.h"
#include "parameters/iparameter.h"
#include "parameters/parameterdata.h"

#include <QEnableSharedFromThis>
#include <QHash>
#include <QObject>
#include <QSharedPointer>
#include <QVector>
#include <QWeakPointer>

#include <atomic>
#include <optional>
#include <vector>

struct _ArvDevice;

namespace Aravis {

/*!
 * Everything one Aravis node map knows, shared by the collection and every
 * parameter object it handed out: the device, the index of its GenICam
 * document, one entry per feature looked up so far with its imposed
 * properties and its last seen snapshot, and the queue of change signals.
 *
 * Aravis tells nothing when a value changes. After each write the features
 * that the write may have changed (the written node, where it writes on to,
 * and everything that reads those) are read again, and in poll() and
 * refreshAll() every feature somebody holds; each one whose snapshot differs
 * from the last seen queues one emission, delivered from the event loop.
 *
 * Once the device is lost (a time-out or a lost connection from Aravis, or its
 * control-lost signal) every parameter is a zombie and every operation throws.
 * Lives on the thread that made it; not thread-safe beyond the lost flag.
 */
class NodeMapState : public QObject, public QEnableSharedFromThis<NodeMapState>
{
    Q_OBJECT

public:
    //! Takes its own reference of the device.
    NodeMapState(_ArvDevice* device, const QString& nodeMapName, const QByteArray& xml);
    ~NodeMapState() override;

    QString nodeMapName() const { return m_nodeMapName; }
    _ArvDevice* device() const { return m_device; }
    const GenICamXmlIndex& xmlIndex() const { return m_index; }
    bool isLost() const;
    //! Called from Aravis's heartbeat thread when the device stops answering.
    void noteControlLost();

    // ---- the collection's operations
    QSharedPointer<ParameterCollection::IParameter> parameter(const QString& name);
    bool hasParameter(const QString& name) const;
    QList<QString> childNames(const QString& name, bool recursive, bool presentationOrder) const;
    //! Reads every feature somebody holds again and queues a signal for each that changed.
    void refreshLive();

    // ---- the parameters' operations; index -1 is a name the node map doesn't hold
    bool isZombie(int index) const;
    bool isImposable(int index) const;
    bool isWritable(int index) const;
    GenApi::EVisibility visibility(int index) const;
    int type(int index) const;
    QSharedPointer<const ParameterCollection::ParameterData> snapshot(int index);
    void setValueFromString(int index, const QString& fullName, const QString& text);
    qint64 integerValue(int index, const QString& fullName, int which);
    void setInteger(int index, const QString& fullName, qint64 value);
    double floatValue(int index, const QString& fullName, int which);
    void setFloat(int index, const QString& fullName, double value);
    void execute(int index, const QString& fullName);
    void checkAdvancedAccess(int index, const QString& fullName) const;
    QString property(int index, const QString& fullName, const QString& key, const QString& defaultValue) const;
    void setProperty(int index, const QString& fullName, const QString& key, const QString& value);

    enum Which { Value, Minimum, Maximum };

    //! Most names a recursive childNames() gives before it throws.
    static constexpr int maximumListing = 1000000;

signals:
    //! The device is gone; emitted once, from the event loop of the state's thread.
    void lost(const QString& reason);

private:
    struct Entry
    {
        QString fullName;
        QString shortName;
        QByteArray node; //!< the Aravis node; for an alias the node that pAlias names
        int kind = 0;
        std::optional<GenApi::EVisibility> imposedVisibility;
        std::optional<GenApi::EAccessMode> imposedAccess;
        QSharedPointer<const ParameterCollection::ParameterData> lastSeen;
        QWeakPointer<ParameterCollection::IParameter> object;
    };
    struct Access
    {
        bool implemented = false;
        bool readable = false;
        bool writable = false;
    };

    int entryFor(const QString& name) const;
    int kindOfNode(const QString& node) const;
    void* arvNode(const Entry& entry) const;
    [[noreturn]] void throwZombie(const QString& fullName) const;
    const Entry& live(int index, const QString& fullName) const;
    void checkError(void* gerror, const Entry& entry) const;
    void markLost(const QString& reason) const;
    Access access(const Entry& entry) const;
    GenApi::EVisibility visibilityOf(const Entry& entry) const;
    QSharedPointer<const ParameterCollection::ParameterData> readSnapshot(const Entry& entry) const;
    void checkWritable(const Entry& entry) const;
    template <typename T> T numericValue(int index, const QString& fullName, int which);
    template <typename T> void setNumeric(int index, const QString& fullName, T value);
    void noticeSnapshot(int index, const QSharedPointer<const ParameterCollection::ParameterData>& data);
    void refresh(int index);
    void afterWrite(int index);
    void scheduleFlush();
    Q_INVOKABLE void flush();

    _ArvDevice* m_device = nullptr;
    QString m_nodeMapName;
    GenICamXmlIndex m_index;
    mutable std::vector<Entry> m_entries;
    mutable QHash<QString, int> m_byFullName;
    mutable QHash<QString, QVector<int>> m_byNode; //!< Aravis node -> the entries that stand for it
    QVector<QPair<int, QSharedPointer<const ParameterCollection::ParameterData>>> m_pending;
    bool m_flushScheduled = false;
    mutable bool m_lost = false;
    mutable QString m_lostReason;
    std::atomic<bool> m_controlLost { false };
    unsigned long m_controlLostHandler = 0;
};

} // namespace Aravis
