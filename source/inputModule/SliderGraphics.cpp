#include "SliderGraphics.h"

#include "graphicsModule/InterfaceGraphicsObject.h"
#include "graphicsModule/MultiGraphics.h"

MultiGraphics* makeSliderGraphics(float left, float bottom, float right, float top) {
    constexpr float handleWidth = 5.0F;
    auto* parts = new MultiGraphics();
    parts->addChild(new InterfaceGraphicsObject(left, bottom, right, top, "slider.tga"));
    parts->addChild(new InterfaceGraphicsObject(0.0F, 0.0F, handleWidth, top, "null.tga"));
    return parts;
}
