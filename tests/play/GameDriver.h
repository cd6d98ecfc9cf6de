#pragma once

#include <LinearMath/btVector3.h>

#include <functional>
#include <set>
#include <string>

class Player;
class SceneObject;
class ScriptedWindow;

/// Plays the real modules step by step, with the input of a scripted window: one step is one poll
/// of the input and, unless the game is paused, one update of physics, and a frame is drawn now and
/// then.
class GameDriver {
public:
    // The engine must be set up.
    /// Begins at the start screen.
    explicit GameDriver(ScriptedWindow& window);
    /// Begins in the map.
    GameDriver(ScriptedWindow& window, const std::string& map);

    void step();
    /// Presses or releases: left, right, up, down, shift, escape, mouse, mouse2.
    void hold(const std::string& key, bool down);
    /// Keeps the mouse at a place in world units from the protagonist, from now on.
    void aim(float x, float y);
    /// Keeps the mouse on the first object of the name, from now on.
    void aimAt(const std::string& name);
    /// Releases all that is held down, and leaves the mouse where it is.
    void letGo();
    /// Clicks on the first text on the screen that reads so.
    /// @throws std::string if none does
    void click(const std::string& shown);
    static bool shows(const std::string& shown);
    /// What the protagonist has in hand; null for nothing.
    SceneObject* held() const;
    /// Saves the running scene and goes on from the file.
    void reload();
    /// Goes on from the latest save, with all keys held that are held now.
    void loadLatest();

    Player* player() const; ///< The protagonist; null when dead.
    static btVector3 placeOf(const SceneObject& object);
    std::string describePlace() const;
    /// A number that two scenes share only if they would be saved alike.
    static std::size_t sceneHash();
    /// Draws a frame and keeps it as a picture (portable pixmap).
    void screenshot(const std::string& path);

    /// Keeps a picture of every so many steps in a directory, to judge a level by.
    void keepPictures(const std::string& directory, int everySteps);

    int steps = 0;
    std::function<void(const GameDriver&)> afterStep; ///< Called at the end of each; may be empty.

private:
    void pointMouse();
    void moveMouse(float x, float y); ///< Logical pixels from the lower left corner.
    void draw();

    ScriptedWindow& window;
    std::set<int> heldKeys;
    std::set<int> heldButtons;
    std::string pictureDirectory; // empty for none
    int pictureSteps = 0;
    int reloads = 0;
    bool aiming = false;
    std::string aimTarget; // name of an object; empty for a place relative to the protagonist
    float aimX = 0.0F;
    float aimY = 0.0F;
};
