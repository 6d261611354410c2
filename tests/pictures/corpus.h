// A folder of pictures from everywhere with two lists: what each picture exercises (MANIFEST.tsv)
// and what it should come out as (REFERENCE.tsv).
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "pictures/picture_file.h"

namespace vistrel::test {

enum class CorpusKind { Good, Questionable, Bad };

struct Reference {
    int width = 0;  ///< 0 when no program tells
    int height = 0;
    std::string method;
    std::string md5;  ///< "-" for none
    std::string md5OnBackground;
    std::vector<double> mean;  ///< of red, green, blue; empty for none
};

struct CorpusFile {
    std::string path;  ///< relative to the folder, with slashes
    CorpusKind kind = CorpusKind::Bad;
    std::string about;
    std::optional<Reference> reference;
};

/// The files of the corpus whose names end in `ending`, in the order of the list.
std::vector<CorpusFile> ReadCorpus(const std::string& folder, const std::string& ending);

/// Reads a file in the format that its first bytes stand for: names may mislead.
std::optional<pictures::RgbPicture> ReadByContent(const pictures::PictureFile& file);

/// The same, scaled to a size.
std::optional<pictures::ScaledPicture> ReadScaledByContent(const pictures::PictureFile& file,
                                                           int width, int height);

/// The same at a screen's size, of the middle, a `part`th of each side.
std::optional<pictures::RgbPicture> ReadPartByContent(const pictures::PictureFile& file, int part);

}  // namespace vistrel::test
