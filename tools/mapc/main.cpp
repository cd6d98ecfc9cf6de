// The map tool of designers and of the build: from Tiled to the game's maps, and back to text.

#include "Files.h"
#include "MapCompiler.h"
#include "MapDump.h"
#include "game/flow/ChapterFlow.h"
#include "sceneManager/SceneManager.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <iostream>
#include <map>
#include <span>

namespace {

constexpr const char* usage =
    "mapc compile IN.tmj OUT.vkl [--data DIR] [--sound DIR] [--music DIR]\n"
    "mapc check IN.tmj [--data DIR] [--sound DIR] [--music DIR]\n"
    "mapc dump IN.vkl\n"
    "  --data DIR   built textures, for their sizes and names\n"
    "  --sound DIR  built sounds, for their names\n"
    "  --music DIR  built music, for its names\n";

struct CommandLine {
    std::vector<std::string> words;
    std::map<std::string, std::string> directories{
        {"--data", ""}, {"--sound", ""}, {"--music", ""}};
};

CommandLine parseArguments(std::span<char*> arguments) {
    CommandLine line;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string word = arguments[i];
        const auto directory = line.directories.find(word);
        if (directory == line.directories.end()) {
            line.words.push_back(word);
            continue;
        }
        if (i + 1 == arguments.size()) {
            throw word + " needs a directory\n" + usage;
        }
        directory->second = arguments[++i];
    }
    return line;
}

/// Checks the map, and writes the second file if asked to.
int compileFile(const CommandLine& line, bool write) {
    mapc::MapOptions options{
        mapc::TextureSizes(line.directories.at("--data")), line.directories.at("--sound"),
        line.directories.at("--music"),
        [](const std::string& word) { return callbackTable().contains(word); }};
    const std::string& file = line.words[1];
    std::vector<mapc::Problem> problems;
    const std::string text = mapc::compileMap(readFile(file), options, problems);
    for (const mapc::Problem& problem : problems) {
        std::cerr << mapc::describe(problem, file) << '\n';
    }
    if (write && problems.empty()) {
        std::string packed;
        compress(text.data(), text.size(), packed);
        writeFile(packed, line.words[2]);
    }
    return problems.empty() ? 0 : 1;
}

int dumpFile(const CommandLine& line) {
    const std::string packed = readFile(line.words[1]);
    std::string text;
    if (!uncompress(packed.data(), packed.size(), text)) {
        throw std::string("is no packed map");
    }
    std::cout << mapc::dumpMap(text);
    return 0;
}

int run(const CommandLine& line) {
    const std::string command = line.words.empty() ? "" : line.words[0];
    if (command == "compile" && line.words.size() == 3) {
        return compileFile(line, true);
    }
    if (command == "check" && line.words.size() == 2) {
        return compileFile(line, false);
    }
    if (command == "dump" && line.words.size() == 2) {
        return dumpFile(line);
    }
    std::cerr << usage;
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    int status = 1;
    CommandLine line;
    try {
        line = parseArguments({argv, static_cast<std::size_t>(argc)});
        sceneManager(); // enters the named commands, which scripts may call
        registerFlowCommands();
        status = run(line);
    } catch (const std::string& reason) {
        std::cerr << (line.words.size() > 1 ? line.words[1] + ": " : "mapc: ") << reason << '\n';
    }
    delete existingService<SceneManager>();
    return status;
}
