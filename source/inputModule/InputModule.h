#pragma once

#include "Module.h"
#include "Service.h"
#include "platform/Window.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

class InputFrame;
class InputObject;
class Text;

/// Turns keyboard, mouse, wheel and joystick into one stream of events, offers mouse events to the
/// open frames, highest first, and everything that no window took to the root `game`. Deleted by
/// `ModuleManager`.
class InputModule : public Module {
    ServiceSlot<InputModule> slot{this};

public:
    InputModule();
    ~InputModule() override;

    /// Once a tick: hover, widgets, joystick, then the polling of events.
    void update() override;

    /// Moves the frame by x, y, opens it and takes it over. A frame that is open already gets
    /// "jest juz taki obiekt InputFrame".
    void addFrame(InputFrame* frame, float x, float y);
    /// Closes and deletes. A frame that is not open gets "niema takiego obiektu InputFrame".
    void removeFrame(InputFrame* frame);
    void removeAllFrames();
    /// Replaces the tip, a text at the top of the screen shifted by x, y; an empty or blank one
    /// only takes the old one away.
    void showTip(const std::string& text, float x, float y, bool noBackground, bool dark);

    void keyEvent(int key, int action);
    /// Reads the mouse position itself.
    void mouseEvent(int button, int action);
    void wheelEvent(int position);

    const std::vector<InputFrame*>& getFrames() const { return frames; }

    InputObject* focus = nullptr;   ///< Who last took the focus; not owned.
    InputObject* grabbed = nullptr; ///< Who has the drag and gets all keys; not owned.
    InputObject* game = nullptr;    ///< The root; owned.
    int dragging = 0;               ///< 1 while `grabbed` is being dragged.
    int lastButton = 0;             ///< Button of the last press or release.
    char keyUp = 'W';               ///< The four game keys, upper-case letters.
    char keyDown = 'S';
    char keyLeft = 'A';
    char keyRight = 'D';
    int rebinding = 0;           ///< 1 to 4 while the next key becomes up, down, left, right.
    Text* rebindLabel = nullptr; ///< Shows the key being bound; not owned.
    std::array<float, platform::joystickAxisCount> axes{};
    std::array<std::uint8_t, platform::joystickButtonCount> buttons{};

    /// Drops every pointer to an object that is about to go.
    void forget(const InputObject* object);

private:
    void bindKey(int key);
    void dispatch(float x, float y, int button, int action);
    void dispatchToFrame(InputFrame* hit, float x, float y, int button, int action);
    void dispatchToGame(float x, float y, int button, int action);
    bool isOpen(const InputFrame* frame) const;
    InputFrame* frameAt(float x, float y) const;
    void bringToFront(const InputFrame* frame);
    void sortFrames();
    void dropFocus();
    void deleteFrame(InputFrame* frame);
    void updateJoystick();
    void joystickMovesKeys();
    void joystickMovesMouse();
    void joystickPresses();

    std::vector<InputFrame*> frames; // owned, highest first
    InputFrame* tipFrame = nullptr;
    InputObject* pressTarget = nullptr; // who got the latest press
    std::array<float, platform::joystickAxisCount> previousAxes{};
    std::array<std::uint8_t, platform::joystickButtonCount> previousButtons{};
    int wheelPosition = 0;
};

InputModule& inputModule();
