// The time of day and waiting.
#pragma once

namespace vistrel::platform {

/// Seconds since midnight, local time, with fractions.
double SecondsSinceMidnight();
/// The time of day in days: 0 at midnight, 0.5 at noon.
double TimeOfDay();
/// Sleeps this many milliseconds.
void SleepMilliseconds(unsigned long milliseconds);

}  // namespace vistrel::platform
