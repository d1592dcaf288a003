#include "app/CommandLine.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

class CommandLineTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theVersionIsTold();
    void theOptionsAreTold();
    void whateverElseStartsTheProgram();
};

void CommandLineTest::theVersionIsTold() {
    QCOMPARE(commandLineAnswer("--version", u"1.2.3"_s), u"quorvel 1.2.3\n"_s);
    QCOMPARE(commandLineAnswer("-v", u"1.2.3"_s), u"quorvel 1.2.3\n"_s);
}

void CommandLineTest::theOptionsAreTold() {
    const auto help = commandLineAnswer("--help", {});
    QVERIFY(help.has_value());
    for (const auto* each : {"-h", "--help", "-v", "--version", "--check-ports", "--ask-keyer"}) {
        QVERIFY(help->contains(QLatin1StringView(each)));
    }
    QVERIFY(help->endsWith(u'\n'));
}

void CommandLineTest::whateverElseStartsTheProgram() {
    for (const auto* each : {"", "-platform", "--versions", "help"}) {
        QCOMPARE(commandLineAnswer(each, {}), std::nullopt);
    }
}

static const RegisteredTest<CommandLineTest> registered;
#include "CommandLineTest.moc"
