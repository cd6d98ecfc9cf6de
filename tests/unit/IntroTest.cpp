#include "FlowFixture.h"

#include "game/flow/Intro.h"
#include "graphicsModule/Camera.h"
#include "graphicsModule/ParticleEmiter.h"
#include "sceneManager/So_Addons/CustomCallbackAdd.h"

namespace {

class Intro : public FlowFixture {
protected:
    static SceneObject& object(std::size_t index) { return *sceneManager().objects.at(index); }

    static const ParticleEmiter& emitterOf(const SceneObject& object) {
        return *static_cast<ParticleEmiter*>(object.findAddition(AdditionType::particleEmiter));
    }
};

void expectThatAllWordsAreKnown(const std::string& script) {
    const std::unique_ptr<CallbackAdd> head(parseScript(script));
    for (const CallbackAdd* link = head.get(); link != nullptr; link = link->getNext()) {
        const auto* command = dynamic_cast<const CustomCallbackAdd*>(link);
        EXPECT_TRUE(command == nullptr || command->hasCallback()) << command->getName();
    }
}

} // namespace

TEST_F(Intro, EveryWordOfEveryIntroIsKnown) {
    for (int chapter = 1; chapter <= chapterCount; ++chapter) {
        expectThatAllWordsAreKnown(introScript(chapter));
        if (*chapterRow(chapter).stage.mover != '\0') {
            expectThatAllWordsAreKnown(chapterRow(chapter).stage.mover);
        }
    }
}

TEST_F(Intro, ScriptsAreToldByTheirRows) {
    EXPECT_EQ(introScript(2),
              "LOCK FADENORMAL DELAY 300 CH2T1 DELAY 200 CH2T2 DELAY 200 CH2T3 DELAY 200 "
              "FADEALLTOWHITE DELAY 200 TIP -1 FADENORMAL CHAPTER2 REMOVESCRIPT");
    EXPECT_TRUE(introScript(1).starts_with("LOCK FADENORMAL DELAY 300 CH1T1 DELAY 10 DELAYORKEY "
                                           "190 CH1T2 DELAY 10 DELAYORKEY 190 CH1T3 CH1T4 DELAY"));
    EXPECT_TRUE(introScript(1).ends_with(
        "CH1T15 DELAY 100 FADEALLTOWHITE DELAY 200 TIP -1 INEWGAME1 REMOVESCRIPT"));
    EXPECT_TRUE(introScript(10).starts_with("CH10T7 LOCK FADENORMAL DELAY 200 CH10T1 "));
    EXPECT_NE(introScript(15).find("CH15T11 DELAY 300 CH15T12 DELAY 300 "), std::string::npos);
}

TEST_F(Intro, ALineChangesTheSprayFromItsBaseAndNotFromTheLineBefore) {
    run("CH1REF");
    const ParticleParams& spray = emitterOf(object(0)).params;
    run("CH1T9");
    EXPECT_EQ(shownWords(), "line 63 ");
    EXPECT_EQ(spray.speed, 15.0F);
    run("CH1T10");
    EXPECT_EQ(spray.speed, 2.0F);
    EXPECT_EQ(spray.endColour[2], 0.1F);
    run("CHAPTER15INTRO");
    run("CH15T14");
    EXPECT_EQ(emitterOf(object(0)).params.rate, 0.36F) << "only text";
}

TEST_F(Intro, MoversStopWhereTheyShouldAndWhenTheirStageIsGone) {
    run("CHAPTER3INTRO");
    step(100);
    EXPECT_NEAR(originOf(object(0)).x(), -100.0F, 1.5F);
    EXPECT_NEAR(originOf(object(1)).x(), -550.0F, 2.0F);
    step(900);
    EXPECT_NEAR(originOf(object(0)).x(), 700.0F, 2.0F);
    physicsModule().removeAllScripts();
    step();
    run("CHAPTER2INTRO");
    sceneManager().clearScene();
    EXPECT_EQ(physicsModule().getGlobalScripts().size(), 2U);
    step(2);
    EXPECT_EQ(physicsModule().getGlobalScripts().size(), 1U) << "the intro goes on alone";
}

TEST_F(Intro, HeadsZoomInEveryStepAndBurstInSome) {
    run("CHAPTER12INTRO");
    step(200);
    EXPECT_NEAR(graphicsModule().camera->getZoom(), 4.3F * std::pow(1.002F, 200.0F), 0.01F);
    EXPECT_GE(emitterOf(object(0)).getParticles().size(), 400U); // 300 and a burst of 100 at least
    EXPECT_EQ(emitterOf(object(0)).params.speed, 0.0F);
    run("CHAPTER10INTRO");
    step(121);
    EXPECT_GE(emitterOf(object(0)).getParticles().size(), 90U);
}
