#pragma once

#include "platform/SettingsFile.h"

#include <chrono>
#include <functional>
#include <memory>
#include <thread>

/// Reads and writes a settings file on a thread of its own, so that a slow disk or another
/// program's lock holds nobody up. What cannot be written is tried again from time to time. Main
/// thread only, but for the reports.
class SettingsWriter {
  public:
    struct Job {
        /// What is to be stored.
        SettingsFile::Changes changes;
        /// Tells jobs apart; the later, the greater.
        quint64 number = 0;
    };

    /// What a reading or a writing came to.
    struct Report {
        /// The number of the job that was done; 0 for a reading.
        quint64 number = 0;
        /// Why nothing could be written; null when all went well.
        QString problem;
        /// What the file says, if it was no problem.
        SettingsFile::Content content;
        /// Of each key the last change that is not going to be written, since somebody else has
        /// overtaken it, with the time when it was made.
        QHash<QString, SettingsFile::Time> overtaken;
        /// Where the damaged file is, of which `content` tells the damage; null if none was there.
        QString aside;
    };
    /// Called on the writer's thread.
    using Receiver = std::function<void(const Report&)>;

    /// `known` is what the file says. What cannot be written is tried again after `retryTime`, then
    /// after twice as long each time, up to a few minutes; or once the file or its folder changes.
    SettingsWriter(const QString& path, const SettingsFile::Values& known, Receiver receiver,
                   std::chrono::milliseconds retryTime);
    SettingsWriter(const SettingsWriter&) = delete;
    SettingsWriter& operator=(const SettingsWriter&) = delete;
    /// Gives the last job some seconds to be done. A disk that takes longer keeps the process from
    /// nothing.
    ~SettingsWriter();

    /// Has the file read anew, once whatever else there is to do is done.
    void read();
    /// Has this stored in place of any job that waits.
    void write(const Job& job);
    /// Waits until the job of that number has been tried, some seconds at most; whether it was
    /// stored.
    [[nodiscard]] bool finish(quint64 number);

  private:
    struct State;

    std::shared_ptr<State> _state;
    std::jthread _thread;
};
