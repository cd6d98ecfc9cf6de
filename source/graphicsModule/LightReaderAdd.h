#pragma once

#include "sceneManager/So_Addons/So_Addition.h"

#include <cstdint>

/// Tells game logic how much light falls on its object, by the pixel of the light map at the
/// object's place. Registers with `GraphicsModule` and leaves by itself; the scene object owns it.
class LightReaderAdd : public So_Addition {
public:
    LightReaderAdd();
    ~LightReaderAdd() override;

    /// Reads what follows the type, which is nothing. The result belongs to the caller.
    static So_Addition* read(TextReader& stream);

    void update(SceneObject* owner) override;

    /// Takes the sample. Called by the frame while the light map stands in the back buffer.
    void sample();

    std::uint8_t red = 0;   ///< The last sample.
    std::uint8_t green = 0; ///< See `red`.
    std::uint8_t blue = 0;  ///< See `red`.
    bool active = false;    ///< False until the first `update`.
    bool onScreen = false;  ///< The sample is the map's; off the map it is the ambient colour.

private:
    SceneObject* owner = nullptr; // not owned
};
