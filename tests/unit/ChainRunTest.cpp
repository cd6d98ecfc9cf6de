#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "TextStream.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/So_Addons/LockAdd.h"
#include "sceneManager/So_Addons/ScriptParser.h"

namespace {

/// Runs chains of the commands A, B and C, which note when they run, steps counted from 1.
class ChainRun : public EngineFixture {
protected:
    void SetUp() override {
        EngineFixture::SetUp();
        for (const char* name : {"A", "B", "C"}) {
            addCallback(
                name, [this, name](SceneObject*, So_Addition*) { trace.emplace_back(name, now); });
        }
    }

    void TearDown() override {
        for (const char* name : {"A", "B", "C"}) {
            callbackTable().erase(name);
        }
        EngineFixture::TearDown();
    }

    void step(int count = 1) {
        for (int i = 0; i < count; ++i) {
            ++now;
            EngineFixture::step();
        }
    }

    void run(const std::string& script, int steps) {
        physicsModule().addScript(parseScript(script));
        step(steps);
    }

    /// What ran, and in which step each: "A1 B300 ".
    std::string traced() const {
        std::string text;
        for (const auto& [name, when] : trace) {
            text += name + std::to_string(when) + " ";
        }
        return text;
    }

    void hold(int key) {
        window->press(key);
        window->pollEvents();
    }

    void release(int key) {
        window->release(key);
        window->pollEvents();
    }

    unsigned now = 0;                                    ///< The present step of the test.
    std::vector<std::pair<std::string, unsigned>> trace; ///< What ran, and when.
};

TEST_F(ChainRun, EachLinkHasItsTurnInTheStepThatClocksAndLocksLeaveIt) {
    struct Case {
        const char *what, *script;
        int steps;
        const char* trace;
    };
    const Case cases[] = {
        {"a lock lets the rest through once", "A LOCK B C", 3, "A1 B1 C1 A2 A3 "},
        {"a delay that is reached in step 1 fires in step 300",
         "LOCK A DELAY 300 B DELAY 10 DELAYORKEY 190 C REMOVESCRIPT", 600, "A1 B300 C498 "},
        {"a delay at the head starts again in the step in which it fires", "DELAY 10 A", 30,
         "A10 A19 A28 "},
        {"the shortest fire at the next tick", "LOCK DELAY 0 A DELAY 1 B DELAYORKEY 0 C", 10,
         "A2 B3 C4 "},
        {"clocks nearest the end are served first", "DELAY 2 A DELAY 2 B", 3, "A2 B3 A3 "},
        {"UNLOCK opens the lock before it", "LOCK B DELAY 10 UNLOCK", 20, "B1 B10 B19 "},
        {"in the same step", "LOCK A B UNLOCK C", 2, "A1 B1 C1 A2 B2 C2 "},
        {"the nearest closed one alone", "A LOCK B LOCK C UNLOCK", 3, "A1 B1 C1 A2 A3 "},
        {"who removes itself finishes the step", "REMOVESCRIPT A REMOVESCRIPT B DELAY 2 C", 5,
         "A1 B1 "},
        {"a wait that ran out can start again", "LOCK DELAYORKEY 20 A UNLOCK", 45, "A20 A39 "},
    };
    for (const Case& c : cases) {
        now = 0;
        trace.clear();
        run(c.script, c.steps);
        EXPECT_EQ(traced(), c.trace) << c.what;
        EXPECT_EQ(physicsModule().getGlobalScripts().empty(),
                  std::string(c.script).find("REMOVESCRIPT") != std::string::npos);
        physicsModule().removeAllScripts();
        EngineFixture::step();
    }
}

TEST_F(ChainRun, AKeyCutsAWaitOnItsReleaseAndNotTheNextWait) {
    run("LOCK DELAYORKEY 100 A DELAYORKEY 100 B", 5);
    hold(platform::keySpace);
    step(3);
    EXPECT_EQ(traced(), "");
    release(platform::keySpace);
    step(200);
    EXPECT_EQ(traced(), "A9 B108 ") << "which started in 9";
}

TEST_F(ChainRun, AKeyThatIsDownWhenAWaitStartsCutsItOnItsReleaseForGood) {
    hold(platform::keySpace);
    run("LOCK DELAYORKEY 100 A UNLOCK", 5);
    EXPECT_EQ(traced(), "");
    release(platform::keySpace);
    step(60);
    EXPECT_EQ(traced(), "A6 ");
}

TEST_F(ChainRun, ACommandMayDeleteItsOwnChainFromAnyLinkAndTick) {
    addCallback("ENDSELF",
                [](SceneObject* owner, So_Addition* link) { owner->removeAddition(link); });
    addCallback("ENDALL", [](SceneObject* owner, So_Addition*) { owner->clearAdditions(); });
    SceneObject* box = addBox(0, 0, 10, 10, 0);
    for (const char* script :
         {"ENDSELF", "ENDSELF A", "DELAY 2 ENDALL A", "LOCK DELAY 2 ENDALL A"}) {
        box->addAddition(parseScript(script));
        step(4);
        EXPECT_TRUE(box->additions.empty()) << script;
    }
    callbackTable().erase("ENDSELF");
    callbackTable().erase("ENDALL");
}

TEST_F(ChainRun, SetLockClosesAllLocksOfTheNamedObject) {
    SceneObject* box = addBox(0, 0, 10, 10, 0);
    box->addAddition(parseScript("NAME door"));
    auto* chain = parseScript("A LOCK B LOCK C");
    box->addAddition(chain);
    run("SETLOCK nobody SETLOCK door REMOVESCRIPT", 1); // after the objects of the step
    chain->unlock();
    run("SETLOCK door REMOVESCRIPT", 1);
    step(2);
    EXPECT_EQ(traced(), "A1 B1 C1 A2 B2 C2 A3 A4 ");
}

TEST_F(ChainRun, EveryKeywordRunsInAGlobalScriptWithoutHarm) {
    for (const Keyword& keyword : keywordTable()) {
        for (const char* rest : {"", " 3 A", " a.wav -P A", " -P A", " -O A"}) {
            run(std::string(keyword.word) + rest, 4);
        }
    }
    physicsModule().removeAllScripts();
    step();
    EXPECT_TRUE(physicsModule().getGlobalScripts().empty());
}

TEST_F(ChainRun, AScriptOfManyThousandWordsNeedsNoStack) {
    constexpr std::size_t words = 200'000; // a word a stack frame would break any usual stack
    std::string text = "LOCK";
    for (std::size_t i = 1; i < words; ++i) {
        text += i % 2 == 0 ? " A" : " LOCK";
    }
    const std::unique_ptr<CallbackAdd> chain(parseScript(text));
    chain->update(nullptr);
    EXPECT_EQ(trace.size(), words / 2 - 1);
    chain->unlock();
    chain->lock();

    TextWriter stream;
    chain->save(stream);
    TextReader reader(stream.text());
    const std::unique_ptr<So_Addition> copy(readAddition(reader));
    CallbackAdd* last = static_cast<CallbackAdd*>(copy.get());
    while (last->getNext() != nullptr) {
        last = last->getNext();
    }
    EXPECT_TRUE(copy->contains(last));
    EXPECT_FALSE(chain->contains(last));
    EXPECT_TRUE(static_cast<LockAdd*>(last)->locked);
}

} // namespace
