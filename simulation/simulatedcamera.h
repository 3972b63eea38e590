/*!
 * \file simulation/simulatedcamera.h
 * Simulation::SimulatedCamera, an in-memory camera for a host's own tests and
 * demonstrations, with node maps ready for FeatureTreeWidget.
 */
#pragma once

#include "zarvexsimulation_export.h"

#include "parameters/ibaseinfo.h"
#include "parameters/iparametercollection.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

//! The simulated camera that a host can show without any camera attached.
namespace Simulation {

class SimulatedDevice;
class SimulatedFrameSource;

//! One node map of a simulated camera, as FeatureTreeWidget::addParameterCollection() takes it.
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
 * A simulated camera: the shipped default camera (five node maps, from the
 * camera's own to the data stream's) or a camera described in JSON. It hands
 * out its node maps and its camera information, and lets a host's tests make
 * it misbehave: unplug it, make writes fail, or change a value behind the
 * host's back.
 *
 * \code
 * auto camera = Simulation::SimulatedCamera::createDefault();
 * auto* tree = new FeatureTreeWidget(QStringLiteral("Features"), camera->baseInfo(), window);
 * for (const auto& nodeMap : camera->nodeMaps())
 *     tree->addParameterCollection(nodeMap.collection, nodeMap.rootName, nodeMap.name, false);
 * QObject::connect(camera.get(), &Simulation::SimulatedCamera::lost, tree, &FeatureTreeWidget::deviceIsClosed);
 * \endcode
 *
 * The node maps hold the camera's state themselves, so they outlive this
 * object. Signals are delivered on the thread that made the camera.
 */
class ZVC_SIMULATION_EXPORT SimulatedCamera : public QObject
{
    Q_OBJECT

public:
    ~SimulatedCamera() override;
    SimulatedCamera(const SimulatedCamera&) = delete;
    SimulatedCamera& operator=(const SimulatedCamera&) = delete;

    /*!
     * The shipped default camera with the given transport-layer type
     * ("GEV", "U3V", "CXP", "CamEmu", ...), which picks the node map filters
     * of the tree.
     */
    static std::unique_ptr<SimulatedCamera> createDefault(const QString& transportLayerType = QStringLiteral("GEV"));
    /*!
     * A camera from a JSON device description (the format of the simulation's
     * README). Gives null and sets error when the description is refused. An
     * empty transportLayerType keeps the description's own.
     */
    static std::unique_ptr<SimulatedCamera> fromJson(
        const QByteArray& json, QString* error = nullptr, const QString& transportLayerType = QString());
    //! As fromJson(), with the description read from a file.
    static std::unique_ptr<SimulatedCamera> fromFile(
        const QString& path, QString* error = nullptr, const QString& transportLayerType = QString());
    //! The transport-layer types a default camera is offered with: "GEV", "U3V", "CXP" and "CamEmu".
    static QStringList defaultTransportLayerTypes();

    //! The transport-layer type text, as baseInfo() gives it.
    QString transportLayerType() const;
    //! The vendor, model and serial number of the description, each possibly empty.
    QString vendor() const;
    //! The model name of the description.
    QString model() const;
    //! The serial number of the description.
    QString serialNumber() const;
    //! The node map names in the description's order, such as "@CameraDevice".
    QStringList nodeMapNames() const;
    //! The node map by name, or null.
    QSharedPointer<ParameterCollection::IParameterCollection> nodeMap(const QString& name) const;
    //! Every node map in order, ready for FeatureTreeWidget::addParameterCollection().
    QList<NodeMapEntry> nodeMaps() const;
    //! The camera information that FeatureTreeWidget takes at construction.
    QSharedPointer<Plugin::CameraPool::IBaseInfo> baseInfo() const;

    /*!
     * Pulls the plug: every parameter becomes a zombie and every node map
     * operation throws, until replug(). lost() follows from the event loop.
     */
    void unplug();
    //! Plugs the camera in again; a tree shows it again after a refresh.
    void replug();
    //! False between unplug() and replug().
    bool isPlugged() const;
    /*!
     * Makes every write to the feature (its full name, "@CameraDevice/Gain")
     * throw a std::exception until clearFaults(), as a device that refuses
     * it would.
     */
    void makeWritesFail(const QString& fullName);
    //! Ends the failures that makeWritesFail() began.
    void clearFaults();
    /*!
     * The camera changes a value by itself; the tree sees it at its next
     * poll, or after refreshAll() on the node map. False for an unknown
     * feature or a value it can't take.
     */
    bool changeOnDevice(const QString& fullName, const QVariant& value);

    /*!
     * True if the camera makes pictures, as the default camera does: while
     * it acquires (after its AcquisitionStart command, until
     * AcquisitionStop), frameReady() brings them at its frame rate, drawn
     * as its Width, Height, offsets, PixelFormat, ReverseX/Y, TestPattern,
     * ExposureTime and Gain say.
     */
    bool hasImages() const;

signals:
    //! The camera went away (unplug()); the host answers with FeatureTreeWidget::deviceIsClosed().
    void lost(const QString& reason);
    /*!
     * A picture of the acquisition: width x height pixels of the GenICam
     * pixel format ("Mono8", "BayerRG8", "RGB8", ...), row after row without
     * padding; multi-byte pixels are little-endian. frameId counts from 1.
     * A format the camera cannot draw gives an empty data.
     */
    void frameReady(const QByteArray& data, int width, int height, const QString& pixelFormat, quint64 frameId);

private:
    explicit SimulatedCamera(QSharedPointer<SimulatedDevice> device);
    static std::unique_ptr<SimulatedCamera> adopt(QSharedPointer<SimulatedDevice> device);

    QSharedPointer<SimulatedDevice> m_device;
    SimulatedFrameSource* m_frames = nullptr;
};

} // namespace Simulation
