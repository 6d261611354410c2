#include "platform/clock.h"

#include <windows.h>

namespace vistrel::platform {

double SecondsSinceMidnight() {
    SYSTEMTIME now;
    GetLocalTime(&now);
    return now.wHour * 3600.0 + now.wMinute * 60.0 + now.wSecond + now.wMilliseconds / 1000.0;
}

double TimeOfDay() { return SecondsSinceMidnight() / 86400.0; }

void SleepMilliseconds(unsigned long milliseconds) { Sleep(milliseconds); }

}  // namespace vistrel::platform
