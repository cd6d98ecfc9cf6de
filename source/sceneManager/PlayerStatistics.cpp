#include "PlayerStatistics.h"

#include "TextStream.h"

void PlayerStatistics::save(TextWriter& stream) const {
    stream << speed << push << jump << spare1 << spare2 << armor << bite << health;
}

PlayerStatistics readPlayerStatistics(TextReader& stream) {
    PlayerStatistics read;
    stream >> read.speed >> read.push >> read.jump >> read.spare1 >> read.spare2 >> read.armor >>
        read.bite >> read.health;
    return read;
}
