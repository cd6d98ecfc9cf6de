#include "CommandTables.h"

#include "Monsters.h"
#include "Random.h"
#include "Verbs.h"
#include "graphicsModule/LightAdd.h"
#include "sceneManager/SceneManager.h"
#include "soundModule/SoundManager.h"

#include <LinearMath/btVector3.h>

#include <array>

// The shaft: two lianas of which one holds, a cave that changes colour, what lives under the
// bridge, and a platform that is slower up than down.

namespace {

constexpr float underBridge = 60.0F; // y of those that wait in the pit under the bridge
constexpr float inShaft = -1140.0F;  // y of those at the foot of the shaft
constexpr float slowMonster = 150.0F;
constexpr float shaftMonster = 190.0F;

/// The platform, by the loop of that name, and the rumble of its chains.
ScriptCallback startPlatform(const char* loop) {
    return verb::all({verb::script(loop), verb::flatSound("quake.wav", 40)});
}

/// What the protagonist makes of a thought.
ScriptCallback afterthought(int first, int second) {
    return verb::talk({{first, 180}, {0, 30}, {second, 180}});
}

/// Who hangs between the lianas touches both triggers in one step: the first one closes both.
void closeTriggers(SceneObject*, So_Addition*) {
    for (const char* name : {"LIA1T", "LIA2T"}) {
        if (const SceneObject* trigger = sceneManager().getSceneObject(name)) {
            for (So_Addition* addition : trigger->additions) {
                addition->lock();
            }
        }
    }
}

/// Every link of the liana crumbles, so that no hand finds it where it lies.
ScriptCallback crumble(std::string liana) {
    return [liana = std::move(liana)](SceneObject*, So_Addition*) {
        for (SceneObject* object : sceneManager().objects) {
            if (object->hasName(liana)) {
                object->addAddition(parseScript("MAKEINVISIBLE DELAY 100 REMOVEOBJECT"));
            }
        }
    };
}

/// A liana gives way. The other one holds from then on, whichever was climbed first.
ScriptCallback snapLiana(const std::string& liana) {
    return verb::all({closeTriggers,
                      verb::script("LOCK SOUND clunk2.wav REMOVEJOINTAT " + liana +
                                   " SETLOCK LIA2T SETLOCK LIA1T REMOVESCRIPT"),
                      crumble(liana), verb::talk({{466, 150}})});
}

/// The light of the owner takes on another of the cave's colours.
void changeColour(SceneObject* owner, So_Addition*) {
    constexpr std::array<std::array<float, 3>, 4> colours{
        {{0.45F, 1.0F, 0.4F}, {0.3F, 0.9F, 0.8F}, {1.0F, 0.75F, 0.4F}, {0.7F, 0.5F, 1.0F}}};
    auto* light = owner == nullptr
                      ? nullptr
                      : static_cast<LightAdd*>(owner->findAddition(AdditionType::light));
    if (light == nullptr) {
        return;
    }
    const auto& colour = colours[drawRandom() % colours.size()];
    LightProperties look = light->getProperties();
    look.red = colour[0];
    look.green = colour[1];
    look.blue = colour[2];
    light->setProperties(look);
}

void spawnUnderBridge(SceneObject*, So_Addition*) {
    addMonster({1300.0F, underBridge, 0.0F}, slowMonster,
               {{1240, underBridge, 0}, {1660, underBridge, 0}});
    addMonster({1620.0F, underBridge, 0.0F}, slowMonster,
               {{1660, underBridge, 0}, {1240, underBridge, 0}});
}

void spawnInShaft(SceneObject*, So_Addition*) {
    for (const float x : {3700.0F, 3750.0F, 3800.0F}) {
        addMonster({x, inShaft, 0.0F}, shaftMonster, {{2960, inShaft, 0}, {3600, inShaft, 0}});
    }
    soundManager().playFlat("howl.wav", 100);
}

} // namespace

std::span<const NamedCommand> chapter02Commands() {
    static const std::array table{
        NamedCommand{"CHAPTER2TEXT", verb::title(2)},
        NamedCommand{"CH2MOVE1", startPlatform("CH2MOVE1INT")},
        NamedCommand{"CH2MOVE1INT", verb::moveLoop("MOVE", 2779.0F, -1177.0F, 2.5F)},
        NamedCommand{"CH2MOVE2", startPlatform("CH2MOVE2INT")},
        NamedCommand{"CH2MOVE2INT",
                     verb::moveLoop("MOVE", 2672.0F, -809.0F, 0.6F, verb::stopSound("quake.wav"))},
        NamedCommand{"CH2SPAWNMONSTERS", spawnUnderBridge},
        NamedCommand{"CH2COLORS", changeColour},
        NamedCommand{"CH2TH1SUPRE", afterthought(460, 461)},
        NamedCommand{"CH2TH1SUP", verb::thought("TH1", 77, "CH2TH1SUPRE")},
        NamedCommand{"CH2TH1", verb::script("LOCK CH2TH1SUP REMOVESCRIPT")},
        NamedCommand{"CH2TH2SUP", verb::thought("TH2", 78, "CH2TH2SUPRE")},
        NamedCommand{"CH2TH2SUPRE", afterthought(462, 463)},
        NamedCommand{"CH2TH2", verb::script("LOCK CH2TH2SUP REMOVESCRIPT")},
        NamedCommand{"CH2TH3SUPRE", afterthought(464, 465)},
        NamedCommand{"CH2TH3SUP", verb::thought("TH3", 79, "CH2TH3SUPRE")},
        NamedCommand{"CH2TH3", verb::script("LOCK CH2TH3SUP REMOVESCRIPT")},
        NamedCommand{"CH2LIA1", snapLiana("LIA1")},
        NamedCommand{"CH2LIA2", snapLiana("LIA2")},
        NamedCommand{"CH2SPAWNMONSTERS2", spawnInShaft},
    };
    return table;
}
