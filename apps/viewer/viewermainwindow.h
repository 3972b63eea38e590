#pragma once

#include "messages/asyncerrorqueue.h"
#include "parameters/genapienums.h"
#include "parameters/iparameter.h"
#include "viewertranslations.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QPair>
#include <QPointer>
#include <QSharedPointer>
#include <QVector>

#include <memory>

class FeatureTreeWidget;
class ImagePane;
class QActionGroup;
class QLabel;
class QListWidget;
class QMenu;
class QProgressBar;
class QTimer;
class ViewerCamera;
class Ui_ViewerMainWindow;

/*!
 * The viewer's main window: the camera list, the feature tree of the open
 * camera and the pane of its current feature, with the menus that show what
 * the library offers a host. Kept in a library of its own so that tests drive
 * the very window that the application shows.
 */
class ViewerMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    //! Where a camera of the list comes from; stored with each entry.
    enum CameraKind { SimulatedCamera = 0, DescribedCamera = 1, AravisCamera = 2 };
    enum CameraRoles { KindRole = Qt::UserRole + 1, SourceRole };

    explicit ViewerMainWindow(QWidget* parent = nullptr);
    ~ViewerMainWindow() override;

    //! The transport-layer types on which the default simulated camera is listed.
    static QStringList simulatedTransportTypes();
    //! The language codes of the catalogues, "en" first.
    static QStringList languages();

    //! Adds a camera from a JSON description; false, with the reason, if the file is refused.
    bool addDeviceFile(const QString& path, QString* error = nullptr);
    //! Looks for real cameras in the background; they join the list when found.
    void discoverAravisCameras();
    /*!
     * Looks for real cameras and opens the one with that Aravis id, or the
     * first found when id is empty; aravisCameraOpened() tells how it went,
     * and the status bar says so when there is none.
     */
    void openAravisCamera(const QString& id);

    //! Opens the camera in that row of the list; false if it cannot be opened.
    bool openCamera(int row);
    int currentCameraRow() const;

    //! Makes the feature with that full name ("@CameraDevice/Gain") the tree's current row; false if absent.
    bool selectFeature(const QString& fullName);

    //! Installs the library's and the viewer's catalogues for the code ("en", "ja", "ko", "zh") and retranslates.
    bool setLanguage(const QString& code);
    QString language() const;

    //! Restores geometry, splitter, tree state, language, level and last camera; opens a camera.
    void restoreSettings();
    void saveSettings() const;

    FeatureTreeWidget* featureTree() const;
    QListWidget* cameraList() const;
    ViewerCamera* camera() const;
    QString statusText() const;

    ImagePane* imagePane() const;
    //! Starts the camera's stream, or runs its AcquisitionStart; false if it has neither or refuses.
    bool startAcquisition();
    //! Stops the camera's stream, or runs its AcquisitionStop; false if nothing runs.
    bool stopAcquisition();
    bool isAcquiring() const { return m_acquiring; }
    //! The status bar's frame counts: received, frames per second, lost.
    QString frameStatisticsText() const;
    //! The status bar's position and value of the pixel under the cursor.
    QString pixelText() const;

signals:
    //! A frame of the open camera was painted in the image pane.
    void framePainted(quint64 frameId);
    //! The search for real cameras ended with that many found.
    void aravisDiscoveryFinished(int found);
    //! openAravisCamera() ended: the camera is open, or message says why not.
    void aravisCameraOpened(bool opened, const QString& message);

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private slots:
    void on_cameraList_currentRowChanged(int row);
    void on_levelCombo_activated(int index);
    void on_actionOpenDevice_triggered();
    void on_actionSaveCameraSettings_triggered();
    void on_actionLoadCameraSettings_triggered();
    void on_actionCompareCameraSettings_triggered();
    void on_actionPolling_toggled(bool on);
    void on_actionViewAllFavorites_toggled(bool on);
    void on_actionCopyTree_triggered();
    void on_actionIpConfiguration_triggered();
    void on_actionAskQuestion_triggered();
    void on_actionResetAnswers_triggered();
    void on_actionUnplug_triggered();
    void on_actionReplug_triggered();
    void on_actionFault_triggered();
    void on_actionClearFaults_triggered();
    void on_actionChangeOnDevice_triggered();
    void on_actionAbout_triggered();
    void on_actionSearch_triggered();
    void on_actionStartAcquisition_triggered();
    void on_actionStopAcquisition_triggered();
    void on_actionZoomFit_triggered();
    void on_actionZoomActual_triggered();
    void on_actionZoomIn_triggered();
    void on_actionZoomOut_triggered();

    void onLanguageTriggered(QAction* action);
    void onContextMenuRequested(QPoint const& point, QSharedPointer<QMenu> menu);
    void onVisibilityChanged(GenApi::EVisibility visibility);
    void onPollingStateChanged(bool on);
    void onViewAllFavoritesStateChanged(bool on);
    void onFilterMatchesChanged(int total, int hidden);
    void onDisplayError(AsyncErrorQueue::ErrorSeverity severity, QString text, QString details, QWidget* parent);
    void onPixelHovered(int x, int y, const QString& value);
    void updateFrameStatistics();

private:
    void addCameraEntry(const QString& text, CameraKind kind, const QString& source);
    //! Keeps the camera list at least as wide as its longest entry.
    void fitCameraListToNames();
    QSharedPointer<ViewerCamera> createCamera(int row, QString* error);
    void closeCamera();
    void updateActions();
    void retranslate();
    QSharedPointer<ParameterCollection::IParameter> cameraParameter(const QString& name) const;
    QString readAddress(const QString& name) const;
    bool writeAddress(const QString& name, const QString& address);
    bool runCommand(const QString& name);
    void updatePlaceholder();
    //! The acquisition is over, stopped or ended by the camera's loss: actions, counts and picture follow.
    void endAcquisition();
    //! Frames a second that the camera's stream received lately; called with each statistics update.
    double streamFramesPerSecond(quint64 received);

    std::unique_ptr<Ui_ViewerMainWindow> ui;
    QActionGroup* m_languageGroup = nullptr;
    QLabel* m_matchesLabel = nullptr;
    QProgressBar* m_busyBar = nullptr;
    QLabel* m_pixelLabel = nullptr;
    QLabel* m_framesLabel = nullptr;
    QTimer* m_statisticsTimer = nullptr;
    bool m_acquiring = false;
    bool m_cameraLost = false; //!< the open camera went away; a simulated one comes back with Replug
    QElapsedTimer m_rateClock;
    QVector<QPair<qint64, quint64>> m_rateSamples; //!< (milliseconds, frames received) of a stream's last second
    QPointer<FeatureTreeWidget> m_tree;
    QSharedPointer<ViewerCamera> m_camera;
    QByteArray m_treeState;
    ViewerTranslations m_translations;
    QString m_language = QStringLiteral("en");
    int m_openRow = -1;
};
