#pragma once

#include <LinearMath/btTransform.h>

class LightAdd;
class PhysicsObject;
class TextReader;
class TextWriter;

/// A box of world or local coordinates.
struct Bounds {
    float left, bottom, right, top;

    bool overlaps(const Bounds& other) const {
        return left <= other.right && other.left <= right && bottom <= other.top &&
               other.bottom <= top;
    }
};

/// Where an object without a shape of its own counts as being: everywhere.
constexpr Bounds unboundedBounds{-1e18F, -1e18F, 1e18F, 1e18F};

/// Anything that `GraphicsModule` can draw. A wide interface, so that lists, scene objects and
/// scripts treat polygons, groups, text, water and emitters alike; most operations do nothing
/// unless a class gives them a meaning. World objects are in world units, interface objects in the
/// logical screen of 1280 by 800 with the origin at the lower left. Larger z is nearer to the
/// viewer.
class GraphicsObject {
public:
    explicit GraphicsObject(int recordType = 0) : type(recordType) {}
    virtual ~GraphicsObject() = default;
    GraphicsObject(const GraphicsObject&) = delete;
    GraphicsObject& operator=(const GraphicsObject&) = delete;

    virtual void draw() = 0;
    virtual void drawShadow(LightAdd& light);
    virtual void setCastsShadow(int casts);
    virtual float getZ() const = 0;
    virtual void setZ(float z) = 0;
    virtual void moveTo(float x, float y);
    virtual void moveBy(float dx, float dy);
    virtual void rotateVertices(float angle);                  ///< Radians, counter-clockwise.
    virtual void transformVertices(const btTransform& matrix); ///< Basis only.
    virtual bool containsPoint(float x, float y) const;
    virtual float getLeft() const;
    virtual float getRight() const;
    virtual float getBottom() const;
    virtual float getTop() const;
    virtual float getWidth() const;
    virtual float getHeight() const;
    virtual int getTexture() const;
    virtual float getParallax() const; ///< 1 moves with the world, 0 stays on the screen.
    virtual void getTransform(btTransform& out) const = 0;
    virtual btTransform& getTransformRef() = 0;
    virtual void setPhysicsObject(PhysicsObject* object);
    /// Appends the stream record. Asserts in classes that are not stored.
    virtual void write(TextWriter& stream) const;
    virtual Bounds getBounds() const; ///< World bounds as of the last `updateBounds`.
    virtual void updateBounds();
    virtual void updateLocalBounds();
    virtual void refreshTransform();
    virtual void mapTexcoordsToWorld();
    virtual void mapTexcoordsToBounds();
    virtual void mapTexcoordsMixed();
    virtual void regenerateTexcoords();
    virtual void centreVertices();
    virtual btVector3 getCentre() const;
    virtual void setOutlined(bool outlined);
    virtual void setColour(float r, float g, float b, float a);
    virtual void getColour(float& r, float& g, float& b, float& a) const;

    int type; ///< Code of the stream record, 0 for what is never stored.

protected:
    /// For objects without a transform. Made anew at each call, so that no change to it lasts.
    static btTransform& identityTransform();
};

/// Reads a record of any stored graphics class.
/// @throws std::string "file corrupted"
GraphicsObject* readGraphicsObject(TextReader& stream);
