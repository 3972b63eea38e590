// The search highlighter: its mark colour from the settings, the ranges of
// the matches for painting, and the marked rich text for tool tips.

#include "featuretree/featuretreehighlighter.h"

#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QObject>
#include <QSettings>
#include <QStandardPaths>
#include <QtTest>

#include <type_traits>

#include <sys/stat.h>

using Ranges = QVector<QPair<int, int>>;

Q_DECLARE_METATYPE(Ranges)

namespace {

const QString group = QStringLiteral("FeatureTree");
const QString key = QStringLiteral("FeatureTree/HighlightColor");
const QString defaultColor = QStringLiteral("#ffff50");

QString storedColor()
{
    return QSettings().value(key).toString();
}

QString openMark(const QString& color = defaultColor)
{
    return QStringLiteral("<span style='background-color: ") + color + QStringLiteral("; font-weight:bold'>");
}

const QString closeMark = QStringLiteral("</span>");

QString marked(const QString& text, const QString& color = defaultColor)
{
    return openMark(color) + text + closeMark;
}

} // namespace

// A plain value class: one lives inside each tree view.
static_assert(!std::is_base_of<QObject, FeatureTreeHighlighter>::value, "the highlighter is no QObject");

class TestFeatureTreeHighlighter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void missingKeyGivesTheDefaultAndWritesIt();
    void valueThatNamesNoColorEndsAsTheDefault_data();
    void valueThatNamesNoColorEndsAsTheDefault();
    void colorIsStoredAsLowerCaseHex_data();
    void colorIsStoredAsLowerCaseHex();
    void colorIsReadOnceAtConstruction();
    void settingsFileIsLeftAloneWhenItHoldsTheColor_data();
    void settingsFileIsLeftAloneWhenItHoldsTheColor();
    void otherKeysOfTheGroupAreLeftAlone();

    void textToHighlight();
    void indicesToHighlight_data();
    void indicesToHighlight();
    void highlightText_data();
    void highlightText();
    void highlightTextUsesTheColorOfTheSettings();
};

void TestFeatureTreeHighlighter::initTestCase()
{
    // The colour is written back on construction: only into this test's own settings.
    QStandardPaths::setTestModeEnabled(true);
    QCoreApplication::setOrganizationName(QStringLiteral("ZarvexTests"));
    QCoreApplication::setApplicationName(QStringLiteral("tst_featuretreehighlighter"));
    QVERIFY2(QSettings().fileName().contains(QLatin1String("tst_featuretreehighlighter")),
        qPrintable(QSettings().fileName()));
}

void TestFeatureTreeHighlighter::init()
{
    QSettings settings;
    settings.remove(group);
    settings.sync();
    QVERIFY(!settings.contains(key));
}

void TestFeatureTreeHighlighter::missingKeyGivesTheDefaultAndWritesIt()
{
    FeatureTreeHighlighter highlighter;
    QCOMPARE(highlighter.getHighlightColor(), QColor(0xff, 0xff, 0x50));
    QCOMPARE(highlighter.getHighlightColor().name(), defaultColor);
    QVERIFY(QSettings().contains(key));
    QCOMPARE(storedColor(), defaultColor);
    // The group is closed again: nothing landed outside it.
    QCOMPARE(QSettings().childKeys(), QStringList());
    QCOMPARE(QSettings().childGroups(), QStringList({ group }));
}

void TestFeatureTreeHighlighter::valueThatNamesNoColorEndsAsTheDefault_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("empty text") << QVariant(QString());
    QTest::newRow("an unknown word") << QVariant(QStringLiteral("notacolour"));
    QTest::newRow("a number sign alone") << QVariant(QStringLiteral("#"));
    QTest::newRow("five digits") << QVariant(QStringLiteral("#12345"));
    QTest::newRow("not hexadecimal") << QVariant(QStringLiteral("#gggggg"));
    QTest::newRow("a number") << QVariant(42);
}

void TestFeatureTreeHighlighter::valueThatNamesNoColorEndsAsTheDefault()
{
    QFETCH(QVariant, value);
    QSettings().setValue(key, value);
    FeatureTreeHighlighter highlighter;
    QCOMPARE(highlighter.getHighlightColor().name(), defaultColor);
    QVERIFY(highlighter.getHighlightColor().isValid());
    QCOMPARE(storedColor(), defaultColor);
}

void TestFeatureTreeHighlighter::colorIsStoredAsLowerCaseHex_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a word that QColor knows") << "red"
                                              << "#ff0000";
    QTest::newRow("another word") << "lightblue"
                                  << "#add8e6";
    QTest::newRow("a word in capitals") << "Green"
                                        << "#008000";
    QTest::newRow("upper-case digits") << "#ABCDEF"
                                       << "#abcdef";
    QTest::newRow("three digits") << "#fa0"
                                  << "#ffaa00";
    QTest::newRow("with alpha, which is dropped") << "#80ff0000"
                                                  << "#ff0000";
    QTest::newRow("already in its form") << "#123456"
                                         << "#123456";
}

void TestFeatureTreeHighlighter::colorIsStoredAsLowerCaseHex()
{
    QFETCH(QString, value);
    QFETCH(QString, expected);
    QSettings().setValue(key, value);
    FeatureTreeHighlighter highlighter;
    QCOMPARE(highlighter.getHighlightColor().name(), expected);
    QCOMPARE(storedColor(), expected);
    QVERIFY(QRegularExpression(QStringLiteral("^#[0-9a-f]{6}$")).match(storedColor()).hasMatch());
}

void TestFeatureTreeHighlighter::colorIsReadOnceAtConstruction()
{
    QSettings().setValue(key, QStringLiteral("#010203"));
    FeatureTreeHighlighter first;
    QSettings().setValue(key, QStringLiteral("#0a0b0c"));
    QCOMPARE(first.getHighlightColor().name(), QStringLiteral("#010203"));
    // Using it touches the settings no more.
    first.setTextToHighlight(QStringLiteral("a"));
    first.highlightText(QStringLiteral("a"));
    first.getIndiceesToHighlight(QStringLiteral("a"));
    QCOMPARE(storedColor(), QStringLiteral("#0a0b0c"));

    // A highlighter made afterwards takes the new colour.
    FeatureTreeHighlighter second;
    QCOMPARE(second.getHighlightColor().name(), QStringLiteral("#0a0b0c"));
    QCOMPARE(first.getHighlightColor().name(), QStringLiteral("#010203"));
}

void TestFeatureTreeHighlighter::settingsFileIsLeftAloneWhenItHoldsTheColor_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("rewritten");
    QTest::newRow("the default in its form") << "#ffff50" << false;
    QTest::newRow("another colour in its form") << "#123456" << false;
    QTest::newRow("upper-case digits") << "#FFFF50" << true;
    QTest::newRow("a word") << "red" << true;
    QTest::newRow("no colour") << "nothing" << true;
}

void TestFeatureTreeHighlighter::settingsFileIsLeftAloneWhenItHoldsTheColor()
{
    // Every view makes a highlighter. Writing the same text again would
    // replace the settings file each time, with a flush to disk.
    QFETCH(QString, value);
    QFETCH(bool, rewritten);
    QSettings().setValue(key, value);
    const QString path = QSettings().fileName();
    QVERIFY(QFileInfo::exists(path));
    struct stat statBefore;
    QCOMPARE(::stat(QFile::encodeName(path).constData(), &statBefore), 0);

    FeatureTreeHighlighter highlighter;
    struct stat statAfter;
    QCOMPARE(::stat(QFile::encodeName(path).constData(), &statAfter), 0);
    // A rewrite replaces the file with a new one: another inode.
    QCOMPARE(statAfter.st_ino != statBefore.st_ino, rewritten);
    QVERIFY(QRegularExpression(QStringLiteral("^#[0-9a-f]{6}$")).match(storedColor()).hasMatch());
    QCOMPARE(storedColor(), highlighter.getHighlightColor().name());
}

void TestFeatureTreeHighlighter::otherKeysOfTheGroupAreLeftAlone()
{
    QSettings().setValue(QStringLiteral("FeatureTree/Other"), 7);
    FeatureTreeHighlighter highlighter;
    QSettings settings;
    settings.beginGroup(group);
    QCOMPARE(settings.childKeys(), QStringList({ QStringLiteral("HighlightColor"), QStringLiteral("Other") }));
    QCOMPARE(settings.value(QStringLiteral("Other")).toInt(), 7);
}

void TestFeatureTreeHighlighter::textToHighlight()
{
    FeatureTreeHighlighter highlighter;
    QCOMPARE(highlighter.getTextToHighlightLength(), 0);
    highlighter.setTextToHighlight(QStringLiteral("Width"));
    QCOMPARE(highlighter.getTextToHighlightLength(), 5);
    // Characters, not bytes.
    highlighter.setTextToHighlight(QStringLiteral("Gr\u00f6\u00dfe"));
    QCOMPARE(highlighter.getTextToHighlightLength(), 5);
    highlighter.setTextToHighlight(QString());
    QCOMPARE(highlighter.getTextToHighlightLength(), 0);
    QCOMPARE(highlighter.getIndiceesToHighlight(QStringLiteral("Width")), Ranges());
    // Setting the text writes nothing.
    QSettings().remove(key);
    highlighter.setTextToHighlight(QStringLiteral("x"));
    QVERIFY(!QSettings().contains(key));
}

void TestFeatureTreeHighlighter::indicesToHighlight_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("text");
    QTest::addColumn<Ranges>("ranges");
    using R = Ranges;
    QTest::newRow("empty search text") << ""
                                       << "Width" << R();
    QTest::newRow("empty text") << "w"
                                << "" << R();
    QTest::newRow("search text longer than the text") << "Widths"
                                                      << "Width" << R();
    QTest::newRow("search text much longer than the text") << "Acquisition Frame Rate"
                                                           << "Rate" << R();
    QTest::newRow("no match") << "z"
                              << "Width" << R();
    QTest::newRow("whole text") << "Width"
                                << "Width" << R({ { 0, 5 } });
    QTest::newRow("end is one past the last character") << "id"
                                                        << "Width" << R({ { 1, 3 } });
    QTest::newRow("at the end") << "th"
                                << "Width" << R({ { 3, 5 } });
    QTest::newRow("case-insensitive") << "WIDTH"
                                      << "width" << R({ { 0, 5 } });
    QTest::newRow("mixed case both ways") << "wIdTh"
                                          << "Width Width" << R({ { 0, 5 }, { 6, 11 } });
    QTest::newRow("several") << "e"
                             << "Exposure Time" << R({ { 0, 1 }, { 7, 8 }, { 12, 13 } });
    QTest::newRow("no overlap: two of three") << "aa"
                                              << "aaa" << R({ { 0, 2 } });
    QTest::newRow("no overlap: two of four") << "aa"
                                             << "aaaa" << R({ { 0, 2 }, { 2, 4 } });
    QTest::newRow("no overlap: three of five") << "aba"
                                               << "ababa" << R({ { 0, 3 } });
    QTest::newRow("star and question mark are characters") << "*?"
                                                           << "a*?b*?" << R({ { 1, 3 }, { 4, 6 } });
    QTest::newRow("a star doesn't match everything") << "*"
                                                     << "Width" << R();
    QTest::newRow("a dot doesn't match everything") << "."
                                                    << "Width" << R();
    QTest::newRow("angle brackets") << "<b>"
                                    << "<b>x</b>" << R({ { 0, 3 } });
    QTest::newRow("non-ASCII, case-insensitive") << "\u00e4"
                                                 << "\u00c4pfel \u00e4" << R({ { 0, 1 }, { 6, 7 } });
    QTest::newRow("space") << " "
                           << "a b c" << R({ { 1, 2 }, { 3, 4 } });
}

void TestFeatureTreeHighlighter::indicesToHighlight()
{
    QFETCH(QString, search);
    QFETCH(QString, text);
    QFETCH(Ranges, ranges);
    FeatureTreeHighlighter highlighter;
    highlighter.setTextToHighlight(search);
    QCOMPARE(highlighter.getIndiceesToHighlight(text), ranges);
    for (const auto& range : ranges) {
        QCOMPARE(range.second - range.first, highlighter.getTextToHighlightLength());
        QCOMPARE(text.mid(range.first, range.second - range.first).compare(search, Qt::CaseInsensitive), 0);
    }
}

void TestFeatureTreeHighlighter::highlightText_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("result");
    QTest::newRow("empty search text: unchanged") << ""
                                                  << "<b>Width</b>"
                                                  << "<b>Width</b>";
    QTest::newRow("no match: unchanged") << "z"
                                         << "Width"
                                         << "Width";
    QTest::newRow("search text longer than the text") << "Widths"
                                                      << "Width"
                                                      << "Width";
    QTest::newRow("empty text") << "w"
                                << ""
                                << "";
    QTest::newRow("whole text") << "Width"
                                << "Width" << marked(QStringLiteral("Width"));
    QTest::newRow("case of the text kept") << "WIDTH"
                                           << "wIdTh" << marked(QStringLiteral("wIdTh"));
    QTest::newRow("every match, each in its own case")
        << "gain"
        << "Gain GAIN gain"
        << marked(QStringLiteral("Gain")) + " " + marked(QStringLiteral("GAIN")) + " " + marked(QStringLiteral("gain"));
    QTest::newRow("inside a word") << "dt"
                                   << "Width [px]"
                                   << "Wi" + marked(QStringLiteral("dt")) + "h [px]";
    QTest::newRow("no overlap") << "aa"
                                << "aaa" << marked(QStringLiteral("aa")) + "a";
    // The marks that were put in are not searched again.
    QTest::newRow("text of the mark itself") << "span"
                                             << "span" << marked(QStringLiteral("span"));
    QTest::newRow("colour of the mark") << "ff"
                                        << "ff" << marked(QStringLiteral("ff"));
    QTest::newRow("a letter of the mark") << "s"
                                          << "ss" << marked(QStringLiteral("s")) + marked(QStringLiteral("s"));
    // Not escaped: the text may already be mark-up, and a match inside it is wrapped like any other.
    QTest::newRow("angle brackets pass unchanged") << "a"
                                                   << "<x>a</x>"
                                                   << "<x>" + marked(QStringLiteral("a")) + "</x>";
    QTest::newRow("a match inside mark-up")
        << "b"
        << "<b>x</b>"
        << "<" + marked(QStringLiteral("b")) + ">x</" + marked(QStringLiteral("b")) + ">";
    QTest::newRow("a tool tip title") << "eig"
                                      << "<nobr><b>Height (Height)</b></nobr>"
                                      << "<nobr><b>H" + marked(QStringLiteral("eig")) + "ht (H"
            + marked(QStringLiteral("eig")) + "ht)</b></nobr>";
    QTest::newRow("ampersand stays") << "&"
                                     << "a & b"
                                     << "a " + marked(QStringLiteral("&")) + " b";
    QTest::newRow("star and question mark") << "?"
                                            << "Mode?"
                                            << "Mode" + marked(QStringLiteral("?"));
}

void TestFeatureTreeHighlighter::highlightText()
{
    QFETCH(QString, search);
    QFETCH(QString, text);
    QFETCH(QString, result);
    FeatureTreeHighlighter highlighter;
    highlighter.setTextToHighlight(search);
    QCOMPARE(highlighter.highlightText(text), result);
}

void TestFeatureTreeHighlighter::highlightTextUsesTheColorOfTheSettings()
{
    QSettings().setValue(key, QStringLiteral("cyan"));
    FeatureTreeHighlighter highlighter;
    highlighter.setTextToHighlight(QStringLiteral("idt"));
    QCOMPARE(highlighter.highlightText(QStringLiteral("Width")),
        QStringLiteral("W") + marked(QStringLiteral("idt"), QStringLiteral("#00ffff")) + QStringLiteral("h"));
    // Marking off again with the empty text.
    highlighter.setTextToHighlight(QString());
    QCOMPARE(highlighter.highlightText(QStringLiteral("Width")), QStringLiteral("Width"));
}

QTEST_MAIN(TestFeatureTreeHighlighter)
#include "tst_featuretreehighlighter.moc"
