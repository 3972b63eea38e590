// zarvex-viewer: shows the features of the simulated camera, or of a real one through Aravis, in a window;
// with --print it prints each node map as an indented tree of names and values instead, for terminals.

#include "nodemapprinter.h"
#include "viewercamera.h"
#include "viewermainwindow.h"
#include "viewertranslations.h"

#include "simulatedcamera.h"

#ifdef ZVC_WITH_ARAVIS
#include "araviscamera.h"
#endif

#include <QApplication>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QImage>
#include <QListWidget>
#include <QPixmap>
#include <QTextStream>
#include <QTimer>

#include <cstring>
#include <memory>

namespace {

//! The printing mode runs without a display, so it must not make a QApplication.
bool wantsPrinting(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--print") == 0 || std::strcmp(argv[i], "-print") == 0)
            return true;
    }
    return false;
}

//! --help and --version print and exit, so they need no display either.
bool wantsTextOnly(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        for (const char* option : { "--help", "-h", "-?", "--help-all", "--version", "-v", "-help", "-version" }) {
            if (std::strcmp(argv[i], option) == 0)
                return true;
        }
    }
    return false;
}

//! The code given with --language, for the texts shown before the window: the help and the messages.
QString languageArgument(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        const QString argument = QString::fromLocal8Bit(argv[i]);
        for (const QLatin1String prefix : { QLatin1String("--language"), QLatin1String("-language") }) {
            if (argument == prefix && i + 1 < argc)
                return QString::fromLocal8Bit(argv[i + 1]);
            if (argument.startsWith(QString(prefix) + QLatin1Char('=')))
                return argument.mid(prefix.size() + 1);
        }
    }
    return QString();
}

int fail(const QString& message)
{
    QTextStream(stderr) << "zarvex-viewer: " << message << '\n';
    return 1;
}

int showWindow(const QCommandLineParser& parser, const QCommandLineOption& deviceOption,
    const QCommandLineOption& transportOption, const QCommandLineOption& aravisOption,
    const QCommandLineOption& screenshotOption, const QCommandLineOption& languageOption,
    const QCommandLineOption& timeoutOption)
{
    ViewerMainWindow window;
    for (const QString& file : parser.values(deviceOption)) {
        QString error;
        if (!window.addDeviceFile(file, &error))
            return fail(error);
    }
    const bool screenshot = parser.isSet(screenshotOption);
    const bool aravis = parser.isSet(aravisOption);
    if (!screenshot)
        window.restoreSettings();
    if (parser.isSet(languageOption) && !window.setLanguage(parser.value(languageOption)))
        return 1;
    // An explicit choice on the command line wins over the last camera.
    QListWidget* cameras = window.cameraList();
    if (parser.isSet(deviceOption))
        window.openCamera(cameras->count() - 1);
    else if (parser.isSet(transportOption) || (screenshot && !aravis))
        window.openCamera(qMax(0, ViewerMainWindow::simulatedTransportTypes().indexOf(parser.value(transportOption))));
    window.show();
    if (aravis) {
        QObject::connect(
            &window, &ViewerMainWindow::aravisCameraOpened, &window, [screenshot](bool opened, const QString& message) {
                if (!opened) {
                    QTextStream(stderr) << "zarvex-viewer: " << message << '\n';
                    if (screenshot)
                        QCoreApplication::exit(1);
                }
            });
        window.openAravisCamera(parser.positionalArguments().value(0));
    }
    if (!screenshot)
        return QApplication::exec();

    // The picture is taken once the camera is open and, if it sends pictures,
    // its first frame is painted; a camera that doesn't get there in time is an error.
    bool timeOk = false;
    const int seconds = parser.value(timeoutOption).toInt(&timeOk);
    const int timeout = timeOk && seconds > 0 ? seconds : 30;
    const QString file = parser.value(screenshotOption);
    const auto shoot = [&window, file] {
        // The tree and the panes paint the frame's neighbourhood first.
        QTimer::singleShot(700, &window, [&window, file] {
            const QImage image = window.grab().toImage();
            if (!image.save(file, "PNG")) {
                fail(QCoreApplication::translate("main", "cannot write %1").arg(file));
                QCoreApplication::exit(1);
                return;
            }
            QCoreApplication::exit(0);
        });
    };
    bool shooting = false;
    QObject::connect(&window, &ViewerMainWindow::framePainted, &window, [&shooting, shoot] {
        if (!shooting) {
            shooting = true;
            shoot();
        }
    });
    const auto whenOpen = [&window, &shooting, shoot] {
        // The exposure time shows in the feature pane; a camera whose document
        // has none at the user level shown (Aravis's fake camera calls its own
        // ExposureTimeAbs and shows it to experts) shows its Width.
        for (const QString& name :
            { QStringLiteral("ExposureTime"), QStringLiteral("ExposureTimeAbs"), QStringLiteral("Width") }) {
            if (window.selectFeature(QStringLiteral("@CameraDevice/") + name))
                break;
        }
        if (window.camera()->hasImages()) {
            window.startAcquisition();
        } else if (!shooting) {
            shooting = true;
            shoot();
        }
    };
    if (aravis) {
        QObject::connect(&window, &ViewerMainWindow::aravisCameraOpened, &window, [whenOpen](bool opened) {
            if (opened)
                whenOpen();
        });
    } else if (window.camera()) {
        QTimer::singleShot(0, &window, whenOpen);
    } else {
        return fail(QCoreApplication::translate("main", "no camera could be opened"));
    }
    QTimer::singleShot(timeout * 1000, &window, [timeout, &window] {
        fail(window.camera()
                ? QCoreApplication::translate(
                    "main", "the camera showed no picture within %1 s; no screenshot was taken")
                      .arg(timeout)
                : QCoreApplication::translate("main", "no camera was open within %1 s; no screenshot was taken")
                      .arg(timeout));
        QCoreApplication::exit(1);
    });
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    std::unique_ptr<QCoreApplication> application;
    if (wantsPrinting(argc, argv) || wantsTextOnly(argc, argv))
        application.reset(new QCoreApplication(argc, argv));
    else
        application.reset(new QApplication(argc, argv));
    QCoreApplication& app = *application;
    QCoreApplication::setOrganizationName(QStringLiteral("Zarvex"));
    QCoreApplication::setApplicationName(QStringLiteral("zarvex-viewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZVC_VIEWER_VERSION));
    ViewerTranslations translations;
    const QString language = languageArgument(argc, argv);
    if (!language.isEmpty())
        translations.install(language);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("main", "Shows the features of a simulated or a real camera."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption transportOption(QStringLiteral("transport"),
        QCoreApplication::translate("main", "Transport-layer type: GEV, U3V, IIDC, CamEmu, ..."),
        QCoreApplication::translate("main", "type"), QStringLiteral("GEV"));
    const QCommandLineOption deviceOption(QStringLiteral("device"),
        QCoreApplication::translate("main", "A device description of your own (JSON)."),
        QCoreApplication::translate("main", "file"));
    const QCommandLineOption depthOption(QStringLiteral("depth"),
        QCoreApplication::translate("main", "Deepest level printed."), QCoreApplication::translate("main", "levels"),
        QStringLiteral("100"));
    const QCommandLineOption printOption(QStringLiteral("print"),
        QCoreApplication::translate("main", "Print the node maps as a tree instead of opening a window."));
    const QCommandLineOption screenshotOption(QStringLiteral("screenshot"),
        QCoreApplication::translate("main", "Open the camera, save a picture of the window to the PNG file and exit."),
        QCoreApplication::translate("main", "file"));
    const QCommandLineOption languageOption(QStringLiteral("language"),
        QCoreApplication::translate("main", "Language of the window: en, ja, ko or zh."),
        QCoreApplication::translate("main", "code"));
    const QCommandLineOption aravisOption(QStringLiteral("aravis"),
        QCoreApplication::translate("main",
            "Show a real camera through Aravis instead of the simulated one: the camera named by [id], "
            "else the first one found."));
    parser.addOption(transportOption);
    parser.addOption(deviceOption);
    parser.addOption(depthOption);
    parser.addOption(printOption);
    parser.addOption(aravisOption);
    parser.addOption(screenshotOption);
    parser.addOption(languageOption);
    const QCommandLineOption timeoutOption(QStringLiteral("timeout"),
        QCoreApplication::translate("main", "With --screenshot: seconds to wait for the camera and its first frame."),
        QCoreApplication::translate("main", "seconds"), QStringLiteral("30"));
    parser.addOption(timeoutOption);
    parser.addPositionalArgument(QStringLiteral("id"),
        QCoreApplication::translate("main", "Aravis id of the camera (with --aravis)."),
        QCoreApplication::translate("main", "[id]"));
    parser.process(app);

    if (!parser.isSet(printOption))
        return showWindow(
            parser, deviceOption, transportOption, aravisOption, screenshotOption, languageOption, timeoutOption);

    QTextStream out(stdout);
    QTextStream err(stderr);

    bool depthOk = false;
    const int depth = parser.value(depthOption).toInt(&depthOk);
    NodeMapPrinter printer(out, depthOk && depth > 0 ? depth : 100);

    if (parser.isSet(aravisOption)) {
#ifdef ZVC_WITH_ARAVIS
        const QStringList ids = parser.positionalArguments();
        const QList<Aravis::CameraInfo> cameras = Aravis::AravisCamera::listCameras();
        for (const Aravis::CameraInfo& camera : cameras)
            out << QCoreApplication::translate("main", "Found %1 (%2, %3)")
                       .arg(camera.id, camera.protocol, camera.address)
                << '\n';
        QString error;
        const auto camera = Aravis::AravisCamera::open(ids.value(0), &error);
        if (!camera) {
            err << "zarvex-viewer: " << error << '\n';
            return 1;
        }
        out << QCoreApplication::translate("main", "Aravis camera %1, transport layer %2")
                   .arg(camera->id(), camera->transportLayerType())
            << '\n';
        for (const QString& name : camera->nodeMapNames()) {
            const int count = printer.print(camera->nodeMap(name), name);
            out << "  " << QCoreApplication::translate("main", "(%1 features shown)").arg(count) << '\n';
        }
        return 0;
#else
        err << "zarvex-viewer: "
            << QCoreApplication::translate(
                   "main", "built without Aravis (install libaravis-dev and configure with ZVC_BUILD_ARAVIS=ON)")
            << '\n';
        return 1;
#endif
    }

    std::unique_ptr<Simulation::SimulatedCamera> device;
    if (parser.isSet(deviceOption)) {
        QString error;
        device
            = Simulation::SimulatedCamera::fromFile(parser.value(deviceOption), &error, parser.value(transportOption));
        if (!device) {
            err << "zarvex-viewer: " << error << '\n';
            return 1;
        }
    } else {
        device = Simulation::SimulatedCamera::createDefault(parser.value(transportOption));
    }

    out << QCoreApplication::translate("main", "Simulated camera, transport layer %1").arg(device->transportLayerType())
        << '\n';
    for (const QString& name : device->nodeMapNames()) {
        const int count = printer.print(device->nodeMap(name), name);
        out << "  " << QCoreApplication::translate("main", "(%1 features shown)").arg(count) << '\n';
    }
    return 0;
}
