// The search proxy's reading of a QSortFilterProxyModel's filter: the same
// plain text whichever Qt version keeps it, and any other filter matched as
// the regular expression it is.

#include "featuretree/searchpattern.h"

#include <QRegularExpression>
#include <QSortFilterProxyModel>
#include <QtTest>

class TestSearchPattern : public QObject
{
    Q_OBJECT

private slots:
    void fixedStringOfTheProxyIsPlainText_data();
    void fixedStringOfTheProxyIsPlainText();
    void escapedTextIsUnescaped_data();
    void escapedTextIsUnescaped();
    void patternsThatAreNotPlainText_data();
    void patternsThatAreNotPlainText();
    void regularExpressionOfTheProxyIsMatchedAsOne();
    void otherOptionsKeepTheExpression();
    void emptyFilterMatchesEverything();
    void previousPatternIsKeptWhileTheFilterStands();
    void caseSensitivityFollowsTheProxy();
};

void TestSearchPattern::fixedStringOfTheProxyIsPlainText_data()
{
    QTest::addColumn<QString>("search");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("matches");

    QTest::newRow("word") << "gain"
                          << "AnalogGainAuto" << true;
    QTest::newRow("no match") << "gain"
                              << "ExposureTime" << false;
    QTest::newRow("star is a character") << "a*b"
                                         << "xa*by" << true;
    QTest::newRow("star is not a wildcard") << "a*b"
                                            << "aab" << false;
    QTest::newRow("question mark") << "Width?"
                                   << "Width" << false;
    QTest::newRow("dot") << "a.c"
                         << "abc" << false;
    QTest::newRow("dot itself") << "a.c"
                                << "xa.cx" << true;
    QTest::newRow("brackets") << "[0]"
                              << "Lut[0]" << true;
    QTest::newRow("backslash") << "a\\d"
                               << "a\\d" << true;
    QTest::newRow("backslash is no class") << "a\\d"
                                           << "a1" << false;
    QTest::newRow("spaces") << "Exposure Time"
                            << "ExposureTime" << false;
    QTest::newRow("not ASCII") << QString::fromUtf8("Gr\xc3\xb6\xc3\x9f") << QString::fromUtf8("xGR\xc3\x96\xc3\x9fy")
                               << true;
    QTest::newRow("NUL") << QString(QChar(0)) << QStringLiteral("a") + QChar(0) << true;
    QTest::newRow("NUL then digit") << QString(QChar(0)) + QStringLiteral("1") << QStringLiteral("a") + QChar(1)
                                    << false;
}

void TestSearchPattern::fixedStringOfTheProxyIsPlainText()
{
    QFETCH(QString, search);
    QFETCH(QString, text);
    QFETCH(bool, matches);

    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setFilterFixedString(search);
    const SearchPattern pattern = SearchPattern::ofProxy(proxy);
    QCOMPARE(pattern.isFixedString(), true);
    QCOMPARE(pattern.text(), search);
    QCOMPARE(pattern.caseSensitivity(), Qt::CaseInsensitive);
    QCOMPARE(pattern.matches(text), matches);
    // The same answer as Qt's own reading of the text.
    QCOMPARE(pattern.matches(text), text.contains(search, Qt::CaseInsensitive));
}

void TestSearchPattern::escapedTextIsUnescaped_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("letters") << "Width";
    QTest::newRow("punctuation") << "a.b*c?d+e(f)[g]{h}|i^j$k\\l/m-n#o";
    QTest::newRow("space and tab") << "a b\tc";
    QTest::newRow("not ASCII") << QString::fromUtf8("\xe6\x9b\x9d\xe5\x85\x89 \xc3\xbc");
    QTest::newRow("surrogate pair") << QString::fromUtf8("\xf0\x9f\x93\xb7x");
    QTest::newRow("NUL") << QString(QChar(0)) + QStringLiteral("x");
    QTest::newRow("NUL then digit") << QString(QChar(0)) + QStringLiteral("12");
}

void TestSearchPattern::escapedTextIsUnescaped()
{
    QFETCH(QString, text);
    QString literal;
    QVERIFY(SearchPattern::unescape(QRegularExpression::escape(text), &literal));
    QCOMPARE(literal, text);

    const SearchPattern pattern
        = SearchPattern::regularExpression(QRegularExpression(QRegularExpression::escape(text)));
    QVERIFY(pattern.isFixedString());
    QCOMPARE(pattern.text(), text);
    QCOMPARE(pattern.caseSensitivity(), Qt::CaseSensitive);
}

void TestSearchPattern::patternsThatAreNotPlainText_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::newRow("dot") << "a.c";
    QTest::newRow("star") << "ab*";
    QTest::newRow("class") << "\\d+";
    QTest::newRow("word boundary") << "\\bGain";
    QTest::newRow("anchor") << "^Gain";
    QTest::newRow("trailing backslash") << "a\\";
}

void TestSearchPattern::patternsThatAreNotPlainText()
{
    QFETCH(QString, pattern);
    QString literal = QStringLiteral("untouched");
    QVERIFY(!SearchPattern::unescape(pattern, &literal));
    QCOMPARE(literal, QStringLiteral("untouched"));
    QVERIFY(!SearchPattern::regularExpression(QRegularExpression(pattern)).isFixedString());
}

void TestSearchPattern::regularExpressionOfTheProxyIsMatchedAsOne()
{
    QSortFilterProxyModel proxy;
    proxy.setFilterRegularExpression(
        QRegularExpression(QStringLiteral("^Gain\\d$"), QRegularExpression::CaseInsensitiveOption));
    const SearchPattern pattern = SearchPattern::ofProxy(proxy);
    QVERIFY(!pattern.isFixedString());
    QCOMPARE(pattern.caseSensitivity(), Qt::CaseInsensitive);
    QVERIFY(pattern.matches(QStringLiteral("gain7")));
    QVERIFY(!pattern.matches(QStringLiteral("gain77")));
    QVERIFY(!pattern.matches(QStringLiteral("AnalogGain7")));
}

void TestSearchPattern::otherOptionsKeepTheExpression()
{
    // With extended syntax, white space in the pattern means nothing: "a\ b"
    // would be a plain text, but "a b" is not the text "a b" there.
    const QRegularExpression extended(QStringLiteral("a b"), QRegularExpression::ExtendedPatternSyntaxOption);
    const SearchPattern pattern = SearchPattern::regularExpression(extended);
    QVERIFY(!pattern.isFixedString());
    QVERIFY(pattern.matches(QStringLiteral("ab")));
    QVERIFY(!pattern.matches(QStringLiteral("a-b")));
}

void TestSearchPattern::emptyFilterMatchesEverything()
{
    QSortFilterProxyModel proxy;
    const SearchPattern fresh = SearchPattern::ofProxy(proxy);
    QVERIFY(fresh.text().isEmpty());
    QVERIFY(fresh.matches(QString()));
    QVERIFY(fresh.matches(QStringLiteral("anything")));

    proxy.setFilterFixedString(QStringLiteral("x"));
    proxy.setFilterFixedString(QString());
    const SearchPattern cleared = SearchPattern::ofProxy(proxy);
    QVERIFY(cleared.text().isEmpty());
    QVERIFY(cleared.matches(QStringLiteral("anything")));
    QVERIFY(SearchPattern().matches(QStringLiteral("anything")));
}

void TestSearchPattern::previousPatternIsKeptWhileTheFilterStands()
{
    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    proxy.setFilterFixedString(QStringLiteral("Gain"));
    const SearchPattern first = SearchPattern::ofProxy(proxy);
    const SearchPattern again = SearchPattern::ofProxy(proxy, first);
    QCOMPARE(again, first);
    // The very text, shared, not a copy made anew.
    QVERIFY(again.text().isSharedWith(first.text()));

    proxy.setFilterFixedString(QStringLiteral("Width"));
    const SearchPattern changed = SearchPattern::ofProxy(proxy, first);
    QVERIFY(changed != first);
    QCOMPARE(changed.text(), QStringLiteral("Width"));
}

void TestSearchPattern::caseSensitivityFollowsTheProxy()
{
    QSortFilterProxyModel proxy;
    proxy.setFilterCaseSensitivity(Qt::CaseSensitive);
    proxy.setFilterFixedString(QStringLiteral("gain"));
    const SearchPattern sensitive = SearchPattern::ofProxy(proxy);
    QCOMPARE(sensitive.caseSensitivity(), Qt::CaseSensitive);
    QVERIFY(!sensitive.matches(QStringLiteral("Gain")));
    QVERIFY(sensitive.matches(QStringLiteral("again")));

    proxy.setFilterCaseSensitivity(Qt::CaseInsensitive);
    const SearchPattern insensitive = SearchPattern::ofProxy(proxy, sensitive);
    QVERIFY(insensitive != sensitive);
    QVERIFY(insensitive.matches(QStringLiteral("Gain")));
}

QTEST_GUILESS_MAIN(TestSearchPattern)
#include "tst_searchpattern.moc"
