#pragma once

#include "Geometry.h"

#include <map>
#include <string>
#include <variant>
#include <vector>

namespace mapc {

/// Red, green, blue and alpha, 0 to 1.
struct Colour {
    float r = 1.0F, g = 1.0F, b = 1.0F, a = 1.0F;
};

/// "#rrggbb" or "#aarrggbb", as Tiled writes colours.
/// @throws std::string if it is neither
Colour parseColour(const std::string& text);

/// Custom properties of a map, a layer or an object. The getters give the fallback for a property
/// that is not there.
/// @throws std::string naming the property whose value is of another type
class Properties {
public:
    using Value = std::variant<bool, double, std::string>;

    void set(const std::string& name, Value value) { values[name] = std::move(value); }
    /// Takes what `outer` has and this has not.
    void inherit(const Properties& outer) {
        values.insert(outer.values.begin(), outer.values.end());
    }

    bool has(const std::string& name) const { return values.contains(name); }
    float number(const std::string& name, float fallback) const;
    int integer(const std::string& name, int fallback) const;
    bool flag(const std::string& name, bool fallback) const;
    std::string text(const std::string& name, const std::string& fallback) const;
    Colour colour(const std::string& name, Colour fallback) const;

private:
    template <class T>
    const T* find(const std::string& name, const char* expected) const;

    std::map<std::string, Value> values;
};

enum class TiledShape { rectangle, ellipse, point, polygon, polyline, other };

/// An object of the editor with all that its layers add to it. Lengths are pixels with y down,
/// angles degrees clockwise, as in Tiled.
struct TiledObject {
    int id = 0;
    std::string name;
    std::string objectClass; ///< Its own, or that of its layer.
    TiledShape shape = TiledShape::rectangle;
    Point position; ///< Top left corner of a rectangle or ellipse; layer offsets included.
    float width = 0.0F;
    float height = 0.0F;
    float rotation = 0.0F;    ///< About `position`.
    Outline polygon;          ///< Or line. Relative to `position`, not yet rotated.
    float parallax = 1.0F;    ///< Product of the layers' factors.
    float opacity = 1.0F;     ///< Product of the layers' opacities.
    bool evenParallax = true; ///< The factors of x and y agree.
    int compoundLayer = 0;    ///< Id of the layer of class Compound that holds it, or 0.
    Properties properties;    ///< Its own and, where it has none, those of its layers.
};

/// A Tiled map, as far as levels use it.
struct TiledMap {
    Point origin; ///< Pixel of the editor that is the world's 0, 0: the map's parallax origin.
    Properties properties;
    std::vector<TiledObject> objects; ///< In the order of the file. Layers of class Notes left out.
};

/// Reads the text of a .tmj file.
/// @throws std::string with the place if it is no JSON or no such map
TiledMap parseTiledMap(const std::string& text);

} // namespace mapc
