// Whatever the operator and the keyer do, in whatever order, the engine sends what the model says.
//
// A failure prints the shortest course of events that shows it, and its seed. RC_PARAMS takes what
// was printed, or other numbers: RC_PARAMS="max_success=100000".

#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "tests/keyer/EngineBench.h"
#include "tests/keyer/SendingModel.h"
#include "tests/support/CapturedWrites.h"
#include "tests/support/RegisteredTest.h"

#include <QLoggingCategory>
#include <QTest>

#include <algorithm>
#include <ostream>
#include <rapidcheck.h>
#include <variant>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A message button.
class Button : public QObject {
  public:
    explicit Button(int tag) { setProperty("tag", tag); }
};

/// The engine, and what it writes. One line serves all courses: opening it would take most of the
/// run.
struct Subject {
    Subject() : isConnected(bench.connect()), writes(bench.port().fileDescriptor()) {}

    /// Another engine, fresh and connected.
    void startOver() {
        auto* const old = &bench.engine();
        delete old;
        isConnected = bench.engine().connect(nullptr);
        static_cast<void>(writes.take());
    }

    EngineBench bench;
    bool isConnected;
    CapturedWrites writes;
};

/// `position` and `length` are reduced to what the text has. `text` goes where `length` characters
/// are taken out.
struct Edit {
    int position;
    int length;
    QString text;

    [[nodiscard]] QString appliedTo(const QString& old) const {
        const auto at = position % (old.size() + 1);
        return QString(old).replace(at, std::min<qsizetype>(length, old.size() - at), text);
    }
    void perform(Subject& subject) const {
        subject.bench.type(appliedTo(subject.bench.engine().keyboardBuffer()));
    }
    void perform(SendingModel& model) const { model.edit(appliedTo(model.text)); }
    void show(std::ostream& out) const {
        out << "edit at " << position << ", out " << length << ", in \"" << text.toStdString()
            << '"';
    }
};

/// Stores a message and presses its button.
struct Message {
    int button;
    QString text;

    void perform(Subject& subject) const {
        subject.bench.settings().setObject(text, u"Message%1"_s.arg(button + 1));
        const Button pressed(button);
        subject.bench.engine().sendMessage(&pressed);
    }
    void perform(SendingModel& model) const {
        model.messages[button] = text;
        model.pressMessage(button);
    }
    void show(std::ostream& out) const {
        out << "message " << button << " \"" << text.toStdString() << '"';
    }
};

/// `length` bytes of the keyer in one delivery.
struct Delivery {
    int first;
    int others;
    int length;

    [[nodiscard]] QByteArray bytes() const {
        QByteArray all(length, static_cast<char>(others));
        all[0] = static_cast<char>(first);
        return all;
    }
    void perform(Subject& subject) const {
        subject.bench.engine().serialPortDidReceiveData(subject.bench.port(), bytes());
    }
    void perform(SendingModel& model) const { model.receive(bytes()); }
    void show(std::ostream& out) const { out << "keyer: " << bytes().toHex(' ').toStdString(); }
};

struct Pause {
    int state;

    void perform(Subject& subject) const { subject.bench.engine().setPauseState(state); }
    void perform(SendingModel& model) const { model.setPause(state); }
    void show(std::ostream& out) const { out << "pause " << state; }
};

struct Stop {
    void perform(Subject& subject) const { subject.bench.engine().stopMessageSending(nullptr); }
    void perform(SendingModel& model) const { model.stop(); }
    void show(std::ostream& out) const { out << "stop"; }
};

struct Beacon {
    int state;

    void perform(Subject& subject) const { subject.bench.engine().setBeaconState(state); }
    void perform(SendingModel& model) const { model.beaconState = state; }
    void show(std::ostream& out) const { out << "beacon " << state; }
};

struct Repeat {
    void perform(Subject& subject) const { subject.bench.engine().repeatMessage(); }
    void perform(SendingModel& model) const { model.repeatMessage(); }
    void show(std::ostream& out) const { out << "the beacon's time has come"; }
};

struct HighSpeedControl {
    int state;

    void perform(Subject& subject) const { subject.bench.engine().setHscwState(state); }
    void perform(SendingModel& model) const { model.hscwState = state; }
    void show(std::ostream& out) const { out << "high-speed control " << state; }
};

struct HighSpeed {
    QString letters;

    void perform(Subject& subject) const {
        subject.bench.settings().setObject(letters, WKHSCWSpeed);
    }
    void perform(SendingModel& model) const { model.hscwSpeed = letters; }
    void show(std::ostream& out) const { out << "high speed \"" << letters.toStdString() << '"'; }
};

struct OwnCall {
    QString call;

    void perform(Subject& subject) const { subject.bench.settings().setObject(call, MyCall); }
    void perform(SendingModel& model) const { model.myCall = call; }
    void show(std::ostream& out) const { out << "own call \"" << call.toStdString() << '"'; }
};

struct HisCall {
    QString call;

    void perform(Subject& subject) const { subject.bench.engine().setHisCallsign(call); }
    void perform(SendingModel& model) const { model.hisCallsign = call; }
    void show(std::ostream& out) const { out << "his call \"" << call.toStdString() << '"'; }
};

struct SerialNumber {
    int step;

    void perform(Subject& subject) const {
        auto& engine = subject.bench.engine();
        step > 0 ? engine.incrementSerialNumber(nullptr) : engine.decrementSerialNumber(nullptr);
    }
    void perform(SendingModel& model) const { model.stepSerialNumber(step); }
    void show(std::ostream& out) const { out << "serial number " << step; }
};

/// One thing that the operator or the keyer does.
struct Happening {
    std::variant<Edit, Message, Delivery, Pause, Stop, Beacon, Repeat, HighSpeedControl, HighSpeed,
                 OwnCall, HisCall, SerialNumber>
        what;
};

std::ostream& operator<<(std::ostream& out, const Happening& happening) {
    std::visit([&out](const auto& what) { what.show(out); }, happening.what);
    return out;
}

rc::Gen<char16_t> oneOf(const char16_t* characters) {
    return rc::gen::elementOf(std::u16string(characters));
}

/// Mostly what the keyer keys, often what the engine acts on, and now and then what it refuses.
rc::Gen<QString> someText(double size) {
    const auto character = rc::gen::weightedOneOf<char16_t>(
        {{8, oneOf(u"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789abcdefghijklmnopqrstuvwxyz")},
         {6, oneOf(u"`#~%^{|")},
         {2, oneOf(u"\"$'()+-/:;<=>@[]\\,.? ")},
         {2, oneOf(u"!&*_}\t\n\r\x01\x0A\x1B\x7F\u00E9\u00DF\u00FF\u0131\u017F\u03BB\u20AC")}});
    return rc::gen::map(rc::gen::scale(size, rc::gen::container<std::u16string>(character)),
                        [](const std::u16string& text) { return QString::fromStdU16String(text); });
}

/// A call sign's text may hold control signs too; only in the text do they act.
rc::Gen<QString> someCallsign() {
    return rc::gen::oneOf(
        rc::gen::element(QString(), u""_s, u"n0call"_s, u"K1/W"_s),
        rc::gen::map(rc::gen::scale(0.1, rc::gen::container<std::u16string>(oneOf(u"Aa0/~{%#`|"))),
                     [](const std::u16string& text) { return QString::fromStdU16String(text); }));
}

template <typename What, typename... Gens>
rc::Gen<Happening> happening(Gens... gens) {
    return rc::gen::map(rc::gen::tuple(std::move(gens)...), [](const auto& values) {
        return std::apply([](const auto&... each) { return Happening{What{each...}}; }, values);
    });
}

rc::Gen<int> between(int first, int last) {
    return rc::gen::inRange(first, last + 1);
}

rc::Gen<Happening> someDelivery(rc::Gen<int> first) {
    const auto length = rc::gen::weightedOneOf<int>({{6, rc::gen::just(1)}, {1, between(2, 5)}});
    return happening<Delivery>(std::move(first), between(0, 255), length);
}

rc::Gen<Happening> someHappening() {
    return rc::gen::weightedOneOf<Happening>({
        {30, someDelivery(between(0x00, 0x7F))},
        {2, someDelivery(rc::gen::oneOf(between(0xA0, 0xBF), between(0xE0, 0xFE)))},
        {1, someDelivery(rc::gen::oneOf(between(0x80, 0x9F), rc::gen::just(0xFF)))},
        {4, someDelivery(rc::gen::just(0xC0))},
        {3, someDelivery(rc::gen::just(0xC1))},
        {4, someDelivery(between(0xC1, 0xDF))},
        {14, happening<Edit>(between(0, 99), between(0, 4), someText(0.1))},
        {3, happening<Edit>(between(0, 99), between(0, 99), someText(0.3))},
        {6, happening<Message>(between(0, 7), someText(0.2))},
        {4, happening<Pause>(rc::gen::element(0, 0, 1, 5))},
        {1, happening<Stop>()},
        {2, happening<Beacon>(between(0, 1))},
        {2, happening<Repeat>()},
        {1, happening<HighSpeedControl>(between(0, 1))},
        {1, happening<HighSpeed>(
                rc::gen::element(u"1000 lpm"_s, u"2000 lpm"_s, u"99"_s, u"fast"_s, u"30000"_s))},
        {1, happening<OwnCall>(rc::gen::oneOf(rc::gen::element(u"N0CALL"_s, u"n0call/p"_s, u""_s),
                                              someCallsign()))},
        {4, happening<HisCall>(someCallsign())},
        {1, happening<SerialNumber>(rc::gen::element(-1, 1))},
    });
}

void compare(Subject& subject, SendingModel& model) {
    const auto& engine = subject.bench.engine();
    RC_ASSERT(subject.writes.take().toHex(' ').toStdString() ==
              model.takeWritten().toHex(' ').toStdString());
    RC_ASSERT(engine.keyboardBuffer().toStdString() == model.text.toStdString());
    RC_ASSERT(engine.outputBufferIndex() == model.index);
    RC_ASSERT(engine.pauseState() == model.pauseState);
    RC_ASSERT(engine.hscwState() == model.hscwState);
    RC_ASSERT(engine.beaconState() == model.beaconState);
    RC_ASSERT(engine.serialNumber() == model.serialNumber);
}

void run(Subject& subject, const std::vector<Happening>& course) {
    subject.startOver();
    RC_ASSERT(subject.isConnected);
    SendingModel model;
    const auto performOnBoth = [&](const auto& what) {
        what.perform(subject);
        what.perform(model);
        compare(subject, model);
    };
    performOnBoth(OwnCall{u"N0CALL"_s});
    performOnBoth(HighSpeed{u"1000 lpm"_s});
    for (const int button : {0, 1, 2, 3, 4, 5, 6, 7}) {
        performOnBoth(Message{button, u"Cq %1 ~ de ` #"_s.arg(button)});
    }
    performOnBoth(Stop{});
    for (const auto& each : course) {
        std::visit(performOnBoth, each.what);
    }
}

} // namespace

class WinKeyerUsbSendingPropertyTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void theEngineSendsWhatTheModelSays();
    void aCallSignThatHoldsItsOwnTokenEndsInBothAlike_data();
    void aCallSignThatHoldsItsOwnTokenEndsInBothAlike();
};

void WinKeyerUsbSendingPropertyTest::initTestCase() {
    if (!qEnvironmentVariableIsSet("RC_PARAMS")) {
        qputenv("RC_PARAMS", "max_success=4000");
    }
    // The engine logs what it does with control signs.
    QLoggingCategory::setFilterRules(u"default.info=false"_s);
}

void WinKeyerUsbSendingPropertyTest::theEngineSendsWhatTheModelSays() {
    Subject subject;
    QVERIFY(rc::check("the engine sends what the model says", [&subject] {
        run(subject,
            *rc::gen::container<std::vector<Happening>>(someHappening()).as("course of events"));
    }));
}

void WinKeyerUsbSendingPropertyTest::aCallSignThatHoldsItsOwnTokenEndsInBothAlike_data() {
    QTest::addColumn<QString>("call");
    for (const auto& call : {u"``"_s, u"A`"_s, u"`#"_s, u"#`A`#"_s}) {
        QTest::addRow("%s", qPrintable(call)) << call;
    }
}

void WinKeyerUsbSendingPropertyTest::aCallSignThatHoldsItsOwnTokenEndsInBothAlike() {
    QFETCH(QString, call);
    Subject subject;
    std::vector<Happening> course{{OwnCall{call}}};
    course.insert(course.end(), 60, Happening{Edit{99, 0, u"`#"_s}});
    run(subject, course);
    QVERIFY(subject.bench.engine().keyboardBuffer().size() <= 10'000);
}

static const RegisteredTest<WinKeyerUsbSendingPropertyTest> registered;
#include "WinKeyerUsbSendingPropertyTest.moc"
