/*!
 * \file featuretree/signalblocker.h
 * SignalBlocker, a scope guard that blocks an object's signals.
 */
#pragma once

#include "zarvexviewercomponents_export.h"

class QObject;

/*!
 * Scope guard: blocks an object's signals for its lifetime and then restores
 * whatever blocking state the object had before. A null object is allowed
 * and ignored. Unlike QSignalBlocker, the guard is neither movable nor
 * copyable: it is meant for one scope only.
 */
class ZVC_EXPORT SignalBlocker
{
public:
    //! Blocks the signals of object, which may be null.
    explicit SignalBlocker(QObject* object);
    //! Restores the object's former blocking state.
    ~SignalBlocker();

    //! Not copyable: one guard, one scope.
    SignalBlocker(const SignalBlocker&) = delete;
    //! Not copyable: one guard, one scope.
    SignalBlocker& operator=(const SignalBlocker&) = delete;

private:
    QObject* m_object; // not owned
    bool m_previouslyBlocked;
};
