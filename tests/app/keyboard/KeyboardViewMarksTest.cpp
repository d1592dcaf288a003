#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QApplication>
#include <QImage>
#include <QInputMethodEvent>

#include <optional>

using namespace Qt::StringLiterals;

/// How the keyboard view shows what is sent, on its way, and waiting: by shapes, in any colours.
class KeyboardViewMarksTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void shapesTellHowFarATextIsSent_data();
    void shapesTellHowFarATextIsSent();
    void theMarksMoveOnWithEachEcho();
    void sentTextIsPlain();
    void whatIsBeingComposedBearsNoMark();
    void anEchoRepaintsTheView();
    void withoutAKeyerTheTextIsStruckOut();

  private:
    /// One character's cell, as which pixels are not background.
    struct Cell {
        double ink = 0;
        /// Of the lowest part, where letters like T have none.
        double lowInk = 0;
    };

    [[nodiscard]] Cell cellAt(int position, const QColor& background);
    void setColors(const QColor& text, const QColor& background);

    std::optional<KeyboardStation> _station;
};

void KeyboardViewMarksTest::init() {
    _station.emplace();
    QVERIFY(_station->isReady);
    auto font = _station->view.font();
    font.setPointSize(24);
    _station->view.setFont(font);
    _station->view.setCursorWidth(0);
}

void KeyboardViewMarksTest::setColors(const QColor& text, const QColor& background) {
    auto palette = _station->view.palette();
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Base, background);
    _station->view.setPalette(palette);
}

KeyboardViewMarksTest::Cell KeyboardViewMarksTest::cellAt(int position, const QColor& background) {
    auto& view = _station->view;
    auto cursor = view.textCursor();
    cursor.setPosition(position);
    auto rect = view.cursorRect(cursor);
    cursor.setPosition(position + 1);
    rect.setRight(view.cursorRect(cursor).left() - 1);
    const auto image = view.viewport()->grab(rect).toImage();
    const auto isInk = [&](int x, int y) {
        const auto color = image.pixelColor(x, y);
        return std::abs(qGray(color.rgb()) - qGray(background.rgb())) > 60;
    };
    Cell cell;
    const auto low = image.height() * 4 / 5;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            cell.ink += isInk(x, y) ? 1.0 / (image.width() * image.height()) : 0;
            cell.lowInk +=
                y >= low && isInk(x, y) ? 1.0 / (image.width() * (image.height() - low)) : 0;
        }
    }
    return cell;
}

void KeyboardViewMarksTest::shapesTellHowFarATextIsSent_data() {
    QTest::addColumn<bool>("isDark");
    QTest::addColumn<bool>("isSelected");
    QTest::addRow("dark on light") << false << false;
    QTest::addRow("light on dark") << true << false;
    QTest::addRow("dark on light, selected") << false << true;
    QTest::addRow("light on dark, selected") << true << true;
}

void KeyboardViewMarksTest::shapesTellHowFarATextIsSent() {
    QFETCH(const bool, isDark);
    QFETCH(const bool, isSelected);
    isDark ? setColors(Qt::white, Qt::black) : setColors(Qt::black, Qt::white);
    _station->engine().appendMessage(u"ttt"_s);
    _station->echo();
    if (isSelected) {
        _station->view.selectAll();
    }
    const auto role = isSelected ? QPalette::Highlight : QPalette::Base;
    const auto group = _station->view.hasFocus() ? QPalette::Active : QPalette::Inactive;
    const auto background = _station->view.palette().color(group, role);
    const auto sent = cellAt(0, background);
    const auto onItsWay = cellAt(1, background);
    const auto waiting = cellAt(2, background);
    QVERIFY2(sent.ink > 0.05 && sent.ink < 0.5, qPrintable(QString::number(sent.ink)));
    QCOMPARE(sent.lowInk, 0.0);
    QVERIFY2(onItsWay.ink > 0.5, qPrintable(QString::number(onItsWay.ink)));
    const auto letter = cellAt(1, _station->view.palette().color(QPalette::Text)).ink;
    QVERIFY2(letter > 0.05 && letter < 0.5, qPrintable(QString::number(letter)));
    QVERIFY2(waiting.ink < 0.5, qPrintable(QString::number(waiting.ink)));
    QVERIFY2(waiting.lowInk > 0.05 && waiting.lowInk < 0.6,
             qPrintable(QString::number(waiting.lowInk)));
}

void KeyboardViewMarksTest::theMarksMoveOnWithEachEcho() {
    setColors(Qt::black, Qt::white);
    _station->engine().appendMessage(u"ttt"_s);
    for (int sent = 0; sent < 3; ++sent) {
        for (int i = 0; i < 3; ++i) {
            const auto cell = cellAt(i, Qt::white);
            QCOMPARE(cell.ink > 0.5, i == sent);
            QCOMPARE(cell.ink < 0.5 && cell.lowInk > 0, i > sent);
        }
        _station->echo();
    }
}

void KeyboardViewMarksTest::sentTextIsPlain() {
    _station->engine().appendMessage(u"paris"_s);
    _station->echo(6);
    QPlainTextEdit plain;
    plain.setFont(_station->view.font());
    plain.resize(_station->view.size());
    plain.setCursorWidth(0);
    plain.setPlainText(u"PARIS"_s);
    QCOMPARE(_station->view.viewport()->grab().toImage(), plain.viewport()->grab().toImage());
}

void KeyboardViewMarksTest::whatIsBeingComposedBearsNoMark() {
    setColors(Qt::black, Qt::white);
    _station->pause();
    _station->keys(u"tt"_s);
    _station->key(Qt::Key_Left);
    const auto second = _station->view.cursorRect();
    _station->key(Qt::Key_Left);
    const auto first = _station->view.cursorRect();
    _station->key(Qt::Key_Right);
    // Three letters more push the second one to the fifth place.
    QInputMethodEvent event(u"TTT"_s, {});
    QApplication::sendEvent(&_station->view, &event);
    const auto image = _station->view.viewport()->grab().toImage();
    const auto width = second.left() - first.left();
    QList<bool> isMarked(5);
    for (int letter = 0; letter < isMarked.size(); ++letter) {
        for (int y = first.top() + first.height() * 4 / 5; y < first.bottom(); ++y) {
            for (int x = width / 4; x < width * 3 / 4; ++x) {
                const auto pixel = image.pixel(first.left() + letter * width + x, y);
                isMarked[letter] = isMarked[letter] || qGray(pixel) < 128;
            }
        }
    }
    QCOMPARE(isMarked, (QList<bool>{true, false, false, false, true}));
}

void KeyboardViewMarksTest::withoutAKeyerTheTextIsStruckOut() {
    setColors(Qt::black, Qt::white);
    QVERIFY(_station->engine().disconnect(nullptr));
    _station->keys(u"....."_s);
    for (int i = 0; i < 5; ++i) {
        const auto cell = cellAt(i, Qt::white);
        QVERIFY2(cell.ink > 0.03 && cell.ink < 0.3, qPrintable(QString::number(cell.ink)));
    }
    // With a keyer that text has gone, and there is nothing above the points' own height.
    QVERIFY(_station->bench.connect());
    QCOMPARE(_station->view.text(), u""_s);
    _station->keys(u"..."_s);
    const auto waiting = cellAt(1, Qt::white);
    QVERIFY2(waiting.ink - waiting.lowInk < 0.03, qPrintable(QString::number(waiting.ink)));
}

/// Counts the paint events of a widget.
class PaintCounter : public QObject {
  public:
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

void KeyboardViewMarksTest::anEchoRepaintsTheView() {
    QApplication::setCursorFlashTime(0); // nothing else repaints the view by itself
    _station->view.clearFocus();
    _station->engine().appendMessage(u"ttt"_s);
    PaintCounter counter;
    _station->view.viewport()->installEventFilter(&counter);
    QTRY_VERIFY(counter.count > 0);
    QTest::qWait(50);
    counter.count = 0;
    _station->echo();
    QTRY_VERIFY(counter.count > 0);
}

static const RegisteredTest<KeyboardViewMarksTest> registered;
#include "KeyboardViewMarksTest.moc"
