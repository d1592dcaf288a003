#include "keyer/KeyerSettings.h"
#include "preferences/KeyerNotice.h"
#include "preferences/PreferencesWinKeyerViewController.h"
#include "preferences/binding/ExplanationLine.h"
#include "tests/keyer/EngineBench.h"
#include "tests/preferences/PaneOperator.h"
#include "tests/support/RegisteredTest.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QHash>
#include <QLabel>
#include <QRegularExpression>
#include <QSet>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextDocument>
#include <QToolButton>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

/// The keyer's pane as the operator finds it: that it fits, and can be read and reached.
class PreferencesWinKeyerPaneLayoutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init();
    void cleanup();

    void itFitsTheSmallestScreen_data();
    void itFitsTheSmallestScreen();
    void eachPageHasItsOwnMnemonics();
    void everyControlIsNamedByItsLabel();
    void everyControlTellsWhatItDoes();
    void everyExplanationHasItsLine_data();
    void everyExplanationHasItsLine();
    void everyTabTellsThatNoKeyerIsConnected();
    void resetButtonsReadLikeSentences();
    void tabReachesEveryControl();

  private:
    [[nodiscard]] QWidget& view() { return *_controller->view(); }
    /// The pane as it is with a font of that size.
    void open(int pointSize);
    [[nodiscard]] QTabWidget& pages() { return *view().findChild<QTabWidget*>(); }

    std::optional<EngineBench> _bench;
    std::optional<PreferencesWinKeyerViewController> _controller;
    std::optional<PaneOperator> _operator;
};

namespace {

QString nameOf(QWidget* widget) {
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

bool isLabelledBy(QWidget* widget, QWidget* label) {
    const auto relations =
        QAccessible::queryAccessibleInterface(widget)->relations(QAccessible::Label);
    return std::ranges::any_of(relations,
                               [label](const auto& each) { return each.first->object() == label; });
}

/// Also where it stands behind the text, as in Japanese; of which the toolkit takes the mark alone
/// for a name.
QString withoutMnemonic(QString text) {
    static const QRegularExpression mark(u"\\(&?\\w\\)$|&"_s);
    return text.remove(mark);
}

/// What a text has behind its ampersand, if it has one.
QString mnemonicOf(const QString& text) {
    return QKeySequence::mnemonic(text).toString();
}

} // namespace

void PreferencesWinKeyerPaneLayoutTest::init() {
    _bench.emplace();
    QVERIFY(_bench->connect());
    _controller.emplace(_bench->engine());
    _operator.emplace(view());
}

void PreferencesWinKeyerPaneLayoutTest::cleanup() {
    _operator.reset();
    _controller.reset();
    _bench.reset();
    QApplication::setFont(QFont(), "QWidget");
    QApplication::setLayoutDirection(Qt::LeftToRight);
}

void PreferencesWinKeyerPaneLayoutTest::open(int pointSize) {
    auto font = QApplication::font();
    font.setPointSize(pointSize);
    QApplication::setFont(font, "QWidget");
    _operator.reset();
    _controller.emplace(_bench->engine()); // opened with that font
    _operator.emplace(view());
    view().adjustSize();
}

void PreferencesWinKeyerPaneLayoutTest::itFitsTheSmallestScreen_data() {
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<Qt::LayoutDirection>("direction");
    for (const auto size : {9, 10, 14}) {
        QTest::addRow("%d pt", size) << size << Qt::LeftToRight;
        QTest::addRow("%d pt from the right", size) << size << Qt::RightToLeft;
    }
}

/// A screen of 800 by 600 less a title bar, the toolbar and a panel.
void PreferencesWinKeyerPaneLayoutTest::itFitsTheSmallestScreen() {
    QFETCH(int, pointSize);
    QFETCH(Qt::LayoutDirection, direction);
    QApplication::setLayoutDirection(direction);
    for (const auto output : {WKKeyOut1Enable, WKKeyOut2Enable}) {
        _bench->settings().setObject(false, output); // which has the most to tell
    }
    QVERIFY(_bench->engine().disconnect(nullptr)); // and that
    open(pointSize);
    QVERIFY2(view().width() <= 760, qPrintable(QString::number(view().width())));
    QVERIFY2(view().height() <= 460, qPrintable(QString::number(view().height())));
    QVERIFY(pages().tabBar()->sizeHint().width() <= pages().width());
    for (int i = 0; i < pages().count(); ++i) {
        pages().setCurrentIndex(i);
        QTest::qWait(0);
        for (const auto* widget : pages().widget(i)->findChildren<QWidget*>()) {
            if (!widget->isVisible() || PaneOperator::isPart(*widget)) {
                continue;
            }
            const auto name = widget->objectName().toUtf8();
            QVERIFY2(widget->width() >= widget->minimumSizeHint().width(), name);
            QVERIFY2(widget->height() >= widget->minimumSizeHint().height(), name);
            QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()), name);
            if (widget->inherits("QCheckBox") || widget->inherits("QAbstractSpinBox") ||
                widget->inherits("QPushButton")) {
                QVERIFY2(widget->width() >= widget->sizeHint().width(), name);
            }
            if (const auto* label = qobject_cast<const QLabel*>(widget)) {
                QVERIFY2(label->heightForWidth(label->width()) <= label->height(), name);
            }
        }
    }
}

void PreferencesWinKeyerPaneLayoutTest::eachPageHasItsOwnMnemonics() {
    QStringList ofTabs;
    for (int i = 0; i < pages().count(); ++i) {
        ofTabs.append(mnemonicOf(pages().tabText(i)));
    }
    QVERIFY(!ofTabs.contains(QString()));
    for (int i = 0; i < pages().count(); ++i) {
        auto mnemonics = ofTabs;
        for (const auto* label : pages().widget(i)->findChildren<QLabel*>()) {
            if (label->buddy() != nullptr) {
                QVERIFY2(!mnemonicOf(label->text()).isEmpty(), qPrintable(label->text()));
                mnemonics.append(mnemonicOf(label->text()));
            }
        }
        for (const auto* button : pages().widget(i)->findChildren<QAbstractButton*>()) {
            const auto mnemonic = mnemonicOf(button->text());
            QVERIFY2(!mnemonic.isEmpty() || !button->inherits("QCheckBox"),
                     qPrintable(button->text()));
            if (!mnemonic.isEmpty()) {
                mnemonics.append(mnemonic);
            }
        }
        auto doubles = mnemonics;
        doubles.removeDuplicates();
        QVERIFY2(doubles.size() == mnemonics.size(), qPrintable(mnemonics.join(u' ')));
    }
}

void PreferencesWinKeyerPaneLayoutTest::everyControlIsNamedByItsLabel() {
    QHash<QWidget*, QLabel*> labels;
    for (auto* label : view().findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            labels.insert(label->buddy(), label);
        }
    }
    for (auto* widget : _operator->inputs()) {
        const auto name = widget->objectName().toUtf8();
        if (widget->isHidden()) {
            continue; // a mark that has nothing to tell
        }
        QVERIFY2(!nameOf(widget).isEmpty(), name);
        if (const auto* box = qobject_cast<QCheckBox*>(widget)) {
            QCOMPARE(withoutMnemonic(nameOf(widget)), withoutMnemonic(box->text()));
        } else if (widget->property("setting").isValid()) {
            auto* label = labels.value(widget);
            QVERIFY2(label != nullptr, name);
            // The name of a list is its entry: the label is known by its relation.
            QVERIFY2(withoutMnemonic(nameOf(widget)) == withoutMnemonic(label->text()) ||
                         isLabelledBy(widget, label),
                     name);
        }
    }
}

void PreferencesWinKeyerPaneLayoutTest::everyControlTellsWhatItDoes() {
    for (const auto* widget : _operator->inputs()) {
        const auto name = widget->objectName().toUtf8();
        const auto lines = widget->accessibleDescription().split(u'\n');
        if (widget->property("setting").isValid()) {
            // More than the range and the default, which every control tells.
            QVERIFY2(lines.size() >= 2 && lines.first().size() > 25, name);
        }
        // A plain tool tip breaks no lines by itself.
        const auto toolTip = widget->toolTip();
        QVERIFY2(!toolTip.isEmpty() || widget->isHidden(), name);
        QVERIFY2(Qt::mightBeRichText(toolTip) || toolTip.size() <= 60, name);
    }
    QVERIFY(_operator->control(WKPTTLeadTime).toolTip().contains(u"0 to 250 ms, default 0 ms"));
    QVERIFY(_operator->control(WKPaddleSwitchpoint)
                .toolTip()
                .contains(u"20 to 180 % of a dit, default 100 % of a dit"));
    for (const auto time : {WKPTTLeadTime, WKPTTTailTime}) {
        QVERIFY(_operator->control(time).toolTip().contains(u"Needs PTT enabled."));
    }
    QVERIFY(_operator->control(WKSpeedPotRange).toolTip().contains(u"more than 31 wpm"));
    QVERIFY(_operator->control(WKSerialEchoback).toolTip().contains(u"gaps"));
}

void PreferencesWinKeyerPaneLayoutTest::everyExplanationHasItsLine_data() {
    QTest::addColumn<int>("pointSize");
    for (const auto size : {9, 10, 14}) {
        QTest::addRow("%d pt", size) << size;
    }
}

/// Whoever comes to a control by keyboard reads all of it.
void PreferencesWinKeyerPaneLayoutTest::everyExplanationHasItsLine() {
    QFETCH(int, pointSize);
    open(pointSize);
    for (const auto needed : {WKSidetoneEnable, WKPTTEnable, WKEnableDitDahMemory}) {
        _bench->settings().setObject(true, needed);
    }
    _bench->settings().setObject(u"Ultimatic"_s, WKKeyMode);
    const auto& line = *view().findChild<ExplanationLine*>();
    QLabel paper;
    paper.setFont(line.font());
    paper.setWordWrap(true);
    for (const auto& setting : keyerSettings) {
        for (auto* control : _operator->controls(setting.key)) {
            for (int i = 0; i < pages().count(); ++i) {
                if (pages().widget(i)->isAncestorOf(control)) {
                    pages().setCurrentIndex(i);
                }
            }
            control->setFocus();
            auto told = control->accessibleDescription();
            QCOMPARE(line.text(), told.replace(u'\n', u' '));
            paper.setText(line.text());
            QVERIFY2(paper.heightForWidth(line.width()) <= line.height(), setting.key.data());
        }
    }
}

void PreferencesWinKeyerPaneLayoutTest::everyTabTellsThatNoKeyerIsConnected() {
    const auto& notice = *view().findChild<KeyerNotice*>();
    for (int i = 0; i < pages().count(); ++i) {
        pages().setCurrentIndex(i);
        QVERIFY(notice.text().isEmpty());
    }
    QVERIFY(_bench->engine().disconnect(nullptr));
    for (int i = 0; i < pages().count(); ++i) {
        pages().setCurrentIndex(i);
        QCOMPARE(notice.text(), u"Not connected"_s);
        QTRY_VERIFY(notice.isVisible() && notice.width() >= notice.sizeHint().width());
    }
}

void PreferencesWinKeyerPaneLayoutTest::resetButtonsReadLikeSentences() {
    QCOMPARE(nameOf(&_operator->resetButton(WKSidetoneEnable)),
             u"Reset “Sidetone on” to its default, on"_s);
    QCOMPARE(nameOf(&_operator->resetButton(WKWeighting)), u"Reset Weighting to 0 %"_s);
    QCOMPARE(nameOf(&_operator->resetButton(WKKeyMode)), u"Reset Key mode to Iambic A"_s);
}

void PreferencesWinKeyerPaneLayoutTest::tabReachesEveryControl() {
    _bench->settings().setObject(true, WKPTTEnable);
    _bench->settings().setObject(u"Ultimatic"_s, WKKeyMode);
    for (int i = 0; i < pages().count(); ++i) {
        pages().setCurrentIndex(i);
        QSet<QWidget*> missing;
        for (auto* widget : _operator->inputs()) {
            if (widget->isVisible() && widget->isEnabled()) {
                missing.insert(widget);
            }
        }
        QVERIFY(!missing.isEmpty());
        pages().setFocus();
        for (auto steps = 3 * missing.size() + 20; steps > 0; --steps) {
            missing.remove(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QVERIFY2(missing.isEmpty(),
                 missing.isEmpty() ? "" : qPrintable((*missing.begin())->objectName()));
    }
}

static const RegisteredTest<PreferencesWinKeyerPaneLayoutTest> registered;
#include "PreferencesWinKeyerPaneLayoutTest.moc"
