#include "GraphicsObjecte.h"

#include "Camera.h"
#include "Gr_Modifier.h"
#include "GraphicsModule.h"
#include "LightAdd.h"
#include "LightMap.h"
#include "Painter.h"
#include "TextStream.h"
#include "TextureStore.h"
#include "Yaw.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>

namespace {

constexpr float shadowDepth = 1.0F; // only what lies within this z of the lights blocks them

}

GraphicsObjecte::GraphicsObjecte() = default;

GraphicsObjecte::GraphicsObjecte(const GraphicsObjectData& shape) : data(shape) {
    GraphicsObjecte::updateLocalBounds();
}

GraphicsObjecte::~GraphicsObjecte() {
    for (Gr_Modifier* modifier : data.modifiers) {
        delete modifier;
    }
}

void GraphicsObjecte::draw() {
    if (niceEffects == 0 && data.parallax != 1.0F) {
        return;
    }
    if (const GraphicsModule& module = graphicsModule(); worldBounds.overlaps(module.getView())) {
        drawShape(module);
    }
    if (debugDraw) {
        drawBoundsLine();
    }
    applyModifiers();
}

void GraphicsObjecte::drawShadow(LightAdd& light) {
    const bool blocks = light.getBounds().overlaps(worldBounds) &&
                        std::abs(getZ()) <= shadowDepth && castsShadow != 0 &&
                        (type == 1 || type == 2);
    if (blocks) {
        graphicsModule().getLightMap().shadows.draw(*this, shadowOutline, light);
    }
}

Painter& GraphicsObjecte::beginPainting(const GraphicsModule& module) const {
    Painter& paint = painter();
    btTransform transform;
    getTransform(transform);
    paint.pushTransform();
    module.camera->applyTransform(data.parallax);
    paint.multiply(transform);
    textureStore().bind(data.texture);
    return paint;
}

void GraphicsObjecte::drawShape(const GraphicsModule& module) const {
    Painter& paint = beginPainting(module);
    Tint tint;
    if (getZ() > 1.0F && !ignoreAmbient) {
        // What lies over the light map is darkened with the room here.
        tint = {module.ambient[0], module.ambient[1], module.ambient[2]};
    }
    paint.polygon(arrays(), tint);
    if (outlined) {
        drawOutline();
    }
    paint.popTransform();
}

void GraphicsObjecte::drawOutline() const {
    static std::vector<float> white;
    ShapeArrays shape = arrays();
    white.resize(std::max(white.size(), shape.count * 4), 1.0F);
    shape.colours = white.data();
    textureStore().bind(-1);
    painter().lineLoop(shape);
}

ShapeArrays GraphicsObjecte::arrays() const {
    assert(data.texcoords.size() >= data.vertices.size() &&
           data.colours.size() >= data.vertices.size() * 2);
    return {data.vertices.data(), data.texcoords.data(), data.colours.data(),
            data.vertices.size() / 2};
}

void GraphicsObjecte::drawBoundsLine() const {
    const std::array<PaintVertex, 2> ends{{
        {worldBounds.left, worldBounds.bottom, 0.0F, 0.0F, 0.0F, 1.0F, 1.0F, 1.0F, 1.0F},
        {worldBounds.right, worldBounds.top, 0.0F, 0.0F, 0.0F, 1.0F, 1.0F, 1.0F, 1.0F},
    }};
    Painter& paint = painter();
    paint.pushTransform();
    graphicsModule().camera->applyTransform(1.0F);
    textureStore().bind(-1);
    paint.lines(ends);
    paint.popTransform();
}

void GraphicsObjecte::applyModifiers() {
    for (Gr_Modifier* modifier : data.modifiers) {
        modifier->apply(*this);
    }
}

void GraphicsObjecte::moveTo(float x, float y) {
    btTransform transform;
    getTransform(transform);
    moveBy(x - transform.getOrigin().x(), y - transform.getOrigin().y());
}

void GraphicsObjecte::moveBy(float dx, float dy) {
    for (std::size_t i = 0; i + 1 < data.vertices.size(); i += 2) {
        data.vertices[i] += dx;
        data.vertices[i + 1] += dy;
    }
}

void GraphicsObjecte::rotateVertices(float angle) {
    transformVertices(btTransform(btQuaternion(btVector3(0.0F, 0.0F, 1.0F), angle)));
}

void GraphicsObjecte::transformVertices(const btTransform& matrix) {
    const btVector3& top = matrix.getBasis()[0];
    const btVector3& bottom = matrix.getBasis()[1];
    for (std::size_t i = 0; i + 1 < data.vertices.size(); i += 2) {
        const float x = data.vertices[i];
        const float y = data.vertices[i + 1];
        data.vertices[i] = top.x() * x + top.y() * y;
        data.vertices[i + 1] = bottom.x() * x + bottom.y() * y;
    }
}

void GraphicsObjecte::write(TextWriter& stream) const {
    stream << type << data.vertices.size();
    for (std::size_t i = 0; i + 1 < data.vertices.size(); i += 2) {
        const float* colour = &data.colours[i * 2];
        stream << data.vertices[i] << data.vertices[i + 1];
        stream << colour[0] << colour[1] << colour[2] << colour[3];
        stream << data.texcoords[i] << data.texcoords[i + 1];
    }
    writeLook(stream);
}

void GraphicsObjecte::writeLook(TextWriter& stream) const {
    stream << textureStore().nameOf(data.texture) << data.parallax << getZ();
    stream << data.modifiers.size();
    for (const Gr_Modifier* modifier : data.modifiers) {
        modifier->write(stream);
    }
}

void GraphicsObjecte::updateBounds() {
    btTransform transform;
    getTransform(transform);
    const Yaw yaw = yawOf(transform);
    const Bounds& local = localBounds;

    // The least of the four turned corners is the sum of the least shares of x and of y.
    const auto [xLeft, xRight] = std::minmax({local.left * yaw.cosine, local.right * yaw.cosine});
    const auto [yLeft, yRight] = std::minmax({-local.bottom * yaw.sine, -local.top * yaw.sine});
    const auto [xBottom, xTop] = std::minmax({local.left * yaw.sine, local.right * yaw.sine});
    const auto [yBottom, yTop] = std::minmax({local.bottom * yaw.cosine, local.top * yaw.cosine});

    float shiftX = transform.getOrigin().x();
    float shiftY = transform.getOrigin().y();
    if (data.parallax != 1.0F) {
        // A distant layer is drawn where the camera drags it.
        const Camera& camera = *graphicsModule().camera;
        shiftX += (1.0F - data.parallax) * camera.getX();
        shiftY += (1.0F - data.parallax) * camera.getY();
    }
    worldBounds = {xLeft + yLeft + shiftX, xBottom + yBottom + shiftY, xRight + yRight + shiftX,
                   xTop + yTop + shiftY};
}

void GraphicsObjecte::updateLocalBounds() {
    localBounds = vertexBox();
}

Bounds GraphicsObjecte::vertexBox() const {
    const std::vector<float>& vertices = data.vertices;
    if (vertices.size() < 2) {
        return {0.0F, 0.0F, 0.0F, 0.0F};
    }
    Bounds box{vertices[0], vertices[1], vertices[0], vertices[1]};
    for (std::size_t i = 2; i + 1 < vertices.size(); i += 2) {
        box.left = std::min(box.left, vertices[i]);
        box.right = std::max(box.right, vertices[i]);
        box.bottom = std::min(box.bottom, vertices[i + 1]);
        box.top = std::max(box.top, vertices[i + 1]);
    }
    return box;
}

btVector3 GraphicsObjecte::getCentre() const {
    const Bounds box = vertexBox();
    return {(box.left + box.right) / 2.0F, (box.bottom + box.top) / 2.0F, 0.0F};
}

void GraphicsObjecte::centreVertices() {
    const btVector3 centre = getCentre();
    GraphicsObjecte::moveBy(-centre.x(), -centre.y());
}

void GraphicsObjecte::setColour(float r, float g, float b, float a) {
    const std::array<float, 4> colour{r, g, b, a};
    for (std::size_t i = 0; i < data.colours.size(); ++i) {
        data.colours[i] = colour[i % 4];
    }
}

void GraphicsObjecte::getColour(float& r, float& g, float& b, float& a) const {
    assert(data.colours.size() >= 4);
    r = data.colours[0];
    g = data.colours[1];
    b = data.colours[2];
    a = data.colours[3];
}
