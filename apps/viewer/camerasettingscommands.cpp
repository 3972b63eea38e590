#include "camerasettingscommands.h"

#include "camerasettingscomparedialog.h"
#include "camerasettingsreportdialog.h"
#include "viewercamera.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace {

QString fileFilter()
{
    return QCoreApplication::translate("CameraSettingsCommands", "Camera settings (*.json);;All files (*)");
}

bool haveCamera(QWidget* parent, ViewerCamera* camera, const QString& title)
{
    if (camera)
        return true;
    QMessageBox::information(
        parent, title, QCoreApplication::translate("CameraSettingsCommands", "No camera is open."));
    return false;
}

} // namespace

std::unique_ptr<CameraSettings> CameraSettingsCommands::settingsFor(ViewerCamera* camera)
{
    std::unique_ptr<CameraSettings> settings(new CameraSettings);
    if (!camera)
        return settings;
    settings->setCameraIdentity(QString(), QString(), QString(), camera->transportLayerType());
    for (const QString& name : camera->nodeMapNames())
        settings->addParameterCollection(name, camera->nodeMap(name));
    return settings;
}

bool CameraSettingsCommands::readFile(QWidget* parent, const QString& path, CameraSettings::Document* document)
{
    QString error;
    if (CameraSettings::readFile(path, document, &error))
        return true;
    QMessageBox::warning(parent, QCoreApplication::translate("CameraSettingsCommands", "Camera Settings"),
        QCoreApplication::translate(
            "CameraSettingsCommands", "The file cannot be used; nothing was written to the camera.\n\n%1")
            .arg(error));
    return false;
}

bool CameraSettingsCommands::save(QWidget* parent, ViewerCamera* camera)
{
    const QString title = QCoreApplication::translate("CameraSettingsCommands", "Save Camera Settings");
    if (!haveCamera(parent, camera, title))
        return false;
    QString path = QFileDialog::getSaveFileName(parent, title, QString(), fileFilter());
    if (path.isEmpty())
        return false;
    if (QFileInfo(path).suffix().isEmpty())
        path += QStringLiteral(".json");
    QString error;
    if (!settingsFor(camera)->saveToFile(path, &error)) {
        QMessageBox::warning(parent, title, error);
        return false;
    }
    return true;
}

bool CameraSettingsCommands::load(QWidget* parent, ViewerCamera* camera)
{
    const QString title = QCoreApplication::translate("CameraSettingsCommands", "Load Camera Settings");
    if (!haveCamera(parent, camera, title))
        return false;
    const QString path = QFileDialog::getOpenFileName(parent, title, QString(), fileFilter());
    CameraSettings::Document document;
    if (path.isEmpty() || !readFile(parent, path, &document))
        return false;
    const CameraSettings::Report report = settingsFor(camera)->restore(document);
    CameraSettingsReportDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("cameraSettingsReport"));
    dialog.setReport(report, path);
    dialog.exec();
    return true;
}

bool CameraSettingsCommands::compare(QWidget* parent, ViewerCamera* camera)
{
    const QString title = QCoreApplication::translate("CameraSettingsCommands", "Compare With File");
    if (!haveCamera(parent, camera, title))
        return false;
    const QString path = QFileDialog::getOpenFileName(parent, title, QString(), fileFilter());
    CameraSettings::Document document;
    if (path.isEmpty() || !readFile(parent, path, &document))
        return false;
    const std::unique_ptr<CameraSettings> settings = settingsFor(camera);
    CameraSettingsCompareDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("cameraSettingsCompare"));
    dialog.setDifferences(settings->compare(document), path);
    if (dialog.exec() != QDialog::Accepted || dialog.checkedValues().isEmpty())
        return false;
    const CameraSettings::Report report = settings->restoreSelected(document, dialog.checkedValues());
    CameraSettingsReportDialog reportDialog(parent);
    reportDialog.setObjectName(QStringLiteral("cameraSettingsReport"));
    reportDialog.setReport(report, path);
    reportDialog.exec();
    return true;
}
