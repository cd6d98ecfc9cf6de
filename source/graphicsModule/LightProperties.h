#pragma once

class TextReader;
class TextWriter;

/// What a light looks like, and its stored form, in this order.
struct LightProperties {
    LightProperties() = default;
    /// @throws std::string "file corrupted"
    explicit LightProperties(TextReader& stream);
    virtual ~LightProperties() = default;
    LightProperties(const LightProperties&) = default;
    LightProperties& operator=(const LightProperties&) = default;

    virtual void write(TextWriter& stream) const;

    float size = 0.0F;         ///< Half the side of the light's square, world units.
    float red = 0.0F;          ///< Colour at full strength, 0 to 1.
    float green = 0.0F;        ///< See `red`.
    float blue = 0.0F;         ///< See `red`.
    int flickerPeriod = 0;     ///< Steps of a flicker cycle; 0 or 1 is steady, odd glows as well.
    bool castsShadows = false; ///< Whether objects hide what is behind them from the light.
    float offsetX = 0.0F;      ///< Where shadows are cast from, in the light's local space.
    float offsetY = 0.0F;      ///< See `offsetX`.
    float shiftX = 0.0F;       ///< How far the square stands off its object, world units.
    float shiftY = 0.0F;       ///< See `shiftX`.
    int texture = -1;          ///< Shape of the light; stored as its file name.
};
