#pragma once

#include "virtualkeyer/pty/SerialKeyer.h"
#include "virtualkeyer/script/FastLoop.h"
#include "virtualkeyer/script/ScriptParser.h"
#include "virtualkeyer/script/ScriptPlayer.h"

#include <QString>
#include <QStringList>

#include <vector>

/// A keyer, and a script that works it in no time at all.
class ScriptBench : public virtualkeyer::KeyerListener {
  public:
    ScriptBench()
        : _script(
              [](std::string_view name) {
                  virtualkeyer::Profile profile;
                  profile.echoesText = name != "mute";
                  return name == "none" ? std::nullopt : std::optional{profile};
              },
              [this](int line, const QString& expected, const QString& found) {
                  disappointments +=
                      QStringLiteral("%1: %2, not %3").arg(line).arg(expected, found);
              }),
          keyer({}, {&_script, this}) {}

    /// Adds the lines, and has them done. What cannot be read ends the test.
    void run(const QString& lines) {
        int number = 0;
        for (const QString& line : lines.split(u'\n')) {
            ++number;
            const auto meaning = virtualkeyer::readScriptLine(line);
            if (std::holds_alternative<virtualkeyer::EmptyLine>(meaning)) {
                continue;
            }
            const auto* step = std::get_if<virtualkeyer::ScriptStep>(&meaning);
            if (step == nullptr || !_script.add(*step, number)) {
                qFatal("no script: %s", qPrintable(line));
            }
        }
        _script.close();
        virtualkeyer::runFast(keyer, {&_script});
    }

    void keyerDid(const virtualkeyer::Event& event,
                  const virtualkeyer::Registers& /*registers*/) override {
        events.push_back(event);
    }

    /// When the key went down and up in turn, in ns.
    [[nodiscard]] std::vector<std::int64_t> edges() const {
        std::vector<std::int64_t> times;
        for (const auto& event : events) {
            if (std::holds_alternative<virtualkeyer::KeyLine>(event.what)) {
                times.push_back(event.at.count());
            }
        }
        return times;
    }

    std::vector<virtualkeyer::Event> events;
    QStringList disappointments;

  private:
    virtualkeyer::ScriptPlayer _script;

  public:
    virtualkeyer::SerialKeyer keyer;
};
