// Reads the two lists of the picture corpus.
#include "tests/pictures/corpus.h"

#include <array>
#include <fstream>
#include <map>
#include <sstream>

#include "pictures/bmp/reader.h"
#include "pictures/gif/reader.h"
#include "pictures/jpg/reader.h"

namespace vistrel::test {

using namespace bmp;
using namespace gif;
using namespace jpg;
using namespace pictures;

namespace {

std::vector<std::string> Split(const std::string& line, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(line);
    for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
    return parts;
}

// The rows of a table with at least `columns` columns, remarks left out.
std::vector<std::vector<std::string>> ReadTable(const std::string& path, std::size_t columns) {
    std::vector<std::vector<std::string>> rows;
    std::ifstream file(path);
    for (std::string line; std::getline(file, line);) {
        if (line.empty() || line[0] == '#') continue;
        std::vector<std::string> row = Split(line, '\t');
        if (row.size() >= columns && row[0] != "path") rows.push_back(row);
    }
    return rows;
}

Reference ReferenceOf(const std::vector<std::string>& row) {
    Reference reference;
    if (row[1] != "-") {
        reference.width = std::stoi(row[1]);
        reference.height = std::stoi(row[2]);
    }
    reference.method = row[3];
    reference.md5 = row[4];
    reference.md5OnBackground = row[5];
    if (row[7] != "-") {
        for (const std::string& number : Split(row[7], ',')) {
            reference.mean.push_back(std::stod(number));
        }
    }
    return reference;
}

CorpusKind KindOf(const std::string& word) {
    if (word == "good") return CorpusKind::Good;
    return word == "questionable" ? CorpusKind::Questionable : CorpusKind::Bad;
}

}  // namespace

std::vector<CorpusFile> ReadCorpus(const std::string& folder, const std::string& ending) {
    std::map<std::string, Reference> references;
    for (const auto& row : ReadTable(folder + "/REFERENCE.tsv", 8)) {
        references[row[0]] = ReferenceOf(row);
    }
    std::vector<CorpusFile> files;
    for (const auto& row : ReadTable(folder + "/MANIFEST.tsv", 4)) {
        if (!row[0].ends_with(ending)) continue;
        CorpusFile file{row[0], KindOf(row[2]), row[3], std::nullopt};
        const auto reference = references.find(row[0]);
        if (reference != references.end()) file.reference = reference->second;
        files.push_back(file);
    }
    return files;
}

namespace {

bool BeginsWith(const PictureFile& file, const std::array<std::uint8_t, 2>& wanted) {
    std::array<std::uint8_t, 2> start;
    file.Copy(0, start);
    return start == wanted;
}

bool IsJpg(const PictureFile& file) { return BeginsWith(file, {0xFF, 0xD8}); }

std::unique_ptr<PictureRows> OpenByContent(const PictureFile& file) {
    return BeginsWith(file, {'G', 'I'}) ? OpenGif(file) : OpenBmp(file);
}

}  // namespace

std::optional<RgbPicture> ReadByContent(const PictureFile& file) {
    if (IsJpg(file)) return ReadJpg(file);
    const std::unique_ptr<PictureRows> rows = OpenByContent(file);
    if (!rows) return std::nullopt;
    return ReadAll(*rows);
}

std::optional<ScaledPicture> ReadScaledByContent(const PictureFile& file, int width, int height) {
    if (IsJpg(file)) return ReadJpgScaled(file, width, height);
    const std::unique_ptr<PictureRows> rows = OpenByContent(file);
    if (!rows) return std::nullopt;
    return ReadScaled(*rows, width, height);
}

std::optional<RgbPicture> ReadPartByContent(const PictureFile& file, int part) {
    const auto middle = [part](int width, int height) {
        const PictureArea whole = PictureArea::WholeOf(width, height);
        return PictureArea{(whole.width - whole.width / part) / 2,
                           (whole.height - whole.height / part) / 2, whole.width / part,
                           whole.height / part};
    };
    if (IsJpg(file)) {
        const std::optional<PictureSize> size = SizeOfJpg(file);
        if (!size) return std::nullopt;
        return ReadJpgScaled(file, middle(size->width, size->height), 320, 400);
    }
    const std::unique_ptr<PictureRows> rows = OpenByContent(file);
    if (!rows) return std::nullopt;
    return ReadScaled(*rows, middle(rows->width(), rows->height()), 320, 400);
}

}  // namespace vistrel::test
