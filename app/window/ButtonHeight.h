#pragma once

/// What a finger or a hurried mouse still hits; pixels.
inline constexpr int leastButtonHeight = 36;
