#include "featuretree/SearchEdit.h"

#include <QtTest>

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

const char* const lensPath = ":/zarvexviewercomponents/Resources/searchlens_16.png";
const char* const crossPath = ":/zarvexviewercomponents/Resources/cross_16.png";

//! The line edit exactly as QLineEdit paints it, without the hint on top.
class UnhintedEdit : public SearchEdit
{
protected:
    void paintEvent(QPaintEvent* event) override { QLineEdit::paintEvent(event); }
};

//! The search line, counting how often it is painted.
class CountingEdit : public SearchEdit
{
public:
    int paints = 0;

protected:
    void paintEvent(QPaintEvent* event) override
    {
        ++paints;
        SearchEdit::paintEvent(event);
    }
};

//! Records the keys that reach it from a child.
class KeyRecorder : public QWidget
{
public:
    QList<int> keys;

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        keys << event->key();
        QWidget::keyPressEvent(event);
    }
};

QAction* lensAction(SearchEdit& edit)
{
    return edit.actions().value(0);
}

QAction* clearAction(SearchEdit& edit)
{
    return edit.actions().value(1);
}

//! The button the line edit shows for an action.
QToolButton* buttonFor(SearchEdit& edit, QAction* action)
{
    const QList<QToolButton*> buttons = edit.findChildren<QToolButton*>();
    for (QToolButton* button : buttons) {
        if (button->defaultAction() == action)
            return button;
    }
    return nullptr;
}

QImage imageOf(const QIcon& icon)
{
    return icon.pixmap(16, 16).toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage snapshot(QWidget& widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

//! Pixels that differ between two images of the same size.
int differingPixels(const QImage& a, const QImage& b)
{
    if (a.size() != b.size())
        return -1;
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y) ? 1 : 0;
    return count;
}

} // namespace

class TestSearchEdit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void construction();
    void searchLinesShareTheirPictures();
    void typingSwapsLensForCross_data();
    void typingSwapsLensForCross();
    void clearIconClearsText();
    void lensClickDoesNothing();
    void escapeIsLeftToTheParent();
    void hintIsPaintedWhileEmpty();
    void emptyHintDrawsNothing();
    void hintFollowsClearActionNotText();
    void setShadowDisplayStringDoesNotRepaint();
    void sizeHintIsTheHint_data();
    void sizeHintIsTheHint();
    void fontOfTheLineSizesTheHint();

private:
    void showInWindow(QWidget& widget);
};

void TestSearchEdit::initTestCase()
{
    // The hint must differ from the background to be seen in a snapshot.
    QVERIFY(QApplication::palette().color(QPalette::Disabled, QPalette::Text)
        != QApplication::palette().color(QPalette::Active, QPalette::Base));
}

void TestSearchEdit::showInWindow(QWidget& widget)
{
    widget.resize(300, 30);
    widget.show();
    QVERIFY(QTest::qWaitForWindowExposed(&widget));
}

void TestSearchEdit::searchLinesShareTheirPictures()
{
    // A viewer makes a tree, and its search line, for each camera it opens:
    // the pictures are decoded once and shared, not decoded for each line.
    SearchEdit first;
    SearchEdit second;
    QCOMPARE(lensAction(second)->icon().cacheKey(), lensAction(first)->icon().cacheKey());
    QCOMPARE(clearAction(second)->icon().cacheKey(), clearAction(first)->icon().cacheKey());
    QVERIFY(lensAction(first)->icon().cacheKey() != clearAction(first)->icon().cacheKey());
    QVERIFY(lensAction(first)->icon().cacheKey() != QIcon(QLatin1String(lensPath)).cacheKey());
    QCOMPARE(imageOf(lensAction(second)->icon()), imageOf(QIcon(QLatin1String(lensPath))));
}

void TestSearchEdit::construction()
{
    SearchEdit edit;
    QVERIFY(edit.text().isEmpty());
    QVERIFY(edit.shadowDisplayString().isEmpty());
    QVERIFY(edit.placeholderText().isEmpty());
    QCOMPARE(edit.styleSheet(), QStringLiteral("QLineEdit { border: 1px solid gray; border-radius: 0px; }"));

    // The lens first, then the cross, both owned by the line edit.
    QCOMPARE(edit.actions().size(), 2);
    QAction* lens = lensAction(edit);
    QAction* cross = clearAction(edit);
    QCOMPARE(lens->parent(), &edit);
    QCOMPARE(cross->parent(), &edit);
    QVERIFY(!lens->isEnabled());
    QVERIFY(lens->isVisible());
    QVERIFY(!cross->isVisible());
    QCOMPARE(imageOf(lens->icon()), imageOf(QIcon(QLatin1String(lensPath))));
    QCOMPARE(imageOf(cross->icon()), imageOf(QIcon(QLatin1String(crossPath))));
    QVERIFY(imageOf(lens->icon()) != imageOf(cross->icon()));
    QVERIFY(!lens->icon().isNull());

    // Both sit at the trailing end: in a left-to-right line, right of the middle.
    edit.resize(300, 30);
    edit.show();
    QVERIFY(QTest::qWaitForWindowExposed(&edit));
    QToolButton* lensButton = buttonFor(edit, lens);
    QVERIFY(lensButton);
    QVERIFY(lensButton->isVisible());
    QVERIFY(lensButton->geometry().left() > edit.width() / 2);
}

void TestSearchEdit::typingSwapsLensForCross_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("one letter") << QStringLiteral("g");
    QTest::newRow("word") << QStringLiteral("Gain");
    QTest::newRow("blank") << QStringLiteral(" ");
}

void TestSearchEdit::typingSwapsLensForCross()
{
    QFETCH(QString, typed);

    SearchEdit edit;
    showInWindow(edit);
    edit.setFocus();
    QSignalSpy changes(&edit, &QLineEdit::textChanged);

    QTest::keyClicks(&edit, typed);
    QCOMPARE(edit.text(), typed);
    QCOMPARE(changes.count(), typed.size());
    QVERIFY(!lensAction(edit)->isVisible());
    QVERIFY(clearAction(edit)->isVisible());
    QVERIFY(buttonFor(edit, clearAction(edit))->isVisible());

    // Deleting the text by keys brings the lens back.
    for (int i = 0; i < typed.size(); ++i)
        QTest::keyClick(&edit, Qt::Key_Backspace);
    QVERIFY(edit.text().isEmpty());
    QVERIFY(lensAction(edit)->isVisible());
    QVERIFY(!clearAction(edit)->isVisible());
}

void TestSearchEdit::clearIconClearsText()
{
    SearchEdit edit;
    edit.setShadowDisplayString(QStringLiteral("Search (Ctrl+F)"));
    showInWindow(edit);
    // Without the focus: its text cursor would stand over the hint's start.
    edit.clearFocus();
    const QImage emptyWithHint = snapshot(edit);
    edit.setFocus();
    QTest::keyClicks(&edit, QStringLiteral("Width"));
    QCOMPARE(edit.text(), QStringLiteral("Width"));

    QToolButton* cross = buttonFor(edit, clearAction(edit));
    QVERIFY(cross);
    QVERIFY(cross->isVisible());
    QSignalSpy triggered(clearAction(edit), &QAction::triggered);
    QSignalSpy changes(&edit, &QLineEdit::textChanged);
    QTest::mouseClick(cross, Qt::LeftButton, Qt::NoModifier, cross->rect().center());

    QCOMPARE(triggered.count(), 1);
    QVERIFY(edit.text().isEmpty());
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.first().first().toString(), QString());
    QVERIFY(lensAction(edit)->isVisible());
    QVERIFY(!clearAction(edit)->isVisible());
    QTRY_VERIFY(buttonFor(edit, lensAction(edit))->isVisible());

    // The hint is back: the line looks as before the typing.
    edit.clearFocus();
    QTRY_COMPARE(differingPixels(snapshot(edit), emptyWithHint), 0);
}

void TestSearchEdit::lensClickDoesNothing()
{
    SearchEdit edit;
    edit.setShadowDisplayString(QStringLiteral("Search"));
    showInWindow(edit);
    QToolButton* lens = buttonFor(edit, lensAction(edit));
    QVERIFY(lens);
    QVERIFY(lens->isVisible());
    QVERIFY(!lens->isEnabled());

    QSignalSpy triggered(lensAction(edit), &QAction::triggered);
    QSignalSpy changes(&edit, &QLineEdit::textChanged);
    const QImage before = snapshot(edit);
    QTest::mouseClick(lens, Qt::LeftButton, Qt::NoModifier, lens->rect().center());
    QTest::mouseDClick(lens, Qt::LeftButton, Qt::NoModifier, lens->rect().center());

    QCOMPARE(triggered.count(), 0);
    QCOMPARE(changes.count(), 0);
    QVERIFY(edit.text().isEmpty());
    QVERIFY(lensAction(edit)->isVisible());
    QVERIFY(!clearAction(edit)->isVisible());
    QCOMPARE(differingPixels(snapshot(edit), before), 0);

    // With text in the line the lens is hidden and the clear button takes its
    // place; the hidden lens takes no click, and the text survives clicks
    // sent to it.
    const QRect lensPlace = lens->geometry();
    edit.setFocus();
    QTest::keyClicks(&edit, QStringLiteral("x"));
    QVERIFY(!lens->isVisible());
    QToolButton* cross = buttonFor(edit, clearAction(edit));
    QVERIFY(cross);
    QTRY_VERIFY(cross->isVisible());
    QCOMPARE(cross->geometry(), lensPlace);
    QTest::mouseClick(lens, Qt::LeftButton, Qt::NoModifier, lens->rect().center());
    QTest::mouseDClick(lens, Qt::LeftButton, Qt::NoModifier, lens->rect().center());
    QCOMPARE(edit.text(), QStringLiteral("x"));
    QCOMPARE(triggered.count(), 0);
    QCOMPARE(changes.count(), 1);
}

void TestSearchEdit::escapeIsLeftToTheParent()
{
    // Escape belongs to the widget around the line (a double press clears the
    // search there): the line itself neither clears nor swallows it.
    KeyRecorder parent;
    auto* layout = new QVBoxLayout(&parent);
    auto* edit = new SearchEdit(&parent);
    layout->addWidget(edit);
    showInWindow(parent);
    edit->setFocus();
    QTest::keyClicks(edit, QStringLiteral("Exposure"));
    parent.keys.clear();

    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(edit->text(), QStringLiteral("Exposure"));
    QVERIFY(clearAction(*edit)->isVisible());
    QCOMPARE(parent.keys, QList<int> { Qt::Key_Escape });

    QTest::keyClick(edit, Qt::Key_Escape);
    QCOMPARE(parent.keys, (QList<int> { Qt::Key_Escape, Qt::Key_Escape }));
    QCOMPARE(edit->text(), QStringLiteral("Exposure"));

    // Typed letters stay in the line.
    QTest::keyClick(edit, Qt::Key_A);
    QCOMPARE(parent.keys, (QList<int> { Qt::Key_Escape, Qt::Key_Escape }));
}

void TestSearchEdit::hintIsPaintedWhileEmpty()
{
    SearchEdit hinted;
    UnhintedEdit plain;
    hinted.setShadowDisplayString(QStringLiteral("Search (Ctrl+F)"));
    plain.setShadowDisplayString(QStringLiteral("Search (Ctrl+F)"));
    showInWindow(hinted);
    showInWindow(plain);

    const int hintPixels = differingPixels(snapshot(hinted), snapshot(plain));
    QVERIFY2(hintPixels > 20, qPrintable(QString::number(hintPixels)));

    // Typing hides it: then the two lines look alike.
    hinted.setFocus();
    plain.setFocus();
    QTest::keyClicks(&hinted, QStringLiteral("ab"));
    QTest::keyClicks(&plain, QStringLiteral("ab"));
    hinted.clearFocus();
    plain.clearFocus();
    QTRY_COMPARE(differingPixels(snapshot(hinted), snapshot(plain)), 0);
}

void TestSearchEdit::emptyHintDrawsNothing()
{
    SearchEdit hinted;
    UnhintedEdit plain;
    showInWindow(hinted);
    showInWindow(plain);
    QCOMPARE(differingPixels(snapshot(hinted), snapshot(plain)), 0);

    // An emptied hint stops showing at the next repaint.
    hinted.setShadowDisplayString(QStringLiteral("Search"));
    hinted.update();
    QTRY_VERIFY(differingPixels(snapshot(hinted), snapshot(plain)) > 0);
    hinted.setShadowDisplayString(QString());
    hinted.update();
    QTRY_COMPARE(differingPixels(snapshot(hinted), snapshot(plain)), 0);
}

void TestSearchEdit::hintFollowsClearActionNotText()
{
    SearchEdit edit;
    edit.setShadowDisplayString(QStringLiteral("Search"));
    showInWindow(edit);

    // Text set with signals blocked leaves the icons as they were, and the
    // hint with them.
    {
        const QSignalBlocker blocker(&edit);
        edit.setText(QStringLiteral("quiet"));
    }
    QVERIFY(lensAction(edit)->isVisible());
    QVERIFY(!clearAction(edit)->isVisible());

    UnhintedEdit plain;
    showInWindow(plain);
    {
        const QSignalBlocker blocker(&plain);
        plain.setText(QStringLiteral("quiet"));
    }
    QVERIFY(differingPixels(snapshot(edit), snapshot(plain)) > 0);

    // The next change through the signal puts things right.
    edit.setText(QStringLiteral("loud"));
    plain.setText(QStringLiteral("loud"));
    QVERIFY(clearAction(edit)->isVisible());
    QCOMPARE(differingPixels(snapshot(edit), snapshot(plain)), 0);
}

void TestSearchEdit::setShadowDisplayStringDoesNotRepaint()
{
    CountingEdit edit;
    QString hint = QStringLiteral("Search (F3)");
    edit.setShadowDisplayString(hint);
    QCOMPARE(edit.shadowDisplayString(), hint);
    showInWindow(edit);
    QTRY_VERIFY(edit.paints > 0); // shown once before counting starts
    edit.paints = 0;

    QString other = QStringLiteral("Something else entirely");
    edit.setShadowDisplayString(other);
    QCOMPARE(edit.shadowDisplayString(), other);
    QTest::qWait(50);
    QCOMPARE(edit.paints, 0);

    // A repaint asked for by anything else shows the new hint: the line then
    // looks as one made with that hint, and not as one with the old.
    edit.update();
    QTRY_VERIFY(edit.paints > 0);
    SearchEdit withOther;
    withOther.setShadowDisplayString(other);
    showInWindow(withOther);
    SearchEdit withOld;
    withOld.setShadowDisplayString(hint);
    showInWindow(withOld);
    // Without focus, so that no cursor or focus frame tells them apart.
    for (QLineEdit* line :
        { static_cast<QLineEdit*>(&edit), static_cast<QLineEdit*>(&withOther), static_cast<QLineEdit*>(&withOld) }) {
        line->setFocusPolicy(Qt::NoFocus);
        line->clearFocus();
    }
    const QImage painted = snapshot(edit);
    QCOMPARE(differingPixels(painted, snapshot(withOther)), 0);
    QVERIFY(differingPixels(painted, snapshot(withOld)) > 0);
}

void TestSearchEdit::sizeHintIsTheHint_data()
{
    QTest::addColumn<QString>("hint");
    QTest::newRow("empty") << QString();
    QTest::newRow("short") << QStringLiteral("Search");
    QTest::newRow("with shortcut") << QStringLiteral("Search (Ctrl+F)");
    QTest::newRow("long") << QStringLiteral("Search the features of every node map of the camera");
}

void TestSearchEdit::sizeHintIsTheHint()
{
    QFETCH(QString, hint);

    SearchEdit edit;
    edit.setShadowDisplayString(hint);
    const QSize expected = QFontMetrics(edit.font()).boundingRect(hint).size();
    QCOMPARE(edit.sizeHint(), expected);
    if (hint.isEmpty())
        QVERIFY(edit.sizeHint().isEmpty());
    else
        QVERIFY(edit.sizeHint().width() > 0);
}

void TestSearchEdit::fontOfTheLineSizesTheHint()
{
    SearchEdit edit;
    edit.setShadowDisplayString(QStringLiteral("Search"));
    showInWindow(edit);
    const QSize before = edit.sizeHint();

    QFont large = edit.font();
    large.setPointSize(large.pointSize() * 3);
    edit.setFont(large);

    // The font holds under the style sheet, and the hint is measured in it.
    QCOMPARE(edit.font().pointSize(), large.pointSize());
    QCOMPARE(edit.sizeHint(), QFontMetrics(large).boundingRect(QStringLiteral("Search")).size());
    QVERIFY(edit.sizeHint().height() > before.height());

    // A font change sent on, as the feature tree widget does for all its
    // descendants, keeps the line's own font.
    QEvent fontChange(QEvent::FontChange);
    QCoreApplication::sendEvent(&edit, &fontChange);
    QCOMPARE(edit.font().pointSize(), large.pointSize());
}

QTEST_MAIN(TestSearchEdit)
#include "tst_searchedit.moc"
