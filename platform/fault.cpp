// Counts operations that can fail and picks the ones that do.
#include "platform/fault.h"

#include <climits>

namespace vistrel::platform::fault {

namespace {

int counted = 0;
int firstFailing = INT_MAX;
int lastFailing = INT_MAX;

void Start(int first, int last) {
    counted = 0;
    firstFailing = first;
    lastFailing = last;
}

}  // namespace

void Reset() { Start(INT_MAX, INT_MAX); }

void FailOperation(int n) { Start(n, n); }

void FailFromOperation(int n) { Start(n, INT_MAX); }

int Counted() { return counted; }

bool ShouldFail() {
    ++counted;
    return counted >= firstFailing && counted <= lastFailing;
}

}  // namespace vistrel::platform::fault
