#include "tests/support/RecordingApplication.h"

AlertAnswer RecordingApplication::runModal(const Alert& alert) {
    _alerts.append(alert);
    if (_whileShown) {
        _whileShown(alert);
    }
    return _answers.isEmpty() ? AlertAnswer::Default : _answers.takeFirst();
}
