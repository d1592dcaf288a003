#pragma once

#include "virtualkeyer/CommandLine.h"
#include "virtualkeyer/RegisterWriter.h"
#include "virtualkeyer/TextPrinter.h"
#include "virtualkeyer/TranscriptWriter.h"
#include "virtualkeyer/pty/FileDescriptor.h"
#include "virtualkeyer/pty/KeyerListener.h"
#include "virtualkeyer/pty/Operator.h"
#include "virtualkeyer/pty/TypedPaddle.h"
#include "virtualkeyer/script/ScriptPlayer.h"
#include "virtualkeyer/script/ScriptReader.h"
#include "virtualkeyer/sidetone/WavWriter.h"

#include <optional>
#include <vector>

namespace virtualkeyer {

/// The program's exit statuses.
enum class ExitStatus {
    Success = 0,
    Failure = 1,      ///< the system refuses something
    BadOptions = 2,   ///< an option or a script that is none
    Disappointed = 3, ///< something that the script expects did not happen
};

/// Says something on standard error.
void complain(const char* what);

/// One run of the keyer, with the files and the script that the command line names.
class Session {
  public:
    /// Makes the files and reads the script. Throws std::runtime_error where that cannot be done.
    /// `commandLine` must outlive the session.
    explicit Session(const CommandLine& commandLine);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Also has these watch and work the keyer, which must outlive the session. The keyer then goes
    /// on after the script's end.
    void add(KeyerListener& listener, Operator& keyerOperator);

    /// Also has this watch the keyer; it must outlive the session.
    void add(KeyerListener& listener) { _listeners.push_back(&listener); }

    /// Runs the keyer until `stopDescriptor` is readable or the script ends it. Plugs it in as a
    /// port and says so, unless the time is to run fast. Throws what the system and the script do.
    void run(int stopDescriptor);

    /// What became of the script, once it has run.
    [[nodiscard]] ExitStatus exitStatus() const;

  private:
    void openScript();
    void runKeyer(int stopDescriptor);
    void runInRealTime(int stopDescriptor);
    void tellWhere(const std::string& path) const;

    const CommandLine& _commandLine;
    std::vector<KeyerListener*> _listeners;
    std::vector<Operator*> _operators;
    TextPrinter _printer;
    std::optional<TranscriptWriter> _transcript;
    std::optional<RegisterWriter> _registers;
    std::optional<WavWriter> _wav;
    std::optional<TypedPaddle> _paddle;
    FileDescriptor _scriptFile;
    std::optional<ScriptPlayer> _script;
    std::optional<ScriptReader> _scriptReader;
};

} // namespace virtualkeyer
