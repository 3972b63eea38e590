#pragma once

// What the editor tests share: a small camera with one feature of each kind
// an editor needs, the editor's input built from it, and a record of the
// lines the library logs.

#include "featuretree/abstractitemeditor.h"
#include "featuretreetestsupport.h"

#include <QMutex>
#include <QPair>
#include <QtTest>

namespace EditorTest {

//! Features for the editors, in the node map "@CameraDevice".
inline QByteArray editorCameraJson()
{
    return TreeTest::cameraJson(R"(
        { "name": "Root", "type": "Category", "children": ["Flag", "Mode", "Start", "Count"] },
        { "name": "Flag", "type": "Boolean", "value": true },
        { "name": "FlagRO", "type": "Boolean", "access": "RO", "value": true },
        { "name": "Lock", "type": "Boolean", "value": false },
        { "name": "FlagLocked", "type": "Boolean", "writableWhen": "!Lock", "value": true },
        { "name": "Mode", "type": "Enumeration", "value": "Timed",
          "entries": [ { "value": "Timed", "displayName": "Timed Mode" },
                       { "value": "Width", "displayName": "Trigger Width" },
                       { "value": "Legacy", "displayName": "Legacy", "implementedWhen": "0" } ] },
        { "name": "ModeLegacy", "type": "Enumeration", "value": "Legacy",
          "entries": [ { "value": "Timed", "displayName": "Timed Mode" },
                       { "value": "Width", "displayName": "Trigger Width" },
                       { "value": "Legacy", "displayName": "Legacy", "implementedWhen": "0" } ] },
        { "name": "ModeWO", "type": "Enumeration", "access": "WO", "value": "Width",
          "entries": [ { "value": "Timed", "displayName": "Timed Mode" },
                       { "value": "Width", "displayName": "Trigger Width" } ] },
        { "name": "Start", "type": "Command", "duration": 200 },
        { "name": "Count", "type": "Integer", "value": 7, "min": 0, "max": 100 },
        { "name": "Big", "type": "Integer", "representation": "Linear", "value": 5000000000,
          "min": 0, "max": 1099511627776 },
        { "name": "Hex", "type": "Integer", "representation": "HexNumber", "value": 255, "min": -1, "max": 255 },
        { "name": "Address", "type": "Integer", "representation": "IPV4Address", "value": 3232235777 },
        { "name": "Mac", "type": "Integer", "representation": "MACAddress", "value": 20015998343868 },
        { "name": "BoolInt", "type": "Integer", "representation": "Boolean", "value": 1, "min": 0, "max": 1 },
        { "name": "Hidden", "type": "Integer", "access": "WO", "value": 3, "min": 0, "max": 10 },
        { "name": "Gain", "type": "Float", "value": 1.5, "min": 0.0, "max": "GainLimit", "inc": 0.5 },
        { "name": "GainLimit", "type": "Float", "value": 24.0, "min": 1.0, "max": 48.0 },
        { "name": "Level", "type": "Float", "precision": 0, "value": 50.0, "min": 0.0, "max": 100.0, "inc": 1.0 },
        { "name": "Ratio", "type": "Float", "precision": 3, "value": 2.5, "min": 0.0, "max": 10.0 },
        { "name": "Distance", "type": "Float", "precision": 1, "value": 0.0, "min": -1000000000000.0,
          "max": 1000000000000.0, "inc": 0.5 },
        { "name": "ExposureTime", "type": "Float", "representation": "Logarithmic", "alias": true, "precision": 1,
          "value": 5000.0, "min": 20.0, "max": 1000000.0 },
        { "name": "GainLog", "type": "Float", "representation": "Logarithmic", "alias": true, "precision": 1,
          "value": 10.0, "min": 1.0, "max": 1000.0 },
        { "name": "ExposureDelay", "type": "Float", "representation": "Linear", "alias": true, "precision": 1,
          "value": 100.0, "min": 0.0, "max": "ExposureLimit", "inc": 0.5 },
        { "name": "ExposureLimit", "type": "Float", "value": 1000.0, "min": 1.0, "max": 1000.0 },
        { "name": "ExposureFromZero", "type": "Float", "representation": "Logarithmic", "alias": true,
          "precision": 0, "value": 10.0, "min": 0.0, "max": 1000.0 },
        { "name": "HiddenFloat", "type": "Float", "access": "WO", "value": 1.0, "min": 0.0, "max": 2.0 }
    )");
}

//! The editor's input for a feature of the device: the live parameter and its current snapshot.
inline AbstractItemEditor::EditorData editorDataOf(
    const QSharedPointer<Simulation::SimulatedDevice>& device, const QString& shortName)
{
    const auto nodeMap = device->nodeMap(QStringLiteral("@CameraDevice"));
    AbstractItemEditor::EditorData data;
    data.node = nodeMap->getParameter(QStringLiteral("@CameraDevice/") + shortName);
    data.data = data.node ? data.node->getParameterData() : nullptr;
    return data;
}

//! Hands every new snapshot of the editor's parameter to the editor, as the tree item does.
template <typename Editor>
inline void follow(Editor* editor, const QSharedPointer<ParameterCollection::IParameter>& node)
{
    QObject::connect(node.data(), &ParameterCollection::IParameter::parameterDataChangedDecoupled, editor,
        [editor, node](QSharedPointer<const ParameterCollection::ParameterData> snapshot) {
            editor->setEditorData({ node, snapshot });
        });
}

//! Lets the device deliver its queued change signals.
inline void settle()
{
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

/*!
 * Records every line logged in the library's category "default" for as long
 * as it lives, and passes each on to the handler before it, so that
 * QTest::ignoreMessage still sees them.
 */
class LogRecord
{
public:
    LogRecord()
    {
        lines().clear();
        m_previous = qInstallMessageHandler(&LogRecord::handler);
        previous() = m_previous;
    }
    ~LogRecord() { qInstallMessageHandler(m_previous); }
    LogRecord(const LogRecord&) = delete;
    LogRecord& operator=(const LogRecord&) = delete;

    //! Lines of the given type so far.
    QStringList of(QtMsgType type) const
    {
        QStringList result;
        for (const auto& line : lines())
            if (line.first == type)
                result << line.second;
        return result;
    }
    int count() const { return lines().size(); }
    QStringList all() const
    {
        QStringList result;
        for (const auto& line : lines())
            result << line.second;
        return result;
    }

private:
    static void handler(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (context.category && qstrcmp(context.category, "default") == 0)
            lines().append(qMakePair(type, text));
        if (QtMessageHandler handler = previous())
            handler(type, context, text);
    }
    static QList<QPair<QtMsgType, QString>>& lines()
    {
        static QList<QPair<QtMsgType, QString>> l;
        return l;
    }
    static QtMessageHandler& previous()
    {
        static QtMessageHandler h = nullptr;
        return h;
    }

    QtMessageHandler m_previous = nullptr;
};

//! The second line of the logging pattern, as a pattern for QTest::ignoreMessage.
inline QRegularExpression secondLine(const char* function, int faultKind)
{
    if (faultKind == int(Simulation::FaultKind::NonStdException))
        return QRegularExpression(
            QStringLiteral("^%1: Unspecified exception occurred\\.$").arg(QLatin1String(function)));
    return QRegularExpression(QStringLiteral("^%1 : +Exception occurred:\\n").arg(QLatin1String(function)));
}

//! The second line for a std::exception whose text begins with description (any text if empty).
inline QRegularExpression exceptionLine(const char* function, const QString& description = QString())
{
    return QRegularExpression(QStringLiteral("^%1 : +Exception occurred:\\n +").arg(QLatin1String(function))
        + QRegularExpression::escape(description));
}

/*!
 * Rows of the columns "kind" and "operation" (both int): each kind of fault
 * on each of the operations, named after both.
 */
inline void addFaultRows(const QList<QPair<QString, Simulation::Operation>>& operations)
{
    const int kinds[] = { int(Simulation::FaultKind::GenICam), int(Simulation::FaultKind::StdException),
        int(Simulation::FaultKind::NonStdException) };
    const char* const kindNames[] = { "GenICam", "std::exception", "non-standard" };
    for (const auto& operation : operations)
        for (int k = 0; k < 3; ++k)
            QTest::newRow(qPrintable(QStringLiteral("%1, %2").arg(operation.first, QLatin1String(kindNames[k]))))
                << kinds[k] << int(operation.second);
}

//! The three kinds of fault as data rows, with their names.
inline void addFaultKindRows(const char* prefix = "")
{
    QTest::newRow(qPrintable(QStringLiteral("%1GenICam").arg(QLatin1String(prefix))))
        << int(Simulation::FaultKind::GenICam);
    QTest::newRow(qPrintable(QStringLiteral("%1std::exception").arg(QLatin1String(prefix))))
        << int(Simulation::FaultKind::StdException);
    QTest::newRow(qPrintable(QStringLiteral("%1non-standard").arg(QLatin1String(prefix))))
        << int(Simulation::FaultKind::NonStdException);
}

} // namespace EditorTest
