#pragma once

#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "game/flow/ChapterFlow.h"
#include "game/flow/Levels.h"
#include "inputModule/GameInput.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/SceneObjectDescription.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

#include <memory>

/// The engine with the story's flow, on small maps that the tests write.
class FlowFixture : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        forgetFlow();
        registerFlowCommands();
    }

    void TearDown() override {
        forgetFlow();
        EngineFixture::TearDown();
    }

    static void forgetFlow() {
        levelRunning = 0;
        gameStarted = false;
        cutsOn = 0;
        movementLocked = 0;
        chapterFlags.fill(0);
        forgetLevel();
    }

    static SceneObject* addNamed(float x, float y, float halfWidth, const std::string& name) {
        auto* object = new SceneObject(makeBoxParts({}, x, y, halfWidth, 10.0F));
        object->addAddition(parseScript("NAME " + name));
        sceneManager().addSceneObject(object);
        return object;
    }

    /// Stores a map of a floor, and of a marker above it.
    static void writeMap(const std::string& file, const std::string& markerName = "STARTPOS",
                         const std::string& floorName = "floor") {
        sceneManager().clearScene();
        addNamed(0.0F, 0.0F, 2000.0F, floorName);
        addNamed(100.0F, 60.0F, 1.0F, markerName);
        sceneManager().saveMap("maps/" + file);
        sceneManager().clearScene();
    }

    /// Runs a command as a script would, for an object or for none.
    static void run(const std::string& name, SceneObject* owner = nullptr) {
        const std::unique_ptr<CallbackAdd> link(parseScript(name));
        link->update(owner);
    }

    /// Until there is a player. False if there is none after so many steps.
    bool stepUntilPlayer(int limit) {
        for (int i = 0; i < limit && sceneManager().player == nullptr; ++i) {
            step();
        }
        return sceneManager().player != nullptr;
    }

    /// All words on the screen, in the order in which they were put there.
    static std::string shownWords() {
        std::string words;
        for (const GraphicsObject* object : graphicsModule().getInterfaceObjects()) {
            if (const auto* text = dynamic_cast<const Text*>(object)) {
                words += text->getText();
            }
        }
        return words;
    }
};
