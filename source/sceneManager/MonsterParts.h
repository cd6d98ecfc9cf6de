#pragma once

#include "SceneObject.h"
#include "graphicsModule/LightProperties.h"

#include <array>

/// What a new monster is made of, for the engine and for the tool that puts monsters into maps.
/// World units from the centre of the body, radians counter-clockwise.
namespace monsterLook {

/// A plain quad.
struct Quad {
    float halfWidth, halfHeight;
    float red; ///< Of its colour, 0 to 1; green and blue are 0.
    float x, y;
    float turn;
};

constexpr float eyeHalf = 2.5F;
constexpr float eyeX = 5.0F; ///< To either side.
constexpr float eyeY = 5.0F;

/// Body, eyes and horns in drawing order.
inline constexpr std::array quads{
    Quad{10.0F, 10.0F, 0.0F, 0.0F, 0.0F, 0.0F},
    Quad{eyeHalf, eyeHalf, 0.8F, -eyeX, eyeY, 0.0F},
    Quad{eyeHalf, eyeHalf, 0.8F, eyeX, eyeY, 0.0F},
    Quad{1.0F, 5.0F, 0.0F, -6.0F, 13.0F, -0.5235988F},
    Quad{1.0F, 5.0F, 0.0F, 6.0F, 13.0F, 0.5235988F},
};
constexpr const char* texture = "null.tga"; ///< Of the quads and of the light of the eyes.
constexpr float depth = -0.4F;

constexpr float bodyRadius = 10.0F;
constexpr float bounce = 0.1F;
constexpr float friction = 1.0F;
constexpr float mass = 1.0F;

/// Script of the wet footfall that goes with it.
constexpr const char* footfall = "SOUNDSOURCE lap.wav -V 128";

} // namespace monsterLook

/// A new monster at the world's origin. The parts belong to the caller.
SceneParts makeMonsterParts();

/// The light of an eye, which makes it seen in the dark: it covers the eye and nothing else. `side`
/// is -1 for the left one, 1 for the right one.
LightProperties makeEyeLight(float side);
