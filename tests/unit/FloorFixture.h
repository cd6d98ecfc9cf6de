#pragma once

#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "sceneManager/So_Addons/CallbackAdd.h"

/// A static floor from -50 to 50 with its top at 10, which carries the scripts, and things that are
/// put on it. The command A counts its runs.
class FloorFixture : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        addCallback("A", [this](SceneObject*, So_Addition*) { ++runs; });
        floor = addBox(0.0F, 0.0F, 50.0F, 10.0F, 0.0F);
    }

    void TearDown() override {
        callbackTable().erase("A");
        EngineFixture::TearDown();
    }

    SceneObject* floor = nullptr;
    int runs = 0;
};
