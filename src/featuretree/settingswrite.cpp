#include "settingswrite.h"

#include <QSettings>
#include <QString>
#include <QVariant>

void setIfDifferent(QSettings& settings, const QString& key, const QVariant& value)
{
    const QVariant stored = settings.value(key);
    if (!stored.isValid() || stored.toString() != value.toString())
        settings.setValue(key, value);
}
