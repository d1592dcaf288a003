#include "app/SettingsFileAlert.h"

#include "platform/SettingsStore.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/RegisteredTest.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <chrono>
#include <memory>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

class SettingsFileAlertTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void aSoundFileIsNotSpokenOf();
    void aMissingFileIsNotSpokenOf();
    void namesWhereTheFileIsNow();
    void saysThatAFileWasLeftInPlace();
    void saysThatAFileMayNotBeRead();
    void namesWhatWillBeLost();
    void namesSomeOfWhatWillBeLost();
    void namesWhereADamagedFileIsNow();

  private:
    void write(const QByteArray& content) const;
    [[nodiscard]] QString path() const { return _directory->filePath(u"quorvel.conf"_s); }
    void setMode(const QString& file, mode_t mode) const;

    std::unique_ptr<QTemporaryDir> _directory;
};

void SettingsFileAlertTest::init() {
    _directory = std::make_unique<QTemporaryDir>();
}

void SettingsFileAlertTest::cleanup() {
    setMode(_directory->path(), 0700);
    _directory.reset();
}

void SettingsFileAlertTest::write(const QByteArray& content) const {
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

void SettingsFileAlertTest::setMode(const QString& file, mode_t mode) const {
    QCOMPARE(::chmod(QFile::encodeName(file).constData(), mode), 0);
}

void SettingsFileAlertTest::aSoundFileIsNotSpokenOf() {
    write("[General]\nMyCall=N0CALL\n");
    QVERIFY(!settingsFileAlert(SettingsStore(path())));
}

void SettingsFileAlertTest::aMissingFileIsNotSpokenOf() {
    QVERIFY(!settingsFileAlert(SettingsStore(path())));
}

void SettingsFileAlertTest::namesWhereTheFileIsNow() {
    write("junk");
    const SettingsStore store(path());
    const auto alert = settingsFileAlert(store);
    QVERIFY(alert.has_value());
    QCOMPARE(alert->messageText, u"Your settings could not be read."_s);
    QVERIFY(alert->informativeText.contains(store.corruptFile()));
    QVERIFY(alert->informativeText.contains(u"Nothing of it is lost"));
    QVERIFY(QFile::exists(store.corruptFile()));
}

void SettingsFileAlertTest::saysThatAFileWasLeftInPlace() {
    write("junk");
    setMode(path(), 0666);
    setMode(_directory->path(), 0555);
    const OrdinaryUser user;
    const auto alert = settingsFileAlert(SettingsStore(path()));
    QVERIFY(alert.has_value());
    QVERIFY(alert->informativeText.contains(path() + u" that is no setting"_s));
    QVERIFY(alert->informativeText.contains(u"could not be put aside"));
    QVERIFY(alert->informativeText.contains(path() + u".new"_s));
}

void SettingsFileAlertTest::saysThatAFileMayNotBeRead() {
    write("[General]\nMyCall=N0CALL\n");
    setMode(path(), 0000);
    setMode(_directory->path(), 0777);
    const OrdinaryUser user;
    const auto alert = settingsFileAlert(SettingsStore(path()));
    QVERIFY(alert.has_value());
    QVERIFY(alert->informativeText.startsWith(u"You may not read "_s + path()));
    QVERIFY(alert->informativeText.contains(path() + u".new"_s));
}

void SettingsFileAlertTest::namesWhatWillBeLost() {
    SettingsStore store(path(), std::chrono::milliseconds{20});
    QVERIFY(!settingsNotStoredAlert(store));
    QVERIFY(QDir().mkdir(path()));
    store.setObject(u"N0CALL"_s, u"MyCall"_s);
    store.setObject(25, u"Speed"_s);
    QTRY_VERIFY(settingsNotStoredAlert(store));
    const auto alert = settingsNotStoredAlert(store);
    QCOMPARE(alert->messageText, u"Your settings cannot be stored."_s);
    QCOMPARE(alert->informativeText,
             u"%1 cannot be written: Is a directory. What is not stored holds until you quit, "
             "and is lost then unless it can be stored before: MyCall, Speed."_s.arg(path()));
    QVERIFY(QDir().rmdir(path()));
    QTRY_VERIFY(!settingsNotStoredAlert(store));
}

void SettingsFileAlertTest::namesSomeOfWhatWillBeLost() {
    SettingsStore store(path(), std::chrono::milliseconds{20});
    QVERIFY(QDir().mkdir(path()));
    for (char16_t letter = u'a'; letter < u'a' + 20; ++letter) {
        store.setObject(1, QString(letter));
    }
    QTRY_VERIFY(settingsNotStoredAlert(store));
    QVERIFY(settingsNotStoredAlert(store)->informativeText.endsWith(
        u"before: a, b, c, d, e, f, g, h \u2026 (20 in all)."_s));
}

void SettingsFileAlertTest::namesWhereADamagedFileIsNow() {
    write("[General]\nMyCall=N0CALL\n");
    SettingsStore store(path(), std::chrono::milliseconds{20});
    QVERIFY(!settingsDamagedAlert(store));
    QVERIFY(QFile::remove(path()));
    write("[General]\nMyCall=\"N0CALL\n");
    QTRY_VERIFY(settingsDamagedAlert(store));
    const auto alert = settingsDamagedAlert(store);
    QCOMPARE(alert->messageText, u"Your settings were damaged by another program."_s);
    QCOMPARE(alert->informativeText,
             u"A quotation mark in %1 is not closed. Nothing of it is lost: it is now %2. Of what "
             "cannot be read, the last settings hold, and have been stored anew."_s.arg(
                 path(), store.corruptFile()));
}

static const RegisteredTest<SettingsFileAlertTest> registered;
#include "SettingsFileAlertTest.moc"
