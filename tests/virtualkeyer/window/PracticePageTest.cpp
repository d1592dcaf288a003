#include "virtualkeyer/window/PracticePage.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/MorseTable.h"
#include "virtualkeyer/core/Registers.h"

#include <QSignalBlocker>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

class PracticePageTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();
    void whatIsSentIsCompared();
    void lengthsAreShown();
    void enterBeginsAnewAndHandsTheLettersBack();

  private:
    /// Sends what was keyed earlier, with dits of 60 ms, all of it before the page looks.
    void send(std::string_view text) {
        QSignalBlocker blocker(_tap.get());
        Time now = -Time{std::chrono::minutes{1}};
        for (const char character : text) {
            for (const char element : elementsOf(character)) {
                _tap->keyerDid({now, KeyLine{true, 1}}, Registers(20));
                now += element == '.' ? 60ms : 180ms;
                _tap->keyerDid({now, KeyLine{false, 1}}, Registers(20));
                now += 60ms;
            }
            now += character == ' ' ? 240ms : 120ms;
        }
        blocker.unblock();
        Q_EMIT _tap->moved();
    }
    [[nodiscard]] QStringList labels() const {
        QStringList texts;
        for (const auto* label : _page->findChildren<QLabel*>()) {
            texts += label->text();
        }
        return texts;
    }
    [[nodiscard]] QLineEdit* text() const { return _page->findChild<QLineEdit*>(); }

    std::unique_ptr<ScopeTap> _tap;
    std::unique_ptr<PracticePage> _page;
};

void PracticePageTest::init() {
    _tap = std::make_unique<ScopeTap>();
    _tap->timePassed(0s);
    _page = std::make_unique<PracticePage>(*_tap);
    _page->show();
    QVERIFY(QTest::qWaitForWindowActive(_page.get()));
}

void PracticePageTest::cleanup() {
    _page.reset();
    _tap.reset();
}

void PracticePageTest::whatIsSentIsCompared() {
    text()->setText(u"CQ DE <"_s);
    QTest::keyClick(text(), Qt::Key_Return);
    QVERIFY(labels().contains(u"Send the text with the paddle."_s));
    send("CQ NE");
    QTRY_VERIFY(labels().contains(u"Right: 4 of 5"_s));
    QVERIFY2(labels().contains(u"CQ  <b>N for D</b> E"_s), qPrintable(labels().join(u'|')));
}

void PracticePageTest::lengthsAreShown() {
    send("PA");
    const auto* table = _page->findChild<QTableWidget*>();
    QTRY_COMPARE(table->item(0, 1)->text(), u"3"_s);
    QCOMPARE(table->item(0, 2)->text(), u"1"_s);
    QCOMPARE(table->item(0, 3)->text(), u"1.00"_s);
    QCOMPARE(table->item(1, 3)->text(), u"3.00"_s);
    QCOMPARE(table->item(3, 3)->text(), u"3.00"_s);
    // All of them are ideal, which is in the middle.
    for (const int row : {0, 1, 2, 3}) {
        QCOMPARE(table->item(row, 4)->text(), QString(10, u'▁') + u'█' + QString(10, u'▁'));
    }
    QCOMPARE(table->item(4, 3)->text(), QString());
}

void PracticePageTest::enterBeginsAnewAndHandsTheLettersBack() {
    send("PA");
    QTRY_VERIFY(labels().contains(u"Right: 2 of 2"_s));
    text()->setFocus();
    QTest::keyClick(text(), Qt::Key_Return);
    QVERIFY(labels().contains(u"Right: 0 of 0"_s));
    QVERIFY(!text()->hasFocus());
    send("PA");
    QTRY_VERIFY(labels().contains(u"Right: 2 of 2"_s));
    QTest::mouseClick(_page->findChild<QToolButton*>(), Qt::LeftButton);
    QVERIFY(labels().contains(u"Right: 0 of 0"_s));
}

static const RegisteredTest<PracticePageTest> registered;
#include "PracticePageTest.moc"
