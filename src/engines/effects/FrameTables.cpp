#include "engines/effects/FrameTables.h"

namespace {

constexpr std::array<std::int16_t, 18> kRings18 = {-127, -116, -44, -10, 11, 28, 40, 51, 62,
                                                   79,   87,   60,  39,  19, -1, 20, 47, 86};
constexpr std::array<std::int16_t, 21> kRings21 = {-127, -116, -91, -65, -44, -10, 11, 28, 40, 51, 62,
                                                   79,   87,   60,  39,  25,  19,  -1, 20, 47, 86};
constexpr std::array<std::int16_t, 36> kRings36 = {
    -254, -249, -232, -160, -88, -54, -20, 1,  22, 39, 56, 68, 80, 91, 102, 113, 124, 141,
    158,  166,  174,  147,  120, 141, 78,  58, 38, 22, -2, 22, 40, 67, 94,  133, 172, 86};
constexpr std::array<std::int16_t, 72> kRings72 = {
    -254, -252, -249, -241, -232, -196, -160, -124, -88, -86, -54, -37, -20, -11, 1,   12,  22,  31,
    39,   48,   56,   62,   68,   74,   80,   86,   91,  97,  102, 108, 113, 119, 124, 122, 141, 150,
    158,  162,  166,  170,  174,  177,  147,  161,  120, 131, 141, 173, 78,  88,  58,  68,  38,  46,
    22,   11,   -2,   11,   22,   33,   40,   54,   67,  81,  94,  114, 133, 153, 172, 129, 86,  43};

}  // namespace

std::span<const std::int16_t> CrystalRings(int nWidth) {
    if (nWidth <= 160) return kRings18;
    if (nWidth <= 176) return kRings21;
    if (nWidth <= 320) return kRings36;
    return kRings72;
}
