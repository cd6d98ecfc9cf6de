#pragma once

class GraphicsObjecte;
class TextReader;
class TextWriter;

/// Something that changes a polygon each time it was drawn. Owned by the polygon.
class Gr_Modifier {
public:
    virtual ~Gr_Modifier() = default;
    virtual void apply(GraphicsObjecte& object) = 0;
    virtual int getType() const = 0;
    virtual void write(TextWriter& stream) const; ///< The base writes the type.
};

/// Reads a modifier's record, type first; null for an unknown type.
Gr_Modifier* readModifier(TextReader& stream);
