#include "pixels.h"

#include <algorithm>
#include <cmath>

namespace orvane {

std::vector<std::uint32_t> ScaleDown(std::span<const std::uint32_t> image, int size, int newSize) {
    if (newSize >= size || newSize <= 0 || image.size() < static_cast<std::size_t>(size) * size)
        return {image.begin(), image.end()};
    const double ratio = double(size) / newSize;
    std::vector<std::uint32_t> result(static_cast<std::size_t>(newSize) * newSize);
    for (int y = 0; y < newSize; ++y) {
        for (int x = 0; x < newSize; ++x) {
            double sum[4] = {}, area = 0; // alpha-weighted red, green, blue; alpha
            const double top = y * ratio, bottom = top + ratio, left = x * ratio, right = left + ratio;
            for (int sy = int(top); sy < std::min(size, int(std::ceil(bottom))); ++sy) {
                const double height = std::min<double>(sy + 1, bottom) - std::max<double>(sy, top);
                for (int sx = int(left); sx < std::min(size, int(std::ceil(right))); ++sx) {
                    const double weight = height * (std::min<double>(sx + 1, right) - std::max<double>(sx, left));
                    const std::uint32_t p = image[static_cast<std::size_t>(sy) * size + sx];
                    const double alpha = (p >> 24) * weight;
                    for (int c = 0; c < 3; ++c)
                        sum[c] += ((p >> (16 - 8 * c)) & 0xFF) * alpha;
                    sum[3] += alpha;
                    area += weight;
                }
            }
            std::uint32_t pixel = static_cast<std::uint32_t>(std::lround(sum[3] / area)) << 24;
            for (int c = 0; c < 3 && sum[3] > 0; ++c)
                pixel |= static_cast<std::uint32_t>(std::lround(sum[c] / sum[3])) << (16 - 8 * c);
            result[static_cast<std::size_t>(y) * newSize + x] = pixel;
        }
    }
    return result;
}

} // namespace orvane
