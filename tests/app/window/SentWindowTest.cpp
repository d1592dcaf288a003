#include "app/window/SentWindow.h"

#include "app/window/SentModel.h"
#include "keyer/MessageSettings.h"
#include "record/RecordFile.h"
#include "record/RecordSettings.h"
#include "record/RecordStore.h"
#include "record/RunText.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/LogKeeper.h"
#include "tests/support/RegisteredTest.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 60'000;

} // namespace

class SentWindowTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void theNewestRunIsOnTop();
    void aRunIsShownAsItEnds();
    void theOldestGoesAndTheChoiceStays_data();
    void theOldestGoesAndTheChoiceStays();
    void whatIsFarDownIsReadWhenItIsLookedAt();
    void wordsAreLookedFor();
    void aSearchIsLive();
    void whatIsTypedIntoTheListIsLookedFor();
    void noKeySends_data();
    void noKeySends();
    void aDoubleClickSendsNothing();
    void sendAgainSendsAllOfTheText();
    void aDoubleClickOnSendAgainSendsOnce();
    void aSpaceBehindSendAgainSendsNothing();
    void withoutAKeyerNothingIsSent();
    void severalLinesAreNotSent();
    void aMessageIsMadeOfALine();
    void aMessageIsReplacedWhenTheOperatorSaysSo();
    void linesAreCopied();
    void theTableIsSaved();
    void aTableTellsWhatItLacks();
    void theSettingsAreThere();
    void anOtherFileIsShownAnew();
    void escapeClosesIt();
    void everyControlHasAName();

  private:
    void store(const QString& text, const QString& rest = {});
    void show();
    void waitForTexts(const QStringList& texts);
    [[nodiscard]] QStringList texts();
    template <typename Widget>
    [[nodiscard]] Widget& find(const QString& name) {
        return *_window->findChild<Widget*>(name);
    }
    [[nodiscard]] QTableView& table() { return find<QTableView>(u"sentTable"_s); }
    [[nodiscard]] QPushButton& sendAgain() { return find<QPushButton>(u"sendAgainButton"_s); }
    void press(Qt::Key key) { QTest::keyClick(_window->windowHandle(), key); }

    std::optional<EngineBench> _bench;
    std::optional<QTemporaryDir> _directory;
    std::optional<RecordStore> _store;
    std::optional<SentWindow> _window;
    QStringList _sent;
    std::atomic<qint64> _now;
};

void SentWindowTest::init() {
    _sent.clear();
    _bench.emplace();
    _bench->settings().registerDefaults(defaultsOf(recordSettings));
    QVERIFY(_bench->connect());
    _directory.emplace();
    _now = 1000;
    _store.emplace(_directory->filePath(u"sent.db"_s), [this] { return _now.load(); });
    _window.emplace(_bench->engine(), *_store, nullptr);
    QObject::connect(&*_window, &SentWindow::sendRequested, &*_window,
                     [this](const QString& text) { _sent.append(text); });
}

void SentWindowTest::cleanup() {
    _window.reset();
    _store.reset();
    _directory.reset();
    _bench.reset();
}

void SentWindowTest::store(const QString& text, const QString& rest) {
    QSignalSpy grown(&*_store, &RecordStore::grown);
    _store->append({.begun = _now, .text = text, .rest = rest});
    QTRY_VERIFY_WITH_TIMEOUT(!grown.isEmpty(), patience);
}

void SentWindowTest::show() {
    _window->look();
    _window->show();
    QVERIFY(QTest::qWaitForWindowActive(&*_window));
}

QStringList SentWindowTest::texts() {
    QStringList all;
    for (int row = 0; row < table().model()->rowCount(); ++row) {
        all.append(table().model()->index(row, RunText::Text).data().toString());
    }
    return all;
}

void SentWindowTest::waitForTexts(const QStringList& texts) {
    QTRY_COMPARE_WITH_TIMEOUT(this->texts(), texts, patience);
}

void SentWindowTest::theNewestRunIsOnTop() {
    store(u"A"_s);
    store(u"B"_s);
    show();
    waitForTexts({u"B"_s, u"A"_s});
    QCOMPARE(find<QLabel>(u"sentCountLabel"_s).text(), u"2 sent"_s);
    QCOMPARE(table().model()->index(0, RunText::Begun).data(), u"1970-01-01 00:00:01"_s);
    QCOMPARE(table().model()->index(0, RunText::Ending).data(), u"Sent"_s);
}

void SentWindowTest::aRunIsShownAsItEnds() {
    show();
    store(u"A"_s);
    waitForTexts({u"A"_s});
    table().selectRow(0);
    store(u"B"_s);
    waitForTexts({u"B"_s, u"A"_s});
    // What was chosen is still what it was.
    QCOMPARE(table().selectionModel()->selectedRows().value(0).row(), 1);
}

void SentWindowTest::theOldestGoesAndTheChoiceStays_data() {
    QTest::addColumn<QString>("words");
    QTest::newRow("all are shown") << QString();
    QTest::newRow("those that were found") << u"CQ"_s;
}

/// Else Send Again would send another line than the one that was chosen.
void SentWindowTest::theOldestGoesAndTheChoiceStays() {
    QFETCH(const QString, words);
    constexpr qint64 day = 86'400'000;
    _store->keepDays(1);
    store(u"CQ A"_s);
    _now = day;
    store(u"CQ B"_s);
    store(u"CQ C"_s);
    show();
    find<QLineEdit>(u"sentSearchField"_s).setText(words);
    waitForTexts({u"CQ C"_s, u"CQ B"_s, u"CQ A"_s});
    table().selectRow(1);
    _now = day + 2000;
    store(u"CQ D"_s);
    waitForTexts({u"CQ D"_s, u"CQ C"_s, u"CQ B"_s});
    QCOMPARE(table().selectionModel()->selectedRows().value(0).row(), 2);
}

void SentWindowTest::whatIsFarDownIsReadWhenItIsLookedAt() {
    for (int i = 0; i < 900; ++i) {
        _store->append({.begun = 1000, .text = QString::number(i)});
    }
    store(u"LAST"_s);
    show();
    QTRY_COMPARE_WITH_TIMEOUT(table().model()->rowCount(), 901, patience);
    const auto oldest = table().model()->index(900, RunText::Text);
    QTRY_COMPARE_WITH_TIMEOUT(oldest.data().toString(), u"0"_s, patience);
}

void SentWindowTest::wordsAreLookedFor() {
    store(u"CQ TEST"_s);
    store(u"TU"_s);
    show();
    waitForTexts({u"TU"_s, u"CQ TEST"_s});
    auto& search = find<QLineEdit>(u"sentSearchField"_s);
    search.setText(u"test"_s);
    waitForTexts({u"CQ TEST"_s});
    QCOMPARE(find<QLabel>(u"sentCountLabel"_s).text(), u"1 found"_s);
    search.setText(u"nowhere"_s);
    waitForTexts({});
    QTRY_COMPARE_WITH_TIMEOUT(find<QLabel>(u"sentCountLabel"_s).text(), u"0 found"_s, patience);
    search.clear();
    waitForTexts({u"TU"_s, u"CQ TEST"_s});
}

void SentWindowTest::aSearchIsLive() {
    store(u"CQ 1"_s);
    show();
    find<QLineEdit>(u"sentSearchField"_s).setText(u"cq"_s);
    QTRY_COMPARE_WITH_TIMEOUT(find<QLabel>(u"sentCountLabel"_s).text(), u"1 found"_s, patience);
    store(u"TU"_s);
    store(u"CQ 2"_s);
    waitForTexts({u"CQ 2"_s, u"CQ 1"_s});
}

void SentWindowTest::whatIsTypedIntoTheListIsLookedFor() {
    store(u"CQ"_s);
    store(u"TU"_s);
    show();
    waitForTexts({u"TU"_s, u"CQ"_s});
    table().setFocus();
    press(Qt::Key_C);
    press(Qt::Key_Q);
    QCOMPARE(find<QLineEdit>(u"sentSearchField"_s).text(), u"cq"_s);
    waitForTexts({u"CQ"_s});
}

void SentWindowTest::noKeySends_data() {
    QTest::addColumn<QString>("focus");
    QTest::newRow("in the list") << u"sentTable"_s;
    QTest::newRow("in the search field") << u"sentSearchField"_s;
    QTest::newRow("on the check box") << u"keepRecordButton"_s;
}

void SentWindowTest::noKeySends() {
    QFETCH(QString, focus);
    store(u"CQ"_s);
    show();
    waitForTexts({u"CQ"_s});
    static_cast<void>(_bench->written());
    QVERIFY(sendAgain().isEnabled());
    QVERIFY(sendAgain().shortcut().isEmpty());
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_F1, Qt::Key_S,
                           Qt::Key_A, Qt::Key_Delete, Qt::Key_Insert}) {
        find<QWidget>(focus).setFocus();
        press(key);
    }
    QCOMPARE(_sent, QStringList());
    QCOMPARE(_bench->written(), QByteArray());
}

void SentWindowTest::aDoubleClickSendsNothing() {
    store(u"CQ"_s);
    show();
    waitForTexts({u"CQ"_s});
    const auto place = table().visualRect(table().model()->index(0, RunText::Text)).center();
    QTest::mouseClick(table().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(table().viewport(), Qt::LeftButton, {}, place);
    press(Qt::Key_Return);
    QCOMPARE(_sent, QStringList());
}

void SentWindowTest::sendAgainSendsAllOfTheText() {
    store(u"CQ T"_s, u"EST K"_s);
    show();
    waitForTexts({u"CQ T"_s});
    sendAgain().click();
    QCOMPARE(_sent, QStringList{u"CQ TEST K"_s});
}

/// As after a double click on an icon, by habit.
void SentWindowTest::aDoubleClickOnSendAgainSendsOnce() {
    store(u"CQ"_s);
    show();
    waitForTexts({u"CQ"_s});
    const auto place = sendAgain().mapTo(&*_window, sendAgain().rect().center());
    QTest::mouseClick(_window->windowHandle(), Qt::LeftButton, {}, place);
    QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval - 60;
    QTest::mouseClick(_window->windowHandle(), Qt::LeftButton, {}, place);
    QCOMPARE(_sent, QStringList({u"CQ"_s}));
}

void SentWindowTest::aSpaceBehindSendAgainSendsNothing() {
    store(u"CQ"_s);
    show();
    waitForTexts({u"CQ"_s});
    QTest::mouseClick(&sendAgain(), Qt::LeftButton);
    press(Qt::Key_Space);
    QCOMPARE(_sent.size(), 1);
    // By the keyboard once.
    sendAgain().setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    press(Qt::Key_Space);
    QCOMPARE(_sent.size(), 2);
}

void SentWindowTest::withoutAKeyerNothingIsSent() {
    store(u"CQ"_s);
    show();
    waitForTexts({u"CQ"_s});
    QVERIFY(sendAgain().isEnabled());
    _bench->engine().disconnect(nullptr);
    QVERIFY(!sendAgain().isEnabled());
    QVERIFY(find<QPushButton>(u"makeMessageButton"_s).isEnabled());
}

void SentWindowTest::severalLinesAreNotSent() {
    store(u"A"_s);
    store(u"B"_s);
    show();
    waitForTexts({u"B"_s, u"A"_s});
    table().selectAll();
    QVERIFY(!sendAgain().isEnabled());
    QVERIFY(find<QPushButton>(u"copySentButton"_s).isEnabled());
}

void SentWindowTest::aMessageIsMadeOfALine() {
    store(u"TU 73"_s);
    _bench->settings().setObject(u""_s, messageSettings[2].textKey);
    show();
    waitForTexts({u"TU 73"_s});
    auto& menu = *find<QPushButton>(u"makeMessageButton"_s).menu();
    QCOMPARE(menu.actions().size(), 8);
    menu.actions().at(2)->trigger();
    QCOMPARE(_bench->settings().stringForKey(messageSettings[2].textKey), u"TU 73"_s);
    QVERIFY(_bench->platform().application().alerts().isEmpty());
}

void SentWindowTest::aMessageIsReplacedWhenTheOperatorSaysSo() {
    store(u"TU 73"_s);
    show();
    waitForTexts({u"TU 73"_s});
    auto& menu = *find<QPushButton>(u"makeMessageButton"_s).menu();
    auto& application = _bench->platform().application();
    const auto before = _bench->settings().stringForKey(messageSettings[0].textKey);
    menu.actions().at(0)->trigger();
    QCOMPARE(application.alerts().size(), 1);
    QCOMPARE(application.alerts()[0].messageText, u"Replace the text of F1?"_s);
    QCOMPARE(_bench->settings().stringForKey(messageSettings[0].textKey), before);
    application.answerNext(AlertAnswer::Alternate);
    menu.actions().at(0)->trigger();
    QCOMPARE(_bench->settings().stringForKey(messageSettings[0].textKey), u"TU 73"_s);
}

void SentWindowTest::linesAreCopied() {
    store(u"A"_s);
    store(u"B"_s);
    show();
    waitForTexts({u"B"_s, u"A"_s});
    table().selectAll();
    find<QPushButton>(u"copySentButton"_s).click();
    QTRY_COMPARE_WITH_TIMEOUT(QGuiApplication::clipboard()->text(),
                              u"1970-01-01 00:00:01\tB\t\tTyped\tSent\n"
                              "1970-01-01 00:00:01\tA\t\tTyped\tSent"_s,
                              patience);
}

void SentWindowTest::theTableIsSaved() {
    store(u"CQ"_s);
    store(u"TU"_s);
    show();
    waitForTexts({u"TU"_s, u"CQ"_s});
    const auto save = [this](const QString& name) {
        const auto path = _directory->filePath(name);
        _window->save(path);
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path), patience);
        QTRY_COMPARE_WITH_TIMEOUT(find<QLabel>(u"sentCountLabel"_s).text(),
                                  u"Saved as %1"_s.arg(path), patience);
    };
    save(u"all.csv"_s);
    find<QLineEdit>(u"sentSearchField"_s).setText(u"tu"_s);
    waitForTexts({u"TU"_s});
    save(u"some.csv"_s);
    QFile all(_directory->filePath(u"all.csv"_s));
    QFile some(_directory->filePath(u"some.csv"_s));
    QVERIFY(all.open(QIODevice::ReadOnly) && some.open(QIODevice::ReadOnly));
    QCOMPARE(all.readAll().count('\n'), 3);
    const auto found = some.readAll();
    QVERIFY(found.contains(",TU,") && !found.contains(",CQ,"));
}

/// The record is damaged where nobody has looked yet; what is shown then is the new one.
void SentWindowTest::aTableTellsWhatItLacks() {
    const QList<RecordedRun> runs(2000, {.begun = 1, .text = QString(100, u'E')});
    QVERIFY(RecordFile(_store->path()).append(runs, 0));
    QFile file(_store->path());
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.seek(file.size() / 2);
    file.write(QByteArray(static_cast<qsizetype>(file.size() / 4), '\x55'));
    file.close();
    show();
    QTRY_COMPARE_WITH_TIMEOUT(table().model()->rowCount(), 2000, patience);
    const LogKeeper log;
    const auto path = _directory->filePath(u"all.csv"_s);
    _window->save(path);
    const auto& label = find<QLabel>(u"sentCountLabel"_s);
    QTRY_VERIFY_WITH_TIMEOUT(label.text().startsWith(u"Saved as %1, without "_s.arg(path)),
                             patience);
    QCOMPARE(table().model()->rowCount(), 0);
    QFile saved(path);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    const auto lines = saved.readAll().count('\n') - 1;
    QVERIFY(label.text().contains(u' ' + QLocale().toString(2000 - lines) + u' '));
}

void SentWindowTest::theSettingsAreThere() {
    auto& keep = find<QCheckBox>(u"keepRecordButton"_s);
    auto& age = find<QComboBox>(u"recordAgePopUp"_s);
    QVERIFY(keep.isChecked());
    QCOMPARE(age.currentText(), u"1 year"_s);
    keep.click();
    QVERIFY(!_bench->settings().boolForKey(KeepRecord));
    QVERIFY(!age.isEnabled());
    _bench->settings().setObject(true, KeepRecord);
    QVERIFY(keep.isChecked() && age.isEnabled());
    age.setCurrentIndex(0);
    QCOMPARE(_bench->settings().stringForKey(RecordAge.key), u"1 month"_s);
    _bench->settings().setObject(u"some day"_s, RecordAge.key);
    QCOMPARE(age.currentText(), u"1 year"_s);
    QCOMPARE(_bench->settings().stringForKey(RecordAge.key), u"some day"_s);
}

void SentWindowTest::anOtherFileIsShownAnew() {
    store(u"A"_s);
    store(u"B"_s);
    show();
    waitForTexts({u"B"_s, u"A"_s});
    QVERIFY(QFile::remove(_store->path()));
    store(u"C"_s);
    waitForTexts({u"C"_s});
}

void SentWindowTest::escapeClosesIt() {
    show();
    press(Qt::Key_Escape);
    QTRY_VERIFY(!_window->isVisible());
}

void SentWindowTest::everyControlHasAName() {
    for (const auto* each : _window->findChildren<QWidget*>()) {
        const bool isOwn =
            !each->objectName().isEmpty() && !each->objectName().startsWith(u"qt_"_s);
        if (isOwn && (each->focusPolicy() & Qt::TabFocus) != 0) {
            const auto* button = qobject_cast<const QAbstractButton*>(each);
            QVERIFY2(!each->accessibleName().isEmpty() ||
                         (button != nullptr && !button->text().isEmpty()),
                     qPrintable(each->objectName()));
        }
    }
}

static const RegisteredTest<SentWindowTest> registered;
#include "SentWindowTest.moc"
