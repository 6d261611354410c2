// Whether the topics fit together: links, names, numbers, keywords.
#pragma once

#include "help/compiler/source.h"

namespace vistrel::help {

/// Adds to `errors` everything that keeps `help` from becoming a help file, with the place where
/// the author has to look.
void CheckSource(const HelpSource& help, SourceErrors& errors);

}  // namespace vistrel::help
