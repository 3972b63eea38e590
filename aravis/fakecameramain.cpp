// zarvex-fake-gv-camera: runs Aravis's fake GigE Vision camera on an
// interface of this host until it is interrupted, so that zarvex-viewer (or
// any GigE Vision client) can be tried without a camera.

#include "fakegigecamera.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>
#include <QTimer>

#include <csignal>

namespace {

volatile std::sig_atomic_t stopRequested = 0;

void requestStop(int)
{
    stopRequested = 1;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Runs Aravis's fake GigE Vision camera until interrupted."));
    parser.addHelpOption();
    const QCommandLineOption interfaceOption(QStringLiteral("interface"),
        QStringLiteral("Network interface to answer on."), QStringLiteral("name"), QStringLiteral("lo"));
    const QCommandLineOption serialOption(QStringLiteral("serial"), QStringLiteral("Serial number of the camera."),
        QStringLiteral("text"), QStringLiteral("ZVC0001"));
    const QCommandLineOption genicamOption(QStringLiteral("genicam"),
        QStringLiteral("A GenICam document of your own instead of Aravis's."), QStringLiteral("file"));
    parser.addOption(interfaceOption);
    parser.addOption(serialOption);
    parser.addOption(genicamOption);
    parser.process(app);

    Aravis::FakeGigECamera camera(
        parser.value(serialOption), parser.value(interfaceOption), parser.value(genicamOption));
    QTextStream err(stderr);
    if (!camera.isRunning()) {
        err << "zarvex-fake-gv-camera: " << camera.errorString() << '\n';
        return 1;
    }
    err << "Fake GigE Vision camera " << camera.serialNumber() << " answering on " << parser.value(interfaceOption)
        << "; Ctrl-C stops it.\n";
    err.flush();
    std::signal(SIGINT, requestStop);
    std::signal(SIGTERM, requestStop);
    // A signal handler may only set a flag; the event loop looks at it.
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &app, [] {
        if (stopRequested)
            QCoreApplication::quit();
    });
    watch.start(100);
    return app.exec();
}
