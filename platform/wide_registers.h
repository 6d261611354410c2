// Whether the system keeps the 128-bit registers of a program while another one runs.
#pragma once

namespace vistrel::platform {

/// Windows 95 does not, whatever the processor; Windows 98 does.
bool KeepsWideRegisters();

}  // namespace vistrel::platform
