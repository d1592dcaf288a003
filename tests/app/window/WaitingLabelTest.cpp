#include "app/window/WaitingLabel.h"

#include "tests/support/RegisteredTest.h"

#include <QHBoxLayout>
#include <QTest>

using namespace Qt::StringLiterals;

class WaitingLabelTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theWindowIsLaidOutAnewForAnotherLengthOnly();
    void everyNumberIsSeenWhole();
    void nothingIsShownForNone();

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    int _layouts = 0;
};

bool WaitingLabelTest::eventFilter(QObject* watched, QEvent* event) {
    _layouts += event->type() == QEvent::LayoutRequest ? 1 : 0;
    return QObject::eventFilter(watched, event);
}

void WaitingLabelTest::theWindowIsLaidOutAnewForAnotherLengthOnly() {
    QWidget window;
    QHBoxLayout layout(&window);
    auto* label = new WaitingLabel;
    layout.addWidget(label);
    label->setCount(199);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.installEventFilter(this);
    QCoreApplication::processEvents();
    _layouts = 0;
    for (int count = 198; count >= 100; --count) {
        label->setCount(count);
        QCoreApplication::processEvents();
        QCOMPARE(label->text(), u"%1 waiting"_s.arg(count));
    }
    QCOMPARE(_layouts, 0);
    label->setCount(99);
    QCoreApplication::processEvents();
    QVERIFY(_layouts > 0);
}

void WaitingLabelTest::everyNumberIsSeenWhole() {
    WaitingLabel label;
    for (const int points : {9, 20}) {
        auto font = label.font();
        font.setPointSize(points);
        label.setFont(font);
        for (const int count : {1, 8, 10, 44, 88, 111, 1000, 999'999}) {
            label.setCount(count);
            const auto needed = label.fontMetrics().horizontalAdvance(label.text());
            QVERIFY2(label.width() >= needed, qPrintable(label.text()));
            QVERIFY(label.height() >= label.fontMetrics().height());
        }
        label.setCount(88);
    }
}

void WaitingLabelTest::nothingIsShownForNone() {
    WaitingLabel label;
    label.setCount(5);
    label.setCount(0);
    QCOMPARE(label.text(), QString());
    QCOMPARE(label.width(), 0);
}

static const RegisteredTest<WaitingLabelTest> registered;
#include "WaitingLabelTest.moc"
