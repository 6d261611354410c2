// What is asked of logo-convert on its command line.
#pragma once

#include <string>
#include <vector>

#include "pictures/compose/composition.h"

namespace vistrel::tools {

struct ConvertOptions {
    compose::Composition composition;
    std::vector<std::string> files;  ///< what is no option, in order
    int repeat = 0;                  ///< 0: convert once and print no time
    bool help = false;
    bool info = false;      ///< print the picture's size
    bool rgb = false;       ///< write its pixels
    bool check = false;     ///< print what is wrong with a screen file
    bool mend = false;      ///< write it without that
    std::string complaint;  ///< what is wrong with the arguments; empty when nothing is
};

/// Arguments without the program's own name.
ConvertOptions ReadOptions(const std::vector<std::string>& arguments);

/// All that the program can do, for a screen of 80 x 25 characters.
extern const char kHelp[];

}  // namespace vistrel::tools
