#include "platform/pointer.h"

#include <windows.h>

namespace vistrel::platform {

namespace {

int busyPointers = 0;

void ShowSystemPointer(const char* name) { SetCursor(LoadCursorA(nullptr, name)); }

}  // namespace

BusyPointer::BusyPointer() {
    ++busyPointers;
    ShowSystemPointer(IDC_WAIT);
}

BusyPointer::~BusyPointer() {
    // After ShowDefaultPointer none is counted any more, although this one still lived.
    if (busyPointers == 0) return;
    --busyPointers;
    if (busyPointers == 0) ShowSystemPointer(IDC_ARROW);
}

bool BusyPointer::Shown() { return busyPointers > 0; }

void ShowDefaultPointer() {
    busyPointers = 0;
    ShowSystemPointer(IDC_ARROW);
}

}  // namespace vistrel::platform
