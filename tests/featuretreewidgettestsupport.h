#pragma once

// What the tests of the view, the delegate and the widget share: a small
// camera with one feature of every kind, and ways to reach its rows.

#include "featuretreetestsupport.h"

#include "featuretree/featuretreeview.h"
#include "featuretree/ifeaturetreemodelextension.h"
#include "parameters/iadvancedparameteraccess.h"

#include <QApplication>
#include <QDeadlineTimer>

namespace TreeTest {

//! One category "Controls" with a feature of each kind, and a Guru one.
inline QByteArray everyKindCamera()
{
    return cameraJson(R"(
        { "name": "Root", "type": "Category", "children": ["Controls"] },
        { "name": "Controls", "displayName": "Controls", "type": "Category", "children":
            ["Gain", "Exposure", "Width", "Offset", "Mode", "Flag", "Go", "Label", "Secret", "Fixed"] },
        { "name": "Gain", "displayName": "Gain", "type": "Float", "value": 1.5, "min": 0, "max": 10, "representation": "Logarithmic" },
        { "name": "Exposure", "displayName": "Exposure", "type": "Float", "value": 100, "min": 10, "max": 1000,
          "representation": "Linear", "alias": true },
        { "name": "Width", "displayName": "Width", "type": "Integer", "value": 64, "min": 16, "max": 1024, "inc": 16,
          "representation": "Linear" },
        { "name": "Offset", "displayName": "Offset", "type": "Integer", "value": 0, "min": 0, "max": 100, "representation": "HexNumber" },
        { "name": "Mode", "displayName": "Mode", "type": "Enumeration", "value": "Auto",
          "entries": [ { "value": "Auto", "numeric": 0 }, { "value": "Manual", "numeric": 1 } ] },
        { "name": "Flag", "displayName": "Flag", "type": "Boolean", "value": false },
        { "name": "Go", "displayName": "Go", "type": "Command" },
        { "name": "Label", "displayName": "Label", "type": "String", "value": "hello" },
        { "name": "Secret", "displayName": "Secret", "type": "Integer", "value": 3, "min": 0, "max": 9, "visibility": "Guru",
          "representation": "Linear" },
        { "name": "Fixed", "displayName": "Fixed", "type": "Integer", "value": 7, "min": 7, "max": 7, "access": "RO",
          "representation": "Linear" }
    )");
}

inline QString cameraFeature(const char* name)
{
    return QStringLiteral("@CameraDevice/") + QLatin1String(name);
}

//! Imposes a property ("AccessMode", "Visibility") on a feature of the device.
inline void impose(
    const QSharedPointer<Simulation::SimulatedDevice>& device, const char* name, const char* key, const char* value)
{
    device->nodeMap(QStringLiteral("@CameraDevice"))
        ->getParameter(cameraFeature(name))
        ->advancedAccess()
        ->setProperty(QLatin1String(key), QLatin1String(value));
}

//! Lets the device's queued change signals arrive, and frees what was deleted later.
inline void deliver()
{
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    // A test function runs outside any event loop, where processEvents() never
    // runs deferred deletes: every editor the view closed would stay alive to
    // the end of the test, as an application's event loop would not let it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

//! Lets the views open the editors they keep for later turns of the event
//! loop. After a change that brings many rows at once (an expansion, a
//! search, inserted rows) a view opens the editors of the rows in sight at
//! once and the others in short slices of the event loop. Whatever must hold
//! "once the events are processed" holds when this returns true; false if
//! some view still had editors waiting after five minutes (a slow machine
//! under load, a sanitizer build).
inline bool letEditorsOpen()
{
    QDeadlineTimer deadline(5 * 60 * 1000);
    for (;;) {
        bool waiting = false;
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget* widget : widgets) {
            auto* view = qobject_cast<FeatureTreeView*>(widget);
            waiting = waiting || (view && view->hasEditorsToOpen());
        }
        if (!waiting)
            return true;
        if (deadline.hasExpired())
            return false;
        QCoreApplication::processEvents();
    }
}

//! The view's proxy index of a feature in the given column.
inline QModelIndex viewIndex(FeatureTreeView& view, const QString& fullName, int column)
{
    return view.getFeatureExtension()->findItemByFullName(fullName, nullptr, column);
}

//! Expands every ancestor of the feature's row, top first.
inline void expandTo(QTreeView& view, const QModelIndex& index)
{
    QList<QModelIndex> chain;
    for (QModelIndex parent = index.parent(); parent.isValid(); parent = parent.parent())
        chain.prepend(parent);
    for (const QModelIndex& parent : chain)
        view.expand(parent.sibling(parent.row(), 0));
}

//! Counts the messages of at least the given severity that reach the handler while it is installed.
class MessageCounter
{
public:
    explicit MessageCounter(QtMsgType least = QtDebugMsg)
    {
        s_least = least;
        s_count = 0;
        s_previous = qInstallMessageHandler(&MessageCounter::handler);
    }
    ~MessageCounter() { qInstallMessageHandler(s_previous); }
    MessageCounter(const MessageCounter&) = delete;
    MessageCounter& operator=(const MessageCounter&) = delete;
    static int count() { return s_count; }

private:
    static int severity(QtMsgType type)
    {
        switch (type) {
        case QtDebugMsg:
            return 0;
        case QtInfoMsg:
            return 1;
        case QtWarningMsg:
            return 2;
        case QtCriticalMsg:
            return 3;
        case QtFatalMsg:
            return 4;
        }
        return 0;
    }
    static void handler(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (severity(type) >= severity(s_least))
            ++s_count;
        if (s_previous)
            s_previous(type, context, text);
    }
    static inline int s_count = 0;
    static inline QtMsgType s_least = QtDebugMsg;
    static inline QtMessageHandler s_previous = nullptr;
};

//! Expands every category one by one, as a user's clicks would, so that the
//! view's expanded() signal runs for each and the editors below it open.
inline void expandEveryCategory(QTreeView* view, const QModelIndex& parent)
{
    QAbstractItemModel* model = view->model();
    const int rows = model->rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex child = model->index(row, 0, parent);
        if (model->hasChildren(child)) {
            view->setExpanded(child, true);
            expandEveryCategory(view, child);
        }
    }
}

//! Counts the pixels of the image that have exactly this colour.
inline int countPixels(const QImage& image, const QColor& colour)
{
    const QRgb wanted = colour.rgb();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if ((image.pixel(x, y) & 0xffffff) == (wanted & 0xffffff))
                ++count;
    return count;
}

} // namespace TreeTest
