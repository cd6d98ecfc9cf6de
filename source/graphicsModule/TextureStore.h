#pragma once

#include "Service.h"

#include <string>
#include <vector>

/// All textures of the game. A handle is an index into the store and the name that the painter's
/// device knows the texture by; -1 means no texture, drawn in plain vertex colours. Deleted by
/// `ModuleManager`.
class TextureStore {
    ServiceSlot<TextureStore> slot{this};

public:
    TextureStore() = default;
    ~TextureStore();
    TextureStore(const TextureStore&) = delete;
    TextureStore& operator=(const TextureStore&) = delete;

    /// Loads a TGA of the data directory. A file that cannot be used gets "Brak pliku " and its
    /// name and no handle.
    void load(const std::string& fileName);
    int find(const std::string& fileName) const; ///< Exact name; -1 if there is none.
    /// The file name, or "unknown".
    const std::string& nameOf(int handle) const;
    /// Size in pixels; 1 by 1 with the message "missing texture " for no such handle.
    void sizeOf(int handle, int& width, int& height) const;
    /// The only way to bind a texture: skips what is bound already.
    void bind(int handle);

private:
    struct Record {
        int width;
        int height;
        std::string fileName;
    };

    int nextTexture = 0;
    int boundTexture = -1;
    std::vector<Record> textures;
};

TextureStore& textureStore();
