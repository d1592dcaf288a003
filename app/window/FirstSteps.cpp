#include "app/window/FirstSteps.h"

#include "formatters/CallsignFormatter.h"
#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/SettingsStore.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <variant>

using namespace Qt::StringLiterals;

namespace {

constexpr int keyerStep = 1;
constexpr int callStep = 2;
constexpr int sendStep = 3;
constexpr int numberColumn = 0;
constexpr int textColumn = 1;
constexpr int controlColumn = 2;

/// Empty while the operator has not entered any.
QString ownCall() {
    const auto* const setting = std::ranges::find(generalSettings, MyCall, &Setting::key);
    const auto call = SettingsStore::standardUserDefaults().stringForKey(MyCall);
    return call == std::get<QLatin1StringView>(setting->defaultValue) ? QString() : call;
}

QLabel* makeText(const QString& text) {
    auto* label = new QLabel(text);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

FirstSteps::FirstSteps(QWidget* parent) : QFrame(parent), _grid(new QGridLayout(this)) {
    setFrameStyle(QFrame::Box | QFrame::Plain);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setAccessibleName(tr("First steps"));
    _grid->setContentsMargins(8, 6, 6, 6);
    _grid->setColumnStretch(textColumn, 1);
    addSteps();
    addButtons();
    connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
            [this](const QString& key) {
                if (key == MyCall) {
                    showCall();
                }
            });
    showCall();
    hide();
}

void FirstSteps::addSteps() {
    _keyerLabel = makeText({});
    _keyerLabel->setObjectName(u"firstStepsKeyerLabel"_s);
    auto* choose = makeButton(tr("Choose port…"), tr("Choose port"));
    choose->setObjectName(u"firstStepsPortButton"_s);
    connect(choose, &QPushButton::clicked, this, &FirstSteps::portRequested);
    addStep(keyerStep, *_keyerLabel, choose);

    _callField = new QLineEdit;
    _callField->setObjectName(u"firstStepsCallField"_s);
    _callField->setAccessibleName(tr("Your call sign"));
    _callField->setToolTip(tr("Sent for each ` in a message"));
    _callField->setValidator(new CallsignFormatter(_callField));
    connect(_callField, &QLineEdit::textChanged, this, &FirstSteps::storeCall);
    addStep(callStep, *makeText(tr("Enter your own call sign.")), _callField);

    addStep(sendStep, *makeText(tr("Press F1 to send CQ, or type. Esc stops at once.")), nullptr);
}

void FirstSteps::addStep(int number, QWidget& what, QWidget* control) {
    auto* mark = makeText({});
    mark->setObjectName(u"firstStepsMark%1"_s.arg(number));
    auto font = mark->font();
    font.setBold(true);
    mark->setFont(font);
    _grid->addWidget(mark, number, numberColumn);
    _grid->addWidget(&what, number, textColumn, 1, control == nullptr ? 2 : 1);
    if (control != nullptr) {
        _grid->addWidget(control, number, controlColumn);
    }
    markStep(number, false);
}

void FirstSteps::addButtons() {
    auto* row = new QHBoxLayout;
    _virtualKeyerButton = makeButton(tr("Try without a keyer"), tr("Try without a keyer"));
    _virtualKeyerButton->setObjectName(u"firstStepsVirtualKeyerButton"_s);
    _virtualKeyerButton->setToolTip(
        tr("Starts a keyer made of software, which keys nothing on the air"));
    _virtualKeyerButton->hide();
    connect(_virtualKeyerButton, &QPushButton::clicked, this, &FirstSteps::virtualKeyerRequested);
    auto* check = makeButton(tr("Check ports…"), tr("Check ports"));
    check->setObjectName(u"firstStepsCheckButton"_s);
    connect(check, &QPushButton::clicked, this, &FirstSteps::portCheckRequested);
    auto* close = makeButton(tr("Done"), tr("Close first steps"));
    close->setObjectName(u"firstStepsDoneButton"_s);
    connect(close, &QPushButton::clicked, this, [this] {
        hide();
        Q_EMIT done();
    });
    row->addWidget(_virtualKeyerButton);
    row->addWidget(check);
    row->addStretch();
    row->addWidget(close);
    _grid->addLayout(row, sendStep + 1, textColumn, 1, 2);
}

QPushButton* FirstSteps::makeButton(const QString& text, const QString& name) {
    auto* button = new QPushButton(text, this);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

void FirstSteps::setEngine(const WinKeyerUsb& engine) {
    const auto follow = [this, &engine] {
        const bool isConnected = engine.activity() != KeyerActivity::NotConnected;
        _keyerLabel->setText(
            isConnected ? tr("Connected to %1.").arg(engine.serialPortName())
            : engine.isAsleep()
                ? tr("Plug the keyer in, and say Yes to its port. If it was plugged in before, "
                     "choose its port.")
                : tr("Plug the keyer in, and say Yes to its port. If it was plugged in before, "
                     "choose its port. What you type until then is not sent, and is forgotten."));
        markStep(keyerStep, isConnected);
        // Its port would not be offered: there is one in use.
        _virtualKeyerButton->setEnabled(!isConnected);
    };
    QObject::connect(&engine, &WinKeyerUsb::activityChanged, this, follow);
    QObject::connect(&engine, &WinKeyerUsb::reopeningFailed, this, follow);
    follow();
}

void FirstSteps::setHasVirtualKeyer(bool has) {
    _virtualKeyerButton->setVisible(has);
}

void FirstSteps::markStep(int number, bool isDone) {
    auto* mark = findChild<QLabel*>(u"firstStepsMark%1"_s.arg(number));
    mark->setText(isDone ? u"✓"_s : u"%1."_s.arg(number));
    mark->setAccessibleName(isDone ? tr("Step %1, done").arg(number) : tr("Step %1").arg(number));
}

/// An empty field brings the default back, which no station takes for a call.
void FirstSteps::storeCall(const QString& call) {
    if (call != ownCall()) {
        SettingsStore::standardUserDefaults().setObject(
            call.isEmpty() ? QVariant() : QVariant(call), MyCall);
    }
}

void FirstSteps::showCall() {
    const auto call = ownCall();
    if (_callField->text() != call) {
        _callField->setText(call);
    }
    markStep(callStep, !call.isEmpty());
}
