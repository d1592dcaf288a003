#pragma once

#include "preferences/MBPreferencesController.h"
#include "tests/preferences/RecordingModule.h"
#include "tests/support/TestPlatform.h"

#include <QAction>
#include <QApplication>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QTest>
#include <QToolBar>

#include <optional>

/// A style whose animations take the given time.
class TimedStyle final : public QProxyStyle {
  public:
    explicit TimedStyle(int duration)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion"))), _duration(duration) {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override {
        return hint == SH_Widget_Animation_Duration
                   ? _duration
                   : QProxyStyle::styleHint(hint, option, widget, data);
    }

  private:
    int _duration;
};

/// What the tests of the preferences window work on: the window's controller and three modules.
class PreferencesWindowBench {
  protected:
    void setUp() {
        _platform.emplace();
        _one = std::make_shared<RecordingModule>(QStringLiteral("one"), QSize(400, 300));
        _two = std::make_shared<RecordingModule>(QStringLiteral("two"), QSize(500, 350));
        _three = std::make_shared<RecordingModule>(QStringLiteral("three"), QSize(350, 100));
    }

    void tearDown() {
        _one.reset();
        _two.reset();
        _three.reset();
        _platform.reset();
        _style.reset();
    }

    using Modules = MBPreferencesController::Modules;

    [[nodiscard]] static MBPreferencesController& controller() {
        return MBPreferencesController::sharedController();
    }
    [[nodiscard]] static QToolBar& toolbar() {
        return *controller().window().findChild<QToolBar*>();
    }
    [[nodiscard]] static QStringList items() {
        QStringList names;
        for (const auto* item : toolbar().actions()) {
            names.append(item->objectName());
        }
        return names;
    }
    [[nodiscard]] static QString selectedItem() {
        for (const auto* item : toolbar().actions()) {
            if (item->isChecked()) {
                return item->objectName();
            }
        }
        return {};
    }
    [[nodiscard]] QString remembered() const {
        return _platform->settings().stringForKey(QStringLiteral("MBPreferencesSelection"));
    }
    [[nodiscard]] static std::shared_ptr<const Modules> list(const Modules& modules) {
        return std::make_shared<const Modules>(modules);
    }
    /// The size that the window gives its content.
    [[nodiscard]] static QSize contentSize() {
        return controller().window().size() - QSize(0, toolbar().sizeHint().height());
    }
    void show(int animation) {
        auto& window = controller().window();
        _style.emplace(animation);
        window.setStyle(&*_style);
        controller().showWindow(nullptr);
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    std::optional<TestPlatform> _platform;
    std::optional<TimedStyle> _style;
    std::shared_ptr<RecordingModule> _one;
    std::shared_ptr<RecordingModule> _two;
    std::shared_ptr<RecordingModule> _three;
};
