// Paints the sample sets, the screens of a fresh machine and some pictures into a folder.
#include <cstdio>
#include <filesystem>
#include <string>

#include "art/files/gif_writer.h"
#include "art/files/jpg_writer.h"
#include "art/files/screen_file.h"
#include "art/samples/movements.h"
#include "art/samples/scene.h"
#include "pictures/file.h"

using namespace vistrel;
using namespace vistrel::samples;

namespace {

struct Set {
    const char* name;
    Scene scene;
    Movement move;  // of the startup screen, or a null pointer
};

const Set kMultiLogo[] = {
    {"Night Sky", NightSky, Twinkle},          {"Green Hills", GreenHills, nullptr},
    {"Typewriter", Typewriter, nullptr},       {"Weave", Weave, nullptr},
    {"Sunny Day", SunnyDay, TurnRays},         {"Deep Sea", DeepSea, MoveWater},
    {"City Lights", CityLights, LightWindows},
};
const Set kSingleLogo[] = {
    {"Sunrise.SLS", Sunrise, nullptr},
    {"Circuit.SLS", Circuit, nullptr},
    {"Marbles.SLS", Marbles, nullptr},
};

void Write(const std::filesystem::path& path, const std::vector<std::uint8_t>& bytes) {
    std::filesystem::create_directories(path.parent_path());
    if (pictures::WriteWholeFile(path.string(), bytes)) return;
    std::fprintf(stderr, "cannot write %s\n", path.string().c_str());
    std::exit(1);
}

// Painted twice as fine as the screen's pixels, for the scaling to work on.
void WriteScreen(const std::filesystem::path& path, Scene scene, Screen screen,
                 Movement move = nullptr) {
    Painting painting(kWidth, kHeight, 640, 800);
    scene(painting, screen);
    Write(path, move ? MovingScreen(painting, move) : StillScreen(painting));
}

void WriteTrio(const std::filesystem::path& folder, const Set& set) {
    WriteScreen(folder / "LOGO.SYS", set.scene, Screen::Startup, set.move);
    WriteScreen(folder / "LOGOW.SYS", set.scene, Screen::Wait);
    WriteScreen(folder / "LOGOS.SYS", set.scene, Screen::Shutdown);
}

pictures::RgbPicture Painted(void (*scene)(Painting&), double width, double height, int pixelWidth,
                             int pixelHeight) {
    Painting painting(width, height, pixelWidth, pixelHeight);
    scene(painting);
    return painting.Picture();
}

}  // namespace

int main(int count, char** arguments) {
    if (count != 2) {
        std::fprintf(stderr, "draw_samples FOLDER\n");
        return 1;
    }
    const std::filesystem::path folder = arguments[1];
    for (const Set& set : kMultiLogo) WriteTrio(folder / "sets" / set.name, set);
    for (const Set& set : kSingleLogo) {
        WriteScreen(folder / "sets" / set.name / "LOGO.SYS", set.scene, Screen::Startup);
    }
    WriteScreen(folder / "sets" / "LOGOW.SYS", Shared, Screen::Wait);
    WriteScreen(folder / "sets" / "LOGOS.SYS", Shared, Screen::Shutdown);
    WriteTrio(folder / "installed", {"", CompassRose, nullptr});
    Write(folder / "pictures" / "Balloons.bmp",
          TrueColorBitmap(Painted(Balloons, 800, 600, 800, 600)));
    Write(folder / "pictures" / "Tulips.bmp",
          IndexedBitmap(Painted(Tulips, kWidth, kHeight, 320, 400)));
    Write(folder / "pictures" / "Stained Glass.gif",
          GifFile(Painted(StainedGlass, 480, 360, 480, 360)));
    Write(folder / "pictures" / "Lighthouse.jpg", JpgFile(Painted(Lighthouse, 640, 480, 640, 480)));
    return 0;
}
