#pragma once

#include "GraphicsObject.h"
#include "GraphicsObjectData.h"
#include "ShadowOutline.h"

class GraphicsModule;
class Painter;
struct ShapeArrays;

/// One convex polygon with a colour and a texture coordinate at each vertex. Subclasses say where
/// its transform comes from. Owns its modifiers.
class GraphicsObjecte : public GraphicsObject {
public:
    GraphicsObjecte();
    explicit GraphicsObjecte(const GraphicsObjectData& data);
    ~GraphicsObjecte() override;

    void draw() override;
    /// For polygons of stream type 1 or 2 that lie close to the plane of the lights.
    void drawShadow(LightAdd& light) override;
    void setCastsShadow(int casts) override { castsShadow = casts; }
    /// Puts the origin of the transform there, by `moveBy`.
    void moveTo(float x, float y) override;
    void moveBy(float dx, float dy) override;
    void rotateVertices(float angle) override;
    void transformVertices(const btTransform& matrix) override;
    int getTexture() const override { return data.texture; }
    float getParallax() const override { return data.parallax; }
    void write(TextWriter& stream) const override;
    Bounds getBounds() const override { return worldBounds; }
    void updateBounds() override;
    void updateLocalBounds() override;
    void mapTexcoordsToWorld() override;
    void mapTexcoordsToBounds() override;
    void mapTexcoordsMixed() override;
    void regenerateTexcoords() override;
    void centreVertices() override;
    btVector3 getCentre() const override;
    void setOutlined(bool value) override { outlined = value; }
    void setColour(float r, float g, float b, float a) override;
    void getColour(float& r, float& g, float& b, float& a) const override;

    /// Vertices, texture coordinates, colours and the rest, for those who edit them in place.
    GraphicsObjectData& getData() { return data; }
    const GraphicsObjectData& getData() const { return data; }
    Bounds getLocalBounds() const { return localBounds; }

    bool ignoreAmbient = false; ///< Not tinted by the ambient light when above z 1.
    int castsShadow = 1;

protected:
    /// Gives the painter the object's place, under the camera, and its texture. To be ended with
    /// `popTransform`.
    Painter& beginPainting(const GraphicsModule& module) const;
    /// The polygon as the painter takes it: borrowed, nothing is copied.
    ShapeArrays arrays() const;
    /// The end of a record, as `readLook` reads it.
    void writeLook(TextWriter& stream) const;
    /// Diagonal of the world bounds, for `debugDraw`.
    void drawBoundsLine() const;
    void applyModifiers();

    GraphicsObjectData data;
    bool outlined = false;
    Bounds localBounds = unboundedBounds;
    Bounds worldBounds = unboundedBounds;

private:
    ShadowOutline shadowOutline;

    void drawShape(const GraphicsModule& module) const;
    void drawOutline() const;
    Bounds vertexBox() const;
    void mapAxisToWorld(int axis, float textureSize);
    void mapAxisToBounds(int axis, float textureSize);
};
