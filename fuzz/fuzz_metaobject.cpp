// libFuzzer target over the public surface of the exported QObject classes,
// reached the way a host's bindings, Designer or a script would reach it:
// through QMetaObject. A set of widgets and objects (two feature trees on the
// default simulated camera, the value widgets, the editors, the search line,
// the IP address dialog, the validators, the checkable message box, an error
// queue, a favourites store) is built anew every few inputs; the bytes
// choose, one operation after another, an object and one of its public slots
// or invokable methods, or one of its properties to write or read, and the
// arguments: integers over their whole range and next to every enumeration
// value, doubles with NaN, the infinities, denormals and the extremes,
// strings empty, huge or made of bytes that are not UTF-8. Now and then the
// camera is unplugged or plugged back and the event loop runs. Only methods
// and properties that the library itself declares are called; the classes
// are found by asking which shared object holds their meta-object.

#include "featuretree/SearchEdit.h"
#include "featuretree/checkboxeditor.h"
#include "featuretree/comboslider.h"
#include "featuretree/doublecomboslider.h"
#include "featuretree/doublespinbox.h"
#include "featuretree/enumeditor.h"
#include "featuretree/favoritesdata.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreewidget.h"
#include "featuretree/floateditor.h"
#include "featuretree/floatslidereditor.h"
#include "featuretree/hexvalidator.h"
#include "featuretree/inteditor.h"
#include "featuretree/intslidereditor.h"
#include "featuretree/spinboxeventcatcher.h"
#include "featuretree/toolbuttoneditor.h"
#include "featuretree/twomodedoublecomboslider.h"
#include "featuretree/zarvexqtdoublespinbox.h"
#include "featuretree/zarvexqtspinbox.h"
#include "messages/asyncerrorqueue.h"
#include "messages/messageboxcheckable.h"
#include "network/ipaddresswidget.h"
#include "network/qipaddressvalidator.h"
#include "network/qipaddresswithnetmaskvalidator.h"
#include "network/qipnetmaskvalidator.h"
#include "network/qmacaddressvalidator.h"
#include "parameters/iparametercollection.h"
#include "simulateddevice.h"
#include "simulatednodemap.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QApplication>
#include <QColor>
#include <QDir>
#include <QHash>
#include <QLineEdit>
#include <QMetaMethod>
#include <QMetaObject>
#include <QMetaProperty>
#include <QModelIndex>
#include <QPoint>
#include <QPointer>
#include <QRect>
#include <QSet>
#include <QSettings>
#include <QSize>
#include <QStringList>
#include <QVariant>

#include <dlfcn.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <vector>

namespace {

QApplication* application = nullptr;

// The fuzzer's bytes, read front to back; past the end every read gives 0.
class Bytes
{
public:
    Bytes(const uint8_t* data, size_t size)
        : m_data(data)
        , m_size(size)
    {
    }
    bool atEnd() const { return m_position >= m_size; }
    uint8_t byte() { return m_position < m_size ? m_data[m_position++] : 0; }
    template <typename T> T raw()
    {
        T value {};
        unsigned char buffer[sizeof(T)] = {};
        for (unsigned char& b : buffer)
            b = byte();
        std::memcpy(&value, buffer, sizeof(T));
        return value;
    }
    QByteArray chunk(int length)
    {
        QByteArray result;
        for (int i = 0; i < length && !atEnd(); ++i)
            result.append(char(byte()));
        return result;
    }

private:
    const uint8_t* m_data;
    size_t m_size;
    size_t m_position = 0;
};

int anyInt(Bytes& in)
{
    static const int table[]
        = { 0, 1, -1, 2, 3, 4, 5, 7, 8, 9, 10, 11, 12, 19, 20, 21, 29, 30, 31, 98, 99, 100, 255, 256, 1000, 65535,
              65536, 100000, 100001, 1000000000, INT_MAX, INT_MAX - 1, INT_MIN, INT_MIN + 1, -2, -99, -100000,
              // the item data roles, Qt's and the tree's own
              13, 257, 258, 259, 260, 261, 262, 266, 268, 269, 270, 288 };
    const uint8_t choice = in.byte();
    if (choice < 200)
        return table[choice % (sizeof(table) / sizeof(table[0]))];
    return in.raw<int>();
}

qint64 anyInt64(Bytes& in)
{
    const uint8_t choice = in.byte();
    switch (choice % 6) {
    case 0:
        return std::numeric_limits<qint64>::max();
    case 1:
        return std::numeric_limits<qint64>::min();
    case 2:
        return in.raw<qint64>();
    case 3:
        return qint64(INT_MAX) + 1;
    default:
        return anyInt(in);
    }
}

double anyDouble(Bytes& in)
{
    static const double table[] = { 0.0, -0.0, 1.0, -1.0, 0.5, 1.5, 100.0, 1e9, 1e10, -1e10, 1e300, -1e300,
        std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::denorm_min(),
        -std::numeric_limits<double>::denorm_min(), DBL_MIN, DBL_MAX, -DBL_MAX, DBL_EPSILON, 2147483647.0, 2147483648.0,
        -2147483649.0, 9.2233720368547758e18, 1e-300, 100000.0, 0.1 };
    const uint8_t choice = in.byte();
    if (choice < 200)
        return table[choice % (sizeof(table) / sizeof(table[0]))];
    return in.raw<double>();
}

QString anyString(Bytes& in)
{
    static const char* const table[] = { "", "0", "-1", "1e309", "-1e309", "nan", "inf", "-inf", "0x7fffffff",
        "2147483648", "-2147483649", "192.168.0.1", "255.255.255.255", "0.0.0.0", "224.0.0.1", "00:11:22:33:44:55",
        "Width", "@CameraDevice", "@CameraDevice/Width", "Gain", "Exposure", "*", "[", "<b>", "&amp;", " ", "\t\n",
        "Favorites", "@DeviceTransportLayer" };
    const uint8_t choice = in.byte();
    switch (choice % 8) {
    case 0:
        return QString();
    case 1:
        return QString(65536 + (choice >> 3), QChar(u'9'));
    case 2:
    case 3: {
        // Bytes as they come, not UTF-8 clean.
        const QByteArray bytes = in.chunk(in.byte() % 32);
        return QString::fromUtf8(bytes);
    }
    case 4:
        return QString::fromLatin1(in.chunk(in.byte() % 32));
    default:
        return QString::fromLatin1(table[in.byte() % (sizeof(table) / sizeof(table[0]))]);
    }
}

// One argument of a call, typed by the name moc gave its parameter.
struct Argument
{
    int i = 0;
    uint u = 0;
    qint64 ll = 0;
    quint64 ull = 0;
    double d = 0;
    float f = 0;
    bool b = false;
    QString s;
    QByteArray bytes;
    QStringList strings;
    QModelIndex index;
    QVariant variant;
    QPoint point;
    QSize size;
    QRect rect;
    QColor color;
    void* pointer = nullptr;
    QSharedPointer<ParameterCollection::IParameterCollection> collection;
};

// Enumerations and flags travel as an int: the library's own enumerations
// have a fixed underlying type of int, and QFlags hold an int.
bool isIntLike(const QByteArray& type)
{
    static const char* const names[] = { "GenApi::EVisibility", "GenApi::EAccessMode", "AsyncErrorQueue::ErrorSeverity",
        "ErrorSeverity", "TwoModeDoubleComboSlider::ETwoModeDoubleComboSliderMode", "ETwoModeDoubleComboSliderMode",
        "QMessageBox::StandardButtons", "QFlags<QMessageBox::StandardButton>", "Qt::WindowFlags",
        "QFlags<Qt::WindowType>", "Qt::MatchFlags", "QFlags<Qt::MatchFlag>" };
    for (const char* name : names)
        if (type == name)
            return true;
    return false;
}

QModelIndex anyIndex(Bytes& in, const QAbstractItemModel* model)
{
    if (!model || (in.byte() & 7) == 0)
        return QModelIndex();
    QModelIndex index;
    const int depth = in.byte() % 4;
    for (int level = 0; level <= depth; ++level) {
        const int rows = model->rowCount(index);
        if (rows <= 0)
            break;
        const int row = in.byte() % rows;
        const int column = level == depth ? in.byte() % 2 : 0;
        const QModelIndex next = model->index(row, column, index);
        if (!next.isValid())
            break;
        index = next;
    }
    return index;
}

struct World;

// Fills `argument` for a parameter of the given type; false for a type the
// fuzzer doesn't make, which rules the method out.
bool fill(Argument& argument, const QByteArray& type, Bytes& in, World& world, QObject* target);

struct World
{
    QSharedPointer<Simulation::SimulatedDevice> camera;
    QStringList nodeMaps; // "@CameraDevice" and the others

    QSharedPointer<ParameterCollection::IParameterCollection> collection(int index) const
    {
        return camera->nodeMap(nodeMaps.at(index));
    }
    std::vector<QPointer<QObject>> objects;
    std::vector<QPointer<QObject>> owned; // top-level ones, deleted at the end
    QPointer<FeatureTreeWidget> tree;

    template <typename T> T* own(T* object)
    {
        owned.push_back(object);
        objects.push_back(object);
        return object;
    }

    const QAbstractItemModel* modelFor(QObject* target) const
    {
        if (auto* model = qobject_cast<QAbstractItemModel*>(target))
            return model;
        if (auto* view = qobject_cast<QAbstractItemView*>(target))
            return view->model();
        if (tree)
            if (auto* view = tree->findChild<QAbstractItemView*>())
                return view->model();
        return nullptr;
    }
};

bool fill(Argument& argument, const QByteArray& type, Bytes& in, World& world, QObject* target)
{
    if (type == "int" || isIntLike(type)) {
        argument.i = anyInt(in);
        return true;
    }
    if (type == "uint") {
        argument.u = uint(anyInt(in));
        return true;
    }
    if (type == "qlonglong") {
        argument.ll = anyInt64(in);
        return true;
    }
    if (type == "qulonglong") {
        argument.ull = quint64(anyInt64(in));
        return true;
    }
    if (type == "double") {
        argument.d = anyDouble(in);
        return true;
    }
    if (type == "float") {
        argument.f = float(anyDouble(in));
        return true;
    }
    if (type == "bool") {
        argument.b = in.byte() & 1;
        return true;
    }
    if (type == "QString") {
        argument.s = anyString(in);
        return true;
    }
    if (type == "QByteArray") {
        argument.bytes = in.chunk(in.byte());
        return true;
    }
    if (type == "QStringList") {
        const int count = in.byte() % 4;
        for (int i = 0; i < count; ++i)
            argument.strings << anyString(in);
        return true;
    }
    if (type == "QModelIndex") {
        argument.index = anyIndex(in, world.modelFor(target));
        return true;
    }
    if (type == "QVariant") {
        switch (in.byte() % 4) {
        case 0:
            argument.variant = QVariant();
            break;
        case 1:
            argument.variant = anyInt(in);
            break;
        case 2:
            argument.variant = anyDouble(in);
            break;
        default:
            argument.variant = anyString(in);
            break;
        }
        return true;
    }
    if (type == "QPoint") {
        argument.point = QPoint(anyInt(in), anyInt(in));
        return true;
    }
    if (type == "QSize") {
        argument.size = QSize(anyInt(in), anyInt(in));
        return true;
    }
    if (type == "QRect") {
        argument.rect = QRect(anyInt(in), anyInt(in), anyInt(in), anyInt(in));
        return true;
    }
    if (type == "QColor") {
        argument.color = QColor::fromRgba(in.raw<uint>());
        return true;
    }
    if (type.endsWith('*')) {
        // Objects are the host's: the fuzzer hands none but the null one.
        argument.pointer = nullptr;
        return true;
    }
    if (type == "QSharedPointer<ParameterCollection::IParameterCollection>") {
        const int choice = in.byte() % (world.nodeMaps.size() + 1);
        if (choice < world.nodeMaps.size())
            argument.collection = world.collection(choice);
        return true;
    }
    return false;
}

void* address(Argument& argument, const QByteArray& type)
{
    if (type == "int" || isIntLike(type))
        return &argument.i;
    if (type == "uint")
        return &argument.u;
    if (type == "qlonglong")
        return &argument.ll;
    if (type == "qulonglong")
        return &argument.ull;
    if (type == "double")
        return &argument.d;
    if (type == "float")
        return &argument.f;
    if (type == "bool")
        return &argument.b;
    if (type == "QString")
        return &argument.s;
    if (type == "QByteArray")
        return &argument.bytes;
    if (type == "QStringList")
        return &argument.strings;
    if (type == "QModelIndex")
        return &argument.index;
    if (type == "QVariant")
        return &argument.variant;
    if (type == "QPoint")
        return &argument.point;
    if (type == "QSize")
        return &argument.size;
    if (type == "QRect")
        return &argument.rect;
    if (type == "QColor")
        return &argument.color;
    if (type.endsWith('*'))
        return &argument.pointer;
    return &argument.collection;
}

// Whether the meta-object was compiled into this library rather than Qt or
// the simulation.
bool isLibraryClass(const QMetaObject* metaObject)
{
    static QHash<const QMetaObject*, bool> known;
    const auto found = known.constFind(metaObject);
    if (found != known.constEnd())
        return found.value();
    Dl_info info;
    const bool library = dladdr(metaObject, &info) != 0 && info.dli_fname
        && std::strstr(info.dli_fname, "ZarvexViewerComponents") != nullptr;
    known.insert(metaObject, library);
    return library;
}

// Of what the library declares: public slots and invokable methods, except
// those that open a modal loop or delete the object.
QVector<int> methodsOf(const QMetaObject* metaObject)
{
    QVector<int> result;
    for (int i = 0; i < metaObject->methodCount(); ++i) {
        const QMetaMethod method = metaObject->method(i);
        if (method.access() != QMetaMethod::Public || method.methodType() == QMetaMethod::Signal
            || method.methodType() == QMetaMethod::Constructor)
            continue;
        const QMetaObject* owner = metaObject;
        while (owner->superClass() && i < owner->methodOffset())
            owner = owner->superClass();
        // The invokable methods of QAbstractItemModel (data, setData, index,
        // fetchMore, ...) land in the library's overrides.
        const bool modelMethod
            = owner == &QAbstractItemModel::staticMetaObject && method.methodType() == QMetaMethod::Method;
        if (!isLibraryClass(owner) && !modelMethod)
            continue;
        const QByteArray name = method.name();
        if (name == "exec" || name == "open" || name == "deleteLater")
            continue;
        // The model's clear() frees every item and announces nothing: its
        // caller resets the views around it, as FeatureTreeWidget::clear()
        // does. Called alone it leaves the proxy holding freed items, by
        // contract; the widget's clear() is called instead.
        if (name == "clear" && metaObject->inherits(&QAbstractItemModel::staticMetaObject))
            continue;
        result << i;
    }
    return result;
}

QVector<int> propertiesOf(const QMetaObject* metaObject)
{
    QVector<int> result;
    for (int i = 0; i < metaObject->propertyCount(); ++i) {
        const QMetaObject* owner = metaObject;
        while (owner->superClass() && i < owner->propertyOffset())
            owner = owner->superClass();
        if (isLibraryClass(owner))
            result << i;
    }
    return result;
}

void call(World& world, QObject* target, Bytes& in)
{
    const QMetaObject* metaObject = target->metaObject();
    const QVector<int> methods = methodsOf(metaObject);
    if (methods.isEmpty())
        return;
    const QMetaMethod method = metaObject->method(methods.at(in.byte() % methods.size()));
    const QList<QByteArray> types = method.parameterTypes();
    if (types.size() > 6)
        return;
    Argument arguments[6];
    void* argv[7] = { nullptr };
    for (int i = 0; i < types.size(); ++i) {
        if (!fill(arguments[i], types.at(i), in, world, target))
            return;
        argv[i + 1] = address(arguments[i], types.at(i));
    }
    // The return value is dropped: argv[0] stays null.
    QMetaObject::metacall(target, QMetaObject::InvokeMetaMethod, method.methodIndex(), argv);
}

void touchProperty(QObject* target, Bytes& in)
{
    const QMetaObject* metaObject = target->metaObject();
    const QVector<int> properties = propertiesOf(metaObject);
    if (properties.isEmpty())
        return;
    const QMetaProperty property = metaObject->property(properties.at(in.byte() % properties.size()));
    if ((in.byte() & 3) == 0 || !property.isWritable()) {
        property.read(target);
        return;
    }
    const QByteArray type = property.typeName();
    QVariant value;
    if (property.isEnumType() || type == "int")
        value = anyInt(in);
    else if (type == "double")
        value = anyDouble(in);
    else if (type == "bool")
        value = bool(in.byte() & 1);
    else if (type == "QString")
        value = anyString(in);
    else
        return;
    property.write(target, value);
}

// With ZVC_FUZZ_LIST=1, prints what the fuzzer calls on each class.
void listSurface(const std::vector<QPointer<QObject>>& objects)
{
    QSet<const QMetaObject*> seen;
    for (const QPointer<QObject>& object : objects) {
        if (!object || seen.contains(object->metaObject()))
            continue;
        const QMetaObject* metaObject = object->metaObject();
        seen.insert(metaObject);
        fprintf(stderr, "%s\n", metaObject->className());
        for (int index : methodsOf(metaObject))
            fprintf(stderr, "  method   %s\n", metaObject->method(index).methodSignature().constData());
        for (int index : propertiesOf(metaObject)) {
            const QMetaProperty property = metaObject->property(index);
            fprintf(stderr, "  property %s %s%s\n", property.typeName(), property.name(),
                property.isWritable() ? "" : " (read only)");
        }
    }
}

void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    // Silence the library's debug lines and caught-exception warnings, which
    // a fuzzer makes by the million.
    qputenv("QT_LOGGING_RULES", "*.debug=false;default.warning=false");
    application = new QApplication(*argc, *argv);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexFuzz"));
    QCoreApplication::setApplicationName(QStringLiteral("fuzz_metaobject"));
    // Settings (favourites, do-not-show-again answers) go to a scratch file.
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
        QDir::temp().filePath(QStringLiteral("zvc-fuzz-metaobject-%1").arg(QCoreApplication::applicationPid())));
    return 0;
}

namespace {

World* world = nullptr;
int inputsOnThisWorld = 0;
const int worldInputs = 16; // inputs a world serves before it is built anew

void destroyWorld()
{
    if (!world)
        return;
    settle();
    for (auto it = world->owned.rbegin(); it != world->owned.rend(); ++it)
        delete it->data();
    settle();
    delete world;
    world = nullptr;
}

void buildWorld()
{
    // The favourites store is one for the process: each world starts empty.
    FavoritesData& store = FeatureTreeModel::m_favorites;
    while (store.countNodes() > 0)
        store.removeNode(0, nullptr);
    world = new World;
    world->camera = Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV"));
    world->nodeMaps = world->camera->nodeMapNames();
    const QString mapName = world->nodeMaps.value(0);
    const QString rootName = mapName.mid(1);

    auto* tree = world->own(new FeatureTreeWidget(QStringLiteral("fuzz"), world->camera->baseInfo()));
    world->tree = tree;
    tree->addParameterCollection(world->collection(0), rootName, mapName, false);
    auto* second = world->own(new FeatureTreeWidget(QStringLiteral("second"), world->camera->baseInfo()));
    second->addParameterCollection(world->collection(0), rootName, mapName, true);
    // The tree's own parts: view, model, proxy, delegate, search line.
    for (QObject* child : tree->findChildren<QObject*>())
        if (isLibraryClass(child->metaObject()))
            world->objects.push_back(child);
    if (auto* view = tree->findChild<QAbstractItemView*>()) {
        auto* proxy = qobject_cast<QAbstractProxyModel*>(view->model());
        world->objects.push_back(view->model());
        if (proxy)
            world->objects.push_back(proxy->sourceModel());
    }

    world->own(new ComboSlider);
    world->own(new DoubleComboSlider);
    world->own(new TwoModeDoubleComboSlider(nullptr, TwoModeDoubleComboSlider::ModeLogarithmic));
    world->own(new DoubleSpinBox);
    world->own(new IntEditor);
    world->own(new IntSliderEditor);
    world->own(new FloatEditor);
    world->own(new FloatSliderEditor(world->collection(0)));
    world->own(new EnumEditor);
    world->own(new CheckBoxEditor);
    world->own(new ToolButtonEditor);
    world->own(new SearchEdit);
    world->own(new ZarvexQtSpinBox);
    world->own(new ZarvexQtDoubleSpinBox);
    world->own(new IpAddressWidget);
    world->own(new QIpAddressValidator);
    world->own(new QIpNetmaskValidator);
    world->own(new QMacAddressValidator);
    auto* netmask = world->own(new QLineEdit);
    world->own(new QIpAddressWithNetmaskValidator(netmask));
    world->own(new HexValidator(0, 255));
    world->own(new MessageBoxCheckable(QStringLiteral("fuzz"), QMessageBox::Question, QStringLiteral("t"),
        QStringLiteral("x"), QMessageBox::Yes | QMessageBox::No, nullptr, Qt::Dialog));
    world->own(new AsyncErrorQueue);
    world->own(new FavoritesData);
    world->own(new SpinBoxEventCatcher);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    // Building the trees is most of the cost of an input, so a world serves
    // several inputs in a row; ZVC_FUZZ_FRESH=1 gives each input a world of
    // its own, to replay a crash from a clean start.
    static const bool fresh = qEnvironmentVariableIntValue("ZVC_FUZZ_FRESH") != 0;
    if (world && (fresh || ++inputsOnThisWorld >= worldInputs))
        destroyWorld();
    if (!world) {
        buildWorld();
        inputsOnThisWorld = 0;
        static bool listed = false;
        if (!listed && qEnvironmentVariableIntValue("ZVC_FUZZ_LIST") != 0)
            listSurface(world->objects);
        listed = true;
    }
    Bytes in(data, size);
    for (int operation = 0; operation < 64 && !in.atEnd(); ++operation) {
        const uint8_t choice = in.byte();
        if (choice >= 250) {
            if (world->camera->isPlugged())
                world->camera->unplug();
            else
                world->camera->replug();
            continue;
        }
        if (choice >= 240) {
            settle();
            continue;
        }
        QObject* target = world->objects.at(in.byte() % world->objects.size());
        if (!target)
            continue;
        if (choice % 4 == 3)
            touchProperty(target, in);
        else
            call(*world, target, in);
    }
    settle();
    return 0;
}
