#include "ChapterTable.h"

#include <array>

namespace {

constexpr Spray waking{20.0F, 3.5F, 300.0F, 0.1F, 2.0F, 0.36F};
constexpr Spray drifting{20.0F, 3.5F, 300.0F, 0.5F, 0.0F, 3.0F};
constexpr Spray thin{2.0F, 3.5F, 300.0F, 0.5F, 0.0F, 1.5F};
constexpr Spray crackling{2.0F, 1.6F, 100.0F, 0.5F, 20.0F, 0.0F};
constexpr Spray scattered{2.0F, 3.5F, 300.0F, 0.7F, 10.0F, 2.9F};

/// The story begins and ends with the same eleven lines.
constexpr auto wakingPace = "300 T1 ~ T2 ~ T3 T4 ~ T5 ~ T6 ~ T7 ~ T8 ~ T9 ~ T10 ~ T11";

constexpr bool following = true;
constexpr bool standing = false;

std::array<ChapterRow, chapterCount> makeTable() {
    using enum IntroPartner;
    const std::string wakes = wakingPace;
    // Title, lines and their pace; light, camera and zoom; stage; start.
    // clang-format off
    return {{
        {9, {55, 56, 57, 58, 59, 60, 61, 62, 63, 64, 65, 66, 67, 68, 69},
         wakes + " ~ T12 ~ T13 ~ T14 ~ T15 100", 0.0F, following, 1.3F,
         {&waking, 30.0F, {0, 0}},
         Place{1050, 150}},
        {76, {85, 86, 87}, "300 T1 200 T2 200 T3 200", 0.0F, standing, 1.3F,
         {&drifting, 30.0F, {0, 400}, none, {}, "CH2T4"},
         Place{-300, 300}},
        {113, {128, 129, 130, 131}, "200 T1 200 T2 200 T3 200 T4 200", 0.0F, standing, 1.3F,
         {&drifting, 30.0F, {-200, 0}, cloud, {-700, 0}, "CH3T5"},
         Place{-600, 0}},
        {103, {132, 133, 134, 135, 134}, "200 T1 200 T2 200 T3 300 T5 150 T4 400", 0.0F, standing, 1.3F,
         {&drifting, 30.0F, {300, 0}, cloud, {-600, 0}, "CH4T6"},
         Place{0, 600}},
        {147, {188, 189, 190, 191, 192}, "200 T1 200 T2 200 T3 300 T4 350 T5 300", 0.0F, following, 1.3F,
         {&drifting, 30.0F, {-400, 0}},
         Place{-500, 90}},
        {151, {182, 183, 184, 185, 186, 187}, "200 T1 200 T2 200 T3 300 T4 150 T5 300 T6 300",
         0.0F, following, 1.3F,
         {&drifting, 30.0F, {-300, 0}}},
        {211, {243, 244, 245, 246}, "200 T1 200 T2 200 T3 300 T4 300", 0.0F, following, 1.3F,
         {&drifting, 30.0F, {-400, 0}, unlitGhost, {-350, 0}}},
        {239, {240, 241, 242}, "200 T1 200 T2 200 T3 300", 0.0F, standing, 1.3F,
         {&drifting, 30.0F, {-400, 0}, unlitGhost, {-400, 25}, "CH8T6"}},
        {248, {250, 251, 252}, "200 T1 200 T2 200 T3 300", 0.02F, standing, 4.3F,
         {&thin, 2.0F, {0, 50}, monster, {0, 1}, "CH9T6", "CH9T7"}},
        {249, {253, 254, 255}, "200 T1 200 T2 200 T3 300", 0.02F, standing, 4.3F,
         {&crackling, 2.0F, {0, 5}, monster, {0, 1}, "", "CH10T7"},
         std::nullopt, true},
        {261, {279, 280, 281, 282}, "200 T1 200 T2 200 T3 200 T4 110", 0.07F, standing, 5.3F,
         {nullptr, 0.0F, {}, wakingMonster, {0, 1}, "", "CH11T7"}},
        {262, {283, 284}, "200 T1 200 T2 300", 0.02F, standing, 4.3F,
         {&thin, 2.0F, {0, 0}, none, {}, "", "CH12T7"}},
        {263, {285, 286, 287}, "200 T1 200 T2 200 T3 300", 0.0F, standing, 4.3F,
         {&scattered, 2.0F, {0, 0}, none, {}, "", "CH13T7"}},
        {264, {288, 289}, "200 T1 300 T2 300", 0.5F, standing, 5.0F,
         {nullptr, 0.0F, {}, ghost, {0, 0}, "", "CH14T6"}},
        {265, {55, 56, 57, 58, 59, 60, 61, 62, 63, 64, 65, 292, 290, 291, 293},
         wakes + " 300 T12 300 T13 300 T14 300 T15 300", 0.0F, following, 1.3F,
         {&waking, 30.0F, {0, 0}}},
    }};
    // clang-format on
}

} // namespace

const ChapterRow& chapterRow(int chapter) {
    static const std::array<ChapterRow, chapterCount> table = makeTable();
    return table.at(static_cast<std::size_t>(chapter) - 1);
}
