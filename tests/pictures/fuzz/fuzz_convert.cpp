// Any bytes as a picture file that is converted to a screen file, as the program does it. The
// first byte chooses one of the formats, whose ending the file's name has.
#include <stdlib.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "pictures/bmp/reader.h"
#include "pictures/convert.h"
#include "pictures/file.h"
#include "pictures/formats.h"

namespace {

/// A folder in memory where there is one, so that the disk is left alone.
class Folder {
 public:
    Folder() {
        std::string name = std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : "/tmp";
        name += "/vistrel-fuzz-XXXXXX";
        if (mkdtemp(name.data()) == nullptr) std::abort();
        path_ = name;
    }
    ~Folder() { std::filesystem::remove_all(path_); }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    std::string File(const std::string& name) const { return path_ / name; }

 private:
    std::filesystem::path path_;
};

void Write(const std::string& path, const std::uint8_t* data, std::size_t size) {
    std::FILE* const file = std::fopen(path.c_str(), "wb");
    if (file == nullptr || std::fwrite(data, 1, size, file) != size) std::abort();
    std::fclose(file);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    const auto formats = vistrel::pictures::PictureFormats();
    if (size == 0) return 0;
    const std::string source =
        folder.File("source" + std::string(formats[data[0] % formats.size()].endings[0]));
    const std::string target = folder.File("LOGO.SYS");
    std::filesystem::remove(target);
    Write(source, data + 1, size - 1);
    vistrel::pictures::ConvertToLogo(source, target);
    if (!std::filesystem::exists(target)) return 0;

    const auto screen = vistrel::pictures::ReadWholeFile(target);
    if (!screen || screen->size() != 129078) std::abort();
    const auto picture = vistrel::bmp::ReadBmp(*screen);
    if (!picture || picture->width != 320 || picture->height != 400) std::abort();
    return 0;
}
