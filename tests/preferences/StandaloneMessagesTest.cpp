#include "preferences/StandaloneMessages.h"

#include "keyer/Action.h"
#include "preferences/MemoryGauge.h"
#include "preferences/TimedProgressBar.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextDocument>
#include <QToolButton>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A tool tip as it reads: rich text, so that it wraps.
QString toolTipOf(const QWidget& widget) {
    QTextDocument toolTip;
    toolTip.setHtml(widget.toolTip());
    return Qt::mightBeRichText(widget.toolTip()) ? toolTip.toPlainText() : QString();
}

} // namespace

class StandaloneMessagesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void controlsTellWhatTheyAreFor();
    void typingIsFiltered();
    void soundMessagesHaveNoMark();
    void aFaultIsMarked_data();
    void aFaultIsMarked();
    void aMarkComesAndGoesWithItsFault();
    void aMarkIsTheNextStopAfterItsField();
    void aMarkThatIsPressedHasTheFocus();
    void fieldsHaveTheWidthThatMarksLeave();
    void theGaugeFollowsTheFields();

    void buttonsWaitForTheKeyer();
    void loadingShowsItsProgress();
    void loadingKeepsTheButtonsFromDisturbingIt();
    void theFocusComesBackAfterLoading();
    void aFocusThatTheOperatorMovedStays();
    void aKeyerThatGoesEndsTheProgress();

  private:
    template <typename Widget>
    [[nodiscard]] Widget& find(const QString& name) const {
        return *_view->findChild<Widget*>(name);
    }
    [[nodiscard]] QLineEdit& field(int number) const {
        return find<QLineEdit>(u"field%1"_s.arg(number));
    }
    [[nodiscard]] QToolButton& mark(int number) const {
        return find<QToolButton>(u"mark%1"_s.arg(number));
    }
    [[nodiscard]] QPushButton& sendButton(int number) const {
        return find<QPushButton>(u"send%1"_s.arg(number));
    }
    [[nodiscard]] QPushButton& saveButton() const { return find<QPushButton>(u"save"_s); }
    [[nodiscard]] TimedProgressBar& progress() const {
        return find<TimedProgressBar>(u"progress"_s);
    }
    void show();

    std::optional<EngineBench> _bench;
    std::optional<StandaloneMessages> _view;
};

void StandaloneMessagesTest::init() {
    _bench.emplace();
    _view.emplace();
    _view->follow(_bench->engine());
}

void StandaloneMessagesTest::cleanup() {
    _view.reset();
    _bench.reset();
}

void StandaloneMessagesTest::show() {
    _view->show();
    _view->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&*_view));
}

void StandaloneMessagesTest::controlsTellWhatTheyAreFor() {
    for (int number = 1; number <= 6; ++number) {
        QCOMPARE(field(number).property("setting").toString(),
                 u"WKStandaloneMessage%1"_s.arg(number));
        QCOMPARE(sendButton(number).property("action").toString(), u"sendStandaloneMessage"_s);
        QCOMPARE(Action::tag(&sendButton(number)), number);
    }
    QCOMPARE(saveButton().property("action").toString(), u"saveSettings"_s);
}

void StandaloneMessagesTest::typingIsFiltered() {
    QTest::keyClicks(&field(1), u"cq! de&"_s);
    QCOMPARE(field(1).text(), u"CQ DE"_s);
}

void StandaloneMessagesTest::soundMessagesHaveNoMark() {
    field(1).setText(u"CQ TEST"_s);
    for (int number = 1; number <= 6; ++number) {
        QVERIFY(mark(number).isHidden());
    }
}

void StandaloneMessagesTest::aFaultIsMarked_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("explained");

    QTest::newRow("a message that does not fit")
        << QString(240, u'E') << u"Does not fit"_s << u"Characters too many: 9"_s;
    QTest::newRow("a token, which has no Morse code")
        << u"DE `"_s << u"No Morse for \u201c`\u201d"_s << u"sends nothing"_s;
    QTest::newRow("a dollar sign, whose code ends the message")
        << u"5 $ ONLY"_s << u"Ends at \u201c$\u201d"_s << u"nothing behind it"_s;
    QTest::newRow("a message that does not fit and has a token")
        << QString(240, u'#') << u"Does not fit"_s << u"left out"_s;
    QTest::newRow("a character that the memory cannot hold")
        << u"M\u00dcLLER"_s << u"Cannot hold \u201c\u00dc\u201d"_s << u"Nothing can be saved"_s;
}

void StandaloneMessagesTest::aFaultIsMarked() {
    QFETCH(const QString, text);
    QFETCH(const QString, shown);
    QFETCH(const QString, explained);
    field(2).setValidator(nullptr); // a stored text has not been through it
    field(2).setText(text);
    QVERIFY(mark(2).isVisibleTo(&*_view));
    QCOMPARE(mark(2).text(), shown);
    QVERIFY(!mark(2).icon().isNull());
    QCOMPARE(mark(2).accessibleName(), u"Message 2: "_s + shown);
    const auto description = mark(2).accessibleDescription();
    QVERIFY2(description.contains(explained), qPrintable(description));
    QCOMPARE(toolTipOf(mark(2)), description);
    QVERIFY(mark(1).isHidden());
    QVERIFY(mark(3).isHidden());
}

void StandaloneMessagesTest::aMarkComesAndGoesWithItsFault() {
    field(1).setText(QString(231, u'E'));
    field(2).setText(u"TU"_s);
    QVERIFY(mark(1).isHidden());
    QVERIFY(!mark(2).isHidden());
    field(1).setText(u"CQ"_s);
    QVERIFY(mark(2).isHidden());
}

void StandaloneMessagesTest::aMarkIsTheNextStopAfterItsField() {
    field(3).setText(u"`"_s);
    show();
    field(3).setFocus();
    QTest::keyClick(&field(3), Qt::Key_Tab);
    QVERIFY(mark(3).hasFocus());
}

/// Which has it explained.
void StandaloneMessagesTest::aMarkThatIsPressedHasTheFocus() {
    field(3).setText(u"`"_s);
    show();
    QTest::mouseClick(&mark(3), Qt::LeftButton);
    QVERIFY(mark(3).hasFocus());
}

void StandaloneMessagesTest::fieldsHaveTheWidthThatMarksLeave() {
    show();
    const auto reset = [this](int number) {
        return find<QToolButton>(u"reset%1"_s.arg(number)).geometry();
    };
    const auto right = [this](const QWidget& widget) {
        return widget.mapTo(&*_view, widget.rect().bottomRight()).x();
    };
    const auto gap = _view->layout()->spacing() + 8;
    QVERIFY(reset(1).left() - right(field(1)) <= gap);
    field(2).setText(u"`"_s);
    QTRY_VERIFY(right(field(2)) < mark(2).mapTo(&*_view, QPoint()).x());
    QVERIFY(reset(1).left() - right(field(1)) <= gap); // the others have all of it
    field(2).clear();
    QTRY_COMPARE(right(field(2)), right(field(1)));
}

void StandaloneMessagesTest::theGaugeFollowsTheFields() {
    const auto& gauge = find<MemoryGauge>(u"gauge"_s);
    field(1).setText(u"CQ"_s);
    field(6).setText(u"TU"_s);
    QCOMPARE(gauge.text(), u"4 of 232 bytes used"_s);
    field(1).setText(QString(230, u'E'));
    QCOMPARE(gauge.text(), u"230 of 232 bytes used; left out: 6"_s);
}

void StandaloneMessagesTest::buttonsWaitForTheKeyer() {
    QVERIFY(!saveButton().isEnabled());
    QCOMPARE(toolTipOf(saveButton()), u"Connect the keyer to save and to send."_s);
    QVERIFY(!sendButton(6).isEnabled());
    QCOMPARE(sendButton(6).toolTip(), saveButton().toolTip());

    QVERIFY(_bench->connect());
    QVERIFY(saveButton().isEnabled());
    QVERIFY(saveButton().toolTip().contains(u"for work without a computer"_s));
    QCOMPARE(saveButton().accessibleDescription(), toolTipOf(saveButton()));
    for (int number = 1; number <= 6; ++number) {
        QVERIFY(sendButton(number).isEnabled());
    }

    _bench->engine().disconnect(nullptr);
    QVERIFY(!saveButton().isEnabled());
    QVERIFY(!sendButton(1).isEnabled());
}

void StandaloneMessagesTest::loadingShowsItsProgress() {
    QVERIFY(_bench->connect());
    QVERIFY(!progress().isVisibleTo(&*_view));
    _view->showLoading();
    QVERIFY(progress().isVisibleTo(&*_view));
    QCOMPARE(progress().value(), progress().minimum());
    // 258 bytes of 11 bits at 1200 baud.
    _bench->clock().advance(2364ms);
    QVERIFY(progress().isVisibleTo(&*_view));
    QVERIFY(progress().value() >= progress().maximum() * 95 / 100);
    _bench->clock().advance(2ms);
    QVERIFY(!progress().isVisibleTo(&*_view));
}

void StandaloneMessagesTest::loadingKeepsTheButtonsFromDisturbingIt() {
    QVERIFY(_bench->connect());
    _view->showLoading();
    QVERIFY(!saveButton().isEnabled());
    QCOMPARE(toolTipOf(saveButton()), u"The keyer's memory is being loaded."_s);
    QCOMPARE(saveButton().accessibleDescription(), toolTipOf(saveButton()));
    QVERIFY(!sendButton(1).isEnabled());
    QVERIFY(field(1).isEnabled());
    _bench->receive({0xC0}); // the keyer's activity changes meanwhile
    QVERIFY(!saveButton().isEnabled());
    _bench->clock().advance(2366ms);
    QVERIFY(saveButton().isEnabled());
    QVERIFY(sendButton(1).isEnabled());
}

void StandaloneMessagesTest::theFocusComesBackAfterLoading() {
    QVERIFY(_bench->connect());
    show();
    saveButton().setFocus();
    _view->showLoading();
    QVERIFY(!saveButton().hasFocus());
    _bench->clock().advance(2366ms);
    QVERIFY(saveButton().hasFocus());
}

void StandaloneMessagesTest::aFocusThatTheOperatorMovedStays() {
    QVERIFY(_bench->connect());
    show();
    saveButton().setFocus();
    _view->showLoading();
    field(4).setFocus();
    _bench->clock().advance(2366ms);
    QVERIFY(field(4).hasFocus());
}

void StandaloneMessagesTest::aKeyerThatGoesEndsTheProgress() {
    QVERIFY(_bench->connect());
    _view->showLoading();
    _bench->engine().disconnect(nullptr);
    QVERIFY(!progress().isVisibleTo(&*_view));
    QCOMPARE(toolTipOf(saveButton()), u"Connect the keyer to save and to send."_s);
    QVERIFY(_bench->connect());
    QVERIFY(saveButton().isEnabled());
}

static const RegisteredTest<StandaloneMessagesTest> registered;
#include "StandaloneMessagesTest.moc"
