#pragma once

#include "keyer/WinKeyerUsb.h"

/// Has what the engine's text gains be from `source`, for as long as the object lives.
class TextSourceScope {
  public:
    TextSourceScope(WinKeyerUsb& engine, const TextSource& source)
        : _engine(engine), _former(engine.textSource()) {
        _engine.setTextSource(source);
    }
    TextSourceScope(const TextSourceScope&) = delete;
    TextSourceScope& operator=(const TextSourceScope&) = delete;
    ~TextSourceScope() { _engine.setTextSource(_former); }

  private:
    WinKeyerUsb& _engine;
    const TextSource _former;
};
