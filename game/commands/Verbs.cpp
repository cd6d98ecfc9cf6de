#include "Verbs.h"

#include "Language.h"
#include "NamedObjects.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/TitleCard.h"
#include "graphicsModule/GraphicsModule.h"
#include "inputModule/InputModule.h"
#include "sceneManager/Player.h"
#include "sceneManager/SceneManager.h"
#include "soundModule/SoundManager.h"

#include <LinearMath/btVector3.h>

namespace verb {

ScriptCallback all(std::vector<ScriptCallback> commands) {
    return [commands = std::move(commands)](SceneObject* owner, So_Addition* link) {
        for (const ScriptCallback& command : commands) {
            command(owner, link);
        }
    };
}

ScriptCallback script(std::string text) {
    return [text = std::move(text)](SceneObject*, So_Addition*) { runScript(text); };
}

ScriptCallback chainOn(std::string object, std::string text) {
    return [object = std::move(object), text = std::move(text)](SceneObject*, So_Addition*) {
        if (SceneObject* found = sceneManager().getSceneObject(object)) {
            found->addAddition(parseScript(text));
        }
    };
}

ScriptCallback title(int chapter) {
    return [chapter](SceneObject*, So_Addition*) { introduceChapter(chapter); };
}

ScriptCallback flatSound(std::string name, int volume) {
    return [name = std::move(name), volume](SceneObject*, So_Addition*) {
        soundManager().playFlat(name, static_cast<std::uint8_t>(volume));
    };
}

ScriptCallback stopSound(std::string name) {
    return [name = std::move(name)](SceneObject*, So_Addition*) { soundManager().stopAll(name); };
}

ScriptCallback dustAt(const std::string& object, float dx, float dy, unsigned count,
                      const std::string& sound) {
    return [=](SceneObject*, So_Addition*) {
        btVector3 place;
        if (placeOf(object, place)) {
            graphicsModule().spawnDust(place + btVector3(dx, dy, 0.0F), count);
            soundManager().playAt(sound, place);
        }
    };
}

void speak(Player& character, const std::vector<Speech>& lines) {
    for (const Speech& speech : lines) {
        character.say(speech.line == 0 ? std::string(" ") : text(speech.line), speech.steps);
    }
}

ScriptCallback talk(std::vector<Speech> lines) {
    return [lines = std::move(lines)](SceneObject*, So_Addition*) {
        if (Player* player = sceneManager().player) {
            speak(*player, lines);
        }
    };
}

ScriptCallback interrupt(std::vector<Speech> lines) {
    return [lines = std::move(lines)](SceneObject*, So_Addition*) {
        if (Player* player = sceneManager().player) {
            player->silence();
            speak(*player, lines);
        }
    };
}

ScriptCallback tip(int line, int steps) {
    return script("LOCK TIP " + std::to_string(line) + " DELAY " + std::to_string(steps) +
                  " TIP -1 REMOVESCRIPT");
}

ScriptCallback thought(const std::string& object, int line, const std::string& after) {
    return [=](SceneObject*, So_Addition*) {
        SceneObject* place = sceneManager().getSceneObject(object);
        if (place == nullptr) {
            return;
        }
        runScript("LOCK LOCKSIM FADEALLTOWHITE FADESCENETOWHITE SOUND whisp.wav DELAY 100 TIP " +
                  std::to_string(line) +
                  " FADEALLTONORMAL DELAY 100 DELAYORKEY 10000 TIP -1 FADENORMAL DELAY 100 "
                  "UNLOCKSIM DELAY 50 " +
                  (after.empty() ? after : after + " ") + "REMOVESCRIPT");
        place->clearAdditions();
    };
}

ScriptCallback ambient(float r, float g, float b) {
    return [=](SceneObject*, So_Addition*) { graphicsModule().ambientTarget = {r, g, b}; };
}

} // namespace verb
