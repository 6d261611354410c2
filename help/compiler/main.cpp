// The help compiler's command line:
//
//   help_compiler OUTPUT PICTURE_FOLDER SOURCE...
//
// Writes OUTPUT and returns 0, or says what is wrong as FILE:LINE: MESSAGE and returns 1.
#include <cstdio>
#include <fstream>
#include <iterator>

#include "help/compiler/help_file.h"

namespace {

std::optional<std::string> ReadWholeFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

bool WriteWholeFile(const std::string& path, const std::string& bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    return file.good();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 4) {
        std::fprintf(stderr, "usage: help_compiler OUTPUT PICTURE_FOLDER SOURCE...\n");
        return 1;
    }
    const std::string output = argv[1], pictureFolder = argv[2];
    vistrel::help::SourceErrors errors;
    std::vector<vistrel::help::SourceFile> sources;
    for (int i = 3; i < argc; ++i) {
        const std::optional<std::string> text = ReadWholeFile(argv[i]);
        if (!text) errors.push_back({{argv[i], 0}, "cannot be read"});
        sources.push_back({argv[i], text.value_or("")});
    }
    std::string file;
    if (errors.empty()) {
        const auto loadPicture = [&](const std::string& name) {
            return ReadWholeFile(pictureFolder + "/" + name);
        };
        file = vistrel::help::CompileHelp(sources, loadPicture, errors);
    }
    for (const vistrel::help::SourceError& error : errors)
        std::fprintf(stderr, "%s:%d: %s\n", error.place.file.c_str(), error.place.line,
                     error.message.c_str());
    if (!errors.empty()) return 1;
    if (!WriteWholeFile(output, file)) {
        std::fprintf(stderr, "%s: cannot be written\n", output.c_str());
        return 1;
    }
    return 0;
}
