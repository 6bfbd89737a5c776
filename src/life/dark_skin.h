// Which pictures of partners are drawn with dark skin, by their number: the page draws them, and their children take
// after them.
#pragma once

#include <array>
#include <cstdint>

namespace backbeat {

inline constexpr auto femaleDarkSkin = std::to_array<int64_t>({
    1,   3,   9,   12,  13,  18,  19,  23,  25,  28,  30,  35,  36,  40,  42,  43,  46,  48,  52,  55,  60,  62,
    64,  66,  69,  77,  79,  82,  85,  90,  91,  94,  95,  96,  98,  103, 105, 108, 109, 121, 123, 124, 130, 135,
    136, 137, 138, 142, 143, 145, 147, 148, 150, 151, 154, 155, 156, 159, 160, 161, 163, 165, 167, 168, 169, 179,
    180, 183, 184, 186, 187, 193, 194, 195, 197, 199, 200, 202, 204, 208, 209, 212, 213, 214, 220, 222, 223, 224,
    226, 232, 235, 236, 238, 240, 242, 243, 244, 255, 259, 260, 261, 262, 263, 266, 268, 269, 271,
});

inline constexpr auto maleDarkSkin = std::to_array<int64_t>({
    3, 5, 7, 16, 18, 20, 25, 26, 31, 32, 35, 38, 40, 41, 42, 44, 47, 48, 53, 54, 55, 56, 57, 62, 63, 64, 66, 70, 71,
});

}  // namespace backbeat
