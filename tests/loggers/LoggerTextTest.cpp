#include "loggers/LoggerText.h"
#include "tests/support/RegisteredTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

class LoggerTextTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void piecesOfEachText_data();
    void piecesOfEachText();
};

void LoggerTextTest::piecesOfEachText_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("pieces");

    const auto row = [](const char* name, const char* bytes, const char* pieces) {
        QTest::newRow(name) << QByteArray(bytes) << QString::fromLatin1(pieces);
    };
    row("lower case is upper case", "cq De n0call", "CQ DE N0CALL");
    row("nothing", "", "");
    row("punctuation stays", "a,b.c/d?e@f\"g$h'i)", "A,B.C/D?E@F\"G$H'I)");
    row("signs are ours", "*=<(&", "+=>([");
    row("joined letters end a piece", "a!b>c", "A{SN J B{BK J C");
    row("signs that the keyer keys otherwise are joined", ":;_", "{OS J {KR J {UK J ");
    row("our own control characters are left out", "a`b#c%d{e|f[g]h\\i^j", "ABCDEFGHIJ");
    row("what has no code is left out", "a\x01\x80\xFF}z", "AZ");
    row("a line end within is a space", "a\nb\tc", "A B C");
    row("spaces stay", " a  b ", " A  B ");
    row("a half space goes behind the next", "~ab~~c", "A|BC||");
    row("a half space behind joined letters", "~!a", "{SN| J A");
    row("a half space without a next is none", "a~", "A");
    row("a speed sign begins a piece", "a+b", "A 1:B");
    row("speed signs add up", "++a---b", "2:A -3:B");
    row("they may cancel each other", "+-a", "0:A");
    row("a speed sign at the end is a piece", "a--", "A -2:");
    row("a speed sign behind joined letters", "!+a", "{SN J 1:A");
}

void LoggerTextTest::piecesOfEachText() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, pieces);
    QString told;
    for (const auto& piece : LoggerText::read(bytes).pieces) {
        const bool isStepped = piece.speedSteps != 0 || (told.isEmpty() && bytes.startsWith("+-"));
        told += (told.isEmpty() || told.endsWith(u' ') ? u""_s : u" "_s) +
                (isStepped ? u"%1:"_s.arg(piece.speedSteps) : u""_s) + piece.text +
                (piece.endsJoined ? u" J "_s : u""_s);
    }
    QCOMPARE(told, pieces);
}

static const RegisteredTest<LoggerTextTest> registered;
#include "LoggerTextTest.moc"
