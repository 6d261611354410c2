// Replacing a file that matters, such as a set's screen, so that whoever ends the program meanwhile
// finds the old or the new one when it starts again.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vistrel::core {

/// While it lives a note among the settings says that the file at `path` is being replaced.
class ReplacingNote {
 public:
    explicit ReplacingNote(const std::string& path);
    ~ReplacingNote();
    ReplacingNote(const ReplacingNote&) = delete;
    ReplacingNote& operator=(const ReplacingNote&) = delete;
};

/// Writes a whole file, over one of that name if there is one. False when it could not be written;
/// what was there is then as it was.
bool WriteOver(const std::string& path, const std::vector<std::uint8_t>& bytes);

/// Brings back what a note says that a program has left which was ended in between.
void EndInterruptedReplacing();

}  // namespace vistrel::core
