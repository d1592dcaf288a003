#include "record/RunText.h"

#include <QDateTime>
#include <QTimeZone>

using namespace Qt::StringLiterals;

QString RunText::heading(Column column) {
    switch (column) {
    case Begun:
        return tr("UTC");
    case Text:
        return tr("Text");
    case Speed:
        return tr("Speed");
    case Sender:
        return tr("Sent by");
    case Ending:
        return tr("How it ended");
    case Columns:
        break;
    }
    return {};
}

QString RunText::of(const RecordedRun& run, Column column) {
    switch (column) {
    case Begun:
        return begun(run);
    case Text:
        return run.text;
    case Speed:
        return speed(run);
    case Sender:
        return sender(run);
    case Ending:
        return ending(run);
    case Columns:
        break;
    }
    return {};
}

/// The same in each language, as logs have it.
QString RunText::begun(const RecordedRun& run) {
    return QDateTime::fromMSecsSinceEpoch(run.begun, QTimeZone::utc())
        .toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

QString RunText::speed(const RecordedRun& run) {
    if (run.lettersPerMinute) {
        return tr("%1 LPM").arg(*run.lettersPerMinute);
    }
    return run.wordsPerMinute ? tr("%1 WPM").arg(*run.wordsPerMinute) : QString();
}

QString RunText::sender(const RecordedRun& run) {
    const auto& [kind, number] = run.source;
    switch (kind) {
    case TextSource::Kind::Keyboard:
        return tr("Typed");
    case TextSource::Kind::Message:
        return tr("F%1 %2").arg(QString::number(number), run.name).trimmed();
    case TextSource::Kind::PushButton:
        return tr("Push-button %1 %2").arg(QString::number(number), run.name).trimmed();
    case TextSource::Kind::Beacon:
        return tr("Beacon");
    case TextSource::Kind::Logger:
        return run.name.isEmpty() ? tr("Logger, port %1").arg(QString::number(number))
                                  : tr("Logger %1").arg(run.name);
    }
    return {};
}

QString RunText::ending(const RecordedRun& run) {
    const auto place = QString::number(run.text.size());
    switch (run.ending) {
    case RecordedRun::Ending::Sent:
        return tr("Sent");
    case RecordedRun::Ending::Stopped:
        return tr("Stopped at character %1").arg(place);
    case RecordedRun::Ending::BrokenIn:
        return tr("Broken in on at character %1").arg(place);
    case RecordedRun::Ending::LinkLost:
        return tr("Link lost at character %1").arg(place);
    }
    return {};
}
