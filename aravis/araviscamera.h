/*!
 * \file aravis/araviscamera.h
 * Aravis::AravisCamera, a GigE Vision or USB3 Vision camera opened through
 * Aravis, with node maps ready for FeatureTreeWidget.
 */
#pragma once

#include "zarvexaravis_export.h"

#include "parameters/ibaseinfo.h"
#include "parameters/iparametercollection.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>

#include <memory>

//! Real cameras through Aravis 0.8.
namespace Aravis {

class AravisDevice;

//! A camera that Aravis found.
struct CameraInfo
{
    QString id; //!< what AravisCamera::open() takes
    QString vendor; //!< the vendor's name
    QString model; //!< the model's name
    QString serialNumber; //!< the serial number
    QString protocol; //!< "GigEVision", "USB3Vision", ...
    QString address; //!< the IP address, or the USB bus address
    QString transportLayerType; //!< "GEV", "U3V", ... as IBaseInfo gives it
};

//! One node map of a camera, as FeatureTreeWidget::addParameterCollection() takes it.
struct NodeMapEntry
{
    //! The node map itself.
    QSharedPointer<ParameterCollection::IParameterCollection> collection;
    //! Its name and role, such as "@CameraDevice": the roleName argument.
    QString name;
    //! The name without its "@", for the top-level row: the rootName argument.
    QString rootName;
};

/*!
 * One camera opened through Aravis. Aravis implements the transport layer
 * itself, so a camera has one node map, its own, as "@CameraDevice".
 *
 * \code
 * QString error;
 * auto camera = Aravis::AravisCamera::open(QString(), &error); // the first camera found
 * if (!camera)
 *     return showError(error);
 * auto* tree = new FeatureTreeWidget(QStringLiteral("Features"), camera->baseInfo(), window);
 * for (const auto& nodeMap : camera->nodeMaps())
 *     tree->addParameterCollection(nodeMap.collection, nodeMap.rootName, nodeMap.name, false);
 * QObject::connect(camera.get(), &Aravis::AravisCamera::lost, tree, &FeatureTreeWidget::deviceIsClosed);
 * \endcode
 *
 * Make it and use it on the GUI thread, where the tree reads its node maps;
 * only listCameras() may also run on another thread. The node maps hold the
 * device themselves, so they outlive this object.
 *
 * The camera's images come through an AravisStream made from it.
 */
class ZVC_ARAVIS_EXPORT AravisCamera : public QObject
{
    Q_OBJECT

public:
    ~AravisCamera() override;
    AravisCamera(const AravisCamera&) = delete;
    AravisCamera& operator=(const AravisCamera&) = delete;

    /*!
     * Looks for cameras on every interface Aravis knows and lists them. A
     * GigE Vision look-up waits about a second for answers, so a host may
     * call it on a thread of its own.
     */
    static QList<CameraInfo> listCameras();
    /*!
     * Opens a camera by its id (listCameras()); an empty id opens the first
     * one found. Gives null and sets error (Aravis's message) when that fails.
     */
    static std::unique_ptr<AravisCamera> open(const QString& id = QString(), QString* error = nullptr);

    //! What the look-up said about the camera.
    CameraInfo info() const;
    //! The camera's Aravis id.
    QString id() const;
    //! The transport-layer type text, as baseInfo() gives it.
    QString transportLayerType() const;
    //! The node map names: "@CameraDevice".
    QStringList nodeMapNames() const;
    //! The node map by name, or null.
    QSharedPointer<ParameterCollection::IParameterCollection> nodeMap(const QString& name) const;
    //! Every node map, ready for FeatureTreeWidget::addParameterCollection().
    QList<NodeMapEntry> nodeMaps() const;
    //! The camera information that FeatureTreeWidget takes at construction.
    QSharedPointer<Plugin::CameraPool::IBaseInfo> baseInfo() const;
    //! True once the camera is gone; every parameter is then a zombie.
    bool isLost() const;

signals:
    /*!
     * The camera stopped answering (a time-out, a lost connection or a
     * missed heartbeat). Emitted once, from the event loop; the host answers
     * with FeatureTreeWidget::deviceIsClosed().
     */
    void lost(const QString& reason);

private:
    // The stream of a camera opens on the camera's own device.
    friend class AravisStream;

    explicit AravisCamera(QSharedPointer<AravisDevice> device);

    QSharedPointer<AravisDevice> m_device;
    bool m_lostAnnounced = false;
};

} // namespace Aravis
