#include "virtualkeyer/sidetone/WavWriter.h"

#include "tests/support/RegisteredTest.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <system_error>
#include <vector>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace virtualkeyer;

class WavWriterTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theHeadTellsWhatFollows();
    void theSamplesAreTheRenderers();
    void theFileEndsWithTheTimeThatHasPassed();
    void anUnfinishedFileClaimsTheGreatestLength();
    void aFullDiskIsAnError();

  private:
    [[nodiscard]] std::string path() const { return _directory.path().toStdString() + "/a.wav"; }
    [[nodiscard]] QByteArray content() const {
        QFile file(QString::fromStdString(path()));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir _directory;
};

void WavWriterTest::theHeadTellsWhatFollows() {
    WavWriter writer(path());
    writer.timePassed(1s);
    writer.finish();
    const QByteArray head = content().left(44);
    QByteArray expected("RIFF____WAVEfmt ");
    qToLittleEndian<quint32>(88'200 + 36, expected.data() + 4);
    expected += QByteArray::fromHex("10000000" // bytes of the format
                                    "0100"     // linear
                                    "0100"     // one channel
                                    "44ac0000" // samples a second
                                    "88580100" // bytes a second
                                    "0200"     // bytes a sample
                                    "1000");   // bits
    expected += "data" + QByteArray::fromHex("88580100");
    QCOMPARE(head, expected);
    QCOMPARE(content().size(), 44 + 88'200);
}

void WavWriterTest::theSamplesAreTheRenderers() {
    const Registers registers;
    WavWriter writer(path());
    SidetoneRenderer renderer(WavWriter::sampleRate);
    for (const auto& [at, frequency] :
         {std::pair{100ms, 800}, {160ms, 0}, {220ms, 500}, {400ms, 0}}) {
        writer.timePassed(at - 10ms);
        writer.keyerDid({at, Tone{frequency}}, registers);
        renderer.setTone(frequency, at);
    }
    writer.timePassed(1s);
    writer.finish();
    std::vector<float> expected(WavWriter::sampleRate);
    renderer.render(expected);
    const QByteArray data = content().mid(44);
    QCOMPARE(data.size(), 2 * WavWriter::sampleRate);
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const auto sample = qFromLittleEndian<qint16>(data.constData() + 2 * i);
        QCOMPARE(sample, std::lround(expected[i] * 0.5F * 32'767));
    }
}

void WavWriterTest::theFileEndsWithTheTimeThatHasPassed() {
    WavWriter writer(path());
    writer.timePassed(10ms);
    writer.finish();
    writer.timePassed(20ms);
    writer.finish();
    QCOMPARE(content().size(), 44 + 2 * 882);
    QCOMPARE(qFromLittleEndian<quint32>(content().constData() + 40), 2 * 882U);
}

void WavWriterTest::anUnfinishedFileClaimsTheGreatestLength() {
    {
        WavWriter writer(path());
        writer.timePassed(10ms);
    }
    QVERIFY(qFromLittleEndian<quint32>(content().constData() + 40) > 4'000'000'000U);
    QVERIFY(qFromLittleEndian<quint32>(content().constData() + 4) > 4'000'000'000U);
    QCOMPARE(content().size(), 44 + 2 * 441);
}

void WavWriterTest::aFullDiskIsAnError() {
    WavWriter writer("/dev/full");
    QVERIFY_THROWS_EXCEPTION(std::system_error, writer.timePassed(10s));
}

static const RegisteredTest<WavWriterTest> registered;
#include "WavWriterTest.moc"
