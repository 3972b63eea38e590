/*!
 * \file featuretree/spinboxeventcatcher.h
 * SpinBoxEventCatcher, an event filter that reports focus changes.
 */
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
    //! A filter to install on the widget to watch.
    explicit SpinBoxEventCatcher(QObject* parent = nullptr);

    //! Emits focusEvent() for focus-in and focus-out events and lets every event through.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    //! The watched widget gained (true) or lost (false) the keyboard focus.
    void focusEvent(bool focus);
};
