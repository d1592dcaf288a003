#include "app/formatters/CallsignFormatter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QTest>

using namespace Qt::StringLiterals;

class CallsignFormatterTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void replacesText_data();
    void replacesText();
    void objectValues();
    void aFieldShowsTheReplacement();
    void theInsertionPointStays();
    void pastedTextIsPassedOverOnceAnEdit();
};

void CallsignFormatterTest::replacesText_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("lower case") << u"w9xyz/p"_s << u"W9XYZ/P"_s;
    QTest::newRow("a hyphen goes") << u"AB-C"_s << u"ABC"_s;
    QTest::newRow("the second of two hyphens stays") << u"AB--C"_s << u"AB-C"_s;
    QTest::newRow("and goes at the next pass") << u"AB-C"_s << u"ABC"_s;
    QTest::newRow("a space goes") << u"K1 A"_s << u"K1A"_s;
    QTest::newRow("letters of other alphabets go") << u"\u00C91"_s << u"1"_s;
}

void CallsignFormatterTest::replacesText() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QString replacement;
    QString error;
    QVERIFY(!CallsignFormatter().isPartialStringValid(typed, &replacement, &error));
    QCOMPARE(replacement, shown);
    QVERIFY(error.isNull());
}

void CallsignFormatterTest::objectValues() {
    const CallsignFormatter formatter;
    QCOMPARE(formatter.stringForObjectValue(u"k1a"_s), u"K1A"_s);
    QVERIFY(formatter.stringForObjectValue(12).isNull());
    QVariant object;
    QVERIFY(formatter.getObjectValue(&object, u"k1-a"_s, nullptr));
    QCOMPARE(object, QVariant(u"K1-A"_s));
}

void CallsignFormatterTest::aFieldShowsTheReplacement() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    QTest::keyClicks(&field, u"w9-xyz/p"_s);
    QCOMPARE(field.text(), u"W9XYZ/P"_s);
}

void CallsignFormatterTest::theInsertionPointStays() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    field.setText(u"W9XYZ"_s);
    field.setCursorPosition(2);
    QTest::keyClick(&field, Qt::Key_Minus);
    QCOMPARE(field.cursorPosition(), 2);
    QTest::keyClicks(&field, u"a"_s);
    QCOMPARE(field.text(), u"W9AXYZ"_s);
    QCOMPARE(field.cursorPosition(), 3);
}

void CallsignFormatterTest::pastedTextIsPassedOverOnceAnEdit() {
    QLineEdit field;
    CallsignFormatter formatter;
    field.setValidator(&formatter);
    QGuiApplication::clipboard()->setText(u"dl1--abc"_s);
    field.paste();
    QCOMPARE(field.text(), u"DL1-ABC"_s);
    QTest::keyClicks(&field, u"/"_s);
    QCOMPARE(field.text(), u"DL1ABC/"_s);
}

QTEST_MAIN(CallsignFormatterTest)
#include "CallsignFormatterTest.moc"
