#include "tests/app/window/MainWindowFixture.h"
#include "tests/support/RegisteredTest.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>

using namespace Qt::StringLiterals;

/// The letters behind which Alt finds a menu, a field or an entry. Run once more in each language.
class MainWindowMnemonicsTest : public QObject, private MainWindowFixture {
    Q_OBJECT

  private Q_SLOTS:
    void init() { open(); }
    void cleanup() { close(); }

    void everyEntryOfAMenuHasItsOwn();
    void noLetterChoosesWhatSends();
    void everyMenuAndEveryFieldHasItsOwn();

  private:
    static void expectDifferent(const QList<QKeySequence>& keys);
};

void MainWindowMnemonicsTest::expectDifferent(const QList<QKeySequence>& keys) {
    QStringList names;
    for (const auto& each : keys) {
        names.append(each.toString());
    }
    auto once = names;
    QVERIFY2(once.removeDuplicates() == 0, qPrintable(names.join(u' ')));
}

void MainWindowMnemonicsTest::everyEntryOfAMenuHasItsOwn() {
    const auto menus = _window->menuBar()->findChildren<QMenu*>();
    QVERIFY(menus.size() >= 6);
    for (const auto* menu : menus) {
        QList<QKeySequence> keys;
        for (const auto* action : menu->actions()) {
            if (const auto key = QKeySequence::mnemonic(action->text()); !key.isEmpty()) {
                keys.append(key);
            }
        }
        QVERIFY2(!keys.isEmpty(), qPrintable(menu->title()));
        expectDifferent(keys);
    }
}

/// It would be a dead one: a letter may have been typed as text.
void MainWindowMnemonicsTest::noLetterChoosesWhatSends() {
    int count = 0;
    for (const auto* action : _window->findChildren<QAction*>()) {
        if (action->property("sends").toBool()) {
            ++count;
            QVERIFY2(QKeySequence::mnemonic(action->text()).isEmpty(), qPrintable(action->text()));
        }
    }
    QCOMPARE(count, 14);
}

/// With Alt they are all one's, and so are the shortcuts that have it.
void MainWindowMnemonicsTest::everyMenuAndEveryFieldHasItsOwn() {
    QList<QKeySequence> keys;
    for (const auto* action : _window->menuBar()->actions()) {
        keys.append(QKeySequence::mnemonic(action->text()));
        QVERIFY2(!keys.last().isEmpty(), qPrintable(action->text()));
    }
    for (const auto* label : _window->findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            keys.append(QKeySequence::mnemonic(label->text()));
            QVERIFY2(!keys.last().isEmpty(), qPrintable(label->text()));
        }
    }
    for (const auto* action : _window->findChildren<QAction*>()) {
        if (action->shortcut().toString(QKeySequence::PortableText).startsWith(u"Alt+")) {
            keys.append(action->shortcut());
        }
    }
    QVERIFY(keys.size() >= 9);
    expectDifferent(keys);
}

static const RegisteredTest<MainWindowMnemonicsTest> registered;
#include "MainWindowMnemonicsTest.moc"
