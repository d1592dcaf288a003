#pragma once

#include "virtualkeyer/core/Keyer.h"
#include "virtualkeyer/core/Transcript.h"

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <string_view>

/// A keyer with everything that a test does to it at a time of its own.
class KeyerBench {
  public:
    explicit KeyerBench(const virtualkeyer::Profile& profile = {}) : keyer(profile) {}

    /// Opens the keyer with serial echo at 20 wpm and forgets what it answered.
    void open() {
        send({0x00, 2, 0x0E, 0x04, 0x02, 20});
        forget();
    }

    void send(std::initializer_list<int> bytes) {
        for (const int byte : bytes) {
            keyer.receive(static_cast<std::uint8_t>(byte), now);
        }
        collect();
    }

    void text(std::string_view text) {
        for (const char character : text) {
            keyer.receive(static_cast<std::uint8_t>(character), now);
        }
        collect();
    }

    void paddle(bool dit, bool dah) {
        keyer.setPaddle(dit, dah, now);
        collect();
    }

    void wait(double milliseconds) {
        now += toTime(milliseconds);
        keyer.advance(now);
        collect();
    }

    /// Up to `milliseconds` after the first key-down.
    void waitUntil(double milliseconds) {
        for (auto next = keyer.nextEvent(); next && !origin(); next = keyer.nextEvent()) {
            keyer.advance(*next);
            collect();
        }
        now = origin().value_or(now) + toTime(milliseconds);
        keyer.advance(now);
        collect();
    }

    /// Until the keyer does nothing more; false if that takes longer than half an hour.
    [[nodiscard]] bool finish() {
        const auto limit = now + std::chrono::minutes{30};
        for (auto next = keyer.nextEvent(); next; next = keyer.nextEvent()) {
            if (*next > limit) {
                return false;
            }
            now = *next;
            keyer.advance(now);
        }
        collect();
        return true;
    }

    void forget() {
        collect();
        _events.clear();
    }

    /// The events whose transcript begins with `prefix`, without it: "0 C4, 120 45" for "host".
    /// Times are ms from the first key-down, or from power-up if there is none.
    [[nodiscard]] QString log(const QString& prefix) const {
        QStringList lines;
        for (const auto& event : _events) {
            const QString line = QString::fromStdString(virtualkeyer::transcriptLine(event));
            const QString what = line.section(QLatin1Char(' '), 1);
            if (what.startsWith(prefix)) {
                lines += milliseconds(event.at - origin().value_or(virtualkeyer::Time{0})) +
                         what.mid(prefix.size());
            }
        }
        return lines.join(QStringLiteral(", "));
    }

    [[nodiscard]] QString host() const { return log(QStringLiteral("host")); }

    /// What went to the host, without times.
    [[nodiscard]] QString bytes() const {
        QStringList bytes;
        for (const auto& event : _events) {
            if (const auto* byte = std::get_if<virtualkeyer::HostByte>(&event.what)) {
                bytes += QStringLiteral("%1").arg(byte->value, 2, 16, QLatin1Char('0')).toUpper();
            }
        }
        return bytes.join(QLatin1Char(' '));
    }

    /// How long the key was down and up in turn, in ms: "60 60 180".
    [[nodiscard]] QString keying() const {
        QStringList lengths;
        std::optional<virtualkeyer::Time> last;
        for (const auto& event : _events) {
            if (!std::holds_alternative<virtualkeyer::KeyLine>(event.what)) {
                continue;
            }
            if (last) {
                lengths += milliseconds(event.at - *last);
            }
            last = event.at;
        }
        return lengths.join(QLatin1Char(' '));
    }

    [[nodiscard]] const std::vector<virtualkeyer::Event>& events() const { return _events; }

    [[nodiscard]] static virtualkeyer::Time toTime(double milliseconds) {
        return virtualkeyer::Time{static_cast<std::int64_t>(milliseconds * 1e6)};
    }

    virtualkeyer::Keyer keyer;
    virtualkeyer::Time now{0};

  private:
    void collect() {
        const auto events = keyer.takeEvents();
        _events.insert(_events.end(), events.begin(), events.end());
    }

    [[nodiscard]] std::optional<virtualkeyer::Time> origin() const {
        for (const auto& event : _events) {
            const auto* line = std::get_if<virtualkeyer::KeyLine>(&event.what);
            if (line != nullptr && line->isDown) {
                return event.at;
            }
        }
        return std::nullopt;
    }

    [[nodiscard]] static double toMilliseconds(virtualkeyer::Time time) {
        return static_cast<double>(time.count()) / 1e6;
    }

    [[nodiscard]] static QString milliseconds(virtualkeyer::Time time) {
        QString text = QString::number(toMilliseconds(time), 'f', 3);
        while (text.endsWith(QLatin1Char('0'))) {
            text.chop(1);
        }
        if (text.endsWith(QLatin1Char('.'))) {
            text.chop(1);
        }
        return text == QStringLiteral("-0") ? QStringLiteral("0") : text;
    }

    std::vector<virtualkeyer::Event> _events;
};
