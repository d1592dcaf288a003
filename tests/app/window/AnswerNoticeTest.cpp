#include "app/window/AnswerNotice.h"

#include "app/window/NoticeStrip.h"
#include "keyer/KeyerWatch.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

/// What the operator is told of a keyer that does not answer.
class AnswerNoticeTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aKeyerThatAnswersIsNoNews();
    void aKeyerThatNeverAnswersIsToldOf();
    void aKeyerThatFellSilentIsToldOf();
    void askingAgainGreetsIt();
    void aPortThatIsClosedIsAskedFor();
    void anAnswerPutsTheNoticeAway();
    void theEndOfTheLinkPutsTheNoticeAway();

  private:
    void pass(Clock::Duration duration) { _bench->clock().advance(duration); }
    [[nodiscard]] QString told() { return _strip->isVisible() ? text() : QString(); }
    [[nodiscard]] QString text();
    void askAgain();

    std::optional<EngineBench> _bench;
    std::optional<KeyerWatch> _watch;
    std::optional<NoticeStrip> _strip;
    std::optional<AnswerNotice> _notice;
};

void AnswerNoticeTest::init() {
    _bench.emplace();
    _watch.emplace(_bench->engine(), nullptr);
    _strip.emplace();
    _notice.emplace(_bench->engine(), *_watch, *_strip, nullptr);
    QVERIFY(_bench->connect());
}

void AnswerNoticeTest::cleanup() {
    _notice.reset();
    _strip.reset();
    _watch.reset();
    _bench.reset();
}

QString AnswerNoticeTest::text() {
    QStringList texts;
    for (const auto* label : _strip->findChildren<QLabel*>()) {
        texts.append(label->text());
    }
    return texts.join(u' ');
}

void AnswerNoticeTest::askAgain() {
    for (auto* button : _strip->findChildren<QPushButton*>()) {
        if (button->text().contains(u"Ask again")) {
            button->click();
            return;
        }
    }
    QFAIL("Nothing is offered.");
}

void AnswerNoticeTest::aKeyerThatAnswersIsNoNews() {
    _bench->receive({0x55});
    pass(1h);
    QCOMPARE(told(), QString());
}

void AnswerNoticeTest::aKeyerThatNeverAnswersIsToldOf() {
    pass(8s);
    QCOMPARE(told(), QString());
    pass(1s);
    QVERIFY2(told().contains(u"The keyer on usbserial-WK1 does not answer"), qPrintable(told()));
}

void AnswerNoticeTest::aKeyerThatFellSilentIsToldOf() {
    _bench->receive({0x55});
    _bench->type(u"E"_s);
    pass(9s);
    QCOMPARE(told(), QString());
    pass(1s);
    QVERIFY2(told().contains(u"Nothing has come from the keyer on usbserial-WK1 for 10 s"),
             qPrintable(told()));
}

void AnswerNoticeTest::askingAgainGreetsIt() {
    pass(9s);
    static_cast<void>(_bench->written());
    askAgain();
    QVERIFY(_bench->written().startsWith("13 13 13 13 00 04 55 00 02"));
    QCOMPARE(told(), QString());
    pass(9s);
    QVERIFY(told().contains(u"does not answer"));
}

void AnswerNoticeTest::aPortThatIsClosedIsAskedFor() {
    QSignalSpy wanted(&*_watch, &KeyerWatch::connectionWanted);
    pass(9s);
    QVERIFY(_bench->port().close());
    askAgain();
    QCOMPARE(wanted.size(), 1);
}

void AnswerNoticeTest::anAnswerPutsTheNoticeAway() {
    pass(9s);
    QVERIFY(!told().isEmpty());
    _bench->receive({0x55});
    QCOMPARE(told(), QString());
}

void AnswerNoticeTest::theEndOfTheLinkPutsTheNoticeAway() {
    pass(9s);
    QVERIFY(!told().isEmpty());
    QVERIFY(_bench->engine().disconnect(nullptr));
    QCOMPARE(told(), QString());
}

static const RegisteredTest<AnswerNoticeTest> registered;
#include "AnswerNoticeTest.moc"
