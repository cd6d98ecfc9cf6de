#pragma once

#include "PhysicsGraphicsObject.h"

#include <array>
#include <cstddef>

/// Water with a straight surface: a strip of columns that hang from the surface line down to the
/// bottom. It has one colour, and dims the light within its area by half. Neither tinted by the
/// room nor dropped with the layers of other parallax. Stream type 6.
///
/// Of its data, `vertices` holds the surface alone, a point a column from left to right;
/// `texcoords` a pair a column for the surface, then a pair a column for the bottom; `colours` one
/// colour for all.
class StaticWaterGraphics : public PhysicsGraphicsObject {
public:
    /// The rectangle is in local space, `top` being the level at rest. Columns stand 10 units
    /// apart, the last one short of `right`.
    StaticWaterGraphics(float left, float bottom, float right, float top, int texture, float depth,
                        float parallax, int texcoordMode, float r, float g, float b, float a);
    /// Reads what follows the type; the physics object is attached later.
    /// @throws std::string "file corrupted"
    explicit StaticWaterGraphics(TextReader& stream);

    void draw() override;
    void drawShadow(LightAdd& light) override;
    void write(TextWriter& stream) const override;
    void updateLocalBounds() override;
    void regenerateTexcoords() override; ///< Of both rows.

    /// One step of the surface.
    virtual void updateSurface() {}
    /// Something of that width hits the surface at a local x; `force` is added to the speed of the
    /// surface there, in world units a second, up being positive.
    virtual void splash(float x, float width, float force);

    /// The rectangle that it was built with.
    const Bounds& getArea() const { return area; }

    static constexpr float columnWidth = 10.0F;
    /// A water of 200 000 units is wider than any level; beyond it, the file is damaged.
    static constexpr int mostColumns = 20'000;

protected:
    /// The strip, unless it is out of view.
    void drawStrip() const;
    /// What every drawing ends with.
    void finishDrawing();

    Bounds area;

private:
    struct Record;
    explicit StaticWaterGraphics(const Record& record);
    static Record readRecord(TextReader& stream);

    void paintStrip(const std::array<float, 4>& colour) const;
};
