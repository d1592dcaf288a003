#include "platform/SettingsStore.h"

#include "tests/support/OrdinaryUser.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <memory>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

class SettingsStoreTest : public QObject {
    Q_OBJECT
  private Q_SLOTS:
    void init();

    void standsInTheConfigurationHome();
    void readsBooleans_data();
    void readsBooleans();
    void readsIntegers_data();
    void readsIntegers();
    void readsReals_data();
    void readsReals();
    void readsTexts_data();
    void readsTexts();
    void readsTheFileAsPeopleWriteIt();
    void keepsTheTypeOfWhatIsStored_data();
    void keepsTheTypeOfWhatIsStored();
    void anAbsentValueIsNothing();
    void registeredDefaultsLieUnderStoredValues();
    void aLaterRegistrationWins();
    void registeredDefaultsAreNeverWritten();
    void announcesAChange();
    void announcesNoChangeWhereThereIsNone();
    void anInvalidValueUncoversTheDefault();
    void textsComeBack_data();
    void textsComeBack();
    void storesInTheGeneralSection();
    void writesWithinTheEventLoop();
    void makesItsDirectory();
    void aCorruptFileIsMovedAside_data();
    void aCorruptFileIsMovedAside();
    void aSoundFileStays_data();
    void aSoundFileStays();
    void corruptFilesDoNotReplaceEachOther();
    void aCorruptFileThatCannotBeMovedIsLeftAlone();
    void anUnreadableFileIsLeftAlone();
    void saysThatItCannotWrite();

  private:
    [[nodiscard]] QString path() const { return _directory->filePath(u"quorvel.conf"_s); }
    void write(const QByteArray& content) const;
    [[nodiscard]] static QByteArray contentOf(const QString& file);
    [[nodiscard]] QByteArray content() const { return contentOf(path()); }

    std::unique_ptr<QTemporaryDir> _directory;
};

void SettingsStoreTest::init() {
    _directory = std::make_unique<QTemporaryDir>();
}

void SettingsStoreTest::write(const QByteArray& content) const {
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(content), content.size());
}

QByteArray SettingsStoreTest::contentOf(const QString& file) {
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray("(unreadable)");
}

void SettingsStoreTest::standsInTheConfigurationHome() {
    const auto former = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(_directory->path()));
    const auto standard = SettingsStore::standardPath();
    qputenv("XDG_CONFIG_HOME", former);
    QCOMPARE(standard, _directory->filePath(u"quorvel/quorvel.conf"_s));
}

void SettingsStoreTest::readsBooleans_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("expected");
    const auto yes = [](const char* row, const QVariant& value) {
        QTest::newRow(row) << value << true;
    };
    const auto no = [](const char* row, const QVariant& value) {
        QTest::newRow(row) << value << false;
    };
    yes("YES", u"YES"_s);
    yes("yes", u"yes"_s);
    yes("true", u"true"_s);
    yes("T alone", u"T"_s);
    yes("1", u"1"_s);
    yes("9", u"9"_s);
    yes("a number after zeros", u"007"_s);
    yes("a number with a sign", u"-1"_s);
    yes("after blanks", u"  Yes"_s);
    yes("true itself", true);
    yes("the number 2", 2);
    yes("the number 0.5", 0.5);
    yes("a large unsigned number", 4294967295u);
    no("NO", u"NO"_s);
    no("no", u"no"_s);
    no("false", u"false"_s);
    no("0", u"0"_s);
    no("zeros", u"000"_s);
    no("empty", u""_s);
    no("null", QString());
    no("another word", u"on"_s);
    no("false itself", false);
    no("the number 0", 0);
}

void SettingsStoreTest::readsBooleans() {
    QFETCH(QVariant, stored);
    SettingsStore store(path());
    store.setObject(stored, u"k"_s);
    QTEST(store.boolForKey(u"k"_s), "expected");
}

void SettingsStoreTest::readsIntegers_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<qint64>("expected");
    constexpr auto most = std::numeric_limits<qint64>::max();
    QTest::newRow("a number") << QVariant(42) << qint64{42};
    QTest::newRow("a negative number") << QVariant(-42) << qint64{-42};
    QTest::newRow("a real number is cut") << QVariant(2.9) << qint64{2};
    QTest::newRow("a negative real number is cut") << QVariant(-2.9) << qint64{-2};
    QTest::newRow("truth") << QVariant(true) << qint64{1};
    QTest::newRow("untruth") << QVariant(false) << qint64{0};
    QTest::newRow("truth as the file has it") << QVariant(u"true"_s) << qint64{1};
    QTest::newRow("the greatest number") << QVariant(most) << most;
    QTest::newRow("a text of digits") << QVariant(u"17"_s) << qint64{17};
    QTest::newRow("the greatest number as text") << QVariant(QString::number(most)) << most;
    QTest::newRow("the number that a text begins with") << QVariant(u"12abc"_s) << qint64{12};
    QTest::newRow("a text with a sign") << QVariant(u"-5"_s) << qint64{-5};
    QTest::newRow("a text with a plus sign") << QVariant(u"+5"_s) << qint64{5};
    QTest::newRow("after blanks") << QVariant(u" \t8"_s) << qint64{8};
    QTest::newRow("a real number as text is cut") << QVariant(u"2.9"_s) << qint64{2};
    QTest::newRow("a text without a number") << QVariant(u"abc"_s) << qint64{0};
    QTest::newRow("YES is no number") << QVariant(u"YES"_s) << qint64{0};
    QTest::newRow("an empty text") << QVariant(u""_s) << qint64{0};
    QTest::newRow("a sign alone") << QVariant(u"-"_s) << qint64{0};
    QTest::newRow("not a number") << QVariant(std::numeric_limits<double>::quiet_NaN())
                                  << qint64{0};
}

void SettingsStoreTest::readsIntegers() {
    QFETCH(QVariant, stored);
    SettingsStore store(path());
    store.setObject(stored, u"k"_s);
    QTEST(store.integerForKey(u"k"_s), "expected");
}

void SettingsStoreTest::readsReals_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<double>("expected");
    QTest::newRow("a number") << QVariant(2.5) << 2.5;
    QTest::newRow("an integer") << QVariant(3) << 3.0;
    QTest::newRow("truth") << QVariant(true) << 1.0;
    QTest::newRow("truth as the file has it") << QVariant(u"true"_s) << 1.0;
    QTest::newRow("a text") << QVariant(u"2.5"_s) << 2.5;
    QTest::newRow("the number that a text begins with") << QVariant(u"1.5wpm"_s) << 1.5;
    QTest::newRow("a fraction without a leading digit") << QVariant(u"-.5"_s) << -0.5;
    QTest::newRow("a number with a bare point") << QVariant(u"4."_s) << 4.0;
    QTest::newRow("an exponent") << QVariant(u"1e3"_s) << 1000.0;
    QTest::newRow("an exponent that is none") << QVariant(u"1e"_s) << 1.0;
    QTest::newRow("a comma ends the number") << QVariant(u"1,5"_s) << 1.0;
    QTest::newRow("a text without a number") << QVariant(u"fast"_s) << 0.0;
}

void SettingsStoreTest::readsReals() {
    QFETCH(QVariant, stored);
    SettingsStore store(path());
    store.setObject(stored, u"k"_s);
    QTEST(store.doubleForKey(u"k"_s), "expected");
}

void SettingsStoreTest::readsTexts_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("expected");
    QTest::newRow("a text") << QVariant(u"CQ"_s) << u"CQ"_s;
    QTest::newRow("a number") << QVariant(25) << u"25"_s;
    QTest::newRow("a real number") << QVariant(2.5) << u"2.5"_s;
}

void SettingsStoreTest::readsTexts() {
    QFETCH(QVariant, stored);
    SettingsStore store(path());
    store.setObject(stored, u"k"_s);
    QTEST(store.stringForKey(u"k"_s), "expected");
}

void SettingsStoreTest::readsTheFileAsPeopleWriteIt() {
    write("[General]\nspeed=25\nreal=1.5\nflag=YES\nother=NO\nmessage=CQ CQ, DE N0CALL\n");
    const SettingsStore store(path());
    QVERIFY(store.corruptFile().isNull());
    QCOMPARE(store.integerForKey(u"speed"_s), 25);
    QCOMPARE(store.doubleForKey(u"real"_s), 1.5);
    QVERIFY(store.boolForKey(u"flag"_s));
    QVERIFY(!store.boolForKey(u"other"_s));
    QCOMPARE(store.stringForKey(u"message"_s), u"CQ CQ, DE N0CALL"_s);
}

void SettingsStoreTest::keepsTheTypeOfWhatIsStored_data() {
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<bool>("truth");
    QTest::addColumn<qint64>("integer");
    QTest::addColumn<double>("real");
    QTest::newRow("truth") << QVariant(true) << true << qint64{1} << 1.0;
    QTest::newRow("untruth") << QVariant(false) << false << qint64{0} << 0.0;
    QTest::newRow("an integer") << QVariant(-3) << true << qint64{-3} << -3.0;
    QTest::newRow("a real number") << QVariant(2.75) << true << qint64{2} << 2.75;
}

void SettingsStoreTest::keepsTheTypeOfWhatIsStored() {
    QFETCH(QVariant, stored);
    {
        SettingsStore store(path());
        store.setObject(stored, u"k"_s);
        QVERIFY(store.synchronize());
    }
    const SettingsStore store(path());
    QTEST(store.boolForKey(u"k"_s), "truth");
    QTEST(store.integerForKey(u"k"_s), "integer");
    QTEST(store.doubleForKey(u"k"_s), "real");
}

void SettingsStoreTest::anAbsentValueIsNothing() {
    const SettingsStore store(path());
    QVERIFY(!store.objectForKey(u"k"_s).isValid());
    QVERIFY(!store.boolForKey(u"k"_s));
    QCOMPARE(store.integerForKey(u"k"_s), 0);
    QCOMPARE(store.doubleForKey(u"k"_s), 0.0);
    QVERIFY(store.stringForKey(u"k"_s).isNull());
}

void SettingsStoreTest::registeredDefaultsLieUnderStoredValues() {
    SettingsStore store(path());
    store.registerDefaults({{u"k"_s, 5}, {u"text"_s, u"CQ"_s}, {u"flag"_s, true}});
    QCOMPARE(store.integerForKey(u"k"_s), 5);
    QCOMPARE(store.stringForKey(u"text"_s), u"CQ"_s);
    QVERIFY(store.boolForKey(u"flag"_s));
    store.setObject(7, u"k"_s);
    QCOMPARE(store.integerForKey(u"k"_s), 7);
    store.setObject(u""_s, u"text"_s);
    QCOMPARE(store.stringForKey(u"text"_s), u""_s);
    store.setObject(false, u"flag"_s);
    QVERIFY(!store.boolForKey(u"flag"_s));
}

void SettingsStoreTest::aLaterRegistrationWins() {
    SettingsStore store(path());
    store.registerDefaults({{u"a"_s, 1}, {u"b"_s, 1}});
    store.registerDefaults({{u"b"_s, 2}, {u"c"_s, 2}});
    QCOMPARE(store.integerForKey(u"a"_s), 1);
    QCOMPARE(store.integerForKey(u"b"_s), 2);
    QCOMPARE(store.integerForKey(u"c"_s), 2);
}

void SettingsStoreTest::registeredDefaultsAreNeverWritten() {
    {
        SettingsStore store(path());
        store.registerDefaults({{u"standard"_s, 5}});
        QCOMPARE(store.integerForKey(u"standard"_s), 5);
        store.setObject(1, u"own"_s);
        QVERIFY(store.synchronize());
    }
    QVERIFY(content().contains("own=1"));
    QVERIFY(!content().contains("standard"));
}

void SettingsStoreTest::announcesAChange() {
    SettingsStore store(path());
    store.registerDefaults({{u"k"_s, 1}});
    QSignalSpy changed(&store, &SettingsStore::changed);
    connect(&store, &SettingsStore::changed, &store,
            [&](const QString& key) { QCOMPARE(store.integerForKey(key), 2); });
    store.setObject(2, u"k"_s);
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed[0][0].toString(), u"k"_s);
}

void SettingsStoreTest::announcesNoChangeWhereThereIsNone() {
    SettingsStore store(path());
    store.registerDefaults({{u"k"_s, 1}});
    QSignalSpy changed(&store, &SettingsStore::changed);
    store.setObject(1, u"k"_s);
    QVERIFY(changed.isEmpty());
    store.setObject(3, u"k"_s);
    store.setObject(3, u"k"_s);
    QCOMPARE(changed.size(), 1);
}

void SettingsStoreTest::anInvalidValueUncoversTheDefault() {
    SettingsStore store(path());
    store.registerDefaults({{u"k"_s, 1}});
    store.setObject(2, u"k"_s);
    QSignalSpy changed(&store, &SettingsStore::changed);
    store.setObject(QVariant(), u"k"_s);
    QCOMPARE(store.integerForKey(u"k"_s), 1);
    QCOMPARE(changed.size(), 1);
    QVERIFY(store.synchronize());
    QVERIFY(!content().contains("k="));
}

void SettingsStoreTest::textsComeBack_data() {
    QTest::addColumn<QString>("text");
    QTest::newRow("the tokens of messages") << u"CQ ` DE ` %^ TU"_s;
    QTest::newRow("commas") << u"a, b,c,"_s;
    QTest::newRow("quotes") << u"\"quoted\" and 'single'"_s;
    QTest::newRow("a quote alone") << u"\""_s;
    QTest::newRow("backslashes") << u"\\n \\x41 \\"_s;
    QTest::newRow("semicolons and equals signs") << u"a;b=c#d"_s;
    QTest::newRow("blanks at both ends") << u"  CQ  "_s;
    QTest::newRow("line breaks") << u"a\nb\r\nc"_s;
    QTest::newRow("beyond ASCII") << u"Grüße, 73 de Łódź 東京 😀"_s;
    QTest::newRow("control characters") << u"\x01\x1F\x7F"_s;
    QTest::newRow("what the file uses for itself") << u"@Invalid()"_s;
    QTest::newRow("an at sign") << u"@"_s;
    QTest::newRow("a section's name") << u"[General]"_s;
    QTest::newRow("all printable ASCII")
        << u" !\"#$%&'()*+,-./0123456789:;<=>?@ABCDEFGHIJKLMNOPQRSTUVWXYZ[\\]^_`abcdefghijklmnopqrs"
           "tuvwxyz{|}~"_s;
    QTest::newRow("a long text") << QString(100000, u'`');
    QTest::newRow("an empty text") << u""_s;
}

void SettingsStoreTest::textsComeBack() {
    QFETCH(QString, text);
    {
        SettingsStore store(path());
        store.setObject(text, u"k"_s);
        QCOMPARE(store.stringForKey(u"k"_s), text);
        QVERIFY(store.synchronize());
    }
    const SettingsStore store(path());
    QCOMPARE(store.stringForKey(u"k"_s), text);
    QVERIFY(store.corruptFile().isNull());
}

void SettingsStoreTest::storesInTheGeneralSection() {
    {
        SettingsStore store(path());
        store.setObject(u"usbserial-A1"_s, u"WKPortName"_s);
    }
    QCOMPARE(content(), QByteArray("[General]\nWKPortName=usbserial-A1\n"));
}

void SettingsStoreTest::writesWithinTheEventLoop() {
    SettingsStore store(path());
    store.setObject(1, u"k"_s);
    QTRY_VERIFY(content().contains("k=1"));
}

void SettingsStoreTest::makesItsDirectory() {
    const auto deep = _directory->filePath(u"a/b/quorvel.conf"_s);
    SettingsStore store(deep);
    store.setObject(1, u"k"_s);
    QVERIFY(store.synchronize());
    QVERIFY(contentOf(deep).contains("k=1"));
}

void SettingsStoreTest::aCorruptFileIsMovedAside_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a line that is no setting") << QByteArray("[General]\na=1\njunk\n");
    QTest::newRow("an unfinished section") << QByteArray("[General\na=1\n");
    QTest::newRow("prose") << QByteArray("This is not\na settings file.\n");
    QTest::newRow("zeros, as a crash leaves them") << QByteArray(4096, '\0');
    QTest::newRow("noise") << QByteArray("\x00\x01\xff\xfe\x80", 5);
}

void SettingsStoreTest::aCorruptFileIsMovedAside() {
    QFETCH(QByteArray, content);
    write(content);
    QString aside;
    {
        SettingsStore store(path());
        aside = store.corruptFile();
        QCOMPARE(store.fileName(), path());
        QVERIFY(QRegularExpression(u"^.*/quorvel\\.conf\\.corrupt-\\d{8}-\\d{6}$"_s)
                    .match(aside)
                    .hasMatch());
        QVERIFY(!QFile::exists(path()));
        QVERIFY(!store.objectForKey(u"a"_s).isValid());
        store.setObject(2, u"b"_s);
        QVERIFY(store.synchronize());
    }
    QCOMPARE(contentOf(aside), content);
    QCOMPARE(contentOf(path()), QByteArray("[General]\nb=2\n"));
    QVERIFY(SettingsStore(path()).corruptFile().isNull());
}

void SettingsStoreTest::aSoundFileStays_data() {
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("settings") << QByteArray("[General]\na=1\n");
    QTest::newRow("nothing at all") << QByteArray();
    QTest::newRow("no section") << QByteArray("a=1\n");
    QTest::newRow("comments") << QByteArray("; mine\n[General]\na=1\n");
    QTest::newRow("line ends of other systems") << QByteArray("[General]\r\na=1\r\n");
}

void SettingsStoreTest::aSoundFileStays() {
    QFETCH(QByteArray, content);
    write(content);
    const SettingsStore store(path());
    QVERIFY(store.corruptFile().isNull());
    QCOMPARE(store.fileName(), path());
    QCOMPARE(contentOf(path()), content);
}

void SettingsStoreTest::corruptFilesDoNotReplaceEachOther() {
    QSet<QString> places;
    for (int i = 0; i < 5; ++i) {
        write("junk" + QByteArray::number(i));
        const auto aside = SettingsStore(path()).corruptFile();
        QCOMPARE(contentOf(aside), "junk" + QByteArray::number(i));
        places.insert(aside);
    }
    QCOMPARE(places.size(), 5);
    QVERIFY(!QFile::exists(path()));
}

void SettingsStoreTest::aCorruptFileThatCannotBeMovedIsLeftAlone() {
    write("junk");
    const auto directory = QFile::encodeName(_directory->path());
    QCOMPARE(::chmod(QFile::encodeName(path()).constData(), 0666), 0);
    QCOMPARE(::chmod(directory.constData(), 0555), 0);
    {
        const OrdinaryUser user;
        SettingsStore store(path());
        QCOMPARE(store.corruptFile(), path());
        QCOMPARE(store.path(), path());
        QCOMPARE(store.fileName(), path() + u".new"_s);
        store.setObject(1, u"k"_s);
        QVERIFY(!store.synchronize());
        QCOMPARE(store.integerForKey(u"k"_s), 1);
    }
    QCOMPARE(::chmod(directory.constData(), 0700), 0);
    QCOMPARE(content(), QByteArray("junk"));
}

void SettingsStoreTest::anUnreadableFileIsLeftAlone() {
    write("[General]\nk=1\n");
    QCOMPARE(::chmod(QFile::encodeName(path()).constData(), 0000), 0);
    QCOMPARE(::chmod(QFile::encodeName(_directory->path()).constData(), 0777), 0);
    {
        const OrdinaryUser user;
        SettingsStore store(path());
        QVERIFY(store.corruptFile().isNull());
        QCOMPARE(store.path(), path());
        QCOMPARE(store.fileName(), path() + u".new"_s);
        store.setObject(2, u"k"_s);
        static_cast<void>(store.synchronize());
        QCOMPARE(store.integerForKey(u"k"_s), 2);
    }
    QCOMPARE(::chmod(QFile::encodeName(path()).constData(), 0600), 0);
    QCOMPARE(content(), QByteArray("[General]\nk=1\n"));
}

void SettingsStoreTest::saysThatItCannotWrite() {
    SettingsStore store(_directory->path());
    store.setObject(1, u"k"_s);
    QVERIFY(!store.synchronize());
    QCOMPARE(store.integerForKey(u"k"_s), 1);
}

static const RegisteredTest<SettingsStoreTest> registered;
#include "SettingsStoreTest.moc"
