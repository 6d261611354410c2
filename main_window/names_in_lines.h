// Names of sets in a message.
#pragma once

#include <string>
#include <vector>

namespace vistrel::main_window {

/// A line for each name, behind a line break. Of many names some only, so that the message fits a
/// small screen, and how many more there are.
std::string NamesInLines(const std::vector<std::string>& names);

}  // namespace vistrel::main_window
