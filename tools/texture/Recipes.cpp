#include "Recipes.h"

std::span<const Recipe> recipes() {
    static constexpr Recipe table[] = {
        {"stone", paintStone},     {"brick", paintBrick},   {"rock", paintRock},
        {"dirt", paintDirt},       {"moss", paintMoss},     {"roots", paintRoots},
        {"plank", paintPlank},     {"crate", paintCrate},   {"barrel", paintBarrel},
        {"wheel", paintWheel},     {"rust", paintRust},     {"metal", paintMetal},
        {"chain", paintChain},     {"body", paintBody},     {"farLeg", paintFarLeg},
        {"nearLeg", paintNearLeg}, {"arm", paintArm},       {"drop", paintDrop},
        {"dust", paintDust},       {"spark", paintSpark},   {"light", paintLight},
        {"white", paintWhite},     {"slider", paintSlider}, {"cursor", paintCursor},
        {"haze", paintHaze},       {"pillar", paintPillar}, {"arch", paintArch},
        {"cone", paintCone},       {"fire", paintFire},     {"water", paintWater},
        {"liana", paintLiana},     {"logo", paintLogo},     {"padmap", paintPadMap},
        {"oldOne", paintOldOne},
    };
    return table;
}
