#include "loggers/LoggerRequest.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace LoggerRequest;
using namespace Qt::StringLiterals;

namespace {

/// The request in words.
struct Told {
    QString operator()(std::monostate) const { return u"nothing"_s; }
    QString operator()(const Text& text) const {
        QString all;
        for (const auto& piece : text.text.pieces) {
            all += piece.text;
        }
        return u"text %1 echo %2"_s.arg(all, QString::fromLatin1(text.echo)).simplified();
    }
    QString operator()(Reset) const { return u"reset"_s; }
    QString operator()(Speed speed) const { return u"speed %1"_s.arg(speed.wpm); }
    QString operator()(Sidetone sidetone) const { return u"sidetone %1"_s.arg(sidetone.hertz); }
    QString operator()(Abort) const { return u"abort"_s; }
    QString operator()(WordMode) const { return u"word mode"_s; }
    QString operator()(Weighting weighting) const {
        return u"weighting %1"_s.arg(weighting.percent);
    }
    QString operator()(Tune tune) const { return u"tune %1"_s.arg(tune.seconds); }
    QString operator()(PttLead lead) const { return u"lead %1"_s.arg(lead.milliseconds); }
    QString operator()(const Reply& reply) const {
        return u"reply "_s + QString::fromLatin1(reply.text.toPercentEncoding());
    }
};

} // namespace

class LoggerRequestTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void meaningOfEachDatagram_data();
    void meaningOfEachDatagram();
    void aLongDatagramMeansNothing();
};

void LoggerRequestTest::meaningOfEachDatagram_data() {
    QTest::addColumn<QByteArray>("datagram");
    QTest::addColumn<QString>("meaning");

    const auto row = [](const char* name, const QByteArray& datagram, const char* meaning) {
        QTest::newRow(name) << datagram << QString::fromLatin1(meaning);
    };
    row("text", "cq", "text CQ echo");
    row("a line end is dropped", "cq\r\n", "text CQ echo");
    row("what is behind the end of the string is not looked at", QByteArray("cq\0de", 5),
        "text CQ echo");
    row("an echo is asked for", "cq+de^\r\n", "text CQDE echo cq+de");
    row("a sign within the text asks for none", "c^q", "text CQ echo");
    row("an echo of nothing", "^", "text echo");
    row("an empty datagram", "", "nothing");
    row("a line end alone", "\r\n", "nothing");
    row("escape alone", "\x1B", "nothing");
    row("reset",
        "\x1B"
        "0",
        "reset");
    row("speed",
        "\x1B"
        "228",
        "speed 28");
    row("the lowest speed",
        "\x1B"
        "24",
        "speed 5");
    row("a speed too low",
        "\x1B"
        "23",
        "nothing");
    row("the highest speed",
        "\x1B"
        "260",
        "speed 60");
    row("a speed too high",
        "\x1B"
        "261",
        "nothing");
    row("no number",
        "\x1B"
        "2fast",
        "nothing");
    row("no number at all",
        "\x1B"
        "2",
        "nothing");
    row("a number with something behind it",
        "\x1B"
        "228x",
        "nothing");
    row("a number beyond all numbers",
        "\x1B"
        "299999999999999999999",
        "nothing");
    row("a sign alone",
        "\x1B"
        "7-",
        "nothing");
    row("a number in another alphabet",
        "\x1B"
        "2\xD9\xA2\xD9\xA8",
        "nothing");
    row("sidetone",
        "\x1B"
        "3700",
        "sidetone 700");
    row("sidetone off",
        "\x1B"
        "30",
        "nothing");
    row("sidetone too high",
        "\x1B"
        "34001",
        "nothing");
    row("abort",
        "\x1B"
        "4",
        "abort");
    row("abort with something behind it",
        "\x1B"
        "4\r\n",
        "abort");
    row("the end of the daemon",
        "\x1B"
        "5",
        "nothing");
    row("word mode",
        "\x1B"
        "6",
        "word mode");
    row("weighting",
        "\x1B"
        "7-50",
        "weighting -50");
    row("weighting too high",
        "\x1B"
        "751",
        "nothing");
    row("a device",
        "\x1B"
        "8ttyS0",
        "nothing");
    row("PTT",
        "\x1B"
        "a1",
        "nothing");
    row("tune",
        "\x1B"
        "c5",
        "tune 5");
    row("a long tune",
        "\x1B"
        "c3600",
        "tune 10");
    row("no tune",
        "\x1B"
        "c0",
        "nothing");
    row("a tune of less than nothing",
        "\x1B"
        "c-5",
        "nothing");
    row("lead",
        "\x1B"
        "d20",
        "lead 20");
    row("a long lead",
        "\x1B"
        "d1000",
        "lead 50");
    row("a lead of less than nothing",
        "\x1B"
        "d-1",
        "nothing");
    row("reply",
        "\x1B"
        "h42",
        "reply h42%0D%0A");
    row("reply of nothing",
        "\x1B"
        "h",
        "reply h%0D%0A");
    row("an unknown letter",
        "\x1B"
        "z1",
        "nothing");
}

void LoggerRequestTest::meaningOfEachDatagram() {
    QFETCH(const QByteArray, datagram);
    QFETCH(const QString, meaning);
    QCOMPARE(std::visit(Told(), read(datagram)), meaning);
}

void LoggerRequestTest::aLongDatagramMeansNothing() {
    QCOMPARE(std::visit(Told(), read(QByteArray(256, 'e'))),
             u"text %1 echo"_s.arg(QString(256, u'E')));
    QCOMPARE(std::visit(Told(), read(QByteArray(257, 'e'))), u"nothing"_s);
    QCOMPARE(std::visit(Told(), read(QByteArray("cq\0", 3) + QByteArray(1000, 'e'))),
             u"text CQ echo"_s);
}

static const RegisteredTest<LoggerRequestTest> registered;
#include "LoggerRequestTest.moc"
