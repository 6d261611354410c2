// What the descent may change a pixel's colour to.
#pragma once

#include <vector>

#include "pictures/reduce/error_field.h"

namespace vistrel::reduce {

/// For each colour of a palette the changes to its neighbours, laid out to be weighed together:
/// changing a pixel's colour by d changes the sum that is made small by c |d|^2 / 2 + d * field,
/// with c what a pixel's own error counts in the field.
std::vector<loops::Alternatives> AlternativesOf(const Palette& palette, const ErrorPalette& colors,
                                                const ErrorField& field);

}  // namespace vistrel::reduce
