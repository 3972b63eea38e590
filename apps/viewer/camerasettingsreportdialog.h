#pragma once

#include "camerasettings/camerasettings.h"

#include <QDialog>

#include <memory>

class Ui_CameraSettingsReportDialog;

/*!
 * Shows the report of a restore of camera settings as a list of lines, one
 * per value after a summary, that the user can read, select and copy.
 */
class CameraSettingsReportDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CameraSettingsReportDialog(QWidget* parent = nullptr);
    ~CameraSettingsReportDialog() override;

    //! Shows the report; fileName, if given, names the file restored.
    void setReport(const CameraSettings::Report& report, const QString& fileName = QString());
    //! The summary above the list.
    QString summary() const;
    //! The lines the list shows now.
    QStringList shownLines() const;
    //! What the Copy button puts on the clipboard: the selected lines, or all of them if none is selected.
    QString textToCopy() const;

private slots:
    void on_copyButton_clicked();
    void on_problemsOnlyCheck_toggled(bool on);

private:
    void fill();

    std::unique_ptr<Ui_CameraSettingsReportDialog> ui;
    CameraSettings::Report m_report;
    QString m_fileName;
};
