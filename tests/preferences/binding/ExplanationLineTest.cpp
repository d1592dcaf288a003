#include "preferences/binding/ExplanationLine.h"

#include "preferences/binding/Explanation.h"
#include "tests/support/RegisteredTest.h"

#include <QCheckBox>
#include <QHelpEvent>
#include <QSpinBox>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include <optional>

using namespace Qt::StringLiterals;

class ExplanationLineTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itTellsOfTheControlThatHasTheFocus();
    void itFollowsTheExplanation();
    void itTellsWhatTheMouseRestsOn();
    void aToolTipOfAPartIsThatOfTheWhole();
    void itKeepsItsHeightWhateverFewWordsItTells();
    void itHasRoomForManyWords();

  private:
    void restMouseOn(QWidget& widget) {
        QHelpEvent rest(QEvent::ToolTip, {1, 1}, widget.mapToGlobal(QPoint(1, 1)));
        QCoreApplication::sendEvent(&widget, &rest);
    }

    struct View {
        QWidget window;
        QVBoxLayout layout{&window};
        QCheckBox one;
        QSpinBox two;
        QCheckBox plain;
        ExplanationLine line;
    };
    std::optional<View> _view;
};

void ExplanationLineTest::init() {
    _view.emplace();
    _view->layout.addWidget(&_view->one);
    _view->layout.addWidget(&_view->two);
    _view->layout.addWidget(&_view->plain);
    _view->layout.addWidget(&_view->line);
    explain(_view->one, u"Does one thing.\nDefault: on"_s);
    explain(_view->two, u"Does another."_s);
    _view->one.setFocus();
    _view->window.show();
    QVERIFY(QTest::qWaitForWindowActive(&_view->window));
}

void ExplanationLineTest::cleanup() {
    _view.reset();
}

void ExplanationLineTest::itTellsOfTheControlThatHasTheFocus() {
    QCOMPARE(_view->line.text(), u"Does one thing. Default: on"_s);
    QTest::keyClick(&_view->one, Qt::Key_Tab);
    QCOMPARE(_view->line.text(), u"Does another."_s);
    QTest::keyClick(&_view->two, Qt::Key_Tab);
    QCOMPARE(_view->line.text(), QString());
}

void ExplanationLineTest::itFollowsTheExplanation() {
    explain(_view->one, u"Does something else."_s);
    QCOMPARE(_view->line.text(), u"Does something else."_s);
}

void ExplanationLineTest::itTellsWhatTheMouseRestsOn() {
    restMouseOn(_view->two);
    QCOMPARE(_view->line.text(), u"Does another."_s);
    QVERIFY(!QToolTip::isVisible()); // nothing is covered
    QEvent leaving(QEvent::Leave);
    QCoreApplication::sendEvent(&_view->two, &leaving);
    QCOMPARE(_view->line.text(), u"Does one thing. Default: on"_s);
}

void ExplanationLineTest::aToolTipOfAPartIsThatOfTheWhole() {
    auto* part = _view->two.findChild<QLineEdit*>();
    restMouseOn(*part);
    QHelpEvent rest(QEvent::ToolTip, {1, 1}, part->mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&_view->two, &rest);
    QCOMPARE(_view->line.text(), u"Does another."_s);
}

void ExplanationLineTest::itKeepsItsHeightWhateverFewWordsItTells() {
    const auto size = _view->line.sizeHint();
    const auto height = _view->line.heightForWidth(400);
    QCOMPARE(height, size.height());
    for (const auto& text : {u"Does something else."_s, QString()}) {
        explain(_view->one, text);
        QCOMPARE(_view->line.sizeHint(), size);
        QCOMPARE(_view->line.heightForWidth(400), height);
    }
}

void ExplanationLineTest::itHasRoomForManyWords() {
    _view->window.resize(200, 400);
    explain(_view->one, u"Does more than can be told in few words. "_s.repeated(5));
    QTRY_VERIFY(_view->line.height() > _view->line.sizeHint().height());
    const auto text = _view->line.fontMetrics().boundingRect(QRect(0, 0, _view->line.width(), 1000),
                                                             Qt::TextWordWrap, _view->line.text());
    QVERIFY(_view->line.height() >= text.height());
}

static const RegisteredTest<ExplanationLineTest> registered;
#include "ExplanationLineTest.moc"
