#include "app/keyboard/KeyboardView.h"
#include "app/window/MainWindow.h"
#include "keyer/GeneralSettings.h"
#include "tests/integration/Station.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QFile>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>
#include <QWindow>

#include <array>
#include <optional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// The address sanitizer keeps what was freed for a while, which looks like growth.
#ifdef __SANITIZE_ADDRESS__
constexpr bool isQuarantined = true;
#else
constexpr bool isQuarantined = false;
#endif

/// What the process holds of the system.
struct Holdings {
    qint64 memory = 0; // KiB, resident
    qsizetype descriptors = 0;
    qsizetype threads = 0;

    [[nodiscard]] static Holdings now() {
        const auto count = [](const QString& directory) {
            return QDir(directory)
                .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot)
                .size();
        };
        QFile status(u"/proc/self/statm"_s);
        static_cast<void>(status.open(QIODevice::ReadOnly));
        const auto pages = status.readAll().split(' ').value(1).toLongLong();
        return {pages * 4, count(u"/proc/self/fd"_s), count(u"/proc/self/task"_s)};
    }
};

} // namespace

/// Text by every way of sending there is, through window, engine, port and line to a keyer, and
/// what that keys, read off its key line. QUORVEL_SOAK_CHARACTERS says how much.
class SendingSoak : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyWayOfSendingKeysWhatWasMeant();

  private:
    [[nodiscard]] int below(int bound) {
        return static_cast<int>(_random.bounded(static_cast<quint32>(bound)));
    }
    [[nodiscard]] KeyboardView& view() { return *_window->findChild<KeyboardView*>(); }
    [[nodiscard]] QString word();
    void expect(const QString& text) { _expected += text.toUpper(); }
    void sendSomething();
    void type(const QString& text);
    void paste(const QString& text);
    void drop(const QString& text);
    void commit(const QString& text);
    void insertAsAssistant(const QString& text);
    void pressMessage(int number);
    void pressButtonOfKeyer(int number);
    void stop();

    QRandomGenerator _random{20};
    std::optional<Station> _station;
    std::optional<MainWindow> _window;
    QString _expected;
};

QString SendingSoak::word() {
    static const QString characters = u"abcdefghijklmnopqrstuvwxyz0123456789"_s;
    QString text;
    for (int left = 1 + below(8); left > 0; --left) {
        text.append(characters.at(below(static_cast<int>(characters.size()))));
    }
    return text + u' ';
}

void SendingSoak::type(const QString& text) {
    for (const auto character : text) {
        QTest::keyClick(_window->windowHandle(), character.toLatin1());
    }
}

void SendingSoak::paste(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QTest::keySequence(_window->windowHandle(), QKeySequence::Paste);
}

void SendingSoak::drop(const QString& text) {
    QMimeData data;
    data.setText(text);
    // Below the last line, which is behind the last character.
    const QPoint place = view().viewport()->rect().bottomRight();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &enter);
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(view().viewport(), &event);
}

void SendingSoak::commit(const QString& text) {
    QInputMethodEvent event;
    event.setCommitString(text);
    QApplication::sendEvent(&view(), &event);
}

void SendingSoak::insertAsAssistant(const QString& text) {
    auto* accessible = QAccessible::queryAccessibleInterface(&view());
    accessible->editableTextInterface()->insertText(accessible->textInterface()->characterCount(),
                                                    text);
}

void SendingSoak::pressMessage(int number) {
    _window->findChild<QPushButton*>(u"message%1Button"_s.arg(number))->click();
}

/// Each button has a bit of its own, the fourth not the next one.
void SendingSoak::pressButtonOfKeyer(int number) {
    static constexpr std::array<int, 4> masks{0x01, 0x02, 0x04, 0x10};
    _station->setPushButtons(masks.at(static_cast<size_t>(number - 1)));
    _station->pass(20ms);
    _station->setPushButtons(0);
    _station->pass(20ms);
}

void SendingSoak::sendSomething() {
    // At the end, where whoever types is.
    view().moveCursor(QTextCursor::End);
    const auto text = word();
    const int message = 1 + below(4);
    const auto messageText = u"de n0call test%1 "_s.arg(message);
    switch (below(7)) {
    case 0:
        type(text);
        expect(text);
        break;
    case 1:
        paste(text);
        expect(text);
        break;
    case 2:
        drop(text);
        expect(text);
        break;
    case 3:
        commit(text);
        expect(text);
        break;
    case 4:
        insertAsAssistant(text);
        expect(text);
        break;
    case 5:
        pressMessage(message);
        expect(messageText);
        break;
    default:
        pressButtonOfKeyer(message);
        expect(messageText);
    }
}

void SendingSoak::stop() {
    QTest::keyClick(_window->windowHandle(), Qt::Key_Escape);
    QVERIFY(_station->waitForQuiet());
    QVERIFY(_station->engine().keyboardBuffer().isEmpty());
    _station->forget();
}

void SendingSoak::everyWayOfSendingKeysWhatWasMeant() {
    const auto wanted = qEnvironmentVariableIntValue("QUORVEL_SOAK_CHARACTERS");
    const qsizetype characters = wanted > 0 ? wanted : 3000;
    _station.emplace();
    _station->settings().setObject(u"n0call"_s, MyCall);
    for (int number = 1; number <= 4; ++number) {
        _station->settings().setObject(u"de ` test%1 "_s.arg(number), u"Message%1"_s.arg(number));
    }
    _station->setPot(40);
    QVERIFY(_station->setUp());
    _window.emplace(_station->engine());
    _window->resize(700, 500);
    _window->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
    view().setFocus();
    std::optional<Holdings> before;
    qsizetype sent = 0;
    while (sent < characters) {
        for (int pieces = 0; pieces < 40; ++pieces) {
            sendSomething();
            if (below(3) == 0) {
                _station->pass(std::chrono::milliseconds(below(3000)));
            }
        }
        QVERIFY(_station->waitForQuiet());
        QCOMPARE(_station->keyed(), _expected.trimmed());
        sent += _expected.size();
        _expected.clear();
        stop();
        if (!before && sent > characters / 10) {
            before = Holdings::now();
        }
    }
    const auto after = Holdings::now();
    qInfo("%lld characters; %lld KiB, %lld descriptors, %lld threads; at a tenth %lld KiB",
          static_cast<long long>(sent), static_cast<long long>(after.memory),
          static_cast<long long>(after.descriptors), static_cast<long long>(after.threads),
          static_cast<long long>(before->memory));
    QCOMPARE(after.descriptors, before->descriptors);
    QCOMPARE(after.threads, before->threads);
    QVERIFY(isQuarantined || after.memory - before->memory < 10'000);
    _window.reset();
    _station.reset();
}

static const RegisteredTest<SendingSoak> registered;
#include "SendingSoak.moc"
