#pragma once

#include "parameters/iparametercollection.h"

#include <QSharedPointer>

namespace Aravis {

class NodeMapState;

/*!
 * One node map of an Aravis device as a parameter collection. Parameters are
 * made on first look-up and the same object is handed out while anybody
 * holds it. getParameter accepts a full name ("@CameraDevice/Width"), a short
 * name ("Width") and the alias form "Gain/Alias"; any other name gives a
 * zombie. getChildNames gives a category's features in the document's order
 * (sorted with presentationOrder false, the whole subtree with recursive true).
 * poll() and refreshAll() read every feature that somebody holds again.
 */
class AravisNodeMap : public ParameterCollection::IParameterCollection
{
    Q_OBJECT

public:
    explicit AravisNodeMap(QSharedPointer<NodeMapState> state, QObject* parent = nullptr);
    ~AravisNodeMap() override;

    //! "@" and the node map's name.
    QString name() const;
    //! True once the device is gone; every parameter is then a zombie.
    bool isLost() const;

    QSharedPointer<ParameterCollection::IParameter> getParameter(QString fullName) override;
    bool hasParameter(QString fullName) const override;
    QList<QString> getChildNames(QString fullName, bool recursive, bool presentationOrder) const override;
    void refreshAll() override;
    void poll(qint64 elapsedMilliseconds) override;

signals:
    //! The device is gone; emitted once, from the event loop.
    void lost(const QString& reason);

private:
    QSharedPointer<NodeMapState> m_state;
};

} // namespace Aravis
