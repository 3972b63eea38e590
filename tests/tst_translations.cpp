// The compiled catalogues: each loads from the library's resources, every text
// of the sources has a finished translation in every language, and the tool
// tips of the features change with the installed translator. The viewer's own
// catalogues likewise: each compiled one holds every message, and every text
// of the viewer's sources and form has a finished translation.

#include "featuretreetestsupport.h"
#include "featuretreewidgettestsupport.h"

#include "camerasettings/camerasettings.h"
#include "featuretree/featuretreewidget.h"
#include "featuretree/ifeaturetreemodelextension.h"

#include <QDir>
#include <QDomDocument>
#include <QProcess>
#include <QTemporaryDir>
#include <QTranslator>
#include <QTreeView>
#include <QtTest>

namespace {

const QStringList kLanguages
    = { QStringLiteral("en"), QStringLiteral("ja"), QStringLiteral("ko"), QStringLiteral("zh") };

//! One message of a catalogue, with what is wrong with its translation, if anything.
struct Message
{
    QString context;
    QString source;
    QString comment;
    QStringList translations; //!< one, or the plural forms
    bool finished = false;
};

QList<Message> readCatalogue(const QString& path, QString* error)
{
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file, error))
        return {};
    QList<Message> messages;
    const QDomNodeList contexts = document.elementsByTagName(QStringLiteral("context"));
    for (int c = 0; c < contexts.size(); ++c) {
        const QDomElement context = contexts.at(c).toElement();
        const QString name = context.firstChildElement(QStringLiteral("name")).text();
        for (QDomElement m = context.firstChildElement(QStringLiteral("message")); !m.isNull();
             m = m.nextSiblingElement(QStringLiteral("message"))) {
            Message message;
            message.context = name;
            message.source = m.firstChildElement(QStringLiteral("source")).text();
            message.comment = m.firstChildElement(QStringLiteral("comment")).text();
            const QDomElement translation = m.firstChildElement(QStringLiteral("translation"));
            const QDomNodeList forms = translation.elementsByTagName(QStringLiteral("numerusform"));
            if (forms.isEmpty())
                message.translations.append(translation.text());
            for (int f = 0; f < forms.size(); ++f)
                message.translations.append(forms.at(f).toElement().text());
            const QString type = translation.attribute(QStringLiteral("type"));
            message.finished = type.isEmpty() && !message.translations.contains(QString());
            messages.append(message);
        }
    }
    return messages;
}

//! The node maps of the default camera and the translation contexts of their tool tips.
const QList<QPair<QString, QString>> kToolTipContexts
    = { { QStringLiteral("@CameraDevice"), QStringLiteral("CameraDevice") },
          { QStringLiteral("@DeviceTransportLayer"), QStringLiteral("TransportLayer") },
          { QStringLiteral("@StreamGrabber0"), QStringLiteral("StreamGrabber") },
          { QStringLiteral("@EventGrabber"), QStringLiteral("EventGrabber") },
          { QStringLiteral("@ImageFormatConverter"), QStringLiteral("ImageFormatConverter") } };

QString nodeMapOfContext(const QString& context)
{
    for (const auto& pair : kToolTipContexts) {
        if (pair.second == context)
            return pair.first;
    }
    return QString();
}

QString contextOfNodeMap(const QString& nodeMap)
{
    for (const auto& pair : kToolTipContexts) {
        if (pair.first == nodeMap)
            return pair.second;
    }
    return QString();
}

QString sourceCatalogue(const QString& language)
{
    return QStringLiteral(ZVC_TRANSLATION_DIR "/ZarvexViewerComponents_%1.ts").arg(language);
}

QString toolTipCatalogue(const QString& language)
{
    return QStringLiteral(ZVC_TRANSLATION_DIR "/FeatureToolTips_%1.ts").arg(language);
}

#ifdef ZVC_VIEWER_TRANSLATION_DIR
QString viewerCatalogue(const QString& language)
{
    return QStringLiteral(ZVC_VIEWER_TRANSLATION_DIR "/zarvex-viewer_%1.ts").arg(language);
}

QString compiledViewerCatalogue(const QString& language)
{
    return QStringLiteral(ZVC_VIEWER_QM_DIR "/zarvex-viewer_%1.qm").arg(language);
}
#endif

//! Runs lupdate over the directories into a scratch catalogue and reads what it found.
QList<Message> freshMessages(const QStringList& directories, QString* error)
{
    QTemporaryDir scratch;
    if (!scratch.isValid())
        return {};
    const QString fresh = scratch.filePath(QStringLiteral("fresh.ts"));
    QProcess lupdate;
    lupdate.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    lupdate.start(QStringLiteral(ZVC_LUPDATE),
        QStringList { QStringLiteral("-silent") } + directories + QStringList { QStringLiteral("-ts"), fresh });
    if (!lupdate.waitForFinished(120000) || lupdate.exitCode() != 0) {
        *error = QStringLiteral("lupdate failed");
        return {};
    }
    return readCatalogue(fresh, error);
}

QString messageKey(const Message& message)
{
    return message.context + QLatin1Char('|') + message.source + QLatin1Char('|') + message.comment;
}

//! The texts of found that the catalogue lacks or leaves unfinished.
QStringList missingTranslations(const QList<Message>& found, const QString& language, const QString& catalogue)
{
    QString error;
    QHash<QString, Message> kept;
    for (const Message& message : readCatalogue(catalogue, &error))
        kept.insert(messageKey(message), message);
    QStringList missing;
    for (const Message& message : found) {
        const auto it = kept.constFind(messageKey(message));
        if (it == kept.constEnd() || !it->finished)
            missing.append(language + QLatin1String(" ") + message.context + QLatin1String(": ") + message.source);
    }
    return missing;
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void eachCatalogueLoads_data();
    void eachCatalogueLoads();
    void everyMessageIsFinished_data();
    void everyMessageIsFinished();
    void everyTextOfTheSourcesIsInTheCatalogues();
    void toolTipCataloguesCoverTheSameFeatures();
    void everyFeatureOfTheDefaultCameraHasAToolTip();
    void toolTipOfExposureTimeFollowsTheTranslator();
    void restoreReportFollowsTheTranslator();
#ifdef ZVC_VIEWER_TRANSLATION_DIR
    void eachViewerCatalogueIsCompiledWhole_data();
    void eachViewerCatalogueIsCompiledWhole();
    void everyTextOfTheViewerIsInItsCatalogues();
    void viewerTranslationsAreTranslated_data();
    void viewerTranslationsAreTranslated();
#endif
};

void TestTranslations::eachCatalogueLoads_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : kLanguages)
        QTest::newRow(qPrintable(language)) << language;
}

void TestTranslations::eachCatalogueLoads()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY(translator.load(QStringLiteral(":/translation/ZarvexViewerComponents_%1.qm").arg(language)));
    QVERIFY(!translator.isEmpty());
    // Every message of both catalogues made it into the compiled one.
    for (const QString& path : { sourceCatalogue(language), toolTipCatalogue(language) }) {
        QString error;
        const QList<Message> messages = readCatalogue(path, &error);
        QVERIFY2(!messages.isEmpty(), qPrintable(path + QLatin1Char(' ') + error));
        for (const Message& message : messages) {
            const QString text = translator.translate(qPrintable(message.context), qPrintable(message.source),
                message.comment.isEmpty() ? nullptr : qPrintable(message.comment), 1);
            QVERIFY2(!text.isEmpty(), qPrintable(message.context + QLatin1String(": ") + message.source));
        }
    }
}

void TestTranslations::everyMessageIsFinished_data()
{
    QTest::addColumn<QString>("path");
    for (const QString& language : kLanguages) {
        QTest::newRow(qPrintable(QStringLiteral("sources ") + language)) << sourceCatalogue(language);
        QTest::newRow(qPrintable(QStringLiteral("tool tips ") + language)) << toolTipCatalogue(language);
#ifdef ZVC_VIEWER_TRANSLATION_DIR
        QTest::newRow(qPrintable(QStringLiteral("viewer ") + language)) << viewerCatalogue(language);
#endif
    }
}

void TestTranslations::everyMessageIsFinished()
{
    QFETCH(QString, path);
    QString error;
    const QList<Message> messages = readCatalogue(path, &error);
    QVERIFY2(!messages.isEmpty(), qPrintable(error));
    QStringList unfinished;
    for (const Message& message : messages) {
        if (!message.finished)
            unfinished.append(message.context + QLatin1String(": ") + message.source);
    }
    QVERIFY2(unfinished.isEmpty(), qPrintable(unfinished.join(QLatin1Char('\n'))));
}

void TestTranslations::everyTextOfTheSourcesIsInTheCatalogues()
{
    // lupdate reads the sources afresh into a scratch catalogue; each text it
    // finds must stand, translated, in the catalogues kept in the repository.
    QString error;
    const QList<Message> found = freshMessages(
        { QStringLiteral(ZVC_SOURCE_DIR "/featuretree"), QStringLiteral(ZVC_SOURCE_DIR "/messages"),
            QStringLiteral(ZVC_SOURCE_DIR "/network"), QStringLiteral(ZVC_SOURCE_DIR "/camerasettings") },
        &error);
    QVERIFY2(found.size() > 50, qPrintable(error));
    for (const QString& language : kLanguages) {
        const QStringList missing = missingTranslations(found, language, sourceCatalogue(language));
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
    }
}

void TestTranslations::toolTipCataloguesCoverTheSameFeatures()
{
    // The same keys in every language, each a feature of the default camera in
    // the context of its node map.
    // Some features exist on one transport-layer type only: a key is good if any type has its feature.
    QList<QSharedPointer<Simulation::SimulatedDevice>> devices;
    for (const char* type : { "GEV", "U3V", "IIDC", "CXP", "CamEmu" })
        devices.append(Simulation::SimulatedDevice::createDefault(QLatin1String(type)));
    const auto described = [&devices](const QString& mapName, const QString& fullName) {
        for (const auto& device : devices) {
            if (device->nodeMap(mapName) && device->nodeMap(mapName)->hasParameter(fullName))
                return true;
        }
        return false;
    };
    QStringList english;
    QString error;
    for (const Message& message : readCatalogue(toolTipCatalogue(QStringLiteral("en")), &error)) {
        english.append(messageKey(message));
        QVERIFY2(!nodeMapOfContext(message.context).isEmpty(), qPrintable(message.context));
        QVERIFY2(message.source.endsWith(QLatin1String("_Tooltip")), qPrintable(message.source));
        const QString mapName = nodeMapOfContext(message.context);
        const QString fullName = mapName + QLatin1Char('/') + message.source.chopped(8);
        QVERIFY2(described(mapName, fullName), qPrintable(fullName));
    }
    QVERIFY(english.contains(QStringLiteral("CameraDevice|ExposureTime_Tooltip|")));
    for (const QString& language : kLanguages) {
        QStringList keys;
        for (const Message& message : readCatalogue(toolTipCatalogue(language), &error))
            keys.append(messageKey(message));
        QCOMPARE(keys, english);
    }
}

void TestTranslations::everyFeatureOfTheDefaultCameraHasAToolTip()
{
    const auto device = Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV"));
    int features = 0;
    for (const QString& language : kLanguages) {
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(":/translation/ZarvexViewerComponents_%1.qm").arg(language)));
        QStringList missing;
        features = 0;
        // The description lists every feature, those of other transport-layer types too.
        for (const Simulation::NodeMapDescription& nodeMap : device->description().nodeMaps) {
            QVERIFY2(!contextOfNodeMap(nodeMap.name).isEmpty(), qPrintable(nodeMap.name));
            const QByteArray context = contextOfNodeMap(nodeMap.name).toLatin1();
            for (const Simulation::FeatureDescription& feature : nodeMap.features) {
                ++features;
                const QByteArray key = feature.name.toLatin1() + "_Tooltip";
                if (translator.translate(context.constData(), key.constData()).isEmpty())
                    missing.append(QLatin1String(context) + QLatin1Char('/') + feature.name);
            }
        }
        QVERIFY2(missing.isEmpty(), qPrintable(language + QLatin1String(":\n") + missing.join(QLatin1Char('\n'))));
    }
    QVERIFY(features > 500);
}

void TestTranslations::toolTipOfExposureTimeFollowsTheTranslator()
{
    const auto device = Simulation::SimulatedDevice::createDefault(QStringLiteral("GEV"));
    FeatureTreeWidget widget(QStringLiteral("camera"), device->baseInfo());
    widget.addParameterCollection(device->nodeMap(QStringLiteral("@CameraDevice")), QStringLiteral("CameraDevice"),
        QStringLiteral("@CameraDevice"), false);
    const QModelIndex index
        = widget.getFeatureExtension()->findItemByFullName(QStringLiteral("@CameraDevice/ExposureTime"), nullptr, 0);
    QVERIFY(index.isValid());
    const QString untranslated = index.data(Qt::ToolTipRole).toString();
    QVERIFY(!untranslated.isEmpty());

    QStringList seen = { untranslated };
    for (const QString& language : kLanguages) {
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(":/translation/ZarvexViewerComponents_%1.qm").arg(language)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        const QString translated = index.data(Qt::ToolTipRole).toString();
        QCoreApplication::removeTranslator(&translator);
        const QString expected = translator.translate("CameraDevice", "ExposureTime_Tooltip");
        QVERIFY(!expected.isEmpty());
        QVERIFY2(translated.contains(expected), qPrintable(translated));
        QVERIFY2(!seen.contains(translated), qPrintable(language + QLatin1String(": ") + translated));
        seen.append(translated);
    }
    QCOMPARE(index.data(Qt::ToolTipRole).toString(), untranslated);
}

void TestTranslations::restoreReportFollowsTheTranslator()
{
    // The report's lines are made by a struct nested in CameraSettings: its
    // texts must be looked up in the catalogue under CameraSettings too.
    CameraSettings::Report report;
    report.passes = 1;
    report.stopped = true;
    report.stopReason = QStringLiteral("x");
    const QStringList untranslated = report.toLines();
    QVERIFY(untranslated.size() >= 2);
    for (const QString& language : kLanguages) {
        QTranslator translator;
        QVERIFY(translator.load(QStringLiteral(":/translation/ZarvexViewerComponents_%1.qm").arg(language)));
        QVERIFY(QCoreApplication::installTranslator(&translator));
        const QStringList translated = report.toLines();
        const QString outcome = CameraSettings::outcomeText(CameraSettings::Refused);
        QCoreApplication::removeTranslator(&translator);
        QCOMPARE(translated.size(), untranslated.size());
        if (language == QLatin1String("en")) {
            // English counts its passes in the singular and the plural.
            QVERIFY2(translated.first().endsWith(QLatin1String("; 1 pass.")), qPrintable(translated.first()));
            CameraSettings::Report three = report;
            three.passes = 3;
            QVERIFY(QCoreApplication::installTranslator(&translator));
            const QString plural = three.toLines().first();
            QCoreApplication::removeTranslator(&translator);
            QVERIFY2(plural.endsWith(QLatin1String("; 3 passes.")), qPrintable(plural));
            continue;
        }
        for (int i = 0; i < translated.size(); ++i)
            QVERIFY2(
                translated.at(i) != untranslated.at(i), qPrintable(language + QLatin1String(": ") + translated.at(i)));
        QVERIFY2(outcome != QLatin1String("refused"), qPrintable(language));
    }
}

#ifdef ZVC_VIEWER_TRANSLATION_DIR
void TestTranslations::eachViewerCatalogueIsCompiledWhole_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : kLanguages)
        QTest::newRow(qPrintable(language)) << language;
}

void TestTranslations::eachViewerCatalogueIsCompiledWhole()
{
    QFETCH(QString, language);
    QTranslator translator;
    QVERIFY2(translator.load(compiledViewerCatalogue(language)), qPrintable(compiledViewerCatalogue(language)));
    QString error;
    const QList<Message> messages = readCatalogue(viewerCatalogue(language), &error);
    QVERIFY2(messages.size() > 100, qPrintable(error));
    for (const Message& message : messages) {
        const QString text = translator.translate(qPrintable(message.context), qPrintable(message.source),
            message.comment.isEmpty() ? nullptr : qPrintable(message.comment), 1);
        QVERIFY2(!text.isEmpty(), qPrintable(message.context + QLatin1String(": ") + message.source));
    }
}

void TestTranslations::everyTextOfTheViewerIsInItsCatalogues()
{
    QString error;
    const QList<Message> found = freshMessages({ QStringLiteral(ZVC_VIEWER_SOURCE_DIR) }, &error);
    QVERIFY2(found.size() > 100, qPrintable(error));
    // The menus, the feature pane and the command line each have texts there.
    QStringList contexts;
    for (const Message& message : found)
        contexts.append(message.context);
    QVERIFY(contexts.contains(QStringLiteral("ViewerMainWindow")));
    QVERIFY(contexts.contains(QStringLiteral("FeaturePane")));
    QVERIFY(contexts.contains(QStringLiteral("main")));
    for (const QString& language : kLanguages) {
        const QStringList missing = missingTranslations(found, language, viewerCatalogue(language));
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QLatin1Char('\n'))));
    }
}

void TestTranslations::viewerTranslationsAreTranslated_data()
{
    QTest::addColumn<QString>("language");
    for (const QString& language : kLanguages.mid(1))
        QTest::newRow(qPrintable(language)) << language;
}

void TestTranslations::viewerTranslationsAreTranslated()
{
    // A translation that only repeats the English text is a text left in
    // English, unless it is a name or a placeholder alone.
    QFETCH(QString, language);
    QString error;
    QStringList english;
    for (const Message& message : readCatalogue(viewerCatalogue(language), &error)) {
        bool letters = false;
        for (const QChar c : message.source)
            letters = letters || (c.isLetter() && c.unicode() < 0x80);
        const QString plain = QString(message.source).remove(QRegularExpression(QStringLiteral("\\[id\\]")));
        if (!letters || plain.isEmpty())
            continue;
        for (const QString& translation : message.translations) {
            if (translation == message.source)
                english.append(message.context + QLatin1String(": ") + message.source);
        }
    }
    QVERIFY2(english.isEmpty(), qPrintable(english.join(QLatin1Char('\n'))));
}
#endif

QTEST_MAIN(TestTranslations)
#include "tst_translations.moc"
