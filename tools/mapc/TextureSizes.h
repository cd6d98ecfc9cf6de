#pragma once

#include <map>
#include <string>

namespace mapc {

struct TextureSize {
    float width = 1.0F;
    float height = 1.0F;
};

/// Sizes of the textures in the directory of built assets, read from their TGA headers. What is not
/// there counts as one pixel, as it does in the game.
class TextureSizes {
public:
    /// An empty directory means that none is known.
    explicit TextureSizes(std::string path = "") : directory(std::move(path)) {}

    bool isKnown() const { return !directory.empty(); }
    bool exists(const std::string& fileName) const;
    TextureSize sizeOf(const std::string& fileName);

private:
    std::string directory;
    std::map<std::string, TextureSize> sizes;
};

} // namespace mapc
