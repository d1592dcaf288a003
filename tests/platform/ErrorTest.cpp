#include "platform/Error.h"

#include "tests/support/RegisteredTest.h"

#include <QTest>

#include <cerrno>
#include <cstring>

using namespace Qt::StringLiterals;

class ErrorTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void theApplicationsErrorHasTwoTexts();
    void aSystemErrorNamesItsFile();
    void anEmptyErrorSaysNothing();
};

void ErrorTest::theApplicationsErrorHasTwoTexts() {
    const auto error = Error::ofApplication(u"It failed."_s, u"Try again."_s);
    QCOMPARE(error.domain, u"org.quorvel.Quorvel"_s);
    QCOMPARE(error.code, 1);
    QCOMPARE(error.userInfo.size(), 2);
    QCOMPARE(error.userInfo.value(NSLocalizedDescriptionKey).toString(), u"It failed."_s);
    QCOMPARE(error.userInfo.value(NSLocalizedRecoverySuggestionErrorKey).toString(),
             u"Try again."_s);
    QCOMPARE(error.localizedDescription(), u"It failed."_s);
    QCOMPARE(error.localizedRecoverySuggestion(), u"Try again."_s);
}

void ErrorTest::aSystemErrorNamesItsFile() {
    const auto error = Error::ofPosix(EACCES, u"/dev/ttyUSB0"_s);
    QCOMPARE(error.domain, u"NSPOSIXErrorDomain"_s);
    QCOMPARE(error.code, EACCES);
    QCOMPARE(error.localizedDescription(), QString::fromLocal8Bit(std::strerror(EACCES)));
    QCOMPARE(error.userInfo.value(NSFilePathErrorKey).toString(), u"/dev/ttyUSB0"_s);
    QVERIFY(error.localizedRecoverySuggestion().isNull());
}

void ErrorTest::anEmptyErrorSaysNothing() {
    const Error error;
    QVERIFY(error.domain.isNull());
    QCOMPARE(error.code, 0);
    QVERIFY(error.localizedDescription().isNull());
}

static const RegisteredTest<ErrorTest> registered;
#include "ErrorTest.moc"
