// What a user has made of a picture, so that it can be changed again.
#pragma once

#include <string>
#include <vector>

#include "adjust/text_line.h"
#include "pictures/compose/composition.h"

namespace vistrel::adjust {

struct Adjustment {
    std::string source;                ///< path of the picture
    compose::Composition composition;  ///< without text
    std::vector<TextLine> lines;
};

}  // namespace vistrel::adjust
