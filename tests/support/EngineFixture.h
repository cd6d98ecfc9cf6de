#pragma once

#include "RecordingDevice.h"
#include "ScriptedWindow.h"
#include "SilentMixer.h"
#include "TempDirectory.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>

/// The whole engine, set up in the order of the program and without its story, in a directory of
/// its own: the settings at their usual values with CR LF ends, a language file whose line n is
/// "line n", empty folders for maps, textures and saves, and a sound and a piece of music that no
/// device plays. Nothing is drawn and no time passes but by the test. Each test finds the process
/// as it was at its start.
class EngineFixture : public testing::Test {
protected:
    EngineFixture();
    ~EngineFixture() override;

    void SetUp() override;
    void TearDown() override;

    /// That many updates of `PhysicsModule`, without input and drawing.
    void step(int count = 1);
    /// That many ticks of the loop, a 60th of a second apart. Each polls input and draws once.
    void frame(int count = 1);

    // For tests that draw, or that live in other directories. Called in `SetUp`, in this order.
    /// Fills the directory, which is the current one.
    virtual void prepareDirectory();
    /// More sounds that no device plays, without the ending; before the engine starts.
    void writeSounds(std::initializer_list<const char*> names) const;
    /// The window that the scripted one wraps; none.
    virtual std::unique_ptr<platform::Window> makeInnerWindow() { return nullptr; }
    /// Called when the window is open; a `RecordingDevice`, kept as `device`.
    virtual std::unique_ptr<PaintDevice> makeDevice();
    /// A `SilentMixer`, kept as `mixer`; null for the audio library's.
    virtual std::unique_ptr<Mixer> makeMixer();

    TempDirectory directory;
    std::string startDirectory;        ///< Where the test program was started; absolute.
    ScriptedWindow* window = nullptr;  ///< Owned by the process.
    RecordingDevice* device = nullptr; ///< Owned by the painter; null if `makeDevice` made another.
    SilentMixer* mixer = nullptr;      ///< Owned by the sound manager; null if there is another.
};
