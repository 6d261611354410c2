// Counts operations that can fail and picks the ones that do.
#include "platform/fault.h"

#include <climits>

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace vistrel::platform::fault {

namespace {

Kind counting = Kind::Data;
int counted = 0;
int firstFailing = INT_MAX;
int lastFailing = INT_MAX;
int fatal = INT_MAX;
unsigned waiting = 0;  ///< milliseconds

void Start(Kind kind, int first, int last) {
    counting = kind;
    counted = 0;
    firstFailing = first;
    lastFailing = last;
    fatal = INT_MAX;
    waiting = 0;
}

void Die() {
#ifdef _WIN32
    TerminateProcess(GetCurrentProcess(), kKilledStatus);
#else
    _exit(kKilledStatus);
#endif
}

void Wait() {
#ifdef _WIN32
    Sleep(waiting);
#else
    usleep(waiting * 1000);
#endif
}

}  // namespace

void Reset(Kind kind) { Start(kind, INT_MAX, INT_MAX); }

void FailOperation(int n, Kind kind) { Start(kind, n, n); }

void FailFromOperation(int n, Kind kind) { Start(kind, n, INT_MAX); }

void DieAtOperation(int n) {
    Start(Kind::Data, INT_MAX, INT_MAX);
    fatal = n;
}

void WaitAtEach(unsigned milliseconds) {
    Start(Kind::Data, INT_MAX, INT_MAX);
    waiting = milliseconds;
}

int Counted() { return counted; }

bool ShouldFail(Kind kind) {
    if (kind != counting) return false;
    ++counted;
    if (counted == fatal) Die();
    if (waiting > 0) Wait();
    return counted >= firstFailing && counted <= lastFailing;
}

}  // namespace vistrel::platform::fault
