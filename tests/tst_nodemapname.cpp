#include "featuretree/nodemapname.h"

#include <QtTest>

class TestNodemapName : public QObject
{
    Q_OBJECT

private slots:
    void translationContext_data();
    void translationContext();
};

void TestNodemapName::translationContext_data()
{
    QTest::addColumn<QString>("fullName");
    QTest::addColumn<QString>("context");

    QTest::newRow("empty full name") << QString() << "Invalid";
    QTest::newRow("empty string, not null") << QString("") << "Invalid";
    QTest::newRow("only the at sign") << "@"
                                      << "Invalid";

    // Every row of the table, with a feature behind the node map part.
    QTest::newRow("CameraInstance") << "@CameraInstance/Foo"
                                    << "CameraInstance";
    QTest::newRow("DeviceTransportLayer") << "@DeviceTransportLayer/ReadTimeout"
                                          << "TransportLayer";
    QTest::newRow("StreamGrabber0") << "@StreamGrabber0/MaxNumBuffer"
                                    << "StreamGrabber";
    QTest::newRow("ExcelRunner") << "@ExcelRunner/X"
                                 << "ExcelRunner";
    QTest::newRow("ImageFormatConverter") << "@ImageFormatConverter/OutputPaddingX"
                                          << "ImageFormatConverter";
    QTest::newRow("DeepViewer") << "@DeepViewer/X"
                                << "DeepViewer";
    QTest::newRow("ChunkData") << "@ChunkData/ChunkTimestamp"
                               << "ChunkData";
    QTest::newRow("CameraDevice") << "@CameraDevice/Width"
                                  << "CameraDevice";
    QTest::newRow("EventGrabber") << "@EventGrabber/NumBuffer"
                                  << "EventGrabber";
    QTest::newRow("GenTl gives Interface") << "@GenTl/InterfaceID"
                                           << "Interface";

    // Only the first stream grabber has a context of its own.
    QTest::newRow("StreamGrabber1") << "@StreamGrabber1/MaxNumBuffer"
                                    << "Invalid";
    QTest::newRow("StreamGrabber without number") << "@StreamGrabber/MaxNumBuffer"
                                                  << "Invalid";

    // The comparison is case-sensitive.
    QTest::newRow("camera device in lower case") << "@cameradevice/Width"
                                                 << "Invalid";
    QTest::newRow("GenTL with capital L") << "@GenTL/X"
                                          << "Invalid";

    // The first character goes whatever it is.
    QTest::newRow("no leading at sign") << "CameraDevice/Width"
                                        << "Invalid";
    QTest::newRow("other leading character") << "#CameraDevice/Width"
                                             << "CameraDevice";
    QTest::newRow("two leading at signs") << "@@CameraDevice/Width"
                                          << "Invalid";

    // A full name without "/" has the whole text as its node-map part.
    QTest::newRow("no slash") << "@CameraDevice"
                              << "CameraDevice";
    QTest::newRow("no slash, GenTl") << "@GenTl"
                                     << "Interface";
    QTest::newRow("root item form") << "@CameraDevice*Root"
                                    << "Invalid";

    // Only the part before the first "/" counts; empty parts are kept.
    QTest::newRow("alias behind the name") << "@CameraDevice/Width/Alias"
                                           << "CameraDevice";
    QTest::newRow("slash right after the at sign") << "@/CameraDevice/Width"
                                                   << "Invalid";
    QTest::newRow("trailing slash") << "@EventGrabber/"
                                    << "EventGrabber";
    QTest::newRow("table name with a suffix") << "@CameraDevice2/Width"
                                              << "Invalid";
    QTest::newRow("table name with leading space") << "@ CameraDevice/Width"
                                                   << "Invalid";
}

void TestNodemapName::translationContext()
{
    QFETCH(QString, fullName);
    QFETCH(QString, context);
    QCOMPARE(GetNodemapName(fullName), context);
}

QTEST_GUILESS_MAIN(TestNodemapName)
#include "tst_nodemapname.moc"
