#include "messages/messageboxcheckable.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>
#include <QtTest>

#include <functional>
#include <limits>

namespace {

const QString group = QStringLiteral("DoNotShowAgain");

QVariant stored(const QString& key)
{
    QSettings settings;
    settings.beginGroup(group);
    return settings.value(key);
}

void store(const QString& key, const QVariant& value)
{
    QSettings settings;
    settings.beginGroup(group);
    settings.setValue(key, value);
}

/*
 * Acts on the box once it is shown inside exec(): ticks the check box if
 * asked, then clicks the button that `pick` chooses, both with the mouse.
 * Records whether the box was ever shown.
 */
class Driver : public QObject
{
public:
    Driver(MessageBoxCheckable* box, bool tick, std::function<QAbstractButton*(MessageBoxCheckable*)> pick)
        : m_box(box)
        , m_tick(tick)
        , m_pick(std::move(pick))
    {
        connect(&m_timer, &QTimer::timeout, this, &Driver::poll);
        m_timer.start(10);
    }
    bool shown = false;
    bool clicked = false;

private:
    void poll()
    {
        if (!m_box->isVisible())
            return;
        shown = true;
        m_timer.stop();
        act();
        // A failed check above must not leave exec() waiting for ever.
        if (!clicked)
            m_box->done(-99);
    }

    void act()
    {
        if (m_tick) {
            QCheckBox* checkBox = m_box->checkBox();
            QVERIFY(checkBox);
            QTest::mouseClick(checkBox, Qt::LeftButton, Qt::NoModifier, QPoint(5, checkBox->height() / 2));
            QVERIFY(checkBox->isChecked());
        }
        QAbstractButton* button = m_pick(m_box);
        QVERIFY(button);
        QTest::mouseClick(button, Qt::LeftButton);
        clicked = true;
    }

    MessageBoxCheckable* m_box;
    bool m_tick;
    std::function<QAbstractButton*(MessageBoxCheckable*)> m_pick;
    QTimer m_timer;
};

std::function<QAbstractButton*(MessageBoxCheckable*)> standard(QMessageBox::StandardButton which)
{
    return [which](MessageBoxCheckable* box) { return box->button(which); };
}

// Never meant to run: exec() is expected to answer without showing.
std::function<QAbstractButton*(MessageBoxCheckable*)> none()
{
    return [](MessageBoxCheckable* box) { return box->buttons().value(0); };
}

} // namespace

class TestMessageBoxCheckable : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void plainConstructor();
    void iconsComeFromTheLibrary_data();
    void iconsComeFromTheLibrary();
    void unnamedIconsAndButtonMasks_data();
    void unnamedIconsAndButtonMasks();
    void checkBoxText();
    void checkBoxTextIsTranslated();

    void tickedAnswerIsStoredAndGivenByTheNextObject();
    void untickedAnswerIsNotStored();
    void emptyMaskAndNoSaveButtonsStoreNothing_data();
    void emptyMaskAndNoSaveButtonsStoreNothing();
    void buttonOutsideTheMaskStoresNothing_data();
    void buttonOutsideTheMaskStoresNothing();
    void resultZeroCountsOnlyThroughSaveButtons();
    void storedResultShortCircuits_data();
    void storedResultShortCircuits();
    void storedMinusOneShowsTheBox();
    void sameObjectShowsAgain();
    void resetForgetsOneKey();
    void resetOfAKeyNotStoredGivesFalse();
    void resetAllForgetsEveryKeyOfTheGroupOnly();
    void emptyKeyIsNeverStored();
    void nullSaveButtonIsRefused();

private:
    QTemporaryDir m_settingsDir;
};

void TestMessageBoxCheckable::initTestCase()
{
    QVERIFY(m_settingsDir.isValid());
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settingsDir.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settingsDir.path());
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTest"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_messageboxcheckable"));
}

void TestMessageBoxCheckable::init()
{
    QSettings settings;
    settings.clear();
    QVERIFY(settings.fileName().startsWith(m_settingsDir.path()));
}

void TestMessageBoxCheckable::plainConstructor()
{
    MessageBoxCheckable box(QStringLiteral("plain"), nullptr);
    QVERIFY(box.iconPixmap().isNull());
    QCOMPARE(box.saveResultOnButton(), QFlags<QMessageBox::StandardButton>());
    QVERIFY(!box.checkBox());
}

void TestMessageBoxCheckable::iconsComeFromTheLibrary_data()
{
    QTest::addColumn<QMessageBox::Icon>("icon");
    QTest::addColumn<QString>("resource");

    const QString prefix = QStringLiteral(":/zarvexviewercomponents/Resources/");
    QTest::newRow("Information") << QMessageBox::Information << prefix + "Info_32.png";
    QTest::newRow("Warning") << QMessageBox::Warning << prefix + "Warning_16_black.png";
    QTest::newRow("Critical") << QMessageBox::Critical << prefix + "Error_32.png";
    QTest::newRow("Question") << QMessageBox::Question << prefix + "Question_32.png";
    QTest::newRow("NoIcon") << QMessageBox::NoIcon << QString();
}

void TestMessageBoxCheckable::iconsComeFromTheLibrary()
{
    QFETCH(QMessageBox::Icon, icon);
    QFETCH(QString, resource);

    MessageBoxCheckable box(QStringLiteral("icon"), icon, QStringLiteral("Title"), QStringLiteral("Text"),
        QMessageBox::Ok | QMessageBox::Cancel, nullptr, Qt::Dialog);
    QCOMPARE(box.windowTitle(), QStringLiteral("Title"));
    QCOMPARE(box.text(), QStringLiteral("Text"));
    QCOMPARE(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
    if (resource.isEmpty()) {
        QVERIFY(box.iconPixmap().isNull());
        return;
    }
    const QPixmap expected(resource);
    QVERIFY2(!expected.isNull(), qPrintable(resource));
    QCOMPARE(box.iconPixmap().toImage(), expected.toImage());
    // Not Qt's own picture for that icon.
    QMessageBox plain;
    plain.setIcon(icon);
    QVERIFY(box.iconPixmap().toImage() != plain.iconPixmap().toImage());
}

void TestMessageBoxCheckable::unnamedIconsAndButtonMasks_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("buttons");
    QTest::newRow("icon 5") << 5 << int(QMessageBox::Ok);
    QTest::newRow("icon 7") << 7 << int(QMessageBox::Ok);
    QTest::newRow("icon 8") << 8 << int(QMessageBox::Ok);
    QTest::newRow("icon 99") << 99 << int(QMessageBox::Ok | QMessageBox::Cancel);
    QTest::newRow("icon -1") << -1 << 0;
    QTest::newRow("icon INT_MAX") << std::numeric_limits<int>::max() << int(QMessageBox::Yes);
    QTest::newRow("icon INT_MIN") << std::numeric_limits<int>::min() << int(QMessageBox::No);
    QTest::newRow("buttons with unnamed bits") << int(QMessageBox::Question) << 0x7fffffff;
    QTest::newRow("buttons -1") << int(QMessageBox::Warning) << -1;
    QTest::newRow("buttons 1") << int(QMessageBox::Information) << 1;
}

// A host may keep icon and buttons as ints. An icon that QMessageBox doesn't
// name shows none, like NoIcon; any mask is kept as given.
void TestMessageBoxCheckable::unnamedIconsAndButtonMasks()
{
    QFETCH(int, icon);
    QFETCH(int, buttons);

    MessageBoxCheckable box(QStringLiteral("unnamed"), static_cast<QMessageBox::Icon>(icon), QStringLiteral("Title"),
        QStringLiteral("Text"), QFlags<QMessageBox::StandardButton>(buttons), nullptr, Qt::Dialog);
    QCOMPARE(box.text(), QStringLiteral("Text"));
    const bool named = icon >= QMessageBox::Information && icon <= QMessageBox::Question;
    QCOMPARE(box.iconPixmap().isNull(), !named);
    box.setSaveResultOnButton(QFlags<QMessageBox::StandardButton>(buttons));
    QCOMPARE(int(box.saveResultOnButton()), buttons);
}

void TestMessageBoxCheckable::checkBoxText()
{
    const QString sentence = QStringLiteral("&Don't show this dialog again");
    MessageBoxCheckable box(QStringLiteral("text"), QMessageBox::Question, QStringLiteral("Title"),
        QStringLiteral("Text"), QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.checkBoxText(), sentence);
    box.setCheckBoxText(QStringLiteral("Never ask again"));
    QCOMPARE(box.checkBoxText(), QStringLiteral("Never ask again"));

    // The check box is built with the text of that moment and follows it.
    Driver driver(&box, false, [](MessageBoxCheckable* b) {
        [&] {
            QVERIFY(b->checkBox());
            QCOMPARE(b->checkBox()->text(), QStringLiteral("Never ask again"));
            QVERIFY(b->checkBox()->minimumHeight() > 0);
            QVERIFY(!b->checkBox()->isChecked());
        }();
        return b->button(QMessageBox::No);
    });
    QCOMPARE(box.exec(), int(QMessageBox::No));
    QVERIFY(driver.clicked);
    box.setCheckBoxText(QString());
    QCOMPARE(box.checkBoxText(), sentence);
    QCOMPARE(box.checkBox()->text(), sentence);
}

void TestMessageBoxCheckable::checkBoxTextIsTranslated()
{
    class Translator : public QTranslator
    {
    public:
        QString translate(const char* context, const char* sourceText, const char*, int) const override
        {
            if (qstrcmp(context, "MessageBoxCheckable") == 0
                && qstrcmp(sourceText, "&Don't show this dialog again") == 0)
                return QStringLiteral("&Nicht mehr anzeigen");
            return QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    MessageBoxCheckable box(QStringLiteral("translated"), nullptr);
    QCOMPARE(box.checkBoxText(), QStringLiteral("&Nicht mehr anzeigen"));
    box.setCheckBoxText(QStringLiteral("x"));
    box.setCheckBoxText(QString());
    QCOMPARE(box.checkBoxText(), QStringLiteral("&Nicht mehr anzeigen"));
    QCoreApplication::removeTranslator(&translator);
}

void TestMessageBoxCheckable::tickedAnswerIsStoredAndGivenByTheNextObject()
{
    const QString key = QStringLiteral("overwrite");
    {
        MessageBoxCheckable first(key, QMessageBox::Question, QStringLiteral("Overwrite"),
            QStringLiteral("Overwrite the file?"), QMessageBox::Yes | QMessageBox::No);
        first.setSaveResultOnButton(QMessageBox::Yes | QMessageBox::No);
        Driver driver(&first, true, standard(QMessageBox::Yes));
        QCOMPARE(first.exec(), int(QMessageBox::Yes));
        QVERIFY(driver.shown);
    }
    // The settings round trip: a fresh QSettings sees the value.
    QCOMPARE(stored(key), QVariant(int(QMessageBox::Yes)));
    QSettings settings;
    QCOMPARE(settings.childGroups(), QStringList(group));
    settings.beginGroup(group);
    QCOMPARE(settings.childKeys(), QStringList(key));

    MessageBoxCheckable second(key, QMessageBox::Question, QStringLiteral("Overwrite"),
        QStringLiteral("Overwrite the file?"), QMessageBox::Yes | QMessageBox::No);
    Driver driver(&second, false, none());
    QCOMPARE(second.exec(), int(QMessageBox::Yes));
    QVERIFY(!driver.shown);
    QVERIFY(!second.checkBox());
    QVERIFY(!second.clickedButton());
}

void TestMessageBoxCheckable::untickedAnswerIsNotStored()
{
    const QString key = QStringLiteral("unticked");
    MessageBoxCheckable first(
        key, QMessageBox::Warning, QStringLiteral("T"), QStringLiteral("X"), QMessageBox::Ok | QMessageBox::Cancel);
    first.setSaveResultOnButton(QMessageBox::Ok);
    Driver driver(&first, false, standard(QMessageBox::Ok));
    QCOMPARE(first.exec(), int(QMessageBox::Ok));
    QVERIFY(driver.shown);
    QVERIFY(!stored(key).isValid());

    MessageBoxCheckable second(
        key, QMessageBox::Warning, QStringLiteral("T"), QStringLiteral("X"), QMessageBox::Ok | QMessageBox::Cancel);
    Driver secondDriver(&second, false, standard(QMessageBox::Cancel));
    QCOMPARE(second.exec(), int(QMessageBox::Cancel));
    QVERIFY(secondDriver.shown);
}

void TestMessageBoxCheckable::emptyMaskAndNoSaveButtonsStoreNothing_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("tick");
    QTest::newRow("Yes, ticked") << int(QMessageBox::Yes) << true;
    QTest::newRow("No, ticked") << int(QMessageBox::No) << true;
    QTest::newRow("Cancel, ticked") << int(QMessageBox::Cancel) << true;
    QTest::newRow("Yes, not ticked") << int(QMessageBox::Yes) << false;
}

void TestMessageBoxCheckable::emptyMaskAndNoSaveButtonsStoreNothing()
{
    QFETCH(int, button);
    QFETCH(bool, tick);
    const QString key = QStringLiteral("nomask");
    MessageBoxCheckable box(key, QMessageBox::Question, QStringLiteral("T"), QStringLiteral("X"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    Driver driver(&box, tick, standard(QMessageBox::StandardButton(button)));
    QCOMPARE(box.exec(), button);
    QVERIFY(driver.shown);
    QCOMPARE(box.checkBox()->isChecked(), tick);
    QVERIFY(!stored(key).isValid());
    QVERIFY(QSettings().allKeys().isEmpty());
}

void TestMessageBoxCheckable::buttonOutsideTheMaskStoresNothing_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("storedAfter");
    QTest::newRow("mask Yes, No pressed") << int(QMessageBox::Yes) << int(QMessageBox::No) << false;
    QTest::newRow("mask Yes|No, Cancel pressed")
        << int(QMessageBox::Yes | QMessageBox::No) << int(QMessageBox::Cancel) << false;
    QTest::newRow("mask Yes, Yes pressed") << int(QMessageBox::Yes) << int(QMessageBox::Yes) << true;
    QTest::newRow("mask Yes|No, No pressed") << int(QMessageBox::Yes | QMessageBox::No) << int(QMessageBox::No) << true;
}

void TestMessageBoxCheckable::buttonOutsideTheMaskStoresNothing()
{
    QFETCH(int, mask);
    QFETCH(int, button);
    QFETCH(bool, storedAfter);
    const QString key = QStringLiteral("outside");
    MessageBoxCheckable box(key, QMessageBox::Question, QStringLiteral("T"), QStringLiteral("X"),
        QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    box.setSaveResultOnButton(QFlags<QMessageBox::StandardButton>(mask));
    QCOMPARE(int(box.saveResultOnButton()), mask);
    Driver driver(&box, true, standard(QMessageBox::StandardButton(button)));
    QCOMPARE(box.exec(), button);
    QVERIFY(box.checkBox()->isChecked());
    QCOMPARE(stored(key), storedAfter ? QVariant(button) : QVariant());
}

void TestMessageBoxCheckable::resultZeroCountsOnlyThroughSaveButtons()
{
    const QString key = QStringLiteral("custom");
    auto pickCustom = [](MessageBoxCheckable* box) {
        return box->buttons().value(box->buttons().indexOf(box->button(QMessageBox::Yes)) == 0 ? 1 : 0);
    };
    {
        // The custom button is the first custom one: its result is 0.
        MessageBoxCheckable box(key, QMessageBox::Question, QStringLiteral("T"), QStringLiteral("X"));
        box.addButton(QStringLiteral("Later"), QMessageBox::RejectRole);
        box.addButton(QMessageBox::Yes);
        box.setSaveResultOnButton(QMessageBox::Yes | QMessageBox::No);
        Driver driver(&box, true, pickCustom);
        QCOMPARE(box.exec(), 0);
        QCOMPARE(box.clickedButton()->text(), QStringLiteral("Later"));
        QVERIFY(!stored(key).isValid());
    }
    {
        MessageBoxCheckable box(key, QMessageBox::Question, QStringLiteral("T"), QStringLiteral("X"));
        QPushButton* later = box.addButton(QStringLiteral("Later"), QMessageBox::RejectRole);
        box.addButton(QMessageBox::Yes);
        box.setSaveResultOnButton(QMessageBox::Yes | QMessageBox::No);
        box.setSaveResultOnButton(later);
        Driver driver(&box, true, pickCustom);
        QCOMPARE(box.exec(), 0);
        QCOMPARE(stored(key), QVariant(0));
    }
    // The stored 0 is given back without showing.
    MessageBoxCheckable box(key, QMessageBox::Question, QStringLiteral("T"), QStringLiteral("X"));
    Driver driver(&box, false, none());
    QCOMPARE(box.exec(), 0);
    QVERIFY(!driver.shown);
}

void TestMessageBoxCheckable::storedResultShortCircuits_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("expected");
    QTest::newRow("Yes") << QVariant(int(QMessageBox::Yes)) << int(QMessageBox::Yes);
    QTest::newRow("No") << QVariant(int(QMessageBox::No)) << int(QMessageBox::No);
    QTest::newRow("0") << QVariant(0) << 0;
    QTest::newRow("42") << QVariant(42) << 42;
    QTest::newRow("-2") << QVariant(-2) << -2;
    QTest::newRow("text reads as 0") << QVariant(QStringLiteral("never")) << 0;
    QTest::newRow("number as text") << QVariant(QStringLiteral("1024")) << 1024;
}

void TestMessageBoxCheckable::storedResultShortCircuits()
{
    QFETCH(QVariant, value);
    QFETCH(int, expected);
    const QString key = QStringLiteral("stored");
    store(key, value);

    MessageBoxCheckable box(
        key, QMessageBox::Information, QStringLiteral("T"), QStringLiteral("X"), QMessageBox::Ok | QMessageBox::Cancel);
    box.setSaveResultOnButton(QMessageBox::Ok);
    Driver driver(&box, false, none());
    QCOMPARE(box.exec(), expected);
    QVERIFY(!driver.shown);
    QVERIFY(!box.checkBox());
    QVERIFY(!box.isVisible());
    // The stored answer isn't rewritten.
    QCOMPARE(stored(key), value);
}

void TestMessageBoxCheckable::storedMinusOneShowsTheBox()
{
    const QString key = QStringLiteral("minusone");
    store(key, -1);
    MessageBoxCheckable box(
        key, QMessageBox::Information, QStringLiteral("T"), QStringLiteral("X"), QMessageBox::Ok | QMessageBox::Cancel);
    Driver driver(&box, false, standard(QMessageBox::Cancel));
    QCOMPARE(box.exec(), int(QMessageBox::Cancel));
    QVERIFY(driver.shown);
}

void TestMessageBoxCheckable::sameObjectShowsAgain()
{
    const QString key = QStringLiteral("again");
    MessageBoxCheckable box(
        key, QMessageBox::Critical, QStringLiteral("T"), QStringLiteral("X"), QMessageBox::Ok | QMessageBox::Cancel);
    box.setSaveResultOnButton(QMessageBox::Ok);
    {
        Driver driver(&box, true, standard(QMessageBox::Ok));
        QCOMPARE(box.exec(), int(QMessageBox::Ok));
    }
    QCOMPARE(stored(key), QVariant(int(QMessageBox::Ok)));
    QCheckBox* checkBox = box.checkBox();

    // The object itself doesn't read what it stored: it shows again, with
    // the same check box, still ticked.
    Driver driver(&box, false, standard(QMessageBox::Cancel));
    QCOMPARE(box.exec(), int(QMessageBox::Cancel));
    QVERIFY(driver.shown);
    QCOMPARE(box.checkBox(), checkBox);
    QVERIFY(checkBox->isChecked());
    QCOMPARE(stored(key), QVariant(int(QMessageBox::Ok)));
}

void TestMessageBoxCheckable::resetForgetsOneKey()
{
    store(QStringLiteral("one"), int(QMessageBox::Yes));
    store(QStringLiteral("two"), int(QMessageBox::No));
    MessageBoxCheckable box(QStringLiteral("one"), nullptr);
    QVERIFY(box.reset());
    QVERIFY(!stored(QStringLiteral("one")).isValid());
    QCOMPARE(stored(QStringLiteral("two")), QVariant(int(QMessageBox::No)));
    QVERIFY(!box.reset());

    // Only the settings change: this object still holds what it read.
    QCOMPARE(box.exec(), int(QMessageBox::Yes));
    // A new object shows the box again.
    MessageBoxCheckable fresh(QStringLiteral("one"), QMessageBox::Question, QStringLiteral("T"), QStringLiteral("X"),
        QMessageBox::Yes | QMessageBox::No);
    Driver driver(&fresh, false, standard(QMessageBox::No));
    QCOMPARE(fresh.exec(), int(QMessageBox::No));
    QVERIFY(driver.shown);
}

void TestMessageBoxCheckable::resetOfAKeyNotStoredGivesFalse()
{
    store(QStringLiteral("other"), 1);
    MessageBoxCheckable box(QStringLiteral("missing"), nullptr);
    QVERIFY(!box.reset());
    QCOMPARE(stored(QStringLiteral("other")), QVariant(1));
}

void TestMessageBoxCheckable::resetAllForgetsEveryKeyOfTheGroupOnly()
{
    store(QStringLiteral("one"), 1);
    store(QStringLiteral("two"), 2);
    {
        QSettings settings;
        settings.setValue(QStringLiteral("Favorites/Version"), 3);
    }
    MessageBoxCheckable box(QStringLiteral("one"), nullptr);
    QVERIFY(box.resetAll());
    QSettings settings;
    QCOMPARE(settings.allKeys(), QStringList(QStringLiteral("Favorites/Version")));
    QVERIFY(box.resetAll());
}

void TestMessageBoxCheckable::emptyKeyIsNeverStored()
{
    MessageBoxCheckable box(
        QString(), QMessageBox::Question, QStringLiteral("T"), QStringLiteral("X"), QMessageBox::Yes | QMessageBox::No);
    box.setSaveResultOnButton(QMessageBox::Yes);
    Driver driver(&box, true, standard(QMessageBox::Yes));
    QTest::ignoreMessage(QtDebugMsg, "MessageBoxCheckable: the box has no settings key, the answer is not remembered");
    QCOMPARE(box.exec(), int(QMessageBox::Yes));
    QVERIFY(QSettings().allKeys().isEmpty());
    QTest::ignoreMessage(QtDebugMsg, "MessageBoxCheckable::reset: the box has no settings key, nothing to forget");
    QVERIFY(!box.reset());
}

void TestMessageBoxCheckable::nullSaveButtonIsRefused()
{
    const QString key = QStringLiteral("nullbutton");
    MessageBoxCheckable box(
        key, QMessageBox::Question, QStringLiteral("T"), QStringLiteral("X"), QMessageBox::Yes | QMessageBox::No);
    QTest::ignoreMessage(QtDebugMsg, "MessageBoxCheckable::setSaveResultOnButton: no button given, nothing added");
    box.setSaveResultOnButton(static_cast<QAbstractButton*>(nullptr));
    Driver driver(&box, true, standard(QMessageBox::No));
    QCOMPARE(box.exec(), int(QMessageBox::No));
    QVERIFY(!stored(key).isValid());
}

QTEST_MAIN(TestMessageBoxCheckable)
#include "tst_messageboxcheckable.moc"
