// The help compiler as a whole: topic sources in, help file out.
#pragma once

#include <string>
#include <vector>

#include "help/compiler/pictures.h"
#include "help/compiler/source.h"

namespace vistrel::help {

/// Makes the help file of the sources, in their order. The same sources give the same bytes. The
/// result means nothing when there are `errors`; they then say all that is wrong.
std::string CompileHelp(const std::vector<SourceFile>& files, const PictureLoader& loadPicture,
                        SourceErrors& errors);

}  // namespace vistrel::help
