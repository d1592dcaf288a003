#include "virtualkeyer/window/ScopeView.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/Registers.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

/// How often a widget is painted.
class PaintCounter : public QObject {
  public:
    explicit PaintCounter(QWidget& widget) : _widget(widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        _count += watched == &_widget && event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
    /// Since the last call, with all that is due.
    int take() {
        QTest::qWait(0);
        QCoreApplication::sendPostedEvents();
        QTest::qWait(0);
        return std::exchange(_count, 0);
    }

  private:
    QWidget& _widget;
    int _count = 0;
};

} // namespace

class ScopeViewTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void idleNothingIsPainted();
    void itGoesOnWhileSomethingHappens();
    void pausedItIsPaintedNoMore();
    void marksAreWhereTheyWereKeyed();
    void arrowsMoveTheCursors();
    void cursorsGoFromEdgeToEdge();
    void keysGoBackAndForth();
    void theMouseMeasures();
    void theWheelGoesBackAndZooms();
    void anAssistiveToolReadsWhatIsMeasured();
    void oneCursorTellsWhatItStandsIn();
    void ofManyElementsTheNumberIsTold();

  private:
    /// Marks, and behind each a space, in ms; from `_now` on.
    void key(std::initializer_list<int> lengths) {
        bool isDown = true;
        std::vector<ScopeEdge> edges;
        for (const int length : lengths) {
            edges.push_back({ScopeEdge::Line::Key, isDown, _now, _timing});
            _now += std::chrono::milliseconds{length};
            isDown = !isDown;
        }
        _view->take(edges, _now);
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(_view.get(), static_cast<Qt::Key>(key), modifiers);
    }

    const Timing _timing = timingOf(Registers(20)); // a dit is 60 ms
    std::unique_ptr<ScopeView> _view;
    Time _now{0};
};

void ScopeViewTest::init() {
    _now = 10s;
    _view = std::make_unique<ScopeView>();
    _view->resize(400, 200); // a pixel is 10 ms
    _view->show();
    QVERIFY(QTest::qWaitForWindowExposed(_view.get()));
}

void ScopeViewTest::idleNothingIsPainted() {
    PaintCounter paints(*_view);
    paints.take();
    for (int i = 0; i < 100; ++i) {
        _now += 17ms;
        _view->showNow(_now);
        QCOMPARE(paints.take(), 0);
    }
    key({60, 60, 60, 60});
    QCOMPARE(paints.take(), 1);
    // It runs out, and that is all.
    _view->showNow(_now + 3s);
    QVERIFY(!_view->isActive(_now + 3s));
    QCOMPARE(paints.take(), 1);
    for (int i = 0; i < 100; ++i) {
        _now += 100ms;
        _view->showNow(_now + 3s);
        QCOMPARE(paints.take(), 0);
    }
}

void ScopeViewTest::itGoesOnWhileSomethingHappens() {
    PaintCounter paints(*_view);
    _view->take({{ScopeEdge::Line::Ptt, true, _now, _timing}}, _now);
    paints.take();
    for (int i = 0; i < 100; ++i) {
        _now += 17ms;
        _view->showNow(_now);
        QCOMPARE(paints.take(), 1);
    }
    QVERIFY(_view->isActive(_now + 1h));
    QVERIFY(_view->range().right() == _now);
    // Nothing has moved by a pixel.
    _view->showNow(_now + 1us);
    QCOMPARE(paints.take(), 0);
}

void ScopeViewTest::pausedItIsPaintedNoMore() {
    key({60, 60});
    PaintCounter paints(*_view);
    press(Qt::Key_Space);
    QVERIFY(_view->range().isPaused());
    paints.take();
    const Time right = _view->range().right();
    _now += 10s;
    key({60, 60, 60, 60});
    for (int i = 0; i < 50; ++i) {
        _now += 17ms;
        _view->showNow(_now);
    }
    QCOMPARE(paints.take(), 0);
    QVERIFY(_view->range().right() == right);
    press(Qt::Key_Space);
    QVERIFY(_view->range().right() > right);
    QCOMPARE(paints.take(), 1);
}

void ScopeViewTest::marksAreWhereTheyWereKeyed() {
    key({600, 600, 1800, 1000}); // to 14 s: the view begins at 10 s
    QVERIFY(_view->range().left() == 10s);
    _view->clearFocus(); // and with it the frame
    const QImage picture = _view->grab().toImage();
    const QColor ink = _view->palette().color(QPalette::Text);
    const int row = 60; // within the key's
    QString marks;
    for (int x = 0; x < picture.width(); ++x) {
        marks += picture.pixelColor(x, row) == ink ? u'#' : u'.';
    }
    const QString expected = QString(60, u'#') + QString(60, u'.') + QString(180, u'#');
    QCOMPARE(marks.left(300), expected);
    QVERIFY(!marks.mid(300).contains(u'#'));
}

void ScopeViewTest::arrowsMoveTheCursors() {
    key({60, 60});
    press(Qt::Key_Left);
    QVERIFY(_view->range().isPaused());
    const Time first = _view->range().cursor(0).value();
    QVERIFY(!_view->range().cursor(1));
    press(Qt::Key_Left);
    press(Qt::Key_Left);
    press(Qt::Key_Right);
    QVERIFY(_view->range().cursor(0).value() == first - 10ms);
    press(Qt::Key_Right, Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ShiftModifier);
    QVERIFY(_view->range().cursor(1).value() > *_view->range().cursor(0));
    QVERIFY(_view->range().cursor(0).value() == first - 10ms);
}

void ScopeViewTest::cursorsGoFromEdgeToEdge() {
    key({60, 62, 180, 60});
    press(Qt::Key_Left, Qt::ControlModifier);
    QVERIFY(_view->range().cursor(0).value() == 10302ms);
    press(Qt::Key_Left, Qt::ControlModifier);
    press(Qt::Key_Left, Qt::ControlModifier);
    press(Qt::Key_Left, Qt::ControlModifier);
    press(Qt::Key_Left, Qt::ControlModifier);
    QVERIFY(_view->range().cursor(0).value() == 10s);
    press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(_view->range().cursor(1).value() == 10122ms);
    QCOMPARE(_view->measurement(), u"122.0 ms: dit 60.0, space 62.0"_s);
}

void ScopeViewTest::keysGoBackAndForth() {
    _now = 0s;
    key({60, 60});
    _now = 100s;
    key({60, 60});
    const Time newest = _view->range().newest();
    press(Qt::Key_PageUp);
    QVERIFY(_view->range().right() == newest - 3s);
    press(Qt::Key_PageDown);
    QVERIFY(_view->range().right() == newest);
    press(Qt::Key_Home);
    QVERIFY(_view->range().left() == 0s);
    press(Qt::Key_Minus);
    QVERIFY(_view->range().span() == 8s);
    press(Qt::Key_Plus);
    QVERIFY(_view->range().span() == 4s);
    press(Qt::Key_End);
    QVERIFY(_view->range().right() == newest);
}

void ScopeViewTest::theMouseMeasures() {
    key({60, 60});
    _now += 4s;
    _view->showNow(_now);
    QTest::mousePress(_view.get(), Qt::LeftButton, {}, {100, 50});
    QTest::mouseMove(_view.get(), {150, 50});
    QTest::mouseRelease(_view.get(), Qt::LeftButton, {}, {150, 50});
    QVERIFY(_view->range().measured() == Time{500ms});
}

void ScopeViewTest::theWheelGoesBackAndZooms() {
    _now = 0s;
    key({60, 60});
    _now = 100s;
    key({60, 60});
    const Time right = _view->range().right();
    const auto turn = [this](int angle, Qt::KeyboardModifiers modifiers) {
        QWheelEvent event({50, 50}, _view->mapToGlobal(QPointF(50, 50)), {}, {0, angle},
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(_view.get(), &event);
    };
    turn(120, Qt::NoModifier);
    QVERIFY(_view->range().right() == right - 500ms);
    turn(120, Qt::ControlModifier);
    QVERIFY(_view->range().span() == 2s);
}

void ScopeViewTest::anAssistiveToolReadsWhatIsMeasured() {
    auto* scope = QAccessible::queryAccessibleInterface(_view.get());
    QVERIFY(scope);
    QCOMPARE(scope->text(QAccessible::Name), u"Scope of key and PTT"_s);
    QCOMPARE(scope->text(QAccessible::Description),
             u"Click and drag to measure, or use the arrow keys."_s);
    key({60, 62, 180, 60});
    _view->setCursor(0, 10s);
    auto* value = scope->valueInterface();
    QVERIFY(value);
    value->setCurrentValue(122.0);
    QCOMPARE(scope->text(QAccessible::Description), u"122.0 ms: dit 60.0, space 62.0"_s);
    QCOMPARE(scope->text(QAccessible::Value), u"122.0 ms: dit 60.0, space 62.0"_s);
    QCOMPARE(value->currentValue().toDouble(), 122.0);
}

void ScopeViewTest::oneCursorTellsWhatItStandsIn() {
    key({60, 62, 180, 60});
    _view->setCursor(0, 10030ms);
    QCOMPARE(_view->measurement(), u"dit 60.0 ms"_s);
    _view->setCursor(0, 10100ms);
    QCOMPARE(_view->measurement(), u"space 62.0 ms"_s);
    _view->setCursor(0, 9s);
    QCOMPARE(_view->measurement(), u"One cursor is set."_s);
    _view->setCursor(1, 9900ms);
    QCOMPARE(_view->measurement(), u"900.0 ms"_s);
}

void ScopeViewTest::ofManyElementsTheNumberIsTold() {
    key({60, 60, 60, 60, 60, 60, 60, 60, 60, 60, 60, 60});
    _view->setCursor(0, 10s);
    _view->setCursor(1, 10600ms);
    QCOMPARE(_view->measurement(), u"600.0 ms: elements and spaces: 10"_s);
}

static const RegisteredTest<ScopeViewTest> registered;
#include "ScopeViewTest.moc"
