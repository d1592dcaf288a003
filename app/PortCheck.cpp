#include "app/PortCheck.h"

#include "app/window/PortCheckWindow.h"
#include "keyer/GeneralSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/Platform.h"
#include "portcheck/KeyerQuestion.h"
#include "portcheck/PortJudge.h"
#include "portcheck/linux/PortInspector.h"

namespace {

void askKeyer(const QString& name, QObject* context,
              const std::function<void(const PortFinding&)>& then) {
    auto* question = new KeyerQuestion(name, context);
    QObject::connect(question, &KeyerQuestion::answered, context,
                     [question, then](PortJudge::Answer answer) {
                         question->deleteLater();
                         then(PortJudge::judge(answer));
                     });
    question->ask();
}

} // namespace

PortCheck::PortCheck(WinKeyerUsb& engine, QWidget& parent) : _engine(engine), _parent(parent) {
    connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
            [this](const QString& key) {
                if (key == WKPortName) {
                    noteWantedPort();
                }
            });
    noteWantedPort();
}

PortCheck::~PortCheck() = default;

void PortCheck::noteWantedPort() {
    const auto name = SettingsStore::standardUserDefaults().stringForKey(WKPortName);
    if (name != noPortName && !name.isEmpty()) {
        _wantedPort = name;
    }
}

LinkFacts PortCheck::link() const {
    const auto activity = _engine.activity();
    return {.wantedPort = _wantedPort,
            .connectedPort = _engine.isPortOpen() ? _engine.serialPortName() : QString(),
            .hasAnswered =
                activity != KeyerActivity::NotConnected && activity != KeyerActivity::Silent};
}

void PortCheck::show() {
    if (_window == nullptr) {
        _window = makeWindow();
    }
    _window->check();
    _window->show();
    _window->raise();
    _window->activateWindow();
}

PortCheckWindow* PortCheck::makeWindow() {
    return new PortCheckWindow({.look =
                                    [this] {
                                        return PortJudge::judge(PortInspector::inspect(
                                            Platform::current().devices(), link()));
                                    },
                                .ask = &askKeyer},
                               &_parent);
}
