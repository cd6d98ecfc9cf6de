#include "TextureStore.h"

#include "Painter.h"
#include "ProcessValues.h"
#include "platform/Image.h"

#include <algorithm>
#include <iostream>

namespace {

TextureFormat formatOf(const platform::Image& image) {
    if (image.channels == 1) {
        return TextureFormat::luminance;
    }
    return image.channels == 3 ? TextureFormat::rgb : TextureFormat::rgba;
}

} // namespace

TextureStore::~TextureStore() {
    for (int name = 0; name < nextTexture; ++name) {
        painter().device().deleteTexture(name);
    }
}

void TextureStore::load(const std::string& fileName) {
    platform::Image image;
    std::string reason;
    const bool usable = platform::readTga(dataPrefix + "data/" + fileName, image, reason);
    if (!usable || std::max(image.width, image.height) > painter().device().maxTextureSize()) {
        std::cout << "Brak pliku " << fileName << '\n';
        return;
    }
    painter().device().uploadTexture(nextTexture, image.width, image.height, formatOf(image), true,
                                     image.pixels.data());
    textures.push_back({image.width, image.height, fileName});
    boundTexture = nextTexture;
    ++nextTexture;
}

int TextureStore::find(const std::string& fileName) const {
    const auto found = std::find_if(textures.begin(), textures.end(), [&](const Record& record) {
        return record.fileName == fileName;
    });
    return found == textures.end() ? -1 : static_cast<int>(found - textures.begin());
}

const std::string& TextureStore::nameOf(int handle) const {
    static const std::string unknown = "unknown";
    const auto index = static_cast<std::size_t>(handle);
    return handle < 0 || index >= textures.size() ? unknown : textures[index].fileName;
}

void TextureStore::sizeOf(int handle, int& width, int& height) const {
    const auto index = static_cast<std::size_t>(handle);
    if (handle < 0 || index >= textures.size()) {
        std::cout << "missing texture " << handle << '\n';
        width = 1;
        height = 1;
        return;
    }
    width = textures[index].width;
    height = textures[index].height;
}

void TextureStore::bind(int handle) {
    if (boundTexture != handle) {
        painter().bindTexture(handle);
        boundTexture = handle;
    }
}

TextureStore& textureStore() {
    return service<TextureStore>();
}
