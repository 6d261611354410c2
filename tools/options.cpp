// A table of the options; each has a function that takes its value.
#include "tools/options.h"

#include <array>
#include <charconv>
#include <optional>

#include "pictures/loops/loops.h"

namespace vistrel::tools {

using compose::Composition;
using compose::FramingKind;

const char kHelp[] =
    "Makes screens of 320 x 400 pixels and 256 colours of BMP, GIF and JPG pictures.\n"
    "\n"
    "  logo-convert [OPTIONS] SOURCE TARGET   make a screen file of a picture\n"
    "  logo-convert --info SOURCE             print width, height and depth\n"
    "  logo-convert --rgb SOURCE TARGET       write its 24-bit pixels\n"
    "  logo-convert --check SCREEN            print what is wrong with a screen file\n"
    "  logo-convert --mend SCREEN TARGET      make one without that\n"
    "\n"
    "  --fill               as much of it as fills the screen, shapes as they are\n"
    "  --fit COLOR | blur   all of it, with a border: black, white, RRGGBB in\n"
    "                       hexadecimal, or its own blurred edge\n"
    "                       (neither: stretched over the whole screen)\n"
    "  --crop X,Y,W,H       only this part, in pixels of the turned picture\n"
    "  --turn N             clockwise by 0, 90, 180 or 270 degrees\n"
    "  --mirror             left to right, after turning\n"
    "  --brightness N       -100 to 100, as --contrast N and --saturation N\n"
    "  --gamma N            10 to 500; above 100 is lighter\n"
    "  --auto               darkest and lightest become black and white\n"
    "  --dither STRENGTH    none, light, medium or strong (else: as suits it)\n"
    "  --repeat N           convert N times and print the median time in ms\n"
    "\n"
    "The exit status is 0 when all went well, 1 when a file could not be read or\n"
    "written or a screen has a fault, 2 when the options are wrong. TARGET is then\n"
    "as it was.\n";

namespace {

std::optional<int> NumberOf(const std::string& text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

bool SetNumber(const std::string& text, int least, int most, int& target) {
    const std::optional<int> number = NumberOf(text);
    if (!number || *number < least || *number > most) return false;
    target = *number;
    return true;
}

bool SetCrop(const std::string& text, Composition& composition) {
    std::array<int, 4> numbers{};
    std::size_t from = 0;
    for (int i = 0; i < 4; ++i) {
        const std::size_t comma = i < 3 ? text.find(',', from) : text.size();
        if (comma == std::string::npos) return false;
        const std::optional<int> number = NumberOf(text.substr(from, comma - from));
        if (!number) return false;
        numbers[i] = *number;
        from = comma + 1;
    }
    composition.crop = compose::Crop{numbers[0], numbers[1], numbers[2], numbers[3]};
    return numbers[2] > 0 && numbers[3] > 0;
}

std::optional<compose::Color> ColorOf(const std::string& text) {
    if (text == "black") return compose::Color{};
    if (text == "white") return compose::Color{255, 255, 255};
    const char* const first = text.data() + (text.starts_with('#') ? 1 : 0);
    const char* const last = text.data() + text.size();
    unsigned value = 0;
    const auto [end, error] = std::from_chars(first, last, value, 16);
    if (error != std::errc() || end != last || last - first != 6) return std::nullopt;
    return compose::Color{static_cast<std::uint8_t>(value >> 16),
                          static_cast<std::uint8_t>(value >> 8), static_cast<std::uint8_t>(value)};
}

bool SetFit(const std::string& text, Composition& composition) {
    composition.framing.kind = FramingKind::Fit;
    if (text == "blur") {
        composition.framing.border = compose::Border::BlurredEdge;
        return true;
    }
    const std::optional<compose::Color> color = ColorOf(text);
    composition.framing.borderColor = color.value_or(compose::Color{});
    return color.has_value();
}

bool SetTurn(const std::string& text, Composition& composition) {
    const std::optional<int> degrees = NumberOf(text);
    if (!degrees || *degrees < 0 || *degrees > 270 || *degrees % 90 != 0) return false;
    composition.orientation.quarterTurns = *degrees / 90;
    return true;
}

bool SetDither(const std::string& text, Composition& composition) {
    constexpr std::array<std::pair<const char*, reduce::Dither>, 4> kStrengths = {
        {{"none", reduce::Dither::Off},
         {"light", reduce::Dither::Light},
         {"medium", reduce::Dither::Medium},
         {"strong", reduce::Dither::Strong}}};
    for (const auto& [name, dither] : kStrengths) {
        if (text != name) continue;
        composition.dither = dither;
        return true;
    }
    return false;
}

/// For tests and benchmarks, and not in the help: the innermost loops for some kind of processor.
bool ForceLoops(const std::string& text) {
    constexpr std::array<std::pair<const char*, loops::Kind>, 3> kKinds = {
        {{"singles", loops::Kind::Singles},
         {"mmx", loops::Kind::Mmx},
         {"sse2", loops::Kind::Sse2}}};
    for (const auto& [name, kind] : kKinds) {
        if (text != name || !loops::CanRun(kind)) continue;
        loops::Force(kind);
        return true;
    }
    return false;
}

/// An option; those without a value have nothing that is wanted, and are given an empty one.
struct Option {
    const char* name;
    const char* wanted;
    bool (*take)(const std::string& value, ConvertOptions& options);
};

constexpr char kPercent[] = "a number from -100 to 100";

constexpr Option kOptions[] = {
    {"--help", nullptr, [](const std::string&, ConvertOptions& o) { return o.help = true; }},
    {"--info", nullptr, [](const std::string&, ConvertOptions& o) { return o.info = true; }},
    {"--rgb", nullptr, [](const std::string&, ConvertOptions& o) { return o.rgb = true; }},
    {"--check", nullptr, [](const std::string&, ConvertOptions& o) { return o.check = true; }},
    {"--mend", nullptr, [](const std::string&, ConvertOptions& o) { return o.mend = true; }},
    {"--repeat", "a number from 1 to 1000",
     [](const std::string& value, ConvertOptions& o) {
         return SetNumber(value, 1, 1000, o.repeat);
     }},
    {"--fill", nullptr,
     [](const std::string&, ConvertOptions& o) {
         o.composition.framing.kind = FramingKind::Fill;
         return true;
     }},
    {"--fit", "black, white, six hexadecimal digits or blur",
     [](const std::string& value, ConvertOptions& o) { return SetFit(value, o.composition); }},
    {"--crop", "four numbers X,Y,W,H, the last two above 0",
     [](const std::string& value, ConvertOptions& o) { return SetCrop(value, o.composition); }},
    {"--turn", "0, 90, 180 or 270",
     [](const std::string& value, ConvertOptions& o) { return SetTurn(value, o.composition); }},
    {"--mirror", nullptr,
     [](const std::string&, ConvertOptions& o) {
         return o.composition.orientation.mirrored = true;
     }},
    {"--brightness", kPercent,
     [](const std::string& value, ConvertOptions& o) {
         return SetNumber(value, -100, 100, o.composition.light.brightness);
     }},
    {"--contrast", kPercent,
     [](const std::string& value, ConvertOptions& o) {
         return SetNumber(value, -100, 100, o.composition.light.contrast);
     }},
    {"--saturation", kPercent,
     [](const std::string& value, ConvertOptions& o) {
         return SetNumber(value, -100, 100, o.composition.light.saturation);
     }},
    {"--gamma", "a number from 10 to 500",
     [](const std::string& value, ConvertOptions& o) {
         return SetNumber(value, 10, 500, o.composition.light.gamma);
     }},
    {"--auto", nullptr,
     [](const std::string&, ConvertOptions& o) { return o.composition.light.autoLevels = true; }},
    {"--dither", "none, light, medium or strong",
     [](const std::string& value, ConvertOptions& o) { return SetDither(value, o.composition); }},
    {"--loops", "singles, or mmx or sse2 where this machine has them",
     [](const std::string& value, ConvertOptions&) { return ForceLoops(value); }},
};

const Option* FindOption(const std::string& name) {
    for (const Option& option : kOptions)
        if (name == option.name) return &option;
    return nullptr;
}

}  // namespace

ConvertOptions ReadOptions(const std::vector<std::string>& arguments) {
    ConvertOptions options;
    bool fills = false, fits = false;
    for (std::size_t i = 0; i < arguments.size() && options.complaint.empty(); ++i) {
        const std::string& argument = arguments[i];
        if (!argument.starts_with("--")) {
            options.files.push_back(argument);
            continue;
        }
        const Option* const option = FindOption(argument);
        if (option == nullptr) {
            options.complaint = argument + ": there is no such option";
        } else if (option->wanted == nullptr) {
            option->take("", options);
        } else if (i + 1 == arguments.size()) {
            options.complaint = argument + " wants " + option->wanted;
        } else if (!option->take(arguments[++i], options)) {
            options.complaint =
                argument + " wants " + option->wanted + ", not \"" + arguments[i] + "\"";
        }
        fills = fills || argument == "--fill";
        fits = fits || argument == "--fit";
    }
    if (options.complaint.empty() && fills && fits)
        options.complaint = "--fill and --fit do not go together";
    return options;
}

}  // namespace vistrel::tools
