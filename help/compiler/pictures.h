// The pictures of the help text and the internal files |bm0, |bm1...
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "help/compiler/source.h"

namespace vistrel::help {

/// Reads a picture file by the name that the topics give; nothing when it cannot be read.
using PictureLoader = std::function<std::optional<std::string>(const std::string& name)>;

/// The content of a |bm file made of a BMP file of 1, 4 or 8 bits without compression. False, with
/// the reason in `problem`, for anything else.
bool PictureFile(const std::string& bmp, std::string& file, std::string& problem);

/// The pictures used, numbered in the order of their first use.
class Pictures {
 public:
    Pictures(PictureLoader load, SourceErrors& errors) : load_(std::move(load)), errors_(errors) {}

    /// The number of a picture, from 0. One that cannot be used is reported at `place`.
    unsigned NumberOf(const std::string& name, const SourcePlace& place);

    /// The contents of |bm0, |bm1..., by number.
    const std::vector<std::string>& Files() const { return files_; }

 private:
    PictureLoader load_;
    SourceErrors& errors_;
    std::map<std::string, unsigned> numbers_;
    std::vector<std::string> files_;
};

}  // namespace vistrel::help
