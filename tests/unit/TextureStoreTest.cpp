#include "support/EngineFixture.h"

#include "graphicsModule/TextureStore.h"

namespace {

/// An uncompressed TGA of one grey, `depth` bits a pixel.
std::string makeTga(int width, int height, int depth) {
    std::string file(18, '\0');
    file[2] = depth == 8 ? 3 : 2;
    file[12] = static_cast<char>(width & 0xFF);
    file[13] = static_cast<char>(width >> 8);
    file[14] = static_cast<char>(height & 0xFF);
    file[15] = static_cast<char>(height >> 8);
    file[16] = static_cast<char>(depth);
    return file + std::string(static_cast<std::size_t>(width * height * depth / 8), 'x');
}

class TextureStoreTest : public EngineFixture {
protected:
    void prepareDirectory() override {
        EngineFixture::prepareDirectory();
        directory.write("data/b.tga", makeTga(4, 2, 24));
        directory.write("data/a.tga", makeTga(2, 2, 8));
        directory.write("data/c.tga", makeTga(8, 8, 32));
        directory.write("data/cut.tga", makeTga(8, 8, 32).substr(0, 40));
        directory.write("data/d.tga", makeTga(1, 1, 32));
    }
};

TEST_F(TextureStoreTest, TheTexturesOfTheDirectoryAreNumberedByName) {
    const TextureStore& store = textureStore();
    EXPECT_EQ(store.find("a.tga"), 0);
    EXPECT_EQ(store.find("b.tga"), 1);
    EXPECT_EQ(store.find("c.tga"), 2);
    EXPECT_EQ(store.find("d.tga"), 3) << "a file that cannot be used takes no number";
    EXPECT_EQ(store.find("A.tga"), -1);
    EXPECT_EQ(store.nameOf(1), "b.tga");
    EXPECT_EQ(store.nameOf(-1), "unknown");
    EXPECT_EQ(store.nameOf(4), "unknown");
    EXPECT_EQ(device->textures.at(0).format, TextureFormat::luminance);
    EXPECT_EQ(device->textures.at(1).format, TextureFormat::rgb);
    EXPECT_EQ(device->textures.at(2).format, TextureFormat::rgba);
    EXPECT_TRUE(device->textures.at(2).mipmaps);
}

} // namespace
