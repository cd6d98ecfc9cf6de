#pragma once

#include <cstdint>

class TextReader;
class TextWriter;

/// What a map may tune of a character. Stored in this order.
struct PlayerStatistics {
    virtual ~PlayerStatistics() = default;
    virtual void save(TextWriter& stream) const;

    float speed = 250.0F;      ///< Top walking and swimming speed, world units a second.
    float push = 10.0F;        ///< Half of the sideways impulse that walking gives to the support.
    float jump = 160.0F;       ///< Take-off speed, less 10 world units a second.
    float spare1 = 100.0F;     ///< Stored and loaded, read by nothing.
    float spare2 = 100.0F;     ///< Stored and loaded, read by nothing.
    float armor = 0.0F;        ///< Percent of any damage that is taken off.
    float bite = 25.0F;        ///< Damage of an enemy's bite; 0 counts as 25.
    std::int32_t health = 100; ///< Hit points; the character dies below 0.
};

PlayerStatistics readPlayerStatistics(TextReader& stream);
