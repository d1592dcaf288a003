#pragma once

#include <QObject>

class KeyerWatch;
class NoticeStrip;
class WinKeyerUsb;

/// Tells the operator in a strip of its own that the keyer does not answer, with the offer to ask
/// it again, until it answers.
class AnswerNotice final : public QObject {
    Q_OBJECT
  public:
    /// All of them must outlive the notice.
    AnswerNotice(const WinKeyerUsb& engine, KeyerWatch& watch, NoticeStrip& strip, QObject* parent);
};
