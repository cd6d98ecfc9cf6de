#pragma once

#include "GraphicsObject.h"
#include "Module.h"
#include "Service.h"

#include <array>
#include <memory>
#include <set>
#include <string>
#include <vector>

class Camera;
class InterfaceGraphicsObject;
class LightAdd;
class LightMap;
class LightReaderAdd;
class ParticleEmiter;

inline bool debugDraw = false;  ///< Value of `DEBUG_DRAW`: bounds lines and the physics layer.
inline float brightness = 0.0F; ///< Value of `BRIGHTNESS`; what exceeds a whole number brightens.
inline int niceEffects = 1;     ///< Value of `NICE_EFFECTS`; 0 drops layers of other parallax.
inline int letterboxX = 0;      ///< Width of the left bar, window pixels.
inline int letterboxY = 0;      ///< Height of the bottom bar, window pixels.

constexpr float logicalWidth = 1280.0F; ///< The logical screen, whatever the window's size.
constexpr float logicalHeight = 800.0F;
constexpr int lightMapSize = 512; ///< Pixels on each side.

/// A colour that a light or an overlay moves to, 0 to 1 each.
using Colour3 = std::array<float, 3>;
using Colour4 = std::array<float, 4>;

/// Draws: one `update` is one frame. Owns what is registered with it. Deleted by `ModuleManager`.
class GraphicsModule : public Module {
    ServiceSlot<GraphicsModule> slot{this};

public:
    GraphicsModule();
    ~GraphicsModule() override;

    /// One complete frame.
    void update() override;

    /// Moves ambient light, overlays and shared emitters by one step. Called by `PhysicsModule`.
    void updateStep();

    // World objects. Adding takes over, removing deletes, detaching gives back. Adding twice says
    // "there already is such GraphicsObject!", an unknown object "GraphicsObject not exist!".
    void addObject(GraphicsObject* object);
    void removeObject(GraphicsObject* object); ///< Ignores null.
    void detachObject(GraphicsObject* object); ///< Looks among objects, then lights.
    void addInterfaceObject(GraphicsObject* object);
    void removeInterfaceObject(GraphicsObject* object); ///< Ignores null.
    void addLight(LightAdd* light);

    /// The object is removed at the end of this frame. For use inside a `draw`.
    void markDead(GraphicsObject* object);

    /// Fits the picture of 1280 by 800 into the window, with bars.
    void setViewport();

    /// The scene overlay stands still at this colour.
    void setSceneFade(float r, float g, float b, float a);
    bool fadesFinished() const;

    // Bursts of the shared emitters at a world point.
    void spawnDust(const btVector3& position, unsigned count);
    void spawnBlood(const btVector3& position, unsigned count);
    void spawnSparks(const btVector3& position, unsigned count);

    /// World point to pixel of the light map.
    void worldToLightMap(float x, float y, int& px, int& py) const;

    const std::vector<GraphicsObject*>& getObjects() const { return objects; }
    const std::vector<GraphicsObject*>& getInterfaceObjects() const { return interfaceObjects; }
    const std::vector<LightAdd*>& getLights() const { return lights; }
    const Bounds& getView() const { return view; }
    const InterfaceGraphicsObject& getCursor() const { return *cursor; }
    LightMap& getLightMap() { return *lightMap; }

    Colour3 ambient{};                             ///< Present ambient colour.
    Colour3 ambientTarget{0.2F, 0.2F, 0.2F};       ///< What `ambient` moves to.
    Colour4 screenFadeTarget{};                    ///< What `screenFade` moves to.
    Colour4 sceneFadeTarget{};                     ///< What `sceneFade` moves to.
    InterfaceGraphicsObject* screenFade = nullptr; ///< Overlay over everything; owned.
    InterfaceGraphicsObject* sceneFade = nullptr;  ///< Overlay under the interface; owned.
    std::set<LightReaderAdd*> lightReaders;        ///< Register and leave by themselves.
    /// Never null, owned. Whoever replaces it deletes the old one.
    Camera* camera = nullptr;

private:
    void readSettings();
    void loadTextures();
    void createOverlays();
    void createEmitters();
    void setUpDevice();

    // The phases of a frame, in order.
    void beginFrame();
    void refreshObjects();
    void drawLightMap();
    void drawScene();
    void drawInterface();
    void drawCursor();
    void removeDeadObjects();
    void drawDebugLayer();
    void drawBrightness();

    // The parts of the phases.
    void drawLitSlice();
    void multiplyLightMap();
    void drawTintedSlice();
    void drawGlows();
    void drawFrontSlice();

    std::vector<GraphicsObject*> objects;          // owned
    std::vector<GraphicsObject*> interfaceObjects; // owned
    std::vector<LightAdd*> lights;                 // owned
    std::set<GraphicsObject*> deadObjects;
    Bounds view{};                             // world rectangle visible in this frame
    std::unique_ptr<LightMap> lightMap;        // never null
    InterfaceGraphicsObject* cursor = nullptr; // owned
    ParticleEmiter* dustEmiter = nullptr;      // owned
    ParticleEmiter* bloodEmiter = nullptr;     // owned
    ParticleEmiter* sparkEmiter = nullptr;     // owned
};

GraphicsModule& graphicsModule();
