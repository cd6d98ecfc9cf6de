#pragma once

#include "Canvas.h"

#include <cstdint>
#include <span>
#include <string_view>

/// One way to paint a picture. A recipe paints any size; the seed changes what is left to chance.
struct Recipe {
    std::string_view name;
    void (*paint)(Canvas& canvas, std::uint32_t seed);
};

/// All recipes, by family.
std::span<const Recipe> recipes();

// stone.cpp
void paintStone(Canvas& canvas, std::uint32_t seed);
void paintBrick(Canvas& canvas, std::uint32_t seed);
void paintRock(Canvas& canvas, std::uint32_t seed);
void paintDirt(Canvas& canvas, std::uint32_t seed);
// plants.cpp
void paintMoss(Canvas& canvas, std::uint32_t seed);
void paintRoots(Canvas& canvas, std::uint32_t seed);
void paintLiana(Canvas& canvas, std::uint32_t seed);
// wood.cpp
void paintPlank(Canvas& canvas, std::uint32_t seed);
void paintCrate(Canvas& canvas, std::uint32_t seed);
void paintBarrel(Canvas& canvas, std::uint32_t seed);
void paintWheel(Canvas& canvas, std::uint32_t seed);
// metal.cpp
void paintRust(Canvas& canvas, std::uint32_t seed);
void paintMetal(Canvas& canvas, std::uint32_t seed);
void paintChain(Canvas& canvas, std::uint32_t seed);
// creature.cpp
void paintBody(Canvas& canvas, std::uint32_t seed);
void paintFarLeg(Canvas& canvas, std::uint32_t seed);
void paintNearLeg(Canvas& canvas, std::uint32_t seed);
void paintArm(Canvas& canvas, std::uint32_t seed);
void paintOldOne(Canvas& canvas, std::uint32_t seed);
// particles.cpp
void paintDrop(Canvas& canvas, std::uint32_t seed);
void paintDust(Canvas& canvas, std::uint32_t seed);
void paintSpark(Canvas& canvas, std::uint32_t seed);
// lights.cpp
void paintLight(Canvas& canvas, std::uint32_t seed);
void paintCone(Canvas& canvas, std::uint32_t seed);
void paintFire(Canvas& canvas, std::uint32_t seed);
// water.cpp
void paintWater(Canvas& canvas, std::uint32_t seed);
// interface.cpp
void paintWhite(Canvas& canvas, std::uint32_t seed);
void paintSlider(Canvas& canvas, std::uint32_t seed);
void paintCursor(Canvas& canvas, std::uint32_t seed);
// logo.cpp
void paintLogo(Canvas& canvas, std::uint32_t seed);
// padmap.cpp
void paintPadMap(Canvas& canvas, std::uint32_t seed);
// backdrop.cpp
void paintHaze(Canvas& canvas, std::uint32_t seed);
void paintPillar(Canvas& canvas, std::uint32_t seed);
void paintArch(Canvas& canvas, std::uint32_t seed);
