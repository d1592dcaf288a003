#include "keyer/MorseTable.h"
#include "tests/support/RegisteredTest.h"
#include "virtualkeyer/core/MorseTable.h"

#include <QTest>

#include <string>

/// The application and the virtual keyer each have a table of their own.
class MorseTablesTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void everyCharacterHasTheSameElements();
};

void MorseTablesTest::everyCharacterHasTheSameElements() {
    for (char16_t code = 0x20; code < 0x80; ++code) {
        const auto character = static_cast<char>(code);
        // The keyer's line has these two for a word space and half a dit of rest.
        if (character == ' ' || character == '|') {
            continue;
        }
        const auto elements = virtualkeyer::elementsOf(character);
        QVERIFY2(elements == MorseTable::patterns.at(code - MorseTable::first),
                 std::string(1, character).c_str());
        QCOMPARE(MorseTable::codeOf(code), MorseTable::encode(elements));
    }
}

static const RegisteredTest<MorseTablesTest> registered;
#include "MorseTablesTest.moc"
