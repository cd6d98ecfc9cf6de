#pragma once

#include "support/EngineFixture.h"

#include "TextStream.h"
#include "sceneManager/MapFile.h"
#include "tools/mapc/MapCompiler.h"

#include <nlohmann/json.hpp>

#include <map>
#include <string>
#include <vector>

// From what the editor writes to what the engine reads.

inline constexpr const char* start =
    R"({"id":90,"name":"STARTPOS","type":"Marker","point":true,"x":-500,"y":0,)"
    R"("properties":[{"name":"parallax","value":1}]})";

/// A map with its origin at 0, 100 of the editor and one layer that holds these objects.
inline std::string mapOf(const std::string& objects, const std::string& layerFields = "") {
    return R"({"type":"map","parallaxoriginy":100,"layers":[{"type":"objectgroup","id":1,)" +
           layerFields + R"("objects":[)" + objects + "," + start + "]}]}";
}

/// A property list of numbers and texts, as the editor writes it.
inline std::string with(const std::map<std::string, nlohmann::json>& properties) {
    nlohmann::json list = nlohmann::json::array();
    for (const auto& [name, value] : properties) {
        list.push_back({{"name", name}, {"value", value}});
    }
    return R"(,"properties":)" + list.dump();
}

class MapCompilerTest : public EngineFixture {
protected:
    std::vector<mapc::Problem> problems;
    std::string soundDirectory;
    std::string musicDirectory;

    std::string compile(const std::string& source) {
        mapc::MapOptions options{mapc::TextureSizes(), soundDirectory, musicDirectory,
                                 [](const std::string& word) { return word == "KNOWN"; }};
        problems.clear();
        return mapc::compileMap(source, options, problems);
    }

    SceneBundle load(const std::string& source) {
        const std::string text = compile(source);
        for (const mapc::Problem& problem : problems) {
            ADD_FAILURE() << mapc::describe(problem, "map");
        }
        TextReader stream(text);
        return parseScene(stream, true);
    }

    /// What is said of a map that holds the object and should not compile.
    std::string complaintOf(const std::string& objects) {
        EXPECT_EQ("", compile(mapOf(objects)));
        return problems.empty() ? "nothing" : mapc::describe(problems[0], "map");
    }
};
