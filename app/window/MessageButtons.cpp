#include "app/window/MessageButtons.h"

#include "app/window/HeldMessages.h"
#include "app/window/MessageButton.h"
#include "app/window/SingleClick.h"
#include "keyer/MessageSettings.h"
#include "keyer/WinKeyerUsb.h"
#include "platform/SettingsStore.h"

#include <QAction>
#include <QLineEdit>
#include <QTextDocument>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestMenuLabel = 40;
constexpr qsizetype longestToolTip = 600;
constexpr int longestWord = 30;

/// A label is the operator's own text: an ampersand in it is no keyboard shortcut.
QString withoutMnemonic(QString label) {
    return label.replace(u"&"_s, u"&&"_s);
}

QString shortened(const QString& label) {
    return label.size() <= longestMenuLabel ? label : label.first(longestMenuLabel - 1) + u'…';
}

/// Text that a tool tip breaks into lines, whatever its length. What is kept in one line is the
/// operator's text itself, a long one without spaces.
QString toolTipOf(const QString& text) {
    const bool isLong = text.size() > longestToolTip;
    QString broken;
    int sinceSpace = 0;
    for (const auto character : isLong ? text.first(longestToolTip) + u'…' : text) {
        sinceSpace = character == u' ' ? 0 : sinceSpace + 1;
        broken += character;
        if (sinceSpace == longestWord) {
            broken += u'\u200b'; // where a line may end
            sinceSpace = 0;
        }
    }
    return Qt::convertFromPlainText(broken, Qt::WhiteSpaceNormal);
}

} // namespace

MessageButtons::MessageButtons(WinKeyerUsb& engine, HeldMessages& held, const QLineEdit& callsign,
                               const QList<Control>& controls, QObject* parent)
    : QObject(parent), _engine(engine), _held(held), _callsign(callsign), _controls(controls) {
    for (const auto& [button, action] : _controls) {
        new SingleClick(*button);
        QObject::connect(button, &QPushButton::clicked, this,
                         [this, sender = button] { _held.send(sender); });
        // A button's own shortcut would first show it pressed for a tenth of a second.
        QObject::connect(action, &QAction::triggered, button, &QPushButton::click);
    }
    QObject::connect(&SettingsStore::standardUserDefaults(), &SettingsStore::changed, this,
                     &MessageButtons::show);
    QObject::connect(&_engine, &WinKeyerUsb::serialNumberChanged, this, &MessageButtons::show);
    QObject::connect(&_callsign, &QLineEdit::textChanged, this, &MessageButtons::show);
    QObject::connect(&_held, &HeldMessages::changed, this, &MessageButtons::show);
    show();
}

void MessageButtons::show() {
    const auto& settings = SettingsStore::standardUserDefaults();
    for (int i = 0; i < _controls.size(); ++i) {
        const auto& [button, action] = _controls.at(i);
        const auto& message = messageSettings[static_cast<std::size_t>(i)];
        const auto label = settings.stringForKey(message.labelKey);
        const auto text = textToBeSent(settings.stringForKey(message.textKey));
        button->setAccessibleName(tr("Message %1: %2").arg(i + 1).arg(label));
        const bool isHeld = _held.isHeld(button);
        button->setHeld(isHeld);
        button->setAccessibleDescription(isHeld ? tr("Waits for the paddle: %1").arg(text) : text);
        button->setPreview(text);
        button->setToolTip(toolTipOf(text));
        const auto key = action->shortcut().toString(QKeySequence::NativeText);
        button->setText(tr("%1  %2").arg(key, withoutMnemonic(label)));
        action->setText(tr("%1  %2").arg(i + 1).arg(withoutMnemonic(shortened(label))));
    }
}

QString MessageButtons::textToBeSent(const QString& stored) const {
    auto text = _engine.substituteTokens(stored);
    if (!_callsign.text().isEmpty()) {
        text.replace(u'~', _callsign.text());
    }
    return text.toUpper();
}
