#include "PictureFixture.h"

#include "support/HeldWindow.h"

#include "Files.h"
#include "ProcessValues.h"
#include "Settings.h"
#include "graphicsModule/GlDevice.h"
#include "graphicsModule/GraphicsModule.h"
#include "graphicsModule/InterfaceGraphicsObject.h"
#include "graphicsModule/Painter.h"
#include "graphicsModule/TextureStore.h"
#include "graphicsModule/TransformGraphicsObject.h"

#include <cmath>

namespace {

using Texel = std::array<std::uint8_t, 4>; // red, green, blue, alpha

constexpr Texel white{255, 255, 255, 255};
constexpr Texel clear{255, 255, 255, 0};

template <class Paint>
std::string makeTga(int side, Paint paint) {
    std::string file(18, '\0');
    file[2] = 2; // uncompressed colours, rows from the bottom up
    file[12] = file[14] = static_cast<char>(side & 0xFF);
    file[13] = file[15] = static_cast<char>(side >> 8);
    file[16] = 32;
    file[17] = 8;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const Texel texel = paint(x, y);
            for (const int channel : {2, 1, 0, 3}) {
                file += static_cast<char>(texel[static_cast<std::size_t>(channel)]);
            }
        }
    }
    return file;
}

/// Left half red, right half green, and above the middle both dimmed.
Texel quarters(int x, int y) {
    const std::uint8_t level = y < 32 ? 255 : 128;
    return x < 32 ? Texel{level, 0, 0, 255} : Texel{0, level, 0, 255};
}

/// A font in which A is a full block and every other character is blank.
Texel blockFont(int x, int y) {
    const int cell = (255 - y) / 16 * 16 + x / 16;
    return cell == 'A' - ' ' ? white : clear;
}

void setWindowSize(int width, int height) {
    std::string settings = readFile("config.txt");
    setModifier<int>("WINDOW_WIDTH", width, settings);
    setModifier<int>("WINDOW_HEIGHT", height, settings);
    writeFile(settings, "config.txt");
}

} // namespace

void PictureFixture::prepareDirectory() {
    EngineFixture::prepareDirectory();
    setWindowSize(640, 512);
    const auto allWhite = [](int, int) { return white; };
    directory.write("data/null.tga", makeTga(4, allWhite));
    directory.write("data/particle7.tga", makeTga(4, allWhite));
    directory.write("data/quarters.tga", makeTga(64, quarters));
    directory.write("data/text2.tga", makeTga(256, blockFont));
}

std::unique_ptr<platform::Window> PictureFixture::makeInnerWindow() {
    return std::make_unique<HeldWindow>();
}

std::unique_ptr<PaintDevice> PictureFixture::makeDevice() {
    return std::make_unique<GlDevice>();
}

void PictureFixture::SetUp() {
    EngineFixture::SetUp();
    if (HasFatalFailure()) {
        return;
    }
    GraphicsModule& module = graphicsModule();
    module.screenFade->setColour(0.0F, 0.0F, 0.0F, 0.0F);
    module.sceneFade->setColour(0.0F, 0.0F, 0.0F, 0.0F);
    module.ambient = {1.0F, 1.0F, 1.0F};
    window->setMousePosition(0, 0); // the cursor is out of the way, in a bar's corner
}

void PictureFixture::draw() {
    graphicsModule().update();
}

TransformGraphicsObject* PictureFixture::addSquare(float x, float y, float halfSide, float z,
                                                   float r, float g, float b, float a,
                                                   const char* texture, float parallax) {
    const GraphicsObjectData data =
        makeBoxData(halfSide, halfSide, textureStore().find(texture), z, parallax, 0, r, g, b, a);
    auto* square = new TransformGraphicsObject(x, y, data);
    if (data.texture >= 0) {
        square->regenerateTexcoords();
    }
    graphicsModule().addObject(square);
    return square;
}

void PictureFixture::expectColour(float x, float y, float r, float g, float b) {
    const int width = windowWidth - 2 * letterboxX;
    const int height = windowHeight - 2 * letterboxY;
    const int px = letterboxX + static_cast<int>(x * static_cast<float>(width) / logicalWidth);
    const int py =
        letterboxY + static_cast<int>(std::floor(y * static_cast<float>(height) / logicalHeight));
    const auto pixel = painter().device().readPixel(px, py);
    SCOPED_TRACE("at " + std::to_string(x) + ", " + std::to_string(y));
    EXPECT_NEAR(pixel[0], r * 255.0F, tolerance);
    EXPECT_NEAR(pixel[1], g * 255.0F, tolerance);
    EXPECT_NEAR(pixel[2], b * 255.0F, tolerance);
}
