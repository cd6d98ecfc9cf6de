#pragma once

#include "Gr_Modifier.h"

#include <cstdint>

/// How a sprite sheet is cut and run.
struct SpriteSheet {
    unsigned rows = 1;
    float stepU = 0.0F;   ///< From one frame to the next in its row.
    float stepV = 0.0F;   ///< From one row to the next, downwards.
    bool oneShot = false; ///< The object is removed at the end, instead of a new run.
    unsigned columns = 1; ///< Above 0.
    unsigned delay = 0;   ///< Physics steps between frames.
    unsigned frame = 1;   ///< The frame that the object's coordinates show, from 1.
};

/// Animates a polygon by stepping its texture coordinates through a sprite sheet, in place. Along a
/// row they only grow and rely on the texture repeating. Modifier type 0.
class TexcoordChanger : public Gr_Modifier {
public:
    explicit TexcoordChanger(const SpriteSheet& spriteSheet) : sheet(spriteSheet) {}
    /// Reads what follows the type.
    /// @throws std::string "file corrupted", for a sheet without columns too
    explicit TexcoordChanger(TextReader& stream);

    void apply(GraphicsObjecte& object) override;
    int getType() const override { return 0; }
    void write(TextWriter& stream) const override;

private:
    void endSheet(GraphicsObjecte& object);

    SpriteSheet sheet;
    std::uint32_t lastStep = 0; // physics step of the last change; not stored
};
