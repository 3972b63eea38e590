#pragma once

#include "zarvexviewercomponents_export.h"

#include <QObject>

/*!
 * An event filter that reports when the watched widget gains or loses the
 * keyboard focus. It filters nothing out.
 */
class ZVC_EXPORT SpinBoxEventCatcher : public QObject
{
    Q_OBJECT

public:
    explicit SpinBoxEventCatcher(QObject* parent = nullptr);

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void focusEvent(bool focus);
};
