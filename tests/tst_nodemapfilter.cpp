#include "featuretree/nodemapfilter.h"
#include "messages/exceptionlogging.h"
#include "parameters/genericexception.h"
#include "parameters/iadvancedparameteraccess.h"
#include "parameters/ibaseinfo.h"
#include "parameters/iparameter.h"
#include "parameters/iparametercollection.h"
#include "parameters/parameterdata.h"
#include "simulateddevice.h"

#include <QDir>
#include <QDomDocument>
#include <QDomElement>
#include <QElapsedTimer>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QtTest>

#include <stdexcept>

#include <sys/stat.h>
#include <sys/types.h>

namespace {

// ---- messages ---------------------------------------------------------------

struct Message
{
    QtMsgType type;
    QString text;
};

/*!
 * Records every message while alive and hands it on to the handler before
 * it, so that QTest::ignoreMessage keeps working. Also checks that each
 * message went to the category "default" without file, line or function.
 */
class MessageCapture
{
public:
    MessageCapture()
    {
        s_messages.clear();
        s_badContexts.clear();
        s_forward = true;
        s_previous = qInstallMessageHandler(&MessageCapture::handler);
    }
    ~MessageCapture() { qInstallMessageHandler(s_previous); }
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    static QList<Message> messages() { return s_messages; }
    static QStringList badContexts() { return s_badContexts; }
    static void clear() { s_messages.clear(); }

    //! The text that ExceptionLogging::logException writes for e, without passing it on.
    static QString causeLine(const std::exception& e)
    {
        const int before = s_messages.size();
        s_forward = false;
        ExceptionLogging::logException("processElement", e);
        s_forward = true;
        const QString text = s_messages.size() > before ? s_messages.takeLast().text : QString();
        return text;
    }

private:
    static void handler(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        s_messages.append({ type, text });
        if (qstrcmp(context.category, "default") != 0 || context.file || context.line || context.function)
            s_badContexts.append(text);
        if (s_forward && s_previous)
            s_previous(type, context, text);
    }
    static QList<Message> s_messages;
    static QStringList s_badContexts;
    static bool s_forward;
    static QtMessageHandler s_previous;
};
QList<Message> MessageCapture::s_messages;
QStringList MessageCapture::s_badContexts;
bool MessageCapture::s_forward = true;
QtMessageHandler MessageCapture::s_previous = nullptr;

QString typeName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        return QStringLiteral("fatal");
    case QtInfoMsg:
        return QStringLiteral("info");
    }
    return QString();
}

// ---- fakes of the parameter layer ---------------------------------------------

enum class Failure { None, Std, GenICam, Other };

void throwFailure(Failure failure, const char* what)
{
    switch (failure) {
    case Failure::None:
        return;
    case Failure::Std:
        throw std::runtime_error(what);
    case Failure::GenICam:
        throw GenICam::GenericException(what, __FILE__, __LINE__);
    case Failure::Other:
        throw 42;
    }
}

class FakeParameter;

class FakeAccess : public ParameterCollection::IAdvancedParameterAccess
{
public:
    explicit FakeAccess(FakeParameter* parameter)
        : m_parameter(parameter)
    {
    }
    QString getProperty(QString) const override { return QString(); }
    QString getProperty(QString, QString defaultValue) const override { return defaultValue; }
    void setProperty(QString key, QString value) override;

private:
    FakeParameter* m_parameter;
};

/*!
 * A parameter that records every setProperty in the shared call log, keeps
 * the imposed properties, and throws on request.
 */
class FakeParameter : public ParameterCollection::IParameter
{
public:
    FakeParameter(const QString& name, QStringList* log)
        : m_name(name)
        , m_log(log)
        , m_access(new FakeAccess(this))
    {
    }

    void setValueFromString(QString) override { }
    bool isZombie() const override { return zombie; }
    bool isWritable() const override { return true; }
    bool isImposable() const override { return imposable; }
    GenApi::EVisibility getVisibility() const override { return GenApi::Beginner; }
    int getType() const override { return ParameterCollection::TypeInteger; }
    QString getFullName() const override { return QStringLiteral("@Fake/") + m_name; }
    QString getName() const override
    {
        throwFailure(nameFailure, "no name");
        return m_name;
    }
    QSharedPointer<ParameterCollection::IAdvancedParameterAccess> advancedAccess() const override
    {
        if (withoutAccess)
            return QSharedPointer<ParameterCollection::IAdvancedParameterAccess>();
        return m_access;
    }
    QSharedPointer<const ParameterCollection::ParameterData> getParameterData() const override { return nullptr; }

    void onSetProperty(const QString& key, const QString& value)
    {
        m_log->append(QStringLiteral("set %1 %2=%3").arg(m_name, key, value));
        const Failure failure = failures.value(key, Failure::None);
        throwFailure(failure, qPrintable(key + QStringLiteral(" refused")));
        properties[key] = value;
    }

    bool zombie = false;
    bool imposable = false;
    bool withoutAccess = false;
    Failure nameFailure = Failure::None;
    QMap<QString, Failure> failures; //!< by property key
    QMap<QString, QString> properties; //!< what was imposed, by key

private:
    QString m_name;
    QStringList* m_log;
    QSharedPointer<FakeAccess> m_access;
};

void FakeAccess::setProperty(QString key, QString value)
{
    m_parameter->onSetProperty(key, value);
}

/*!
 * A node map of fake parameters. By default it holds every name that it is
 * asked for, so that the call log shows exactly which file was applied;
 * with holdsEverything false only the added ones exist and the others give
 * null (or, with zombiesForUnknown, a zombie that isn't imposable).
 */
class FakeCollection : public ParameterCollection::IParameterCollection
{
public:
    QSharedPointer<ParameterCollection::IParameter> getParameter(QString fullName) override
    {
        log.append(QStringLiteral("get ") + fullName);
        if (throwingNames.contains(fullName))
            throw std::runtime_error("look-up failed");
        if (!m_parameters.contains(fullName)) {
            if (zombiesForUnknown) {
                auto zombie = QSharedPointer<FakeParameter>::create(fullName, &log);
                zombie->zombie = true;
                return zombie;
            }
            if (!holdsEverything)
                return nullptr;
            add(fullName);
        }
        return m_parameters.value(fullName);
    }
    bool hasParameter(QString fullName) const override { return m_parameters.contains(fullName); }
    QList<QString> getChildNames(QString, bool, bool) const override { return {}; }
    void refreshAll() override { }
    void poll(qint64) override { }

    QSharedPointer<FakeParameter> add(const QString& name)
    {
        auto parameter = QSharedPointer<FakeParameter>::create(name, &log);
        m_parameters.insert(name, parameter);
        return parameter;
    }
    QSharedPointer<FakeParameter> parameter(const QString& name) const { return m_parameters.value(name); }

    bool holdsEverything = true;
    bool zombiesForUnknown = false;
    QStringList throwingNames;
    QStringList log;

private:
    QMap<QString, QSharedPointer<FakeParameter>> m_parameters;
};

class FakeBaseInfo : public Plugin::CameraPool::IBaseInfo
{
public:
    explicit FakeBaseInfo(const QString& type)
        : m_type(type)
    {
    }
    QString getTLType() const override { return m_type; }

private:
    QString m_type;
};

QSharedPointer<Plugin::CameraPool::IBaseInfo> camera(const QString& type)
{
    return QSharedPointer<FakeBaseInfo>::create(type);
}

// ---- filter contents ------------------------------------------------------------

//! One item of a filter: an empty Visibility or AccessMode means that the item lacks it.
struct Row
{
    QString name;
    QString visibility;
    QString accessMode;
};
using Rows = QVector<Row>;

QByteArray filterXml(const Rows& rows)
{
    QByteArray xml = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Filter>\n";
    for (const Row& row : rows) {
        xml += "    <Feature>\n        <Name>" + row.name.toUtf8() + "</Name>\n";
        if (!row.visibility.isEmpty())
            xml += "        <Visibility>" + row.visibility.toUtf8() + "</Visibility>\n";
        if (!row.accessMode.isEmpty())
            xml += "        <AccessMode>" + row.accessMode.toUtf8() + "</AccessMode>\n";
        xml += "    </Feature>\n";
    }
    xml += "</Filter>\n";
    return xml;
}

//! A filter of one item that only says where it comes from.
QByteArray markerFilter(const QString& marker)
{
    return filterXml({ { marker, QStringLiteral("Guru"), QString() } });
}

//! The calls that applying rows to a collection holding every name gives.
QStringList callsFor(const Rows& rows)
{
    QStringList calls;
    for (const Row& row : rows) {
        calls << QStringLiteral("get ") + row.name;
        if (!row.visibility.isEmpty())
            calls << QStringLiteral("set %1 Visibility=%2").arg(row.name, row.visibility);
        if (!row.accessMode.isEmpty())
            calls << QStringLiteral("set %1 AccessMode=%2").arg(row.name, row.accessMode);
    }
    return calls;
}

QStringList markerCalls(const QString& marker)
{
    return callsFor({ { marker, QStringLiteral("Guru"), QString() } });
}

const QString Invisible = QStringLiteral("Invisible");
const QString Expert = QStringLiteral("Expert");
const QString Guru = QStringLiteral("Guru");
const QString RO = QStringLiteral("RO");
const QString None;

//! The eight shipped filters, row by row.
QMap<QString, Rows> shippedFilters()
{
    QMap<QString, Rows> filters;
    filters[QStringLiteral("Default_Filter.xml")] = {
        { "AcquisitionMode", Invisible, None },
        { "AcquisitionStart", Invisible, None },
        { "AcquisitionAbort", Invisible, None },
        { "AcquisitionStop", Invisible, None },
        { "TriggerSelector", Expert, None },
        { "TriggerMode", Expert, None },
        { "TriggerSoftware", Expert, None },
        { "TriggerSource", Expert, None },
        { "TriggerActivation", Expert, None },
        { "ExposureMode", Expert, None },
        { "ExposureTimeAbs", Expert, None },
        { "ExposureTimeBaseAbs", Expert, None },
        { "ExposureTimeBaseAbsEnable", Expert, None },
        { "TimerControls", Expert, None },
        { "LUTControls", Expert, None },
        { "LUTValueAll", Invisible, None },
        { "DeviceScanType", Expert, RO },
        { "DeviceReset", Guru, None },
        { "DigitalIO", Expert, None },
        { "ChunkData", Guru, None },
        { "ChunkDataStreams", Guru, None },
        { "EventsGeneration", Guru, None },
        { "UserSets", Expert, None },
        { "TransportLayer", Expert, None },
        { "GevInterfaceSelector", None, RO },
        { "GevStreamChannelSelector", Invisible, None },
        { "GevSCDA", Invisible, None },
        { "GevCurrentIPConfiguration", None, RO },
        { "GevPersistentIPAddress", None, RO },
        { "GevPersistentSubnetMask", None, RO },
        { "GevPersistentDefaultGateway", None, RO },
        { "GevSCPInterfaceIndex", None, RO },
        { "GevSCPHostPort", None, RO },
        { "GevSCPSFireTestPacket", Invisible, None },
        { "GevSCPSBigEndian", None, RO },
        { "GevGVSPExtendedIDMode", None, None },
        { "FileAccess", Invisible, None },
        { "FileAccessControl", Invisible, None },
        { "ChunkDataControl", Guru, None },
    };
    filters[QStringLiteral("U3V_CameraDevice_Filter.xml")] = {
        { "AcquisitionMode", Invisible, None },
        { "AcquisitionStart", Invisible, None },
        { "AcquisitionStop", Invisible, None },
        { "AcquisitionAbort", Invisible, None },
        { "TriggerSelector", Expert, None },
        { "TriggerMode", Expert, None },
        { "TriggerSoftware", Expert, None },
        { "TriggerSource", Expert, None },
        { "TriggerActivation", Expert, None },
        { "ExposureMode", Expert, None },
        { "ExposureTimeAbs", Expert, None },
        { "ExposureTimeBaseAbs", Expert, None },
        { "ExposureTimeBaseAbsEnable", Expert, None },
        { "TimerControls", Expert, None },
        { "LUTControls", Expert, None },
        { "LUTValueAll", Invisible, None },
        { "DeviceScanType", Expert, RO },
        { "DeviceReset", Guru, None },
        { "DigitalIO", Expert, None },
        { "ChunkDataStreams", Guru, None },
        { "EventsGeneration", Guru, None },
        { "UserSets", Expert, None },
        { "FileAccess", Invisible, None },
        { "FileAccessControl", Invisible, None },
        { "ChunkDataControl", Guru, None },
        { "ChunkData", Invisible, None },
    };
    filters[QStringLiteral("GEV_DeviceTransportLayer_Filter.xml")] = {
        { "Root", Guru, None },
        { "ReadTimeout", Guru, None },
        { "WriteTimeout", Guru, None },
        { "HeartbeatTimeout", Guru, None },
    };
    filters[QStringLiteral("U3V_DeviceTransportLayer_Filter.xml")] = {
        { "MigrationModeEnable", Invisible, None },
    };
    filters[QStringLiteral("GEV_StreamGrabber_Filter.xml")] = {
        { "Root", Guru, None },
        { "MaxNumBuffer", Invisible, None },
        { "MaxBufferSize", Invisible, None },
    };
    filters[QStringLiteral("CamEmu_StreamGrabber_Filter.xml")]
        = filters[QStringLiteral("GEV_StreamGrabber_Filter.xml")];
    filters[QStringLiteral("IIDC_StreamGrabber_Filter.xml")] = {
        { "Root", Invisible, None },
    };
    filters[QStringLiteral("ImageFormatConverter_Filter.xml")] = {
        { "InconvertibleEdgeHandling", Invisible, None },
        { "OutputPaddingX", Invisible, None },
    };
    return filters;
}

QStringList shippedCalls(const QString& fileName)
{
    return callsFor(shippedFilters().value(fileName));
}

const QString ResourceDirectory = QStringLiteral(":/zarvexviewercomponents/Resources/");

QStringList allTransportTypes()
{
    using namespace Plugin::CameraPool;
    return { TLTypeGigE, TLTypeUSB, TLType1394, TLTypeZCON, TLTypeCL, TLTypeCamEmu, TLTypeIPCam, TLTypeCXP,
        TLTypeCustom };
}

/*!
 * Every file name that a test of this executable may place beside the
 * application. A run that was killed may have left some behind; they are
 * removed before the first test. Files with names that other tests could
 * also look for (U3V_CameraDevice_Filter.xml, Default_Filter.xml, ...) are
 * only there while a test of this executable runs; the CTest resource lock
 * "zvc_beside_application_dir" keeps other tests that take it away meanwhile.
 */
QStringList besideFileNames()
{
    return {
        "U3V_CameraDevice_Filter.xml",
        "CameraDevice_Filter.xml",
        "Default_Filter.xml",
        "GEV_Filter.xml",
        "Filter.xml",
        "GEV_NmfTwoAt_Filter.xml",
        "GEV_Nmf2Mid_Filter.xml",
        "GEV_NmfMid_Filter.xml",
        "GEV_Nmf2Mid3x_Filter.xml",
        "GEV_NmfWide_Filter.xml",
        "GEV_NmfItems_Filter.xml",
        "GEV_NmfLimits_Filter.xml",
        "GEV_NmfHostile_Filter.xml",
        "GEV_NmfSpecial_Filter.xml",
        "NmfSpecial_Filter.xml",
    };
}

// ---- the simulated camera --------------------------------------------------------

GenApi::EVisibility visibilityOf(const QString& text)
{
    if (text == QLatin1String("Beginner"))
        return GenApi::Beginner;
    if (text == QLatin1String("Expert"))
        return GenApi::Expert;
    if (text == QLatin1String("Guru"))
        return GenApi::Guru;
    if (text == QLatin1String("Invisible"))
        return GenApi::Invisible;
    return GenApi::_UndefinedVisibility;
}

GenApi::EAccessMode accessModeOf(const QString& text)
{
    const QStringList modes { "NI", "NA", "WO", "RO", "RW" };
    const int index = modes.indexOf(text);
    return index < 0 ? GenApi::_UndefinedAccesMode : GenApi::EAccessMode(index);
}

//! What can be seen of one feature from outside.
struct FeatureState
{
    bool present = false; //!< looked up as a live feature (or an imposable zombie)
    QString error; //!< what a read threw, if it did
    int type = -1;
    int visibility = -1;
    bool readable = false;
    bool writable = false;
    bool implemented = false;
    int accessMode = -1;
    QString valueText;
    int reportedVisibility = -1; //!< getVisibility()
    bool reportedWritable = false; //!< isWritable()

    QString toString() const
    {
        if (!present)
            return QStringLiteral("absent");
        if (!error.isEmpty())
            return QStringLiteral("throws ") + error;
        return QStringLiteral("type=%1 visibility=%2 r=%3 w=%4 i=%5 access=%6 value=\"%7\" getVisibility=%8 "
                              "isWritable=%9")
            .arg(type)
            .arg(visibility)
            .arg(readable)
            .arg(writable)
            .arg(implemented)
            .arg(accessMode)
            .arg(valueText)
            .arg(reportedVisibility)
            .arg(reportedWritable);
    }
};

FeatureState stateOf(const QSharedPointer<ParameterCollection::IParameter>& parameter)
{
    FeatureState state;
    if (!parameter || (parameter->isZombie() && !parameter->isImposable()))
        return state;
    state.present = true;
    try {
        const QSharedPointer<const ParameterCollection::ParameterData> data = parameter->getParameterData();
        if (data) {
            state.type = data->type;
            state.visibility = data->visibility;
            state.readable = data->readable;
            state.writable = data->writable;
            state.implemented = data->implemented;
            state.valueText = data->valueText;
        }
        state.accessMode = ParameterCollection::ParameterData::accessModeOf(data);
        state.reportedVisibility = parameter->getVisibility();
        state.reportedWritable = parameter->isWritable();
    } catch (const std::exception& e) {
        state.error = QString::fromUtf8(e.what());
    } catch (...) {
        state.error = QStringLiteral("something");
    }
    return state;
}

/*!
 * The full names of every feature of a node map: the tree below Root, walked
 * as the tree model does, and every feature that the device's description
 * names for that node map, including those that no category lists and those
 * that only exist on other transport types.
 */
QStringList allFeatureNames(const Simulation::SimulatedDevice& device, const QString& nodeMapName)
{
    const QSharedPointer<Simulation::SimulatedNodeMap> map = device.nodeMap(nodeMapName);
    QStringList names;
    QSet<QString> seen;
    QStringList pending { nodeMapName + QStringLiteral("/Root") };
    while (!pending.isEmpty()) {
        const QString name = pending.takeFirst();
        if (seen.contains(name))
            continue;
        seen.insert(name);
        names << name;
        const QSharedPointer<ParameterCollection::IParameter> parameter = map->getParameter(name);
        if (parameter && !parameter->isZombie() && parameter->getType() == ParameterCollection::TypeCategory)
            pending << map->getChildNames(name, false, true);
    }
    for (const Simulation::NodeMapDescription& description : device.description().nodeMaps) {
        if (description.name != nodeMapName)
            continue;
        for (const Simulation::FeatureDescription& feature : description.features) {
            const QString name = nodeMapName + QLatin1Char('/') + feature.name;
            if (!seen.contains(name)) {
                seen.insert(name);
                names << name;
            }
        }
    }
    return names;
}

//! Records every decoupled change signal of the parameters it watches.
class SignalRecorder : public QObject
{
    Q_OBJECT

public:
    void watch(const QString& name, const QSharedPointer<ParameterCollection::IParameter>& parameter)
    {
        m_parameters.insert(parameter.data(), name);
        m_keepAlive << parameter;
        QVERIFY(connect(parameter.data(),
            SIGNAL(parameterDataChangedDecoupled(QSharedPointer<const ParameterCollection::ParameterData>)), this,
            SLOT(onChanged(QSharedPointer<const ParameterCollection::ParameterData>))));
    }

    QMap<QString, QSharedPointer<const ParameterCollection::ParameterData>> last; //!< last snapshot by name
    QStringList order;

private slots:
    void onChanged(QSharedPointer<const ParameterCollection::ParameterData> data)
    {
        const QString name = m_parameters.value(sender());
        order << name;
        last.insert(name, data);
    }

private:
    QHash<const QObject*, QString> m_parameters;
    QList<QSharedPointer<ParameterCollection::IParameter>> m_keepAlive;
};

} // namespace

class TestNodeMapFilter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    // the shipped files
    void shippedFilesAreCompiledIn();
    void shippedFileContents_data();
    void shippedFileContents();
    void streamGrabberFiltersAreIdentical();

    // choosing the file
    void shippedFileIsChosen_data();
    void shippedFileIsChosen();
    void imageFormatConverterServesEveryType_data();
    void imageFormatConverterServesEveryType();
    void emptyStemTriesTypeThenDefault_data();
    void emptyStemTriesTypeThenDefault();
    void leadingAtSignsAllGo_data();
    void leadingAtSignsAllGo();
    void onlyTrailingDigitsGo_data();
    void onlyTrailingDigitsGo();
    void fileBesideApplicationOverridesResource();
    void moreSpecificNameWinsWhereverItLies();
    void malformedFileBesideApplicationEndsTheSearch_data();
    void malformedFileBesideApplicationEndsTheSearch();
    void createDocumentParsesTheChosenFile();
    void fileChangedOnDiskIsReadAgain();
    void changingACreatedDocumentChangesNoLaterOne();
    void nullInfoGivesNothing();
    void nullCollectionGivesNothing();

    // items
    void visibilityRefusedKeepsAccessMode_data();
    void visibilityRefusedKeepsAccessMode();
    void accessModeRefused_data();
    void accessModeRefused();
    void anyRootAndItemNamesWork();
    void undeclaredPrefixIsPartOfTheName();
    void firstOfTwoElementsWins();
    void visibilityBeforeAccessMode();
    void laterItemWinsPerProperty();
    void returnsTrueWhenEveryItemFailed();
    void itemWithoutNameIsSkipped();
    void itemWithEmptyNameIsSkipped_data();
    void itemWithEmptyNameIsSkipped();
    void unknownOrZombieFeatureIsSkippedSilently();
    void imposableZombieIsFiltered();
    void textsArePassedAsTheyStand();
    void elementNamesMatchExactly();
    void failingNameFetchStillLogsTwoLines();
    void parameterWithoutAdvancedAccess();
    void lookUpExceptionReachesTheCaller();
    void processElementDirectly();

    // hostile files
    void fileAtTheSizeLimitIsRead();
    void fileAboveTheSizeLimitIsRefused();
    void documentTypeDeclarationIsRefused_data();
    void documentTypeDeclarationIsRefused();
    void nestingAtTheLimitIsRead();
    void nestingAboveTheLimitIsRefused_data();
    void nestingAboveTheLimitIsRefused();
    void binaryFileIsAParseFailure_data();
    void binaryFileIsAParseFailure();
    void specialFilesAreNotFilterFiles_data();
    void specialFilesAreNotFilterFiles();
    void manyItemsAreProcessed();

    // the default simulated camera
    void simulatedCameraHasTheExpectedNodeMaps();
    void shippedFilterOnSimulatedCamera_data();
    void shippedFilterOnSimulatedCamera();
    void refusedVisibilityOnSimulatedCamera();

private:
    QString besidePath(const QString& fileName) const { return m_besideDirectory + fileName; }
    void writeBeside(const QString& fileName, const QByteArray& content);
    void expect(QtMsgType type, const QString& text);
    void expectPattern(QtMsgType type, const QString& pattern);
    void expectParseFailure(const QString& path, const QString& reason);
    void expectCause(Failure failure, const QString& what);
    void verifyMessages();

    QString m_besideDirectory;
    bool m_createdBesideDirectory = false;
    QStringList m_written;
    QScopedPointer<MessageCapture> m_capture;
    QList<Message> m_expected;
    QList<QRegularExpression> m_expectedPatterns; //!< parallel to m_expected; valid where a text isn't exact
};

void TestNodeMapFilter::initTestCase()
{
    m_besideDirectory = QCoreApplication::applicationDirPath() + QStringLiteral("/../share/zarvex/viewer/");
    if (!QDir(m_besideDirectory).exists()) {
        QVERIFY(QDir().mkpath(m_besideDirectory));
        m_createdBesideDirectory = true;
    }
    for (const QString& fileName : besideFileNames()) {
        const QString path = besidePath(fileName);
        const QFileInfo info(path);
        if (info.isDir())
            QDir(path).removeRecursively();
        else if (info.exists() || info.isSymLink())
            QFile::remove(path);
        QVERIFY2(!QFileInfo::exists(path), qPrintable(path));
    }
}

void TestNodeMapFilter::init()
{
    m_expected.clear();
    m_expectedPatterns.clear();
    m_capture.reset(new MessageCapture);
}

void TestNodeMapFilter::cleanup()
{
    m_capture.reset();
    for (const QString& path : qAsConst(m_written)) {
        const QFileInfo info(path);
        if (info.isDir() && !info.isSymLink())
            QDir(path).removeRecursively();
        else
            QFile::remove(path);
    }
    m_written.clear();
}

void TestNodeMapFilter::cleanupTestCase()
{
    if (m_createdBesideDirectory) {
        // Removes viewer/, zarvex/ and share/ as long as they are empty.
        QDir().rmpath(m_besideDirectory);
    }
}

void TestNodeMapFilter::writeBeside(const QString& fileName, const QByteArray& content)
{
    const QString path = besidePath(fileName);
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly | QIODevice::Truncate), qPrintable(path));
    QCOMPARE(file.write(content), qint64(content.size()));
    m_written << path;
}

void TestNodeMapFilter::expect(QtMsgType type, const QString& text)
{
    QTest::ignoreMessage(type, qPrintable(text));
    m_expected.append({ type, text });
    m_expectedPatterns.append(QRegularExpression());
}

void TestNodeMapFilter::expectPattern(QtMsgType type, const QString& pattern)
{
    const QRegularExpression expression(pattern);
    QVERIFY(expression.isValid());
    QTest::ignoreMessage(type, expression);
    m_expected.append({ type, QString() });
    m_expectedPatterns.append(expression);
}

//! A parse failure of path, whose reason is a text of the parser and so only matched by pattern.
void TestNodeMapFilter::expectParseFailure(const QString& path, const QString& reason)
{
    const QRegularExpression pattern(QStringLiteral("^createDocument: failed to parse file ")
        + QRegularExpression::escape(path) + QStringLiteral(": ") + reason + QStringLiteral(" \\(-?\\d+, -?\\d+\\)$"));
    QVERIFY(pattern.isValid());
    QTest::ignoreMessage(QtDebugMsg, pattern);
    m_expected.append({ QtDebugMsg, QString() });
    m_expectedPatterns.append(pattern);
}

//! The second warning after a refused setProperty.
void TestNodeMapFilter::expectCause(Failure failure, const QString& what)
{
    switch (failure) {
    case Failure::None:
        break;
    case Failure::Std:
        expect(QtWarningMsg, MessageCapture::causeLine(std::runtime_error(what.toStdString())));
        break;
    case Failure::GenICam:
        expect(
            QtWarningMsg, MessageCapture::causeLine(GenICam::GenericException(qPrintable(what), __FILE__, __LINE__)));
        break;
    case Failure::Other:
        expect(QtWarningMsg, QStringLiteral("processElement: Unspecified exception occurred."));
        break;
    }
}

//! Exactly the expected messages, in order, at their levels, and nothing else.
void TestNodeMapFilter::verifyMessages()
{
    const QList<Message> got = MessageCapture::messages();
    QStringList gotTexts;
    for (const Message& message : got)
        gotTexts << typeName(message.type) + QStringLiteral(": ") + message.text;
    QStringList expectedTexts;
    for (int i = 0; i < m_expected.size(); ++i)
        expectedTexts << typeName(m_expected.at(i).type) + QStringLiteral(": ")
                + (m_expectedPatterns.at(i).isValid() ? m_expectedPatterns.at(i).pattern() : m_expected.at(i).text);
    const QString both = QStringLiteral("got:\n  ") + gotTexts.join(QStringLiteral("\n  "))
        + QStringLiteral("\nexpected:\n  ") + expectedTexts.join(QStringLiteral("\n  "));
    QVERIFY2(got.size() == m_expected.size(), qPrintable(both));
    for (int i = 0; i < got.size(); ++i) {
        QVERIFY2(got.at(i).type == m_expected.at(i).type, qPrintable(both));
        if (m_expectedPatterns.at(i).isValid())
            QVERIFY2(m_expectedPatterns.at(i).match(got.at(i).text).hasMatch(), qPrintable(both));
        else
            QVERIFY2(got.at(i).text == m_expected.at(i).text, qPrintable(both));
    }
    QVERIFY2(MessageCapture::badContexts().isEmpty(), qPrintable(MessageCapture::badContexts().join('\n')));
}

// ---- the shipped files -------------------------------------------------------------

void TestNodeMapFilter::shippedFilesAreCompiledIn()
{
    QStringList expected = shippedFilters().keys();
    expected.sort();
    QStringList present = QDir(ResourceDirectory).entryList({ QStringLiteral("*_Filter.xml") }, QDir::Files);
    present.sort();
    QCOMPARE(present, expected);
    for (const QString& fileName : expected)
        QVERIFY2(QFile(ResourceDirectory + fileName).open(QIODevice::ReadOnly), qPrintable(fileName));
}

void TestNodeMapFilter::shippedFileContents_data()
{
    QTest::addColumn<QString>("fileName");
    for (const QString& fileName : shippedFilters().keys())
        QTest::newRow(qPrintable(fileName)) << fileName;
}

void TestNodeMapFilter::shippedFileContents()
{
    QFETCH(QString, fileName);
    QFile file(ResourceDirectory + fileName);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray content = file.readAll();
    QVERIFY(content.startsWith("<?xml version=\"1.0\" encoding=\"utf-8\"?>"));

    QDomDocument document;
    QString error;
    QVERIFY2(document.setContent(content, &error), qPrintable(error));
    const QDomElement root = document.documentElement();
    QCOMPARE(root.tagName(), QStringLiteral("Filter"));

    Rows rows;
    for (QDomElement item = root.firstChildElement(); !item.isNull(); item = item.nextSiblingElement()) {
        QCOMPARE(item.tagName(), QStringLiteral("Feature"));
        QStringList tags;
        for (QDomElement child = item.firstChildElement(); !child.isNull(); child = child.nextSiblingElement()) {
            tags << child.tagName();
            QVERIFY(child.firstChildElement().isNull());
        }
        Row row { item.firstChildElement(QStringLiteral("Name")).text(),
            item.firstChildElement(QStringLiteral("Visibility")).text(),
            item.firstChildElement(QStringLiteral("AccessMode")).text() };
        QStringList expectedTags { QStringLiteral("Name") };
        if (!row.visibility.isEmpty())
            expectedTags << QStringLiteral("Visibility");
        if (!row.accessMode.isEmpty())
            expectedTags << QStringLiteral("AccessMode");
        QCOMPARE(tags, expectedTags);
        rows << row;
    }
    const Rows expected = shippedFilters().value(fileName);
    QCOMPARE(rows.size(), expected.size());
    for (int i = 0; i < rows.size(); ++i) {
        QCOMPARE(rows.at(i).name, expected.at(i).name);
        QCOMPARE(rows.at(i).visibility, expected.at(i).visibility);
        QCOMPARE(rows.at(i).accessMode, expected.at(i).accessMode);
    }
}

void TestNodeMapFilter::streamGrabberFiltersAreIdentical()
{
    QFile gev(ResourceDirectory + QStringLiteral("GEV_StreamGrabber_Filter.xml"));
    QFile camEmu(ResourceDirectory + QStringLiteral("CamEmu_StreamGrabber_Filter.xml"));
    QVERIFY(gev.open(QIODevice::ReadOnly));
    QVERIFY(camEmu.open(QIODevice::ReadOnly));
    QCOMPARE(gev.readAll(), camEmu.readAll());
}

// ---- choosing the file ----------------------------------------------------------------

void TestNodeMapFilter::shippedFileIsChosen_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("nodeMapName");
    QTest::addColumn<QString>("fileName");

    const QString defaultFilter = QStringLiteral("Default_Filter.xml");
    const QString gevStreamGrabber = QStringLiteral("GEV_StreamGrabber_Filter.xml");

    QTest::newRow("U3V camera device") << "U3V"
                                       << "@CameraDevice"
                                       << "U3V_CameraDevice_Filter.xml";
    QTest::newRow("GEV camera device has no file of its own") << "GEV"
                                                              << "@CameraDevice" << defaultFilter;
    QTest::newRow("ZCON camera device falls through") << "ZCON"
                                                      << "@CameraDevice" << defaultFilter;
    QTest::newRow("GEV transport layer") << "GEV"
                                         << "@DeviceTransportLayer"
                                         << "GEV_DeviceTransportLayer_Filter.xml";
    QTest::newRow("U3V transport layer") << "U3V"
                                         << "@DeviceTransportLayer"
                                         << "U3V_DeviceTransportLayer_Filter.xml";
    QTest::newRow("CXP transport layer") << "CXP"
                                         << "@DeviceTransportLayer" << defaultFilter;
    QTest::newRow("GEV stream grabber 0") << "GEV"
                                          << "@StreamGrabber0" << gevStreamGrabber;
    QTest::newRow("GEV stream grabber 12, two digits") << "GEV"
                                                       << "@StreamGrabber12" << gevStreamGrabber;
    QTest::newRow("GEV stream grabber 1000") << "GEV"
                                             << "@StreamGrabber1000" << gevStreamGrabber;
    QTest::newRow("GEV stream grabber without number") << "GEV"
                                                       << "@StreamGrabber" << gevStreamGrabber;
    QTest::newRow("CamEmu stream grabber") << "CamEmu"
                                           << "@StreamGrabber0"
                                           << "CamEmu_StreamGrabber_Filter.xml";
    QTest::newRow("IIDC stream grabber") << "IIDC"
                                         << "@StreamGrabber3"
                                         << "IIDC_StreamGrabber_Filter.xml";
    QTest::newRow("U3V stream grabber") << "U3V"
                                        << "@StreamGrabber0" << defaultFilter;
    QTest::newRow("type compared case-sensitively") << "gev"
                                                    << "@StreamGrabber0" << defaultFilter;
    QTest::newRow("unknown node map") << "GEV"
                                      << "@EventGrabber" << defaultFilter;
    QTest::newRow("Arabic-Indic digit") << "GEV" << QStringLiteral("@StreamGrabber\u0663") << gevStreamGrabber;
    QTest::newRow("fullwidth digits") << "GEV" << QStringLiteral("@StreamGrabber\uFF11\uFF12") << gevStreamGrabber;
    QTest::newRow("digit outside the BMP")
        << "GEV" << (QStringLiteral("@StreamGrabber") + QString::fromUcs4(U"\U0001D7D9")) << gevStreamGrabber;
    QTest::newRow("mixed digits") << "GEV" << QStringLiteral("@StreamGrabber1\u06F52") << gevStreamGrabber;
    QTest::newRow("superscript two is no decimal digit")
        << "GEV" << QStringLiteral("@StreamGrabber\u00B2") << defaultFilter;
    QTest::newRow("roman numeral is no decimal digit")
        << "GEV" << QStringLiteral("@StreamGrabber\u2160") << defaultFilter;
    QTest::newRow("trailing space keeps the digits") << "GEV"
                                                     << "@StreamGrabber0 " << defaultFilter;
}

void TestNodeMapFilter::shippedFileIsChosen()
{
    QFETCH(QString, type);
    QFETCH(QString, nodeMapName);
    QFETCH(QString, fileName);

    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(type), nodeMapName));
    QCOMPARE(collection->log, shippedCalls(fileName));
    verifyMessages();
}

void TestNodeMapFilter::imageFormatConverterServesEveryType_data()
{
    QTest::addColumn<QString>("type");
    for (const QString& type : allTransportTypes())
        QTest::newRow(qPrintable(type)) << type;
    QTest::newRow("empty type") << QString();
    QTest::newRow("unknown type") << QStringLiteral("Foo");
}

void TestNodeMapFilter::imageFormatConverterServesEveryType()
{
    QFETCH(QString, type);
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(type), QStringLiteral("@ImageFormatConverter")));
    QCOMPARE(collection->log, shippedCalls(QStringLiteral("ImageFormatConverter_Filter.xml")));
    verifyMessages();
}

void TestNodeMapFilter::emptyStemTriesTypeThenDefault_data()
{
    QTest::addColumn<QString>("nodeMapName");
    QTest::newRow("empty") << QString();
    QTest::newRow("empty, not null") << QString("");
    QTest::newRow("one at sign") << "@";
    QTest::newRow("at signs") << "@@@";
    QTest::newRow("at sign and digit") << "@0";
    QTest::newRow("at signs and digits") << "@@123";
    QTest::newRow("digits only") << "42";
    QTest::newRow("non-ASCII digits only") << QStringLiteral("@\u0663\u0664");
}

void TestNodeMapFilter::emptyStemTriesTypeThenDefault()
{
    QFETCH(QString, nodeMapName);
    const auto gev = camera(QStringLiteral("GEV"));

    // The first candidate is "GEV_Filter.xml".
    writeBeside(QStringLiteral("GEV_Filter.xml"), markerFilter(QStringLiteral("FromTypeOnly")));
    writeBeside(QStringLiteral("Filter.xml"), markerFilter(QStringLiteral("FromBareFilter")));
    auto first = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(first, gev, nodeMapName));
    QCOMPARE(first->log, markerCalls(QStringLiteral("FromTypeOnly")));

    // Without it the next one is Default_Filter.xml: "Filter.xml", the
    // stem-only candidate of an empty stem, is never tried.
    QVERIFY(QFile::remove(besidePath(QStringLiteral("GEV_Filter.xml"))));
    auto second = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(second, gev, nodeMapName));
    QCOMPARE(second->log, shippedCalls(QStringLiteral("Default_Filter.xml")));
    verifyMessages();
}

void TestNodeMapFilter::leadingAtSignsAllGo_data()
{
    QTest::addColumn<QString>("nodeMapName");
    QTest::addColumn<bool>("matches");
    QTest::newRow("one at sign") << "@NmfTwoAt" << true;
    QTest::newRow("two at signs") << "@@NmfTwoAt" << true;
    QTest::newRow("three at signs") << "@@@NmfTwoAt" << true;
    QTest::newRow("no at sign") << "NmfTwoAt" << true;
    QTest::newRow("two at signs and a digit") << "@@NmfTwoAt7" << true;
    QTest::newRow("other leading character stays") << "#NmfTwoAt" << false;
    QTest::newRow("at sign inside stays") << "@Nmf@TwoAt" << false;
    QTest::newRow("space before the at sign") << " @NmfTwoAt" << false;
}

void TestNodeMapFilter::leadingAtSignsAllGo()
{
    QFETCH(QString, nodeMapName);
    QFETCH(bool, matches);
    writeBeside(QStringLiteral("GEV_NmfTwoAt_Filter.xml"), markerFilter(QStringLiteral("TwoAtMarker")));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), nodeMapName));
    QCOMPARE(collection->log,
        matches ? markerCalls(QStringLiteral("TwoAtMarker")) : shippedCalls(QStringLiteral("Default_Filter.xml")));
    verifyMessages();
}

void TestNodeMapFilter::onlyTrailingDigitsGo_data()
{
    QTest::addColumn<QString>("nodeMapName");
    QTest::addColumn<QString>("marker");
    QTest::newRow("digit in the middle") << "@Nmf2Mid"
                                         << "Nmf2Mid";
    QTest::newRow("digit in the middle and at the end") << "@Nmf2Mid34"
                                                        << "Nmf2Mid";
    QTest::newRow("without the middle digit") << "@NmfMid7"
                                              << "NmfMid";
    QTest::newRow("non-ASCII digit at the end") << QStringLiteral("@Nmf2Mid\u0967") << "Nmf2Mid";
    QTest::newRow("digit, letter, digit at the end") << "@Nmf2Mid3x5"
                                                     << "Nmf2Mid3x";
}

void TestNodeMapFilter::onlyTrailingDigitsGo()
{
    QFETCH(QString, nodeMapName);
    QFETCH(QString, marker);
    writeBeside(QStringLiteral("GEV_Nmf2Mid_Filter.xml"), markerFilter(QStringLiteral("Nmf2Mid")));
    writeBeside(QStringLiteral("GEV_NmfMid_Filter.xml"), markerFilter(QStringLiteral("NmfMid")));
    writeBeside(QStringLiteral("GEV_Nmf2Mid3x_Filter.xml"), markerFilter(QStringLiteral("Nmf2Mid3x")));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), nodeMapName));
    QCOMPARE(collection->log, markerCalls(marker));
    verifyMessages();
}

void TestNodeMapFilter::fileBesideApplicationOverridesResource()
{
    writeBeside(QStringLiteral("U3V_CameraDevice_Filter.xml"), markerFilter(QStringLiteral("BesideU3V")));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("U3V")), QStringLiteral("@CameraDevice")));
    // The file replaces the resource as a whole: nothing of either shipped file.
    QCOMPARE(collection->log, markerCalls(QStringLiteral("BesideU3V")));
    verifyMessages();
}

void TestNodeMapFilter::moreSpecificNameWinsWhereverItLies()
{
    writeBeside(QStringLiteral("Default_Filter.xml"), markerFilter(QStringLiteral("BesideDefault")));

    // A Default_Filter.xml on disk does not displace a shipped U3V_CameraDevice_Filter.xml ...
    auto u3v = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(u3v, camera(QStringLiteral("U3V")), QStringLiteral("@CameraDevice")));
    QCOMPARE(u3v->log, shippedCalls(QStringLiteral("U3V_CameraDevice_Filter.xml")));

    // ... but does displace the shipped Default_Filter.xml.
    auto zcon = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(zcon, camera(QStringLiteral("ZCON")), QStringLiteral("@CameraDevice")));
    QCOMPARE(zcon->log, markerCalls(QStringLiteral("BesideDefault")));

    // The stem-only name on disk beats the shipped default, not the shipped type-specific file.
    writeBeside(QStringLiteral("CameraDevice_Filter.xml"), markerFilter(QStringLiteral("BesideCameraDevice")));
    auto gev = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(gev, camera(QStringLiteral("GEV")), QStringLiteral("@CameraDevice")));
    QCOMPARE(gev->log, markerCalls(QStringLiteral("BesideCameraDevice")));
    auto u3vAgain = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(u3vAgain, camera(QStringLiteral("U3V")), QStringLiteral("@CameraDevice")));
    QCOMPARE(u3vAgain->log, shippedCalls(QStringLiteral("U3V_CameraDevice_Filter.xml")));
    verifyMessages();
}

void TestNodeMapFilter::malformedFileBesideApplicationEndsTheSearch_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("fileName");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");

    const QByteArray mismatch = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<Filter>\n"
                                "<Feature><Name>AcquisitionMode</Name></Feature>\n"
                                "<Feature><Name>Width</Feature>\n</Filter>\n";
    QTest::newRow("U3V camera device, good resource of that name")
        << "U3V"
        << "U3V_CameraDevice_Filter.xml" << mismatch << 4 << 30;
    QTest::newRow("U3V camera device, unclosed document")
        << "U3V"
        << "U3V_CameraDevice_Filter.xml" << QByteArray("<Filter><Feature>") << 1 << 17;
    QTest::newRow("U3V camera device, empty file") << "U3V"
                                                   << "U3V_CameraDevice_Filter.xml" << QByteArray() << 1 << 0;
    QTest::newRow("GEV camera device, stem-only file") << "GEV"
                                                       << "CameraDevice_Filter.xml" << mismatch << 4 << 30;
    QTest::newRow("ZCON camera device, default file") << "ZCON"
                                                      << "Default_Filter.xml" << mismatch << 4 << 30;
}

void TestNodeMapFilter::malformedFileBesideApplicationEndsTheSearch()
{
    QFETCH(QString, type);
    QFETCH(QString, fileName);
    QFETCH(QByteArray, content);
    QFETCH(int, line);
    QFETCH(int, column);

    writeBeside(fileName, content);
    expectParseFailure(besidePath(fileName), QStringLiteral(".+"));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(!NodeMapFilter::applyFilter(collection, camera(type), QStringLiteral("@CameraDevice")));
    // Unfiltered: no later candidate, not even the good resource, was used.
    QCOMPARE(collection->log, QStringList());
    verifyMessages();
    const QString text = MessageCapture::messages().value(0).text;
    QVERIFY2(text.endsWith(QStringLiteral(" (%1, %2)").arg(line).arg(column)), qPrintable(text));
}

void TestNodeMapFilter::createDocumentParsesTheChosenFile()
{
    QDomDocument document;
    QVERIFY(NodeMapFilter::createDocument(document, camera(QStringLiteral("IIDC")), QStringLiteral("@StreamGrabber0")));
    QCOMPARE(document.documentElement().tagName(), QStringLiteral("Filter"));
    const QDomElement item = document.documentElement().firstChildElement();
    QCOMPARE(item.firstChildElement(QStringLiteral("Name")).text(), QStringLiteral("Root"));
    QCOMPARE(item.firstChildElement(QStringLiteral("Visibility")).text(), QStringLiteral("Invisible"));
    QVERIFY(item.nextSiblingElement().isNull());

    // Nothing is kept between calls: a file placed now is read by the next call.
    writeBeside(QStringLiteral("Default_Filter.xml"), markerFilter(QStringLiteral("ReadAfresh")));
    QDomDocument again;
    QVERIFY(NodeMapFilter::createDocument(again, camera(QStringLiteral("ZCON")), QStringLiteral("@CameraDevice")));
    QCOMPARE(again.documentElement().firstChildElement().firstChildElement(QStringLiteral("Name")).text(),
        QStringLiteral("ReadAfresh"));
    verifyMessages();
}

void TestNodeMapFilter::fileChangedOnDiskIsReadAgain()
{
    // The same bytes twice, then other bytes of the same length in the same
    // file, then another length: each tree gets what the file says at the
    // time it is added.
    const QByteArray guru = filterXml({ { "Gain", "Guru", None } });
    const QByteArray sameLength = filterXml({ { "Gain", "Gurx", None } });
    QCOMPARE(sameLength.size(), guru.size());
    const QList<QPair<QByteArray, QString>> steps {
        { guru, QStringLiteral("Guru") },
        { guru, QStringLiteral("Guru") },
        { sameLength, QStringLiteral("Gurx") },
        { filterXml({ { "Gain", "Expert", None } }), QStringLiteral("Expert") },
        { guru, QStringLiteral("Guru") },
    };
    for (const auto& step : steps) {
        writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"), step.first);
        auto collection = QSharedPointer<FakeCollection>::create();
        QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
        QCOMPARE(collection->log, QStringList({ "get Gain", "set Gain Visibility=" + step.second }));
    }
    verifyMessages();
}

void TestNodeMapFilter::changingACreatedDocumentChangesNoLaterOne()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"), filterXml({ { "Gain", "Guru", None } }));
    QDomDocument first;
    QVERIFY(NodeMapFilter::createDocument(first, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QDomElement name = first.documentElement().firstChildElement().firstChildElement(QStringLiteral("Name"));
    QCOMPARE(name.text(), QStringLiteral("Gain"));
    name.firstChild().setNodeValue(QStringLiteral("Changed"));
    first.documentElement().appendChild(first.createElement(QStringLiteral("Added")));

    QDomDocument second;
    QVERIFY(NodeMapFilter::createDocument(second, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    const QDomElement item = second.documentElement().firstChildElement();
    QCOMPARE(item.firstChildElement(QStringLiteral("Name")).text(), QStringLiteral("Gain"));
    QVERIFY(item.nextSiblingElement().isNull());

    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log, QStringList({ "get Gain", "set Gain Visibility=Guru" }));
    verifyMessages();
}

void TestNodeMapFilter::nullInfoGivesNothing()
{
    QDomDocument document;
    QVERIFY(!NodeMapFilter::createDocument(document, nullptr, QStringLiteral("@CameraDevice")));
    QVERIFY(document.documentElement().isNull());

    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(!NodeMapFilter::applyFilter(collection, nullptr, QStringLiteral("@CameraDevice")));
    QCOMPARE(collection->log, QStringList());
    verifyMessages();
}

void TestNodeMapFilter::nullCollectionGivesNothing()
{
    QVERIFY(!NodeMapFilter::applyFilter(nullptr, camera(QStringLiteral("U3V")), QStringLiteral("@CameraDevice")));
    QVERIFY(!NodeMapFilter::applyFilter(nullptr, nullptr, QStringLiteral("@CameraDevice")));
    // Not even the file is looked at: a malformed one would have been logged.
    writeBeside(QStringLiteral("U3V_CameraDevice_Filter.xml"), QByteArray("<broken"));
    QVERIFY(!NodeMapFilter::applyFilter(nullptr, camera(QStringLiteral("U3V")), QStringLiteral("@CameraDevice")));
    verifyMessages();
}

// ---- items ----------------------------------------------------------------------------

void TestNodeMapFilter::visibilityRefusedKeepsAccessMode_data()
{
    QTest::addColumn<int>("failure");
    QTest::newRow("std::exception") << int(Failure::Std);
    QTest::newRow("GenICam::GenericException") << int(Failure::GenICam);
    QTest::newRow("not a std::exception") << int(Failure::Other);
}

void TestNodeMapFilter::visibilityRefusedKeepsAccessMode()
{
    QFETCH(int, failure);
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        filterXml({ { "Refusing", "Guru", "RO" }, { "Next", "Expert", "RO" } }));
    auto collection = QSharedPointer<FakeCollection>::create();
    auto refusing = collection->add(QStringLiteral("Refusing"));
    refusing->properties[QStringLiteral("AccessMode")] = QStringLiteral("RW");
    refusing->failures[QStringLiteral("Visibility")] = Failure(failure);

    expect(QtWarningMsg, QStringLiteral("Failed to impose the visibility of node Refusing"));
    expectCause(Failure(failure), QStringLiteral("Visibility refused"));
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log,
        QStringList({ "get Refusing", "set Refusing Visibility=Guru", "get Next", "set Next Visibility=Expert",
            "set Next AccessMode=RO" }));
    QCOMPARE(refusing->properties.value(QStringLiteral("AccessMode")), QStringLiteral("RW"));
    QVERIFY(!refusing->properties.contains(QStringLiteral("Visibility")));
    verifyMessages();
}

void TestNodeMapFilter::accessModeRefused_data()
{
    visibilityRefusedKeepsAccessMode_data();
}

void TestNodeMapFilter::accessModeRefused()
{
    QFETCH(int, failure);
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        filterXml({ { "Refusing", "Guru", "RO" }, { "Next", "Expert", "RO" } }));
    auto collection = QSharedPointer<FakeCollection>::create();
    auto refusing = collection->add(QStringLiteral("Refusing"));
    refusing->failures[QStringLiteral("AccessMode")] = Failure(failure);

    expect(QtWarningMsg, QStringLiteral("Failed to impose the access mode of node Refusing"));
    expectCause(Failure(failure), QStringLiteral("AccessMode refused"));
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log,
        QStringList({ "get Refusing", "set Refusing Visibility=Guru", "set Refusing AccessMode=RO", "get Next",
            "set Next Visibility=Expert", "set Next AccessMode=RO" }));
    // The visibility imposed before stays.
    QCOMPARE(refusing->properties.value(QStringLiteral("Visibility")), QStringLiteral("Guru"));
    verifyMessages();
}

void TestNodeMapFilter::anyRootAndItemNamesWork()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        "<?xml version=\"1.0\"?>\n"
        "<!-- a comment before the root -->\n"
        "<Whatever kind=\"x\">\n"
        "  loose text\n"
        "  <Thing><Name>First</Name><Visibility>Expert</Visibility></Thing>\n"
        "  <!-- a comment between items -->\n"
        "  <?processing instruction?>\n"
        "  <![CDATA[ <Feature><Name>InCData</Name></Feature> ]]>\n"
        "  <Feature><Name>Second</Name><AccessMode>RO</AccessMode>\n"
        "    <Feature><Name>NestedItem</Name><Visibility>Guru</Visibility></Feature>\n"
        "  </Feature>\n"
        "  <x:Item xmlns:x=\"urn:x\"><Outer><Inner><Name>Deep</Name></Inner></Outer>"
        "<Visibility>Invisible</Visibility></x:Item>\n"
        "</Whatever>\n");
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    // A nested item is no item of its own: for the outer item its elements are
    // just descendants, and the outer one's Name and AccessMode come first.
    QCOMPARE(collection->log,
        QStringList({ "get First", "set First Visibility=Expert", "get Second", "set Second Visibility=Guru",
            "set Second AccessMode=RO", "get Deep", "set Deep Visibility=Invisible" }));
    verifyMessages();
}

void TestNodeMapFilter::undeclaredPrefixIsPartOfTheName()
{
    // Namespaces are not processed: a prefix nobody declared is no error, it
    // is just part of the tag. "p:Name" is therefore not "Name".
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
        "<Filter>\n"
        "  <N:ame/>\n"
        "  <y:Item><Name>Prefixed</Name><Visibility>Guru</Visibility></y:Item>\n"
        "  <Feature><p:Name>NotAName</p:Name><Name>Plain</Name><AccessMode>RO</AccessMode></Feature>\n"
        "</Filter>\n");
    // <N:ame/> is an item without a name.
    expect(QtDebugMsg, QStringLiteral("processElement: failed to get the name of a filter item"));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log,
        QStringList({ "get Prefixed", "set Prefixed Visibility=Guru", "get Plain", "set Plain AccessMode=RO" }));
    verifyMessages();
}

void TestNodeMapFilter::firstOfTwoElementsWins()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        "<Filter>\n"
        "  <Feature><Name>Two</Name><Visibility>Guru</Visibility><Visibility>Expert</Visibility></Feature>\n"
        // Document order, not depth: the nested one comes first.
        "  <Feature><Name>Three</Name><Wrap><Visibility>Invisible</Visibility></Wrap>"
        "<Visibility>Expert</Visibility></Feature>\n"
        "  <Feature><Name>Four</Name><Name>Five</Name><AccessMode>RO</AccessMode><AccessMode>RW</AccessMode>"
        "</Feature>\n"
        "</Filter>\n");
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log,
        QStringList({ "get Two", "set Two Visibility=Guru", "get Three", "set Three Visibility=Invisible", "get Four",
            "set Four AccessMode=RO" }));
    verifyMessages();
}

void TestNodeMapFilter::visibilityBeforeAccessMode()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        "<Filter><Feature><AccessMode>RO</AccessMode><Visibility>Guru</Visibility><Name>Reversed</Name></Feature>"
        "</Filter>");
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(
        collection->log, QStringList({ "get Reversed", "set Reversed Visibility=Guru", "set Reversed AccessMode=RO" }));
    verifyMessages();
}

void TestNodeMapFilter::laterItemWinsPerProperty()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        filterXml({ { "Twice", "Guru", "RO" }, { "Other", "Expert", None }, { "Twice", "Expert", None } }));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log,
        QStringList({ "get Twice", "set Twice Visibility=Guru", "set Twice AccessMode=RO", "get Other",
            "set Other Visibility=Expert", "get Twice", "set Twice Visibility=Expert" }));
    const auto twice = collection->parameter(QStringLiteral("Twice"));
    QCOMPARE(twice->properties.value(QStringLiteral("Visibility")), QStringLiteral("Expert"));
    QCOMPARE(twice->properties.value(QStringLiteral("AccessMode")), QStringLiteral("RO"));
    verifyMessages();
}

void TestNodeMapFilter::returnsTrueWhenEveryItemFailed()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        "<Filter>\n"
        "  <Feature><Visibility>Guru</Visibility></Feature>\n"
        "  <Feature><Name></Name><Visibility>Guru</Visibility></Feature>\n"
        "  <Feature><Name>Unknown</Name><Visibility>Guru</Visibility></Feature>\n"
        "  <Feature><Name>Refusing</Name><Visibility>Guru</Visibility><AccessMode>RO</AccessMode></Feature>\n"
        "  <Feature><Name>Stubborn</Name><AccessMode>RO</AccessMode></Feature>\n"
        "</Filter>\n");
    auto collection = QSharedPointer<FakeCollection>::create();
    collection->holdsEverything = false;
    collection->add(QStringLiteral("Refusing"))->failures[QStringLiteral("Visibility")] = Failure::Std;
    collection->add(QStringLiteral("Stubborn"))->failures[QStringLiteral("AccessMode")] = Failure::Other;

    expect(QtDebugMsg, QStringLiteral("processElement: failed to get the name of a filter item"));
    expect(QtDebugMsg, QStringLiteral("processElement: empty name found"));
    expect(QtWarningMsg, QStringLiteral("Failed to impose the visibility of node Refusing"));
    expectCause(Failure::Std, QStringLiteral("Visibility refused"));
    expect(QtWarningMsg, QStringLiteral("Failed to impose the access mode of node Stubborn"));
    expectCause(Failure::Other, QString());
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log,
        QStringList({ "get Unknown", "get Refusing", "set Refusing Visibility=Guru", "get Stubborn",
            "set Stubborn AccessMode=RO" }));
    verifyMessages();
}

void TestNodeMapFilter::itemWithoutNameIsSkipped()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        "<Filter><Feature><Visibility>Guru</Visibility><AccessMode>RO</AccessMode></Feature><Feature/>"
        "<Feature><Name>After</Name><Visibility>Expert</Visibility></Feature></Filter>");
    auto collection = QSharedPointer<FakeCollection>::create();
    expect(QtDebugMsg, QStringLiteral("processElement: failed to get the name of a filter item"));
    expect(QtDebugMsg, QStringLiteral("processElement: failed to get the name of a filter item"));
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log, QStringList({ "get After", "set After Visibility=Expert" }));
    verifyMessages();
}

void TestNodeMapFilter::itemWithEmptyNameIsSkipped_data()
{
    QTest::addColumn<QByteArray>("nameElement");
    QTest::newRow("empty element") << QByteArray("<Name></Name>");
    QTest::newRow("self-closing element") << QByteArray("<Name/>");
    QTest::newRow("only an empty child") << QByteArray("<Name><Sub/></Name>");
    QTest::newRow("only a comment") << QByteArray("<Name><!-- nothing --></Name>");
    QTest::newRow("empty name before a good one") << QByteArray("<Name/><Name>Good</Name>");
}

void TestNodeMapFilter::itemWithEmptyNameIsSkipped()
{
    QFETCH(QByteArray, nameElement);
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        "<Filter><Feature>" + nameElement
            + "<Visibility>Guru</Visibility></Feature>"
              "<Feature><Name>After</Name><Visibility>Expert</Visibility></Feature></Filter>");
    auto collection = QSharedPointer<FakeCollection>::create();
    expect(QtDebugMsg, QStringLiteral("processElement: empty name found"));
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log, QStringList({ "get After", "set After Visibility=Expert" }));
    verifyMessages();
}

void TestNodeMapFilter::unknownOrZombieFeatureIsSkippedSilently()
{
    const QByteArray xml = filterXml({ { "Missing", "Guru", "RO" }, { "Known", "Expert", None } });
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"), xml);

    // The collection gives null for a name it doesn't hold ...
    auto nulls = QSharedPointer<FakeCollection>::create();
    nulls->holdsEverything = false;
    nulls->add(QStringLiteral("Known"));
    QVERIFY(NodeMapFilter::applyFilter(nulls, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(nulls->log, QStringList({ "get Missing", "get Known", "set Known Visibility=Expert" }));

    // ... or a zombie that isn't imposable.
    auto zombies = QSharedPointer<FakeCollection>::create();
    zombies->holdsEverything = false;
    zombies->zombiesForUnknown = true;
    zombies->add(QStringLiteral("Known"));
    QVERIFY(NodeMapFilter::applyFilter(zombies, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(zombies->log, QStringList({ "get Missing", "get Known", "set Known Visibility=Expert" }));
    verifyMessages();
}

void TestNodeMapFilter::imposableZombieIsFiltered()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"), filterXml({ { "Ghost", "Guru", "RO" } }));
    auto collection = QSharedPointer<FakeCollection>::create();
    auto ghost = collection->add(QStringLiteral("Ghost"));
    ghost->zombie = true;
    ghost->imposable = true;
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log, QStringList({ "get Ghost", "set Ghost Visibility=Guru", "set Ghost AccessMode=RO" }));

    // A live parameter that calls itself imposable changes nothing either.
    auto live = QSharedPointer<FakeCollection>::create();
    live->add(QStringLiteral("Ghost"))->imposable = false;
    QVERIFY(NodeMapFilter::applyFilter(live, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(live->log, QStringList({ "get Ghost", "set Ghost Visibility=Guru", "set Ghost AccessMode=RO" }));
    verifyMessages();
}

void TestNodeMapFilter::textsArePassedAsTheyStand()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        "<Filter>"
        "<Feature><Name>@CameraDevice/Width</Name><Visibility> expert </Visibility>"
        "<AccessMode>Read&amp;Write</AccessMode></Feature>"
        "<Feature><Name>Caf\xc3\xa9 &#x3b1;</Name><Visibility></Visibility><AccessMode>ro</AccessMode></Feature>"
        "<Feature><Name>Split<b>Name</b></Name><Visibility>G<i>ur</i>u</Visibility></Feature>"
        "</Filter>");
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log,
        QStringList({ "get @CameraDevice/Width", "set @CameraDevice/Width Visibility= expert ",
            "set @CameraDevice/Width AccessMode=Read&Write", QStringLiteral("get Caf\u00e9 \u03b1"),
            QStringLiteral("set Caf\u00e9 \u03b1 Visibility="), QStringLiteral("set Caf\u00e9 \u03b1 AccessMode=ro"),
            "get SplitName", "set SplitName Visibility=Guru" }));
    verifyMessages();
}

void TestNodeMapFilter::elementNamesMatchExactly()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        "<Filter>"
        "<Feature><name>lower</name><NAME>upper</NAME><p:Name xmlns:p=\"urn:p\">prefixed</p:Name>"
        "<Visibility>Guru</Visibility></Feature>"
        "<Feature><Name>Exact</Name><visibility>Guru</visibility><Accessmode>RO</Accessmode>"
        "<AccessMode >RO</AccessMode ></Feature>"
        "</Filter>");
    auto collection = QSharedPointer<FakeCollection>::create();
    expect(QtDebugMsg, QStringLiteral("processElement: failed to get the name of a filter item"));
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log, QStringList({ "get Exact", "set Exact AccessMode=RO" }));
    verifyMessages();
}

void TestNodeMapFilter::failingNameFetchStillLogsTwoLines()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        filterXml({ { "Nameless", "Guru", "RO" }, { "Next", "Expert", None } }));
    auto collection = QSharedPointer<FakeCollection>::create();
    auto nameless = collection->add(QStringLiteral("Nameless"));
    nameless->failures[QStringLiteral("Visibility")] = Failure::GenICam;
    nameless->nameFailure = Failure::Other;
    expect(QtWarningMsg, QStringLiteral("Failed to retrieve a node's name"));
    expectCause(Failure::GenICam, QStringLiteral("Visibility refused"));
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    QCOMPARE(collection->log,
        QStringList({ "get Nameless", "set Nameless Visibility=Guru", "get Next", "set Next Visibility=Expert" }));
    verifyMessages();
}

void TestNodeMapFilter::parameterWithoutAdvancedAccess()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        filterXml({ { "Plain", None, "RO" }, { "Next", "Expert", None }, { "Nothing", None, None } }));
    auto collection = QSharedPointer<FakeCollection>::create();
    collection->add(QStringLiteral("Plain"))->withoutAccess = true;
    collection->add(QStringLiteral("Nothing"))->withoutAccess = true;
    expect(QtWarningMsg, QStringLiteral("Failed to impose the access mode of node Plain"));
    expect(QtWarningMsg, QStringLiteral("processElement: the parameter offers no advanced access."));
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")));
    // An item that imposes nothing never asks for the advanced access.
    QCOMPARE(collection->log, QStringList({ "get Plain", "get Next", "set Next Visibility=Expert", "get Nothing" }));
    verifyMessages();
}

void TestNodeMapFilter::lookUpExceptionReachesTheCaller()
{
    writeBeside(QStringLiteral("GEV_NmfItems_Filter.xml"),
        filterXml({ { "Before", "Guru", None }, { "Throwing", "Guru", None }, { "After", "Guru", None } }));
    auto collection = QSharedPointer<FakeCollection>::create();
    collection->throwingNames << QStringLiteral("Throwing");
    QVERIFY_EXCEPTION_THROWN(
        NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfItems")),
        std::runtime_error);
    QCOMPARE(collection->log, QStringList({ "get Before", "set Before Visibility=Guru", "get Throwing" }));
    verifyMessages();
}

void TestNodeMapFilter::processElementDirectly()
{
    QDomDocument document;
    QVERIFY(document.setContent(QByteArray("<Filter>"
                                           "<Feature><Name>Good</Name><Visibility>Guru</Visibility></Feature>"
                                           "<Feature><Name>Unknown</Name></Feature>"
                                           "<Feature><Name>Refusing</Name><AccessMode>RO</AccessMode></Feature>"
                                           "<Feature><Name>NoChange</Name></Feature>"
                                           "<Feature/>"
                                           "</Filter>")));
    auto collection = QSharedPointer<FakeCollection>::create();
    collection->holdsEverything = false;
    collection->add(QStringLiteral("Good"));
    collection->add(QStringLiteral("NoChange"));
    collection->add(QStringLiteral("Refusing"))->failures[QStringLiteral("AccessMode")] = Failure::Std;

    QDomElement item = document.documentElement().firstChildElement();
    QVERIFY(NodeMapFilter::processElement(item, collection));
    item = item.nextSiblingElement();
    QVERIFY(!NodeMapFilter::processElement(item, collection));
    item = item.nextSiblingElement();
    expect(QtWarningMsg, QStringLiteral("Failed to impose the access mode of node Refusing"));
    expectCause(Failure::Std, QStringLiteral("AccessMode refused"));
    QVERIFY(!NodeMapFilter::processElement(item, collection));
    item = item.nextSiblingElement();
    QVERIFY(NodeMapFilter::processElement(item, collection)); // legal, does nothing
    item = item.nextSiblingElement();
    expect(QtDebugMsg, QStringLiteral("processElement: failed to get the name of a filter item"));
    QVERIFY(!NodeMapFilter::processElement(item, collection));
    QVERIFY(!NodeMapFilter::processElement(item, nullptr));

    // The document element itself, given as an item, takes the first Name,
    // Visibility and AccessMode below it, each from wherever it is found.
    QDomElement root = document.documentElement();
    QVERIFY(NodeMapFilter::processElement(root, collection));
    QCOMPARE(collection->log,
        QStringList(
            { "get Good", "set Good Visibility=Guru", "get Unknown", "get Refusing", "set Refusing AccessMode=RO",
                "get NoChange", "get Good", "set Good Visibility=Guru", "set Good AccessMode=RO" }));
    verifyMessages();
}

// ---- hostile files --------------------------------------------------------------------

//! A valid filter with one item, padded with a comment to exactly size bytes.
static QByteArray paddedFilter(qint64 size)
{
    const QByteArray head = "<Filter><Feature><Name>Padded</Name><Visibility>Guru</Visibility></Feature><!--";
    const QByteArray tail = "--></Filter>";
    return head + QByteArray(int(size - head.size() - tail.size()), 'x') + tail;
}

void TestNodeMapFilter::fileAtTheSizeLimitIsRead()
{
    writeBeside(QStringLiteral("GEV_NmfLimits_Filter.xml"), paddedFilter(NodeMapFilter::MaximumFileSize));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfLimits")));
    QCOMPARE(collection->log, QStringList({ "get Padded", "set Padded Visibility=Guru" }));
    verifyMessages();
}

void TestNodeMapFilter::fileAboveTheSizeLimitIsRefused()
{
    writeBeside(QStringLiteral("GEV_NmfLimits_Filter.xml"), paddedFilter(NodeMapFilter::MaximumFileSize + 1));
    expect(QtDebugMsg,
        QStringLiteral("createDocument: failed to parse file %1: the file is larger than 1048576 bytes (0, 0)")
            .arg(besidePath(QStringLiteral("GEV_NmfLimits_Filter.xml"))));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(!NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfLimits")));
    QCOMPARE(collection->log, QStringList());
    verifyMessages();
}

void TestNodeMapFilter::documentTypeDeclarationIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");

    // One entity of 50 000 characters, referenced 20 000 times: a gigabyte of text.
    const QByteArray big(50000, 'A');
    QByteArray references;
    for (int i = 0; i < 20000; ++i)
        references += "&a;";
    QTest::newRow("quadratic blow-up") << "<?xml version=\"1.0\"?><!DOCTYPE Filter [<!ENTITY a \"" + big
            + "\">]><Filter><Feature><Name>" + references + "</Name></Feature></Filter>";

    QByteArray laughs = "<?xml version=\"1.0\"?>\n<!DOCTYPE Filter [\n<!ENTITY lol0 \"lol\">\n";
    for (int i = 1; i < 10; ++i) {
        laughs += "<!ENTITY lol" + QByteArray::number(i) + " \"";
        for (int j = 0; j < 10; ++j)
            laughs += "&lol" + QByteArray::number(i - 1) + ';';
        laughs += "\">\n";
    }
    laughs += "]>\n<Filter><Feature><Name>&lol9;</Name></Feature></Filter>\n";
    QTest::newRow("billion laughs") << laughs;

    QTest::newRow("external entity") << QByteArray(
        "<?xml version=\"1.0\"?><!DOCTYPE Filter [<!ENTITY x SYSTEM \"file:///etc/passwd\">]>"
        "<Filter><Feature><Name>&x;</Name></Feature></Filter>");
    QTest::newRow("external parameter entity")
        << QByteArray("<?xml version=\"1.0\"?><!DOCTYPE Filter [<!ENTITY % p SYSTEM \"file:///etc/passwd\"> %p;]>"
                      "<Filter><Feature><Name>n</Name></Feature></Filter>");
    QTest::newRow("external document type")
        << QByteArray("<!DOCTYPE Filter SYSTEM \"file:///etc/passwd\"><Filter><Feature><Name>n</Name></Feature>"
                      "</Filter>");
    QTest::newRow("harmless document type")
        << QByteArray("<!DOCTYPE Filter><Filter><Feature><Name>n</Name></Feature></Filter>");
}

void TestNodeMapFilter::documentTypeDeclarationIsRefused()
{
    QFETCH(QByteArray, content);
    writeBeside(QStringLiteral("GEV_NmfHostile_Filter.xml"), content);
    expectParseFailure(besidePath(QStringLiteral("GEV_NmfHostile_Filter.xml")),
        QStringLiteral("document type declarations are not accepted in filter files"));
    auto collection = QSharedPointer<FakeCollection>::create();
    QElapsedTimer timer;
    timer.start();
    QVERIFY(!NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfHostile")));
    QVERIFY2(timer.elapsed() < 5000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(collection->log, QStringList());
    verifyMessages();
}

//! depth elements nested in one another, the innermost item holding a Name at the bottom.
static QByteArray nestedFilter(int depth)
{
    // Filter (1) / Feature (2) / Wrap ... / Name (depth)
    QByteArray xml = "<Filter><Feature>";
    for (int i = 3; i < depth; ++i)
        xml += "<Wrap>";
    xml += "<Name>Deepest</Name>";
    for (int i = 3; i < depth; ++i)
        xml += "</Wrap>";
    xml += "<Visibility>Guru</Visibility></Feature></Filter>";
    return xml;
}

void TestNodeMapFilter::nestingAtTheLimitIsRead()
{
    writeBeside(QStringLiteral("GEV_NmfLimits_Filter.xml"), nestedFilter(NodeMapFilter::MaximumElementDepth));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfLimits")));
    QCOMPARE(collection->log, QStringList({ "get Deepest", "set Deepest Visibility=Guru" }));
    verifyMessages();
}

void TestNodeMapFilter::nestingAboveTheLimitIsRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("one level too deep") << nestedFilter(NodeMapFilter::MaximumElementDepth + 1);
    QByteArray deep;
    for (int i = 0; i < 300000; ++i)
        deep += "<a>";
    QTest::newRow("300000 open elements") << deep;
    QByteArray closed = deep;
    for (int i = 0; i < 300000; ++i)
        closed += "</a>";
    QTest::newRow("100000 levels, well-formed") << closed.mid(600000, 300000) + closed.right(400000);
}

void TestNodeMapFilter::nestingAboveTheLimitIsRefused()
{
    QFETCH(QByteArray, content);
    QVERIFY(content.size() <= NodeMapFilter::MaximumFileSize);
    writeBeside(QStringLiteral("GEV_NmfLimits_Filter.xml"), content);
    expectParseFailure(besidePath(QStringLiteral("GEV_NmfLimits_Filter.xml")),
        QStringLiteral("elements are nested deeper than 256 levels"));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(!NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfLimits")));
    QCOMPARE(collection->log, QStringList());
    verifyMessages();
}

void TestNodeMapFilter::binaryFileIsAParseFailure_data()
{
    QTest::addColumn<QByteArray>("content");
    QByteArray binary;
    for (int i = 0; i < 4096; ++i)
        binary += char((i * 7919) & 0xff);
    QTest::newRow("binary") << binary;
    QTest::newRow("NUL bytes") << QByteArray(64, '\0');
    QTest::newRow("ELF header") << QByteArray("\x7f"
                                              "ELF\x02\x01\x01\0\0\0\0\0\0\0\0\0",
        16);
    QTest::newRow("invalid UTF-8 inside a name")
        << QByteArray("<?xml version=\"1.0\" encoding=\"utf-8\"?><Filter><Feature><Name>\xff\xfe</Name></Feature>"
                      "</Filter>");
    QTest::newRow("two document elements") << QByteArray("<Filter/><Filter/>");
    QTest::newRow("undeclared entity") << QByteArray("<Filter><Feature><Name>&x;</Name></Feature></Filter>");
    QTest::newRow("text only") << QByteArray("just some text");
}

void TestNodeMapFilter::binaryFileIsAParseFailure()
{
    QFETCH(QByteArray, content);
    writeBeside(QStringLiteral("GEV_NmfHostile_Filter.xml"), content);
    expectParseFailure(besidePath(QStringLiteral("GEV_NmfHostile_Filter.xml")), QStringLiteral(".+"));
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(!NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfHostile")));
    QCOMPARE(collection->log, QStringList());
    verifyMessages();
}

void TestNodeMapFilter::specialFilesAreNotFilterFiles_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("directory") << "directory";
    QTest::newRow("named pipe") << "pipe";
    QTest::newRow("link to a device") << "device";
    QTest::newRow("dangling link") << "dangling";
}

void TestNodeMapFilter::specialFilesAreNotFilterFiles()
{
    QFETCH(QString, kind);
    const QString path = besidePath(QStringLiteral("GEV_NmfSpecial_Filter.xml"));
    m_written << path;
    if (kind == QLatin1String("directory"))
        QVERIFY(QDir().mkdir(path));
    else if (kind == QLatin1String("pipe"))
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    else if (kind == QLatin1String("device"))
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), path));
    else
        QVERIFY(QFile::link(besidePath(QStringLiteral("nowhere.xml")), path));
    writeBeside(QStringLiteral("NmfSpecial_Filter.xml"), markerFilter(QStringLiteral("NextCandidate")));

    // Treated as a file that doesn't open: the search goes on, without a word.
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfSpecial")));
    QCOMPARE(collection->log, markerCalls(QStringLiteral("NextCandidate")));
    verifyMessages();
}

void TestNodeMapFilter::manyItemsAreProcessed()
{
    Rows rows;
    for (int i = 0; i < 5000; ++i)
        rows << Row { QStringLiteral("F%1").arg(i), i % 2 ? Guru : None, i % 3 ? None : RO };
    const QByteArray xml = filterXml(rows);
    QVERIFY(xml.size() <= NodeMapFilter::MaximumFileSize);
    writeBeside(QStringLiteral("GEV_NmfWide_Filter.xml"), xml);
    auto collection = QSharedPointer<FakeCollection>::create();
    QVERIFY(NodeMapFilter::applyFilter(collection, camera(QStringLiteral("GEV")), QStringLiteral("@NmfWide")));
    QCOMPARE(collection->log, callsFor(rows));
    verifyMessages();
}

// ---- the default simulated camera -----------------------------------------------------

void TestNodeMapFilter::simulatedCameraHasTheExpectedNodeMaps()
{
    const QStringList expected { "@CameraDevice", "@DeviceTransportLayer", "@StreamGrabber0", "@EventGrabber",
        "@ImageFormatConverter" };
    const QStringList types { "GEV", "U3V", "IIDC", "CamEmu", "ZCON" };
    for (const QString& type : types) {
        const QSharedPointer<Simulation::SimulatedDevice> device = Simulation::SimulatedDevice::createDefault(type);
        QVERIFY(device);
        QCOMPARE(device->nodeMapNames(), expected);
        QCOMPARE(device->baseInfo()->getTLType(), type);
    }
}

void TestNodeMapFilter::shippedFilterOnSimulatedCamera_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("nodeMapName");
    QTest::addColumn<QString>("fileName");

    // Each shipped file on the camera and node map it is written for ...
    QTest::newRow("GEV camera device: default") << "GEV"
                                                << "@CameraDevice"
                                                << "Default_Filter.xml";
    QTest::newRow("U3V camera device") << "U3V"
                                       << "@CameraDevice"
                                       << "U3V_CameraDevice_Filter.xml";
    QTest::newRow("GEV transport layer") << "GEV"
                                         << "@DeviceTransportLayer"
                                         << "GEV_DeviceTransportLayer_Filter.xml";
    QTest::newRow("U3V transport layer") << "U3V"
                                         << "@DeviceTransportLayer"
                                         << "U3V_DeviceTransportLayer_Filter.xml";
    QTest::newRow("GEV stream grabber") << "GEV"
                                        << "@StreamGrabber0"
                                        << "GEV_StreamGrabber_Filter.xml";
    QTest::newRow("CamEmu stream grabber") << "CamEmu"
                                           << "@StreamGrabber0"
                                           << "CamEmu_StreamGrabber_Filter.xml";
    QTest::newRow("IIDC stream grabber") << "IIDC"
                                         << "@StreamGrabber0"
                                         << "IIDC_StreamGrabber_Filter.xml";
    QTest::newRow("GEV image format converter") << "GEV"
                                                << "@ImageFormatConverter"
                                                << "ImageFormatConverter_Filter.xml";

    // ... and the rest of the five node maps on five transport types.
    QTest::newRow("GEV event grabber") << "GEV"
                                       << "@EventGrabber"
                                       << "Default_Filter.xml";
    QTest::newRow("U3V stream grabber") << "U3V"
                                        << "@StreamGrabber0"
                                        << "Default_Filter.xml";
    QTest::newRow("U3V event grabber") << "U3V"
                                       << "@EventGrabber"
                                       << "Default_Filter.xml";
    QTest::newRow("U3V image format converter") << "U3V"
                                                << "@ImageFormatConverter"
                                                << "ImageFormatConverter_Filter.xml";
    QTest::newRow("IIDC camera device") << "IIDC"
                                        << "@CameraDevice"
                                        << "Default_Filter.xml";
    QTest::newRow("IIDC transport layer") << "IIDC"
                                          << "@DeviceTransportLayer"
                                          << "Default_Filter.xml";
    QTest::newRow("IIDC image format converter") << "IIDC"
                                                 << "@ImageFormatConverter"
                                                 << "ImageFormatConverter_Filter.xml";
    QTest::newRow("CamEmu camera device") << "CamEmu"
                                          << "@CameraDevice"
                                          << "Default_Filter.xml";
    QTest::newRow("CamEmu transport layer") << "CamEmu"
                                            << "@DeviceTransportLayer"
                                            << "Default_Filter.xml";
    QTest::newRow("CamEmu event grabber") << "CamEmu"
                                          << "@EventGrabber"
                                          << "Default_Filter.xml";
    QTest::newRow("ZCON camera device") << "ZCON"
                                        << "@CameraDevice"
                                        << "Default_Filter.xml";
    QTest::newRow("ZCON transport layer") << "ZCON"
                                          << "@DeviceTransportLayer"
                                          << "Default_Filter.xml";
    QTest::newRow("ZCON stream grabber") << "ZCON"
                                         << "@StreamGrabber0"
                                         << "Default_Filter.xml";
    QTest::newRow("ZCON image format converter") << "ZCON"
                                                 << "@ImageFormatConverter"
                                                 << "ImageFormatConverter_Filter.xml";
}

void TestNodeMapFilter::shippedFilterOnSimulatedCamera()
{
    QFETCH(QString, type);
    QFETCH(QString, nodeMapName);
    QFETCH(QString, fileName);

    const QSharedPointer<Simulation::SimulatedDevice> device = Simulation::SimulatedDevice::createDefault(type);
    QVERIFY(device);
    const QSharedPointer<Simulation::SimulatedNodeMap> map = device->nodeMap(nodeMapName);
    QVERIFY(map);

    const QStringList names = allFeatureNames(*device, nodeMapName);
    QVERIFY(names.size() > 1);
    SignalRecorder recorder;
    QMap<QString, FeatureState> before;
    for (const QString& name : names) {
        const QSharedPointer<ParameterCollection::IParameter> parameter = map->getParameter(name);
        before.insert(name, stateOf(parameter));
        if (before.value(name).present)
            recorder.watch(name, parameter);
    }

    // What the file should impose, by full name; the later row wins per property.
    QMap<QString, QString> imposedVisibility;
    QMap<QString, QString> imposedAccessMode;
    int listedAndPresent = 0;
    for (const Row& row : shippedFilters().value(fileName)) {
        const QString name = nodeMapName + QLatin1Char('/') + row.name;
        if (!before.value(name).present)
            continue;
        ++listedAndPresent;
        if (!row.visibility.isEmpty())
            imposedVisibility[name] = row.visibility;
        if (!row.accessMode.isEmpty())
            imposedAccessMode[name] = row.accessMode;
    }
    // Every file is tried where it belongs, on features that exist.
    if (fileName != QLatin1String("Default_Filter.xml") || nodeMapName == QLatin1String("@CameraDevice"))
        QVERIFY2(listedAndPresent > 0, "no feature of the file exists in this node map");

    QVERIFY(NodeMapFilter::applyFilter(map, device->baseInfo(), nodeMapName));

    QStringList changed;
    for (const QString& name : names) {
        const FeatureState old = before.value(name);
        const FeatureState now = stateOf(map->getParameter(name));
        if (!imposedVisibility.contains(name) && !imposedAccessMode.contains(name)) {
            // Nothing else changes.
            QVERIFY2(now.toString() == old.toString(),
                qPrintable(name + QStringLiteral(":\n  before ") + old.toString() + QStringLiteral("\n  after  ")
                    + now.toString()));
            continue;
        }
        const QString both
            = name + QStringLiteral(":\n  before ") + old.toString() + QStringLiteral("\n  after  ") + now.toString();
        QVERIFY2(now.present && now.error.isEmpty(), qPrintable(both));
        QCOMPARE(now.type, old.type);
        QCOMPARE(now.valueText, old.valueText);
        if (imposedVisibility.contains(name)) {
            const int visibility = visibilityOf(imposedVisibility.value(name));
            QVERIFY2(now.visibility == visibility && now.reportedVisibility == visibility, qPrintable(both));
        } else {
            QVERIFY2(
                now.visibility == old.visibility && now.reportedVisibility == old.reportedVisibility, qPrintable(both));
        }
        if (imposedAccessMode.contains(name)) {
            const GenApi::EAccessMode mode = accessModeOf(imposedAccessMode.value(name));
            QVERIFY2(now.accessMode == mode, qPrintable(both));
            QVERIFY2(now.reportedWritable == (mode == GenApi::RW || mode == GenApi::WO), qPrintable(both));
        } else {
            QVERIFY2(now.accessMode == old.accessMode && now.readable == old.readable && now.writable == old.writable
                    && now.implemented == old.implemented && now.reportedWritable == old.reportedWritable,
                qPrintable(both));
        }
        if (now.toString() != old.toString())
            changed << name;
    }

    // Later snapshots show it too: exactly the features that changed signalled,
    // and the last snapshot each sent carries the imposed values. The device
    // sends them all in one turn of the event loop.
    changed.sort();
    const auto signalled = [&recorder] {
        QStringList names = recorder.last.keys();
        names.sort();
        return names;
    };
    QTRY_COMPARE(signalled(), changed);
    // Where nothing was to change, the wait above ended at once: let the turn run and look again.
    QCoreApplication::processEvents();
    QCOMPARE(signalled(), changed);
    for (const QString& name : qAsConst(changed)) {
        const QSharedPointer<const ParameterCollection::ParameterData> data = recorder.last.value(name);
        QVERIFY(data);
        if (imposedVisibility.contains(name))
            QCOMPARE(data->visibility, qint32(visibilityOf(imposedVisibility.value(name))));
        if (imposedAccessMode.contains(name))
            QCOMPARE(
                ParameterCollection::ParameterData::accessModeOf(data), accessModeOf(imposedAccessMode.value(name)));
    }
    verifyMessages();
}

void TestNodeMapFilter::refusedVisibilityOnSimulatedCamera()
{
    const QSharedPointer<Simulation::SimulatedDevice> device
        = Simulation::SimulatedDevice::createDefault(QStringLiteral("U3V"));
    const QSharedPointer<Simulation::SimulatedNodeMap> map = device->nodeMap(QStringLiteral("@CameraDevice"));
    const QString width = QStringLiteral("@CameraDevice/Width");
    const QString height = QStringLiteral("@CameraDevice/Height");
    const FeatureState widthBefore = stateOf(map->getParameter(width));
    const FeatureState heightBefore = stateOf(map->getParameter(height));
    QVERIFY(widthBefore.present && heightBefore.present);
    QCOMPARE(widthBefore.accessMode, int(GenApi::RW));
    QCOMPARE(heightBefore.accessMode, int(GenApi::RW));

    // Replaces the shipped U3V_CameraDevice_Filter.xml for this test.
    writeBeside(QStringLiteral("U3V_CameraDevice_Filter.xml"),
        filterXml({ { "Width", "Sometimes", "RO" }, { "Height", "Guru", "RO" } }));
    expect(QtWarningMsg, QStringLiteral("Failed to impose the visibility of node Width"));
    expectPattern(QtWarningMsg, QStringLiteral("^processElement :  Exception occurred:\n .+"));
    QVERIFY(NodeMapFilter::applyFilter(map, device->baseInfo(), QStringLiteral("@CameraDevice")));

    // Width keeps its old access mode although its item has one; Height, the next item, gets both.
    QCOMPARE(stateOf(map->getParameter(width)).toString(), widthBefore.toString());
    const FeatureState heightAfter = stateOf(map->getParameter(height));
    QCOMPARE(heightAfter.visibility, int(GenApi::Guru));
    QCOMPARE(heightAfter.accessMode, int(GenApi::RO));
    verifyMessages();
}

// Filters need no GUI; without one the test also runs clear of the platform plugin.
QTEST_GUILESS_MAIN(TestNodeMapFilter)
#include "tst_nodemapfilter.moc"
