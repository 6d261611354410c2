#include "main_window/names_in_lines.h"

namespace vistrel::main_window {
namespace {

constexpr std::size_t kMostNames = 10;

}  // namespace

std::string NamesInLines(const std::vector<std::string>& names) {
    std::string lines;
    for (std::size_t i = 0; i < names.size() && i < kMostNames; ++i) lines += "\r\n" + names[i];
    if (names.size() > kMostNames)
        lines += "\r\nand " + std::to_string(names.size() - kMostNames) + " more";
    return lines;
}

}  // namespace vistrel::main_window
