#include "featuretree/trimtoint32.h"

#include <QtTest>

#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QPixmap>

// The library's icons are compiled into it; each one the widgets and the
// message box name must load from there at its design size, with a sharp
// variant at twice the size for screens at scale 2.
class TestIcons : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void loadsAtDesignSize_data();
    void loadsAtDesignSize();
    void iconPicksDoubleSizeAtScaleTwo_data();
    void iconPicksDoubleSizeAtScaleTwo();
    void stripShowsEveryIcon();

private:
    static void addIconRows();
};

namespace {

const char* const prefix = ":/zarvexviewercomponents/Resources/";

struct IconEntry
{
    const char* name;
    int size;
};

const IconEntry icons[] = {
    { "sync_16", 16 },
    { "AddGigECamera_16", 16 },
    { "Move_Up", 16 },
    { "Move_Down", 16 },
    { "RemGigECamera_16", 16 },
    { "searchlens_16", 16 },
    { "cross_16", 16 },
    { "Info_32", 32 },
    { "Warning_16_black", 16 },
    { "Error_32", 32 },
    { "Question_32", 32 },
};

QString pathOf(const QString& name, const QString& suffix = QString())
{
    return QLatin1String(prefix) + name + suffix + QLatin1String(".png");
}

// Counts pixels that are not fully transparent: an icon that rendered to
// nothing would still have the right size.
int paintedPixels(const QImage& image)
{
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    int count = 0;
    for (int y = 0; y < argb.height(); ++y) {
        for (int x = 0; x < argb.width(); ++x) {
            if (qAlpha(argb.pixel(x, y)) > 0)
                ++count;
        }
    }
    return count;
}

} // namespace

void TestIcons::initTestCase()
{
    // The resources register when the library loads. Nothing else here calls
    // into it, and a linker that drops unused libraries would leave it out.
    QCOMPARE(trimToInt32(7), 7);
    // As a host on a high-resolution screen has it; Qt 6 always has it so.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

void TestIcons::addIconRows()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("size");
    for (const IconEntry& entry : icons)
        QTest::newRow(entry.name) << QString::fromLatin1(entry.name) << entry.size;
}

void TestIcons::loadsAtDesignSize_data()
{
    addIconRows();
}

void TestIcons::loadsAtDesignSize()
{
    QFETCH(QString, name);
    QFETCH(int, size);

    QVERIFY2(QFile::exists(pathOf(name)), qPrintable(pathOf(name)));
    const QPixmap pixmap(pathOf(name));
    QVERIFY(!pixmap.isNull());
    QCOMPARE(pixmap.size(), QSize(size, size));
    // A picture, not a blank square and not a filled one.
    const int painted = paintedPixels(pixmap.toImage());
    QVERIFY2(painted > size, qPrintable(QString::number(painted)));
    QVERIFY2(painted < size * size, qPrintable(QString::number(painted)));

    const QPixmap doubled(pathOf(name, QStringLiteral("@2x")));
    QVERIFY(!doubled.isNull());
    QCOMPARE(doubled.size(), QSize(2 * size, 2 * size));
    QVERIFY(paintedPixels(doubled.toImage()) > 2 * size);

    const QIcon icon(pathOf(name));
    QVERIFY(!icon.isNull());
    QVERIFY(icon.availableSizes().contains(QSize(size, size)));
}

void TestIcons::iconPicksDoubleSizeAtScaleTwo_data()
{
    addIconRows();
}

void TestIcons::iconPicksDoubleSizeAtScaleTwo()
{
    QFETCH(QString, name);
    QFETCH(int, size);

    // QIcon adds the "@2x" file only when the application runs at scale 2;
    // CTest runs this function a second time with QT_SCALE_FACTOR=2.
    if (qApp->devicePixelRatio() < 2)
        QSKIP("Needs a screen at scale 2 (QT_SCALE_FACTOR=2)");

    // A 16 pixel icon on that screen is drawn from 32 device pixels: the
    // separately rendered "@2x" image, not the small one blown up.
    const QIcon icon(pathOf(name));
    QVERIFY(icon.availableSizes().contains(QSize(2 * size, 2 * size)));
    const QPixmap sharp = icon.pixmap(QSize(size, size));
    QCOMPARE(sharp.size(), QSize(2 * size, 2 * size));
    QCOMPARE(sharp.devicePixelRatio(), 2.0);
    // Compared premultiplied, as pixmaps hold them.
    const auto premultiplied
        = [](const QImage& image) { return image.convertToFormat(QImage::Format_ARGB32_Premultiplied); };
    QCOMPARE(premultiplied(sharp.toImage()), premultiplied(QImage(pathOf(name, QStringLiteral("@2x")))));
    const QImage blownUp = QImage(pathOf(name)).scaled(2 * size, 2 * size);
    QVERIFY(premultiplied(sharp.toImage()) != premultiplied(blownUp));
}

void TestIcons::stripShowsEveryIcon()
{
    // Rows at 16 and 32 pixels on a plain image, and a row at 16 logical
    // pixels on an image of device pixel ratio 2, as a scale-2 screen has it.
    const int cell = 40;
    const int count = int(sizeof(icons) / sizeof(icons[0]));
    QImage strip(count * cell, 2 * cell, QImage::Format_ARGB32);
    strip.fill(Qt::white);
    QImage scaleTwo(count * cell * 2, cell * 2, QImage::Format_ARGB32);
    scaleTwo.setDevicePixelRatio(2);
    scaleTwo.fill(Qt::white);
    {
        QPainter plain(&strip);
        QPainter doubled(&scaleTwo);
        for (int i = 0; i < count; ++i) {
            const QIcon icon(pathOf(QString::fromLatin1(icons[i].name)));
            plain.drawPixmap(i * cell + 4, 4, icon.pixmap(16, 16));
            plain.drawPixmap(i * cell + 4, cell + 4, icon.pixmap(32, 32));
            QPixmap sharp = icon.pixmap(32, 32);
            sharp.setDevicePixelRatio(2);
            doubled.drawPixmap(QPointF(i * cell + 4, 4), sharp);
        }
    }
    const auto marked = [](const QImage& image, const QRect& area) {
        int count = 0;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                count += image.pixel(x, y) != qRgb(255, 255, 255) ? 1 : 0;
        return count;
    };
    for (int i = 0; i < count; ++i) {
        QVERIFY2(marked(strip, QRect(i * cell, 0, cell, cell)) > 0, icons[i].name);
        QVERIFY2(marked(strip, QRect(i * cell, cell, cell, cell)) > 0, icons[i].name);
        QVERIFY2(marked(scaleTwo, QRect(2 * i * cell, 0, 2 * cell, 2 * cell)) > 0, icons[i].name);
    }

    // ZVC_ICON_STRIP=/some/file.png keeps the strips for a look.
    const QString target = QString::fromLocal8Bit(qgetenv("ZVC_ICON_STRIP"));
    if (!target.isEmpty()) {
        QVERIFY(strip.save(target));
        QVERIFY(scaleTwo.save(target + QLatin1String(".scale2.png")));
    }
}

QTEST_MAIN(TestIcons)
#include "tst_icons.moc"
