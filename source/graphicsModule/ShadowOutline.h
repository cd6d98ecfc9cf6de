#pragma once

#include <cstddef>
#include <cstdint>

/// A polygon's note of where `ShadowStrips` keeps its outline of this frame. Nobody else looks into
/// it.
struct ShadowOutline {
    std::uint32_t frame = 0;
    std::size_t first = 0;
    std::size_t count = 0;
    float z = 0.0F;
};
