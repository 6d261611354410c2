// Comes before every source of a Windows program. From its 13th version on, the compiler with
// Windows threads has std::mutex and the like, on top of calls that came with Windows Vista: its
// headers refer to their types everywhere, but declare them only for that Windows. So this one
// header of the library is read under that version; it declares nothing of Windows itself. What we
// write may not use them: packaging/check_exe finds the calls.
#pragma once

#if __GNUC__ >= 13
#pragma push_macro("_WIN32_WINNT")
#undef _WIN32_WINNT
#define _WIN32_WINNT 0x0600
#include <bits/gthr.h>
#pragma pop_macro("_WIN32_WINNT")
#endif
