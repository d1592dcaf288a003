#include "virtualkeyer/pty/NamedTroubles.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using virtualkeyer::namedTroubles;
using virtualkeyer::Time;
using virtualkeyer::Troubles;
using virtualkeyer::troublesNamed;

class NamedTroublesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyNameIsATroubleOfItsOwn();
    void aNumberStandsBehindTheName_data();
    void aNumberStandsBehindTheName();
    void severalAreAllThere();
    void noneIsNone();
    void othersAreRefused_data();
    void othersAreRefused();
};

void NamedTroublesTest::everyNameIsATroubleOfItsOwn() {
    std::set<std::string> names;
    std::vector<Troubles> all{Troubles{}};
    for (const auto& named : namedTroubles()) {
        QVERIFY(names.emplace(named.name).second);
        const auto troubles = troublesNamed(named.name);
        QVERIFY(troubles);
        QVERIFY(std::ranges::find(all, *troubles) == all.end());
        all.push_back(*troubles);
    }
}

void NamedTroublesTest::aNumberStandsBehindTheName_data() {
    QTest::addColumn<QByteArray>("names");
    QTest::addColumn<Troubles>("troubles");

    QTest::newRow("a share") << "lost:0.25"_ba << Troubles{.lost = 0.25};
    QTest::newRow("all") << "doubled:1"_ba << Troubles{.doubled = 1};
    QTest::newRow("of noise") << "noise:0.5"_ba << Troubles{.noise = 0.5};
    QTest::newRow("seconds") << "delay:0.25"_ba << Troubles{.delay = 250ms};
    QTest::newRow("a while") << "late:2"_ba << Troubles{.late = 2s};
    QTest::newRow("an adapter's") << "joined"_ba << Troubles{.joined = 16ms};
    QTest::newRow("at once") << "reset"_ba << Troubles{.reset = Time{0}};
    QTest::newRow("an hour later") << "hang-up:3600"_ba << Troubles{.hangUp = 3600s};
    QTest::newRow("no echo") << "no-echo"_ba << Troubles{.losesEchoes = true};
    QTest::newRow("not read") << "not-read"_ba << Troubles{.isNotRead = true};
}

void NamedTroublesTest::aNumberStandsBehindTheName() {
    QFETCH(QByteArray, names);
    QFETCH(Troubles, troubles);
    QVERIFY(troublesNamed(names.toStdString()) == troubles);
}

void NamedTroublesTest::severalAreAllThere() {
    const Troubles both{.lost = 0.01, .delay = 50ms};
    QVERIFY(troublesNamed("lost,delay:0.05") == both);
}

void NamedTroublesTest::noneIsNone() {
    QVERIFY(troublesNamed(virtualkeyer::noTroubles) == Troubles{});
}

void NamedTroublesTest::othersAreRefused_data() {
    QTest::addColumn<QByteArray>("names");
    for (const char* const names :
         {"", "loss", "lost,", ",lost", "lost, delay", "lost:", "lost:2", "lost:-0.1", "lost:1%",
          "lost:0.1:0.1", "lost:nan", "delay:3601", "delay:inf", "no-echo:1", "not-read:0.5",
          "none,lost", "lost,none", "Lost"}) {
        QTest::newRow(names) << QByteArray(names);
    }
}

void NamedTroublesTest::othersAreRefused() {
    QFETCH(QByteArray, names);
    QVERIFY(!troublesNamed(names.toStdString()));
}

static const RegisteredTest<NamedTroublesTest> registered;
#include "NamedTroublesTest.moc"
