#include "TiledMap.h"

#include <nlohmann/json.hpp>

#include <cmath>
#include <cstdint>

namespace mapc {

using nlohmann::json;

namespace {

constexpr int deepestNesting = 32;
constexpr const char* compoundClass = "Compound";
constexpr const char* notesClass = "Notes";

const json& member(const json& object, const char* key) {
    static const json none;
    const auto found = object.find(key);
    return found == object.end() ? none : *found;
}

float number(const json& object, const char* key, float fallback) {
    const json& value = member(object, key);
    if (value.is_null()) {
        return fallback;
    }
    if (!value.is_number() || !std::isfinite(value.get<float>())) {
        throw std::string("\"") + key + "\" must be a number";
    }
    return value.get<float>();
}

/// The number that the editor gave a layer or object; 0 for anything else.
int idOf(const json& owner) {
    const json& value = member(owner, "id");
    constexpr std::int64_t highest = 1'000'000'000;
    const bool valid = value.is_number_integer() && std::abs(value.get<std::int64_t>()) < highest;
    return valid ? value.get<int>() : 0;
}

std::string word(const json& object, const char* key) {
    const json& value = member(object, key);
    return value.is_string() ? value.get<std::string>() : std::string();
}

/// Tiled has called it "class" in one version and "type" in the others.
std::string classOf(const json& object) {
    const std::string type = word(object, "type");
    return type.empty() ? word(object, "class") : type;
}

const json& list(const json& object, const char* key) {
    static const json none = json::array();
    const json& value = member(object, key);
    if (value.is_null()) {
        return none;
    }
    if (!value.is_array()) {
        throw std::string("\"") + key + "\" must be a list";
    }
    return value;
}

Properties readProperties(const json& owner) {
    Properties result;
    for (const json& property : list(owner, "properties")) {
        const std::string name = word(property, "name");
        const json& value = member(property, "value");
        if (value.is_boolean()) {
            result.set(name, value.get<bool>());
        } else if (value.is_number()) {
            result.set(name, value.get<double>());
        } else if (value.is_string() && !value.get_ref<const std::string&>().empty()) {
            result.set(name, value.get<std::string>()); // an empty text is Tiled's "not set"
        }
    }
    return result;
}

/// Layers have a class of their own in newer versions of Tiled, and a property of that name in all.
std::string layerClassOf(const json& layer) {
    const std::string own = word(layer, "class");
    return own.empty() ? readProperties(layer).text("class", "") : own;
}

TiledShape shapeOf(const json& object) {
    if (object.contains("polygon")) {
        return TiledShape::polygon;
    }
    if (object.contains("polyline")) {
        return TiledShape::polyline;
    }
    if (object.contains("text") || object.contains("gid") || object.contains("template")) {
        return TiledShape::other;
    }
    if (member(object, "point") == true) {
        return TiledShape::point;
    }
    return member(object, "ellipse") == true ? TiledShape::ellipse : TiledShape::rectangle;
}

/// What an object takes from the layers around it.
struct LayerContext {
    Point offset;
    float parallaxX = 1.0F;
    float parallaxY = 1.0F;
    float opacity = 1.0F;
    int compoundLayer = 0;
    std::string objectClass;
    Properties properties;

    LayerContext within(const json& layer) const {
        LayerContext inner = *this;
        inner.offset =
            offset + Point{number(layer, "offsetx", 0.0F), number(layer, "offsety", 0.0F)};
        inner.parallaxX *= number(layer, "parallaxx", 1.0F);
        inner.parallaxY *= number(layer, "parallaxy", 1.0F);
        inner.opacity *= number(layer, "opacity", 1.0F);
        const std::string layerClass = layerClassOf(layer);
        if (layerClass == compoundClass) {
            inner.compoundLayer = idOf(layer);
        } else if (!layerClass.empty()) {
            inner.objectClass = layerClass;
        }
        inner.properties = readProperties(layer);
        inner.properties.inherit(properties);
        return inner;
    }
};

TiledObject readObject(const json& source, const LayerContext& layer) {
    TiledObject object;
    object.id = idOf(source);
    object.name = word(source, "name");
    object.objectClass = classOf(source);
    if (object.objectClass.empty()) {
        object.objectClass = layer.objectClass;
    }
    object.shape = shapeOf(source);
    object.position = layer.offset + Point{number(source, "x", 0.0F), number(source, "y", 0.0F)};
    object.width = number(source, "width", 0.0F);
    object.height = number(source, "height", 0.0F);
    object.rotation = number(source, "rotation", 0.0F);
    const char* corners = object.shape == TiledShape::polyline ? "polyline" : "polygon";
    for (const json& point : list(source, corners)) {
        object.polygon.push_back({number(point, "x", 0.0F), number(point, "y", 0.0F)});
    }
    object.parallax = layer.parallaxX;
    object.evenParallax = layer.parallaxX == layer.parallaxY;
    object.opacity = layer.opacity;
    object.compoundLayer = layer.compoundLayer;
    object.properties = readProperties(source);
    object.properties.inherit(layer.properties);
    return object;
}

void readLayers(const json& layers, const LayerContext& outer, int depth, TiledMap& map) {
    if (depth > deepestNesting) {
        throw std::string("groups of layers are nested too deeply");
    }
    for (const json& layer : layers) {
        if (layerClassOf(layer) == notesClass) {
            continue;
        }
        const LayerContext context = outer.within(layer);
        readLayers(list(layer, "layers"), context, depth + 1, map);
        for (const json& object : list(layer, "objects")) {
            try {
                map.objects.push_back(readObject(object, context));
            } catch (const std::string& reason) {
                throw "object " + std::to_string(idOf(object)) + ": " + reason;
            }
        }
    }
}

} // namespace

Colour parseColour(const std::string& text) {
    const bool withAlpha = text.size() == 9;
    if ((text.size() != 7 && !withAlpha) || text[0] != '#' ||
        text.find_first_not_of("0123456789abcdefABCDEF", 1) != std::string::npos) {
        throw "\"" + text + "\" is no colour";
    }
    const unsigned long value = std::stoul(text.substr(1), nullptr, 16);
    const auto channel = [value](unsigned shift) {
        return static_cast<float>((value >> shift) & 0xFFU) / 255.0F;
    };
    return {channel(16), channel(8), channel(0), withAlpha ? channel(24) : 1.0F};
}

template <class T>
const T* Properties::find(const std::string& name, const char* expected) const {
    const auto found = values.find(name);
    if (found == values.end()) {
        return nullptr;
    }
    const T* value = std::get_if<T>(&found->second);
    if (value == nullptr) {
        throw "property \"" + name + "\" must be " + expected;
    }
    return value;
}

float Properties::number(const std::string& name, float fallback) const {
    const double* value = find<double>(name, "a number");
    const float result = value == nullptr ? fallback : static_cast<float>(*value);
    if (!std::isfinite(result)) {
        throw "property \"" + name + "\" is too large";
    }
    return result;
}

int Properties::integer(const std::string& name, int fallback) const {
    const double* value = find<double>(name, "a whole number");
    if (value == nullptr) {
        return fallback;
    }
    if (*value != std::floor(*value) || std::abs(*value) > 1e9) {
        throw "property \"" + name + "\" must be a whole number";
    }
    return static_cast<int>(*value);
}

bool Properties::flag(const std::string& name, bool fallback) const {
    const bool* value = find<bool>(name, "true or false");
    return value == nullptr ? fallback : *value;
}

std::string Properties::text(const std::string& name, const std::string& fallback) const {
    const std::string* value = find<std::string>(name, "a text");
    return value == nullptr ? fallback : *value;
}

Colour Properties::colour(const std::string& name, Colour fallback) const {
    const std::string* value = find<std::string>(name, "a colour");
    return value == nullptr ? fallback : parseColour(*value);
}

TiledMap parseTiledMap(const std::string& text) {
    json source;
    try {
        source = json::parse(text);
    } catch (const json::exception& failure) {
        throw std::string("is no JSON: ") + failure.what();
    }
    if (!source.is_object() || word(source, "type") != "map") {
        throw std::string("is no Tiled map");
    }
    TiledMap map;
    map.origin = {number(source, "parallaxoriginx", 0.0F), number(source, "parallaxoriginy", 0.0F)};
    map.properties = readProperties(source);
    readLayers(list(source, "layers"), {}, 0, map);
    return map;
}

} // namespace mapc
