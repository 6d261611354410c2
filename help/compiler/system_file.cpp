// |SYSTEM: title, contents topic, buttons, main window, language.
#include "help/compiler/system_file.h"

#include <algorithm>

#include "help/compiler/bytes.h"

namespace vistrel::help {
namespace {

constexpr unsigned kTitle = 1, kCopyright = 2, kContents = 3, kMacro = 4, kWindow = 6,
                   kLanguage = 9, kCharacterSet = 11;
constexpr unsigned kAmericanEnglish = 0x0409;

void PutRecord(std::string& file, unsigned type, const std::string& data) {
    PutU16(file, type);
    PutU16(file, static_cast<unsigned>(data.size()));
    file += data;
}

std::string Text(std::string_view text) {
    std::string bytes;
    PutText(bytes, text);
    return bytes;
}

// The viewer's main window: its caption, and a grey band behind the headings that do not scroll.
// Its position is left to the viewer.
std::string MainWindow(const std::string& caption) {
    std::string window;
    PutU16(window, 0x0207);  // type, name, caption, colour of the band
    PutFixed(window, "", 10);
    PutFixed(window, "main", 9);
    PutFixed(window, caption, 51);
    for (int i = 0; i < 5; ++i) PutU16(window, 0);
    PutU32(window, 0);
    PutU32(window, 0x00C0C0C0);
    return window;
}

}  // namespace

std::string SystemFile(const HelpSource& help, std::uint32_t contents) {
    std::string file;
    PutU16(file, 0x036C);
    PutU16(file, 33);  // minor version: the Windows 95 kind
    PutU16(file, 1);
    PutU32(file, 0);  // no date: the same sources give the same file
    PutU16(file, 0);  // not compressed
    PutRecord(file, kTitle, Text(help.title));
    if (!help.copyright.empty()) PutRecord(file, kCopyright, Text(help.copyright));
    std::string offset;
    PutU32(offset, contents);
    PutRecord(file, kContents, offset);
    const bool browses = std::any_of(help.topics.begin(), help.topics.end(),
                                     [](const Topic& topic) { return !topic.browseGroup.empty(); });
    if (browses) PutRecord(file, kMacro, Text("BrowseButtons()"));
    PutRecord(file, kWindow, MainWindow(help.title));
    std::string language(8, '\0');
    PutU16(language, kAmericanEnglish);
    PutRecord(file, kLanguage, language);
    PutRecord(file, kCharacterSet, std::string("\0\0\2\0\0", 5));
    return file;
}

}  // namespace vistrel::help
