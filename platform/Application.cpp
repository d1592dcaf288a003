#include "platform/Application.h"

void Application::presentError(const Error& error) {
    runModal({.messageText = error.localizedDescription(),
              .informativeText = error.localizedRecoverySuggestion()});
}
