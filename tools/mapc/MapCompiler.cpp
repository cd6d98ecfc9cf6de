#include "MapCompiler.h"

#include "LevelBuilder.h"
#include "LevelWriter.h"

namespace mapc {

std::string compileMap(const std::string& source, MapOptions& options,
                       std::vector<Problem>& problems) {
    const Level level = buildLevel(parseTiledMap(source), problems);
    checkLevel(level, options.isCommand, problems);
    if (options.textures.isKnown()) {
        checkTextures(level, options.textures, problems);
    }
    if (!options.soundDirectory.empty()) {
        checkSounds(level, options.soundDirectory, problems);
    }
    if (!options.musicDirectory.empty()) {
        checkMusic(level, options.musicDirectory, problems);
    }
    return problems.empty() ? writeLevel(level, options.textures) : std::string();
}

std::string describe(const Problem& problem, const std::string& file) {
    std::string text = file + ": ";
    if (problem.object != 0) {
        text += "object " + std::to_string(problem.object);
        if (!problem.name.empty()) {
            text += " \"" + problem.name + "\"";
        }
        text += ": ";
    }
    return text + problem.reason;
}

} // namespace mapc
