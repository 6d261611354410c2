// Reads the two lists of the picture corpus.
#include "tests/pictures/corpus.h"

#include <fstream>
#include <map>
#include <sstream>

#include "pictures/bmp_reader.h"
#include "pictures/gif_reader.h"
#include "pictures/jpg_reader.h"

namespace vistrel::test {

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

bool IsJpg(FileBytes file) { return file.size() >= 2 && file[0] == 0xFF && file[1] == 0xD8; }

std::unique_ptr<PictureRows> OpenByContent(FileBytes file) {
    const bool isGif = file.size() >= 2 && file[0] == 'G' && file[1] == 'I';
    return isGif ? OpenGif(file) : OpenBmp(file);
}

}  // namespace

std::optional<RgbPicture> ReadByContent(FileBytes file) {
    if (IsJpg(file)) return ReadJpg(file);
    const std::unique_ptr<PictureRows> rows = OpenByContent(file);
    if (!rows) return std::nullopt;
    return ReadAll(*rows);
}

std::optional<ScaledPicture> ReadScaledByContent(FileBytes file, int width, int height) {
    if (IsJpg(file)) return ReadJpgScaled(file, width, height);
    const std::unique_ptr<PictureRows> rows = OpenByContent(file);
    if (!rows) return std::nullopt;
    return ReadScaled(*rows, width, height);
}

std::optional<RgbPicture> ReadPartByContent(FileBytes file, int part) {
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
