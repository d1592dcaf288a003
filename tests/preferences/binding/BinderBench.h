#pragma once

#include "preferences/binding/NumberBox.h"
#include "preferences/binding/SettingBinder.h"
#include "tests/support/TestPlatform.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QValidator>

#include <array>
#include <optional>

/// What the tests of bound controls work on: settings, a view, and a controller.
namespace binderbench {

inline constexpr std::array<Choice, 3> modes{{{QLatin1StringView{"Iambic B"}, 0},
                                              {QLatin1StringView{"Iambic A"}, 1},
                                              {QLatin1StringView{"Bug"}, 2}}};

inline constexpr auto table = std::to_array<Setting>({
    {QLatin1StringView{"Swap"}, false},
    {QLatin1StringView{"Mode"}, QLatin1StringView{"Iambic A"}, modes},
    {QLatin1StringView{"Pace"}, QLatin1StringView{"1000 lpm"}},
    {QLatin1StringView{"Call"}, QLatin1StringView{"your call"}},
    {QLatin1StringView{"Text"}, QLatin1StringView{"cq"}},
    {QLatin1StringView{"Speed"}, 10, {}, Range{10, 99}},
    {QLatin1StringView{"Ratio"}, 3.0, {}, Range{1.98, 3.99}},
    {QLatin1StringView{"Spare"}, 5},
});

/// Notes each call of an action with the key of its sender and what is stored then.
class Controller final : public QObject {
    Q_OBJECT
  public:
    explicit Controller(SettingsStore& settings) : _settings(settings) {}

    [[nodiscard]] QStringList take() { return std::exchange(_calls, {}); }

  public Q_SLOTS:
    void act(const QObject* sender) {
        const auto key = sender->property("setting").toString();
        _calls.append(key + u'=' + _settings.stringForKey(key));
    }

  private:
    SettingsStore& _settings;
    QStringList _calls;
};

/// Has texts read in capitals, typed or stored; some signs cannot be typed.
class Capitals final : public QValidator {
    Q_OBJECT
  public:
    State validate(QString& input, int&) const override {
        fixup(input);
        input.remove(QLatin1Char('!')).remove(QLatin1Char('&'));
        return Acceptable;
    }
    void fixup(QString& input) const override { input = input.toUpper(); }
};

/// A window with a control of each kind.
class View final : public QWidget {
  public:
    View() {
        auto* layout = new QFormLayout(this);
        swap.setText(QStringLiteral("S&wap"));
        layout->addRow(&swap);
        layout->addRow(QStringLiteral("&Mode"), &mode);
        layout->addRow(QStringLiteral("&Pace"), &pace);
        layout->addRow(QStringLiteral("C&all"), &call);
        layout->addRow(QStringLiteral("&Text"), &text);
        layout->addRow(QStringLiteral("Sp&eed"), &speed);
        layout->addRow(QStringLiteral("&Ratio"), &ratio);
        layout->addRow(QStringLiteral("Sp&are"), &spare);
        layout->addRow(&reset);
        layout->addRow(&send);
        const std::array<std::pair<QWidget*, QString>, 8> keys{{{&swap, QStringLiteral("Swap")},
                                                                {&mode, QStringLiteral("Mode")},
                                                                {&pace, QStringLiteral("Pace")},
                                                                {&call, QStringLiteral("Call")},
                                                                {&text, QStringLiteral("Text")},
                                                                {&speed, QStringLiteral("Speed")},
                                                                {&ratio, QStringLiteral("Ratio")},
                                                                {&spare, QStringLiteral("Spare")}}};
        for (const auto& [widget, key] : keys) {
            widget->setProperty("setting", key);
            widget->setProperty("action", QStringLiteral("act"));
        }
        pace.addItems({QStringLiteral("1000 lpm"), QStringLiteral("2000 lpm")});
        text.setValidator(&formatter);
        speed.setSuffix(QStringLiteral(" wpm"));
        speed.setToolTip(QStringLiteral("How fast."));
        ratio.setSingleStep(0.1);
        spare.setRange(0, 7);
        reset.setProperty("resets", QStringLiteral("Speed"));
        send.setText(QStringLiteral("Se&nd"));
        send.setProperty("action", QStringLiteral("act"));
    }

    Capitals formatter;
    QCheckBox swap;
    QComboBox mode;
    QComboBox pace;
    QLineEdit call;
    QLineEdit text;
    NumberBox speed;
    NumberBox ratio;
    NumberBox spare;
    QToolButton reset;
    QPushButton send;
};

} // namespace binderbench

class BinderBench {
  protected:
    void setUp() {
        _platform.emplace();
        _platform->settings().registerDefaults(defaultsOf(binderbench::table));
        _controller.emplace(_platform->settings());
        _view.emplace();
    }

    void tearDown() {
        _binder.reset();
        _view.reset();
        _controller.reset();
        _platform.reset();
    }

    void bind() { _binder.emplace(*_view, *_controller, binderbench::table); }

    void showView() {
        _view->show();
        QVERIFY(QTest::qWaitForWindowActive(&*_view));
    }

    /// The actions called since this was last asked, each as "key=stored value".
    [[nodiscard]] QStringList calls() { return _controller->take(); }
    [[nodiscard]] QVariant stored(const QString& key) const {
        return _platform->settings().objectForKey(key);
    }
    void store(const QVariant& value, const QString& key) {
        _platform->settings().setObject(value, key);
    }
    /// The text of the settings file.
    [[nodiscard]] QByteArray file() {
        static_cast<void>(_platform->settings().synchronize());
        QFile file(_platform->settingsPath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::optional<TestPlatform> _platform;
    std::optional<binderbench::Controller> _controller;
    std::optional<binderbench::View> _view;
    std::optional<SettingBinder> _binder;
};
