#include "Levels.h"

#include "ChapterFlow.h"
#include "ProcessValues.h"
#include "ReturnToMenu.h"
#include "StoryMonsters.h"
#include "TitleCard.h"
#include "game/commands/NamedObjects.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/LockedCamera.h"
#include "inputModule/GameInput.h"
#include "inputModule/InputModule.h"
#include "physicsModule/PhysicsObject.h"
#include "sceneManager/MapFile.h"
#include "sceneManager/TestPlayer.h"

#include <BulletDynamics/Dynamics/btRigidBody.h>

namespace {

constexpr float levelZoom = 1.3F;
constexpr int fullHealth = 100;
constexpr int mapFailureLine = 432; // of the language table

std::optional<Level> levelInPlay; // empty if a saved game is played

void placeAtStart(Player& player, const std::optional<Place>& start) {
    btVector3 place;
    if (start) {
        putAt(player, btVector3(start->x, start->y, 0.0F));
    } else if (placeOf("STARTPOS", place)) {
        putAt(player, place);
    }
}

/// Replaces the scene by the map and a new character.
Player& buildLevel(const Level& level) {
    SceneBundle bundle = loadMapFile(dataPrefix + "maps/" + level.map, true);
    levelRunning = 0; // until the character stands
    sceneManager().clearScene();
    sceneManager().addScene(std::move(bundle));
    levelInPlay = level;
    Player* player = level.asMonster ? makePlayedMonster() : new TestPlayer;
    placeAtStart(*player, level.start);
    sceneManager().addSceneObject(player);
    return *player;
}

void followWithCamera(Player& player) {
    useCamera(new LockedCamera(&player));
    graphicsModule().camera->setZoom(levelZoom);
}

void takeControl(Player& player) {
    sceneManager().player = &player;
    player.physicsObject->settle();
    followWithCamera(player);
    PlayerStatistics statistics = player.statistics;
    statistics.health = fullHealth;
    player.setStatistics(statistics); // so that what a save lacks or exceeds is no wound
    levelRunning = 1;
}

void takeProtagonists() {
    for (SceneObject* object : sceneManager().objects) {
        if (object->type == sceneObjectType::testPlayer) {
            takeControl(*object->asPlayer());
        }
    }
}

void takePlayedMonster() {
    SceneObject* monster = sceneManager().getSceneObject(playedMonsterName);
    if (Player* player = monster != nullptr ? monster->asPlayer() : nullptr) {
        takeControl(*player);
    }
}

/// The first chapter is woken up in, out of the white of its intro; no save is made at its start.
void wakeUp() {
    Player& player = buildLevel(levelOf(1));
    sceneManager().player = &player;
    followWithCamera(player);
    runScript("LOCK LOCKMOVEMENT DELAY 100 CHAPTER1 REMOVESCRIPT");
    levelRunning = 1;
    graphicsModule().screenFadeTarget = {1.0F, 1.0F, 1.0F, 0.0F};
}

void beginChapter(int chapter) {
    enterLevel(levelOf(chapter));
    runScript("ISAVEGAME CHAPTER" + std::to_string(chapter) + "TEXT REMOVESCRIPT");
}

/// Without a map there is no game to go on with.
template <class Entry>
void enterOrLeave(Entry entry) {
    try {
        entry();
    } catch (const std::string& reason) {
        returnToMenu(mapFailureLine, reason);
    }
}

} // namespace

Level levelOf(int chapter) {
    const ChapterRow& row = chapterRow(chapter);
    return {"CHAPTER" + std::to_string(chapter) + ".vkl", row.start, row.asMonster};
}

void enterLevel(const Level& level) {
    buildLevel(level);
    enterChapter(level.asMonster);
}

bool restartLevel() {
    if (levelInPlay) {
        enterLevel(Level(*levelInPlay));
    }
    return levelInPlay.has_value();
}

void forgetLevel() {
    levelInPlay.reset();
}

void enterChapter(bool evil) {
    movementLocked = 0;
    physicsRunning = 1; // whatever stood still, ends with what made it
    chapterFlags.fill(0);
    inputModule().removeAllFrames();
    evil ? takePlayedMonster() : takeProtagonists();
}

void registerLevels() {
    addSceneCommand("INEWGAME1", [] { enterOrLeave(wakeUp); });
    for (int chapter = 2; chapter <= chapterCount; ++chapter) {
        addSceneCommand("CHAPTER" + std::to_string(chapter),
                        [chapter] { enterOrLeave([chapter] { beginChapter(chapter); }); });
    }
}
