#pragma once
// The start-up yardstick: when TESSARON_STARTUP_T0 holds the launcher's
// CLOCK_MONOTONIC reading in nanoseconds, the first window shown on screen
// prints "mapped_ms RSS_KB" and ends the program. Without it, nothing is armed.
class QCoreApplication;

namespace tessaron::view {

void armStartupProbe(QCoreApplication& app);

}  // namespace tessaron::view
