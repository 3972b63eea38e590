#include "messageboxcheckable.h"

#include "exceptionlogging.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QPixmap>
#include <QSettings>

#include <cstring>

namespace {

const char settingsGroup[] = "DoNotShowAgain";

// QMessageBox::Icon has no fixed underlying type, so a value outside its
// named ones (a host's int cast to it) must not be read as an Icon: that
// load is undefined. The bits are taken as they are and only a named value
// is turned back into an Icon; any other counts as NoIcon.
QMessageBox::Icon knownIcon(const QMessageBox::Icon& icon)
{
    static_assert(sizeof(QMessageBox::Icon) == sizeof(int), "QMessageBox::Icon is an int");
    int raw = 0;
    std::memcpy(&raw, &icon, sizeof raw);
    switch (raw) {
    case QMessageBox::Information:
    case QMessageBox::Warning:
    case QMessageBox::Critical:
    case QMessageBox::Question:
        return static_cast<QMessageBox::Icon>(raw);
    default:
        return QMessageBox::NoIcon;
    }
}

QString iconResource(QMessageBox::Icon icon)
{
    switch (icon) {
    case QMessageBox::Information:
        return QStringLiteral(":/zarvexviewercomponents/Resources/Info_32.png");
    case QMessageBox::Warning:
        return QStringLiteral(":/zarvexviewercomponents/Resources/Warning_16_black.png");
    case QMessageBox::Critical:
        return QStringLiteral(":/zarvexviewercomponents/Resources/Error_32.png");
    case QMessageBox::Question:
        return QStringLiteral(":/zarvexviewercomponents/Resources/Question_32.png");
    default:
        return QString();
    }
}

} // namespace

MessageBoxCheckable::MessageBoxCheckable(const QString& settingsKey, QWidget* parent)
    : QMessageBox(parent)
    , m_settingsKey(settingsKey)
    , m_checkBoxText(tr("&Don't show this dialog again"))
{
    init();
}

MessageBoxCheckable::MessageBoxCheckable(const QString& settingsKey, QMessageBox::Icon icon, const QString& title,
    const QString& text, QFlags<QMessageBox::StandardButton> buttons, QWidget* parent, QFlags<Qt::WindowType> flags)
    : QMessageBox(knownIcon(icon), title, text, buttons, parent, flags)
    , m_settingsKey(settingsKey)
    , m_checkBoxText(tr("&Don't show this dialog again"))
{
    const QString resource = iconResource(knownIcon(icon));
    setIconPixmap(resource.isEmpty() ? QPixmap() : QPixmap(resource));
    init();
}

QFlags<QMessageBox::StandardButton> MessageBoxCheckable::saveResultOnButton() const
{
    return m_saveResultOnButton;
}

void MessageBoxCheckable::setSaveResultOnButton(QFlags<QMessageBox::StandardButton> buttons)
{
    m_saveResultOnButton = buttons;
}

void MessageBoxCheckable::setSaveResultOnButton(QAbstractButton* button)
{
    if (!button) {
        ZVC_LOGGER.debug("MessageBoxCheckable::setSaveResultOnButton: no button given, nothing added");
        return;
    }
    m_saveButtons.append(button);
}

QString MessageBoxCheckable::checkBoxText() const
{
    return m_checkBoxText;
}

void MessageBoxCheckable::setCheckBoxText(const QString& text)
{
    m_checkBoxText = text.isEmpty() ? tr("&Don't show this dialog again") : text;
    if (m_checkBox)
        m_checkBox->setText(m_checkBoxText);
}

int MessageBoxCheckable::exec()
{
    if (m_storedResult != -1)
        return m_storedResult;

    addCheckBoxWidget();
    const int result = QDialog::exec();

    const int mask = int(m_saveResultOnButton);
    bool counts = result != 0 && mask != 0 && (result & ~mask) == 0;
    if (!counts) {
        QAbstractButton* clicked = clickedButton();
        counts = clicked && m_saveButtons.contains(clicked);
    }
    if (counts && m_checkBox && m_checkBox->checkState() == Qt::Checked)
        saveDoNotShowAgain(result);
    return result;
}

bool MessageBoxCheckable::reset()
{
    if (m_settingsKey.isEmpty()) {
        ZVC_LOGGER.debug("MessageBoxCheckable::reset: the box has no settings key, nothing to forget");
        return false;
    }
    QSettings settings;
    settings.beginGroup(QLatin1String(settingsGroup));
    if (!settings.contains(m_settingsKey))
        return false;
    settings.remove(m_settingsKey);
    return true;
}

bool MessageBoxCheckable::resetAll()
{
    QSettings settings;
    settings.beginGroup(QLatin1String(settingsGroup));
    settings.remove(QString());
    return true;
}

void MessageBoxCheckable::init()
{
    // QSettings refuses an empty key with a warning of its own; such a box
    // simply never has a stored answer.
    if (m_settingsKey.isEmpty())
        return;
    QSettings settings;
    settings.beginGroup(QLatin1String(settingsGroup));
    m_storedResult = settings.value(m_settingsKey, -1).toInt();
}

void MessageBoxCheckable::addCheckBoxWidget()
{
    if (m_checkBox)
        return;
    m_checkBox = new QCheckBox(this);
    m_checkBox->setText(m_checkBoxText);
    m_checkBox->setMinimumHeight(m_checkBox->height());
    setCheckBox(m_checkBox);
}

void MessageBoxCheckable::saveDoNotShowAgain(int result)
{
    if (!m_checkBox || m_checkBox->checkState() != Qt::Checked)
        return;
    if (m_settingsKey.isEmpty()) {
        ZVC_LOGGER.debug("MessageBoxCheckable: the box has no settings key, the answer is not remembered");
        return;
    }
    QSettings settings;
    settings.beginGroup(QLatin1String(settingsGroup));
    settings.setValue(m_settingsKey, result);
}
