#pragma once

#include "sceneManager/So_Addons/CallbackAdd.h"

#include <string>
#include <vector>

class Player;

// What the chapters' commands are made of. A verb returns a command: most rows of the tables are a
// name and a verb. Objects go by their names in the map; a command that misses one does nothing,
// and a loop that misses one ends. A loop is a command that runs in every step, as a script of one
// word, until it removes its script.
namespace verb {

/// Each of the commands in turn.
ScriptCallback all(std::vector<ScriptCallback> commands);

/// Starts a global script.
ScriptCallback script(std::string text);

/// Puts a chain on the named object, in which it is saved with the scene.
ScriptCallback chainOn(std::string object, std::string text);

/// The title of a chapter, for its first seconds.
ScriptCallback title(int chapter);

/// A one-shot without place.
ScriptCallback flatSound(std::string name, int volume);
ScriptCallback stopSound(std::string name);

/// Dust at an offset from the named object, and a sound from there.
ScriptCallback dustAt(const std::string& object, float dx, float dy, unsigned count,
                      const std::string& sound);

/// A line of the language table, or a pause.
struct Speech {
    int line; ///< 0 is a pause.
    int steps;
};

/// The protagonist says the lines one after the other, behind those that wait already.
ScriptCallback talk(std::vector<Speech> lines);
/// The same, in place of all that it says or was about to say.
ScriptCallback interrupt(std::vector<Speech> lines);
/// What `talk` does, for any character.
void speak(Player& character, const std::vector<Speech>& lines);

/// A tip, shown for so many steps.
ScriptCallback tip(int line, int steps);

/// A thought of the protagonist, once in a level: the world stops, the scene goes white, the line
/// stands until a key, and then the word `after`, if there is one, is run. The object, on which the
/// thought hangs, loses its additions.
ScriptCallback thought(const std::string& object, int line, const std::string& after);

/// A loop that moves a static object by at most `step` units a step, and runs `arrived`, if there
/// is one, when it is there.
ScriptCallback moveLoop(const std::string& object, float x, float y, float step,
                        const ScriptCallback& arrived = {});
/// The same, to the place of another object.
ScriptCallback moveLoopTo(const std::string& object, const std::string& destination, float step,
                          const ScriptCallback& arrived = {});
/// Takes away the first joint of the named object: what it held falls.
ScriptCallback release(std::string object);

/// Opens a room that hides, and closes it again.
ScriptCallback unhide(std::string object);
ScriptCallback hide(std::string object);

/// Takes an object out of the scene at the end of the step.
ScriptCallback remove(std::string object);

/// The rate of the first emitter of the named object, in particles a step.
ScriptCallback emit(std::string object, float rate);

/// Colour of the first light of the named object, 0 to 1 each.
ScriptCallback colourLight(const std::string& object, float r, float g, float b);

/// Where ambient light goes, 0 to 1 each.
ScriptCallback ambient(float r, float g, float b);

} // namespace verb
