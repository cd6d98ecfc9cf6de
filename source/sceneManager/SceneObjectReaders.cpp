#include "SceneObjectReaders.h"

#include "DestructionObject.h"
#include "EvilPlayer.h"
#include "Forcefield.h"
#include "Player.h"
#include "TestPlayer.h"

#include <array>

namespace {

SceneObject* readPlain(TextReader&, const SceneParts& parts) {
    return new SceneObject(parts);
}

SceneObject* readPlayer(TextReader& stream, const SceneParts& parts) {
    return Player::load(stream, parts);
}

SceneObject* readTestPlayer(TextReader& stream, const SceneParts& parts) {
    return TestPlayer::load(stream, parts);
}

SceneObject* readEvilPlayer(TextReader& stream, const SceneParts& parts) {
    return EvilPlayer::load(stream, parts);
}

struct Row {
    int type;
    SceneObjectReader read;
};

constexpr std::array readers{
    Row{sceneObjectType::withoutPhysics, readPlain},
    Row{sceneObjectType::plain, readPlain},
    Row{sceneObjectType::player, readPlayer},
    Row{sceneObjectType::destruction, DestructionObject::load},
    Row{sceneObjectType::forcefield, Forcefield::load},
    Row{sceneObjectType::testPlayer, readTestPlayer},
    Row{sceneObjectType::evilPlayer, readEvilPlayer},
};

} // namespace

SceneObjectReader sceneObjectReader(int type) {
    for (const Row& row : readers) {
        if (row.type == type) {
            return row.read;
        }
    }
    return nullptr;
}
