// The search proxy of the feature tree: its one rule for user level and
// search text, the two match counts, the forwarding of the model extension
// with its index mapping, the proxy without a model, and the proxy under
// QAbstractItemModelTester while search texts and levels change.

#include "featuretreetestsupport.h"

#include "featuretree/favoritesdata.h"
#include "featuretree/featuretreehighlighter.h"
#include "featuretree/featuretreeinodeitem.h"
#include "featuretree/featuretreemodel.h"
#include "featuretree/featuretreeproxymodel.h"

#include <QAbstractItemModelTester>
#include <QIdentityProxyModel>
#include <QMutex>
#include <QPersistentModelIndex>
#include <QSet>
#include <QSettings>
#include <QStandardItemModel>
#include <QStandardPaths>
#include <QtTest>

#include <functional>
#include <memory>

using namespace TreeTest;
using Favorite = FavoritesData::FavoritesDataItem;

Q_DECLARE_METATYPE(GenApi::EVisibility)

namespace {

const QString camera = QStringLiteral("@CameraDevice");
const QString grabber = QStringLiteral("@StreamGrabber0");

// Two node maps with what the search has to tell apart: display names that
// differ from the feature names, one feature of each visibility and one that
// isn't implemented, a category whose own name matches while none of its
// children does, texts with a star and a question mark, a feature whose name
// contains "Root", a deep chain of categories, and "Width" in both node maps.
const QByteArray searchCamera = deviceJson(R"(
    { "name": "@CameraDevice", "features": [
        { "name": "Root", "type": "Category",
          "children": ["ImageFormat", "GainControl", "Levels", "Marks", "RootMeanSquare", "ExpertOnly", "Deep1"] },
        { "name": "ImageFormat", "type": "Category", "displayName": "Image Format",
          "children": ["Width", "Height", "ExposureTime"] },
        { "name": "Width", "type": "Integer", "displayName": "Width", "unit": "px", "value": 640, "min": 16, "max": 1920 },
        { "name": "Height", "type": "Integer", "displayName": "Height", "value": 480, "min": 16, "max": 1200 },
        { "name": "ExposureTime", "type": "Float", "displayName": "Exposure Time", "unit": "us",
          "value": 100, "min": 10, "max": 1000 },
        { "name": "GainControl", "type": "Category", "displayName": "Gain Control", "children": ["BlackLevel", "Gamma"] },
        { "name": "BlackLevel", "type": "Float", "displayName": "Black Level", "value": 0, "min": 0, "max": 10 },
        { "name": "Gamma", "type": "Float", "displayName": "Gamma", "value": 1, "min": 0, "max": 4 },
        { "name": "Levels", "type": "Category", "displayName": "Levels",
          "children": ["ProbeBeginner", "ProbeExpert", "ProbeGuru", "ProbeInvisible", "ProbeNotImplemented"] },
        { "name": "ProbeBeginner", "type": "Integer", "visibility": "Beginner", "value": 1, "min": 0, "max": 9 },
        { "name": "ProbeExpert", "type": "Integer", "visibility": "Expert", "value": 1, "min": 0, "max": 9 },
        { "name": "ProbeGuru", "type": "Integer", "visibility": "Guru", "value": 1, "min": 0, "max": 9 },
        { "name": "ProbeInvisible", "type": "Integer", "visibility": "Invisible", "value": 1, "min": 0, "max": 9 },
        { "name": "ProbeNotImplemented", "type": "Integer", "access": "NI", "value": 1, "min": 0, "max": 9 },
        { "name": "Marks", "type": "Category", "displayName": "Marks", "children": ["StarGain", "QuestionMode"] },
        { "name": "StarGain", "type": "Float", "displayName": "Gain * 2", "value": 1, "min": 0, "max": 4 },
        { "name": "QuestionMode", "type": "Boolean", "displayName": "Mode?", "value": true },
        { "name": "RootMeanSquare", "type": "Float", "displayName": "Root Mean Square", "value": 1, "min": 0, "max": 4 },
        { "name": "ExpertOnly", "type": "Category", "displayName": "Tuning", "children": ["TuningOffset"] },
        { "name": "TuningOffset", "type": "Integer", "visibility": "Expert", "value": 1, "min": 0, "max": 9 },
        { "name": "Deep1", "type": "Category", "children": ["Deep2"] },
        { "name": "Deep2", "type": "Category", "children": ["Deep3"] },
        { "name": "Deep3", "type": "Category", "children": ["Deep4"] },
        { "name": "Deep4", "type": "Category", "children": ["Deep5"] },
        { "name": "Deep5", "type": "Category", "children": ["Deep6"] },
        { "name": "Deep6", "type": "Category", "children": ["Deep7"] },
        { "name": "Deep7", "type": "Category", "children": ["Bottom"] },
        { "name": "Bottom", "type": "Integer", "displayName": "Bottom Value", "value": 1, "min": 0, "max": 9 }
    ] },
    { "name": "@StreamGrabber0", "features": [
        { "name": "Root", "type": "Category", "children": ["Width", "MaxNumBuffer", "Statistics"] },
        { "name": "Width", "type": "Integer", "displayName": "Buffer Width", "value": 64, "min": 1, "max": 100 },
        { "name": "MaxNumBuffer", "type": "Integer", "displayName": "Buffers", "value": 16, "min": 1, "max": 64 },
        { "name": "Statistics", "type": "Category", "children": ["FrameCount"] },
        { "name": "FrameCount", "type": "Integer", "displayName": "Frames", "access": "RO", "value": 0, "min": 0, "max": 9 }
    ] }
)");

// Display names and a unit with letters outside ASCII whose case folding
// meets ASCII letters or other letters: a Kelvin sign (folds to "k"), a long
// s (to "s"), a micro sign (to the Greek mu, as does the capital mu), an
// accented capital and a sharp s (which simple folding leaves alone).
const QByteArray foldingCamera = cameraJson(R"(
    { "name": "Root", "type": "Category", "children": ["Units", "Words"] },
    { "name": "Units", "type": "Category", "displayName": "Units", "children": ["Thermo", "Micro"] },
    { "name": "Thermo", "type": "Integer", "displayName": "Degrees \u212A", "value": 1, "min": 0, "max": 9 },
    { "name": "Micro", "type": "Float", "displayName": "Size", "unit": "\u00B5m", "value": 1, "min": 0, "max": 9 },
    { "name": "Words", "type": "Category", "displayName": "Words", "children": ["LongS", "Accent", "Sharp", "PlainGain"] },
    { "name": "LongS", "type": "Boolean", "displayName": "Ca\u017Fe", "value": true },
    { "name": "Accent", "type": "Boolean", "displayName": "\u00C9clair", "value": true },
    { "name": "Sharp", "type": "Boolean", "displayName": "Stra\u00DFe", "value": true },
    { "name": "PlainGain", "type": "Float", "displayName": "Plain Gain", "value": 1, "min": 0, "max": 4 }
)");

// Categories whose rows show or not only by what lies deeper: features of
// one visibility each, a feature that isn't implemented, empty categories,
// an invisible category (left out with everything below it) and features
// whose parameters fail. Deep1 and Deep2 nest the cases one level down. They
// lie below "Cases", whose level the model fills as it adds the node map, so
// that their own levels are not filled yet when the proxy first judges them.
const QByteArray hollowCamera = cameraJson(R"(
    { "name": "Root", "type": "Category", "children": ["Cases"] },
    { "name": "Cases", "type": "Category",
      "children": ["Mixed", "OnlyExpert", "OnlyGuru", "OnlyInvisible", "OnlyNotImplemented", "Empty",
                   "NestedEmpty", "NestedGuru", "NestedInvisibleCategory", "OnlyFailing", "OnlyNullData",
                   "FailingCategory", "Deep1"] },
    { "name": "Mixed", "type": "Category", "children": ["MixedGuru", "MixedBeginner"] },
    { "name": "MixedGuru", "type": "Integer", "visibility": "Guru", "value": 1, "min": 0, "max": 9 },
    { "name": "MixedBeginner", "type": "Integer", "value": 1, "min": 0, "max": 9 },
    { "name": "OnlyExpert", "type": "Category", "children": ["ExpertValue"] },
    { "name": "ExpertValue", "type": "Integer", "visibility": "Expert", "value": 1, "min": 0, "max": 9 },
    { "name": "OnlyGuru", "type": "Category", "children": ["GuruValue"] },
    { "name": "GuruValue", "type": "Boolean", "visibility": "Guru", "value": true },
    { "name": "OnlyInvisible", "type": "Category", "children": ["InvisibleValue"] },
    { "name": "InvisibleValue", "type": "Integer", "visibility": "Invisible", "value": 1, "min": 0, "max": 9 },
    { "name": "OnlyNotImplemented", "type": "Category", "children": ["MissingValue"] },
    { "name": "MissingValue", "type": "Integer", "access": "NI", "value": 1, "min": 0, "max": 9 },
    { "name": "Empty", "type": "Category", "children": [] },
    { "name": "NestedEmpty", "type": "Category", "children": ["InnerEmpty"] },
    { "name": "InnerEmpty", "type": "Category", "children": [] },
    { "name": "NestedGuru", "type": "Category", "children": ["InnerGuru"] },
    { "name": "InnerGuru", "type": "Category", "children": ["DeepGuruValue"] },
    { "name": "DeepGuruValue", "type": "Float", "visibility": "Guru", "value": 1, "min": 0, "max": 9 },
    { "name": "NestedInvisibleCategory", "type": "Category", "children": ["HiddenCategory"] },
    { "name": "HiddenCategory", "type": "Category", "visibility": "Invisible", "children": ["HiddenValue"] },
    { "name": "HiddenValue", "type": "Integer", "value": 1, "min": 0, "max": 9 },
    { "name": "OnlyFailing", "type": "Category", "children": ["FailingValue"] },
    { "name": "FailingValue", "type": "Integer", "value": 1, "min": 0, "max": 9 },
    { "name": "OnlyNullData", "type": "Category", "children": ["NullDataValue"] },
    { "name": "NullDataValue", "type": "Integer", "value": 1, "min": 0, "max": 9 },
    { "name": "FailingCategory", "type": "Category", "children": ["BrokenCategory"] },
    { "name": "BrokenCategory", "type": "Category", "children": ["FailingCategoryValue"] },
    { "name": "FailingCategoryValue", "type": "Integer", "value": 1, "min": 0, "max": 9 },
    { "name": "Deep1", "type": "Category", "children": ["Deep2", "DeepEmpty"] },
    { "name": "DeepEmpty", "type": "Category", "children": [] },
    { "name": "Deep2", "type": "Category", "children": ["DeepExpertValue"] },
    { "name": "DeepExpertValue", "type": "Integer", "visibility": "Expert", "value": 1, "min": 0, "max": 9 }
)");

//! Makes hollowCamera's failing parameters fail.
void breakHollowCamera(Simulation::SimulatedDevice& device)
{
    device.injectFault(QStringLiteral("@CameraDevice/FailingValue"), Simulation::Operation::IsZombie,
        Simulation::FaultKind::StdException);
    device.setNullSnapshot(QStringLiteral("@CameraDevice/NullDataValue"), true);
    device.injectFault(QStringLiteral("@CameraDevice/BrokenCategory"), Simulation::Operation::GetType,
        Simulation::FaultKind::NonStdException);
}

FavoritesData& store()
{
    return FeatureTreeModel::m_favorites;
}

void setStore(const QList<Favorite>& favorites)
{
    while (store().countNodes() > 0)
        store().removeNode(0, nullptr);
    for (const Favorite& f : favorites)
        store().appendNode(f);
}

Favorite favorite(const QString& name, const QString& nodeMap = camera)
{
    return Favorite { name, name + QStringLiteral(" remembered"), nodeMap };
}

//! The proxy with its filter functions in reach of the test.
class Proxy : public FeatureTreeProxyModel
{
public:
    using FeatureTreeProxyModel::filterAcceptsRow;
    using FeatureTreeProxyModel::filterAcceptsRowItself;
    using FeatureTreeProxyModel::hasAcceptedChildren;
};

//! The proxy set up as the tree view sets it up.
void setUpLikeTheView(FeatureTreeProxyModel& proxy, QAbstractItemModel* source)
{
    proxy.setSourceModel(source);
    proxy.setDynamicSortFilter(false);
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setFilterKeyColumn(1);
}

//! Full names of all rows that the proxy offers, in walk order, below column 0 only; walking is what filters.
QStringList walk(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    QStringList names;
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        names << index.data(FeatureTreeItem::FullNameRole).toString();
        names += walk(model, index);
    }
    return names;
}

//! One whole filtering pass, as the widget runs it: the text, a fresh start, the walk.
QStringList search(FeatureTreeProxyModel& proxy, const QString& text)
{
    proxy.setFilterFixedString(text);
    proxy.invalidate();
    return walk(proxy);
}

//! The proxy's index of the row with the full name, or an invalid one if the proxy doesn't show it.
QModelIndex shownIndex(
    const QAbstractItemModel& proxy, const QString& fullName, const QModelIndex& parent = QModelIndex())
{
    const int rows = proxy.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = proxy.index(row, 0, parent);
        if (index.data(FeatureTreeItem::FullNameRole).toString() == fullName)
            return index;
        const QModelIndex below = shownIndex(proxy, fullName, index);
        if (below.isValid())
            return below;
    }
    return QModelIndex();
}

//! Walks the whole source so that every category is built.
int fillCompletely(QAbstractItemModel& model, const QModelIndex& parent = QModelIndex())
{
    int rows = model.rowCount(parent);
    int total = rows;
    for (int row = 0; row < rows; ++row)
        total += fillCompletely(model, model.index(row, 0, parent));
    return total;
}

//! A model of the simulated camera and the proxy on it, as a tree view holds them.
struct SearchTree
{
    explicit SearchTree(const QByteArray& json = searchCamera)
        : device(makeDevice(json))
    {
        setUpLikeTheView(proxy, &model);
    }
    explicit SearchTree(QSharedPointer<Simulation::SimulatedDevice> d)
        : device(std::move(d))
    {
        setUpLikeTheView(proxy, &model);
    }

    void add(const QString& nodeMap, const QString& displayName = QString())
    {
        model.addParameterCollection(
            device->nodeMap(nodeMap), displayName.isEmpty() ? nodeMap : displayName, nodeMap, false);
    }

    QModelIndex sourceIndex(const QString& fullName) { return model.findItemByFullName(fullName, nullptr, 0); }

    QSharedPointer<Simulation::SimulatedDevice> device;
    FeatureTreeModel model;
    Proxy proxy;
};

// A plain item model with the feature tree's roles: it stands for rows that
// the simulated camera can't give, such as a visibility outside the four
// levels or a non-category named "Root".
QStandardItem* roleItem(const QString& display, const QString& name, int visibility, bool showMe, bool category = false)
{
    auto* item = new QStandardItem(display);
    item->setData(name, FeatureTreeItem::NodeNameRole);
    item->setData(name, FeatureTreeItem::FullNameRole);
    item->setData(visibility, FeatureTreeItem::VisibilityRole);
    item->setData(showMe, FeatureTreeItem::ShowMeRole);
    item->setData(category, FeatureTreeItem::IsCategoryRole);
    return item;
}

// ---- the rules, computed without the proxy ----------------------------------

//! What the rules make of one row of the source.
struct RowFacts
{
    QString fullName;
    QString name;
    bool self = false; //!< a hit that the level shows
    bool counted = false;
    bool countedVisible = false;
    bool countedInvisible = false;
    QList<RowFacts> children;
};

RowFacts judge(const QAbstractItemModel& source, const QModelIndex& index, const QString& text, int level)
{
    RowFacts facts;
    const QString display = index.data(Qt::DisplayRole).toString();
    facts.name = index.data(FeatureTreeItem::NodeNameRole).toString();
    facts.fullName = index.data(FeatureTreeItem::FullNameRole).toString();
    const bool category = index.data(FeatureTreeItem::IsCategoryRole).toBool();
    const int visibility = index.data(FeatureTreeItem::VisibilityRole).toInt();
    const bool showMe = index.data(FeatureTreeItem::ShowMeRole).toBool();

    const bool isRoot = facts.name == QLatin1String("Root");
    const bool levelAllows = showMe || level == int(GenApi::Invisible);
    const bool matches = display.contains(text, Qt::CaseInsensitive) || facts.name.contains(text, Qt::CaseInsensitive);
    if (!isRoot && levelAllows && matches && !category) {
        facts.countedInvisible = visibility <= int(GenApi::Guru) && visibility > level;
        facts.countedVisible = visibility <= level;
    }
    const bool searchLine = facts.fullName == QLatin1String("Search");
    facts.self = !isRoot && levelAllows && ((matches && !category) || searchLine) && visibility <= level;

    const int rows = const_cast<QAbstractItemModel&>(source).rowCount(index);
    for (int row = 0; row < rows; ++row)
        facts.children << judge(source, source.index(row, 0, index), text, level);
    return facts;
}

bool anyDescendantIsAHit(const RowFacts& facts)
{
    for (const RowFacts& child : facts.children) {
        if (child.self || anyDescendantIsAHit(child))
            return true;
    }
    return false;
}

//! The rows that the rules show, in source order, and the two sets of counted names.
void expectedResult(const QList<RowFacts>& rows, bool ancestorIsAHit, QStringList* shown, QSet<QString>* visible,
    QSet<QString>* invisible, bool parentShown = true)
{
    for (const RowFacts& row : rows) {
        if (row.countedVisible)
            visible->insert(row.name);
        if (row.countedInvisible)
            invisible->insert(row.name);
        const bool accepted = row.self || ancestorIsAHit || anyDescendantIsAHit(row);
        const bool isShown = parentShown && accepted;
        if (isShown)
            *shown << row.fullName;
        expectedResult(row.children, ancestorIsAHit || row.self, shown, visible, invisible, isShown);
    }
}

// ---- models that are read through data() only ------------------------------

//! The model's rows as they are, except that every feature's shown name gains a prefix: only data() tells it.
class RelabellingProxy : public QIdentityProxyModel
{
public:
    QVariant data(const QModelIndex& index, int role) const override
    {
        const QVariant value = QIdentityProxyModel::data(index, role);
        if (role == Qt::DisplayRole && index.column() == 0
            && !QIdentityProxyModel::data(index, FeatureTreeItem::IsCategoryRole).toBool())
            return QStringLiteral("Zq ") + value.toString();
        return value;
    }
};

//! Copies the rows below parent with the roles the search reads into a plain item model.
void copyRows(const QAbstractItemModel& source, const QModelIndex& parent, QStandardItem* into)
{
    const int rows = const_cast<QAbstractItemModel&>(source).rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = source.index(row, 0, parent);
        QStandardItem* item = roleItem(index.data(Qt::DisplayRole).toString(),
            index.data(FeatureTreeItem::NodeNameRole).toString(), index.data(FeatureTreeItem::VisibilityRole).toInt(),
            index.data(FeatureTreeItem::ShowMeRole).toBool(), index.data(FeatureTreeItem::IsCategoryRole).toBool());
        item->setData(index.data(FeatureTreeItem::FullNameRole), FeatureTreeItem::FullNameRole);
        into->appendRow(item);
        copyRows(source, index, item);
    }
}

//! The names the rules count and the rows they show for a text, computed over data() of any model.
struct Expected
{
    QStringList shown;
    QSet<QString> visible;
    QSet<QString> invisible;
};

Expected expectedFor(const QAbstractItemModel& source, const QString& text, int level)
{
    QList<RowFacts> facts;
    const int rows = const_cast<QAbstractItemModel&>(source).rowCount(QModelIndex());
    for (int row = 0; row < rows; ++row)
        facts << judge(source, source.index(row, 0), text, level);
    Expected expected;
    expectedResult(facts, false, &expected.shown, &expected.visible, &expected.invisible);
    return expected;
}

// ---- QAbstractItemModelTester on the proxy ----------------------------------

/*!
 * Collects the reports of QAbstractItemModelTester (category "qt.modeltest")
 * instead of printing them, and hands out those that no excuse covers. The
 * tester reports an inconsistent parent() in several messages; they are kept
 * together and excused or not as one.
 */
class ProxyTesterReports
{
public:
    enum class Excuse {
        /*
         * Check "flags == Qt::ItemIsDropEnabled || flags == 0" in
         * nonDestructiveBasicTest(). The proxy hands flags() of the invalid
         * index to the model, which gives Qt::ItemIsEnabled for it: the empty
         * area of the tree is enabled like the rows.
         */
        RootFlags,
        /*
         * Check "model->parent(index) == parent" in checkChildren(), with its
         * "Inconsistent parent()" report, for the tester that walks the proxy
         * itself. The model gives the children of a row below each of its
         * columns (index() and rowCount() take the parent's item whatever its
         * column) while its parent() names column 0, and the proxy keeps a
         * mapping of its own for every source parent it is asked about,
         * column 1 included. Rows reached below column 1 therefore name their
         * parent through the mappings of the column-0 path: another internal
         * pointer for the same row, or no row at all once a filter change has
         * updated the one mapping and not the other. Views ask below column 0
         * only, and the tester that sees the proxy as a view does is held to
         * every parent() check.
         */
        ChildrenInEveryColumn,
    };

    explicit ProxyTesterReports(QList<Excuse> excuses)
        : m_excuses(std::move(excuses))
    {
    }

    //! Reports not excused; empties the list. ZVC_DUMP_MODELTEST prints every report.
    QStringList unexcused()
    {
        return TreeTest::ModelTesterReports::unexcused([this](const QString& report) { return isExcused(report); });
    }

private:
    bool has(Excuse excuse) const { return m_excuses.contains(excuse); }

    bool isExcused(const QString& report) const
    {
        // An inconsistent parent() comes as one report, its header and the lines that follow.
        if (report.startsWith(QLatin1String("Inconsistent parent() implementation detected")))
            return has(Excuse::ChildrenInEveryColumn);
        if (has(Excuse::RootFlags)
            && report.contains(QLatin1String("FAIL! flags == Qt::ItemIsDropEnabled || flags == 0")))
            return true;
        if (has(Excuse::ChildrenInEveryColumn) && report.contains(QLatin1String("Actual (model->parent(index))"))
            && report.contains(QLatin1String("Expected (parent)")))
            return true;
        return false;
    }

    TreeTest::ModelTesterReports m_capture;
    QList<Excuse> m_excuses;
};

#define VERIFY_NO_TESTER_REPORTS(reports)                                                                              \
    do {                                                                                                               \
        const QStringList left_ = (reports).unexcused();                                                               \
        QVERIFY2(left_.isEmpty(), qPrintable(left_.join(QLatin1Char('\n'))));                                          \
    } while (false)

const QList<GenApi::EVisibility> allLevels { GenApi::Beginner, GenApi::Expert, GenApi::Guru, GenApi::Invisible };

const char* levelName(GenApi::EVisibility level)
{
    switch (level) {
    case GenApi::Beginner:
        return "Beginner";
    case GenApi::Expert:
        return "Expert";
    case GenApi::Guru:
        return "Guru";
    case GenApi::Invisible:
        return "Invisible";
    default:
        return "undefined";
    }
}

} // namespace

class TestFeatureTreeProxyModel : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    // Without a model, and the model behind the proxy.
    void startValues();
    void withoutAFeatureTreeModelEveryOperationFallsBack_data();
    void withoutAFeatureTreeModelEveryOperationFallsBack();
    void favoritesStoreIsNeverNull();

    // Forwarding to the model.
    void indexArgumentsGoThroughMapToSource();
    void resultIndexesGoThroughMapFromSource();
    void otherOperationsReachTheModel();
    void clearReachesTheModel();
    void setVisibilityStoresTheLevelWithoutInvalidating();
    void countsKeepTheMatchesOfPersistentRowsMappedAgainFirst();
    void aNewLevelStartsNewCountsAtTheNextFilteredRow();
    void everyRowPassesWhileACollectionIsAdded();
    void collectionAddedDuringASearchShowsUnfilteredUntilInvalidate();

    // The rule, one edge at a time.
    void searchFindsDisplayOrFeatureNameInAnyCase_data();
    void searchFindsDisplayOrFeatureNameInAnyCase();
    void searchFoldsCaseAsQStringDoes_data();
    void searchFoldsCaseAsQStringDoes();
    void starAndQuestionMarkAreOrdinaryCharacters_data();
    void starAndQuestionMarkAreOrdinaryCharacters();
    void featureInTreeAndFavoritesCountsOnce();
    void likeNamedFeaturesOfTwoNodeMapsCountOnce();
    void visibilityAgainstLevel_data();
    void visibilityAgainstLevel();
    void undefinedVisibilityIsAHitThatIsNeitherShownNorCounted_data();
    void undefinedVisibilityIsAHitThatIsNeitherShownNorCounted();
    void searchForRootFindsNoNodeMapRoot();
    void itemNamedRootHasNoEffectOnTheCounts_data();
    void itemNamedRootHasNoEffectOnTheCounts();
    void matchingCategoryWithoutMatchingChildDisappears();
    void zombiesMatchByFullNameLiveFavoritesByName();
    void hiddenZombiesAreNoSearchResults_data();
    void hiddenZombiesAreNoSearchResults();
    void favoritesRootDisappearsWhenNoFavoriteMatches();
    void searchHelpItemPassesByItsOwnVisibility_data();
    void searchHelpItemPassesByItsOwnVisibility();
    void emptyTextIsTheLevelFilter_data();
    void emptyTextIsTheLevelFilter();
    void unfilledCategoriesShowAsTheirItemsWould_data();
    void unfilledCategoriesShowAsTheirItemsWould();
    void levelsAskedForDuringAChangeAreFilledAfterIt();
    void filterKeyColumnIsNotConsulted();
    void descendantsOfAHitStayVisible();
    void childrenOfALevelAreTriedBeforeAnyIsDescendedInto();
    void depthLimitsNothing();
    void eachPassStartsWithEmptyCounts();

    // The whole default camera.
    void countsEqualAnIndependentWalk_data();
    void countsEqualAnIndependentWalk();
    void modelTesterWhileSearchTextsAndLevelsChange_data();
    void modelTesterWhileSearchTextsAndLevelsChange();

    // Rows read from the items directly, and through data() for any other model.
    void directReadsEqualDataThroughAnyModel_data();
    void directReadsEqualDataThroughAnyModel();
    void countsFollowTypingAndDeleting_data();
    void countsFollowTypingAndDeleting();
};

void TestFeatureTreeProxyModel::initTestCase()
{
    // A model saves the favourites when it goes: only into this test's own settings.
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreeproxymodel"));
    QVERIFY2(QSettings().fileName().contains(QLatin1String("tst_featuretreeproxymodel")),
        qPrintable(QSettings().fileName()));
}

void TestFeatureTreeProxyModel::init()
{
    QSettings settings;
    settings.remove(QStringLiteral("Favorites"));
    settings.remove(QStringLiteral("FeatureTree"));
    store().setSettingsPath(QString());
    store().setDeferDataUpdatedSignals(false);
    setStore({});
    store().setViewAllFavorites(true);
}

void TestFeatureTreeProxyModel::cleanup()
{
    setStore({});
    store().setViewAllFavorites(true);
}

// ---- without a model, and the model behind the proxy ------------------------

void TestFeatureTreeProxyModel::startValues()
{
    Proxy proxy;
    QCOMPARE(proxy.getVisibleMatchCount(), 0);
    QCOMPARE(proxy.getInvisibleMatchCount(), 0);
    QVERIFY(!proxy.getFeatureTreeModel());
    QVERIFY(!static_cast<const Proxy&>(proxy).getFeatureTreeModel());

    QStandardItemModel plain;
    proxy.setSourceModel(&plain);
    QVERIFY(!proxy.getFeatureTreeModel());
    QVERIFY(!static_cast<const Proxy&>(proxy).getFeatureTreeModel());

    FeatureTreeModel model;
    proxy.setSourceModel(&model);
    QCOMPARE(proxy.getFeatureTreeModel(), &model);
    QCOMPARE(static_cast<const Proxy&>(proxy).getFeatureTreeModel(), &model);
    // Rows are judged against Guru until a level is set.
    QCOMPARE(proxy.getVisibility(), GenApi::Guru);
}

void TestFeatureTreeProxyModel::withoutAFeatureTreeModelEveryOperationFallsBack_data()
{
    QTest::addColumn<bool>("plainSource");
    QTest::newRow("no source") << false;
    QTest::newRow("a source that is no feature tree model") << true;
}

void TestFeatureTreeProxyModel::withoutAFeatureTreeModelEveryOperationFallsBack()
{
    QFETCH(bool, plainSource);

    // Real items and parameters of another model, which would all give answers there.
    setStore({ favorite(QStringLiteral("Width")) });
    SearchTree other;
    QVERIFY(other.device);
    other.model.rebuildFavoriteItems();
    other.add(camera);
    FeatureTreeItem* favoriteItem = itemAt(other.model.index(0, 0, other.model.GetFavoritesRootIndex()));
    FeatureTreeItem* favoritesRoot = itemAt(other.model.GetFavoritesRootIndex());
    QVERIFY(other.model.IsFavoriteTreeItem(favoriteItem));
    auto* widthItem
        = qobject_cast<FeatureTreeINodeItem*>(itemAt(other.sourceIndex(QStringLiteral("@CameraDevice/Width"))));
    QVERIFY(widthItem);
    const auto collection = other.device->nodeMap(camera);

    QStandardItemModel plain;
    plain.appendRow(roleItem(QStringLiteral("Nothing"), QStringLiteral("Nothing"), GenApi::Beginner, true));
    Proxy proxy;
    if (plainSource)
        setUpLikeTheView(proxy, &plain);
    QSignalSpy resets(&proxy, SIGNAL(modelReset()));
    int layouts = 0;
    connect(&proxy, &QAbstractItemModel::layoutChanged, this, [&layouts] { ++layouts; });
    const QModelIndex proxyIndex = plainSource ? proxy.index(0, 0) : QModelIndex();
    QCOMPARE(proxyIndex.isValid(), plainSource);

    QVERIFY(!proxy.IsFavoriteTreeItem(favoriteItem));
    QVERIFY(!proxy.IsFavoriteTreeRoot(favoritesRoot));
    QVERIFY(!proxy.indexForItem(favoriteItem, 0).isValid());
    QVERIFY(!proxy.GetFavoritesRootIndex().isValid());
    proxy.EnablePolling(true);
    QVERIFY(!proxy.GetPolling());
    QVERIFY(!other.model.GetPolling());
    QVERIFY(store().getViewAllFavorites());
    proxy.EnableViewAllFavorites(false);
    QVERIFY(store().getViewAllFavorites());
    QVERIFY(!proxy.GetViewAllFavorites());
    proxy.SetDeviceAlive(false);
    QVERIFY(other.model.isDeviceAlive());
    QVERIFY(!proxy.findItem(favoriteItem, nullptr, 0).isValid());
    QVERIFY(!proxy.findItemByFullName(QStringLiteral("@CameraDevice/Width"), nullptr, 0).isValid());
    QVERIFY(!proxy.findItemByRole(FeatureTreeItem::FullNameRole, QStringLiteral("@CameraDevice/Width"), nullptr, 0)
                 .isValid());
    proxy.addParameterCollection(collection, camera, camera, false);
    QCOMPARE(other.model.rowCount(QModelIndex()), 3);
    proxy.rebuildFavoriteItems();
    proxy.CreateFavoritesRoot();
    QVERIFY(!proxy.RemoveFavorite(proxyIndex));
    QVERIFY(!proxy.AddFavorite(widthItem->node(), 0));
    QCOMPARE(store().countNodes(), 1);
    QVERIFY(proxy.GetFavorites());
    QVERIFY(proxy.GetFavorites() != &FeatureTreeModel::m_favorites);
    QVERIFY(!proxy.MoveFavorite(proxyIndex, false));
    QVERIFY(!proxy.CanMoveFavorite(proxyIndex, false));
    QVERIFY(!proxy.CanAddAsFavorite(proxyIndex));
    proxy.refresh();
    proxy.addChildren(widthItem);
    proxy.setVisibility(GenApi::Expert);
    QCOMPARE(int(proxy.getVisibility()), 0);
    QCOMPARE(other.model.getVisibility(), GenApi::Guru);
    proxy.setMonitorMode(true);
    QVERIFY(!other.model.isMonitorMode());
    proxy.setGenICamCallbacksEnable(true);
    QVERIFY(!proxy.getGenICamCallbackEnable());
    QVERIFY(!proxy.getFeatureTreeItem(proxyIndex));
    FeatureTreeHighlighter highlighter;
    proxy.setHighlighter(&highlighter);
    QVERIFY(!proxy.getSearchHelpItem());
    proxy.refreshSpecialItems();
    proxy.clear();
    proxy.onNodeUpdated(0, widthItem);
    proxy.onTimerPoll();
    QCOMPARE(proxy.GetParameterCollectionName(collection), QStringLiteral("unknown NodeMap name"));
    QCOMPARE(proxy.GetParameterCollectionName(nullptr), QStringLiteral("unknown NodeMap name"));
    proxy.replaceFavoritesZombies(collection, camera);
    QCOMPARE(proxy.getFavoritesIndexFromFeatureTreeItem(favoriteItem), -1);
    QCOMPARE(proxy.getFavoritesIndexFromModelIndex(proxyIndex), -1);
    QCOMPARE(proxy.getFavoritesIndexFromModelIndex(QModelIndex()), -1);

    // Nothing reached the other model or the store, and nothing was signalled.
    QCOMPARE(other.model.rowCount(QModelIndex()), 3);
    QCOMPARE(store().countNodes(), 1);
    QCOMPARE(resets.count(), 0);
    QCOMPARE(layouts, 0);
    QCOMPARE(plain.rowCount(), 1);

    // The flag of the adding is down again, also without a model: a row that doesn't match is refused.
    proxy.setFilterFixedString(QStringLiteral("no such text"));
    QVERIFY(!proxy.filterAcceptsRow(0, QModelIndex()));
}

void TestFeatureTreeProxyModel::favoritesStoreIsNeverNull()
{
    Proxy proxy;
    FavoritesData* fallback = proxy.GetFavorites();
    QVERIFY(fallback);
    QVERIFY(fallback != &FeatureTreeModel::m_favorites);
    // One store of the proxy's own, made once.
    QCOMPARE(proxy.GetFavorites(), fallback);
    Proxy second;
    QCOMPARE(second.GetFavorites(), fallback);

    QStandardItemModel plain;
    proxy.setSourceModel(&plain);
    QCOMPARE(proxy.GetFavorites(), fallback);

    FeatureTreeModel model;
    proxy.setSourceModel(&model);
    QCOMPARE(proxy.GetFavorites(), &FeatureTreeModel::m_favorites);
    QCOMPARE(proxy.GetFavorites(), model.GetFavorites());

    proxy.setSourceModel(nullptr);
    QCOMPARE(proxy.GetFavorites(), fallback);
}

// ---- forwarding to the model -----------------------------------------------

void TestFeatureTreeProxyModel::indexArgumentsGoThroughMapToSource()
{
    setStore(
        { favorite(QStringLiteral("Width")), favorite(QStringLiteral("Height")), favorite(QStringLiteral("Gone")) });
    SearchTree tree;
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    tree.add(camera);
    // The search hides the favourite Width and the search line: proxy rows are not source rows.
    const QStringList shown = search(tree.proxy, QStringLiteral("Height"));
    QVERIFY(shown.contains(QStringLiteral("Fav*CameraDevice*Height")));
    QVERIFY(!shown.contains(QStringLiteral("Fav*CameraDevice*Width")));

    const QModelIndex favoriteHeight = shownIndex(tree.proxy, QStringLiteral("Fav*CameraDevice*Height"));
    QVERIFY(favoriteHeight.isValid());
    QCOMPARE(favoriteHeight.row(), 0);
    QCOMPARE(tree.proxy.mapToSource(favoriteHeight).row(), 1);
    const QModelIndex treeHeight = shownIndex(tree.proxy, QStringLiteral("@CameraDevice/Height"));
    QVERIFY(treeHeight.isValid());
    QCOMPARE(treeHeight.row(), 0);
    QCOMPARE(tree.proxy.mapToSource(treeHeight).row(), 1);

    // getFeatureTreeItem: the item behind the source row, in both columns.
    QCOMPARE(tree.proxy.getFeatureTreeItem(favoriteHeight), itemAt(tree.proxy.mapToSource(favoriteHeight)));
    QCOMPARE(tree.proxy.getFeatureTreeItem(favoriteHeight)->getFullName(), QStringLiteral("Fav*CameraDevice*Height"));
    QCOMPARE(
        tree.proxy.getFeatureTreeItem(treeHeight.sibling(0, 1))->getFullName(), QStringLiteral("@CameraDevice/Height"));

    // getFavoritesIndexFromModelIndex: the store position of the source row.
    QCOMPARE(tree.proxy.getFavoritesIndexFromModelIndex(favoriteHeight), 1);
    QCOMPARE(tree.proxy.getFavoritesIndexFromModelIndex(treeHeight), -1);
    QCOMPARE(tree.proxy.getFavoritesIndexFromModelIndex(QModelIndex()), -1);

    // CanMoveFavorite and CanAddAsFavorite answer for the source row.
    QVERIFY(tree.proxy.CanMoveFavorite(favoriteHeight, true));
    QVERIFY(tree.proxy.CanMoveFavorite(favoriteHeight, false));
    QVERIFY(!tree.proxy.CanMoveFavorite(QModelIndex(), true));
    QVERIFY(tree.proxy.CanAddAsFavorite(treeHeight));
    QVERIFY(!tree.proxy.CanAddAsFavorite(favoriteHeight));
    QCOMPARE(tree.proxy.CanAddAsFavorite(treeHeight), tree.model.CanAddAsFavorite(tree.proxy.mapToSource(treeHeight)));

    // MoveFavorite and RemoveFavorite act on the source row's favourite.
    QVERIFY(tree.proxy.MoveFavorite(favoriteHeight, true));
    QCOMPARE(store().nodeAt(0)->name, QStringLiteral("Height"));
    QCOMPARE(store().nodeAt(1)->name, QStringLiteral("Width"));
    QVERIFY(tree.proxy.RemoveFavorite(favoriteHeight));
    QCOMPARE(store().countNodes(), 2);
    QCOMPARE(store().nodeAt(0)->name, QStringLiteral("Width"));
    QCOMPARE(store().nodeAt(1)->name, QStringLiteral("Gone"));
    QVERIFY(!tree.proxy.RemoveFavorite(treeHeight));
    QVERIFY(!tree.proxy.MoveFavorite(treeHeight, true));
    QCOMPARE(store().countNodes(), 2);
}

void TestFeatureTreeProxyModel::resultIndexesGoThroughMapFromSource()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Height")) });
    SearchTree tree;
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    tree.add(camera);
    search(tree.proxy, QStringLiteral("Height"));

    const auto checkMapped = [&tree](const QModelIndex& fromProxy, const QModelIndex& fromModel) {
        QVERIFY(fromModel.isValid());
        QVERIFY(fromProxy.isValid());
        QCOMPARE(fromProxy.model(), &tree.proxy);
        QCOMPARE(tree.proxy.mapToSource(fromProxy), fromModel);
        QCOMPARE(fromProxy.column(), fromModel.column());
    };

    // GetFavoritesRootIndex: row 1 of the model (below the search line), row 0 of the proxy.
    const QModelIndex root = tree.proxy.GetFavoritesRootIndex();
    checkMapped(root, tree.model.GetFavoritesRootIndex());
    QCOMPARE(root.row(), 0);
    QCOMPARE(tree.model.GetFavoritesRootIndex().row(), 1);

    FeatureTreeItem* favoriteHeight = itemAt(tree.model.index(1, 0, tree.model.GetFavoritesRootIndex()));
    FeatureTreeItem* favoriteWidth = itemAt(tree.model.index(0, 0, tree.model.GetFavoritesRootIndex()));
    QCOMPARE(favoriteHeight->getFullName(), QStringLiteral("Fav*CameraDevice*Height"));
    for (int column = 0; column < 2; ++column) {
        const QModelIndex index = tree.proxy.indexForItem(favoriteHeight, column);
        checkMapped(index, tree.model.indexForItem(favoriteHeight, column));
        QCOMPARE(index.row(), 0);
        checkMapped(
            tree.proxy.findItem(favoriteHeight, nullptr, column), tree.model.findItem(favoriteHeight, nullptr, column));
    }
    const QString height = QStringLiteral("@CameraDevice/Height");
    checkMapped(tree.proxy.findItemByFullName(height, nullptr, 0), tree.model.findItemByFullName(height, nullptr, 0));
    QCOMPARE(tree.proxy.findItemByFullName(height, nullptr, 1).column(), 1);
    checkMapped(tree.proxy.findItemByRole(FeatureTreeItem::FullNameRole, height, nullptr, 0),
        tree.model.findItemByRole(FeatureTreeItem::FullNameRole, height, nullptr, 0));
    // A start item limits the search as in the model.
    FeatureTreeItem* start = itemAt(tree.model.GetFavoritesRootIndex());
    QVERIFY(!tree.proxy.findItemByFullName(height, start, 0).isValid());
    checkMapped(tree.proxy.findItemByFullName(QStringLiteral("Fav*CameraDevice*Height"), start, 0),
        tree.model.findItemByFullName(QStringLiteral("Fav*CameraDevice*Height"), start, 0));

    // A row that the search hides has no index in the proxy.
    QVERIFY(tree.model.indexForItem(favoriteWidth, 0).isValid());
    QVERIFY(!tree.proxy.indexForItem(favoriteWidth, 0).isValid());
    QVERIFY(!tree.proxy.findItem(favoriteWidth, nullptr, 0).isValid());
    QVERIFY(!tree.proxy.findItemByFullName(QStringLiteral("@CameraDevice/Width"), nullptr, 0).isValid());
    QVERIFY(!tree.proxy.indexForItem(nullptr, 0).isValid());
}

void TestFeatureTreeProxyModel::otherOperationsReachTheModel()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Gone")) });
    SearchTree tree;
    QVERIFY(tree.device);
    Proxy& proxy = tree.proxy;

    // The favourites branch and the search line, made through the proxy.
    proxy.CreateFavoritesRoot();
    QVERIFY(tree.model.GetFavoritesRootIndex().isValid());
    QVERIFY(!tree.model.getSearchHelpItem());
    proxy.rebuildFavoriteItems();
    QVERIFY(tree.model.getSearchHelpItem());
    QCOMPARE(proxy.getSearchHelpItem(), tree.model.getSearchHelpItem());
    FeatureTreeItem* favoritesRoot = itemAt(tree.model.GetFavoritesRootIndex());
    FeatureTreeItem* zombie = favoritesRoot->child(0);
    QVERIFY(!qobject_cast<FeatureTreeINodeItem*>(zombie));
    QVERIFY(proxy.IsFavoriteTreeRoot(favoritesRoot));
    QVERIFY(!proxy.IsFavoriteTreeRoot(zombie));
    QVERIFY(proxy.IsFavoriteTreeItem(zombie));
    QVERIFY(!proxy.IsFavoriteTreeItem(favoritesRoot));
    QCOMPARE(proxy.getFavoritesIndexFromFeatureTreeItem(favoritesRoot->child(1)), 1);

    // replaceFavoritesZombies binds the favourite to a collection that the model doesn't even list.
    proxy.replaceFavoritesZombies(tree.device->nodeMap(camera), camera);
    QVERIFY(qobject_cast<FeatureTreeINodeItem*>(favoritesRoot->child(0)));
    QVERIFY(!qobject_cast<FeatureTreeINodeItem*>(favoritesRoot->child(1)));
    QCOMPARE(tree.model.nodemaps().count(), 0);

    // The highlighter goes to the model, which hands it to the items it makes from then on.
    FeatureTreeHighlighter highlighter;
    highlighter.setTextToHighlight(QStringLiteral("eig"));
    proxy.setHighlighter(&highlighter);
    proxy.addParameterCollection(tree.device->nodeMap(camera), QStringLiteral("Camera"), camera, false);
    QCOMPARE(tree.model.nodemaps().count(), 1);
    QCOMPARE(tree.model.rowCount(QModelIndex()), 3);
    fillCompletely(tree.model);
    const QModelIndex height = tree.sourceIndex(QStringLiteral("@CameraDevice/Height"));
    QVERIFY2(height.data(Qt::ToolTipRole).toString().contains(QLatin1String(">eig</span>ht")),
        qPrintable(height.data(Qt::ToolTipRole).toString()));
    QVERIFY(height.data(Qt::ToolTipRole).toString().contains(QLatin1String("<span style='background-color: ")));

    QCOMPARE(proxy.GetParameterCollectionName(tree.device->nodeMap(camera)),
        tree.model.GetParameterCollectionName(tree.device->nodeMap(camera)));

    // Adding a favourite passes the parameter on unchanged.
    auto* heightItem = qobject_cast<FeatureTreeINodeItem*>(itemAt(height));
    QVERIFY(heightItem);
    QVERIFY(proxy.AddFavorite(heightItem->node(), 99));
    QCOMPARE(store().countNodes(), 3);
    QCOMPARE(store().nodeAt(2)->name, QStringLiteral("Height"));
    QCOMPARE(proxy.GetFavorites(), &FeatureTreeModel::m_favorites);

    // Switches of the model.
    proxy.EnablePolling(true);
    QVERIFY(tree.model.GetPolling());
    QVERIFY(proxy.GetPolling());
    proxy.EnablePolling(false);
    QVERIFY(!tree.model.GetPolling());
    QVERIFY(!proxy.GetPolling());
    proxy.EnableViewAllFavorites(false);
    QVERIFY(!store().getViewAllFavorites());
    QVERIFY(!proxy.GetViewAllFavorites());
    proxy.EnableViewAllFavorites(true);
    QVERIFY(proxy.GetViewAllFavorites());
    proxy.setGenICamCallbacksEnable(false);
    QVERIFY(!tree.model.getGenICamCallbackEnable());
    QVERIFY(!proxy.getGenICamCallbackEnable());
    proxy.setGenICamCallbacksEnable(true);
    QVERIFY(proxy.getGenICamCallbackEnable());

    // onTimerPoll polls the first collection; in monitor mode it refreshes it instead.
    const qint64 clock = tree.device->clockMilliseconds();
    proxy.onTimerPoll();
    QCOMPARE(tree.device->clockMilliseconds(), clock + 300);
    proxy.setMonitorMode(true);
    QVERIFY(tree.model.isMonitorMode());
    proxy.onTimerPoll();
    QCOMPARE(tree.device->clockMilliseconds(), clock + 300);
    proxy.setMonitorMode(false);
    QVERIFY(!tree.model.isMonitorMode());

    // refresh re-reads the first collection.
    const auto parameter = tree.device->nodeMap(camera)->getParameter(QStringLiteral("Height"));
    QVERIFY(tree.device->changeOnDevice(QStringLiteral("@CameraDevice/Height"), 512));
    proxy.refresh();
    QTRY_COMPARE(parameter->getParameterData()->valueText, QStringLiteral("512"));

    // onNodeUpdated and refreshSpecialItems emit the model's dataChanged.
    QSignalSpy changed(&tree.model, SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    proxy.onNodeUpdated(height.row(), heightItem);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).at(0).value<QModelIndex>(), height);
    QCOMPARE(changed.at(1).at(0).value<QModelIndex>(), height.sibling(height.row(), 1));
    changed.clear();
    proxy.refreshSpecialItems();
    QVERIFY(changed.count() > 0);

    // The device gone: no more updates.
    proxy.SetDeviceAlive(false);
    QVERIFY(!tree.model.isDeviceAlive());
    changed.clear();
    proxy.onNodeUpdated(height.row(), heightItem);
    QCOMPARE(changed.count(), 0);
}

void TestFeatureTreeProxyModel::clearReachesTheModel()
{
    auto device = makeDevice(searchCamera);
    QVERIFY(device);
    FeatureTreeModel model;
    model.addParameterCollection(device->nodeMap(camera), camera, camera, false);
    model.addParameterCollection(device->nodeMap(grabber), grabber, grabber, false);
    // Set up only now: a proxy that filters would fill categories itself.
    Proxy proxy;
    setUpLikeTheView(proxy, &model);

    // addChildren fills a category that nothing has asked for yet.
    FeatureTreeINodeItem* unfilled = nullptr;
    std::function<void(FeatureTreeItem*)> find = [&](FeatureTreeItem* item) {
        for (int i = 0; i < item->builtChildCount() && !unfilled; ++i) {
            auto* child = qobject_cast<FeatureTreeINodeItem*>(item->child(i));
            if (child && child->data(0, FeatureTreeItem::IsCategoryRole).toBool() && child->builtChildCount() == 0)
                unfilled = child;
            else
                find(item->child(i));
        }
    };
    find(model.rootItem());
    QVERIFY(unfilled);
    proxy.addChildren(unfilled);
    QVERIFY(unfilled->builtChildCount() > 0);

    // clear() signals nothing by itself: the widget resets the views around it.
    QSignalSpy reset(&proxy, SIGNAL(modelReset()));
    QSignalSpy removed(&proxy, SIGNAL(rowsRemoved(QModelIndex, int, int)));
    proxy.clear();
    QCOMPARE(model.rowCount(QModelIndex()), 0);
    QCOMPARE(model.nodemaps().count(), 2);
    QCOMPARE(reset.count(), 0);
    QCOMPARE(removed.count(), 0);
}

void TestFeatureTreeProxyModel::setVisibilityStoresTheLevelWithoutInvalidating()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    QStringList shown = search(tree.proxy, QStringLiteral("Probe"));
    QVERIFY(shown.contains(QStringLiteral("@CameraDevice/ProbeExpert")));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 3);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);

    int layoutAbout = 0;
    int layout = 0;
    connect(&tree.proxy, &QAbstractItemModel::layoutAboutToBeChanged, this, [&layoutAbout] { ++layoutAbout; });
    connect(&tree.proxy, &QAbstractItemModel::layoutChanged, this, [&layout] { ++layout; });
    QSignalSpy removed(&tree.proxy, SIGNAL(rowsRemoved(QModelIndex, int, int)));
    QSignalSpy reset(&tree.proxy, SIGNAL(modelReset()));
    tree.proxy.setVisibility(GenApi::Beginner);
    QCOMPARE(tree.model.getVisibility(), GenApi::Beginner);
    QCOMPARE(tree.proxy.getVisibility(), GenApi::Beginner);
    // Nothing changes until the widget invalidates.
    QCOMPARE(walk(tree.proxy), shown);
    QCOMPARE(layoutAbout, 0);
    QCOMPARE(layout, 0);
    QCOMPARE(removed.count(), 0);
    QCOMPARE(reset.count(), 0);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 3);

    tree.proxy.invalidate();
    QCOMPARE(layout, 1);
    shown = walk(tree.proxy);
    QVERIFY(shown.contains(QStringLiteral("@CameraDevice/ProbeBeginner")));
    QVERIFY(!shown.contains(QStringLiteral("@CameraDevice/ProbeExpert")));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 2);

    // getVisibility gives the model's level; the proxy filters by the level it was given.
    tree.model.setVisibility(GenApi::Guru);
    QCOMPARE(tree.proxy.getVisibility(), GenApi::Guru);
    QCOMPARE(search(tree.proxy, QStringLiteral("Probe")), shown);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
}

void TestFeatureTreeProxyModel::countsKeepTheMatchesOfPersistentRowsMappedAgainFirst()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    tree.add(grabber);
    search(tree.proxy, QStringLiteral("Probe"));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 3);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);

    // A view holds persistent rows (editors, the current row) deep in the
    // tree. invalidate() maps their parents again before the top level, and
    // a parent mapped then is not filtered again by the walk.
    const QPersistentModelIndex probe(shownIndex(tree.proxy, QStringLiteral("@CameraDevice/ProbeGuru")));
    QVERIFY(probe.isValid());
    tree.proxy.invalidate();
    QVERIFY(probe.isValid());
    walk(tree.proxy);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 3);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);

    // So does a new text: the rows shown are filtered before those hidden.
    tree.proxy.setFilterFixedString(QStringLiteral("Width"));
    walk(tree.proxy);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    tree.proxy.invalidate();
    walk(tree.proxy);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
}

void TestFeatureTreeProxyModel::aNewLevelStartsNewCountsAtTheNextFilteredRow()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    search(tree.proxy, QStringLiteral("Probe"));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 3);

    // Filtered again at the same text without invalidate(): the counts of the
    // old level go, and none is counted twice.
    tree.proxy.setVisibility(GenApi::Beginner);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 3);
    tree.proxy.setFilterFixedString(QStringLiteral("Probe"));
    walk(tree.proxy);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 2);
}

void TestFeatureTreeProxyModel::everyRowPassesWhileACollectionIsAdded()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    search(tree.proxy, QStringLiteral("Probe"));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 3);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);
    // A lower level, not yet applied: filtering ProbeExpert now would count it as hidden.
    tree.proxy.setVisibility(GenApi::Beginner);

    const QModelIndex imageFormat = tree.sourceIndex(QStringLiteral("@CameraDevice/ImageFormat"));
    const QModelIndex levels = tree.sourceIndex(QStringLiteral("@CameraDevice/Levels"));
    const int heightRow = tree.sourceIndex(QStringLiteral("@CameraDevice/Height")).row();
    const int expertRow = tree.sourceIndex(QStringLiteral("@CameraDevice/ProbeExpert")).row();
    QVERIFY(!tree.proxy.filterAcceptsRow(heightRow, imageFormat));
    const int visibleBefore = tree.proxy.getVisibleMatchCount();
    const int invisibleBefore = tree.proxy.getInvisibleMatchCount();

    // Inside the call, as the model announces the new node map.
    int calls = 0;
    bool heightPassed = false;
    bool expertPassed = false;
    int visibleDuring = -1;
    int invisibleDuring = -1;
    connect(&tree.model, &QAbstractItemModel::layoutChanged, this, [&] {
        ++calls;
        heightPassed = tree.proxy.filterAcceptsRow(heightRow, imageFormat);
        expertPassed = tree.proxy.filterAcceptsRow(expertRow, levels);
        visibleDuring = tree.proxy.getVisibleMatchCount();
        invisibleDuring = tree.proxy.getInvisibleMatchCount();
    });
    tree.proxy.addParameterCollection(tree.device->nodeMap(grabber), QStringLiteral("Grabber"), grabber, false);
    QCOMPARE(calls, 1);
    QVERIFY(heightPassed);
    QVERIFY(expertPassed);
    // Nothing was counted.
    QCOMPARE(visibleDuring, visibleBefore);
    QCOMPARE(invisibleDuring, invisibleBefore);
    QCOMPARE(tree.model.nodemaps().count(), 2);

    // Afterwards the rule holds again, and counts: every match of both node
    // maps, each name once, ProbeExpert and ProbeGuru hidden at Beginner.
    QVERIFY(!tree.proxy.filterAcceptsRow(heightRow, imageFormat));
    QVERIFY(!tree.proxy.filterAcceptsRow(expertRow, levels));
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 2);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
}

void TestFeatureTreeProxyModel::collectionAddedDuringASearchShowsUnfilteredUntilInvalidate()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera, QStringLiteral("Camera"));
    QStringList shown = search(tree.proxy, QStringLiteral("Height"));
    QCOMPARE(shown,
        QStringList({ QStringLiteral("@CameraDevice*Root"), QStringLiteral("@CameraDevice/ImageFormat"),
            QStringLiteral("@CameraDevice/Height") }));
    // A view holds on to its current row, and so keeps the proxy's mapping up through changes.
    const QPersistentModelIndex current = shownIndex(tree.proxy, QStringLiteral("@CameraDevice/Height"));
    QVERIFY(current.isValid());

    tree.proxy.addParameterCollection(tree.device->nodeMap(grabber), QStringLiteral("Grabber"), grabber, false);
    // The new node map is there with its whole first level, though nothing in it matches.
    const QModelIndex grabberRoot = shownIndex(tree.proxy, QStringLiteral("@StreamGrabber0*Root"));
    QVERIFY(grabberRoot.isValid());
    const QModelIndex sourceRoot = tree.proxy.mapToSource(grabberRoot);
    QCOMPARE(tree.proxy.rowCount(grabberRoot), 3);
    QCOMPARE(tree.proxy.rowCount(grabberRoot), tree.model.rowCount(sourceRoot));
    QCOMPARE(tree.proxy.index(0, 0, grabberRoot).data(FeatureTreeItem::FullNameRole).toString(),
        QStringLiteral("@StreamGrabber0/Width"));
    QVERIFY(current.isValid());

    // The widget's invalidate() applies the search to it.
    tree.proxy.invalidate();
    QCOMPARE(walk(tree.proxy), shown);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
}

// ---- the rule ---------------------------------------------------------------

void TestFeatureTreeProxyModel::searchFindsDisplayOrFeatureNameInAnyCase_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("found");
    // ExposureTime, shown as "Exposure Time [us]".
    QTest::newRow("the feature name") << "ExposureTime" << true;
    QTest::newRow("inside the feature name, other case") << "OSURETI" << true;
    QTest::newRow("inside the display name only") << "sure ti" << true;
    QTest::newRow("display name, upper case") << "EXPOSURE TIME" << true;
    QTest::newRow("display name, mixed case") << "eXpOsUrE" << true;
    QTest::newRow("the unit in the display text") << "[US]" << true;
    QTest::newRow("a single letter") << "x" << true;
    QTest::newRow("two spaces are not one") << "Exposure  Time" << false;
    QTest::newRow("no partial words") << "Exp Time" << false;
    QTest::newRow("the node map's name is not searched") << "CameraDevice/Exposure" << false;
}

void TestFeatureTreeProxyModel::searchFindsDisplayOrFeatureNameInAnyCase()
{
    QFETCH(QString, text);
    QFETCH(bool, found);
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    const QStringList shown = search(tree.proxy, text);
    QCOMPARE(shown.contains(QStringLiteral("@CameraDevice/ExposureTime")), found);
    if (found)
        QVERIFY(tree.proxy.getVisibleMatchCount() >= 1);
    else
        QCOMPARE(tree.proxy.getVisibleMatchCount(), 0);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);
}

void TestFeatureTreeProxyModel::searchFoldsCaseAsQStringDoes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("hits");
    QTest::newRow("ASCII, other case") << "PLAIN gAIN" << 1;
    QTest::newRow("ASCII across a space") << "n g" << 1;
    QTest::newRow("ASCII text, Kelvin sign in the display name") << "k" << 1;
    QTest::newRow("ASCII text, long s in the display name") << "CASE" << 1;
    QTest::newRow("long s as the text") << QString(QChar(0x017F)) << 4;
    QTest::newRow("capital mu as the text, micro sign in the unit") << QString(QChar(0x039C)) << 1;
    QTest::newRow("accented capital against its small letter") << QString(QChar(0x00C9)) + QStringLiteral("CLAIR") << 1;
    QTest::newRow("sharp s is not two letters") << "STRASSE" << 0;
    QTest::newRow("sharp s itself") << QStringLiteral("stra") + QChar(0x00DF) << 1;
    QTest::newRow("no match") << "zq" << 0;
}

void TestFeatureTreeProxyModel::searchFoldsCaseAsQStringDoes()
{
    // The proxy finds a feature exactly where QString::contains, ignoring
    // case, finds the text in its display text or its name (the independent
    // rules above use it), whatever the letters.
    QFETCH(QString, text);
    QFETCH(int, hits);
    SearchTree tree(foldingCamera);
    QVERIFY(tree.device);
    tree.add(camera);
    QVERIFY(fillCompletely(tree.model) >= 9);
    const QStringList shown = search(tree.proxy, text);
    const Expected expected = expectedFor(tree.model, text, GenApi::Guru);
    QCOMPARE(shown, expected.shown);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), expected.visible.count());
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);
    // The texts chosen really find what they are meant to.
    QCOMPARE(tree.proxy.getVisibleMatchCount(), hits);
}

void TestFeatureTreeProxyModel::starAndQuestionMarkAreOrdinaryCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("features");
    // "Gain * 2" and "Mode?" are the only texts with these characters.
    QTest::newRow("star") << "*" << QStringList({ QStringLiteral("@CameraDevice/StarGain") });
    QTest::newRow("question mark") << "?" << QStringList({ QStringLiteral("@CameraDevice/QuestionMode") });
    QTest::newRow("star between words") << "n * 2" << QStringList({ QStringLiteral("@CameraDevice/StarGain") });
    QTest::newRow("star as a wildcard finds nothing") << "G*2" << QStringList();
    QTest::newRow("question mark as a wildcard finds nothing") << "Heig?t" << QStringList();
    QTest::newRow("question mark at the end") << "de?" << QStringList({ QStringLiteral("@CameraDevice/QuestionMode") });
    QTest::newRow("brackets and a dot") << "[px]." << QStringList();
    QTest::newRow("regular expression") << "W.dth" << QStringList();
}

void TestFeatureTreeProxyModel::starAndQuestionMarkAreOrdinaryCharacters()
{
    QFETCH(QString, text);
    QFETCH(QStringList, features);
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    const QStringList shown = search(tree.proxy, text);
    QStringList shownFeatures;
    for (const QString& name : shown) {
        const QModelIndex index = tree.sourceIndex(name);
        if (index.isValid() && !index.data(FeatureTreeItem::IsCategoryRole).toBool())
            shownFeatures << name;
    }
    QCOMPARE(shownFeatures, features);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), features.count());
}

void TestFeatureTreeProxyModel::featureInTreeAndFavoritesCountsOnce()
{
    setStore({ favorite(QStringLiteral("Width")) });
    SearchTree tree;
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    tree.add(camera);
    QVERIFY(qobject_cast<FeatureTreeINodeItem*>(itemAt(tree.sourceIndex(QStringLiteral("Fav*CameraDevice*Width")))));

    const QStringList shown = search(tree.proxy, QStringLiteral("width"));
    QVERIFY(shown.contains(QStringLiteral("Fav*CameraDevice*Width")));
    QVERIFY(shown.contains(QStringLiteral("@CameraDevice/Width")));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);
}

void TestFeatureTreeProxyModel::likeNamedFeaturesOfTwoNodeMapsCountOnce()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    tree.add(grabber);
    // "Buffer Width" in the grabber is found by its name.
    const QStringList shown = search(tree.proxy, QStringLiteral("WIDTH"));
    QVERIFY(shown.contains(QStringLiteral("@CameraDevice/Width")));
    QVERIFY(shown.contains(QStringLiteral("@StreamGrabber0/Width")));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);

    // Two features with their own names are two matches.
    search(tree.proxy, QStringLiteral("e"));
    const int all = tree.proxy.getVisibleMatchCount();
    search(tree.proxy, QStringLiteral("Buffer"));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 2);
    QVERIFY(all > 2);
}

void TestFeatureTreeProxyModel::visibilityAgainstLevel_data()
{
    QTest::addColumn<QString>("feature");
    QTest::addColumn<GenApi::EVisibility>("level");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<int>("visible");
    QTest::addColumn<int>("invisible");

    struct Expectation
    {
        const char* feature;
        bool shown[4];
        int visible[4];
        int invisible[4];
    };
    // Per level: Beginner, Expert, Guru, Invisible.
    const Expectation expectations[] = {
        { "ProbeBeginner", { true, true, true, true }, { 1, 1, 1, 1 }, { 0, 0, 0, 0 } },
        // Above the level: counted as hidden and not shown.
        { "ProbeExpert", { false, true, true, true }, { 0, 1, 1, 1 }, { 1, 0, 0, 0 } },
        { "ProbeGuru", { false, false, true, true }, { 0, 0, 1, 1 }, { 1, 1, 0, 0 } },
        // Invisible: neither shown nor counted below Invisible; at Invisible, shown and counted as visible.
        { "ProbeInvisible", { false, false, false, true }, { 0, 0, 0, 1 }, { 0, 0, 0, 0 } },
        // Not implemented: ShowMe refuses it below Invisible.
        { "ProbeNotImplemented", { false, false, false, true }, { 0, 0, 0, 1 }, { 0, 0, 0, 0 } },
    };
    for (const Expectation& e : expectations) {
        for (int l = 0; l < 4; ++l) {
            QTest::addRow("%s at %s", e.feature, levelName(allLevels.at(l)))
                << QString::fromLatin1(e.feature) << allLevels.at(l) << e.shown[l] << e.visible[l] << e.invisible[l];
        }
    }
}

void TestFeatureTreeProxyModel::visibilityAgainstLevel()
{
    QFETCH(QString, feature);
    QFETCH(GenApi::EVisibility, level);
    QFETCH(bool, shown);
    QFETCH(int, visible);
    QFETCH(int, invisible);

    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    tree.proxy.setVisibility(level);
    const QStringList rows = search(tree.proxy, feature);
    QCOMPARE(rows.contains(QStringLiteral("@CameraDevice/") + feature), shown);
    // The path to a shown feature shows; nothing shows for a hidden one.
    QCOMPARE(rows.contains(QStringLiteral("@CameraDevice/Levels")), shown);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), visible);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), invisible);
}

void TestFeatureTreeProxyModel::undefinedVisibilityIsAHitThatIsNeitherShownNorCounted_data()
{
    QTest::addColumn<GenApi::EVisibility>("level");
    for (GenApi::EVisibility level : allLevels)
        QTest::newRow(levelName(level)) << level;
}

void TestFeatureTreeProxyModel::undefinedVisibilityIsAHitThatIsNeitherShownNorCounted()
{
    QFETCH(GenApi::EVisibility, level);
    QStandardItemModel source;
    QStandardItem* odd = roleItem(QStringLiteral("Odd Probe"), QStringLiteral("OddProbe"), 99, false);
    // A hit keeps its children: this one isn't shown, so its child isn't kept either.
    odd->appendRow(roleItem(QStringLiteral("Child"), QStringLiteral("Child"), GenApi::Beginner, true));
    source.appendRow(odd);
    source.appendRow(roleItem(QStringLiteral("Plain Probe"), QStringLiteral("PlainProbe"), GenApi::Beginner, true));

    Proxy proxy;
    setUpLikeTheView(proxy, &source);
    proxy.setVisibility(level);
    proxy.setFilterFixedString(QStringLiteral("probe"));
    proxy.invalidate();
    QCOMPARE(proxy.rowCount(), 1);
    QCOMPARE(proxy.index(0, 0).data().toString(), QStringLiteral("Plain Probe"));
    QCOMPARE(proxy.getVisibleMatchCount(), 1);
    QCOMPARE(proxy.getInvisibleMatchCount(), 0);
    QVERIFY(!proxy.filterAcceptsRowItself(0, QModelIndex()));
    QCOMPARE(proxy.getVisibleMatchCount(), 1);
}

void TestFeatureTreeProxyModel::searchForRootFindsNoNodeMapRoot()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera, QStringLiteral("Root of the camera"));
    tree.add(grabber, QStringLiteral("Root of the grabber"));
    const QStringList shown = search(tree.proxy, QStringLiteral("Root"));
    // The camera's root stays as the path to "Root Mean Square"; the grabber's has nothing below that matches.
    QCOMPARE(
        shown, QStringList({ QStringLiteral("@CameraDevice*Root"), QStringLiteral("@CameraDevice/RootMeanSquare") }));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);
    const QModelIndex root = tree.model.index(0, 0);
    QVERIFY(!tree.proxy.filterAcceptsRowItself(root.row(), QModelIndex()));
    QVERIFY(tree.proxy.filterAcceptsRow(root.row(), QModelIndex()));
    QVERIFY(!tree.proxy.filterAcceptsRow(1, QModelIndex()));
}

void TestFeatureTreeProxyModel::itemNamedRootHasNoEffectOnTheCounts_data()
{
    QTest::addColumn<GenApi::EVisibility>("level");
    QTest::addColumn<int>("rootVisibility");
    for (GenApi::EVisibility level : allLevels) {
        for (int visibility : { int(GenApi::Beginner), int(GenApi::Guru), int(GenApi::Invisible) })
            QTest::addRow("level %s, item %d", levelName(level), visibility) << level << visibility;
    }
}

void TestFeatureTreeProxyModel::itemNamedRootHasNoEffectOnTheCounts()
{
    QFETCH(GenApi::EVisibility, level);
    QFETCH(int, rootVisibility);
    // Not a category, and its display text matches: only its name keeps it out.
    QStandardItemModel source;
    QStandardItem* root = roleItem(
        QStringLiteral("Root feature"), QStringLiteral("Root"), rootVisibility, rootVisibility <= int(GenApi::Guru));
    root->appendRow(roleItem(QStringLiteral("Leaf"), QStringLiteral("Leaf"), GenApi::Beginner, true));
    source.appendRow(root);
    Proxy proxy;
    setUpLikeTheView(proxy, &source);
    proxy.setVisibility(level);

    // Searching for it finds nothing and counts nothing.
    QCOMPARE(search(proxy, QStringLiteral("Root")), QStringList());
    QCOMPARE(proxy.getVisibleMatchCount(), 0);
    QCOMPARE(proxy.getInvisibleMatchCount(), 0);

    // It stays as the path to what is found below it, uncounted.
    QCOMPARE(search(proxy, QString()), QStringList({ QStringLiteral("Root"), QStringLiteral("Leaf") }));
    QCOMPARE(proxy.getVisibleMatchCount(), 1);
    QCOMPARE(proxy.getInvisibleMatchCount(), 0);
    QCOMPARE(search(proxy, QStringLiteral("e")), QStringList({ QStringLiteral("Root"), QStringLiteral("Leaf") }));
    QCOMPARE(proxy.getVisibleMatchCount(), 1);
    QCOMPARE(proxy.getInvisibleMatchCount(), 0);
}

void TestFeatureTreeProxyModel::matchingCategoryWithoutMatchingChildDisappears()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    // "Gain Control" matches, none of its children does; "Gain * 2" elsewhere does.
    QStringList shown = search(tree.proxy, QStringLiteral("Gain"));
    QVERIFY(!shown.contains(QStringLiteral("@CameraDevice/GainControl")));
    QVERIFY(!shown.contains(QStringLiteral("@CameraDevice/BlackLevel")));
    QVERIFY(!shown.contains(QStringLiteral("@CameraDevice/Gamma")));
    QVERIFY(shown.contains(QStringLiteral("@CameraDevice/StarGain")));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);

    // By its own name only: nothing shows and nothing is counted.
    shown = search(tree.proxy, QStringLiteral("GainControl"));
    QCOMPARE(shown, QStringList());
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 0);

    // A matching child brings the category back, with that child alone.
    shown = search(tree.proxy, QStringLiteral("Gamma"));
    QCOMPARE(shown,
        QStringList({ QStringLiteral("@CameraDevice*Root"), QStringLiteral("@CameraDevice/GainControl"),
            QStringLiteral("@CameraDevice/Gamma") }));
}

void TestFeatureTreeProxyModel::zombiesMatchByFullNameLiveFavoritesByName()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("GoneA")),
        favorite(QStringLiteral("GoneB"), grabber) });
    SearchTree tree;
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    tree.add(camera);
    tree.add(grabber);
    const QModelIndex zombie = tree.sourceIndex(QStringLiteral("Fav*CameraDevice*GoneA"));
    QCOMPARE(zombie.data(FeatureTreeItem::NodeNameRole).toString(), QStringLiteral("Fav*CameraDevice*GoneA"));
    QCOMPARE(tree.sourceIndex(QStringLiteral("Fav*CameraDevice*Width")).data(FeatureTreeItem::NodeNameRole).toString(),
        QStringLiteral("Width"));

    QStringList shown = search(tree.proxy, QStringLiteral("Fav"));
    QCOMPARE(shown,
        QStringList({ QStringLiteral("FavoritesTopLevel"), QStringLiteral("Fav*CameraDevice*GoneA"),
            QStringLiteral("Fav*StreamGrabber0*GoneB") }));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 2);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);

    // A zombie's node map part is found as well; the live favourite is found by its own name.
    shown = search(tree.proxy, QStringLiteral("StreamGrabber0*"));
    QCOMPARE(shown, QStringList({ QStringLiteral("FavoritesTopLevel"), QStringLiteral("Fav*StreamGrabber0*GoneB") }));
    shown = search(tree.proxy, QStringLiteral("Width"));
    QVERIFY(shown.contains(QStringLiteral("Fav*CameraDevice*Width")));
    // The display name that a zombie remembers is found too.
    shown = search(tree.proxy, QStringLiteral("GoneA remembered"));
    QCOMPARE(shown, QStringList({ QStringLiteral("FavoritesTopLevel"), QStringLiteral("Fav*CameraDevice*GoneA") }));
}

void TestFeatureTreeProxyModel::hiddenZombiesAreNoSearchResults_data()
{
    QTest::addColumn<GenApi::EVisibility>("level");
    QTest::addColumn<bool>("shown");
    QTest::newRow("Beginner") << GenApi::Beginner << false;
    QTest::newRow("Expert") << GenApi::Expert << false;
    QTest::newRow("Guru") << GenApi::Guru << false;
    QTest::newRow("Invisible") << GenApi::Invisible << true;
}

void TestFeatureTreeProxyModel::hiddenZombiesAreNoSearchResults()
{
    QFETCH(GenApi::EVisibility, level);
    QFETCH(bool, shown);
    store().setViewAllFavorites(false);
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("GoneA")) });
    SearchTree tree;
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    tree.add(camera);
    QCOMPARE(tree.sourceIndex(QStringLiteral("Fav*CameraDevice*GoneA")).data(FeatureTreeItem::VisibilityRole).toInt(),
        int(GenApi::Invisible));
    tree.proxy.setVisibility(level);

    const QStringList rows = search(tree.proxy, QStringLiteral("Gone"));
    QCOMPARE(rows.contains(QStringLiteral("Fav*CameraDevice*GoneA")), shown);
    QCOMPARE(rows.contains(QStringLiteral("FavoritesTopLevel")), shown);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), shown ? 1 : 0);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);

    // The live favourite is found as ever.
    QVERIFY(search(tree.proxy, QStringLiteral("Width")).contains(QStringLiteral("Fav*CameraDevice*Width")));
}

void TestFeatureTreeProxyModel::favoritesRootDisappearsWhenNoFavoriteMatches()
{
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("GoneA")) });
    SearchTree tree;
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    tree.add(camera);

    QVERIFY(walk(tree.proxy).contains(QStringLiteral("FavoritesTopLevel")));
    QVERIFY(tree.proxy.GetFavoritesRootIndex().isValid());

    QStringList shown = search(tree.proxy, QStringLiteral("Height"));
    QVERIFY(shown.contains(QStringLiteral("@CameraDevice/Height")));
    QVERIFY(!shown.contains(QStringLiteral("FavoritesTopLevel")));
    QVERIFY(!tree.proxy.GetFavoritesRootIndex().isValid());
    // "Favorites" is the root's own title: a category, never found by itself.
    shown = search(tree.proxy, QStringLiteral("Favorites"));
    QVERIFY(!shown.contains(QStringLiteral("FavoritesTopLevel")));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 0);

    shown = search(tree.proxy, QStringLiteral("Width"));
    QVERIFY(shown.contains(QStringLiteral("FavoritesTopLevel")));
    QVERIFY(tree.proxy.GetFavoritesRootIndex().isValid());
    QCOMPARE(tree.proxy.rowCount(tree.proxy.GetFavoritesRootIndex()), 1);

    shown = search(tree.proxy, QString());
    QVERIFY(shown.contains(QStringLiteral("FavoritesTopLevel")));
    QCOMPARE(tree.proxy.rowCount(tree.proxy.GetFavoritesRootIndex()), 2);

    // The help line of an empty list is a row like any other: found by its own text only.
    setStore({});
    SearchTree empty;
    empty.model.rebuildFavoriteItems();
    empty.add(camera);
    QVERIFY(!search(empty.proxy, QStringLiteral("Height")).contains(QStringLiteral("FavoritesTopLevel")));
    QCOMPARE(search(empty.proxy, QStringLiteral("right-clicking")),
        QStringList({ QStringLiteral("FavoritesTopLevel"), QStringLiteral("Dummy") }));
    QVERIFY(search(empty.proxy, QString()).contains(QStringLiteral("Dummy")));
}

void TestFeatureTreeProxyModel::searchHelpItemPassesByItsOwnVisibility_data()
{
    QTest::addColumn<GenApi::EVisibility>("helpVisibility");
    QTest::addColumn<GenApi::EVisibility>("level");
    QTest::addColumn<bool>("shown");
    for (GenApi::EVisibility level : allLevels)
        QTest::addRow("Beginner item at %s", levelName(level)) << GenApi::Beginner << level << true;
    for (GenApi::EVisibility level : allLevels)
        QTest::addRow("Invisible item at %s", levelName(level))
            << GenApi::Invisible << level << (level == GenApi::Invisible);
}

void TestFeatureTreeProxyModel::searchHelpItemPassesByItsOwnVisibility()
{
    QFETCH(GenApi::EVisibility, helpVisibility);
    QFETCH(GenApi::EVisibility, level);
    QFETCH(bool, shown);
    SearchTree tree;
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    tree.add(camera);
    FeatureTreeItem* help = tree.model.getSearchHelpItem();
    QVERIFY(help);
    help->setVisibility(helpVisibility);
    tree.proxy.setVisibility(level);

    // It needs no match: a text that finds nothing leaves it alone in the tree when it shows.
    const QStringList rows = search(tree.proxy, QStringLiteral("no such feature anywhere"));
    QCOMPARE(rows, shown ? QStringList({ QStringLiteral("Search") }) : QStringList());
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 0);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);
    QCOMPARE(search(tree.proxy, QStringLiteral("Height")).contains(QStringLiteral("Search")), shown);
    QCOMPARE(search(tree.proxy, QString()).contains(QStringLiteral("Search")), shown);
}

void TestFeatureTreeProxyModel::emptyTextIsTheLevelFilter_data()
{
    QTest::addColumn<GenApi::EVisibility>("level");
    for (GenApi::EVisibility level : allLevels)
        QTest::newRow(levelName(level)) << level;
}

void TestFeatureTreeProxyModel::emptyTextIsTheLevelFilter()
{
    QFETCH(GenApi::EVisibility, level);
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    tree.proxy.setVisibility(level);
    const QStringList shown = search(tree.proxy, QString());

    // A feature shows by its visibility; a category only if something below it shows.
    QCOMPARE(shown.contains(QStringLiteral("@CameraDevice/ProbeBeginner")), true);
    QCOMPARE(shown.contains(QStringLiteral("@CameraDevice/ProbeExpert")), level >= GenApi::Expert);
    QCOMPARE(shown.contains(QStringLiteral("@CameraDevice/ProbeGuru")), level >= GenApi::Guru);
    QCOMPARE(shown.contains(QStringLiteral("@CameraDevice/ProbeInvisible")), level == GenApi::Invisible);
    QCOMPARE(shown.contains(QStringLiteral("@CameraDevice/ProbeNotImplemented")), level == GenApi::Invisible);
    QCOMPARE(shown.contains(QStringLiteral("@CameraDevice/ExpertOnly")), level >= GenApi::Expert);
    QCOMPARE(shown.contains(QStringLiteral("@CameraDevice/TuningOffset")), level >= GenApi::Expert);
    QVERIFY(shown.contains(QStringLiteral("@CameraDevice/Bottom")));

    // Everything matches the empty text: all features are counted by the level.
    const int features = 15;
    const int aboveBeginner = 3; // ProbeExpert, ProbeGuru, TuningOffset
    const int expected[4][2] = { { features - aboveBeginner - 2, aboveBeginner }, { features - 2 - 1, 1 },
        { features - 2, 0 }, { features, 0 } };
    QCOMPARE(tree.proxy.getVisibleMatchCount(), expected[level][0]);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), expected[level][1]);
}

void TestFeatureTreeProxyModel::unfilledCategoriesShowAsTheirItemsWould_data()
{
    QTest::addColumn<GenApi::EVisibility>("level");
    for (GenApi::EVisibility level : allLevels)
        QTest::newRow(levelName(level)) << level;
}

void TestFeatureTreeProxyModel::unfilledCategoriesShowAsTheirItemsWould()
{
    QFETCH(GenApi::EVisibility, level);

    // Whether a category shows depends on what lies below it. Before a
    // category's level is filled, that is read from the parameters; after,
    // from its items. Both must come to the same rows.
    const auto shownRows = [&](bool fillFirst, int* builtBelowCategories) {
        SearchTree tree(hollowCamera);
        breakHollowCamera(*tree.device);
        tree.add(camera);
        tree.proxy.setVisibility(level);
        if (fillFirst)
            fillCompletely(tree.model);
        tree.proxy.setFilterFixedString(QString());
        tree.proxy.invalidate();
        QModelIndex nodeMap;
        for (int row = 0; row < tree.proxy.rowCount(); ++row) {
            const QModelIndex index = tree.proxy.index(row, 0);
            if (index.data(FeatureTreeItem::FullNameRole).toString().endsWith(QLatin1String("*Root")))
                nodeMap = index;
        }
        if (!nodeMap.isValid())
            return QStringList();
        // Mapping the first category's children judges each of them.
        const QModelIndex first = tree.proxy.index(0, 0, nodeMap);
        tree.proxy.rowCount(first);
        *builtBelowCategories = 0;
        const FeatureTreeItem* firstItem = itemAt(tree.proxy.mapToSource(first));
        for (int row = 0; row < firstItem->builtChildCount(); ++row)
            *builtBelowCategories += firstItem->child(row)->builtChildCount();
        return walk(tree.proxy);
    };
    int unfilledBuilt = -1;
    const QStringList fromParameters = shownRows(false, &unfilledBuilt);
    // Every category was judged before its level was filled: the comparison
    // is not between two walks over the same items.
    QCOMPARE(unfilledBuilt, 0);
    int filledBuilt = -1;
    const QStringList fromItems = shownRows(true, &filledBuilt);
    QVERIFY2(filledBuilt > 4, qPrintable(QString::number(filledBuilt)));
    QVERIFY(fromItems.size() > 3);
    QCOMPARE(fromParameters, fromItems);

    const auto shows
        = [&](const char* name) { return fromItems.contains(QStringLiteral("@CameraDevice/") + QLatin1String(name)); };
    QVERIFY(shows("Mixed"));
    QCOMPARE(shows("OnlyExpert"), level >= GenApi::Expert);
    QCOMPARE(shows("OnlyGuru"), level >= GenApi::Guru);
    QCOMPARE(shows("NestedGuru"), level >= GenApi::Guru);
    QCOMPARE(shows("OnlyInvisible"), level == GenApi::Invisible);
    QCOMPARE(shows("OnlyNotImplemented"), level == GenApi::Invisible);
    QCOMPARE(shows("Deep1"), level >= GenApi::Expert);
    for (const char* never : { "Empty", "NestedEmpty", "NestedInvisibleCategory", "OnlyFailing", "OnlyNullData",
             "FailingCategory", "DeepEmpty" })
        QVERIFY2(!shows(never), never);
}

void TestFeatureTreeProxyModel::levelsAskedForDuringAChangeAreFilledAfterIt()
{
    SearchTree tree(hollowCamera);
    QVERIFY(tree.device);
    breakHollowCamera(*tree.device);
    tree.add(camera);
    tree.proxy.invalidate();

    // Like QAbstractItemModelTester, a receiver that walks the whole proxy
    // whenever it changes, and notes any change that begins inside another.
    int depth = 0;
    QStringList nested;
    const auto begins = [&](const char* what) {
        if (depth > 0)
            nested << QLatin1String(what);
        ++depth;
        walk(tree.proxy);
    };
    const auto ends = [&] {
        walk(tree.proxy);
        --depth;
    };
    connect(&tree.proxy, &QAbstractItemModel::rowsAboutToBeInserted, &tree.proxy, [&] { begins("insertion"); });
    connect(&tree.proxy, &QAbstractItemModel::rowsInserted, &tree.proxy, ends);
    connect(&tree.proxy, &QAbstractItemModel::rowsAboutToBeRemoved, &tree.proxy, [&] { begins("removal"); });
    connect(&tree.proxy, &QAbstractItemModel::rowsRemoved, &tree.proxy, ends);
    connect(&tree.proxy, &QAbstractItemModel::layoutAboutToBeChanged, &tree.proxy, [&] { begins("layout"); });
    connect(&tree.proxy, &QAbstractItemModel::layoutChanged, &tree.proxy, ends);

    // "Cases" shows its categories, none of them filled yet. Counting the
    // rows of the first fills it, and that insertion makes the receiver walk
    // into the others: their levels wait for the end of the insertion
    // instead of being announced inside it.
    const QModelIndex nodeMap = shownIndex(tree.proxy, QStringLiteral("@CameraDevice*Root"));
    QVERIFY(nodeMap.isValid());
    const QPersistentModelIndex cases = tree.proxy.index(0, 0, nodeMap);
    QCOMPARE(cases.data(FeatureTreeItem::FullNameRole).toString(), QStringLiteral("@CameraDevice/Cases"));
    const QPersistentModelIndex mixed = tree.proxy.index(0, 0, cases);
    QCOMPARE(mixed.data(FeatureTreeItem::FullNameRole).toString(), QStringLiteral("@CameraDevice/Mixed"));
    QCOMPARE(tree.proxy.rowCount(mixed), 2);
    QCOMPARE(nested, QStringList());
    QCOMPARE(depth, 0);

    // Once the events are processed every level is there, as in a tree
    // filled before it was filtered.
    QCoreApplication::processEvents();
    QCOMPARE(nested, QStringList());
    SearchTree filled(hollowCamera);
    breakHollowCamera(*filled.device);
    filled.add(camera);
    fillCompletely(filled.model);
    filled.proxy.invalidate();
    QCOMPARE(walk(tree.proxy), walk(filled.proxy));
}

void TestFeatureTreeProxyModel::filterKeyColumnIsNotConsulted()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    for (int column : { 0, 1, -1 }) {
        tree.proxy.setFilterKeyColumn(column);
        // The value of Width is 640: column 1 is never read for matching.
        QVERIFY(!search(tree.proxy, QStringLiteral("640")).contains(QStringLiteral("@CameraDevice/Width")));
        QVERIFY(search(tree.proxy, QStringLiteral("width")).contains(QStringLiteral("@CameraDevice/Width")));
        QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    }
}

void TestFeatureTreeProxyModel::descendantsOfAHitStayVisible()
{
    // Only rows of plain models can be hits with children: a feature of the camera has none.
    QStandardItemModel source;
    QStandardItem* hit
        = roleItem(QStringLiteral("Parent Match"), QStringLiteral("ParentMatch"), GenApi::Beginner, true);
    QStandardItem* child = roleItem(QStringLiteral("Child"), QStringLiteral("Child"), GenApi::Beginner, true);
    child->appendRow(roleItem(QStringLiteral("Grandchild"), QStringLiteral("Grandchild"), GenApi::Beginner, true));
    hit->appendRow(child);
    source.appendRow(hit);
    source.appendRow(roleItem(QStringLiteral("Other"), QStringLiteral("Other"), GenApi::Beginner, true));
    Proxy proxy;
    setUpLikeTheView(proxy, &source);

    QCOMPARE(search(proxy, QStringLiteral("match")),
        QStringList({ QStringLiteral("ParentMatch"), QStringLiteral("Child"), QStringLiteral("Grandchild") }));
    // Kept, not found: only the hit counts.
    QCOMPARE(proxy.getVisibleMatchCount(), 1);

    // A hit that the level doesn't show keeps nothing.
    hit->setData(int(GenApi::Expert), FeatureTreeItem::VisibilityRole);
    proxy.setVisibility(GenApi::Beginner);
    QCOMPARE(search(proxy, QStringLiteral("match")), QStringList());
    QCOMPARE(proxy.getInvisibleMatchCount(), 1);
}

void TestFeatureTreeProxyModel::childrenOfALevelAreTriedBeforeAnyIsDescendedInto()
{
    const QByteArray json = cameraJson(R"(
        { "name": "Root", "type": "Category", "children": ["Sub", "TopMatch", "Plain"] },
        { "name": "Sub", "type": "Category", "children": ["DeepMatch"] },
        { "name": "DeepMatch", "type": "Integer", "value": 1, "min": 0, "max": 9 },
        { "name": "TopMatch", "type": "Integer", "visibility": "Expert", "value": 1, "min": 0, "max": 9 },
        { "name": "Plain", "type": "Integer", "value": 1, "min": 0, "max": 9 }
    )");
    SearchTree tree(json);
    QVERIFY(tree.device);
    tree.add(camera);
    tree.proxy.setVisibility(GenApi::Beginner);
    tree.proxy.setFilterFixedString(QStringLiteral("Match"));
    tree.proxy.invalidate();
    // Only the top level is filtered: the node map's row asks its children first
    // and only then descends into Sub. The counts don't depend on how far the
    // filtering went: DeepMatch counts as shown, TopMatch as hidden.
    QCOMPARE(tree.proxy.rowCount(), 1);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 1);

    // The recursion stops at the first accepted descendant: with Plain found
    // on the first level, Sub is never entered until the proxy filters that
    // level itself. DeepMatch, Plain and TopMatch count all the same.
    tree.proxy.setFilterFixedString(QStringLiteral("a"));
    tree.proxy.invalidate();
    QCOMPARE(tree.proxy.rowCount(), 1);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 2);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 1);
    walk(tree.proxy);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 2);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 1);
}

void TestFeatureTreeProxyModel::depthLimitsNothing()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    const QStringList shown = search(tree.proxy, QStringLiteral("Bottom Value"));
    QStringList expected { QStringLiteral("@CameraDevice*Root") };
    for (int i = 1; i <= 7; ++i)
        expected << QStringLiteral("@CameraDevice/Deep%1").arg(i);
    expected << QStringLiteral("@CameraDevice/Bottom");
    QCOMPARE(shown, expected);
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    QVERIFY(tree.proxy.hasAcceptedChildren(0, QModelIndex(), 0));
    QVERIFY(tree.proxy.hasAcceptedChildren(0, QModelIndex(), 1000));
    QVERIFY(tree.proxy.hasAcceptedChildren(0, QModelIndex(), -1000));
}

void TestFeatureTreeProxyModel::eachPassStartsWithEmptyCounts()
{
    SearchTree tree;
    QVERIFY(tree.device);
    tree.add(camera);
    tree.proxy.setVisibility(GenApi::Beginner);
    search(tree.proxy, QStringLiteral("Probe"));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 2);
    search(tree.proxy, QStringLiteral("Height"));
    QCOMPARE(tree.proxy.getVisibleMatchCount(), 1);
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), 0);

    // A new text, a new level or the mappings dropped start a pass. Filtering
    // a row again, the first top-level one too, neither counts it twice nor
    // forgets what the pass has counted.
    QStandardItemModel source;
    QStandardItem* third = roleItem(QStringLiteral("C Match"), QStringLiteral("C"), GenApi::Beginner, true);
    third->appendRow(roleItem(QStringLiteral("D Match"), QStringLiteral("D"), GenApi::Beginner, true));
    source.appendRow(roleItem(QStringLiteral("A Match"), QStringLiteral("A"), GenApi::Beginner, true));
    source.appendRow(roleItem(QStringLiteral("B Match"), QStringLiteral("B"), GenApi::Beginner, true));
    source.appendRow(third);
    Proxy proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setFilterFixedString(QStringLiteral("match"));
    proxy.setSourceModel(&source);
    walk(proxy);
    QCOMPARE(proxy.getVisibleMatchCount(), 4);
    QVERIFY(proxy.filterAcceptsRow(0, QModelIndex()));
    QVERIFY(proxy.filterAcceptsRow(0, source.index(2, 0)));
    QCOMPARE(proxy.getVisibleMatchCount(), 4);

    proxy.setFilterFixedString(QStringLiteral("D match"));
    QCOMPARE(proxy.getVisibleMatchCount(), 1);
    QVERIFY(proxy.filterAcceptsRow(0, QModelIndex()) == false);
    QCOMPARE(proxy.getVisibleMatchCount(), 1);

    // Counted in full when asked for, before any row is filtered again.
    proxy.invalidate();
    QCOMPARE(proxy.getVisibleMatchCount(), 1);
    walk(proxy);
    QCOMPARE(proxy.getVisibleMatchCount(), 1);
}

// ---- the whole default camera -------------------------------------------------

void TestFeatureTreeProxyModel::countsEqualAnIndependentWalk_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<GenApi::EVisibility>("level");
    const QStringList texts { QStringLiteral("width"), QStringLiteral("Gain"), QStringLiteral("e"), QStringLiteral("x"),
        QStringLiteral("Root"), QStringLiteral("*"), QStringLiteral("?"), QString(),
        QStringLiteral("no feature is called this"),
        // Found in Expert and Guru features only.
        QStringLiteral("Binning"), QStringLiteral("Sensor Pixel"),
        // In three node maps, at different levels.
        QStringLiteral("Gamma"),
        // Zombies and the search line's own text.
        QStringLiteral("Fav"), QStringLiteral("search results") };
    for (const QString& text : texts) {
        for (GenApi::EVisibility level : allLevels)
            QTest::addRow("\"%s\" at %s", qPrintable(text), levelName(level)) << text << level;
    }
}

void TestFeatureTreeProxyModel::countsEqualAnIndependentWalk()
{
    QFETCH(QString, text);
    QFETCH(GenApi::EVisibility, level);

    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Gain")),
        favorite(QStringLiteral("MaxNumBuffer"), grabber),
        favorite(QStringLiteral("Gamma"), QStringLiteral("@ImageFormatConverter")),
        favorite(QStringLiteral("NotOnThisCamera")) });
    SearchTree tree(Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV")));
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    const QStringList nodeMaps = tree.device->nodeMapNames();
    QCOMPARE(nodeMaps.count(), 5);
    for (const QString& name : nodeMaps)
        tree.add(name);
    // Fill everything first, so that the pass below builds nothing.
    const int rows = fillCompletely(tree.model);
    QVERIFY(rows > 500);

    tree.proxy.setVisibility(level);
    const QStringList shown = search(tree.proxy, text);

    QList<RowFacts> facts;
    for (int row = 0; row < tree.model.rowCount(QModelIndex()); ++row)
        facts << judge(tree.model, tree.model.index(row, 0), text, level);
    QStringList expectedShown;
    QSet<QString> visible;
    QSet<QString> invisible;
    expectedResult(facts, false, &expectedShown, &visible, &invisible);

    QCOMPARE(tree.proxy.getVisibleMatchCount(), visible.count());
    QCOMPARE(tree.proxy.getInvisibleMatchCount(), invisible.count());
    QCOMPARE(shown, expectedShown);

    // The texts chosen for their levels really are that.
    if (text == QLatin1String("Binning") && level == GenApi::Beginner) {
        QCOMPARE(visible.count(), 0);
        QVERIFY(invisible.count() > 0);
    }
    if (text == QLatin1String("Sensor Pixel") && level <= GenApi::Expert) {
        QCOMPARE(visible.count(), 0);
        QCOMPARE(invisible.count(), 2);
    }
    if (text == QLatin1String("no feature is called this")) {
        QCOMPARE(visible.count() + invisible.count(), 0);
    }
    if (text.isEmpty() && level == GenApi::Guru)
        QVERIFY(visible.count() > 400);
}

void TestFeatureTreeProxyModel::modelTesterWhileSearchTextsAndLevelsChange_data()
{
    QTest::addColumn<bool>("asAView");
    QTest::newRow("the proxy itself") << false;
    QTest::newRow("the proxy as a tree view sees it") << true;
}

void TestFeatureTreeProxyModel::modelTesterWhileSearchTextsAndLevelsChange()
{
    QFETCH(bool, asAView);
    using Excuse = ProxyTesterReports::Excuse;
    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("NotOnThisCamera")),
        favorite(QStringLiteral("MaxNumBuffer"), grabber) });
    SearchTree tree(Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV")));
    QVERIFY(tree.device);
    // A tree view asks for children below column 0 only.
    ViewLikeProxy viewLike;
    viewLike.setSourceModel(&tree.proxy);
    QAbstractItemModel* const tested = asAView ? static_cast<QAbstractItemModel*>(&viewLike) : &tree.proxy;

    // The view's model is the proxy before anything is in it; the widget then
    // builds the favourites branch and the search line. The model announces
    // the search line as row 1 and places it at row 0; through the proxy that
    // draws no report, and none is excused.
    {
        ProxyTesterReports reports({ Excuse::RootFlags });
        QAbstractItemModelTester tester(tested, QAbstractItemModelTester::FailureReportingMode::Warning);
        VERIFY_NO_TESTER_REPORTS(reports);
        tree.proxy.rebuildFavoriteItems();
        tree.proxy.invalidate();
        walk(*tested);
        VERIFY_NO_TESTER_REPORTS(reports);
    }

    // The node maps come in and are filled without a tester: the tester walks
    // the whole tree on every signal, and here each walk would fill categories
    // from inside the proxy's handling of the model's signals.
    for (const QString& name : tree.device->nodeMapNames()) {
        tree.proxy.addParameterCollection(tree.device->nodeMap(name), name, name, false);
        tree.proxy.invalidate();
    }
    fillCompletely(tree.model);

    QList<Excuse> excuses { Excuse::RootFlags };
    if (!asAView)
        excuses << Excuse::ChildrenInEveryColumn;
    ProxyTesterReports reports(excuses);
    QAbstractItemModelTester tester(tested, QAbstractItemModelTester::FailureReportingMode::Warning);
    walk(*tested);
    VERIFY_NO_TESTER_REPORTS(reports);

    const auto invalidate = [&] {
        tree.proxy.invalidate();
        walk(*tested);
    };

    // Typing, clearing and typing again at each level, as the widget does it.
    const QStringList texts { QStringLiteral("w"), QStringLiteral("wi"), QStringLiteral("width"),
        QStringLiteral("widthx"), QString(), QStringLiteral("Gain"), QStringLiteral("*"), QStringLiteral("Fav"),
        QStringLiteral("Root"), QStringLiteral("Sensor Pixel"), QString() };
    for (GenApi::EVisibility level : { GenApi::Guru, GenApi::Beginner, GenApi::Invisible, GenApi::Expert }) {
        tree.proxy.setVisibility(level);
        invalidate();
        VERIFY_NO_TESTER_REPORTS(reports);
        for (const QString& text : texts) {
            tree.proxy.setFilterFixedString(text);
            walk(*tested);
            VERIFY_NO_TESTER_REPORTS(reports);
            invalidate();
            tree.proxy.refreshSpecialItems();
            tree.proxy.setFilterFixedString(text);
            walk(*tested);
            VERIFY_NO_TESTER_REPORTS(reports);
        }
    }

    // Live traffic during a search: values change, favourites are rebuilt, the level changes.
    tree.proxy.setVisibility(GenApi::Guru);
    tree.proxy.setFilterFixedString(QStringLiteral("a"));
    invalidate();
    QVERIFY(tree.device->changeOnDevice(QStringLiteral("@CameraDevice/Width"), 320));
    tree.proxy.refresh();
    QTRY_COMPARE(tree.sourceIndex(QStringLiteral("@CameraDevice/Width")).siblingAtColumn(1).data().toString(),
        QStringLiteral("320"));
    VERIFY_NO_TESTER_REPORTS(reports);
    store().appendNode(favorite(QStringLiteral("Height")));
    tree.proxy.rebuildFavoriteItems();
    walk(*tested);
    VERIFY_NO_TESTER_REPORTS(reports);
    store().setViewAllFavorites(false);
    tree.proxy.rebuildFavoriteItems();
    tree.proxy.setVisibility(GenApi::Beginner);
    invalidate();
    VERIFY_NO_TESTER_REPORTS(reports);
    tree.proxy.refreshSpecialItems();
    VERIFY_NO_TESTER_REPORTS(reports);

    // The last favourite goes during a search that shows the branch.
    store().setViewAllFavorites(true);
    tree.proxy.setFilterFixedString(QStringLiteral("Width"));
    invalidate();
    setStore({});
    tree.proxy.rebuildFavoriteItems();
    walk(*tested);
    VERIFY_NO_TESTER_REPORTS(reports);
}

// ---- direct reads against data() --------------------------------------------

void TestFeatureTreeProxyModel::directReadsEqualDataThroughAnyModel_data()
{
    QTest::addColumn<bool>("defaultCamera");
    QTest::addColumn<QString>("between");
    QTest::addColumn<GenApi::EVisibility>("level");
    QTest::addColumn<QString>("text");
    const QStringList texts { QStringLiteral("width"), QStringLiteral("e"), QStringLiteral("Root"),
        QStringLiteral("zq"), QStringLiteral("Probe"), QString() };
    const QStringList betweens { QStringLiteral("nothing"), QStringLiteral("identity"), QStringLiteral("relabelling"),
        QStringLiteral("plain copy") };
    for (bool defaultCamera : { false, true }) {
        for (const QString& between : betweens) {
            for (GenApi::EVisibility level : allLevels) {
                for (const QString& text : texts) {
                    QTest::addRow("%s, %s, %s, \"%s\"", defaultCamera ? "default camera" : "synthetic",
                        qPrintable(between), levelName(level), qPrintable(text))
                        << defaultCamera << between << level << text;
                }
            }
        }
    }
}

void TestFeatureTreeProxyModel::directReadsEqualDataThroughAnyModel()
{
    QFETCH(bool, defaultCamera);
    QFETCH(QString, between);
    QFETCH(GenApi::EVisibility, level);
    QFETCH(QString, text);

    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("Gamma")) });
    SearchTree tree(
        defaultCamera ? Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV")) : makeDevice(searchCamera));
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    for (const QString& name : tree.device->nodeMapNames())
        tree.add(name);
    QVERIFY(fillCompletely(tree.model) > 20);

    QIdentityProxyModel identity;
    RelabellingProxy relabelling;
    QStandardItemModel plain;
    QAbstractItemModel* source = &tree.model;
    if (between == QLatin1String("identity")) {
        identity.setSourceModel(&tree.model);
        source = &identity;
    } else if (between == QLatin1String("relabelling")) {
        relabelling.setSourceModel(&tree.model);
        source = &relabelling;
    } else if (between == QLatin1String("plain copy")) {
        copyRows(tree.model, QModelIndex(), plain.invisibleRootItem());
        source = &plain;
    }
    Proxy proxy;
    setUpLikeTheView(proxy, source);
    ProxyTesterReports reports({ ProxyTesterReports::Excuse::RootFlags });
    ViewLikeProxy viewLike;
    viewLike.setSourceModel(&proxy);
    QAbstractItemModelTester tester(&viewLike, QAbstractItemModelTester::FailureReportingMode::Warning);

    proxy.setVisibility(level);
    const QStringList shown = search(proxy, text);
    Expected expected = expectedFor(*source, text, level);
    // The search line passes without matching only where the source is the
    // model itself, which tells it by its item; elsewhere it is an ordinary row.
    const QModelIndex searchLine = childByFullName(*source, QModelIndex(), QStringLiteral("Search"));
    if (source != &tree.model && searchLine.isValid()
        && !searchLine.data(Qt::DisplayRole).toString().contains(text, Qt::CaseInsensitive)
        && !searchLine.data(FeatureTreeItem::NodeNameRole).toString().contains(text, Qt::CaseInsensitive))
        expected.shown.removeAll(QStringLiteral("Search"));
    QCOMPARE(shown, expected.shown);
    QCOMPARE(proxy.getVisibleMatchCount(), expected.visible.count());
    QCOMPARE(proxy.getInvisibleMatchCount(), expected.invisible.count());
    // Every row, one by one, as filterAcceptsRow() judges it, equals the walk.
    std::function<void(const QModelIndex&)> eachRow = [&](const QModelIndex& parent) {
        for (int row = 0; row < source->rowCount(parent); ++row) {
            const QModelIndex index = source->index(row, 0, parent);
            const QString name = index.data(FeatureTreeItem::FullNameRole).toString();
            const bool inWalk = expected.shown.contains(name);
            if (inWalk)
                QVERIFY2(proxy.filterAcceptsRow(row, parent), qPrintable(name));
            eachRow(index);
        }
    };
    eachRow(QModelIndex());

    // "zq" is found only in the prefix that data() of the relabelling proxy adds.
    if (text == QLatin1String("zq") && level == GenApi::Guru) {
        if (between == QLatin1String("relabelling"))
            QVERIFY(expected.visible.count() > 10);
        else
            QCOMPARE(expected.visible.count(), 0);
    }
    VERIFY_NO_TESTER_REPORTS(reports);
}

void TestFeatureTreeProxyModel::countsFollowTypingAndDeleting_data()
{
    QTest::addColumn<GenApi::EVisibility>("level");
    for (GenApi::EVisibility level : allLevels)
        QTest::addRow("%s", levelName(level)) << level;
}

void TestFeatureTreeProxyModel::countsFollowTypingAndDeleting()
{
    QFETCH(GenApi::EVisibility, level);

    setStore({ favorite(QStringLiteral("Width")), favorite(QStringLiteral("BinningHorizontal")),
        favorite(QStringLiteral("NotOnThisCamera")) });
    SearchTree tree(Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV")));
    QVERIFY(tree.device);
    tree.model.rebuildFavoriteItems();
    for (const QString& name : tree.device->nodeMapNames())
        tree.add(name);
    tree.model.CreateFavoritesRoot();
    FeatureTreeItem* help = tree.model.getSearchHelpItem();
    QVERIFY(help);
    ProxyTesterReports reports({ ProxyTesterReports::Excuse::RootFlags });
    ViewLikeProxy viewLike;
    viewLike.setSourceModel(&tree.proxy);
    QAbstractItemModelTester tester(&viewLike, QAbstractItemModelTester::FailureReportingMode::Warning);
    tree.proxy.setVisibility(level);

    QStringList keystrokes;
    const QString word = QStringLiteral("Binning");
    for (int length = 1; length <= word.size(); ++length)
        keystrokes << word.left(length);
    for (int length = word.size() - 1; length >= 1; --length)
        keystrokes << word.left(length);
    keystrokes << QStringLiteral("Bi") << QStringLiteral("Bin") << QStringLiteral("B") << QString()
               << QStringLiteral("w") << QStringLiteral("wi") << QStringLiteral("w");

    bool firstRowHidden = false;
    for (const QString& text : keystrokes) {
        // As the widget runs a keystroke: the text, a whole pass from the top,
        // then the search line shown only while hidden features match.
        tree.proxy.setFilterFixedString(text);
        tree.proxy.invalidate();
        const QStringList shown = walk(viewLike);
        const Expected expected = expectedFor(tree.model, text, level);
        QCOMPARE(shown, expected.shown);
        QCOMPARE(tree.proxy.getVisibleMatchCount(), expected.visible.count());
        QCOMPARE(tree.proxy.getInvisibleMatchCount(), expected.invisible.count());
        help->setVisibility(!text.isEmpty() && expected.invisible.count() > 0 ? GenApi::Beginner : GenApi::Invisible);
        const QModelIndex firstSource = tree.model.index(0, 0);
        if (!tree.proxy.mapFromSource(firstSource).isValid())
            firstRowHidden = true;
        VERIFY_NO_TESTER_REPORTS(reports);
    }
    // The search line, the first top-level row, was hidden in some passes;
    // at Invisible it always shows.
    QCOMPARE(firstRowHidden, level != GenApi::Invisible);
}

QTEST_MAIN(TestFeatureTreeProxyModel)
#include "tst_featuretreeproxymodel.moc"
