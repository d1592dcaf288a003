#include "portcheck/PortReport.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Kind = PortFinding::Kind;

class PortReportTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void itIsWrittenAsLines();
    void nothingInItNamesTheUser();
    void theSuperusersNameStays();
    void aPortIsUsableThatHasNoProblem_data();
    void aPortIsUsableThatHasNoProblem();
};

void PortReportTest::itIsWrittenAsLines() {
    const PortReport report{{{u"one"_s, {{Kind::Problem, u"It is."_s, u"Do:"_s, u"sudo x"_s}}},
                             {u"two"_s, {{Kind::Good, u"Fine."_s}, {Kind::Hint, u"But."_s}}}}};
    QCOMPARE(report.asText({}, {}), u"one\n"
                                    "  Problem: It is.\n"
                                    "    Do:\n"
                                    "        sudo x\n"
                                    "\n"
                                    "two\n"
                                    "  OK: Fine.\n"
                                    "  Note: But.\n"_s);
}

void PortReportTest::nothingInItNamesTheUser() {
    const PortReport report{{{u"keyer (/home/martin/run/quorvel/ports/keyer)"_s,
                              {{Kind::Problem, u"The group martin may; /media/martin/x too."_s,
                                u"martinet, st-martin and Martin are others."_s}}}}};
    QCOMPARE(report.asText(u"/home/martin"_s, u"martin"_s),
             u"keyer (~/run/quorvel/ports/keyer)\n"
             "  Problem: The group USER may; /media/USER/x too.\n"
             "    martinet, st-martin and Martin are others.\n"_s);
}

void PortReportTest::theSuperusersNameStays() {
    const PortReport report{{{u"x"_s, {{Kind::Problem, u"root alone may"_s}}}}};
    QVERIFY(report.asText(u"/root"_s, u"root"_s).contains(u"root alone may"));
    QVERIFY(!report.asText(u"/"_s, {}).contains(u'~'));
}

void PortReportTest::aPortIsUsableThatHasNoProblem_data() {
    QTest::addColumn<QList<Kind>>("kinds");
    QTest::addColumn<bool>("isUsable");
    QTest::newRow("good") << QList{Kind::Good} << true;
    QTest::newRow("good with a note") << QList{Kind::Good, Kind::Hint} << true;
    QTest::newRow("a problem") << QList{Kind::Problem, Kind::Good} << false;
    QTest::newRow("nothing but a note") << QList{Kind::Hint} << false;
}

void PortReportTest::aPortIsUsableThatHasNoProblem() {
    QFETCH(QList<Kind>, kinds);
    QFETCH(bool, isUsable);
    PortEntry entry{u"x"_s};
    for (const auto kind : kinds) {
        entry.findings.append({kind, u"y"_s});
    }
    QCOMPARE(PortReport{{entry}}.hasUsablePort(), isUsable);
}

static const RegisteredTest<PortReportTest> registered;
#include "PortReportTest.moc"
