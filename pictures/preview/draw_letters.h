// Letters for a screen, smooth although old systems draw them jagged: the system draws them large,
// and what they cover of each pixel becomes a mask.
#pragma once

#include <string>

#include "pictures/compose/composition.h"
#include "platform/text_font.h"

namespace vistrel::preview {

struct Letters {
    compose::Mask mask;  ///< placed for a line whose upper left corner is at 0, 0
    /// The room of the line on the screen, in its pixels.
    int width = 0;
    int height = 0;
};

/// Draws one line. On the screen, whose pixels are wider than high, the letters have the shape of
/// the font. Of a line longer than three screens only its beginning is drawn and counts. The mask
/// is empty when there is nothing to draw or no memory.
Letters DrawLetters(const std::string& text, const platform::TextFont& font);

/// The name of the font that the system takes when one of this name is asked for: another one where
/// there is none.
std::string FaceFor(const std::string& face);

}  // namespace vistrel::preview
