#include "app/window/AnswerNotice.h"

#include "app/window/NoticeStrip.h"
#include "keyer/KeyerWatch.h"
#include "keyer/WinKeyerUsb.h"

AnswerNotice::AnswerNotice(const WinKeyerUsb& engine, KeyerWatch& watch, NoticeStrip& strip,
                           QObject* parent)
    : QObject(parent) {
    strip.setOffer(tr("Ask again"));
    connect(&watch, &KeyerWatch::neverAnswered, this, [&engine, &strip] {
        strip.say(tr("The keyer on %1 does not answer. Look at its power, its cable, and whether "
                     "this is its port.")
                      .arg(engine.serialPortName()));
    });
    connect(&watch, &KeyerWatch::fellSilent, this, [&engine, &strip] {
        strip.say(tr("Nothing has come from the keyer on %1 for 10 s, though a character is on its "
                     "way to it. It may have started anew.")
                      .arg(engine.serialPortName()));
    });
    connect(&watch, &KeyerWatch::settled, &strip, &NoticeStrip::putAway);
    connect(&strip, &NoticeStrip::offerTaken, &watch, &KeyerWatch::askAgain);
}
