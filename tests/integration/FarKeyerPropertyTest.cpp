// Whatever happens at either end of a line with delay, in whatever order: what reaches the keyer is
// what the model says, what is keyed is what reached it, and behind a stop nothing is.
//
// A failure prints the shortest course of events that shows it, and its seed; RC_PARAMS takes that.

#include "keyer/GeneralSettings.h"
#include "keyer/KeyerSettings.h"
#include "tests/integration/FarKeyerModel.h"
#include "tests/integration/VirtualTimeLink.h"
#include "tests/support/RegisteredTest.h"

#include <QLoggingCategory>
#include <QTest>

#include <algorithm>
#include <ostream>
#include <rapidcheck.h>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

enum class What { Append, Insert, Delete, Stop, Pause, Resume, Paddle, Lose, Setting, Pass };

/// `number` is a place, a count, or milliseconds; what it is too large for wraps around.
struct Happening {
    What what;
    int number;
    QString text;
};

std::ostream& operator<<(std::ostream& out, const Happening& each) {
    constexpr const char* names[] = {"append", "insert", "delete", "stop",    "pause",
                                     "resume", "paddle", "lose",   "setting", "pass"};
    return out << names[static_cast<int>(each.what)] << ' ' << each.number << " \""
               << each.text.toStdString() << '"';
}

struct Course {
    int ahead;
    int delay;
    int wpm;
    QString callsign;
    std::vector<Happening> happenings;
};

std::ostream& operator<<(std::ostream& out, const Course& course) {
    out << course.ahead << " ahead, " << course.delay << " ms, " << course.wpm << " wpm, \""
        << course.callsign.toStdString() << '"';
    for (const auto& each : course.happenings) {
        out << "\n  " << each;
    }
    return out;
}

rc::Gen<QString> someText(int longest, const std::vector<QString>& parts) {
    return rc::gen::mapcat(rc::gen::inRange(1, longest + 1), [parts](int count) {
        return rc::gen::map(rc::gen::container<std::vector<QString>>(
                                static_cast<std::size_t>(count), rc::gen::elementOf(parts)),
                            [](const std::vector<QString>& chosen) {
                                return QStringList(chosen.begin(), chosen.end()).join(u""_s);
                            });
    });
}

rc::Gen<QString> somePlainText(int longest) {
    return someText(longest,
                    {u"E"_s, u"E"_s, u"T"_s, u"A"_s, u"Q"_s, u"5"_s, u" "_s, u"?"_s, u"|"_s});
}

rc::Gen<QString> someMessage() {
    return someText(12, {u"E"_s, u"T"_s, u"A"_s, u"N"_s, u"Q"_s, u"73"_s, u" "_s, u"5NN "_s, u"|"_s,
                         u"{AR"_s, u"{SK"_s, u"%"_s, u"^"_s, u"~"_s});
}

rc::Gen<Happening> happening(What what, rc::Gen<int> number, rc::Gen<QString> text) {
    return rc::gen::map(rc::gen::pair(std::move(number), std::move(text)),
                        [what](const auto& values) {
                            return Happening{what, values.first, values.second};
                        });
}

rc::Gen<Happening> someHappening() {
    const auto none = rc::gen::just(u""_s);
    const auto number = rc::gen::inRange(0, 60);
    return rc::gen::weightedOneOf<Happening>({
        {8, happening(What::Append, rc::gen::just(0), someMessage())},
        {6, happening(What::Insert, number, somePlainText(4))},
        {3, happening(What::Delete, number, none)},
        {2, happening(What::Stop, rc::gen::just(0), none)},
        {2, happening(What::Pause, rc::gen::just(0), none)},
        {2, happening(What::Resume, rc::gen::just(0), none)},
        {1, happening(What::Paddle, rc::gen::inRange(1, 400), none)},
        {1, happening(What::Lose, rc::gen::inRange(1, 4), none)},
        {1, happening(What::Setting, rc::gen::inRange(2, 9), none)},
        {20, happening(What::Pass, rc::gen::inRange(0, 1500), none)},
    });
}

rc::Gen<Course> someCourse() {
    return rc::gen::build<Course>(
        rc::gen::set(&Course::ahead, rc::gen::inRange(2, 9)),
        rc::gen::set(&Course::delay, rc::gen::element(0, 5, 25, 50, 100, 200)),
        rc::gen::set(&Course::wpm, rc::gen::element(15, 25, 40, 60, 99)),
        rc::gen::set(&Course::callsign, rc::gen::element(u"W1AW"_s, u"E"_s, u""_s)),
        rc::gen::set(&Course::happenings,
                     rc::gen::container<std::vector<Happening>>(someHappening())));
}

/// Whether the keyer says nothing of all this.
bool isSilent(const QString& text) {
    return std::all_of(text.begin(), text.end(),
                       [](QChar each) { return u"|%^~"_s.contains(each); });
}

/// One course of events on a link, beside the model of it.
class Rehearsal {
  public:
    Rehearsal(VirtualTimeLink& link, const Course& course) : _link(link), _model(course.ahead) {
        _link.startOver({.wpm = course.wpm,
                         .delay = std::chrono::milliseconds(course.delay),
                         .charactersAhead = course.ahead});
        _link.engine().setHisCallsign(course.callsign);
        _model.callsign = course.callsign;
        // With a value that is no command.
        _link.bench().settings().setObject(u"2000 lpm"_s, WKHSCWSpeed);
        _model.hscwCommand = QByteArray("\x1D\x14");
        _link.setObserver([this](std::uint8_t byte) { hears(byte); },
                          [this](const QByteArray& bytes) { wrote(bytes); });
    }
    ~Rehearsal() { _link.setObserver(nullptr, nullptr); }
    Rehearsal(const Rehearsal&) = delete;
    Rehearsal& operator=(const Rehearsal&) = delete;

    void perform(const Happening& each) {
        auto& engine = _link.engine();
        switch (each.what) {
        case What::Append:
            _model.append(each.text);
            engine.appendMessage(each.text);
            break;
        case What::Insert:
            edit(each.number, 0, each.text);
            break;
        case What::Delete:
            edit(each.number, 1 + each.number % 7, {});
            break;
        case What::Stop:
            _model.clear();
            engine.stopMessageSending(nullptr);
            ++_clearsDue;
            break;
        case What::Pause:
            engine.setPauseState(1);
            break;
        case What::Resume:
            engine.setPauseState(0);
            break;
        case What::Paddle:
            touchPaddle(std::chrono::milliseconds(each.number));
            break;
        case What::Lose:
            _model.losesEchoes();
            _link.loseEchoes(each.number);
            break;
        case What::Setting:
            _model.mayGetAhead(each.number);
            _link.bench().settings().setObject(each.number, CharactersAhead.key);
            break;
        case What::Pass:
            _link.pass(std::chrono::milliseconds(each.number));
            break;
        }
        _link.handOn();
        compare();
    }

    void finish() {
        _link.loseEchoes(0);
        static_cast<void>(_link.runUntilQuiet());
        _link.engine().setPauseState(0);
        _link.handOn();
        static_cast<void>(_link.runUntilQuiet());
        compare();
        const auto& engine = _link.engine();
        RC_ASSERT(_model.isThrough());
        RC_ASSERT(isSilent(_model.text().mid(engine.inFlightIndex())));
        RC_ASSERT(!engine.isAwaitingEcho());
        RC_ASSERT(!engine.mayBeKeying());
        if (_isPaddleUsed) {
            compareKeyedAroundPaddle();
        } else {
            compareKeyed();
        }
    }

  private:
    /// Joined letters are left whole: what becomes of half of them is not said here.
    void edit(int number, int length, const QString& text) {
        const auto old = _model.text();
        if (old.contains(u'{')) {
            return;
        }
        const auto at = number % (old.size() + 1);
        const auto changed =
            QString(old).replace(at, std::min<qsizetype>(length, old.size() - at), text);
        _model.edit(changed);
        _link.bench().type(changed);
    }

    /// The keyer throws away what it has and what arrives meanwhile: nothing is known of that.
    void touchPaddle(VirtualTimeLink::Time duration) {
        _isPaddleUsed = true;
        _model.losesTrack();
        _link.setPaddle(true, false);
        _link.pass(duration);
        _link.setPaddle(false, false);
    }

    void hears(std::uint8_t byte) {
        constexpr int statusMask = 0xEA; // of a status, its break-in
        constexpr int breakIn = 0xC2;
        if ((byte & statusMask) == breakIn) {
            _model.clear();
        }
        _model.hears(byte);
    }

    void wrote(const QByteArray& bytes) {
        _model.wrote(bytes);
        RC_ASSERT(_model.trouble().toStdString() == "");
    }

    void compare() {
        const auto& engine = _link.engine();
        _model.isAt(engine.outputBufferIndex());
        RC_ASSERT(_model.trouble().toStdString() == "");
        RC_ASSERT(engine.keyboardBuffer().toStdString() == _model.text().toStdString());
        RC_ASSERT(engine.inFlightIndex() <= engine.outputBufferIndex());
        RC_ASSERT(_model.mayBeInFlightFrom(engine.inFlightIndex()));
        RC_ASSERT(!_model.isAwaiting() || engine.mayBeKeying());
    }

    /// Each Clear Buffer ends what was given before it: of that a beginning is keyed, up to the
    /// letter that the keyer was in when it heard.
    void compareKeyed() {
        std::vector<VirtualTimeLink::Time> cleared;
        for (const auto& each : _link.arrived()) {
            if (each.value == 0x0A) {
                cleared.push_back(each.at);
            }
        }
        const auto& given = _model.allGiven();
        RC_ASSERT(given.size() == cleared.size() + 1);
        RC_ASSERT(cleared.size() == _clearsDue);
        auto keyed = _link.keyed().begin();
        const auto end = _link.keyed().end();
        for (std::size_t i = 0; i < given.size(); ++i) {
            const bool isLast = i == cleared.size();
            QByteArray text;
            for (; keyed != end && (isLast || keyed->begun <= cleared[i]); ++keyed) {
                text += static_cast<char>(keyed->value);
            }
            RC_ASSERT(given[i].startsWith(text));
            RC_ASSERT(!isLast || text == given[i]);
        }
        RC_ASSERT(keyed == end);
    }

    /// What arrived while the paddle was used is not keyed; the rest is, in its order.
    void compareKeyedAroundPaddle() {
        QByteArray given;
        for (const auto& each : _model.allGiven()) {
            given += each;
        }
        qsizetype place = 0;
        for (const auto& each : _link.keyed()) {
            place = given.indexOf(static_cast<char>(each.value), place) + 1;
            RC_ASSERT(place > 0);
        }
    }

    VirtualTimeLink& _link;
    FarKeyerModel _model;
    bool _isPaddleUsed = false;
    std::size_t _clearsDue = 0;
};

} // namespace

class FarKeyerPropertyTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void initTestCase();
    void whatIsKeyedIsWhatTheModelSays();
};

void FarKeyerPropertyTest::initTestCase() {
    if (!qEnvironmentVariableIsSet("RC_PARAMS")) {
        qputenv("RC_PARAMS", "max_success=1000");
    }
    // The engine logs what it does with control signs.
    QLoggingCategory::setFilterRules(u"default.info=false"_s);
}

void FarKeyerPropertyTest::whatIsKeyedIsWhatTheModelSays() {
    VirtualTimeLink link({});
    QVERIFY(rc::check("what is keyed is what the model says", [&link] {
        const auto course = *someCourse().as("course");
        Rehearsal rehearsal(link, course);
        for (const auto& each : course.happenings) {
            rehearsal.perform(each);
        }
        rehearsal.finish();
    }));
}

static const RegisteredTest<FarKeyerPropertyTest> registered;
#include "FarKeyerPropertyTest.moc"
