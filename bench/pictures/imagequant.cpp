// The calls in the order of libimagequant's manual.
#include "bench/pictures/imagequant.h"

#include <libimagequant.h>

#include <cstdlib>

namespace vistrel::bench {

std::vector<std::uint8_t> WithAlpha(const std::vector<std::uint8_t>& rgb) {
    std::vector<std::uint8_t> rgba;
    rgba.reserve(rgb.size() / 3 * 4);
    for (std::size_t i = 0; i < rgb.size(); i += 3) {
        rgba.insert(rgba.end(), {rgb[i], rgb[i + 1], rgb[i + 2], 255});
    }
    return rgba;
}

IndexedPicture ReduceByImagequant(const std::vector<std::uint8_t>& rgba, int width, int height,
                                  int speed) {
    IndexedPicture picture;
    picture.indices.resize(rgba.size() / 4);
    liq_attr* const attributes = liq_attr_create();
    liq_set_speed(attributes, speed);
    liq_image* const image = liq_image_create_rgba(attributes, rgba.data(), width, height, 0);
    liq_result* result = nullptr;
    if (liq_image_quantize(image, attributes, &result) != LIQ_OK) std::abort();
    liq_set_dithering_level(result, 1);
    liq_write_remapped_image(result, image, picture.indices.data(), picture.indices.size());
    const liq_palette* const palette = liq_get_palette(result);
    for (unsigned i = 0; i < palette->count; ++i) {
        const liq_color& color = palette->entries[i];
        picture.palette.push_back({color.r, color.g, color.b});
    }
    liq_result_destroy(result);
    liq_image_destroy(image);
    liq_attr_destroy(attributes);
    return picture;
}

}  // namespace vistrel::bench
