#pragma once

#include "camerasettings/camerasettings.h"

#include <QDialog>

#include <memory>

class QTableWidgetItem;
class Ui_CameraSettingsCompareDialog;

/*!
 * Shows the differences between a settings file and the camera in a table:
 * feature, selector entry, value on the camera, value in the file, each row
 * with a check box. The checked rows are what the host restores.
 */
class CameraSettingsCompareDialog : public QDialog
{
    Q_OBJECT

public:
    explicit CameraSettingsCompareDialog(QWidget* parent = nullptr);
    ~CameraSettingsCompareDialog() override;

    //! Fills the table; rows present on the camera start checked, the others can't be checked.
    void setDifferences(const QList<CameraSettings::Difference>& differences, const QString& fileName = QString());
    //! Checks or unchecks the row.
    void setChecked(int row, bool checked);
    //! The values of the file in the checked rows, in table order.
    QList<CameraSettings::Value> checkedValues() const;
    //! The number of rows.
    int rowCount() const;

private slots:
    void on_checkAllButton_clicked();
    void on_checkNoneButton_clicked();
    void updateApplyButton();

private:
    QTableWidgetItem* greyItem(const QString& text) const;
    //! The value, or a grey "(empty)" for an empty one.
    QTableWidgetItem* valueItem(const QString& value) const;

    std::unique_ptr<Ui_CameraSettingsCompareDialog> ui;
    QList<CameraSettings::Difference> m_differences;
};
