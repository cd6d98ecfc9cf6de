#pragma once

#include <string_view>
#include <vector>

class Gr_Modifier;
class TextReader;

/// What a polygon consists of, on its way between stream, shape makers and constructors.
struct GraphicsObjectData {
    std::vector<float> vertices;         ///< x, y pairs in local space, in polygon order.
    std::vector<float> texcoords;        ///< u, v, one pair a vertex.
    std::vector<float> colours;          ///< r, g, b, a, one set a vertex, 0 to 1.
    int texture = -1;                    ///< Handle of the `TextureStore`, -1 for none.
    float parallax = 1.0F;               ///< 1 moves with the world, 0 stays on the screen.
    float z = 0.0F;                      ///< Depth, larger is nearer.
    int texcoordMode = 1;                ///< 0 bounds, 1 world, 2 mixed; never stored.
    std::vector<Gr_Modifier*> modifiers; ///< Owned by the object that takes them.
};

GraphicsObjectData makeBoxData(float halfWidth, float halfHeight, int texture, float z,
                               float parallax, int texcoordMode, float r, float g, float b,
                               float a);
GraphicsObjectData makeCircleData(float radius, int texture, float z, float parallax,
                                  int texcoordMode, float r, float g, float b, float a);

/// Reads the part that every polygon's record begins with, without its type.
GraphicsObjectData readGraphicsObjectData(TextReader& stream);
/// Reads the end of that part, which is the end of a water's record too: texture, parallax, depth
/// and modifiers.
void readLook(TextReader& stream, GraphicsObjectData& data);
