#pragma once

#include "EngineFixture.h"
#include "Listener.h"

#include "soundModule/SoundManager.h"

#include <filesystem>
#include <memory>

/// A fixture with SDL's mixer and a listener, among the sounds and the music of the built game.
template <class Fixture>
class Listening : public Fixture {
protected:
    void SetUp() override {
        listener = std::make_unique<Listener>();
        Fixture::SetUp();
        if (!this->HasFatalFailure()) {
            listener->begin();
        }
    }

    void TearDown() override {
        if (listener) {
            listener->unplug();
        }
        Fixture::TearDown();
        listener.reset();
    }

    void prepareDirectory() override {
        Fixture::prepareDirectory();
        for (const std::string folder : {"sound", "music"}) {
            std::filesystem::remove_all(folder);
            std::filesystem::create_directory_symlink(TOLMERE_GAME_DIRECTORY "/" + folder, folder);
        }
    }

    std::unique_ptr<Mixer> makeMixer() override { return nullptr; }

    /// That many steps of the world, each heard.
    void pass(int steps) {
        for (int i = 0; i < steps; ++i) {
            this->step();
            soundManager().tick();
            listener->hearStep();
        }
    }

    /// Steps that have been heard; a sound that starts next is heard from this step on.
    int now() const { return heard().steps(); }
    const Recording& heard() const { return listener->heard(); }

    std::unique_ptr<Listener> listener;
};

using ListeningFixture = Listening<EngineFixture>;
