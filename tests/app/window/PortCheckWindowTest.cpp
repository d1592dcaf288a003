#include "app/window/PortCheckWindow.h"

#include "tests/support/RegisteredTest.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <functional>
#include <optional>

using namespace Qt::StringLiterals;
using Kind = PortFinding::Kind;

class PortCheckWindowTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup() { _window.reset(); }

    void itShowsWhatWasFound();
    void aCommandCanBeCopied();
    void theReportCanBeCopied();
    void itLooksAgainWhenToldTo();
    void nothingIsAskedWithoutAClick();
    void theAnswerIsShownAndInTheReport();
    void anAnswerThatComesAfterTheNextLookIsDropped();
    void escapeClosesIt();

  private:
    [[nodiscard]] QStringList texts() const;
    [[nodiscard]] QPushButton* button(const QString& text) const;

    PortReport _report;
    int _looks = 0;
    QStringList _asked;
    std::function<void(const PortFinding&)> _then;
    QPointer<QObject> _context;
    std::optional<PortCheckWindow> _window;
};

void PortCheckWindowTest::init() {
    _report = {
        {{u"usbserial-WK1 (/dev/ttyUSB0)"_s,
          {{Kind::Problem, u"You may not open it."_s, u"Become a member:"_s,
            u"sudo adduser \"$USER\" dialout"_s}}},
         {u"ttyS0 (/dev/ttyS0)"_s, {{Kind::Good, u"Nothing is in the way."_s}}, u"ttyS0"_s}}};
    _looks = 0;
    _asked.clear();
    _then = nullptr;
    _window.emplace(
        PortCheckWindow::Actions{.look =
                                     [this] {
                                         ++_looks;
                                         return _report;
                                     },
                                 .ask =
                                     [this](const QString& port, QObject* context,
                                            const std::function<void(const PortFinding&)>& then) {
                                         _asked.append(port);
                                         _context = context;
                                         _then = then;
                                     }},
        nullptr);
    _window->check();
    _window->show();
    QVERIFY(QTest::qWaitForWindowExposed(&*_window));
}

QStringList PortCheckWindowTest::texts() const {
    QStringList texts;
    for (const auto* label : _window->findChildren<QLabel*>()) {
        texts.append(label->text());
    }
    return texts;
}

QPushButton* PortCheckWindowTest::button(const QString& text) const {
    for (auto* each : _window->findChildren<QPushButton*>()) {
        if (each->text() == text) {
            return each;
        }
    }
    return nullptr;
}

void PortCheckWindowTest::itShowsWhatWasFound() {
    for (const auto& each : {u"usbserial-WK1 (/dev/ttyUSB0)"_s, u"You may not open it."_s,
                             u"Become a member:"_s, u"ttyS0 (/dev/ttyS0)"_s}) {
        QVERIFY2(texts().contains(each), qPrintable(each));
    }
    // A picture says nothing to a screen reader.
    const auto labels = _window->findChildren<QLabel*>();
    QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
        return label->accessibleName() == u"Problem: You may not open it.";
    }));
}

void PortCheckWindowTest::aCommandCanBeCopied() {
    const auto* line = _window->findChild<QLineEdit*>();
    QCOMPARE(line->text(), u"sudo adduser \"$USER\" dialout"_s);
    QVERIFY(line->isReadOnly());
    button(u"Copy"_s)->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), line->text());
}

void PortCheckWindowTest::theReportCanBeCopied() {
    button(u"Copy &report"_s)->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), _report.asText());
}

void PortCheckWindowTest::itLooksAgainWhenToldTo() {
    QCOMPARE(_looks, 1);
    _report.entries.removeFirst();
    button(u"Check &again"_s)->click();
    QCOMPARE(_looks, 2);
    QTRY_VERIFY(!texts().contains(u"You may not open it."_s));
    QVERIFY(texts().contains(u"ttyS0 (/dev/ttyS0)"_s));
}

void PortCheckWindowTest::nothingIsAskedWithoutAClick() {
    QVERIFY(_asked.isEmpty());
    const auto buttons = _window->findChildren<QPushButton*>(u"askButton"_s);
    QCOMPARE(buttons.size(), 1);
    // Nor by the key that presses the button in front.
    QTest::keyClick(&*_window, Qt::Key_Return);
    QVERIFY(_asked.isEmpty());
}

void PortCheckWindowTest::theAnswerIsShownAndInTheReport() {
    button(u"Ask the keyer"_s)->click();
    QCOMPARE(_asked, QStringList{u"ttyS0"_s});
    QVERIFY(!button(u"Asking…"_s)->isEnabled());
    _then({Kind::Good, u"A keyer answers on it."_s});
    QVERIFY(texts().contains(u"A keyer answers on it."_s));
    button(u"Copy &report"_s)->click();
    QVERIFY(QGuiApplication::clipboard()->text().contains(u"A keyer answers on it."));
}

/// By then it belongs to a view that has gone.
void PortCheckWindowTest::anAnswerThatComesAfterTheNextLookIsDropped() {
    button(u"Ask the keyer"_s)->click();
    QVERIFY(_context != nullptr);
    button(u"Check &again"_s)->click();
    QTRY_VERIFY(_context == nullptr);
    QVERIFY(button(u"Ask the keyer"_s) != nullptr);
}

void PortCheckWindowTest::escapeClosesIt() {
    QTest::keyClick(&*_window, Qt::Key_Escape);
    QVERIFY(!_window->isVisible());
}

static const RegisteredTest<PortCheckWindowTest> registered;
#include "PortCheckWindowTest.moc"
