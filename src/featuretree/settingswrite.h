/*!
 * \file featuretree/settingswrite.h
 * setIfDifferent(), a settings write that leaves an unchanged key alone.
 */
#pragma once

class QSettings;
class QString;
class QVariant;

/*!
 * Writes value under key unless the key holds the same text already.
 * QSettings takes any setValue() for a change: it then locks the settings
 * file, writes a new one and flushes both to disk, which a tree made or
 * closed without a change should not pay for. A value stored in another
 * spelling ("true", "01", "#FFFF50") is written again as given.
 */
void setIfDifferent(QSettings& settings, const QString& key, const QVariant& value);
