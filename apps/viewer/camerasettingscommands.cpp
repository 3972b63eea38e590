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
    QString path;
    CameraSettings::Document document;
    if (!pickAndRead(parent, camera, QCoreApplication::translate("CameraSettingsCommands", "Load Camera Settings"),
            &path, &document))
        return false;
    showReport(parent, settingsFor(camera)->restore(document), path);
    return true;
}

bool CameraSettingsCommands::compare(QWidget* parent, ViewerCamera* camera)
{
    QString path;
    CameraSettings::Document document;
    if (!pickAndRead(parent, camera, QCoreApplication::translate("CameraSettingsCommands", "Compare With File"), &path,
            &document))
        return false;
    const std::unique_ptr<CameraSettings> settings = settingsFor(camera);
    CameraSettingsCompareDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("cameraSettingsCompare"));
    dialog.setDifferences(settings->compare(document), path);
    if (dialog.exec() != QDialog::Accepted || dialog.checkedValues().isEmpty())
        return false;
    showReport(parent, settings->restoreSelected(document, dialog.checkedValues()), path);
    return true;
}

bool CameraSettingsCommands::pickAndRead(
    QWidget* parent, ViewerCamera* camera, const QString& title, QString* path, CameraSettings::Document* document)
{
    if (!haveCamera(parent, camera, title))
        return false;
    *path = QFileDialog::getOpenFileName(parent, title, QString(), fileFilter());
    return !path->isEmpty() && readFile(parent, *path, document);
}

void CameraSettingsCommands::showReport(QWidget* parent, const CameraSettings::Report& report, const QString& path)
{
    CameraSettingsReportDialog dialog(parent);
    dialog.setObjectName(QStringLiteral("cameraSettingsReport"));
    dialog.setReport(report, path);
    dialog.exec();
}
