#include "virtualkeyer/sound/LiveSidetone.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QMediaDevices>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <utility>

namespace virtualkeyer {

namespace {

constexpr int sampleRate = 48'000;
constexpr int bytesPerSample = 2;
/// What the device stores at most: more is later, less runs dry on a busy machine.
constexpr int storedBytes = sampleRate / 1000 * 20 * bytesPerSample;
constexpr std::size_t cushion = sampleRate / 1000 * 8;
constexpr auto feedInterval = std::chrono::milliseconds{5};
/// A silence after which the device runs dry.
constexpr auto restlessTime = std::chrono::seconds{5};

QAudioFormat format() {
    QAudioFormat format;
    format.setSampleRate(sampleRate);
    format.setChannelCount(1);
    format.setSampleFormat(QAudioFormat::Int16);
    return format;
}

} // namespace

LiveSidetone::LiveSidetone() : _feed(sampleRate, cushion) {}

LiveSidetone::~LiveSidetone() {
    quit();
    wait();
}

void LiveSidetone::setVolume(double volume) {
    const std::lock_guard lock(_mutex);
    _feed.setVolume(volume);
}

void LiveSidetone::keyerDid(const Event& event, const Registers& /*registers*/) {
    const auto* tone = std::get_if<Tone>(&event.what);
    if (tone == nullptr) {
        return;
    }
    const std::lock_guard lock(_mutex);
    noteTime(event.at);
    // Nobody would ever take it.
    if (_feeder == nullptr) {
        return;
    }
    _feed.setTone(tone->frequency, event.at);
    if (std::exchange(_isResting, false)) {
        QMetaObject::invokeMethod(
            _feeder, [feeder = _feeder] { feeder->start(std::chrono::milliseconds{0}); },
            Qt::QueuedConnection);
    }
}

std::size_t LiveSidetone::waiting() {
    const std::lock_guard lock(_mutex);
    return _feed.waiting();
}

void LiveSidetone::timePassed(Time now) {
    const std::lock_guard lock(_mutex);
    noteTime(now);
}

/// The keyer's time is noticed late, now more and now less, so that the earliest beginning is the
/// true one.
void LiveSidetone::noteTime(Time now) {
    const Clock::time_point start = Clock::now() - now;
    _start = std::min(_start.value_or(start), start);
}

std::vector<std::int16_t> LiveSidetone::next(std::size_t room, std::size_t stored) {
    const std::lock_guard lock(_mutex);
    const auto clock = Clock::now();
    if (!_feed.isSilent()) {
        _lastSound = clock;
    }
    return _feed.next(_start ? Time{clock - *_start} : Time{0}, room, stored);
}

bool LiveSidetone::mayRest() {
    const std::lock_guard lock(_mutex);
    _isResting = _feed.isSilent() && Clock::now() - _lastSound > restlessTime;
    return _isResting;
}

void LiveSidetone::setFeeder(QTimer* feeder) {
    const std::lock_guard lock(_mutex);
    _feeder = feeder;
    _lastSound = Clock::now();
}

void LiveSidetone::run() {
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull() || !device.isFormatSupported(format())) {
        Q_EMIT silent();
        return;
    }
    QAudioSink sink(device, format());
    sink.setBufferSize(storedBytes);
    QIODevice* store = sink.start();
    if (store == nullptr) {
        Q_EMIT silent();
        return;
    }
    const qsizetype size = sink.bufferSize();
    const auto timer = std::make_unique<QTimer>();
    timer->setTimerType(Qt::PreciseTimer);
    connect(timer.get(), &QTimer::timeout, timer.get(), [this, &sink, &timer, store, size] {
        timer->setInterval(feedInterval);
        const qsizetype free = sink.bytesFree();
        const auto samples = next(static_cast<std::size_t>(free / bytesPerSample),
                                  static_cast<std::size_t>((size - free) / bytesPerSample));
        store->write(reinterpret_cast<const char*>(samples.data()),
                     static_cast<qint64>(samples.size()) * bytesPerSample);
        if (mayRest()) {
            timer->stop();
        }
    });
    setFeeder(timer.get());
    timer->start(feedInterval);
    exec();
    setFeeder(nullptr);
    sink.stop();
}

} // namespace virtualkeyer
