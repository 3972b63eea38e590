#pragma once

// What the feature tree tests share: small simulated cameras described in the
// test itself, a watch on the global error queue, and the model tester with
// the few reports that the model's design makes on purpose.

#include "featuretree/featuretreeitem.h"
#include "featuretree/featuretreemodel.h"
#include "messages/asyncerrorqueue.h"
#include "simulateddevice.h"

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QMutex>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

namespace TreeTest {

// ---- simulated cameras ------------------------------------------------------

//! A device document around the given node maps, each "{ "name": ..., "features": [...] }".
inline QByteArray deviceJson(const QByteArray& nodeMaps)
{
    return QByteArray(R"({ "format": "zarvex-simulated-device", "version": 1, "vendor": "Zarvex",
                           "model": "Test", "serialNumber": "1", "transportLayerType": "GEV",
                           "nodeMaps": [)")
        + nodeMaps + QByteArray("] }");
}

//! A device with one node map "@CameraDevice" holding the given features.
inline QByteArray cameraJson(const QByteArray& features)
{
    return deviceJson(QByteArray(R"({ "name": "@CameraDevice", "features": [)") + features + QByteArray("] }"));
}

//! Builds a device; on refusal it gives null and prints why, so the test's QVERIFY says what went wrong.
inline QSharedPointer<Simulation::SimulatedDevice> makeDevice(const QByteArray& json)
{
    QString error;
    QSharedPointer<Simulation::SimulatedDevice> device = Simulation::SimulatedDevice::fromJson(json, &error);
    if (!device)
        qWarning("device description refused: %s", qPrintable(error));
    return device;
}

//! Adds the device's "@CameraDevice" node map to a model (or proxy), shown as "Camera".
template <typename Model> inline void addCamera(Model& model, const QSharedPointer<Simulation::SimulatedDevice>& device)
{
    model.addParameterCollection(device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("Camera"),
        QStringLiteral("@CameraDevice"), false);
}

//! The item behind a model index.
inline FeatureTreeItem* itemAt(const QModelIndex& index)
{
    return static_cast<FeatureTreeItem*>(index.internalPointer());
}

//! The index of the direct child of parent whose full name is fullName, or an invalid index.
inline QModelIndex childByFullName(const QAbstractItemModel& model, const QModelIndex& parent, const QString& fullName)
{
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (index.data(FeatureTreeItem::FullNameRole).toString() == fullName)
            return index;
    }
    return QModelIndex();
}

//! How many connections a signal of an object has, through QObject::receivers().
class ReceiverCount : public QObject
{
public:
    static int of(const QObject* object, const char* signal)
    {
        int (QObject::*const receiversOf)(const char*) const = &ReceiverCount::receivers;
        return (object->*receiversOf)(signal);
    }
};

// ---- the global error queue -------------------------------------------------

//! Records what the global error queue hands out; the queue is emptied when the watch starts.
class ErrorQueueWatch
{
public:
    ErrorQueueWatch()
        : m_spy(GetTheGlobalAsyncErrorQueue(),
            SIGNAL(displayError(AsyncErrorQueue::ErrorSeverity, QString, QString, QWidget*)))
    {
        GetTheGlobalAsyncErrorQueue()->clear();
        m_spy.clear();
    }

    //! Lets queued entries come out, then gives how many did.
    int settle()
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        return m_spy.count();
    }
    QString text(int i) const { return m_spy.at(i).at(1).toString(); }
    QString details(int i) const { return m_spy.at(i).at(2).toString(); }
    int severity(int i) const { return m_spy.at(i).at(0).toInt(); }

private:
    QSignalSpy m_spy;
};

// ---- the model tester -------------------------------------------------------

/*!
 * Reports of QAbstractItemModelTester that the model makes by design. Each
 * names the tester's check (the text of the failed statement, as the tester
 * prints it) and why the model does what it does.
 */
enum class Excuse {
    /*
     * Check "childIndex != childIndex1" in parent(), and in checkChildren()
     * "model->parent(index) == parent" with its "Inconsistent parent()"
     * report, for a parent in column 1 only. rowCount() gives the children of
     * the parent's item in any column, and index() takes that item whatever
     * the parent's column, so row 0 below column 1 is the same item as below
     * column 0, and its parent() is the column-0 index. Views only ask below
     * column 0.
     */
    ChildrenInEveryColumn,
    /*
     * Check "flags == Qt::ItemIsDropEnabled || flags == 0" in
     * nonDestructiveBasicTest(). flags() of the invalid index is
     * Qt::ItemIsEnabled: the empty area of the tree is enabled like the rows.
     */
    RootFlags,
    /*
     * Check "topLeft.isValid()" / "bottomRight.isValid()" in dataChanged().
     * CreateFavoritesRoot() and the search help row announce a change of the
     * invisible root, whose index is the invalid one, so that views
     * reconsider the top level after the favourites root came in.
     */
    RootDataChanged,
    /*
     * Check "c.last == model->data(model->index(start - 1, 0, c.parent))"
     * (and the matching c.next check) in rowsInserted(). The search help
     * line is announced as row 1 of the top level but placed at row 0, above
     * the favourites root; it is made once per model, and the rows after it
     * are shifted exactly as announced.
     */
    SearchHelpRow,
};

/*!
 * The model as a tree view sees it: children only below column 0, and no
 * index outside rowCount() and columnCount(). A view never asks for more, so
 * the tester attached to this proxy can walk the whole built tree even where
 * the model answers questions that no view asks in its own way: it gives an
 * index for any column once the row exists, and the same children below
 * every column (Excuse::ChildrenInEveryColumn).
 */
class ViewLikeProxy : public QIdentityProxyModel
{
public:
    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override
    {
        if (parent.column() > 0)
            return QModelIndex();
        return QIdentityProxyModel::index(row, column, parent);
    }
    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.column() > 0 ? 0 : QIdentityProxyModel::rowCount(parent);
    }
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.column() > 0 ? false : QIdentityProxyModel::hasChildren(parent);
    }
};

/*!
 * Collects the reports of QAbstractItemModelTester in Warning mode (category
 * "qt.modeltest") for as long as it lives, instead of letting them print;
 * every other message goes on to the handler that was installed before.
 */
class ModelTesterReports
{
public:
    ModelTesterReports()
    {
        {
            QMutexLocker lock(&mutex());
            reports().clear();
        }
        m_previous = qInstallMessageHandler(&ModelTesterReports::handler);
        previousHandler() = m_previous;
    }
    ~ModelTesterReports() { qInstallMessageHandler(m_previous); }

    ModelTesterReports(const ModelTesterReports&) = delete;
    ModelTesterReports& operator=(const ModelTesterReports&) = delete;

    //! Every report so far, excused or not; empties the list.
    static QStringList takeAll()
    {
        QMutexLocker lock(&mutex());
        QStringList all;
        all.swap(reports());
        return all;
    }

    /*!
     * Every report so far, empties the list. The tester tells an inconsistent
     * parent() in several messages, a header and then indented lines: they
     * come as one report, since they stand or fall together.
     */
    static QStringList takeGrouped()
    {
        QStringList grouped;
        for (const QString& report : takeAll()) {
            if (report.startsWith(QLatin1String("    ")) && !grouped.isEmpty()
                && grouped.last().startsWith(QLatin1String("Inconsistent parent()")))
                grouped.last() += QLatin1Char('\n') + report;
            else
                grouped << report;
        }
        return grouped;
    }

    //! The reports that excused() doesn't cover; empties the list. ZVC_DUMP_MODELTEST prints every report.
    template <typename Excused> static QStringList unexcused(Excused excused)
    {
        const bool dump = qEnvironmentVariableIsSet("ZVC_DUMP_MODELTEST");
        QStringList result;
        for (const QString& report : takeGrouped()) {
            const bool isExcused = excused(report);
            if (dump)
                qInfo("model tester%s: %s", isExcused ? " (excused)" : "", qPrintable(report));
            if (!isExcused)
                result << report;
        }
        return result;
    }

private:
    static void handler(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (context.category && qstrcmp(context.category, "qt.modeltest") == 0) {
            if (type != QtDebugMsg && type != QtInfoMsg) {
                QMutexLocker lock(&mutex());
                reports().append(text);
            }
            return;
        }
        if (QtMessageHandler previous = previousHandler())
            previous(type, context, text);
    }

    static QMutex& mutex()
    {
        static QMutex m;
        return m;
    }
    static QStringList& reports()
    {
        static QStringList r;
        return r;
    }
    static QtMessageHandler& previousHandler()
    {
        static QtMessageHandler h = nullptr;
        return h;
    }

    QtMessageHandler m_previous = nullptr;
};

/*!
 * Attaches QAbstractItemModelTester to a model, once directly and once
 * through a ViewLikeProxy. The direct tester stops before its walk of the
 * tree, at the report about the children of column 1; the second walks the whole built tree
 * (which fills every category it meets) and checks parent(), data(), flags
 * and every insertion, removal and layout change in depth.
 *
 * Reports come as "qt.modeltest" warnings; they are collected here instead of
 * being printed, and verify() fails on every one that isn't excused.
 */
class ModelCheck
{
public:
    ModelCheck(QAbstractItemModel* model, QList<Excuse> excuses)
        : m_excuses(std::move(excuses))
    {
        m_proxy.setSourceModel(model);
        m_direct.reset(new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::Warning));
        m_throughProxy.reset(
            new QAbstractItemModelTester(&m_proxy, QAbstractItemModelTester::FailureReportingMode::Warning));
    }

    ~ModelCheck()
    {
        m_throughProxy.reset();
        m_direct.reset();
        m_proxy.setSourceModel(nullptr);
    }

    ModelCheck(const ModelCheck&) = delete;
    ModelCheck& operator=(const ModelCheck&) = delete;

    //! Reports that no excuse covers; empties the list.
    QStringList unexcused()
    {
        return ModelTesterReports::unexcused([this](const QString& report) { return isExcused(report); });
    }

    //! Every report so far, excused or not; empties the list.
    static QStringList takeAll() { return ModelTesterReports::takeAll(); }

private:
    bool isExcused(const QString& report) const
    {
        for (Excuse excuse : m_excuses) {
            switch (excuse) {
            case Excuse::ChildrenInEveryColumn:
                if (report.contains(QLatin1String("FAIL! childIndex != childIndex1")))
                    return true;
                if (report.contains(QRegularExpression(QStringLiteral("exp\\. parent= QModelIndex\\(\\d+,1,")))
                    || report.contains(
                        QRegularExpression(QStringLiteral("Expected \\(parent\\) QModelIndex\\(\\d+,1,"))))
                    return true;
                break;
            case Excuse::RootFlags:
                if (report.contains(QLatin1String("FAIL! flags == Qt::ItemIsDropEnabled || flags == 0")))
                    return true;
                break;
            case Excuse::RootDataChanged:
                if (report.contains(QLatin1String("FAIL! topLeft.isValid()"))
                    || report.contains(QLatin1String("FAIL! bottomRight.isValid()"))
                    || report.contains(QLatin1String("topLeft.parent()")))
                    return true;
                break;
            case Excuse::SearchHelpRow:
                if (report.contains(QLatin1String("c.last")) || report.contains(QLatin1String("c.next")))
                    return true;
                break;
            }
        }
        return false;
    }

    ModelTesterReports m_reports; // installed before the testers report anything
    QList<Excuse> m_excuses;
    ViewLikeProxy m_proxy;
    std::unique_ptr<QAbstractItemModelTester> m_direct;
    std::unique_ptr<QAbstractItemModelTester> m_throughProxy;
};

} // namespace TreeTest

//! Fails the test on every model tester report that the check doesn't excuse.
#define VERIFY_MODEL_CHECK(check)                                                                                      \
    do {                                                                                                               \
        const QStringList reports_ = (check).unexcused();                                                              \
        QVERIFY2(reports_.isEmpty(), qPrintable(reports_.join(QLatin1Char('\n'))));                                    \
    } while (false)
