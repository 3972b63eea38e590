#include "viewermainwindow.h"

#include "camerasettingscommands.h"
#include "imagepane.h"
#include "ui_viewermainwindow.h"
#include "viewercamera.h"

#include "featuretree/featuretreeitem.h"
#include "featuretree/featuretreewidget.h"
#include "featuretree/ifeaturetreemodelextension.h"
#include "messages/errorreporting.h"
#include "messages/exceptionlogging.h"
#include "messages/messageboxcheckable.h"
#include "network/ipaddresswidget.h"
#include "parameters/icommandparameter.h"
#include "parameters/iintegerparameter.h"
#include "parameters/parameterdata.h"
#include "simulatedcamera.h"

#ifdef ZVC_WITH_ARAVIS
#include "araviscamera.h"
#endif

#include <QActionGroup>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QHostAddress>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMessageBox>
#include <QProgressBar>
#include <QProgressDialog>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QStatusBar>
#include <QStyle>
#include <QThread>
#include <QTimer>
#include <QTreeView>

namespace {

const char* const kSettingsGroup = "Viewer";
//! The key under which the sample question keeps its "don't show again" answer.
const char* const kQuestionKey = "ViewerSampleQuestion";

//! The version of the tree's saved column widths that this viewer writes.
const int kTreeStateVersion = 1;

GenApi::EVisibility levelOf(int index)
{
    static const GenApi::EVisibility levels[] = { GenApi::Beginner, GenApi::Expert, GenApi::Guru };
    return levels[qBound(0, index, 2)];
}

int levelIndex(GenApi::EVisibility visibility)
{
    switch (visibility) {
    case GenApi::Beginner:
        return 0;
    case GenApi::Expert:
        return 1;
    default:
        return 2;
    }
}

} // namespace

ViewerMainWindow::ViewerMainWindow(QWidget* parent)
    : QMainWindow(parent)
    , ui(new Ui_ViewerMainWindow)
{
    ui->setupUi(this);
    ui->splitter->setStretchFactor(0, 0);
    ui->splitter->setStretchFactor(1, 1);
    ui->splitter->setStretchFactor(2, 0);
    ui->splitter->setSizes({ 220, 700, 470 });
    ui->rightSplitter->setSizes({ 520, 280 });

    m_languageGroup = new QActionGroup(this);
    const QList<QAction*> languageActions
        = { ui->actionEnglish, ui->actionJapanese, ui->actionKorean, ui->actionChinese };
    const QStringList codes = languages();
    for (int i = 0; i < languageActions.size(); ++i) {
        languageActions[i]->setData(codes[i]);
        m_languageGroup->addAction(languageActions[i]);
    }
    ui->actionEnglish->setChecked(true);
    connect(m_languageGroup, &QActionGroup::triggered, this, &ViewerMainWindow::onLanguageTriggered);
    connect(ui->actionQuit, &QAction::triggered, this, &QWidget::close);

    m_matchesLabel = new QLabel(this);
    m_matchesLabel->setObjectName(QStringLiteral("matchesLabel"));
    statusBar()->addPermanentWidget(m_matchesLabel);
    m_busyBar = new QProgressBar(this);
    m_busyBar->setRange(0, 0);
    m_busyBar->setMaximumWidth(120);
    m_busyBar->hide();
    statusBar()->addPermanentWidget(m_busyBar);
    m_pixelLabel = new QLabel(this);
    m_pixelLabel->setObjectName(QStringLiteral("pixelLabel"));
    statusBar()->addPermanentWidget(m_pixelLabel);
    m_framesLabel = new QLabel(this);
    m_framesLabel->setObjectName(QStringLiteral("framesLabel"));
    statusBar()->addPermanentWidget(m_framesLabel);

    ui->actionStartAcquisition->setIcon(style()->standardIcon(QStyle::SP_MediaPlay));
    ui->actionStopAcquisition->setIcon(style()->standardIcon(QStyle::SP_MediaStop));
    ui->actionZoomFit->setChecked(true);
    connect(ui->imagePane, &ImagePane::pixelHovered, this, &ViewerMainWindow::onPixelHovered);
    connect(ui->imagePane, &ImagePane::framePainted, this, &ViewerMainWindow::framePainted);
    connect(ui->imagePane, &ImagePane::zoomChanged, this,
        [this] { ui->actionZoomFit->setChecked(ui->imagePane->isFitting()); });
    m_statisticsTimer = new QTimer(this);
    m_statisticsTimer->setInterval(500);
    connect(m_statisticsTimer, &QTimer::timeout, this, &ViewerMainWindow::updateFrameStatistics);

    connect(GetTheGlobalAsyncErrorQueue(), &AsyncErrorQueue::displayError, this, &ViewerMainWindow::onDisplayError);

    for (const QString& type : simulatedTransportTypes())
        addCameraEntry(QString(), SimulatedCamera, type);
    retranslate();
    updateActions();
}

ViewerMainWindow::~ViewerMainWindow()
{
    closeCamera();
}

QStringList ViewerMainWindow::simulatedTransportTypes()
{
    return { QStringLiteral("GEV"), QStringLiteral("U3V"), QStringLiteral("CXP"), QStringLiteral("CamEmu") };
}

QStringList ViewerMainWindow::languages()
{
    return ViewerTranslations::languages();
}

void ViewerMainWindow::addCameraEntry(const QString& text, CameraKind kind, const QString& source)
{
    auto* item = new QListWidgetItem(text, ui->cameraList);
    item->setData(KindRole, kind);
    item->setData(SourceRole, source);
    fitCameraListToNames();
}

void ViewerMainWindow::fitCameraListToNames()
{
    // The pane of the list never gets narrower than its longest name, so that
    // no name is cut and no sideways scroll bar appears, in any language; a
    // name longer than about forty characters may still scroll.
    QListWidget* list = ui->cameraList;
    const int names = list->sizeHintForColumn(0);
    const int frame = 2 * list->frameWidth() + list->verticalScrollBar()->sizeHint().width();
    const int limit = 40 * list->fontMetrics().averageCharWidth();
    list->setMinimumWidth(qMin(qMax(names, 0), limit) + frame);
}

bool ViewerMainWindow::addDeviceFile(const QString& path, QString* error)
{
    QString reason;
    if (!Simulation::SimulatedCamera::fromFile(path, &reason)) {
        qWarning("zarvex-viewer: the device description %s is refused: %s", qPrintable(path), qPrintable(reason));
        if (error)
            *error = reason;
        return false;
    }
    addCameraEntry(QString(), DescribedCamera, path);
    retranslate();
    return true;
}

void ViewerMainWindow::discoverAravisCameras()
{
#ifdef ZVC_WITH_ARAVIS
    // Discovery takes about a second: it runs on a thread of its own while the
    // status bar shows that the viewer is looking.
    auto found = QSharedPointer<QList<Aravis::CameraInfo>>::create();
    QThread* thread = QThread::create([found] { *found = Aravis::AravisCamera::listCameras(); });
    statusBar()->showMessage(tr("Looking for cameras..."));
    m_busyBar->show();
    connect(thread, &QThread::finished, this, [this, found, thread] {
        m_busyBar->hide();
        statusBar()->showMessage(tr("%n camera(s) found", nullptr, found->size()), 5000);
        for (const Aravis::CameraInfo& info : *found)
            addCameraEntry(
                QStringLiteral("%1 %2 (%3)").arg(info.vendor, info.model, info.address), AravisCamera, info.id);
        thread->deleteLater();
        emit aravisDiscoveryFinished(found->size());
    });
    thread->start();
#else
    QTimer::singleShot(0, this, [this] { emit aravisDiscoveryFinished(0); });
#endif
}

void ViewerMainWindow::openAravisCamera(const QString& id)
{
#ifdef ZVC_WITH_ARAVIS
    auto* context = new QObject(this);
    connect(this, &ViewerMainWindow::aravisDiscoveryFinished, context, [this, context, id] {
        context->deleteLater();
        int row = -1;
        for (int i = 0; i < ui->cameraList->count() && row < 0; ++i) {
            const QListWidgetItem* item = ui->cameraList->item(i);
            if (item->data(KindRole).toInt() == AravisCamera
                && (id.isEmpty() || item->data(SourceRole).toString() == id))
                row = i;
        }
        QString message;
        if (row < 0) {
            message
                = id.isEmpty() ? tr("No Aravis camera was found.") : tr("The Aravis camera %1 was not found.").arg(id);
        } else if (!openCamera(row)) {
            message = tr("The Aravis camera %1 cannot be opened.").arg(ui->cameraList->item(row)->text());
        }
        if (!message.isEmpty())
            statusBar()->showMessage(message);
        emit aravisCameraOpened(message.isEmpty(), message);
    });
    discoverAravisCameras();
#else
    Q_UNUSED(id)
    const QString message = tr("This viewer was built without Aravis.");
    statusBar()->showMessage(message);
    QTimer::singleShot(0, this, [this, message] { emit aravisCameraOpened(false, message); });
#endif
}

QSharedPointer<ViewerCamera> ViewerMainWindow::createCamera(int row, QString* error)
{
    QListWidgetItem* item = ui->cameraList->item(row);
    if (!item)
        return QSharedPointer<ViewerCamera>();
    const QString source = item->data(SourceRole).toString();
    switch (item->data(KindRole).toInt()) {
    case SimulatedCamera:
        return QSharedPointer<ViewerCamera>::create(Simulation::SimulatedCamera::createDefault(source));
    case DescribedCamera: {
        auto camera = Simulation::SimulatedCamera::fromFile(source, error);
        return camera ? QSharedPointer<ViewerCamera>::create(std::move(camera)) : QSharedPointer<ViewerCamera>();
    }
#ifdef ZVC_WITH_ARAVIS
    case AravisCamera: {
        QProgressDialog progress(tr("Opening the camera..."), QString(), 0, 0, this);
        progress.setWindowModality(Qt::WindowModal);
        progress.setMinimumDuration(0);
        progress.show();
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        auto camera = Aravis::AravisCamera::open(source, error);
        return camera ? QSharedPointer<ViewerCamera>::create(std::move(camera)) : QSharedPointer<ViewerCamera>();
    }
#endif
    default:
        return QSharedPointer<ViewerCamera>();
    }
}

bool ViewerMainWindow::openCamera(int row)
{
    if (row == m_openRow && m_camera)
        return true;
    QString error;
    QSharedPointer<ViewerCamera> camera = createCamera(row, &error);
    if (!camera) {
        qWarning("zarvex-viewer: the camera in row %d cannot be opened: %s", row, qPrintable(error));
        statusBar()->showMessage(tr("The camera cannot be opened: %1").arg(error));
        return false;
    }
    closeCamera();
    m_camera = camera;
    m_openRow = row;
    m_cameraLost = false;

    auto* tree = new FeatureTreeWidget(QStringLiteral("zarvex-viewer"), camera->baseInfo(), ui->treeHolder);
    // The tree keeps its last values and stops asking a camera that is gone.
    connect(camera.data(), &ViewerCamera::lost, tree, [this, tree](const QString& reason) {
        tree->deviceIsClosed();
        m_cameraLost = true;
        endAcquisition();
        statusBar()->showMessage(tr("The camera is gone: %1").arg(reason));
        updateActions();
    });
    // A stream of the camera's own stops by itself when the camera goes away mid-stream.
    connect(camera.data(), &ViewerCamera::streamStopped, this, [this](const QString& reason) {
        m_cameraLost = true;
        endAcquisition();
        statusBar()->showMessage(tr("The camera is gone: %1").arg(reason));
        updateActions();
    });
    tree->setObjectName(QStringLiteral("featureTree"));
    m_tree = tree;
    // The window's own Ctrl+F reaches the search line from every pane; the
    // tree's shortcut of the same key would make it ambiguous.
    for (QShortcut* shortcut : tree->findChildren<QShortcut*>()) {
        if (shortcut->key() == ui->actionSearch->shortcut())
            shortcut->setEnabled(false);
    }
    connect(camera.data(), &ViewerCamera::frameReady, ui->imagePane, &ImagePane::setFrame);
    ui->imagePane->resetStatistics();
    ui->imagePane->clearFrame();
    ui->treeLayout->addWidget(tree);
    // Shown at once rather than from the event loop, so that the window is whole when this returns.
    tree->show();
    connect(tree, &FeatureTreeWidget::onNewText, ui->featurePane, &FeaturePane::setValueText);
    connect(tree, QOverload<QSharedPointer<ParameterCollection::IParameter>>::of(&FeatureTreeWidget::onCurrentChanged),
        ui->featurePane, &FeaturePane::setParameter);
    connect(tree, &FeatureTreeWidget::contextMenuRequested, this, &ViewerMainWindow::onContextMenuRequested);
    connect(tree, &FeatureTreeWidget::visibilityChanged, this, &ViewerMainWindow::onVisibilityChanged);
    connect(tree, &FeatureTreeWidget::pollingStateChanged, this, &ViewerMainWindow::onPollingStateChanged);
    connect(tree, &FeatureTreeWidget::viewAllFavoritesStateChanged, this,
        &ViewerMainWindow::onViewAllFavoritesStateChanged);
    connect(tree, &FeatureTreeWidget::filterMatchesChanged, this, &ViewerMainWindow::onFilterMatchesChanged);
    // The level combo drives the widget's own slot, so the widget also refilters and tells its listeners.
    connect(ui->levelCombo, SIGNAL(activated(int)), tree, SLOT(onVisibilityChanged(int)));

    for (const QString& name : camera->nodeMapNames())
        tree->addParameterCollection(
            camera->nodeMap(name), name.mid(name.startsWith(QLatin1Char('@')) ? 1 : 0), name, false);
    tree->setVisibility(levelOf(ui->levelCombo->currentIndex()));
    if (m_treeState.isEmpty() || !tree->restoreState(m_treeState, kTreeStateVersion))
        tree->treeView()->header()->resizeSection(0, 260);
    tree->expandRootNodes();
    // The keyboard goes from the camera list and the picture into the tree,
    // its search line first, and on to the feature pane.
    if (auto* search = tree->findChild<QLineEdit*>(QStringLiteral("filterEdit")))
        QWidget::setTabOrder(ui->imagePane, search);

    {
        const QSignalBlocker blocker(ui->cameraList);
        ui->cameraList->setCurrentRow(row);
    }
    ui->actionPolling->setChecked(tree->getPolling());
    ui->actionViewAllFavorites->setChecked(tree->getViewAllFavorites());
    statusBar()->showMessage(tr("Opened %1").arg(ui->cameraList->item(row)->text()), 5000);
    updateActions();
    return true;
}

void ViewerMainWindow::closeCamera()
{
    if (m_tree) {
        m_treeState = m_tree->saveState(kTreeStateVersion);
        m_tree->deviceIsClosed();
        delete m_tree;
    }
    ui->featurePane->setParameter(QSharedPointer<ParameterCollection::IParameter>());
    m_camera.reset();
    m_openRow = -1;
    m_acquiring = false;
    m_statisticsTimer->stop();
    m_matchesLabel->clear();
    m_framesLabel->clear();
    m_pixelLabel->clear();
    ui->imagePane->clearFrame();
    updateActions();
}

int ViewerMainWindow::currentCameraRow() const
{
    return m_openRow;
}

FeatureTreeWidget* ViewerMainWindow::featureTree() const
{
    return m_tree;
}

QListWidget* ViewerMainWindow::cameraList() const
{
    return ui->cameraList;
}

ViewerCamera* ViewerMainWindow::camera() const
{
    return m_camera.data();
}

QString ViewerMainWindow::statusText() const
{
    return m_matchesLabel->text();
}

ImagePane* ViewerMainWindow::imagePane() const
{
    return ui->imagePane;
}

QString ViewerMainWindow::frameStatisticsText() const
{
    return m_framesLabel->text();
}

QString ViewerMainWindow::pixelText() const
{
    return m_pixelLabel->text();
}

bool ViewerMainWindow::runCommand(const QString& name)
{
    const auto command = cameraParameter(name).dynamicCast<ParameterCollection::ICommandParameter>();
    if (!command) {
        statusBar()->showMessage(tr("The camera has no %1").arg(name), 5000);
        return false;
    }
    try {
        command->execute(true);
        return true;
    } catch (const std::exception& e) {
        showException(name, e, this);
    } catch (...) {
        showUnexpectedException(name, tr("%1 could not be run.").arg(name), this);
    }
    return false;
}

bool ViewerMainWindow::startAcquisition()
{
    if (!m_camera || m_acquiring)
        return false;
    ui->imagePane->resetStatistics();
    m_rateSamples.clear();
    if (m_camera->hasStream()) {
        // The stream runs the camera's AcquisitionStart itself, once its buffers are ready.
        QString error;
        if (!m_camera->startStream(&error)) {
            statusBar()->showMessage(tr("The acquisition cannot start: %1").arg(error));
            return false;
        }
    } else if (!runCommand(QStringLiteral("AcquisitionStart"))) {
        return false;
    }
    m_acquiring = true;
    m_statisticsTimer->start();
    updateFrameStatistics();
    updatePlaceholder();
    updateActions();
    return true;
}

bool ViewerMainWindow::stopAcquisition()
{
    if (!m_camera || !m_acquiring)
        return false;
    if (m_camera->hasStream())
        m_camera->stopStream();
    else
        runCommand(QStringLiteral("AcquisitionStop"));
    endAcquisition();
    return true;
}

void ViewerMainWindow::endAcquisition()
{
    if (!m_acquiring)
        return;
    // A stream that stopped by itself has nothing left to stop; one still running goes now.
    if (m_camera && m_camera->isStreaming())
        m_camera->stopStream();
    m_acquiring = false;
    m_statisticsTimer->stop();
    updateFrameStatistics();
    updatePlaceholder();
    updateActions();
}

void ViewerMainWindow::updateFrameStatistics()
{
    if (!m_camera) {
        m_framesLabel->clear();
        return;
    }
    const ImagePane::Statistics shown = ui->imagePane->statistics();
    quint64 received = shown.received;
    quint64 lost = shown.lost();
    double framesPerSecond = shown.framesPerSecond;
    if (m_camera->hasStream()) {
        // The stream counts what the camera sent, the frames that never made
        // it whole and those it put back while the pane was busy; the pane
        // adds the frames that a newer one replaced before they were painted.
        const ViewerCamera::StreamCounts counts = m_camera->streamCounts();
        received = counts.received;
        lost = counts.lost + shown.dropped;
        framesPerSecond = streamFramesPerSecond(received);
    }
    m_framesLabel->setText(
        tr("%1 frames, %2 fps, %3 lost").arg(received).arg(m_acquiring ? framesPerSecond : 0.0, 0, 'f', 1).arg(lost));
}

double ViewerMainWindow::streamFramesPerSecond(quint64 received)
{
    if (!m_acquiring)
        return 0.0;
    if (!m_rateClock.isValid())
        m_rateClock.start();
    const qint64 now = m_rateClock.elapsed();
    m_rateSamples.append(qMakePair(now, received));
    // The rate over the last second or so: the samples come with the statistics timer.
    while (m_rateSamples.size() > 2 && now - m_rateSamples.at(1).first >= 1000)
        m_rateSamples.removeFirst();
    const QPair<qint64, quint64>& first = m_rateSamples.first();
    if (now <= first.first || received < first.second)
        return 0.0;
    return double(received - first.second) * 1000.0 / double(now - first.first);
}

void ViewerMainWindow::onPixelHovered(int x, int y, const QString& value)
{
    if (x < 0)
        m_pixelLabel->clear();
    else
        m_pixelLabel->setText(tr("x %1, y %2: %3").arg(x).arg(y).arg(value));
}

void ViewerMainWindow::updatePlaceholder()
{
    if (!m_camera)
        ui->imagePane->setPlaceholderText(tr("No camera is open."));
    else if (!m_camera->hasImages())
        ui->imagePane->setPlaceholderText(tr("This camera sends no pictures to the viewer."));
    else if (m_acquiring)
        ui->imagePane->setPlaceholderText(tr("Waiting for the first frame..."));
    else
        ui->imagePane->setPlaceholderText(tr("Press Start Acquisition (F7) to see the picture."));
}

void ViewerMainWindow::on_actionSearch_triggered()
{
    if (!m_tree)
        return;
    if (auto* line = m_tree->findChild<QLineEdit*>(QStringLiteral("filterEdit"))) {
        line->setFocus(Qt::ShortcutFocusReason);
        line->selectAll();
    }
}

void ViewerMainWindow::on_actionStartAcquisition_triggered()
{
    startAcquisition();
}

void ViewerMainWindow::on_actionStopAcquisition_triggered()
{
    stopAcquisition();
}

void ViewerMainWindow::on_actionZoomFit_triggered()
{
    ui->imagePane->fitToWindow();
}

void ViewerMainWindow::on_actionZoomActual_triggered()
{
    ui->imagePane->showActualSize();
}

void ViewerMainWindow::on_actionZoomIn_triggered()
{
    ui->imagePane->zoomIn();
}

void ViewerMainWindow::on_actionZoomOut_triggered()
{
    ui->imagePane->zoomOut();
}

bool ViewerMainWindow::selectFeature(const QString& fullName)
{
    if (!m_tree || !m_tree->getFeatureExtension())
        return false;
    const QModelIndex index = m_tree->getFeatureExtension()->findItemByFullName(fullName, nullptr, 0);
    if (!index.isValid())
        return false;
    QTreeView* view = m_tree->treeView();
    for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent())
        view->expand(parent);
    view->setCurrentIndex(index);
    view->scrollTo(index);
    return true;
}

void ViewerMainWindow::updateActions()
{
    const bool open = m_tree;
    const bool simulated = m_camera && m_camera->simulation();
    for (QAction* action : { ui->actionPolling, ui->actionViewAllFavorites, ui->actionCopyTree })
        action->setEnabled(open);
    ui->actionIpConfiguration->setEnabled(open && cameraParameter(QStringLiteral("GevCurrentIPAddress")));
    for (QAction* action :
        { ui->actionUnplug, ui->actionReplug, ui->actionFault, ui->actionClearFaults, ui->actionChangeOnDevice })
        action->setEnabled(simulated);
    if (simulated) {
        ui->actionUnplug->setEnabled(m_camera->simulation()->isPlugged());
        ui->actionReplug->setEnabled(!m_camera->simulation()->isPlugged());
    }
    const bool canAcquire = open && !m_cameraLost && m_camera->hasImages()
        && (m_camera->hasStream() || cameraParameter(QStringLiteral("AcquisitionStart")));
    ui->actionStartAcquisition->setEnabled(canAcquire && !m_acquiring);
    ui->actionStopAcquisition->setEnabled(open && m_acquiring);
    updatePlaceholder();
}

void ViewerMainWindow::on_cameraList_currentRowChanged(int row)
{
    if (row >= 0)
        openCamera(row);
}

void ViewerMainWindow::on_levelCombo_activated(int)
{
    // The widget hears the combo directly; see openCamera().
}

void ViewerMainWindow::onVisibilityChanged(GenApi::EVisibility visibility)
{
    ui->levelCombo->setCurrentIndex(levelIndex(visibility));
}

void ViewerMainWindow::on_actionOpenDevice_triggered()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Open Device Description"), QString(), tr("Device descriptions (*.json);;All files (*)"));
    if (path.isEmpty())
        return;
    QString error;
    if (!addDeviceFile(path, &error)) {
        QMessageBox::warning(
            this, tr("Open Device Description"), tr("The device description cannot be used:\n%1").arg(error));
        return;
    }
    ui->cameraList->setCurrentRow(ui->cameraList->count() - 1);
}

void ViewerMainWindow::on_actionSaveCameraSettings_triggered()
{
    CameraSettingsCommands::save(this, m_camera.data());
}

void ViewerMainWindow::on_actionLoadCameraSettings_triggered()
{
    CameraSettingsCommands::load(this, m_camera.data());
}

void ViewerMainWindow::on_actionCompareCameraSettings_triggered()
{
    CameraSettingsCommands::compare(this, m_camera.data());
}

void ViewerMainWindow::on_actionPolling_toggled(bool on)
{
    if (m_tree && m_tree->getPolling() != on)
        m_tree->setPolling(on);
}

void ViewerMainWindow::onPollingStateChanged(bool on)
{
    const QSignalBlocker blocker(ui->actionPolling);
    ui->actionPolling->setChecked(on);
}

void ViewerMainWindow::on_actionViewAllFavorites_toggled(bool on)
{
    if (m_tree && m_tree->getViewAllFavorites() != on)
        m_tree->setViewAllFavorites(on);
}

void ViewerMainWindow::onViewAllFavoritesStateChanged(bool on)
{
    // The widget asks; the host decides and answers.
    if (m_tree)
        m_tree->setViewAllFavorites(on);
    const QSignalBlocker blocker(ui->actionViewAllFavorites);
    ui->actionViewAllFavorites->setChecked(on);
}

void ViewerMainWindow::on_actionCopyTree_triggered()
{
    if (m_tree)
        m_tree->copyToClipboard();
}

void ViewerMainWindow::onContextMenuRequested(QPoint const& point, QSharedPointer<QMenu> menu)
{
    if (!m_tree || !menu)
        return;
    const QSharedPointer<ParameterCollection::IParameter> node = m_tree->GetCurrentNode();
    const QModelIndex current = m_tree->GetCurrentIndex();
    menu->addSeparator();
    QAction* copyName = menu->addAction(tr("Copy &Name"));
    QAction* copyValue = menu->addAction(tr("Copy &Value"));
    menu->addAction(ui->actionCopyTree);
    const QString name = current.sibling(current.row(), 0).data(FeatureTreeItem::NodeNameRole).toString();
    const QString value = current.sibling(current.row(), 1).data(Qt::DisplayRole).toString();
    copyName->setEnabled(!name.isEmpty());
    copyValue->setEnabled(node && !value.isEmpty());
    connect(copyName, &QAction::triggered, this, [name] { QApplication::clipboard()->setText(name); });
    connect(copyValue, &QAction::triggered, this, [value] { QApplication::clipboard()->setText(value); });
    menu->exec(m_tree->treeView()->viewport()->mapToGlobal(point));
}

void ViewerMainWindow::onFilterMatchesChanged(int total, int hidden)
{
    if (total == 0 && hidden == 0)
        m_matchesLabel->clear();
    else
        m_matchesLabel->setText(tr("%n match(es), %1 hidden by the level", nullptr, total).arg(hidden));
}

void ViewerMainWindow::onDisplayError(
    AsyncErrorQueue::ErrorSeverity severity, QString text, QString details, QWidget* parent)
{
    const QMessageBox::Icon icon = severity == AsyncErrorQueue::Warning ? QMessageBox::Warning
        : severity == AsyncErrorQueue::Error                            ? QMessageBox::Critical
                                                                        : QMessageBox::Critical;
    auto* box = new QMessageBox(icon, tr("Zarvex Viewer"), text, QMessageBox::Ok, parent ? parent : this);
    box->setObjectName(QStringLiteral("errorBox"));
    box->setAttribute(Qt::WA_DeleteOnClose);
    // The details sit behind the box's "Show Details..." button.
    box->setDetailedText(details);
    box->open();
}

QSharedPointer<ParameterCollection::IParameter> ViewerMainWindow::cameraParameter(const QString& name) const
{
    if (!m_camera)
        return QSharedPointer<ParameterCollection::IParameter>();
    const auto map = m_camera->nodeMap(QStringLiteral("@CameraDevice"));
    const QString fullName = QStringLiteral("@CameraDevice/") + name;
    try {
        if (map && map->hasParameter(fullName))
            return map->getParameter(fullName);
    } catch (...) {
        ExceptionLogging::logCurrentException(Q_FUNC_INFO, QStringLiteral("The camera has no usable %1.").arg(name));
    }
    return QSharedPointer<ParameterCollection::IParameter>();
}

QString ViewerMainWindow::readAddress(const QString& name) const
{
    const auto parameter = cameraParameter(name).dynamicCast<ParameterCollection::IIntegerParameter>();
    if (!parameter)
        return QString();
    try {
        return QHostAddress(static_cast<quint32>(parameter->getValue())).toString();
    } catch (...) {
        ExceptionLogging::logCurrentException(Q_FUNC_INFO, QStringLiteral("%1 could not be read.").arg(name));
    }
    return QString();
}

bool ViewerMainWindow::writeAddress(const QString& name, const QString& address)
{
    const auto parameter = cameraParameter(name).dynamicCast<ParameterCollection::IIntegerParameter>();
    if (!parameter)
        return false;
    try {
        if (!parameter->isWritable()) {
            showWarningMessage(
                tr("IP Configuration"), name, tr("The camera does not let %1 be written.").arg(name), this);
            return false;
        }
        parameter->setValue(QHostAddress(address).toIPv4Address(), true);
        return true;
    } catch (const std::exception& e) {
        showException(name, e, this);
    } catch (...) {
        showUnexpectedException(name, tr("%1 could not be written.").arg(name), this);
    }
    return false;
}

void ViewerMainWindow::on_actionIpConfiguration_triggered()
{
    IpAddressWidget dialog(this);
    dialog.setObjectName(QStringLiteral("ipDialog"));
    dialog.setIpAddress(readAddress(QStringLiteral("GevCurrentIPAddress")));
    dialog.setSubnetMask(readAddress(QStringLiteral("GevCurrentSubnetMask")));
    dialog.setDefaultGateway(readAddress(QStringLiteral("GevCurrentDefaultGateway")));
    if (dialog.exec() != QDialog::Accepted)
        return;
    if (writeAddress(QStringLiteral("GevCurrentIPAddress"), dialog.ipAddress())
        && writeAddress(QStringLiteral("GevCurrentSubnetMask"), dialog.subnetMask())
        && writeAddress(QStringLiteral("GevCurrentDefaultGateway"), dialog.defaultGateway()))
        statusBar()->showMessage(tr("IP configuration written to the camera"), 5000);
}

void ViewerMainWindow::on_actionAskQuestion_triggered()
{
    MessageBoxCheckable box(QLatin1String(kQuestionKey), QMessageBox::Question, tr("Zarvex Viewer"),
        tr("Start the acquisition with the present settings?"), QMessageBox::Yes | QMessageBox::No, this);
    box.setSaveResultOnButton(QMessageBox::Yes | QMessageBox::No);
    const int answer = box.exec();
    statusBar()->showMessage(answer == QMessageBox::Yes ? tr("Answered yes") : tr("Answered no"), 5000);
}

void ViewerMainWindow::on_actionResetAnswers_triggered()
{
    MessageBoxCheckable box(QLatin1String(kQuestionKey), this);
    if (box.resetAll())
        statusBar()->showMessage(tr("Every question will be asked again"), 5000);
}

void ViewerMainWindow::on_actionUnplug_triggered()
{
    if (m_camera && m_camera->simulation())
        m_camera->simulation()->unplug();
    statusBar()->showMessage(tr("The camera is unplugged"), 5000);
    updateActions();
}

void ViewerMainWindow::on_actionReplug_triggered()
{
    if (m_camera && m_camera->simulation()) {
        m_camera->simulation()->replug();
        m_cameraLost = false;
    }
    if (m_tree) {
        // Undoes the deviceIsClosed() that the camera's loss brought.
        m_tree->getFeatureExtension()->SetDeviceAlive(true);
        m_tree->Refresh();
    }
    statusBar()->showMessage(tr("The camera is plugged in again"), 5000);
    updateActions();
}

void ViewerMainWindow::on_actionFault_triggered()
{
    const auto node = m_tree ? m_tree->GetCurrentNode() : QSharedPointer<ParameterCollection::IParameter>();
    if (!node || !m_camera || !m_camera->simulation()) {
        statusBar()->showMessage(tr("Select a feature first"), 5000);
        return;
    }
    // A failure of the plain std::exception kind: the model reports those through the error queue,
    // so the user sees the dialog, where a refused GenICam write is only declined.
    const QString fullName = node->getFullName();
    m_camera->simulation()->makeWritesFail(fullName);
    statusBar()->showMessage(tr("Writing %1 now fails").arg(fullName), 5000);
}

void ViewerMainWindow::on_actionClearFaults_triggered()
{
    if (m_camera && m_camera->simulation())
        m_camera->simulation()->clearFaults();
    statusBar()->showMessage(tr("Faults cleared"), 5000);
}

void ViewerMainWindow::on_actionChangeOnDevice_triggered()
{
    const auto node = m_tree ? m_tree->GetCurrentNode() : QSharedPointer<ParameterCollection::IParameter>();
    if (!node || !m_camera || !m_camera->simulation()) {
        statusBar()->showMessage(tr("Select a feature first"), 5000);
        return;
    }
    QString fullName;
    QString current;
    try {
        fullName = node->getFullName();
        const auto data = node->getParameterData();
        current = data ? data->valueText : QString();
    } catch (...) {
        ExceptionLogging::logCurrentException(Q_FUNC_INFO, QStringLiteral("The current feature could not be read."));
        return;
    }
    bool ok = false;
    const QString value = QInputDialog::getText(
        this, tr("Change Value on Device"), tr("New value of %1:").arg(fullName), QLineEdit::Normal, current, &ok);
    if (!ok)
        return;
    if (!m_camera->simulation()->changeOnDevice(fullName, value)) {
        statusBar()->showMessage(tr("The camera does not take %1 for %2").arg(value, fullName), 5000);
        return;
    }
    // Polled features show it at the next poll; the others when the node map is refreshed.
    const QString mapName = fullName.section(QLatin1Char('/'), 0, 0);
    if (auto map = m_camera->nodeMap(mapName)) {
        try {
            map->refreshAll();
        } catch (...) {
            ExceptionLogging::logCurrentException(Q_FUNC_INFO, QStringLiteral("The node map could not be refreshed."));
        }
    }
}

void ViewerMainWindow::on_actionAbout_triggered()
{
    QMessageBox::about(this, tr("About Zarvex Viewer"),
        tr("Zarvex Viewer shows and edits the features of a camera with the ZarvexViewerComponents library."));
}

bool ViewerMainWindow::setLanguage(const QString& code)
{
    if (!m_translations.install(code))
        return false;
    m_language = code;
    for (QAction* action : m_languageGroup->actions())
        action->setChecked(action->data().toString() == code);
    // Items read their translated texts when asked; the tree is redrawn to ask again.
    if (m_tree)
        m_tree->refreshTree();
    return true;
}

QString ViewerMainWindow::language() const
{
    return m_language;
}

void ViewerMainWindow::onLanguageTriggered(QAction* action)
{
    setLanguage(action->data().toString());
}

void ViewerMainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        ui->retranslateUi(this);
        retranslate();
    }
    QMainWindow::changeEvent(event);
}

void ViewerMainWindow::retranslate()
{
    updatePlaceholder();
    updateFrameStatistics();
    for (int row = 0; row < ui->cameraList->count(); ++row) {
        QListWidgetItem* item = ui->cameraList->item(row);
        const QString source = item->data(SourceRole).toString();
        switch (item->data(KindRole).toInt()) {
        case SimulatedCamera:
            item->setText(tr("Simulated camera (%1)").arg(source));
            break;
        case DescribedCamera:
            item->setText(tr("%1 (simulated)").arg(QFileInfo(source).completeBaseName()));
            break;
        default:
            break;
        }
    }
    fitCameraListToNames();
}

void ViewerMainWindow::restoreSettings()
{
    QSettings settings;
    settings.beginGroup(QLatin1String(kSettingsGroup));
    restoreGeometry(settings.value(QStringLiteral("geometry")).toByteArray());
    restoreState(settings.value(QStringLiteral("windowState")).toByteArray());
    ui->splitter->restoreState(settings.value(QStringLiteral("splitter")).toByteArray());
    m_treeState = settings.value(QStringLiteral("treeState")).toByteArray();
    const int level = settings.value(QStringLiteral("level"), 0).toInt();
    ui->levelCombo->setCurrentIndex(qBound(0, level, ui->levelCombo->count() - 1));
    const QString language = settings.value(QStringLiteral("language"), QStringLiteral("en")).toString();
    if (language != QLatin1String("en"))
        setLanguage(language);
    const QString lastKind = settings.value(QStringLiteral("lastCameraKind")).toString();
    const QString lastSource = settings.value(QStringLiteral("lastCamera")).toString();
    settings.endGroup();

    int row = 0;
    for (int i = 0; i < ui->cameraList->count(); ++i) {
        const QListWidgetItem* item = ui->cameraList->item(i);
        if (item->data(KindRole).toString() == lastKind && item->data(SourceRole).toString() == lastSource)
            row = i;
    }
    openCamera(row);
}

void ViewerMainWindow::saveSettings() const
{
    QSettings settings;
    settings.beginGroup(QLatin1String(kSettingsGroup));
    settings.setValue(QStringLiteral("geometry"), saveGeometry());
    settings.setValue(QStringLiteral("windowState"), saveState());
    settings.setValue(QStringLiteral("splitter"), ui->splitter->saveState());
    settings.setValue(QStringLiteral("treeState"), m_tree ? m_tree->saveState(kTreeStateVersion) : m_treeState);
    settings.setValue(QStringLiteral("level"), ui->levelCombo->currentIndex());
    settings.setValue(QStringLiteral("language"), m_language);
    if (const QListWidgetItem* item = ui->cameraList->item(m_openRow)) {
        settings.setValue(QStringLiteral("lastCameraKind"), item->data(KindRole).toString());
        settings.setValue(QStringLiteral("lastCamera"), item->data(SourceRole).toString());
    }
    settings.endGroup();
}

void ViewerMainWindow::closeEvent(QCloseEvent* event)
{
    saveSettings();
    QMainWindow::closeEvent(event);
}
