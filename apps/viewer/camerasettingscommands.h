#pragma once

#include "camerasettings/camerasettings.h"

#include <memory>

class QWidget;
class ViewerCamera;

/*!
 * The File menu's camera settings commands of the viewer: save the camera's
 * settings to a file, load a file onto the camera and show the report,
 * compare a file with the camera and apply the differences the user checks.
 */
class CameraSettingsCommands
{
public:
    //! Settings over every node map of the camera, with its transport layer type.
    static std::unique_ptr<CameraSettings> settingsFor(ViewerCamera* camera);

    //! Asks for a file name and saves; false if nothing was saved.
    static bool save(QWidget* parent, ViewerCamera* camera);
    //! Asks for a file, restores it and shows the report; false if nothing was restored.
    static bool load(QWidget* parent, ViewerCamera* camera);
    //! Asks for a file, shows the differences and restores the checked ones; false if nothing was restored.
    static bool compare(QWidget* parent, ViewerCamera* camera);

    //! Reads the file and warns in a message box if it is refused; false then.
    static bool readFile(QWidget* parent, const QString& path, CameraSettings::Document* document);

private:
    //! Checks that a camera is open, asks for a file and reads it; false if the user gave up or the file is refused.
    static bool pickAndRead(
        QWidget* parent, ViewerCamera* camera, const QString& title, QString* path, CameraSettings::Document* document);
    //! Shows the report of a restore from the file at path, modally.
    static void showReport(QWidget* parent, const CameraSettings::Report& report, const QString& path);
};
