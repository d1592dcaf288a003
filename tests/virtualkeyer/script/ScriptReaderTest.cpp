#include "virtualkeyer/script/ScriptReader.h"

#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/pty/FileDescriptor.h"
#include "virtualkeyer/pty/SerialKeyer.h"
#include "virtualkeyer/script/ScriptError.h"
#include "virtualkeyer/script/ScriptParser.h"

#include <QTest>

#include <array>
#include <fcntl.h>
#include <string_view>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

/// A script in a pipe.
class Typed {
  public:
    Typed() {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
            qFatal("no pipe");
        }
        _readEnd = FileDescriptor(ends[0]);
        _writeEnd = FileDescriptor(ends[1]);
    }
    void type(std::string_view text) const {
        if (::write(_writeEnd.number(), text.data(), text.size()) !=
            static_cast<ssize_t>(text.size())) {
            qFatal("the pipe takes no more");
        }
    }
    void end() { _writeEnd = FileDescriptor(); }
    [[nodiscard]] int descriptor() const { return _readEnd.number(); }

  private:
    FileDescriptor _readEnd;
    FileDescriptor _writeEnd;
};

QString mistakeIn(ScriptReader& reader) {
    try {
        reader.readAll();
    } catch (const ScriptError& error) {
        return QString::fromUtf8(error.what());
    }
    return {};
}

} // namespace

class ScriptReaderTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void aMistakeIsNamedWithItsLine();
    void anUnknownProfileIsAMistake();
    void theLastLineNeedsNoEnd();
    void whatIsTypedIsDoneAsSoonAsItsLineIsComplete();
    void aStepCannotBeDoneBeforeItIsTyped();
    void aDirectoryIsNoScript();
};

void ScriptReaderTest::aMistakeIsNamedWithItsLine() {
    Typed typed;
    typed.type("knob 20\n# a comment\n\n  knob 200 \nknob 30\n");
    typed.end();
    ScriptPlayer player({}, {});
    ScriptReader reader(typed.descriptor(), u"contest.keyer"_s, player);
    QCOMPARE(mistakeIn(reader),
             u"contest.keyer:4: \"knob 200\" is not understood; possible is: knob 5...99"_s);
}

void ScriptReaderTest::anUnknownProfileIsAMistake() {
    Typed typed;
    typed.type("profile perfect\n");
    typed.end();
    ScriptPlayer player([](std::string_view) { return std::nullopt; }, {});
    ScriptReader reader(typed.descriptor(), u"-"_s, player);
    QCOMPARE(mistakeIn(reader), u"-:1: \"profile perfect\" is not understood; possible is: a "
                                "profile that --help lists"_s);
}

void ScriptReaderTest::theLastLineNeedsNoEnd() {
    Typed typed;
    typed.type("knob 20\nknob 30");
    typed.end();
    ScriptPlayer player({}, {});
    ScriptReader reader(typed.descriptor(), u"-"_s, player);
    reader.readAll();
    QVERIFY(!player.hasEnded());
    SerialKeyer keyer(Profile{}, {});
    player.work(keyer, false, Time{0});
    QVERIFY(player.hasEnded());
    // Within the range at power-up.
    QCOMPARE(keyer.keyer().registers().potWpm(), 25);
}

void ScriptReaderTest::whatIsTypedIsDoneAsSoonAsItsLineIsComplete() {
    Typed typed;
    ScriptPlayer player({}, {});
    ScriptReader reader(typed.descriptor(), u"-"_s, player);
    SerialKeyer keyer(Profile{}, {});
    typed.type("knob 1");
    reader.work(keyer, true, 1s);
    QVERIFY(!player.nextWish());
    typed.type("5\nat 9 pull\n");
    reader.work(keyer, true, 2s);
    player.work(keyer, false, 2s);
    QCOMPARE(keyer.keyer().registers().potWpm(), 15);
    QVERIFY(keyer.isPluggedIn());
    QVERIFY(player.nextWish() == Time{9s});
    typed.end();
    reader.work(keyer, true, 3s);
    QCOMPARE(reader.descriptor(), -1);
    QVERIFY(!player.hasEnded());
}

void ScriptReaderTest::aStepCannotBeDoneBeforeItIsTyped() {
    Typed typed;
    ScriptPlayer player({}, {});
    ScriptReader reader(typed.descriptor(), u"-"_s, player);
    SerialKeyer keyer(Profile{}, {});
    keyer.advance(5s);
    typed.type("at 2 paddle dit down\n");
    reader.work(keyer, true, 6s);
    QVERIFY(player.nextWish() == Time{6s});
}

void ScriptReaderTest::aDirectoryIsNoScript() {
    const FileDescriptor directory(::open("/", O_RDONLY | O_CLOEXEC));
    ScriptPlayer player({}, {});
    ScriptReader reader(directory.number(), u"/"_s, player);
    QCOMPARE(mistakeIn(reader), u"cannot read the script /: Is a directory"_s);
}

static const RegisteredTest<ScriptReaderTest> registered;
#include "ScriptReaderTest.moc"
