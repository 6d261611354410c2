// The one seam for tests: operations of this folder that can fail are counted, and a test can make
// the n-th of them fail. The program itself never calls these.
#pragma once

namespace vistrel::platform::fault {

/// What an operation is about. One kind is counted at a time; the others never fail then.
enum class Kind {
    Data,     ///< files, the registry, the shell, memory blocks: what there is to keep and to lose
    Drawing,  ///< the system's objects for drawing, of which there may be no more
    Windows   ///< windows, likewise
};

/// Starts counting from 0 with nothing made to fail or to wait.
void Reset(Kind kind = Kind::Data);
/// Starts counting from 0 and makes operation number `n` (from 1) fail.
void FailOperation(int n, Kind kind = Kind::Data);
/// Starts counting from 0 and makes operation number `n` (from 1) and all after it fail: what the
/// disk holds then is what a power cut at that point leaves.
void FailFromOperation(int n, Kind kind = Kind::Data);
/// What the process ends with that DieAtOperation has ended.
inline constexpr unsigned kKilledStatus = 77;
/// Starts counting from 0 and ends the process before operation number `n` (from 1), as if it were
/// killed: nothing is tidied up.
void DieAtOperation(int n);
/// Starts counting from 0 and has each operation wait so long, as on a slow disk.
void WaitAtEach(unsigned milliseconds);
/// How many operations have been asked for since the counting started.
int Counted();

/// Asked by each wrapper before it calls the system: true when a failure is injected here.
bool ShouldFail(Kind kind = Kind::Data);

}  // namespace vistrel::platform::fault
