#include "support/EngineFixture.h"

#include "PhysicsBodies.h"
#include "TextStream.h"
#include "physicsModule/PhysicsModule.h"
#include "sceneManager/So_Addons/LockAdd.h"
#include "sceneManager/So_Addons/ScriptParser.h"

namespace {

using Steps = std::vector<unsigned>;

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

    Steps stepsOf(const std::string& name) const {
        Steps steps;
        for (const auto& [who, when] : trace) {
            if (who == name) {
                steps.push_back(when);
            }
        }
        return steps;
    }

    std::string order() const {
        std::string names;
        for (const auto& entry : trace) {
            names += entry.first;
        }
        return names;
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

TEST_F(ChainRun, AHeadRunsEveryStepAndALockLetsTheRestThroughOnce) {
    run("A LOCK B C", 3);
    EXPECT_EQ(order(), "ABCAA");
}

TEST_F(ChainRun, ADelayReachedInStepOneFiresInStepThreeHundred) {
    run("LOCK A DELAY 300 B DELAY 10 DELAYORKEY 190 C REMOVESCRIPT", 497);
    EXPECT_EQ(stepsOf("A"), Steps{1});
    EXPECT_EQ(stepsOf("B"), Steps{300});
    EXPECT_EQ(stepsOf("C"), Steps{});
    EXPECT_EQ(physicsModule().getGlobalScripts().size(), 1U);
    step();
    EXPECT_EQ(stepsOf("C"), Steps{498});
    EXPECT_TRUE(physicsModule().getGlobalScripts().empty());
}

TEST_F(ChainRun, ADelayAtTheHeadStartsAgainInTheStepInWhichItFires) {
    run("DELAY 10 A", 30);
    EXPECT_EQ(stepsOf("A"), (Steps{10, 19, 28}));
}

TEST_F(ChainRun, TheShortestDelaysFireAtTheNextTick) {
    run("LOCK DELAY 0 A DELAY 1 B DELAYORKEY 0 C", 10);
    EXPECT_EQ(stepsOf("A"), Steps{2});
    EXPECT_EQ(stepsOf("B"), Steps{3});
    EXPECT_EQ(stepsOf("C"), Steps{4});
}

TEST_F(ChainRun, ClocksNearestTheEndAreServedFirst) {
    run("DELAY 2 A DELAY 2 B", 3);
    EXPECT_EQ(order(), "ABA");
}

TEST_F(ChainRun, UnlockOpensTheNearestClosedLockBeforeIt) {
    run("A LOCK B DELAY 10 UNLOCK", 20);
    EXPECT_EQ(stepsOf("A").size(), 20U);
    EXPECT_EQ(stepsOf("B"), (Steps{1, 10, 19}));
    physicsModule().removeAllScripts();
    step();

    trace.clear();
    run("LOCK A B UNLOCK C", 2);
    EXPECT_EQ(order(), "ABCABC");
    physicsModule().removeAllScripts();
    step();

    trace.clear();
    run("A LOCK B LOCK C UNLOCK", 3); // the first lock stays closed
    EXPECT_EQ(order(), "ABCAA");
}

TEST_F(ChainRun, AKeyCutsAWaitOnItsReleaseAndNotTheNextWait) {
    run("LOCK DELAYORKEY 100 A DELAYORKEY 100 B", 5);
    hold(platform::keySpace);
    step(3);
    EXPECT_EQ(order(), "");
    release(platform::keySpace);
    step(200);
    EXPECT_EQ(stepsOf("A"), Steps{9});
    EXPECT_EQ(stepsOf("B"), Steps{108}); // started in 9
}

TEST_F(ChainRun, AKeyThatIsDownWhenAWaitStartsCutsItOnItsRelease) {
    hold(platform::keySpace);
    run("LOCK DELAYORKEY 100 A", 5);
    EXPECT_EQ(order(), "");
    release(platform::keySpace);
    step(3);
    EXPECT_EQ(stepsOf("A"), Steps{6});
}

TEST_F(ChainRun, AWaitThatWasCutCannotStartAgainAndOneThatRanOutCan) {
    run("LOCK DELAYORKEY 20 A UNLOCK", 45);
    EXPECT_EQ(stepsOf("A"), (Steps{20, 39}));
    hold(platform::keySpace);
    step();
    release(platform::keySpace);
    step(60);
    EXPECT_EQ(stepsOf("A"), (Steps{20, 39, 47}));
}

TEST_F(ChainRun, RemovingAScriptLetsItsLinksFinishTheStep) {
    run("REMOVESCRIPT A REMOVESCRIPT B DELAY 2 C", 5);
    EXPECT_EQ(order(), "AB");
    EXPECT_TRUE(physicsModule().getGlobalScripts().empty());
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
    EXPECT_EQ(stepsOf("A").size(), 4U);
    EXPECT_EQ(stepsOf("C"), (Steps{1, 2}));
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
