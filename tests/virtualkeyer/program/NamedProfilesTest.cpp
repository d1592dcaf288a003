#include "virtualkeyer/NamedProfiles.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <set>
#include <string>

using namespace std::chrono_literals;
using namespace virtualkeyer;

namespace {

/// The ways in which a profile differs from the default, as bits in the order of its fields.
unsigned differencesOf(const Profile& profile) {
    const Profile plain;
    unsigned bits = 0;
    unsigned next = 1;
    const auto compare = [&bits, &next](bool isSame) {
        bits |= isSame ? 0 : next;
        next <<= 1;
    };
    compare(profile.echoTime == plain.echoTime);
    compare(profile.idleTime == plain.idleTime);
    compare(profile.endOrder == plain.endOrder);
    compare(profile.echoesText == plain.echoesText);
    compare(profile.echoesHalfSpace == plain.echoesHalfSpace);
    compare(profile.unknownCharacter == plain.unknownCharacter);
    compare(profile.reportsStatusAfterOpen == plain.reportsStatusAfterOpen);
    compare(profile.xoffRule == plain.xoffRule);
    compare(profile.clearInLetter == plain.clearInLetter);
    compare(profile.bootLoaderTime == plain.bootLoaderTime);
    compare(profile.firstCommandBeep == plain.firstCommandBeep);
    compare(profile.memoryLoad == plain.memoryLoad);
    compare(profile.breakInReport == plain.breakInReport);
    compare(profile.breakInDelay == plain.breakInDelay);
    compare(profile.textAtBreakIn == plain.textAtBreakIn);
    compare(profile.cutLetterEcho == plain.cutLetterEcho);
    compare(profile.resumeAfterPause == plain.resumeAfterPause);
    compare(profile.speedGivenBack == plain.speedGivenBack);
    compare(profile.knobInHostMode == plain.knobInHostMode);
    compare(profile.xoffStatus == plain.xoffStatus);
    compare(profile.buttonReport == plain.buttonReport);
    compare(profile.buttonInText == plain.buttonInText);
    compare(profile.tuneEnd == plain.tuneEnd);
    compare(profile.tuneInText == plain.tuneInText);
    compare(profile.silenceAfterOpen == plain.silenceAfterOpen);
    compare(profile.deafAfterClear == plain.deafAfterClear);
    return bits;
}

} // namespace

class NamedProfilesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theDefaultIsTheKeyersOwn();
    void everyOtherProfileDiffersInItsOwnWay();
    void allDifferencesTogetherCoverEveryChoice();
    void namesAreFoundExactly();
    void severalTogetherDifferInAllTheirWays();
    void everyOneOfSeveralNamesIsFoundExactly();
};

void NamedProfilesTest::theDefaultIsTheKeyersOwn() {
    QCOMPARE(std::string(namedProfiles().front().name), std::string("default"));
    QCOMPARE(differencesOf(profileNamed("default").value()), 0U);
}

void NamedProfilesTest::everyOtherProfileDiffersInItsOwnWay() {
    std::set<std::string> names;
    std::set<unsigned> differences;
    for (const NamedProfile& named : namedProfiles()) {
        QVERIFY(names.emplace(named.name).second);
        QVERIFY(differences.insert(differencesOf(profileNamed(named.name).value())).second);
    }
}

void NamedProfilesTest::allDifferencesTogetherCoverEveryChoice() {
    unsigned covered = 0;
    for (const NamedProfile& named : namedProfiles()) {
        covered |= differencesOf(profileNamed(named.name).value());
    }
    QCOMPARE(covered, (1U << 26U) - 1U);
}

void NamedProfilesTest::namesAreFoundExactly() {
    QCOMPARE(profileNamed("boot-loader").value().bootLoaderTime.count(), Time{1300ms}.count());
    QCOMPARE(profileNamed("start-beep").value().firstCommandBeep.count(), Time{500ms}.count());
    QVERIFY(!profileNamed("boot"));
    QVERIFY(!profileNamed(""));
    QVERIFY(!profileNamed("Default"));
}

void NamedProfilesTest::severalTogetherDifferInAllTheirWays() {
    const Profile profile = profileNamed("late-echo,boot-loader").value();
    QCOMPARE(differencesOf(profile), differencesOf(profileNamed("late-echo").value()) |
                                         differencesOf(profileNamed("boot-loader").value()));
    QCOMPARE(profile.bootLoaderTime.count(), Time{1300ms}.count());
    QVERIFY(profile.echoTime == EchoTime::AfterLetterSpace);
    QCOMPARE(differencesOf(profileNamed("default,boot-loader").value()),
             differencesOf(profileNamed("boot-loader").value()));
}

void NamedProfilesTest::everyOneOfSeveralNamesIsFoundExactly() {
    QVERIFY(!profileNamed("late-echo,boot"));
    QVERIFY(!profileNamed("boot,late-echo"));
    QVERIFY(!profileNamed("late-echo, boot-loader"));
    QVERIFY(!profileNamed("late-echo,"));
    QVERIFY(!profileNamed(",late-echo"));
    QVERIFY(!profileNamed("late-echo,,boot-loader"));
}

static const RegisteredTest<NamedProfilesTest> registered;
#include "NamedProfilesTest.moc"
