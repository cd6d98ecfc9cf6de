#pragma once

#include "PhysicsBodies.h"
#include "sceneManager/EvilPlayer.h"
#include "sceneManager/TestPlayer.h"

#include <vector>

// Those who live in a level, for tests of the world.

inline TestPlayer* addProtagonist(float x, float y) {
    auto* player = new TestPlayer;
    put(*player, x, y);
    sceneManager().addSceneObject(player);
    sceneManager().player = player;
    return player;
}

inline EvilPlayer* addMonster(float x, float y, EvilState state = EvilState::hunter) {
    auto* monster = new EvilPlayer;
    put(*monster, x, y);
    monster->state = state;
    sceneManager().addSceneObject(monster);
    return monster;
}

/// All monsters of the scene.
inline std::vector<EvilPlayer*> monsters() {
    std::vector<EvilPlayer*> found;
    for (SceneObject* object : sceneManager().objects) {
        if (EvilPlayer* monster = EvilPlayer::of(object)) {
            found.push_back(monster);
        }
    }
    return found;
}
