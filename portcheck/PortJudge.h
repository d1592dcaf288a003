#pragma once

#include "portcheck/PortFacts.h"
#include "portcheck/PortReport.h"

#include <QCoreApplication>

/// Says what is in the way of each serial port, and what to do about it. It goes by what was
/// collected, and touches nothing.
class PortJudge {
    Q_DECLARE_TR_FUNCTIONS(PortJudge)

  public:
    /// What came of asking the keyer on a free port.
    enum class Answer { Keyer, SomethingElse, Nothing, NotOpened };

    /// An entry for each port present, for each adapter without a port, for a chosen port that is
    /// not there, and for a machine on which there is nothing to choose; the chosen port first.
    [[nodiscard]] static PortReport judge(const MachineFacts& facts);
    [[nodiscard]] static PortFinding judge(Answer answer);
};
