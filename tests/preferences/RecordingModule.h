#pragma once

#include "preferences/MBPreferencesModule.h"

#include <QWidget>

#include <functional>
#include <memory>

/// A module with a view of a given size, which tells when it is about to be displayed.
class RecordingModule final : public MBPreferencesModule {
  public:
    RecordingModule(const QString& name, QSize size)
        : _name(name), _view(std::make_unique<QWidget>()) {
        QPixmap picture(32, 32);
        picture.fill(Qt::red);
        _image = picture;
        _view->resize(size);
    }

    /// Leaves the module without a view.
    void dropView() { _view.reset(); }
    /// Leaves the module with an image that cannot be loaded.
    void spoilImage() { _image = QIcon(QStringLiteral(":/no-such-picture")); }
    void setWhenDisplayed(std::function<void()> action) { _whenDisplayed = std::move(action); }
    [[nodiscard]] int timesDisplayed() const { return _timesDisplayed; }

    [[nodiscard]] QString title() const override { return QStringLiteral("The ") + _name; }
    [[nodiscard]] QString identifier() const override { return _name; }
    [[nodiscard]] QIcon image() const override { return _image; }
    [[nodiscard]] QWidget* view() const override { return _view.get(); }

    void willBeDisplayed() override {
        ++_timesDisplayed;
        if (_whenDisplayed) {
            _whenDisplayed();
        }
    }

  private:
    QString _name;
    QIcon _image;
    std::unique_ptr<QWidget> _view;
    std::function<void()> _whenDisplayed;
    int _timesDisplayed = 0;
};
