#include "camerasettingscomparedialog.h"

#include "ui_camerasettingscomparedialog.h"

#include <QFileInfo>
#include <QPushButton>

QTableWidgetItem* CameraSettingsCompareDialog::greyItem(const QString& text) const
{
    auto* item = new QTableWidgetItem(text);
    item->setForeground(palette().color(QPalette::Disabled, QPalette::Text));
    return item;
}

QTableWidgetItem* CameraSettingsCompareDialog::valueItem(const QString& value) const
{
    return value.isEmpty() ? greyItem(tr("(empty)")) : new QTableWidgetItem(value);
}

CameraSettingsCompareDialog::CameraSettingsCompareDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui_CameraSettingsCompareDialog)
{
    ui->setupUi(this);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setText(tr("&Apply Checked"));
    connect(ui->differenceTable, SIGNAL(itemChanged(QTableWidgetItem*)), this, SLOT(updateApplyButton()));
    updateApplyButton();
}

CameraSettingsCompareDialog::~CameraSettingsCompareDialog() = default;

void CameraSettingsCompareDialog::setDifferences(
    const QList<CameraSettings::Difference>& differences, const QString& fileName)
{
    m_differences = differences;
    QTableWidget* table = ui->differenceTable;
    const QSignalBlocker blocker(table);
    table->setRowCount(differences.size());
    for (int row = 0; row < differences.size(); ++row) {
        const CameraSettings::Difference& difference = differences.at(row);
        auto* feature = new QTableWidgetItem(difference.file.nodeMap == QLatin1String("@CameraDevice")
                ? difference.file.feature
                : difference.file.fullName());
        feature->setToolTip(difference.file.fullName());
        Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
        if (difference.presentOnCamera)
            flags |= Qt::ItemIsUserCheckable;
        feature->setFlags(flags);
        feature->setCheckState(difference.presentOnCamera ? Qt::Checked : Qt::Unchecked);
        table->setItem(row, 0, feature);
        const QString entry = difference.file.selector.isEmpty()
            ? QString()
            : QStringLiteral("%1 = %2").arg(difference.file.selector, difference.file.selectorEntry);
        table->setItem(row, 1, new QTableWidgetItem(entry));
        table->setItem(
            row, 2, difference.presentOnCamera ? valueItem(difference.cameraValue) : greyItem(tr("(not present)")));
        table->setItem(row, 3, valueItem(difference.file.value));
    }
    table->resizeColumnsToContents();
    const QString name = fileName.isEmpty() ? QString() : QFileInfo(fileName).fileName();
    if (differences.isEmpty())
        ui->summaryLabel->setText(tr("The camera holds every value of %1.").arg(name));
    else if (differences.size() == 1)
        ui->summaryLabel->setText(
            tr("One value of %1 differs from the camera. If it is checked, it is written when you apply it.")
                .arg(name));
    else
        ui->summaryLabel->setText(
            tr("%1 values of %2 differ from the camera. The checked ones are written when you apply them.")
                .arg(differences.size())
                .arg(name));
    updateApplyButton();
}

void CameraSettingsCompareDialog::setChecked(int row, bool checked)
{
    if (QTableWidgetItem* item = ui->differenceTable->item(row, 0))
        if (item->flags() & Qt::ItemIsUserCheckable)
            item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

QList<CameraSettings::Value> CameraSettingsCompareDialog::checkedValues() const
{
    QList<CameraSettings::Value> values;
    for (int row = 0; row < m_differences.size(); ++row) {
        const QTableWidgetItem* item = ui->differenceTable->item(row, 0);
        if (item && item->checkState() == Qt::Checked)
            values.append(m_differences.at(row).file);
    }
    return values;
}

int CameraSettingsCompareDialog::rowCount() const
{
    return ui->differenceTable->rowCount();
}

void CameraSettingsCompareDialog::on_checkAllButton_clicked()
{
    for (int row = 0; row < rowCount(); ++row)
        setChecked(row, true);
}

void CameraSettingsCompareDialog::on_checkNoneButton_clicked()
{
    for (int row = 0; row < rowCount(); ++row)
        setChecked(row, false);
}

void CameraSettingsCompareDialog::updateApplyButton()
{
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(!checkedValues().isEmpty());
}
