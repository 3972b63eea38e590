#include "camerasettingsreportdialog.h"

#include "ui_camerasettingsreportdialog.h"

#include <QApplication>
#include <QClipboard>
#include <QFileInfo>

CameraSettingsReportDialog::CameraSettingsReportDialog(QWidget* parent)
    : QDialog(parent)
    , ui(new Ui_CameraSettingsReportDialog)
{
    ui->setupUi(this);
}

CameraSettingsReportDialog::~CameraSettingsReportDialog() = default;

void CameraSettingsReportDialog::setReport(const CameraSettings::Report& report, const QString& fileName)
{
    m_report = report;
    m_fileName = fileName;
    fill();
}

void CameraSettingsReportDialog::fill()
{
    const int restored = m_report.count(CameraSettings::Written) + m_report.count(CameraSettings::AlreadyEqual);
    QString summary;
    if (m_report.stopped)
        summary = tr("The restore stopped: %1").arg(m_report.stopReason);
    else if (m_report.isComplete())
        summary = tr("Every value of the file is on the camera.");
    else
        summary = tr("%1 of %2 values are on the camera; the others are listed with the reason.")
                      .arg(restored)
                      .arg(m_report.entries.size());
    if (!m_fileName.isEmpty())
        summary = QFileInfo(m_fileName).fileName() + QStringLiteral(": ") + summary;
    ui->summaryLabel->setText(summary);

    ui->reportList->clear();
    const QStringList lines = m_report.toLines();
    // The first lines are the report's own summary; the rest one per value, in order.
    const int header = lines.size() - m_report.entries.size();
    for (int i = 0; i < lines.size(); ++i) {
        if (i >= header && ui->problemsOnlyCheck->isChecked()) {
            const CameraSettings::Outcome outcome = m_report.entries.at(i - header).outcome;
            if (outcome == CameraSettings::Written || outcome == CameraSettings::AlreadyEqual)
                continue;
        }
        auto* item = new QListWidgetItem(lines.at(i), ui->reportList);
        if (i >= header) {
            const CameraSettings::Outcome outcome = m_report.entries.at(i - header).outcome;
            if (outcome != CameraSettings::Written && outcome != CameraSettings::AlreadyEqual)
                item->setForeground(palette().color(QPalette::Link));
        } else {
            QFont font = item->font();
            font.setBold(true);
            item->setFont(font);
        }
    }
}

QString CameraSettingsReportDialog::summary() const
{
    return ui->summaryLabel->text();
}

QStringList CameraSettingsReportDialog::shownLines() const
{
    QStringList lines;
    for (int i = 0; i < ui->reportList->count(); ++i)
        lines.append(ui->reportList->item(i)->text());
    return lines;
}

QString CameraSettingsReportDialog::textToCopy() const
{
    QStringList lines;
    for (int i = 0; i < ui->reportList->count(); ++i)
        if (ui->reportList->item(i)->isSelected())
            lines.append(ui->reportList->item(i)->text());
    if (lines.isEmpty())
        lines = shownLines();
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

void CameraSettingsReportDialog::on_copyButton_clicked()
{
    QApplication::clipboard()->setText(textToCopy());
}

void CameraSettingsReportDialog::on_problemsOnlyCheck_toggled(bool)
{
    fill();
}
