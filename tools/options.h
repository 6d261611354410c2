// What is asked of logo-convert on its command line.
#pragma once

#include <string>
#include <vector>

#include "pictures/compose/composition.h"
#include "pictures/screen/layer.h"

namespace vistrel::tools {

/// A bar that moves over the whole width of the screen.
struct Bar {
    screen::Pattern pattern = screen::Pattern::Along;
    screen::Ring ring;
    int top = 384;
    int height = 16;
};

struct ConvertOptions {
    compose::Composition composition;
    std::vector<Bar> bars;           ///< to be put on the picture; all have the colours of the last
    std::vector<std::string> files;  ///< what is no option, in order
    int frames = 0;                  ///< how many to write of a screen that moves
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
