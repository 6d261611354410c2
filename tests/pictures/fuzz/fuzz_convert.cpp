// Any bytes as a picture file that is converted to a screen file, as the program does it. The
// first byte chooses one of the formats, whose ending the file's name has.
#include "pictures/bmp/reader.h"
#include "pictures/convert.h"
#include "pictures/file.h"
#include "pictures/formats.h"
#include "tests/pictures/fuzz/memory_folder.h"

using namespace vistrel::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const MemoryFolder folder;
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
