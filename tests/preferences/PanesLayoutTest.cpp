#include "preferences/PreferencesGeneralViewController.h"
#include "preferences/PreferencesMessagesViewController.h"
#include "tests/keyer/EngineBench.h"
#include "tests/support/RegisteredTest.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QTest>

#include <algorithm>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

/// The panes of one page as the operator finds them: that they fit, and what Alt finds in them. Run
/// once more in each language.
class PanesLayoutTest : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { _bench.emplace(); }
    void cleanup();

    void nothingIsCutOff_data();
    void nothingIsCutOff();
    void eachPaneHasItsOwnMnemonics_data() { addPanes(); }
    void eachPaneHasItsOwnMnemonics();

  private:
    enum class Pane { General, Messages };

    static void addPanes();
    void open(Pane pane);

    std::optional<EngineBench> _bench;
    std::unique_ptr<MBPreferencesModule> _pane;
};

void PanesLayoutTest::cleanup() {
    _pane.reset();
    _bench.reset();
    QApplication::setFont(QFont(), "QWidget");
}

void PanesLayoutTest::addPanes() {
    QTest::addColumn<int>("pane");
    QTest::newRow("General") << static_cast<int>(Pane::General);
    QTest::newRow("Messages") << static_cast<int>(Pane::Messages);
}

/// Without a keyer, which they tell.
void PanesLayoutTest::open(Pane pane) {
    auto& engine = _bench->engine();
    if (pane == Pane::General) {
        _pane = std::make_unique<PreferencesGeneralViewController>(engine);
    } else {
        _pane = std::make_unique<PreferencesMessagesViewController>(engine);
    }
    _pane->view()->show();
    QVERIFY(QTest::qWaitForWindowActive(_pane->view()));
}

void PanesLayoutTest::nothingIsCutOff_data() {
    QTest::addColumn<int>("pane");
    QTest::addColumn<int>("pointSize");
    for (const auto size : {9, 10, 14}) {
        QTest::addRow("General, %d pt", size) << static_cast<int>(Pane::General) << size;
        QTest::addRow("Messages, %d pt", size) << static_cast<int>(Pane::Messages) << size;
    }
}

/// On a screen of 800 by 600 less a title bar, the toolbar and a panel, with the longest
/// explanation. Whoever has a larger font has a higher screen.
void PanesLayoutTest::nothingIsCutOff() {
    QFETCH(int, pane);
    QFETCH(int, pointSize);
    auto font = QApplication::font();
    font.setPointSize(pointSize);
    QApplication::setFont(font, "QWidget");
    open(static_cast<Pane>(pane));
    auto& view = *_pane->view();
    int count = 0;
    for (auto* control : view.findChildren<QWidget*>()) {
        if (!control->property("setting").isValid()) {
            continue;
        }
        control->setFocus();
        // As the window of the preferences does.
        view.resize(view.size().expandedTo(view.minimumSizeHint()));
        view.resize(view.width(), std::max(view.height(), view.heightForWidth(view.width())));
        QCoreApplication::processEvents();
        QVERIFY2(view.width() <= 760 && view.height() <= (pointSize > 10 ? 600 : 460),
                 qPrintable(u"%1 x %2"_s.arg(view.width()).arg(view.height())));
        for (const auto* widget : view.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            const auto name = widget->objectName().toUtf8();
            const auto* label = qobject_cast<const QLabel*>(widget);
            const auto wanted = label != nullptr && label->wordWrap()
                                    ? QSize(0, label->heightForWidth(label->width()))
                                    : widget->minimumSizeHint();
            QVERIFY2(!widget->isVisible() ||
                         (widget->width() >= wanted.width() && widget->height() >= wanted.height()),
                     name);
            QVERIFY2(!widget->isVisible() || view.rect().contains(widget->geometry()), name);
        }
        ++count;
    }
    QVERIFY(count >= 3);
}

void PanesLayoutTest::eachPaneHasItsOwnMnemonics() {
    QFETCH(int, pane);
    open(static_cast<Pane>(pane));
    QStringList mnemonics;
    for (const auto* label : _pane->view()->findChildren<QLabel*>()) {
        if (label->buddy() != nullptr) {
            mnemonics.append(QKeySequence::mnemonic(label->text()).toString());
            QVERIFY2(!mnemonics.last().isEmpty(), qPrintable(label->text()));
        }
    }
    QVERIFY(mnemonics.size() >= 3);
    auto once = mnemonics;
    QVERIFY2(once.removeDuplicates() == 0, qPrintable(mnemonics.join(u' ')));
}

static const RegisteredTest<PanesLayoutTest> registered;
#include "PanesLayoutTest.moc"
