#include "tests/app/keyboard/KeyboardStation.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTextBlock>

#include <functional>
#include <iterator>
#include <optional>

using namespace Qt::StringLiterals;

/// Text that changes under the hands of the one who changes it, by every way at once.
class KeyboardViewHardUseTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _station.reset(); }

    void textDroppedNearTheEndOfALongParagraph();
    void theCaretGoesNoFurtherThanTheTextWhileComposing_data();
    void theCaretGoesNoFurtherThanTheTextWhileComposing();
    void nothingIsDroppedWhileComposing();
    void anInputMethodMayNotKnowThatTheTextHasGone();
    void anythingInAnyOrder_data();
    void anythingInAnyOrder();

  private:
    [[nodiscard]] KeyboardView& view() { return _station->view; }
    [[nodiscard]] int below(int bound) {
        return static_cast<int>(_random.bounded(static_cast<quint32>(bound)));
    }
    [[nodiscard]] QString anyText();
    void dropAt(
        QPoint point, const QString& text, const std::function<void()>& meanwhile = [] {});
    void drop();
    void receive();
    void type();
    void compose();
    void select();
    void workByAccessibility();
    void doAnything();

    QRandomGenerator _random;
    std::optional<KeyboardStation> _station;
};

void KeyboardViewHardUseTest::init() {
    QTest::failOnWarning(QRegularExpression(u"."_s));
    _station.emplace();
    QVERIFY(_station->isReady);
}

QString KeyboardViewHardUseTest::anyText() {
    static const QString characters = u"abcde  `~^#{}|\\+\n\té"_s;
    QString text;
    for (int left = below(4) == 0 ? below(1500) : below(12); left > 0; --left) {
        text.append(characters.at(below(static_cast<int>(characters.size()))));
    }
    return text;
}

void KeyboardViewHardUseTest::dropAt(QPoint point, const QString& text,
                                     const std::function<void()>& meanwhile) {
    QMimeData mimeData;
    mimeData.setText(text);
    QDragEnterEvent enter(point, Qt::CopyAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &enter);
    QDragMoveEvent move(point, Qt::CopyAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &move);
    meanwhile();
    QDropEvent event(point, Qt::CopyAction, &mimeData, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &event);
}

void KeyboardViewHardUseTest::drop() {
    const auto size = view().viewport()->size();
    const QPoint point(below(size.width()), below(size.height()));
    dropAt(point, anyText(), [this] {
        if (below(3) == 0) {
            receive();
        }
    });
}

void KeyboardViewHardUseTest::receive() {
    static constexpr int replies[] = {0xC0, 0xC1, 0xC2, 0xC4, 0xC8, 0xC9, 0xD0, 0x80, 0x9F};
    if (below(3) == 0) {
        _station->bench.receive({replies[below(std::size(replies))]});
    } else {
        _station->echo(1 + below(5));
    }
    static_cast<void>(_station->bench.line().readAvailable());
}

void KeyboardViewHardUseTest::type() {
    static constexpr Qt::Key keys[] = {
        Qt::Key_A,  Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Left, Qt::Key_Home, Qt::Key_End,
        Qt::Key_Up, Qt::Key_Down,  Qt::Key_Delete,    Qt::Key_Z,    Qt::Key_Y,    Qt::Key_PageDown};
    const auto key = keys[below(std::size(keys))];
    const auto isHistory = key == Qt::Key_Z || key == Qt::Key_Y;
    const auto modifiers = isHistory       ? Qt::ControlModifier
                           : below(4) == 0 ? Qt::ShiftModifier
                                           : Qt::NoModifier;
    _station->key(key, modifiers);
}

void KeyboardViewHardUseTest::compose() {
    QInputMethodEvent event(below(2) == 0 ? anyText().left(5) : QString(), {});
    if (below(2) == 0) {
        event.setCommitString(anyText(), -below(10), below(10));
    }
    QApplication::sendEvent(&view(), &event);
}

void KeyboardViewHardUseTest::select() {
    const auto end = view().document()->characterCount();
    auto cursor = view().textCursor();
    cursor.setPosition(below(end));
    cursor.setPosition(below(end), QTextCursor::KeepAnchor);
    view().setTextCursor(cursor);
}

void KeyboardViewHardUseTest::workByAccessibility() {
    auto* accessible = QAccessible::queryAccessibleInterface(&view());
    const auto length = view().document()->characterCount() + 3;
    const auto start = below(length);
    const auto end = below(length);
    switch (below(4)) {
    case 0:
        accessible->editableTextInterface()->replaceText(start, end, anyText());
        break;
    case 1:
        accessible->textInterface()->setSelection(0, start, end);
        break;
    case 2:
        static_cast<void>(accessible->textInterface()->characterRect(start));
        break;
    default:
        accessible->textInterface()->scrollToSubstring(start, end);
    }
}

void KeyboardViewHardUseTest::doAnything() {
    switch (below(10)) {
    case 0:
    case 1:
        drop();
        break;
    case 2:
    case 3:
        receive();
        break;
    case 4:
        compose();
        break;
    case 5:
        select();
        break;
    case 6:
        workByAccessibility();
        break;
    case 7:
        _station->engine().appendMessage(anyText());
        break;
    case 8:
        view().resize(60 + below(400), 30 + below(200));
        QApplication::processEvents();
        break;
    default:
        type();
    }
}

/// While a drop changes the text, the lines of its paragraph are still those of the shorter text.
/// With the paragraph's beginning out of sight, a view that looks for its caret then finds none.
void KeyboardViewHardUseTest::textDroppedNearTheEndOfALongParagraph() {
    _station->pause();
    view().resize(200, 60);
    QApplication::processEvents();
    const auto words = u"PARIS "_s.repeated(60) + u"AB"_s;
    _station->engine().appendMessage(words);
    view().moveCursor(QTextCursor::End);
    QApplication::processEvents();
    auto cursor = view().textCursor();
    cursor.movePosition(QTextCursor::Left);
    dropAt(view().cursorRect(cursor).center(), u"cq cq cq de"_s);
    QCOMPARE(_station->engine().keyboardBuffer(), words.chopped(1) + u"CQ CQ CQ DEB"_s);
    QCOMPARE(view().text(), _station->engine().keyboardBuffer());
    QCOMPARE(view().textCursor().position(), words.size() + 10);
    QVERIFY(view().viewport()->rect().contains(view().cursorRect().center()));
}

void KeyboardViewHardUseTest::theCaretGoesNoFurtherThanTheTextWhileComposing_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Down") << Qt::Key_Down;
    QTest::newRow("PageDown") << Qt::Key_PageDown;
}

void KeyboardViewHardUseTest::theCaretGoesNoFurtherThanTheTextWhileComposing() {
    QFETCH(const Qt::Key, key);
    _station->pause();
    view().resize(100, 200);
    QApplication::processEvents();
    _station->keys(u"ab"_s);
    // On several lines, of which only the first holds text.
    QInputMethodEvent event(u"kana "_s.repeated(20), {});
    QApplication::sendEvent(&view(), &event);
    QApplication::processEvents();
    _station->key(key, Qt::ShiftModifier);
    QVERIFY(view().textCursor().position() <= 2);
    _station->keys(u"c"_s);
    QCOMPARE(_station->engine().keyboardBuffer(), u"ABC"_s);
}

void KeyboardViewHardUseTest::nothingIsDroppedWhileComposing() {
    _station->pause();
    _station->keys(u"ab"_s);
    QInputMethodEvent event(u"kanakana"_s, {});
    QApplication::sendEvent(&view(), &event);
    dropAt(view().viewport()->rect().bottomRight(), u"cq"_s);
    QCOMPARE(_station->engine().keyboardBuffer(), u"AB"_s);
}

void KeyboardViewHardUseTest::anInputMethodMayNotKnowThatTheTextHasGone() {
    _station->pause();
    _station->keys(u"abcdef"_s);
    _station->bench.receive({0xC2});
    _station->bench.receive({0xC0});
    QCOMPARE(view().text(), u""_s);
    QInputMethodEvent event;
    event.setCommitString(u"g"_s, -3, 3);
    QApplication::sendEvent(&view(), &event);
    QCOMPARE(_station->engine().keyboardBuffer(), u"G"_s);
}

void KeyboardViewHardUseTest::anythingInAnyOrder_data() {
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 30; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

void KeyboardViewHardUseTest::anythingInAnyOrder() {
    QFETCH(const quint32, seed);
    _random.seed(seed);
    for (int step = 0; step < 300; ++step) {
        doAnything();
        QCOMPARE(view().text(), _station->engine().keyboardBuffer());
    }
}

static const RegisteredTest<KeyboardViewHardUseTest> registered;
#include "KeyboardViewHardUseTest.moc"
