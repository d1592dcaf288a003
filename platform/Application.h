#pragma once

#include "platform/Error.h"

#include <QObject>
#include <QString>

/// A question or statement that holds the operator until it is answered. A button without a title
/// is not shown, but for the default one, which then bears the toolkit's own title.
struct Alert {
    QString messageText;
    QString informativeText;
    QString defaultButton = {};
    QString alternateButton = {};
};

enum class AlertAnswer { Default, Alternate };

/// What the rest of the program may ask of the object that controls the application.
class ApplicationDelegate {
  public:
    ApplicationDelegate() = default;
    ApplicationDelegate(const ApplicationDelegate&) = delete;
    ApplicationDelegate& operator=(const ApplicationDelegate&) = delete;
    virtual ~ApplicationDelegate() = default;

    /// Opens the keyer link again, on the port that the settings name now.
    virtual void changeSerialPort(const QObject* sender) = 0;
};

/// The running application: its alerts and its delegate. Main thread only.
class Application {
  public:
    Application() = default;
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    virtual ~Application() = default;

    /// Shows the alert and returns when it has been answered.
    virtual AlertAnswer runModal(const Alert& alert) = 0;

    /// Tells the operator of an error: its message, its informative text, one button.
    void presentError(const Error& error);

    /// The application's delegate, not owned; nullptr before it is set.
    [[nodiscard]] ApplicationDelegate* delegate() const { return _delegate; }
    void setDelegate(ApplicationDelegate* delegate) { _delegate = delegate; }

  private:
    ApplicationDelegate* _delegate = nullptr;
};
