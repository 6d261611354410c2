// The one seam for tests: operations of this folder that can fail are counted, and a test can make
// the n-th of them fail. The program itself never calls these.
#pragma once

namespace vistrel::platform::fault {

/// Starts counting from 0 with nothing made to fail.
void Reset();
/// Starts counting from 0 and makes operation number `n` (from 1) fail.
void FailOperation(int n);
/// Starts counting from 0 and makes operation number `n` (from 1) and all after it fail: what the
/// disk holds then is what a power cut at that point leaves.
void FailFromOperation(int n);
/// How many operations have been asked for since the counting started.
int Counted();

/// Asked by each wrapper before it calls the system: true when a failure is injected here.
bool ShouldFail();

}  // namespace vistrel::platform::fault
